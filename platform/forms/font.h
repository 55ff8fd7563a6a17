#pragma once

#include <functional>
#include <string>
#include <utility>

namespace orvendal {

struct FontSpec {
  std::string name = "MS Sans Serif";
  double size = 8.25;  // points
  int weight = 400;
  bool italic = false;
  bool operator==(const FontSpec&) const = default;
};

/// The font of a control. Reads back exactly what was written; a change is told to the control.
class ControlFont {
 public:
  explicit ControlFont(std::function<void()> changed) : changed_(std::move(changed)) {}

  const FontSpec& Spec() const { return spec_; }
  void Spec(const FontSpec& spec) {
    if (spec == spec_) return;
    spec_ = spec;
    changed_();
  }
  /// Back to the font that controls have without one of their own; tells nobody.
  void Restore() { spec_ = {}; }
  const std::string& Name() const { return spec_.name; }
  double Size() const { return spec_.size; }
  void Size(double points) {
    FontSpec spec = spec_;
    spec.size = points;
    Spec(spec);
  }
  int Weight() const { return spec_.weight; }
  bool Italic() const { return spec_.italic; }

 private:
  FontSpec spec_;
  std::function<void()> changed_;
};

}  // namespace orvendal
