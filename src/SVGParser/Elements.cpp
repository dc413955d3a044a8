// Readers of the element records: each takes the element's attributes and its resolved style.
#include "SVGParser/SVG.h"
#include "TextUtilities.h"

namespace SVGModel {

namespace {

using CSS_UnitLength = CSS::UnitLength;

std::optional<CSS_UnitLength> attributeLength(const Attributes& attributes, std::string_view name,
                                              const Report& report) {
  return CSS::UnitLength::parse(attributes[name], report);
}

// The attribute first; the stylesheet's property of the same name when the attribute gives
// nothing.
std::optional<CSS_UnitLength> styledLength(const Attributes& attributes, const CSS::Style& resolver,
                                           std::string_view name, const Report& report) {
  if (auto length = attributeLength(attributes, name, report)) return length;
  return CSS::UnitLength::fromValue(resolver[name], report);
}

}  // namespace

CoreAttributes CoreAttributes::read(const Attributes& attributes) {
  CoreAttributes core;
  if (auto id = attributes["id"]) core.id = std::string(*id);
  return core;
}

StylingAttributes StylingAttributes::read(const Attributes& attributes) {
  StylingAttributes styling;
  if (auto classes = attributes["class"]) {
    for (std::string_view name : SVGParser::text::split(*classes, ' ', 100)) {
      styling.classes.emplace_back(name);
    }
  }
  if (auto style = attributes["style"]; style && !style->empty()) styling.style = std::string(*style);
  return styling;
}

ElementAttributes ElementAttributes::read(const Attributes& attributes, const CSS::Style& resolver,
                                          const Report& report) {
  return {CoreAttributes::read(attributes), StylingAttributes::read(attributes),
          PresentationAttributes::read(attributes, resolver, report)};
}

std::optional<UnitPoint> UnitPoint::readPair(const Attributes& attributes, const CSS::Style& resolver,
                                             std::string_view xName, std::string_view yName,
                                             const Report& report) {
  auto x = styledLength(attributes, resolver, xName, report);
  auto y = styledLength(attributes, resolver, yName, report);
  if (!x && !y) return std::nullopt;
  return UnitPoint{x.value_or(CSS::UnitLength::point(0)), y.value_or(CSS::UnitLength::point(0))};
}

std::vector<UnitPoint> UnitPoint::parseList(std::optional<std::string_view> text, const Report& report) {
  std::vector<UnitPoint> points;
  if (!text || text->empty()) return points;
  for (std::string_view piece : SVGParser::text::splitWhitespace(*text)) {
    // A piece without a comma gives x and y from the same text.
    const auto parts = SVGParser::text::split(piece, ',', 1);
    if (parts.empty()) continue;
    auto x = CSS::UnitLength::parse(parts.front(), report);
    auto y = CSS::UnitLength::parse(parts.back(), report);
    if (x && y) points.push_back({*x, *y});
  }
  return points;
}

std::optional<CGPoint> UnitPoint::points() const {
  auto px = x.points();
  auto py = y.points();
  if (!px || !py) return std::nullopt;
  return CGPoint{*px, *py};
}

std::optional<CGSize> UnitSize::points() const {
  auto w = width.points();
  auto h = height.points();
  if (!w || !h) return std::nullopt;
  return CGSize{*w, *h};
}

std::optional<CGRect> UnitRect::points() const {
  auto o = origin.points();
  auto s = size.points();
  if (!o || !s) return std::nullopt;
  return CGRect{*o, *s};
}

Group Group::read(const Attributes& attributes, const CSS::Style& resolver, const Report& report) {
  return {ElementAttributes::read(attributes, resolver, report), {}};
}

std::optional<Path> Path::read(const Attributes& attributes, const CSS::Style& resolver,
                               const Report& report, Command::ParserError* error) {
  Command::ParseResult parsed = Command::parse(attributes["d"].value_or(std::string_view()));
  if (parsed.error) {
    if (error != nullptr) *error = *parsed.error;
    return std::nullopt;
  }
  Path path;
  static_cast<ElementAttributes&>(path) = ElementAttributes::read(attributes, resolver, report);
  path.commands = std::move(parsed.commands);
  path.pathLength = CSS::UnitLength::parseOrNone(attributes["pathLength"], report);
  return path;
}

Circle Circle::read(const Attributes& attributes, const CSS::Style& resolver, const Report& report) {
  Circle circle;
  circle.cx = attributeLength(attributes, "cx", report).value_or(CSS::UnitLength::number(0));
  circle.cy = attributeLength(attributes, "cy", report).value_or(CSS::UnitLength::number(0));
  circle.r = attributeLength(attributes, "r", report).value_or(CSS::UnitLength::number(0));
  circle.pathLength = attributeLength(attributes, "pathLength", report);
  static_cast<ElementAttributes&>(circle) = ElementAttributes::read(attributes, resolver, report);
  return circle;
}

Ellipse Ellipse::read(const Attributes& attributes, const CSS::Style& resolver, const Report& report) {
  Ellipse ellipse;
  ellipse.cx = attributeLength(attributes, "cx", report).value_or(CSS::UnitLength::number(0));
  ellipse.cy = attributeLength(attributes, "cy", report).value_or(CSS::UnitLength::number(0));
  ellipse.rx = attributeLength(attributes, "rx", report).value_or(CSS::UnitLength::number(0));
  ellipse.ry = attributeLength(attributes, "ry", report).value_or(CSS::UnitLength::number(0));
  ellipse.pathLength = attributeLength(attributes, "pathLength", report);
  static_cast<ElementAttributes&>(ellipse) = ElementAttributes::read(attributes, resolver, report);
  return ellipse;
}

Rect Rect::read(const Attributes& attributes, const CSS::Style& resolver, const Report& report) {
  Rect rect;
  if (auto origin = UnitPoint::readPair(attributes, resolver, "x", "y", report)) {
    rect.x = origin->x;
    rect.y = origin->y;
  }
  rect.width = styledLength(attributes, resolver, "width", report);
  rect.height = styledLength(attributes, resolver, "height", report);
  rect.pathLength = attributeLength(attributes, "pathLength", report);
  rect.rx = attributeLength(attributes, "rx", report);
  rect.ry = attributeLength(attributes, "ry", report);
  // A corner radius given on one axis only stands for both.
  if (!rect.rx) rect.rx = rect.ry;
  if (!rect.ry) rect.ry = rect.rx;
  static_cast<ElementAttributes&>(rect) = ElementAttributes::read(attributes, resolver, report);
  return rect;
}

Line Line::read(const Attributes& attributes, const CSS::Style& resolver, const Report& report) {
  Line line;
  line.startPoint = UnitPoint::readPair(attributes, resolver, "x1", "y1", report);
  line.endPoint = UnitPoint::readPair(attributes, resolver, "x2", "y2", report);
  line.pathLength = attributeLength(attributes, "pathLength", report);
  static_cast<ElementAttributes&>(line) = ElementAttributes::read(attributes, resolver, report);
  return line;
}

Polygon Polygon::read(const Attributes& attributes, const CSS::Style& resolver, const Report& report) {
  Polygon polygon;
  polygon.points = UnitPoint::parseList(attributes["points"], report);
  polygon.pathLength = attributeLength(attributes, "pathLength", report);
  static_cast<ElementAttributes&>(polygon) = ElementAttributes::read(attributes, resolver, report);
  return polygon;
}

Polyline Polyline::read(const Attributes& attributes, const CSS::Style& resolver, const Report& report) {
  Polyline polyline;
  polyline.points = UnitPoint::parseList(attributes["points"], report);
  polyline.pathLength = attributeLength(attributes, "pathLength", report);
  static_cast<ElementAttributes&>(polyline) = ElementAttributes::read(attributes, resolver, report);
  return polyline;
}

Image Image::read(const Attributes& attributes, const CSS::Style& resolver, const Report& report) {
  Image image;
  if (auto origin = UnitPoint::readPair(attributes, resolver, "x", "y", report)) {
    image.x = origin->x;
    image.y = origin->y;
  }
  image.width = styledLength(attributes, resolver, "width", report);
  image.height = styledLength(attributes, resolver, "height", report);
  image.transform = Transform::parseList(attributes["transform"], report);
  static_cast<ElementAttributes&>(image) = ElementAttributes::read(attributes, resolver, report);
  return image;
}

}  // namespace SVGModel

SVG SVG::read(const SVGParser::Attributes& attributes, const CSS::Style& resolver,
              const SVGParser::Report& report) {
  SVG svg;
  if (auto origin = UnitPoint::readPair(attributes, resolver, "x", "y", report)) {
    svg.x = origin->x;
    svg.y = origin->y;
  }
  auto styled = [&](std::string_view name) -> std::optional<CSS::UnitLength> {
    if (auto length = CSS::UnitLength::parse(attributes[name], report)) return length;
    return CSS::UnitLength::fromValue(resolver[name], report);
  };
  svg.width = styled("width");
  svg.height = styled("height");
  svg.viewBox = CSS::parseRect(attributes["viewBox"], report);
  static_cast<SVGModel::ElementAttributes&>(svg) =
      SVGModel::ElementAttributes::read(attributes, resolver, report);
  return svg;
}
