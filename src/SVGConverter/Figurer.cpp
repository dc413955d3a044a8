// The walk: attribute inheritance, `svg` sizes and view boxes, definition scopes and the
// dispatch of children.
#include <string>

#include "ConversionSupport.h"
#include "SVGConverter/SVGSwiftUIFigurer.h"
#include "SVGConverter/Transforms.h"

using SVGConverter::Overloaded;
using SVGConverter::points;
using SwiftUIModel::ContainerViewType;
using SwiftUIModel::NameCase;
using SwiftUIModel::Subview;

namespace {

template <class T>
void inheritIfAbsent(std::optional<T>& field, const std::optional<T>& parent) {
  if (!field) field = parent;
}

template <class T>
void inheritIfAsked(SVG::Inheritable<T>& field, const SVG::Inheritable<T>& parent) {
  if (field.kind == SVG::Inheritable<T>::Kind::inherit) field = parent;
}

const std::optional<std::string>& idOf(const SVG::GroupItem& item) {
  return std::visit(
      [](const auto& element) -> const std::optional<std::string>& { return element.core.id; },
      item.value);
}

}  // namespace

SVGSwiftUIFigurer::SVGSwiftUIFigurer(SVGParser::Report report) : report_(std::move(report)) {}

const SVG::PresentationAttributes& SVGSwiftUIFigurer::defaultAttributes() {
  static const SVG::PresentationAttributes attributes = [] {
    SVG::PresentationAttributes a;
    a.strokeMiterLimit.reset();
    a.strokeLineCap.reset();
    a.strokeLineJoin.reset();
    a.fill = SVG::Paint::makeColor(CSS::Color::named("black"));
    return a;
  }();
  return attributes;
}

ContainerViewType SVGSwiftUIFigurer::makeModel(const SVG& svg, std::string_view name,
                                               const SVGParser::Report& report) {
  SVGSwiftUIFigurer figurer(report);
  figurer.pushAttributes(defaultAttributes());
  return figurer.convert(svg, name);
}

void SVGSwiftUIFigurer::pushAttributes(const SVG::PresentationAttributes& own) {
  if (attributeStack.empty()) {
    attributeStack.push_back(own);
    return;
  }
  const auto& parent = attributeStack.back();
  auto merged = own;
  inheritIfAbsent(merged.opacity, parent.opacity);
  inheritIfAbsent(merged.fillOpacity, parent.fillOpacity);
  inheritIfAbsent(merged.strokeOpacity, parent.strokeOpacity);
  inheritIfAbsent(merged.strokeWidth, parent.strokeWidth);
  inheritIfAbsent(merged.fill, parent.fill);
  inheritIfAbsent(merged.stroke, parent.stroke);
  inheritIfAbsent(merged.strokeMiterLimit, parent.strokeMiterLimit);
  inheritIfAbsent(merged.strokeLineCap, parent.strokeLineCap);
  inheritIfAbsent(merged.strokeLineJoin, parent.strokeLineJoin);
  // A filter on a group is drawn once, on the group: children repeat it only when they ask.
  inheritIfAsked(merged.fillRule, parent.fillRule);
  inheritIfAsked(merged.clipRule, parent.clipRule);
  inheritIfAsked(merged.filter, parent.filter);
  attributeStack.push_back(std::move(merged));
}

void SVGSwiftUIFigurer::popAttributes() {
  if (!attributeStack.empty()) attributeStack.pop_back();
}

const SVG::PresentationAttributes& SVGSwiftUIFigurer::currentAttributes() const {
  return attributeStack.empty() ? defaultAttributes() : attributeStack.back();
}

ContainerViewType SVGSwiftUIFigurer::convert(const SVG& svg, std::string_view name) {
  ContainerViewType container = beginSVG(svg, name);
  container.childTypes = convertChildren(svg.children);
  endSVG(svg, container);
  return container;
}

namespace {

// The size the children of an `svg` measure against: its view box, else its own size.
std::optional<CGSize> childExtent(const ContainerViewType& container) {
  if (container.viewBox) return container.viewBox->size;
  return container.intrinsicSize;
}

}  // namespace

ContainerViewType SVGSwiftUIFigurer::beginSVG(const SVG& svg, std::string_view name) {
  ++nesting_;
  pushAttributes(svg.presentation);
  ContainerViewType container;
  container.typeName =
      !name.empty() ? std::string(name) : makeTypeName(groupIDs, svg.core.id, NameCase::type);

  auto definitions = convertDefinitions(svg.definitions);
  // The scope holds only this element's definitions; lookups go on outward, which gives the
  // same answers as a copy of the enclosing scope without the cost of one per `svg`.
  DefinitionScope scope;
  for (const auto& [svgID, definition] : definitions) {
    scope.insert_or_assign(
        svgID, ScopedDefinition{container.typeName + "." + definition.name(), definition});
  }
  svgDefsStack.push_back(std::move(scope));
  container.definitions.reserve(definitions.size());
  for (auto& entry : definitions) container.definitions.push_back(std::move(entry.second));

  auto width = points(svg.width);
  auto height = points(svg.height);
  if (width.has_value() != height.has_value() && !svgPointSizeStack.empty()) {
    if (!width) width = svgPointSizeStack.back().width;
    if (!height) height = svgPointSizeStack.back().height;
  }
  if (width && height) container.intrinsicSize = CGSize{*width, *height};
  container.resizable = {width, height};

  if (svg.viewBox) {
    const auto& box = *svg.viewBox;
    const bool saysNothingNew = container.intrinsicSize && box.origin.x == 0 && box.origin.y == 0 &&
                                box.size == *container.intrinsicSize;
    if (!saysNothingNew) container.viewBox = box;
  }
  if (const auto extent = childExtent(container)) svgPointSizeStack.push_back(*extent);
  return container;
}

void SVGSwiftUIFigurer::endSVG(const SVG& svg, ContainerViewType& container) {
  if (childExtent(container)) svgPointSizeStack.pop_back();
  svgDefsStack.pop_back();

  const auto origin = SVGConverter::frameFields({points(svg.x), points(svg.y), {}, {}}).origin;
  container.origin = origin;
  container.filterModifier = lookupFilter(currentAttributes().filter);
  container.transform = SVGConverter::transformSteps(currentAttributes().transform);
  popAttributes();
  --nesting_;
}

ContainerViewType SVGSwiftUIFigurer::convert(const SVG::Group& group) {
  ++nesting_;
  pushAttributes(group.presentation);
  ContainerViewType container;
  container.filterModifier = lookupFilter(currentAttributes().filter);
  container.typeName = makeTypeName(groupIDs, group.core.id, NameCase::type);
  container.childTypes = convertChildren(group.children);
  container.transform = SVGConverter::transformSteps(currentAttributes().transform);
  popAttributes();
  --nesting_;
  return container;
}

std::vector<Subview> SVGSwiftUIFigurer::convertChildren(
    const std::vector<SVG::GroupItem>& children) {
  std::vector<Subview> result;
  result.reserve(children.size());
  for (const auto& child : children) convertChild(child, result);
  return result;
}

void SVGSwiftUIFigurer::convertChild(const SVG::GroupItem& child, std::vector<Subview>& into) {
  const auto tooDeep = [&](std::string_view element) {
    if (nesting_ < maximumNesting) return false;
    report_.print({"Containers nested deeper than", std::to_string(maximumNesting),
                   "levels are not supported, dropping:", element});
    return true;
  };
  const auto before = into.size();
  std::visit(
      Overloaded{
          [&](const SVG& svg) {
            if (!tooDeep("svg")) into.push_back(Subview::svg(convert(svg, {})));
          },
          [&](const SVG::Group& group) {
            if (!tooDeep("g")) into.push_back(Subview::group(convert(group)));
          },
          [&](const SVG::Path& path) { into.push_back(Subview::path(convert(path))); },
          [&](const SVG::Circle& circle) { into.push_back(Subview::circle(convert(circle))); },
          [&](const SVG::Ellipse& ellipse) { into.push_back(Subview::ellipse(convert(ellipse))); },
          [&](const SVG::Rect& rect) { into.push_back(Subview::rectangle(convert(rect))); },
          [&](const SVG::Polygon& polygon) { into.push_back(Subview::path(convert(polygon))); },
          [&](const SVG::Polyline& polyline) { into.push_back(Subview::path(convert(polyline))); },
          [&](const SVG::Line& line) { into.push_back(Subview::path(convert(line))); },
          [&](const SVG::Image&) { report_.print({"SVG image nodes are not supported, sorry!"}); },
          [&](const SVG::Text& text) { into.push_back(Subview::text(convert(text))); },
      },
      child.value);
  const auto& id = idOf(child);
  if (id && into.size() > before) {
    svgID2Node.insert_or_assign(*id, NamedNode{into.back().typeName(), &child});
  }
}
