// Highlighting for commands that print source: the text coloured for a terminal, or nothing
// when the highlighter is not available or fails on the text.
#pragma once

#include <optional>
#include <string>

namespace svgfigurer::cli {

// `theme` is "light", "classic" or "dark"; an empty language asks for automatic detection.
std::optional<std::string> highlightForTerminal(const std::string& text, const std::string& language,
                                                const std::string& theme);

}  // namespace svgfigurer::cli
