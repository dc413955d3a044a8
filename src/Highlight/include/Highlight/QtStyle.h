// Theme fonts and run styles as Qt text formats. Needs a QGuiApplication (fonts).
#pragma once

#include <QFont>
#include <QTextCharFormat>

#include "Highlight/StyledText.h"

namespace Highlight {

// An empty family is the platform's fixed-pitch font; an absent size the application font's size.
QFont toQFont(const ThemeFont& font);
// A style with no attributes gives an empty format.
QTextCharFormat toCharFormat(const TextStyle& style);

}  // namespace Highlight
