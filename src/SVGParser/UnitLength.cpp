// Lengths with units: reading, conversion to points, ratios and the text form.
#include <array>
#include <string>

#include "CoreS/DoubleText.h"
#include "SVGParser/CSS.h"

namespace CSSModel {

namespace {

constexpr double pointsPerMillimeter = 2.8346456693;

struct Suffix {
  std::string_view text;
  // Nothing: a unit that is refused however good the number in front of it is.
  std::optional<UnitLength::Unit> unit;
};

// In the order they are tried; "pt" before "%", and the refused units before "px".
constexpr std::array<Suffix, 9> suffixes{{
    {"pt", UnitLength::Unit::point},
    {"%", UnitLength::Unit::percentage},
    {"em", std::nullopt},
    {"ex", std::nullopt},
    {"pc", std::nullopt},
    {"px", UnitLength::Unit::pixel},
    {"in", UnitLength::Unit::inch},
    {"cm", UnitLength::Unit::centimeter},
    {"mm", UnitLength::Unit::millimeter},
}};

std::string_view suffixText(UnitLength::Unit unit) {
  switch (unit) {
    case UnitLength::Unit::number:
      return "";
    case UnitLength::Unit::percentage:
      return "%";
    case UnitLength::Unit::centimeter:
      return "cm";
    case UnitLength::Unit::millimeter:
      return "mm";
    case UnitLength::Unit::inch:
      return "\"";
    case UnitLength::Unit::point:
      return "pt";
    case UnitLength::Unit::pc:
      return "pc";
    case UnitLength::Unit::pixel:
      return "px";
  }
  return "";
}

bool isAbsolute(UnitLength::Unit unit) {
  switch (unit) {
    case UnitLength::Unit::centimeter:
    case UnitLength::Unit::millimeter:
    case UnitLength::Unit::inch:
    case UnitLength::Unit::point:
    case UnitLength::Unit::pixel:
      return true;
    default:
      return false;
  }
}

}  // namespace

std::optional<UnitLength> UnitLength::parse(std::optional<std::string_view> text,
                                            const Report& report) {
  if (!text || text->empty()) return std::nullopt;
  if (const auto number = CSS::parseNumber(*text)) return UnitLength::number(*number);
  for (const Suffix& suffix : suffixes) {
    if (!text->ends_with(suffix.text)) continue;
    if (!suffix.unit) break;
    const auto number = CSS::parseNumber(text->substr(0, text->size() - suffix.text.size()));
    if (number) return UnitLength{*suffix.unit, *number};
  }
  report.print({"ERROR: unsupported CSS unit:", *text});
  return std::nullopt;
}

std::optional<UnitLength> UnitLength::parseOrNone(std::optional<std::string_view> text,
                                                  const Report& report) {
  if (!text || text->empty() || *text == "none") return std::nullopt;
  return parse(text, report);
}

std::optional<UnitLength> UnitLength::fromValue(const Value* value, const Report& report) {
  if (value == nullptr) return std::nullopt;
  if (const auto* number = std::get_if<Value::Number>(&value->value)) {
    return UnitLength::number(number->value);
  }
  if (const auto* pixel = std::get_if<Value::Pixel>(&value->value)) {
    return UnitLength::pixel(pixel->value);
  }
  if (const auto* percent = std::get_if<Value::PercentValue>(&value->value)) {
    return UnitLength::percentage(percent->value);
  }
  if (const auto* id = std::get_if<Value::Id>(&value->value)) return parse(id->text, report);
  return std::nullopt;
}

std::optional<double> UnitLength::points() const {
  switch (unit) {
    case Unit::number:
    case Unit::point:
    case Unit::pixel:
      return value;
    case Unit::percentage:
    case Unit::pc:
      return std::nullopt;
    case Unit::centimeter:
      return value * 10.0 * pointsPerMillimeter;
    case Unit::millimeter:
      return value * pointsPerMillimeter;
    case Unit::inch:
      return value * 72.0;
  }
  return std::nullopt;
}

std::optional<double> UnitLength::ratio(const UnitLength& left, const UnitLength& right) {
  switch (left.unit) {
    case Unit::number:
      if (right.unit == Unit::number) return left.value / right.value;
      if (right.unit == Unit::percentage) return left.value / (right.value / 100);
      return left.value;
    case Unit::percentage:
      if (right.unit == Unit::number) return (left.value / 100) / right.value;
      if (right.unit == Unit::percentage) return left.value / right.value;
      return left.value / 100;
    case Unit::pc:
      return std::nullopt;
    default:
      break;
  }
  if (!isAbsolute(right.unit) && right.unit != Unit::number) return std::nullopt;
  const auto leftPoints = left.points();
  const auto rightPoints = right.points();
  if (!leftPoints || !rightPoints) return std::nullopt;
  return *leftPoints / *rightPoints;
}

std::string UnitLength::description() const {
  std::string text = CoreS::swiftDoubleDescription(value);
  text += suffixText(unit);
  return text;
}

}  // namespace CSSModel
