// Paints, gradient definitions and the definition scopes they are found in. Gradients are
// unit-square gradients: coordinates are fractions, and the gradient transform is applied to
// the points here, about the centre of the square.
#include "ConversionSupport.h"
#include "SVGConverter/SVGSwiftUIFigurer.h"
#include "SVGConverter/Transforms.h"

using SwiftUIModel::NameCase;
using SwiftUIModel::Paint;

namespace {

// A length as a fraction of the unit square: plain numbers as they stand, percentages over
// 100, other units nothing.
std::optional<double> fraction(const CSS::UnitLength& length) {
  switch (length.unit) {
    case CSS::UnitLength::Unit::number:
      return length.value;
    case CSS::UnitLength::Unit::percentage:
      return length.value / 100.0;
    default:
      return std::nullopt;
  }
}

// A pair with either coordinate valueless is the origin as a whole.
CGPoint fractionPair(const CSS::UnitLength& x, const CSS::UnitLength& y) {
  const auto fx = fraction(x);
  const auto fy = fraction(y);
  if (!fx || !fy) return {0, 0};
  return {*fx, *fy};
}

class UnitSquareMapping {
 public:
  explicit UnitSquareMapping(const std::vector<SVG::Transform>& list)
      : identity_(list.empty()), transform_(SVGConverter::affineTransform(list)) {}

  // An empty list leaves the point exactly as it is.
  CGPoint operator()(CGPoint p) const {
    if (identity_) return p;
    const auto mapped = CGPointApplyAffineTransform({p.x - 0.5, p.y - 0.5}, transform_);
    return {mapped.x + 0.5, mapped.y + 0.5};
  }

 private:
  bool identity_;
  CGAffineTransform transform_;
};

// Offsets the stops do not give are spread evenly by a running default, which does not look
// at the offsets that are given.
std::vector<SwiftUIModel::GradientStop> convertStops(const std::vector<SVG::GradientStop>& stops) {
  std::vector<SwiftUIModel::GradientStop> result;
  if (stops.empty()) return result;
  result.reserve(stops.size());
  const double step = stops.size() >= 2 ? 1.0 / static_cast<double>(stops.size() - 1) : 0.0;
  double runningDefault = 0.0;
  for (const auto& stop : stops) {
    double offset = runningDefault;
    if (stop.offset && stop.offset->unit == CSS::UnitLength::Unit::number) {
      offset = stop.offset->value;
    } else if (stop.offset && stop.offset->unit == CSS::UnitLength::Unit::percentage) {
      offset = stop.offset->value / 100.0;
    }
    result.push_back({stop.color.value_or(CSS::Color::named("black")), stop.opacity, offset});
    runningDefault += step;
  }
  return result;
}

}  // namespace

std::optional<Paint> SVGSwiftUIFigurer::convertPaint(const std::optional<SVG::Paint>& paint,
                                                     std::optional<double> opacity) const {
  if (!paint) {
    if (opacity) return Paint::opacity(*opacity);
    return std::nullopt;
  }
  switch (paint->kind) {
    case SVG::Paint::Kind::color:
      return Paint::color(paint->color, opacity);
    case SVG::Paint::Kind::definition:
      if (const auto* found = lookupDefinition(paint->definition))
        return Paint::property(found->id);
      return std::nullopt;
    case SVG::Paint::Kind::none:
      return std::nullopt;
  }
  return std::nullopt;
}

const SVGSwiftUIFigurer::ScopedDefinition* SVGSwiftUIFigurer::lookupDefinition(
    std::string_view id) const {
  for (auto scope = svgDefsStack.rbegin(); scope != svgDefsStack.rend(); ++scope) {
    const auto found = scope->find(id);
    if (found != scope->end()) return &found->second;
  }
  return nullptr;
}

std::vector<std::pair<std::string, SwiftUIModel::Definition>> SVGSwiftUIFigurer::convertDefinitions(
    const std::vector<SVG::NamedDefinition>& definitions) {
  std::vector<std::pair<std::string, SwiftUIModel::Definition>> result;
  result.reserve(definitions.size());
  for (const auto& [id, definition] : definitions) {
    auto converted = std::visit(
        [this](const auto& d) { return SwiftUIModel::Definition{convert(d)}; }, definition.value);
    result.emplace_back(id, std::move(converted));
  }
  return result;
}

SwiftUIModel::LinearGradientProperty SVGSwiftUIFigurer::convert(
    const SVG::LinearGradient& gradient) {
  SwiftUIModel::LinearGradientProperty property;
  property.propertyID = makeTypeName(linearGradientIDs, gradient.core.id, NameCase::property);
  property.stops = convertStops(gradient.stops);
  const UnitSquareMapping map(gradient.gradientTransform);
  property.startPoint = map(fractionPair(gradient.x1, gradient.y1));
  property.endPoint = map(fractionPair(gradient.x2, gradient.y2));
  return property;
}

SwiftUIModel::RadialGradientProperty SVGSwiftUIFigurer::convert(
    const SVG::RadialGradient& gradient) {
  SwiftUIModel::RadialGradientProperty property;
  property.propertyID = makeTypeName(radialGradientIDs, gradient.core.id, NameCase::property);
  property.stops = convertStops(gradient.stops);
  const UnitSquareMapping map(gradient.gradientTransform);
  property.center = map(fractionPair(gradient.cx, gradient.cy));
  // Radii are points, not fractions, and the transform does not touch them.
  property.endRadius = gradient.r.points().value_or(0);
  property.startRadius = gradient.fr.points().value_or(0);
  return property;
}
