// The few Unicode facts the document needs about UTF-8 text.
#pragma once

#include <cstddef>
#include <string_view>

namespace SVGFigurerApp {

// Strict UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
bool isValidUTF8(std::string_view text);
// Scalars in the text; a byte that starts no valid sequence counts as one.
std::size_t unicodeScalarCount(std::string_view text);
// True when the text is empty after removing white space and newlines from both ends: the
// characters of general category Z, U+000A to U+000D and U+0085. A tab is not among them.
bool isBlank(std::string_view text);

}  // namespace SVGFigurerApp
