// The presentation attributes of one element: each field from its attribute first and from
// the element's resolved style second. The two sources read the same words differently (a
// "none" fill, an "inherit" filter), and the converter relies on those differences.
#include <string>

#include "SVGParser/SVG.h"

namespace SVGModel {

namespace {

// Opacity from a stylesheet value, on the 0 to 100 scale of the tree.
std::optional<double> opacityFromValue(const CSS::Value* value) {
  if (value == nullptr) return std::nullopt;
  if (const auto* number = std::get_if<CSS::Value::Number>(&value->value)) {
    return number->value * 100;
  }
  if (const auto* percent = std::get_if<CSS::Value::PercentValue>(&value->value)) {
    return percent->value;
  }
  return std::nullopt;
}

std::optional<double> readOpacity(const Attributes& attributes, const CSS::Style& resolver,
                                  std::string_view name) {
  if (auto opacity = CSS::parseOpacity(attributes[name])) return opacity;
  return opacityFromValue(resolver[name]);
}

std::optional<CSS::UnitLength> readLength(const Attributes& attributes, const CSS::Style& resolver,
                                          std::string_view name, const Report& report) {
  if (auto length = CSS::UnitLength::parse(attributes[name], report)) return length;
  return CSS::UnitLength::fromValue(resolver[name], report);
}

std::optional<Paint> readPaint(const Attributes& attributes, const CSS::Style& resolver,
                               std::string_view name, const Report& report) {
  if (auto paint = Paint::parse(attributes[name], report)) return paint;
  return Paint::fromValue(resolver[name]);
}

// The attribute keeps the words "none" and "inherit" as names; the stylesheet gives them
// their meaning.
Inheritable<std::string> readFilter(const Attributes& attributes, const CSS::Style& resolver) {
  using Filter = Inheritable<std::string>;
  if (const auto text = attributes["filter"]) {
    if (text->empty()) return Filter::none();
    const auto function = CSS::parseFunction(*text);
    if (!function) return Filter::some(std::string(*text));
    if (function->name == "url" && !function->arguments.empty()) {
      return Filter::some(function->arguments.front());
    }
    return Filter::none();
  }
  const CSS::Value* value = resolver["filter"];
  if (value == nullptr) return Filter::none();
  if (const auto* id = std::get_if<CSS::Value::Id>(&value->value)) {
    return id->text == "inherit" ? Filter::inherit() : Filter::some(id->text);
  }
  if (const auto* url = std::get_if<CSS::Value::Url>(&value->value)) return Filter::some(url->text);
  return Filter::none();
}

std::optional<std::string_view> identifierText(const CSS::Value* value) {
  if (value == nullptr) return std::nullopt;
  if (const auto* id = std::get_if<CSS::Value::Id>(&value->value)) return id->text;
  return std::nullopt;
}

}  // namespace

std::optional<CGLineCap> parseLineCap(std::optional<std::string_view> text) {
  if (!text) return std::nullopt;
  if (*text == "butt") return CGLineCap::butt;
  if (*text == "round") return CGLineCap::round;
  if (*text == "square") return CGLineCap::square;
  return std::nullopt;
}

std::optional<CGLineCap> lineCapFromValue(const CSS::Value* value) {
  return parseLineCap(identifierText(value));
}

// "arcs" is a join of SVG 2 with no counterpart here; it falls back to the default.
std::optional<CGLineJoin> parseLineJoin(std::optional<std::string_view> text) {
  if (!text) return std::nullopt;
  if (*text == "bevel") return CGLineJoin::bevel;
  if (*text == "miter" || *text == "miter-clip") return CGLineJoin::miter;
  if (*text == "round") return CGLineJoin::round;
  return std::nullopt;
}

std::optional<CGLineJoin> lineJoinFromValue(const CSS::Value* value) {
  return parseLineJoin(identifierText(value));
}

Inheritable<CGPathFillRule> parseFillRule(std::optional<std::string_view> text) {
  using Rule = Inheritable<CGPathFillRule>;
  if (!text) return Rule::none();
  if (*text == "inherit") return Rule::inherit();
  if (*text == "evenodd") return Rule::some(CGPathFillRule::evenOdd);
  if (*text == "nonzero") return Rule::some(CGPathFillRule::winding);
  return Rule::none();
}

PresentationAttributes PresentationAttributes::read(const Attributes& attributes,
                                                    const CSS::Style& resolver,
                                                    const Report& report) {
  // Fields are read in this order so that report lines come out in a stable order.
  // "fill-rule" and "clip-rule" are deliberately not read: both rules stay `none`.
  PresentationAttributes result;
  result.opacity = readOpacity(attributes, resolver, "opacity");
  result.fillOpacity = readOpacity(attributes, resolver, "fill-opacity");
  result.strokeOpacity = readOpacity(attributes, resolver, "stroke-opacity");
  result.strokeWidth = readLength(attributes, resolver, "stroke-width", report);
  result.fill = readPaint(attributes, resolver, "fill", report);
  result.stroke = readPaint(attributes, resolver, "stroke", report);
  result.strokeLineCap = parseLineCap(attributes["stroke-linecap"]);
  if (!result.strokeLineCap) {
    result.strokeLineCap = lineCapFromValue(resolver["stroke-linecap"]).value_or(CGLineCap::butt);
  }
  result.strokeLineJoin = parseLineJoin(attributes["stroke-linejoin"]);
  if (!result.strokeLineJoin) {
    result.strokeLineJoin =
        lineJoinFromValue(resolver["stroke-linejoin"]).value_or(CGLineJoin::miter);
  }
  result.strokeMiterLimit = readLength(attributes, resolver, "stroke-miterlimit", report);
  if (!result.strokeMiterLimit) result.strokeMiterLimit = CSS::UnitLength::point(4);
  result.transform = Transform::parseList(attributes["transform"], report);
  result.filter = readFilter(attributes, resolver);
  return result;
}

}  // namespace SVGModel
