#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ConverterTestSupport.h"

using namespace ConverterTest;
using SwiftUIModel::ContainerViewType;
using SwiftUIModel::Paint;

namespace {

SVG::NamedDefinition linear(std::string id) {
  SVG::LinearGradient gradient;
  gradient.core.id = id;
  return {id, SVG::Definition{gradient}};
}

// Lookups reach through any number of enclosing svgs, the nearest definition winning. Many
// sibling svgs under many definitions cost no copy of the enclosing scope each: with one,
// this document took most of a minute.
TEST(Definitions, ScopesReachThroughEveryLevel) {
  const int count = 2000;
  SVG::Circle usesFirst = circle(0, 0, 1);
  usesFirst.presentation.fill = reference("g0");
  SVG::Circle usesLast = circle(0, 0, 1);
  usesLast.presentation.fill = reference("g" + std::to_string(count - 1));
  SVG innermost = svgOf({item(usesFirst), item(usesLast)});
  SVG middle = svgOf({item(innermost)});
  middle.definitions = {linear("g0")};
  SVG svg;
  for (int i = 0; i < count; ++i) svg.definitions.push_back(linear("g" + std::to_string(i)));
  svg.children.push_back(item(middle));
  for (int i = 0; i < count; ++i) svg.children.push_back(item(svgOf({item(usesFirst)})));
  const auto result = SVGSwiftUIFigurer::makeModel(svg, "Icon", {});
  const auto& inner = child<ContainerViewType>(child<ContainerViewType>(result, 0), 0);
  // The name "g0" is taken by the outer definition, so the middle one is numbered.
  EXPECT_EQ(child<SwiftUIModel::CircleViewType>(inner, 0).drawing.fill,
            Paint::property("Group1.linearGradient1"));
  EXPECT_EQ(child<SwiftUIModel::CircleViewType>(inner, 1).drawing.fill,
            Paint::property("Icon.g1999"));
  const auto& lastSibling = child<ContainerViewType>(result, count);
  EXPECT_EQ(child<SwiftUIModel::CircleViewType>(lastSibling, 0).drawing.fill,
            Paint::property("Icon.g0"));
}

}  // namespace
