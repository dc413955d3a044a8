// Hand-built trees for the conversion tests.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "SVGConverter/ModelDescription.h"
#include "SVGConverter/SVGSwiftUIFigurer.h"

namespace ConverterTest {

using UL = CSS::UnitLength;

template <class T>
SVG::GroupItem item(T element) {
  return SVG::GroupItem{std::move(element)};
}

template <class T>
T withID(T element, std::string id) {
  element.core.id = std::move(id);
  return element;
}

inline SVG::Paint color(std::string name) {
  return SVG::Paint::makeColor(CSS::Color::named(name));
}
inline SVG::Paint reference(std::string id) {
  return SVG::Paint::makeDefinition(std::move(id));
}

inline SVG::Circle circle(double cx, double cy, double r) {
  SVG::Circle c;
  c.cx = UL::number(cx);
  c.cy = UL::number(cy);
  c.r = UL::number(r);
  return c;
}

inline SVG svgOf(std::vector<SVG::GroupItem> children) {
  SVG svg;
  svg.children = std::move(children);
  return svg;
}

inline SVG::Group groupOf(std::vector<SVG::GroupItem> children) {
  SVG::Group group;
  group.children = std::move(children);
  return group;
}

struct Collected {
  std::vector<std::string> lines;
  SVGParser::Report report() {
    return SVGParser::Report([this](std::string_view line) { lines.emplace_back(line); });
  }
};

inline SwiftUIModel::ContainerViewType model(const SVG& svg, Collected* collected = nullptr) {
  return SVGSwiftUIFigurer::makeModel(svg, "",
                                      collected ? collected->report() : SVGParser::Report{});
}

template <class T>
const T& child(const SwiftUIModel::ContainerViewType& container, std::size_t index) {
  return std::get<T>(container.childTypes.at(index).value);
}

}  // namespace ConverterTest
