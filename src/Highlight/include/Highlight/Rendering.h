// Styled text rendered for a terminal, a web page or a program: what `svgfigurer highlight`
// prints, and what any other command that shows highlighted source can reuse.
#pragma once

#include <optional>
#include <string>

#include "Highlight/StyledText.h"

namespace Highlight {

// The text alone.
std::string renderPlain(const StyledText& text);
// 24-bit SGR colour with bold, italic and underline. Styles are closed before each line feed
// and reopened after it, so that pagers and line-oriented tools see whole lines.
std::string renderANSI(const StyledText& text);
// A <pre> element with one inline-styled <span> per styled run.
std::string renderHTML(const StyledText& text, std::optional<RGBColor> background = std::nullopt);
// A JSON array of {"text", "color", "bold", "italic", "underline"}, "color" null when unset.
std::string renderRunsJSON(const StyledText& text);

}  // namespace Highlight
