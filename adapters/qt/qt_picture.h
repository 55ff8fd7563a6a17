#pragma once

#include <QImage>
#include <string>

namespace orvendal {

class Form;
class QtFonts;

/// Paints a loaded form with its caret, as it stands, on an image of `scale` pixels to 15 twips. Works
/// without a display, given a QGuiApplication.
QImage RenderForm(Form& form, QtFonts& fonts, double scale = 1.0);
QImage RenderForm(Form& form, double scale = 1.0);

/// The same into a PNG file; false if it cannot be written.
bool SavePng(Form& form, QtFonts& fonts, const std::string& path, double scale = 1.0);
bool SavePng(Form& form, const std::string& path, double scale = 1.0);

}  // namespace orvendal
