// Drawable elements to views: path-like elements become generated shapes, circles, ellipses
// and rectangles keep the primitive forms with a frame.
#include "ConversionSupport.h"
#include "SVGConverter/PathConversion.h"
#include "SVGConverter/SVGSwiftUIFigurer.h"
#include "SVGConverter/Transforms.h"

using SVGConverter::frameFields;
using SVGConverter::points;
using SwiftUIModel::NameCase;
using SwiftUIModel::PathCommand;

namespace {

// A point whose coordinates do not both have a point value counts as the origin.
CGPoint pointOf(const std::optional<SVG::UnitPoint>& point) {
  if (!point) return {0, 0};
  return point->points().value_or(CGPoint{0, 0});
}

std::vector<CGPoint> pointsOf(const std::vector<SVG::UnitPoint>& list) {
  std::vector<CGPoint> result;
  result.reserve(list.size());
  for (const auto& point : list) result.push_back(point.points().value_or(CGPoint{0, 0}));
  return result;
}

}  // namespace

SwiftUIModel::ShapeDrawing SVGSwiftUIFigurer::makeDrawing(bool transformInDrawing) const {
  const auto& m = currentAttributes();
  SwiftUIModel::ShapeDrawing drawing;
  if (m.stroke && m.stroke->kind != SVG::Paint::Kind::none) {
    drawing.strokeStyle =
        SwiftUIModel::StrokeStyle{points(m.strokeWidth), m.strokeLineCap.value_or(CGLineCap::butt),
                                  m.strokeLineJoin.value_or(CGLineJoin::miter)};
  }
  drawing.stroke = convertPaint(m.stroke, m.strokeOpacity);
  drawing.fill = convertPaint(m.fill, m.fillOpacity);
  drawing.filterModifier = lookupFilter(m.filter);
  if (transformInDrawing) drawing.transform = SVGConverter::transformSteps(m.transform);
  return drawing;
}

SwiftUIModel::PathViewType SVGSwiftUIFigurer::makePathView(const std::optional<std::string>& id,
                                                           std::vector<PathCommand> path) {
  SwiftUIModel::PathViewType view;
  view.shapeType.typeName = makeTypeName(pathShapeIDs, id, NameCase::type);
  view.typeName = makeTypeName(pathViewIDs, id, NameCase::type);
  view.shapeType.path = std::move(path);
  view.shapeType.transform = SVGConverter::transformSteps(currentAttributes().transform);
  view.drawing = makeDrawing(false);
  return view;
}

SwiftUIModel::PathViewType SVGSwiftUIFigurer::convert(const SVG::Path& path) {
  pushAttributes(path.presentation);
  auto view = makePathView(path.core.id, SVGConverter::convertPath(path.commands));
  popAttributes();
  return view;
}

SwiftUIModel::PathViewType SVGSwiftUIFigurer::convert(const SVG::Line& line) {
  pushAttributes(line.presentation);
  std::vector<PathCommand> outline{PathCommand::moveTo(pointOf(line.startPoint)),
                                   PathCommand::addLineTo(pointOf(line.endPoint))};
  auto view = makePathView(line.core.id, std::move(outline));
  popAttributes();
  return view;
}

SwiftUIModel::PathViewType SVGSwiftUIFigurer::convert(const SVG::Polygon& polygon) {
  pushAttributes(polygon.presentation);
  std::vector<PathCommand> outline{PathCommand::addLines(pointsOf(polygon.points)),
                                   PathCommand::closeSubpath()};
  auto view = makePathView(polygon.core.id, std::move(outline));
  popAttributes();
  return view;
}

SwiftUIModel::PathViewType SVGSwiftUIFigurer::convert(const SVG::Polyline& polyline) {
  pushAttributes(polyline.presentation);
  std::vector<PathCommand> outline{PathCommand::addLines(pointsOf(polyline.points))};
  auto view = makePathView(polyline.core.id, std::move(outline));
  popAttributes();
  return view;
}

SwiftUIModel::CircleViewType SVGSwiftUIFigurer::convert(const SVG::Circle& circle) {
  pushAttributes(circle.presentation);
  PointFrame frame;
  if (const auto r = circle.r.points()) {
    if (const auto cx = circle.cx.points()) frame.x = *cx - *r;
    if (const auto cy = circle.cy.points()) frame.y = *cy - *r;
    frame.w = *r + *r;
    frame.h = *r + *r;
  }
  SwiftUIModel::CircleViewType view;
  const auto fields = frameFields(frame);
  view.intrinsicSize = fields.intrinsicSize;
  view.origin = fields.origin;
  view.typeName = makeTypeName(circleViewIDs, circle.core.id, NameCase::type);
  view.drawing = makeDrawing(true);
  popAttributes();
  return view;
}

SwiftUIModel::EllipseViewType SVGSwiftUIFigurer::convert(const SVG::Ellipse& ellipse) {
  pushAttributes(ellipse.presentation);
  PointFrame frame;
  if (const auto rx = ellipse.rx.points()) {
    const double ry = ellipse.ry.points().value_or(*rx);
    if (const auto cx = ellipse.cx.points()) frame.x = *cx - *rx;
    if (const auto cy = ellipse.cy.points()) frame.y = *cy - ry;
    frame.w = *rx + *rx;
    frame.h = ry + ry;
  }
  SwiftUIModel::EllipseViewType view;
  const auto fields = frameFields(frame);
  view.intrinsicSize = fields.intrinsicSize;
  view.origin = fields.origin;
  view.typeName = makeTypeName(ellipseViewIDs, ellipse.core.id, NameCase::type);
  view.drawing = makeDrawing(true);
  popAttributes();
  return view;
}

SwiftUIModel::RectangleViewType SVGSwiftUIFigurer::convert(const SVG::Rect& rect) {
  pushAttributes(rect.presentation);
  const auto frame = SVGConverter::pairedFrame(points(rect.x), points(rect.y), points(rect.width),
                                               points(rect.height));
  SwiftUIModel::RectangleViewType view;
  const auto fields = frameFields(frame);
  view.intrinsicSize = fields.intrinsicSize;
  view.origin = fields.origin;
  // Only rx rounds the corners; ry is not consulted.
  view.cornerRadius = points(rect.rx);
  view.typeName = makeTypeName(rectangleViewIDs, rect.core.id, NameCase::type);
  view.drawing = makeDrawing(true);
  popAttributes();
  return view;
}
