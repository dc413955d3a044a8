#include "SVGConverter/PaintText.h"

#include <array>
#include <cstdio>
#include <string_view>

#include "SVGConverter/CommentText.h"

namespace SVGConverter {

namespace {

// The colours the generated language has as members of its colour type.
constexpr std::array<std::string_view, 13> knownColorNames{
    "clear",  "black",  "white", "gray",   "red",     "green",    "blue",
    "orange", "yellow", "pink",  "purple", "primary", "secondary"};

bool isKnownColorName(std::string_view name) {
  for (auto known : knownColorNames) {
    if (known == name) return true;
  }
  return false;
}

struct Components {
  double red = 0, green = 0, blue = 0;
};

std::string numericColorText(CodeGenerationStream& s, const CSS::Color& color, const Components& c,
                             std::optional<double> opacity, bool preferInit, bool useHex) {
  std::string text = preferInit ? ".init(" : "Color(";
  const auto rgb = useHex ? color.rgbValue() : std::nullopt;
  if (c.red == c.green && c.green == c.blue) {
    text += "white: " + s.numberString(c.red);
  } else if (rgb && *rgb <= 0xFFFFFFu) {
    char hex[16];
    std::snprintf(hex, sizeof hex, "0x%06X", static_cast<unsigned>(*rgb));
    text += hex;
    s.didUseHexColorInit = true;
  } else {
    text += "red: " + s.numberString(c.red) + ", green: " + s.numberString(c.green) +
            ", blue: " + s.numberString(c.blue);
  }
  if (opacity) text += ", opacity: " + s.numberString(*opacity);
  return text + ")";
}

}  // namespace

std::optional<std::string> colorText(CodeGenerationStream& s, const CSS::Color& color,
                                     std::optional<double> opacity, bool preferInit, bool useHex) {
  if (const auto* named = std::get_if<CSS::Color::Named>(&color.value)) {
    if (isKnownColorName(named->name)) return (preferInit ? "." : "Color.") + named->name;
    const auto value = CSS::namedColorValue(named->name);
    if (!value) {
      // The colour type has no member of that name. The compilable text draws nothing and
      // keeps the name in the comment.
      if (s.config().compilableSwift) {
        return (preferInit ? ".clear /*unknown: " : "Color.clear /*unknown: ") +
               commentSafeText(named->name) + " */";
      }
      s.noteDefect(SVGSwiftUIExporter::unknownColor);
      return "Color." + named->name + " /*unknown*/";
    }
    const Components c{static_cast<double>((*value >> 16) & 0xFF) / 255.0,
                       static_cast<double>((*value >> 8) & 0xFF) / 255.0,
                       static_cast<double>(*value & 0xFF) / 255.0};
    return numericColorText(s, color, c, opacity, preferInit, useHex);
  }
  if (const auto* rgb = std::get_if<CSS::Color::RGB>(&color.value)) {
    return numericColorText(s, color, {rgb->red, rgb->green, rgb->blue}, opacity, preferInit,
                            useHex);
  }
  const auto& rgba = std::get<CSS::Color::RGBA>(color.value);
  return numericColorText(s, color, {rgba.red, rgba.green, rgba.blue},
                          opacity ? opacity : std::optional<double>(rgba.alpha), preferInit,
                          useHex);
}

namespace {

using Family = CSS::Font::Family;
using Weight = CSS::Font::Weight;

enum class FamilyGroup { plain, serif, mono, rounded, other };

FamilyGroup familyGroup(Family::Kind kind) {
  switch (kind) {
    case Family::Kind::sansSerif:
    case Family::Kind::systemUI:
    case Family::Kind::uiSansSerif:
      return FamilyGroup::plain;
    case Family::Kind::serif:
    case Family::Kind::uiSerif:
      return FamilyGroup::serif;
    case Family::Kind::monospace:
    case Family::Kind::uiMonospace:
      return FamilyGroup::mono;
    case Family::Kind::uiRounded:
      return FamilyGroup::rounded;
    default:
      return FamilyGroup::other;
  }
}

std::string_view designText(FamilyGroup group) {
  switch (group) {
    case FamilyGroup::serif:
      return ".serif";
    case FamilyGroup::mono:
      return ".monospaced";
    case FamilyGroup::rounded:
      return ".rounded";
    default:
      return "";
  }
}

// The font installed on the platform for a family, as ".custom(" names it.
std::string customFontName(const Family& family) {
  switch (family.kind) {
    case Family::Kind::serif:
    case Family::Kind::uiSerif:
    case Family::Kind::fantasy:
    case Family::Kind::math:
    case Family::Kind::fangsong:
      return "Times";
    case Family::Kind::sansSerif:
    case Family::Kind::uiSansSerif:
      return "Helvetica";
    case Family::Kind::monospace:
    case Family::Kind::uiMonospace:
      return "Menlo";
    case Family::Kind::cursive:
      return "Snell Roundhand";
    case Family::Kind::emoji:
      return "AppleColorEmoji";
    case Family::Kind::systemUI:
    case Family::Kind::uiRounded:
      return "San Francisco";
    case Family::Kind::named:
      return family.name;
  }
  return family.name;
}

std::string_view weightText(const Weight& weight) {
  switch (weight.kind) {
    case Weight::Kind::normal:
      return ".regular";
    case Weight::Kind::bold:
      return ".bold";
    case Weight::Kind::lighter:
      return ".thin";
    case Weight::Kind::bolder:
      return ".heavy";
    case Weight::Kind::value:
      break;
  }
  const auto v = weight.value;
  if (v < 200) return ".ultraLight";
  if (v < 300) return ".thin";
  if (v < 400) return ".light";
  if (v < 500) return ".regular";
  if (v < 600) return ".medium";
  if (v < 700) return ".semibold";
  if (v < 800) return ".bold";
  if (v < 900) return ".heavy";
  return ".black";
}

bool isItalic(CSS::Font::Style style) {
  return style == CSS::Font::Style::italic || style == CSS::Font::Style::oblique;
}

std::string suffix(const CSS::Font::Shorthand& font) {
  std::string text = isItalic(font.style) ? ".italic()" : "";
  switch (font.weight.kind) {
    case Weight::Kind::normal:
      break;
    case Weight::Kind::bold:
      text += ".bold()";
      break;
    default:
      text += ".weight(" + std::string(weightText(font.weight)) + ")";
  }
  return text;
}

}  // namespace

std::string fontText(const CodeGenerationStream& s, const CSS::Font::Shorthand& font) {
  const auto group = familyGroup(font.family.kind);
  // A size that resolves to no points (a percentage) counts as no size.
  const auto size = font.size ? font.size->points() : std::nullopt;
  if (!size) {
    switch (group) {
      case FamilyGroup::plain:
        return ".system(.body)" + suffix(font);
      case FamilyGroup::other:
        return ".custom(\"" + customFontName(font.family) + "\", size: 12)" + suffix(font);
      default:
        return ".system(.body, design: " + std::string(designText(group)) + ")" + suffix(font);
    }
  }
  const std::string sizeText = s.numberString(*size);
  if (group == FamilyGroup::plain || group == FamilyGroup::mono || group == FamilyGroup::rounded) {
    std::string text = ".system(size: " + sizeText;
    const auto weight = weightText(font.weight);
    if (weight != ".regular") text += ", weight: " + std::string(weight);
    if (group != FamilyGroup::plain) text += ", design: " + std::string(designText(group));
    text += ")";
    if (isItalic(font.style)) text += ".italic()";
    return text;
  }
  return ".custom(\"" + customFontName(font.family) + "\", size: " + sizeText + ")" + suffix(font);
}

}  // namespace SVGConverter
