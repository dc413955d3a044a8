// Fonts of text elements. A font reaches us only through CSS: the `font` shorthand, read word by
// word, and the four longhands that may override parts of it.
#include <array>
#include <utility>

#include "SVGParser/CSS.h"
#include "TextUtilities.h"

namespace CSSModel {

namespace {

using SVGParser::text::lowercased;
using SVGParser::text::parseInteger;

constexpr std::array<std::pair<FontFamily::Kind, std::string_view>, 13> familyKeywords{{
    {FontFamily::Kind::serif, "serif"},
    {FontFamily::Kind::sansSerif, "sans-serif"},
    {FontFamily::Kind::monospace, "monospace"},
    {FontFamily::Kind::cursive, "cursive"},
    {FontFamily::Kind::fantasy, "fantasy"},
    {FontFamily::Kind::emoji, "emoji"},
    {FontFamily::Kind::math, "math"},
    {FontFamily::Kind::fangsong, "fangsong"},
    {FontFamily::Kind::systemUI, "system-ui"},
    {FontFamily::Kind::uiSerif, "ui-serif"},
    {FontFamily::Kind::uiSansSerif, "ui-sans-serif"},
    {FontFamily::Kind::uiMonospace, "ui-monospace"},
    {FontFamily::Kind::uiRounded, "ui-rounded"},
}};

constexpr std::array<std::pair<Font::System, std::string_view>, 6> systemFonts{{
    {Font::System::caption, "caption"},
    {Font::System::icon, "icon"},
    {Font::System::menu, "menu"},
    {Font::System::messageBox, "message-box"},
    {Font::System::smallCaption, "small-caption"},
    {Font::System::statusBar, "status-bar"},
}};

constexpr std::array<std::pair<FontStyle, std::string_view>, 3> styleWords{{
    {FontStyle::normal, "normal"},
    {FontStyle::italic, "italic"},
    {FontStyle::oblique, "oblique"},
}};

std::optional<FontFamily> familyKeyword(std::string_view word) {
  for (const auto& [kind, keyword] : familyKeywords) {
    if (keyword == word) return FontFamily{kind, {}};
  }
  return std::nullopt;
}

std::optional<FontStyle> styleWord(std::string_view word) {
  for (const auto& [style, keyword] : styleWords) {
    if (keyword == word) return style;
  }
  return std::nullopt;
}

// The weight keywords that the shorthand places without further thought. A bare "normal" is
// not among them: it is ambiguous between style and weight and so is skipped altogether.
std::optional<FontWeight> weightKeyword(std::string_view word) {
  if (word == "400") return FontWeight{FontWeight::Kind::normal, 0};
  if (word == "bold" || word == "700") return FontWeight{FontWeight::Kind::bold, 0};
  if (word == "lighter") return FontWeight{FontWeight::Kind::lighter, 0};
  if (word == "bolder") return FontWeight{FontWeight::Kind::bolder, 0};
  return std::nullopt;
}

const std::string* idText(const Value* value) {
  if (value == nullptr) return nullptr;
  const auto* id = std::get_if<Value::Id>(&value->value);
  return id ? &id->text : nullptr;
}

Font sizedSansSerif(UnitLength size) {
  return Font{FontShorthand{FontFamily{}, FontStyle::normal, FontWeight{}, size}};
}

// The shorthand's reading state. Once a size or a family is known the words that could still be
// a style or a weight have had their chance, and the unset ones become normal.
struct ShorthandReader {
  const Report& report;
  std::optional<FontStyle> style;
  std::optional<FontWeight> weight;
  std::optional<FontFamily> family;
  std::optional<UnitLength> size;
  bool settled = false;

  void settle() {
    settled = true;
    if (!style) style = FontStyle::normal;
    if (!weight) weight = FontWeight{};
  }

  void settleIfPlaced() {
    if (size || family) settle();
  }

  void read(std::string_view word) {
    if (word.empty() || word == "normal") return;
    if (auto keyword = familyKeyword(word)) {
      family = keyword;
      return settleIfPlaced();
    }
    if (auto keyword = weightKeyword(word)) {
      weight = keyword;
      return settleIfPlaced();
    }
    if (word == "italic" || word == "oblique") {
      style = styleWord(word);
      return settleIfPlaced();
    }
    if (size) {
      // Behind the size only the family is left; its first word wins and the rest of a
      // multi-word name such as "Helvetica Neue" is reported.
      if (!family) {
        family = FontFamily::parse(word);
      } else {
        report.print({"WARN: unexpected CSS font value:", word});
      }
      return settle();
    }
    if (!weight && !settled) {
      // Before anything is settled a bare integer is a weight, so "12 serif" has weight 12.
      if (auto integer = parseInteger(word)) {
        weight = FontWeight{FontWeight::Kind::value, *integer};
        return settleIfPlaced();
      }
    }
    if (auto length = UnitLength::parse(word, report)) {
      size = length;
      return settle();
    }
    if (!family) family = FontFamily::parse(word);
    settle();
  }

  Font result() const {
    return Font{FontShorthand{family.value_or(FontFamily{}), style.value_or(FontStyle::normal),
                              weight.value_or(FontWeight{}), size}};
  }
};

std::string describe(const FontFamily& family) {
  if (family.kind == FontFamily::Kind::named) return "named(" + family.name + ")";
  for (const auto& [kind, keyword] : familyKeywords) {
    if (kind == family.kind) return std::string(keyword);
  }
  return "?";
}

std::string describe(const FontWeight& weight) {
  switch (weight.kind) {
    case FontWeight::Kind::value:
      return std::to_string(weight.value);
    case FontWeight::Kind::normal:
      return "normal";
    case FontWeight::Kind::bold:
      return "bold";
    case FontWeight::Kind::lighter:
      return "lighter";
    case FontWeight::Kind::bolder:
      return "bolder";
  }
  return "?";
}

}  // namespace

std::optional<FontFamily> FontFamily::parse(std::optional<std::string_view> text) {
  if (!text) return std::nullopt;
  if (auto keyword = familyKeyword(lowercased(*text))) return keyword;
  // Kept whole and in its own case: a list such as "Georgia, serif" is one named family.
  return FontFamily{Kind::named, std::string(*text)};
}

std::optional<FontWeight> FontWeight::parse(std::optional<std::string_view> text) {
  if (!text || text->empty()) return std::nullopt;
  const std::string word = lowercased(*text);
  if (word == "normal" || word == "400") return FontWeight{Kind::normal, 0};
  if (word == "bold" || word == "700") return FontWeight{Kind::bold, 0};
  if (word == "lighter") return FontWeight{Kind::lighter, 0};
  if (word == "bolder") return FontWeight{Kind::bolder, 0};
  if (auto integer = parseInteger(word)) return FontWeight{Kind::value, *integer};
  return std::nullopt;
}

Font Font::parseShorthand(std::string_view text, const Report& report) {
  ShorthandReader reader{report, {}, {}, {}, {}, false};
  for (std::string_view word : SVGParser::text::splitWhitespace(text)) reader.read(word);
  return reader.result();
}

std::optional<Font> Font::parse(std::optional<std::string_view> text, const Report& report) {
  if (!text || text->empty()) return std::nullopt;
  const std::string lowered = lowercased(*text);
  for (const auto& [system, keyword] : systemFonts) {
    if (keyword == lowered) return Font{system};
  }
  return parseShorthand(lowered, report);
}

std::optional<Font> Font::fromValue(const Value* value, const Report& report) {
  if (value == nullptr) return std::nullopt;
  if (const auto* id = std::get_if<Value::Id>(&value->value)) return parse(id->text, report);
  if (const auto* number = std::get_if<Value::Number>(&value->value)) {
    return sizedSansSerif(UnitLength::number(number->value));
  }
  if (const auto* pixel = std::get_if<Value::Pixel>(&value->value)) {
    return sizedSansSerif(UnitLength::pixel(pixel->value));
  }
  if (const auto* percent = std::get_if<Value::PercentValue>(&value->value)) {
    return sizedSansSerif(UnitLength::percentage(percent->value));
  }
  return std::nullopt;
}

std::optional<Font> Font::resolve(const CSSModel::Style& resolver, const Report& report) {
  const std::optional<Font> font = fromValue(resolver["font"], report);

  // The longhands count only as identifiers, so a weight written as the number 700 is a
  // `number` value and is ignored while "bold" is understood.
  std::optional<FontStyle> style;
  if (const std::string* text = idText(resolver["font-style"])) style = styleWord(*text);
  std::optional<FontWeight> weight;
  if (const std::string* text = idText(resolver["font-weight"])) weight = FontWeight::parse(*text);
  std::optional<FontFamily> family;
  if (const std::string* text = idText(resolver["font-family"])) family = FontFamily::parse(*text);
  const std::optional<UnitLength> size = UnitLength::fromValue(resolver["font-size"], report);

  if (!font && !style && !weight && !family && !size) return std::nullopt;
  Font base = font.value_or(Font{FontShorthand{}});
  auto* shorthand = std::get_if<FontShorthand>(&base.value);
  // A system font is complete in itself; the longhands beside it do not refine it.
  if (shorthand == nullptr) return base;
  if (style) shorthand->style = *style;
  if (weight) shorthand->weight = *weight;
  if (family) shorthand->family = *family;
  if (size) shorthand->size = size;
  return base;
}

std::string Font::description() const {
  if (const auto* system = std::get_if<System>(&value)) {
    for (const auto& [candidate, keyword] : systemFonts) {
      if (candidate == *system) return std::string(keyword);
    }
    return "?";
  }
  const auto& shorthand = std::get<FontShorthand>(value);
  std::string out = "font(family: " + describe(shorthand.family) + " style: " +
                    std::string(styleWords.at(static_cast<std::size_t>(shorthand.style)).second) +
                    " weight: " + describe(shorthand.weight);
  if (shorthand.size) out += " size: " + shorthand.size->description();
  return out + ")";
}

}  // namespace CSSModel
