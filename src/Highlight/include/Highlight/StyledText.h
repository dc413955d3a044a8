// Highlighted text as plain values: UTF-16 text (the unit highlight.js and the editors count in)
// covered by runs of text styles.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Highlight {

struct RGBColor {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  static constexpr RGBColor fromHex(std::uint32_t rgb) {
    return {static_cast<std::uint8_t>(rgb >> 16), static_cast<std::uint8_t>(rgb >> 8),
            static_cast<std::uint8_t>(rgb)};
  }
  // "#RRGGBB" in upper-case hex digits.
  std::string hex() const;
  bool operator==(const RGBColor&) const = default;
};

// A font as a theme knows it. An empty family stands for the platform's fixed-pitch font and an
// absent size for the system font size; the platform adapter resolves both.
struct ThemeFont {
  std::string family;
  std::optional<double> pointSize;
  bool bold = false;
  bool italic = false;
  bool operator==(const ThemeFont&) const = default;
};

// The attributes of one run. A default-constructed style means no attributes at all.
struct TextStyle {
  std::optional<RGBColor> foreground;
  bool underline = false;
  std::optional<RGBColor> underlineColor;
  std::optional<ThemeFont> font;

  bool empty() const { return *this == TextStyle{}; }
  bool operator==(const TextStyle&) const = default;
};

struct StyledRun {
  std::size_t length = 0;
  TextStyle style;
  bool operator==(const StyledRun&) const = default;
};

// The runs always cover the text exactly, none is empty, and neighbours differ in style, so two
// styled texts are equal exactly when their characters and per-character styles are.
class StyledText {
 public:
  StyledText() = default;
  StyledText(std::u16string_view text, const TextStyle& style) { append(text, style); }

  const std::u16string& text() const { return text_; }
  const std::vector<StyledRun>& runs() const { return runs_; }
  bool empty() const { return text_.empty(); }

  void append(std::u16string_view text, const TextStyle& style);
  // Replaces [position, position + length) (clipped to the text); the new characters take the
  // style of the first replaced character.
  void replace(std::size_t position, std::size_t length, std::u16string_view replacement);
  // The style of the character at `position`, or no attributes beyond the end.
  TextStyle styleAt(std::size_t position) const;

  bool operator==(const StyledText&) const = default;

 private:
  std::u16string text_;
  std::vector<StyledRun> runs_;
};

std::string toUTF8(std::u16string_view text);    // lone surrogates become U+FFFD
std::u16string fromUTF8(std::string_view text);  // malformed bytes become U+FFFD

}  // namespace Highlight
