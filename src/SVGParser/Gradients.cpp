// Readers of linearGradient, radialGradient and stop. Gradients keep their geometry with the
// defaults filled in and their template reference as written; following the reference is the
// converter's business.
#include <variant>

#include "SVGParser/SVG.h"

namespace SVGModel {

namespace {

using Length = CSS::UnitLength;

// A stop opacity from a stylesheet: numbers are fractions, percentages already on our 0 to 100
// scale.
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

std::optional<std::string> templateReference(const Attributes& attributes) {
  // Only the XLink spelling is understood; a plain "href" is left alone on purpose.
  if (auto href = attributes["xlink:href"]) return std::string(*href);
  return std::nullopt;
}

}  // namespace

GradientStop GradientStop::read(const Attributes& attributes, const CSS::Style& resolver,
                                const Report& report) {
  GradientStop stop;
  stop.core = CoreAttributes::read(attributes);
  stop.style = StylingAttributes::read(attributes);

  // The "color" attribute outranks "stop-color"; the stylesheet's `color` is never asked.
  stop.color = CSS::Color::parse(attributes["color"], report);
  if (!stop.color) stop.color = CSS::Color::parse(attributes["stop-color"], report);
  if (!stop.color) stop.color = CSS::Color::fromValue(resolver["stop-color"]);

  stop.opacity = CSS::parseOpacity(attributes["opacity"]);
  if (!stop.opacity) stop.opacity = CSS::parseOpacity(attributes["stop-opacity"]);
  if (!stop.opacity) stop.opacity = opacityFromValue(resolver["stop-opacity"]);

  // Neither clamped nor sorted: the converter sees the offsets exactly as written.
  stop.offset = Length::parse(attributes["offset"], report);
  return stop;
}

LinearGradient LinearGradient::read(const Attributes& attributes, const Report& report) {
  LinearGradient gradient;
  gradient.core = CoreAttributes::read(attributes);
  gradient.templateGradientID = templateReference(attributes);
  gradient.x1 = Length::parse(attributes["x1"], report).value_or(gradient.x1);
  gradient.x2 = Length::parse(attributes["x2"], report).value_or(gradient.x2);
  gradient.y1 = Length::parse(attributes["y1"], report).value_or(gradient.y1);
  gradient.y2 = Length::parse(attributes["y2"], report).value_or(gradient.y2);
  gradient.gradientTransform = Transform::parseList(attributes["gradientTransform"], report);
  return gradient;
}

RadialGradient RadialGradient::read(const Attributes& attributes, const Report& report) {
  RadialGradient gradient;
  gradient.core = CoreAttributes::read(attributes);
  gradient.templateGradientID = templateReference(attributes);
  // "none" quietly keeps the default for the radii and the centre, while the focus has no
  // default and so reads "none" as an unknown unit.
  gradient.r = Length::parseOrNone(attributes["r"], report).value_or(gradient.r);
  gradient.cx = Length::parseOrNone(attributes["cx"], report).value_or(gradient.cx);
  gradient.cy = Length::parseOrNone(attributes["cy"], report).value_or(gradient.cy);
  gradient.fr = Length::parseOrNone(attributes["fr"], report).value_or(gradient.fr);
  gradient.fx = Length::parse(attributes["fx"], report);
  gradient.fy = Length::parse(attributes["fy"], report);
  gradient.gradientTransform = Transform::parseList(attributes["gradientTransform"], report);
  return gradient;
}

const std::optional<std::string>& Definition::id() const {
  return std::visit(
      [](const auto& definition) -> const std::optional<std::string>& {
        return definition.core.id;
      },
      value);
}

}  // namespace SVGModel
