// Text that stands inside a generated block comment. Swift's block comments nest, so a "/*"
// in the text opens a comment of its own and a "*/" can close the outer one early.
#pragma once

#include <string>
#include <string_view>

namespace SVGConverter {

// Whether `text`, inside one open block comment, closes it or leaves a nested one open.
bool breaksBlockComment(std::string_view text);

// `text` with a blank after the first character of every "/*" and "*/", so that it can neither
// open nor close a comment: "*/" becomes "* /".
std::string commentSafeText(std::string_view text);

}  // namespace SVGConverter
