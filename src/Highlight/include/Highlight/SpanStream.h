// highlight.js output (text with <span class="..."> markup and character references) to styled
// text under a theme.
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "Highlight/HighlightJSTheme.h"
#include "Highlight/StyledText.h"

namespace Highlight {

// Decoding one character reference such as "&lt;", "&#65;" or "&#x41;".
struct EntityNotDecoded {
  bool operator==(const EntityNotDecoded&) const = default;
};
struct InvalidScalar {  // a numeric reference that names no Unicode scalar value
  unsigned long long value = 0;
  bool operator==(const InvalidScalar&) const = default;
};
using EntityDecoding = std::variant<EntityNotDecoded, InvalidScalar, std::u16string>;
EntityDecoding decodeHTMLEntity(std::u16string_view entity);

// Why a span stream could not be turned into styled text.
struct SpanStreamError {
  std::string message;
  std::string detail;
  bool operator==(const SpanStreamError&) const = default;
};
using SpanStreamResult = std::variant<StyledText, SpanStreamError>;

// Walks the spans with a class stack that starts with DEFAULT, then decodes the character
// references in place. A closing tag with nothing left to close, or a numeric reference that is
// not a scalar value, makes the whole result an error.
SpanStreamResult styledTextFromHTML(std::u16string_view html, const HighlightJSTheme& theme);

// Replaces character references in `text` left to right. Each replacement is counted as one
// UTF-16 unit when locating the later ones, so a decoded character outside the basic plane
// shifts the later ranges by one; highlight.js never emits such references itself.
std::variant<std::monostate, SpanStreamError> decodeEntities(StyledText& text);

}  // namespace Highlight
