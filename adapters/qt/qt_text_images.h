#pragma once

#include <QFont>
#include <QHash>
#include <QImage>
#include <QPoint>
#include <QSet>
#include <QString>
#include <functional>

namespace orvendal {

/// Pictures of lines of text on a ground of one colour. A grid that is scrolled by a row shows nearly the
/// same texts again, and copying a picture takes a small part of the time of drawing letters.
///
/// Holds no more than a few screens full: then it begins anew.
class QtTextImages {
 public:
  struct Key {
    const QFont* font;  // lives longer than the pictures
    QString text;
    QRgb color;
    QRgb ground;
    bool operator==(const Key&) const = default;
    friend size_t qHash(const Key& key, size_t seed = 0) {
      return qHashMulti(seed, key.font, key.text, key.color, key.ground);
    }
  };
  /// `corner` is where its upper left pixel lies, from the upper left corner of the line.
  struct Picture {
    QImage image;
    QPoint corner;
  };

  /// Calls `draw` when a text is asked for the second time; nullptr at the first, since most texts that
  /// change at each key are never shown again. Valid until the next call.
  const Picture* Of(const Key& key, const std::function<Picture()>& draw);

 private:
  QHash<Key, Picture> pictures_;
  QSet<size_t> asked_for_;  // numbers of keys without a picture
  qsizetype bytes_ = 0;
};

}  // namespace orvendal
