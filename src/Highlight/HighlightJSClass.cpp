#include "Highlight/HighlightJSClass.h"

#include <array>
#include <string>

namespace Highlight {

namespace {

constexpr std::array<std::string_view, kHighlightJSClassCount> kClassTexts{
    "hljs",
    "hljs-addition",
    "hljs-attribute",
    "hljs-attr",
    "bash",
    "hljs-built_in",
    "hljs-builtin-name",
    "hljs-bullet",
    "hljs-class",
    "hljs-code",
    "hljs-comment",
    "hljs-deletion",
    "hljs-doctag",
    "hljs-emphasis",
    "hljs-formula",
    "hljs-function",
    "javascript",
    "hljs-keyword",
    "hljs-link",
    "hljs-literal",
    "hljs-meta",
    "hljs-meta-keyword",
    "hljs-meta-string",
    "hljs-name",
    "hljs-number",
    "hljs-params",
    "hljs-quote",
    "hljs-regexp",
    "hljs-section",
    "hljs-selector-tag",
    "hljs-selector-attr",
    "hljs-selector-class",
    "hljs-selector-id",
    "hljs-selector-pseudo",
    "hljs-subst",
    "hljs-string",
    "hljs-strong",
    "hljs-symbol",
    "hljs-tag",
    "hljs-template-tag",
    "hljs-template-variable",
    "hljs-title",
    "hljs-type",
    "hljs-variable",
    "xml",
};

static_assert(static_cast<std::size_t>(HighlightJSClass::xml) + 1 == kHighlightJSClassCount);

}  // namespace

std::string_view classText(HighlightJSClass cls) {
  return kClassTexts[static_cast<std::size_t>(cls)];
}

std::optional<HighlightJSClass> classForText(std::string_view text) {
  for (std::size_t i = 0; i < kClassTexts.size(); ++i) {
    if (kClassTexts[i] == text) return static_cast<HighlightJSClass>(i);
  }
  return std::nullopt;
}

std::optional<HighlightJSClass> classForText(std::u16string_view text) {
  std::string ascii;
  ascii.reserve(text.size());
  for (char16_t c : text) {
    if (c > 0x7F) return std::nullopt;  // every class text is ASCII
    ascii.push_back(static_cast<char>(c));
  }
  return classForText(std::string_view(ascii));
}

}  // namespace Highlight
