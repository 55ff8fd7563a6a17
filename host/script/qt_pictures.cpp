#include "host/script/qt_pictures.h"

#include <QGuiApplication>
#include <cstdlib>
#include <iostream>
#include <memory>

#include "adapters/headless/headless_host.h"
#include "adapters/qt/qt_picture.h"
#include "adapters/qt/qt_text_measures.h"
#include "host/script/parser.h"
#include "host/text/printed_text.h"

namespace orvendal {
namespace {

// Qt is started by the first picture only: most scripts take none.
class OffscreenQt {
 public:
  explicit OffscreenQt(std::string program_name) : name_(std::move(program_name)) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    // What Qt has to say of the machine is no part of what a script shows.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
      if (type != QtFatalMsg) return;
      std::cout.flush();
      std::cerr << PrintedText("orvendal: " + text.toStdString()) << std::endl;
      std::_Exit(ScriptStop::kCannotGoOn);  // where Qt would leave a dump of memory
    });
    application_ = std::make_unique<QGuiApplication>(argument_count_, arguments_);
  }

 private:
  std::string name_;
  int argument_count_ = 1;
  char* arguments_[2] = {name_.data(), nullptr};
  std::unique_ptr<QGuiApplication> application_;
};

}  // namespace

SavePicture QtPictures(const char* program_name) {
  return [name = std::string(program_name), qt = std::shared_ptr<OffscreenQt>()](
             Form& form, const std::string& path) mutable {
    if (!qt) qt = std::make_shared<OffscreenQt>(name);
    // The layout is that of every machine; what is painted is measured by the fonts that paint it.
    QtFonts fonts;
    QtTextMeasures measures(fonts);
    const HeadlessHost::MeasuredBy painting(dynamic_cast<HeadlessHost&>(form.Host()), measures);
    return SavePng(form, fonts, path);
  };
}

}  // namespace orvendal
