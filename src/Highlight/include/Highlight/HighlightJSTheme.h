// How highlight.js classes become colour, font and underline, and the three built-in themes.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "Highlight/HighlightJSClass.h"
#include "Highlight/StyledText.h"

namespace Highlight {

// What a theme says about one class; anything unset is left to the outer classes.
struct FontProperties {
  std::optional<RGBColor> color;
  std::optional<bool> bold;
  std::optional<bool> italic;
  std::optional<bool> underline;

  bool allSet() const { return color && bold && italic && underline; }
  bool noneSet() const { return !color && !bold && !italic && !underline; }
  bool operator==(const FontProperties&) const = default;
};

// Themes are immutable and shared between the editors and the highlighter's thread; a different
// font makes a new theme (derivedWithFont).
class HighlightJSTheme {
 public:
  using ClassProperties = std::array<std::optional<FontProperties>, kHighlightJSClassCount>;

  HighlightJSTheme(ThemeFont baseFont, ClassProperties classToProperties);

  // The light theme (the default of every text storage), the classic one and the dark one,
  // each made once.
  static std::shared_ptr<const HighlightJSTheme> light();
  static std::shared_ptr<const HighlightJSTheme> classic();
  static std::shared_ptr<const HighlightJSTheme> dark();
  // The fixed-pitch font at the system size.
  static ThemeFont defaultFont();

  const ThemeFont& baseFont() const { return baseFont_; }
  const ThemeFont& boldFont() const { return boldFont_; }
  const ThemeFont& italicFont() const { return italicFont_; }
  const ClassProperties& classToProperties() const { return classToProperties_; }
  const std::optional<FontProperties>& properties(HighlightJSClass cls) const {
    return classToProperties_[static_cast<std::size_t>(cls)];
  }

  // The innermost class wins per property, outer classes fill the gaps. `stack` runs from the
  // outermost entry (front) to the innermost (back).
  FontProperties merge(std::span<const ClassStackEntry> stack) const;
  // The attributes of a run under `stack`; no attributes at all when the theme says nothing.
  TextStyle style(std::span<const ClassStackEntry> stack) const;
  void appendStyledRun(StyledText& out, std::u16string_view text,
                       std::span<const ClassStackEntry> stack) const;

  // `self` when the font is already the base font, otherwise a theme with that font and the same
  // table.
  static std::shared_ptr<const HighlightJSTheme> derivedWithFont(
      const std::shared_ptr<const HighlightJSTheme>& self, const ThemeFont& font);

  std::string description() const;

  friend bool operator==(const HighlightJSTheme& a, const HighlightJSTheme& b) {
    return &a == &b || (a.baseFont_ == b.baseFont_ && a.classToProperties_ == b.classToProperties_);
  }

 private:
  ThemeFont baseFont_;
  ClassProperties classToProperties_;
  ThemeFont boldFont_;
  ThemeFont italicFont_;
};

// Null-safe equality of shared themes (two absent themes are equal).
bool sameTheme(const std::shared_ptr<const HighlightJSTheme>& a,
               const std::shared_ptr<const HighlightJSTheme>& b);

}  // namespace Highlight
