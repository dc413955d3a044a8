// The class names highlight.js puts on its spans, as the themes know them.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace Highlight {

// The numbers are the stored values; the order is fixed.
enum class HighlightJSClass : std::uint8_t {
  DEFAULT,
  addition,
  attribute,
  attr,
  bash,
  builtIn,
  builtinName,
  bullet,
  class_,
  code,
  comment,
  deletion,
  doctag,
  emphasis,
  formula,
  function,
  javascript,
  keyword,
  link,
  literal,
  meta,
  metaKeyword,
  metaString,
  name,
  number,
  params,
  quote,
  regexp,
  section,
  selectorTag,
  selectorAttr,
  selectorClass,
  selectorID,
  selectorPseudo,
  subst,
  string,
  strong,
  symbol,
  tag,
  templateTag,
  templateVariable,
  title,
  type,
  variable,
  xml,
};

inline constexpr std::size_t kHighlightJSClassCount = 45;

// One entry of the span stack: a class, or none for a span whose class no theme knows.
using ClassStackEntry = std::optional<HighlightJSClass>;

// The class text of a case, e.g. "hljs-built_in".
std::string_view classText(HighlightJSClass cls);
// Looks a class text up, whole and case-sensitively: "hljs-keyword extra" selects nothing.
std::optional<HighlightJSClass> classForText(std::string_view text);
std::optional<HighlightJSClass> classForText(std::u16string_view text);

}  // namespace Highlight
