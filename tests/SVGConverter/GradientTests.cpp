#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ConverterTestSupport.h"

using namespace ConverterTest;
using SwiftUIModel::ContainerViewType;
using SwiftUIModel::Definition;
using SwiftUIModel::LinearGradientProperty;
using SwiftUIModel::Paint;

namespace {

SVG::GradientStop stop(std::optional<UL> offset, std::optional<CSS::Color> c = std::nullopt,
                       std::optional<double> opacity = std::nullopt) {
  SVG::GradientStop s;
  s.offset = offset;
  s.color = std::move(c);
  s.opacity = opacity;
  return s;
}

struct StopRow {
  const char* label;
  std::vector<SVG::GradientStop> stops;
  std::vector<double> offsets;
};

class Stops : public testing::TestWithParam<StopRow> {};

TEST_P(Stops, TakeOffsetsOrTheRunningDefault) {
  SVG::LinearGradient gradient;
  gradient.stops = GetParam().stops;
  SVGSwiftUIFigurer figurer;
  const auto property = figurer.convert(gradient);
  std::vector<double> offsets;
  for (const auto& s : property.stops) offsets.push_back(s.offset);
  EXPECT_EQ(offsets, GetParam().offsets);
}

const auto none = std::nullopt;

INSTANTIATE_TEST_SUITE_P(
    Rows, Stops,
    testing::Values(
        StopRow{"noStops", {}, {}}, StopRow{"oneStop", {stop(none)}, {0.0}},
        StopRow{"threeWithoutOffsets", {stop(none), stop(none), stop(none)}, {0.0, 0.5, 1.0}},
        // The running default ignores the offsets that are given.
        StopRow{"fourWithFirstGiven",
                {stop(UL::percentage(10)), stop(none), stop(none), stop(none)},
                {0.1, 1.0 / 3, 1.0 / 3 + 1.0 / 3, 1.0 / 3 + 1.0 / 3 + 1.0 / 3}},
        StopRow{"numberKeptUnclamped", {stop(UL::number(2)), stop(UL::number(-1))}, {2.0, -1.0}},
        StopRow{
            "otherUnitTakesDefault", {stop(UL::number(0.2)), stop(UL::millimeter(5))}, {0.2, 1.0}},
        StopRow{"unsortedKept", {stop(UL::percentage(80)), stop(UL::percentage(20))}, {0.8, 0.2}}),
    [](const auto& info) { return std::string(info.param.label); });

TEST(Stops, ColourDefaultsToBlackAndOpacityIsCopied) {
  SVG::LinearGradient gradient;
  gradient.stops = {stop(none), stop(none, CSS::Color::rgb(1, 0, 0), 50)};
  SVGSwiftUIFigurer figurer;
  const auto property = figurer.convert(gradient);
  ASSERT_EQ(property.stops.size(), 2u);
  EXPECT_EQ(property.stops[0], (SwiftUIModel::GradientStop{CSS::Color::named("black"), none, 0}));
  EXPECT_EQ(property.stops[1], (SwiftUIModel::GradientStop{CSS::Color::rgb(1, 0, 0), 50, 1}));
}

struct LinearRow {
  const char* label;
  UL x1, y1, x2, y2;
  std::vector<SVG::Transform> transform;
  CGPoint start, end;
};

class LinearPoints : public testing::TestWithParam<LinearRow> {};

TEST_P(LinearPoints, AreUnitSquareFractions) {
  const auto& row = GetParam();
  SVG::LinearGradient gradient;
  gradient.x1 = row.x1;
  gradient.y1 = row.y1;
  gradient.x2 = row.x2;
  gradient.y2 = row.y2;
  gradient.gradientTransform = row.transform;
  SVGSwiftUIFigurer figurer;
  const auto property = figurer.convert(gradient);
  EXPECT_NEAR(property.startPoint.x, row.start.x, 1e-15);
  EXPECT_NEAR(property.startPoint.y, row.start.y, 1e-15);
  EXPECT_NEAR(property.endPoint.x, row.end.x, 1e-15);
  EXPECT_NEAR(property.endPoint.y, row.end.y, 1e-15);
  if (row.transform.empty()) {
    EXPECT_EQ(property.startPoint, row.start);
    EXPECT_EQ(property.endPoint, row.end);
  }
}

const SVG::Transform rotate90{SVG::Transform::Rotate{90, 0, 0}};

INSTANTIATE_TEST_SUITE_P(
    Rows, LinearPoints,
    testing::Values(LinearRow{"defaults",
                              UL::percentage(0),
                              UL::percentage(0),
                              UL::percentage(100),
                              UL::percentage(0),
                              {},
                              {0, 0},
                              {1, 0}},
                    LinearRow{"numbers",
                              UL::number(0),
                              UL::number(0),
                              UL::number(1),
                              UL::number(1),
                              {},
                              {0, 0},
                              {1, 1}},
                    // An empty transform list leaves fractions such as 0.1 exactly as they are.
                    LinearRow{"fractionsUntouched",
                              UL::number(0.1),
                              UL::number(0.7),
                              UL::number(0.3),
                              UL::number(0.9),
                              {},
                              {0.1, 0.7},
                              {0.3, 0.9}},
                    LinearRow{"pixelMakesPairValueless",
                              UL::number(0.5),
                              UL::number(0.5),
                              UL::pixel(20),
                              UL::number(1),
                              {},
                              {0.5, 0.5},
                              {0, 0}},
                    LinearRow{"rotatedAboutTheCentre",
                              UL::number(0),
                              UL::number(0),
                              UL::number(1),
                              UL::number(0),
                              {rotate90},
                              {1, 0},
                              {1, 1}},
                    LinearRow{"listOrder",
                              UL::number(0.5),
                              UL::number(0.5),
                              UL::number(1),
                              UL::number(0.5),
                              {SVG::Transform{SVG::Transform::Translate{0.5, 0}}, rotate90},
                              {0.5, 1},
                              {0.5, 1.5}}),
    [](const auto& info) { return std::string(info.param.label); });

TEST(RadialGradient, CentreIsMappedRadiiArePoints) {
  SVG::RadialGradient gradient;
  gradient.cx = UL::number(0.25);
  gradient.cy = UL::percentage(75);
  gradient.r = UL::number(3);
  gradient.fr = UL::inch(1);
  gradient.fx = UL::number(0.9);
  SVGSwiftUIFigurer figurer;
  const auto property = figurer.convert(gradient);
  EXPECT_EQ(property.propertyID, "radialGradient1");
  EXPECT_EQ(property.center, (CGPoint{0.25, 0.75}));
  EXPECT_EQ(property.endRadius, 3);
  EXPECT_EQ(property.startRadius, 72);
  SVG::RadialGradient defaults;
  const auto second = figurer.convert(defaults);
  EXPECT_EQ(second.center, (CGPoint{0.5, 0.5}));
  EXPECT_EQ(second.endRadius, 0);  // a percentage has no points
  EXPECT_EQ(second.propertyID, "radialGradient2");
}

// ---- Definitions, scopes and paints ----------------------------------------------------

SVG::NamedDefinition linear(std::string id) {
  SVG::LinearGradient gradient;
  gradient.core.id = id;
  return {id, SVG::Definition{gradient}};
}

TEST(Definitions, NamesAndQualifiedPaintReferences) {
  SVG::Circle c = circle(0, 0, 1);
  c.presentation.fill = reference("Paint-1");
  c.presentation.fillOpacity = 30;  // dropped with a definition fill
  c.presentation.stroke = reference("b");
  SVG svg = svgOf({item(c)});
  svg.definitions = {linear("Paint-1"), linear("b")};
  const auto result = SVGSwiftUIFigurer::makeModel(svg, "Icon", {});
  ASSERT_EQ(result.definitions.size(), 2u);
  EXPECT_EQ(result.definitions[0].name(), "paint_1");
  EXPECT_EQ(result.definitions[1].name(), "b");
  const auto& drawing = child<SwiftUIModel::CircleViewType>(result, 0).drawing;
  EXPECT_EQ(drawing.fill, Paint::property("Icon.paint_1"));
  EXPECT_EQ(drawing.stroke, Paint::property("Icon.b"));
}

TEST(Definitions, LaterDefinitionOfAnIdWinsInLookupsBothStay) {
  SVG::LinearGradient first, second;
  second.x1 = UL::number(0.5);
  SVG::Circle c = circle(0, 0, 1);
  c.presentation.fill = reference("g");
  SVG svg = svgOf({item(c)});
  svg.definitions = {{"g", SVG::Definition{first}}, {"g", SVG::Definition{second}}};
  const auto result = model(svg);
  ASSERT_EQ(result.definitions.size(), 2u);
  EXPECT_EQ(child<SwiftUIModel::CircleViewType>(result, 0).drawing.fill,
            Paint::property("Group1.linearGradient2"));
}

// A nested svg sees its parents' definitions; a sibling after it does not see the nested
// one's, and the nested one's own definition shadows the parent's.
TEST(Definitions, ScopesFollowNestedSVGs) {
  SVG::Circle usesOuter = circle(0, 0, 1);
  usesOuter.presentation.fill = reference("outer");
  SVG::Circle usesInner = circle(0, 0, 1);
  usesInner.presentation.fill = reference("inner");
  SVG::Circle usesShadowed = circle(0, 0, 1);
  usesShadowed.presentation.fill = reference("shared");
  SVG nested = svgOf({item(usesOuter), item(usesInner), item(usesShadowed)});
  nested.definitions = {linear("inner"), linear("shared")};
  SVG svg = svgOf({item(nested), item(usesInner), item(usesShadowed)});
  svg.definitions = {linear("outer"), linear("shared")};
  const auto result = model(svg);
  const auto& inner = child<ContainerViewType>(result, 0);
  EXPECT_EQ(inner.typeName, "Group2");
  EXPECT_EQ(child<SwiftUIModel::CircleViewType>(inner, 0).drawing.fill,
            Paint::property("Group1.outer"));
  EXPECT_EQ(child<SwiftUIModel::CircleViewType>(inner, 1).drawing.fill,
            Paint::property("Group2.inner"));
  EXPECT_EQ(child<SwiftUIModel::CircleViewType>(inner, 2).drawing.fill,
            Paint::property("Group2.linearGradient1"));
  EXPECT_EQ(child<SwiftUIModel::CircleViewType>(result, 1).drawing.fill, std::nullopt);
  EXPECT_EQ(child<SwiftUIModel::CircleViewType>(result, 2).drawing.fill,
            Paint::property("Group1.shared"));
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
