#include "Highlight/QtStyle.h"

#include <QColor>
#include <QFontDatabase>
#include <QGuiApplication>

namespace Highlight {

namespace {

QColor toQColor(const RGBColor& color) {
  return QColor(color.red, color.green, color.blue);
}

}  // namespace

QFont toQFont(const ThemeFont& font) {
  QFont out = font.family.empty() ? QFontDatabase::systemFont(QFontDatabase::FixedFont)
                                  : QFont(QString::fromStdString(font.family));
  out.setPointSizeF(font.pointSize.value_or(QGuiApplication::font().pointSizeF()));
  out.setBold(font.bold);
  out.setItalic(font.italic);
  return out;
}

QTextCharFormat toCharFormat(const TextStyle& style) {
  QTextCharFormat format;
  if (style.foreground) format.setForeground(toQColor(*style.foreground));
  if (style.underline) {
    format.setUnderlineStyle(QTextCharFormat::SingleUnderline);
    if (style.underlineColor) format.setUnderlineColor(toQColor(*style.underlineColor));
  }
  if (style.font) format.setFont(toQFont(*style.font), QTextCharFormat::FontPropertiesAll);
  return format;
}

}  // namespace Highlight
