// CSS values, lengths, colours, fonts and the stylesheet with its per-element resolution.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "SVGParser/Attributes.h"
#include "SVGParser/Geometry.h"
#include "SVGParser/Report.h"

namespace CSSModel {

using SVGParser::Report;
struct Value;

// ---- Lengths -------------------------------------------------------------------------
struct UnitLength {
  enum class Unit : std::uint8_t { number, percentage, centimeter, millimeter, inch, point, pc, pixel };
  Unit unit = Unit::number;
  double value = 0;
  bool operator==(const UnitLength&) const = default;

  static constexpr UnitLength number(double v) { return {Unit::number, v}; }
  static constexpr UnitLength percentage(double v) { return {Unit::percentage, v}; }
  static constexpr UnitLength centimeter(double v) { return {Unit::centimeter, v}; }
  static constexpr UnitLength millimeter(double v) { return {Unit::millimeter, v}; }
  static constexpr UnitLength inch(double v) { return {Unit::inch, v}; }
  static constexpr UnitLength point(double v) { return {Unit::point, v}; }
  static constexpr UnitLength pc(double v) { return {Unit::pc, v}; }
  static constexpr UnitLength pixel(double v) { return {Unit::pixel, v}; }

  // Reports "ERROR: unsupported CSS unit: <text>" for a text that is no length.
  static std::optional<UnitLength> parse(std::optional<std::string_view> text, const Report& report);
  // As parse, with "none" (and empty) giving nothing.
  static std::optional<UnitLength> parseOrNone(std::optional<std::string_view> text,
                                               const Report& report);
  static std::optional<UnitLength> fromValue(const Value* value, const Report& report);

  std::optional<double> points() const;
  static std::optional<double> ratio(const UnitLength& left, const UnitLength& right);
  // The float's default text followed by the unit suffix: "10.0%".
  std::string description() const;
};

// ---- Colours -------------------------------------------------------------------------
struct Color {
  struct Named {
    std::string name;
    bool operator==(const Named&) const = default;
  };
  struct RGB {
    double red = 0, green = 0, blue = 0;
    bool operator==(const RGB&) const = default;
  };
  struct RGBA {
    double red = 0, green = 0, blue = 0, alpha = 0;
    bool operator==(const RGBA&) const = default;
  };
  std::variant<Named, RGB, RGBA> value;
  bool operator==(const Color&) const = default;

  static Color named(std::string name) { return {Named{std::move(name)}}; }
  static Color rgb(double r, double g, double b) { return {RGB{r, g, b}}; }
  static Color rgba(double r, double g, double b, double a) { return {RGBA{r, g, b, a}}; }

  // For colours written as attributes; reports "ERROR: failed to parse color: ...".
  static std::optional<Color> parse(std::optional<std::string_view> text, const Report& report);
  // For colours from a stylesheet or a style attribute; silent.
  static std::optional<Color> fromValue(const Value* value);
  static Color fromInteger(std::uint32_t value);
  // 0xRRGGBB; nothing for an unknown name or a channel that is no 32-bit integer.
  std::optional<std::uint32_t> rgbValue() const;
  std::optional<std::uint32_t> rgbaValue() const;
  std::string description() const;
};

// ---- Generic values ------------------------------------------------------------------
struct Value {
  struct Id {
    std::string text;
    bool operator==(const Id&) const = default;
  };
  struct Number {
    double value = 0;
    bool operator==(const Number&) const = default;
  };
  struct Pixel {
    double value = 0;
    bool operator==(const Pixel&) const = default;
  };
  struct PercentValue {
    double value = 0;
    bool operator==(const PercentValue&) const = default;
  };
  struct Url {
    std::string text;
    bool operator==(const Url&) const = default;
  };
  struct Function {
    std::string name;
    std::vector<std::string> arguments;
    bool operator==(const Function&) const = default;
  };
  struct ExplicitNone {
    bool operator==(const ExplicitNone&) const = default;
  };
  struct Auto {
    bool operator==(const Auto&) const = default;
  };
  struct Clear {
    bool operator==(const Clear&) const = default;
  };
  std::variant<Id, Number, Pixel, PercentValue, Url, Function, ExplicitNone, Auto, Clear> value;
  bool operator==(const Value&) const = default;

  static Value parse(std::string_view text);
  std::string description() const;
};

using Declarations = std::map<std::string, Value, std::less<>>;

// The properties that apply to one element, folded from the rules and its style attribute.
struct Style {
  Declarations properties;
  bool operator==(const Style&) const = default;
  bool isEmpty() const { return properties.empty(); }
  const Value* operator[](std::string_view name) const {
    auto it = properties.find(name);
    return it == properties.end() ? nullptr : &it->second;
  }
};

struct Selector {
  enum class Kind : std::uint8_t { id, cssClass, unsupported };
  Kind kind = Kind::unsupported;
  std::string text;
  bool operator==(const Selector&) const = default;
  static std::optional<Selector> parse(std::string_view text);
};
using Rule = std::pair<std::optional<Selector>, Declarations>;

// ---- Fonts ---------------------------------------------------------------------------
struct FontFamily {
  enum class Kind : std::uint8_t {
    named, serif, sansSerif, monospace, cursive, fantasy, emoji, math, fangsong, systemUI,
    uiSerif, uiSansSerif, uiMonospace, uiRounded
  };
  Kind kind = Kind::sansSerif;
  std::string name;  // only for `named`
  bool operator==(const FontFamily&) const = default;
  static std::optional<FontFamily> parse(std::optional<std::string_view> text);
};
enum class FontStyle : std::uint8_t { normal, italic, oblique };
struct FontWeight {
  enum class Kind : std::uint8_t { value, normal, bold, lighter, bolder };
  Kind kind = Kind::normal;
  std::int64_t value = 0;  // only for `value`
  bool operator==(const FontWeight&) const = default;
  static std::optional<FontWeight> parse(std::optional<std::string_view> text);
};
struct FontShorthand {
  FontFamily family;
  FontStyle style = FontStyle::normal;
  FontWeight weight;
  std::optional<UnitLength> size;
  bool operator==(const FontShorthand&) const = default;
};

struct Font {
  using Family = FontFamily;
  using Style = FontStyle;
  using Weight = FontWeight;
  using Shorthand = FontShorthand;
  enum class System : std::uint8_t { caption, icon, menu, messageBox, smallCaption, statusBar };

  std::variant<Shorthand, System> value;
  bool operator==(const Font&) const = default;

  static std::optional<Font> resolve(const CSSModel::Style& resolver, const Report& report);
  static std::optional<Font> parse(std::optional<std::string_view> text, const Report& report);
  static std::optional<Font> fromValue(const Value* value, const Report& report);
  static Font parseShorthand(std::string_view text, const Report& report);
  std::string description() const;
};


}  // namespace CSSModel

struct CSS {
  using UnitLength = CSSModel::UnitLength;
  using Color = CSSModel::Color;
  using Value = CSSModel::Value;
  using Declarations = CSSModel::Declarations;
  using Style = CSSModel::Style;
  using Selector = CSSModel::Selector;
  using Rule = CSSModel::Rule;
  using Font = CSSModel::Font;

  // The named-colour table: lower-case name to 0xRRGGBB. Built once, safe for concurrent first use.
  static std::optional<std::uint32_t> namedColorValue(std::string_view lowerCaseName);

  // ---- Small grammars ------------------------------------------------------------------
  // A whole text that strtod (C locale) consumes; no leading whitespace.
  static std::optional<double> parseNumber(std::string_view text);
  // Opacity on a 0 to 100 scale: "0.5" and "50%" both give 50.
  static std::optional<double> parseOpacity(std::optional<std::string_view> text);
  static std::optional<Value::Function> parseFunction(std::string_view text);
  // The viewBox grammar; reports "Unexpected CGRect value: '...'".
  static std::optional<CGRect> parseRect(std::optional<std::string_view> text, const SVGParser::Report& report);

  // ---- Stylesheets ---------------------------------------------------------------------
  static std::string stripComments(std::string_view text);
  static Declarations parseDeclarations(std::optional<std::string_view> text);
  static std::vector<Rule> parseRules(std::optional<std::string_view> text);

  std::map<std::string, Style, std::less<>> idToStyles;
  std::map<std::string, Style, std::less<>> classToStyles;

  CSS() = default;
  // Reports "Unsupported global CSS:" and "Unsupported CSS selector:" for dropped rules.
  CSS(std::optional<std::string_view> text, const SVGParser::Report& report);
  // The style of one element from its class, id and style attributes.
  Style resolver(const SVGParser::Attributes& attributes) const;
};
