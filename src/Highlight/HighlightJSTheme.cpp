#include "Highlight/HighlightJSTheme.h"

#include <algorithm>

namespace Highlight {

HighlightJSTheme::HighlightJSTheme(ThemeFont baseFont, ClassProperties classToProperties)
    : baseFont_(std::move(baseFont)),
      classToProperties_(std::move(classToProperties)),
      boldFont_(baseFont_),
      italicFont_(baseFont_) {
  // Made up front rather than on first use: a theme is read from several threads at once.
  boldFont_.bold = true;
  italicFont_.italic = true;
}

ThemeFont HighlightJSTheme::defaultFont() {
  return ThemeFont{};
}

FontProperties HighlightJSTheme::merge(std::span<const ClassStackEntry> stack) const {
  FontProperties merged;
  for (auto it = stack.rbegin(); it != stack.rend(); ++it) {
    if (!*it) continue;
    const std::optional<FontProperties>& entry = properties(**it);
    if (!entry) continue;
    if (!merged.color) merged.color = entry->color;
    if (!merged.bold) merged.bold = entry->bold;
    if (!merged.italic) merged.italic = entry->italic;
    if (!merged.underline) merged.underline = entry->underline;
    if (merged.allSet()) break;
  }
  return merged;
}

TextStyle HighlightJSTheme::style(std::span<const ClassStackEntry> stack) const {
  const FontProperties merged = merge(stack);
  if (merged.noneSet()) return {};
  TextStyle style;
  style.foreground = merged.color;
  if (merged.underline.value_or(false)) {
    style.underline = true;
    style.underlineColor = merged.color;
  }
  // There is no bold-italic: bold wins.
  if (merged.bold.value_or(false)) {
    style.font = boldFont_;
  } else if (merged.italic.value_or(false)) {
    style.font = italicFont_;
  } else {
    style.font = baseFont_;
  }
  return style;
}

void HighlightJSTheme::appendStyledRun(StyledText& out, std::u16string_view text,
                                       std::span<const ClassStackEntry> stack) const {
  out.append(text, style(stack));
}

std::shared_ptr<const HighlightJSTheme> HighlightJSTheme::derivedWithFont(
    const std::shared_ptr<const HighlightJSTheme>& self, const ThemeFont& font) {
  if (!self || self->baseFont_ == font) return self;
  return std::make_shared<const HighlightJSTheme>(font, self->classToProperties_);
}

std::string HighlightJSTheme::description() const {
  std::string out = "<HSTheme: font=";
  out += baseFont_.family.empty() ? "<fixed-pitch>" : baseFont_.family;
  if (baseFont_.pointSize) out += " " + std::to_string(*baseFont_.pointSize) + "pt";
  const auto classes = std::count_if(classToProperties_.begin(), classToProperties_.end(),
                                     [](const auto& p) { return p.has_value(); });
  out += " classes=" + std::to_string(classes) + ">";
  return out;
}

bool sameTheme(const std::shared_ptr<const HighlightJSTheme>& a,
               const std::shared_ptr<const HighlightJSTheme>& b) {
  if (!a || !b) return a == b;
  return *a == *b;
}

}  // namespace Highlight
