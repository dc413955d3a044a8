#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ConverterTestSupport.h"

using namespace ConverterTest;
using SwiftUIModel::ContainerViewType;
using SwiftUIModel::FilterModifierType;
using Group = FilterModifierType::FilterGroup;
using ModelPrimitive = FilterModifierType::Primitive;
using P = SVG::Filter::Primitive;
using In = SVG::Filter::Input;

namespace {

In input(In::Kind kind) {
  return In{kind, {}};
}
const In previous = input(In::Kind::previous);
const In sourceGraphic = input(In::Kind::sourceGraphic);

P::Attributes named(std::optional<std::string> result) {
  P::Attributes attributes;
  attributes.result = std::move(result);
  return attributes;
}

P blur(double deviation, In in = previous, std::optional<std::string> result = std::nullopt) {
  return P{P::Blur{named(std::move(result)), std::move(in), deviation}};
}
P offset(double dx, double dy, In in = previous) {
  return P{P::Offset{{}, std::move(in), dx, dy}};
}
P merge(std::vector<In> inputs, std::optional<std::string> result = std::nullopt) {
  return P{P::Merge{named(std::move(result)), std::move(inputs)}};
}
P blend(In in, In in2, std::optional<std::string> result = std::nullopt) {
  return P{
      P::Blend{named(std::move(result)), std::move(in), std::move(in2), P::Blend::Mode::multiply}};
}
P unmodelled(P::Unmodelled::Kind kind) {
  return P{P::Unmodelled{kind}};
}

ModelPrimitive mBlur(double radius) {
  return {std::nullopt, std::nullopt, ModelPrimitive::Blur{radius}};
}
ModelPrimitive mOffset(double dx, double dy) {
  return {std::nullopt, std::nullopt, ModelPrimitive::Offset{{dx, dy}}};
}

struct GraphRow {
  const char* label;
  std::vector<P> primitives;
  std::optional<Group> expected;
  std::vector<std::string> reports;
};

class FilterGraphs : public testing::TestWithParam<GraphRow> {};

TEST_P(FilterGraphs, BecomeGroupTrees) {
  Collected collected;
  SVGSwiftUIFigurer figurer(collected.report());
  const auto group = figurer.convertFilterGroup(GetParam().primitives);
  EXPECT_EQ(group, GetParam().expected)
      << (group ? SVGConverter::describe(*group) : std::string("nothing"));
  EXPECT_EQ(collected.lines, GetParam().reports);
}

const Group source = Group::source();
const Group fresh = Group::primitive(source, {});

INSTANTIATE_TEST_SUITE_P(
    Rows, FilterGraphs,
    testing::Values(
        GraphRow{"noPrimitivesGiveTheFreshGroup", {}, fresh, {}},
        GraphRow{"unnamedChainCollects",
                 {blur(2, sourceGraphic), offset(1, 2)},
                 Group::primitive(source, {mBlur(2), mOffset(1, 2)}),
                 {}},
        GraphRow{"sourceAlpha",
                 {blur(2, input(In::Kind::sourceAlpha))},
                 Group::primitive(Group::sourceAlpha(), {mBlur(2)}),
                 {}},
        GraphRow{"namedResultMerged",
                 {blur(2, previous, "b"), merge({In::named("b"), sourceGraphic})},
                 Group::merge({Group::primitive(source, {mBlur(2)}), source}),
                 {}},
        GraphRow{"missingMergeNode",
                 {merge({In::named("x"), sourceGraphic})},
                 Group::merge({source}),
                 {"ERROR: Missing filter merge node: x"}},
        GraphRow{"mergeOfNothingIsEmpty",
                 {merge({In::named("x")})},
                 std::nullopt,
                 {"ERROR: Missing filter merge node: x"}},
        GraphRow{"previousAtStartIsTheFreshGroup",
                 {merge({previous, sourceGraphic})},
                 Group::merge({fresh, source}),
                 {}},
        GraphRow{"emptyInputsAreSkippedInMerges",
                 {merge({}, "e"), merge({In::named("e"), sourceGraphic})},
                 Group::merge({source}),
                 {}},
        GraphRow{"blendWithoutSecondInputUsesTheFirstTwice",
                 {blend(input(In::Kind::sourceAlpha), In::named("nope"))},
                 Group::blend(Group::sourceAlpha(), Group::sourceAlpha(), P::Blend::Mode::multiply),
                 {"ERROR: Missing filter merge node: nope"}},
        GraphRow{
            "blurAfterBlendWrapsIt",
            {blend(sourceGraphic, sourceGraphic), blur(3)},
            Group::primitive(Group::blend(source, source, P::Blend::Mode::multiply), {mBlur(3)}),
            {}},
        GraphRow{"unsupportedInputFallsBackToSource",
                 {blur(1, input(In::Kind::backgroundImage))},
                 Group::primitive(source, {mBlur(1)}),
                 {"WARN: Unsupported merge input: BackgroundImage"}},
        GraphRow{"unsupportedPrimitiveIsPassedOver",
                 {blur(1, sourceGraphic), unmodelled(P::Unmodelled::Kind::flood)},
                 Group::primitive(source, {mBlur(1)}),
                 {"WARN: Unsupported filter primitive: flood"}},
        GraphRow{"unsupportedPrimitiveWrapsABlend",
                 {blend(sourceGraphic, sourceGraphic), unmodelled(P::Unmodelled::Kind::tile)},
                 Group::primitive(Group::blend(source, source, P::Blend::Mode::multiply), {}),
                 {"WARN: Unsupported filter primitive: tile"}},
        // A name cuts the chain: the next unnamed primitive starts again on the source.
        GraphRow{"chainRestartsAfterANamedResult",
                 {blur(1, previous, "a"), blur(2)},
                 Group::primitive(source, {mBlur(2)}),
                 {}},
        GraphRow{"explicitInputDropsTheChainBefore",
                 {blur(1), blur(2, sourceGraphic)},
                 Group::primitive(source, {mBlur(2)}),
                 {}},
        // The chain grows on a group of its own; the named result it starts from keeps its
        // single effect.
        GraphRow{"chainOnANamedResultLeavesTheResultAlone",
                 {blur(1, previous, "a"), offset(1, 1, In::named("a")), offset(2, 2),
                  merge({In::named("a"), previous})},
                 Group::merge({Group::primitive(source, {mBlur(1)}),
                               Group::primitive(Group::primitive(source, {mBlur(1)}),
                                                {mOffset(1, 1), mOffset(2, 2)})}),
                 {}}),
    [](const auto& info) { return std::string(info.param.label); });

TEST(FilterGraphs, PrimitiveFramesAndShadowDefaults) {
  P::Attributes framedAttributes;
  framedAttributes.x = 0;
  framedAttributes.width = 10;
  framedAttributes.height = 20;
  P::Attributes offsetAttributes;
  offsetAttributes.y = 3;
  offsetAttributes.width = 10;
  P::DropShadow plain;
  plain.attributes = framedAttributes;
  plain.opacity = 0.33;
  P::DropShadow coloured;
  coloured.attributes = offsetAttributes;
  coloured.input = previous;
  coloured.color = CSS::Color::named("red");
  coloured.dx = 1;
  coloured.standardDeviation = 4;
  plain.input = sourceGraphic;
  SVGSwiftUIFigurer figurer;
  const auto group = figurer.convertFilterGroup({P{plain}, P{coloured}});
  ASSERT_TRUE(group);
  ASSERT_EQ(group->primitives().size(), 2u) << SVGConverter::describe(*group);
  const auto& first = group->primitives()[0];
  EXPECT_EQ(first.intrinsicSize, (CGSize{10, 20}));
  EXPECT_EQ(first.origin, std::nullopt);
  EXPECT_EQ(first.operation, ModelPrimitive::Operation(ModelPrimitive::Shadow{
                                 std::nullopt, std::nullopt, 2, std::nullopt}));
  const auto& second = group->primitives()[1];
  EXPECT_EQ(second.intrinsicSize, std::nullopt);
  EXPECT_EQ(second.origin, (CGPoint{0, 3}));
  EXPECT_EQ(second.operation, ModelPrimitive::Operation(ModelPrimitive::Shadow{
                                  CSS::Color::named("red"), 1.0, 4, CGPoint{1, 0}}));
}

// Past the depth limit primitives are dropped with a report.
TEST(FilterGraphs, DeepGraphsStayBounded) {
  std::vector<P> primitives;
  for (int i = 0; i < 1000; ++i) primitives.push_back(blend(previous, sourceGraphic));
  Collected collected;
  SVGSwiftUIFigurer figurer(collected.report());
  const auto group = figurer.convertFilterGroup(primitives);
  ASSERT_TRUE(group);
  EXPECT_EQ(group->depth(), SVGSwiftUIFigurer::maximumFilterDepth);
  // Blend k is k + 2 levels deep over the fresh group, so the first 254 fit.
  ASSERT_EQ(collected.lines.size(), 1000 - SVGSwiftUIFigurer::maximumFilterDepth + 2);
  EXPECT_EQ(collected.lines[0].rfind("WARN: filter graph too deep, dropping primitive:", 0), 0u);
}

// Reusing a result many times shares the group instead of copying it, so the model stays small
// however large its written-out form.
TEST(FilterGraphs, ReusedResultsAreShared) {
  std::vector<P> primitives;
  for (int i = 0; i < 200; ++i) primitives.push_back(blend(previous, previous));
  SVGSwiftUIFigurer figurer;
  const auto group = figurer.convertFilterGroup(primitives);
  ASSERT_TRUE(group);
  EXPECT_EQ(group->depth(), 202u);
  EXPECT_EQ(*group, *group);
  EXPECT_LT(SVGConverter::describe(*group).size(), 100000u);
}

// Growing in place must never show through another copy of the group.
TEST(FilterGraphs, AppendingLeavesOtherCopiesAlone) {
  const Group shared = Group::primitive(source, {mBlur(1)});
  auto copy = shared;
  const auto grown = Group::appending(std::move(copy), mOffset(1, 0));
  EXPECT_EQ(shared, Group::primitive(source, {mBlur(1)}));
  EXPECT_EQ(grown, Group::primitive(source, {mBlur(1), mOffset(1, 0)}));
  EXPECT_EQ(Group::appending(Group::merge({}), mBlur(2)),
            Group::primitive(Group::merge({}), {mBlur(2)}));
  EXPECT_FALSE(Group::appending(Group::primitive(Group::merge({}), {}), mBlur(2)).isEmpty());
}

// Long unnamed chains collect in one group in linear time; rebuilding the group for every
// effect made a filter of this size take minutes.
TEST(FilterGraphs, LongChainsCollectInOneGroup) {
  const std::size_t count = 30000;
  std::vector<P> primitives(count, offset(1, 0));
  primitives.push_back(merge({previous, previous}));
  primitives.push_back(offset(2, 0));
  Collected collected;
  SVGSwiftUIFigurer figurer(collected.report());
  const auto group = figurer.convertFilterGroup(primitives);
  ASSERT_TRUE(group);
  ASSERT_EQ(group->kind(), Group::Kind::primitive);
  EXPECT_EQ(group->primitives().size(), 1u);
  const auto& chain = group->input().inputs();
  ASSERT_EQ(chain.size(), 2u);
  EXPECT_EQ(chain[0].primitives().size(), count);
  EXPECT_EQ(chain[0], chain[1]);
  EXPECT_TRUE(collected.lines.empty());
}

// ---- Filter conversion and lookup ------------------------------------------------------

TEST(Filters, ConvertWithNameAndRegion) {
  SVG::Filter filter;
  filter.core.id = "soft-shadow";
  filter.x = UL::number(-5);
  filter.width = UL::number(20);
  filter.height = UL::percentage(120);
  SVGSwiftUIFigurer figurer;
  const auto modifier = figurer.convert(filter);
  EXPECT_EQ(modifier.typeName, "Soft_shadow");
  EXPECT_EQ(modifier.origin, (CGPoint{-5, 0}));
  EXPECT_EQ(modifier.intrinsicSize, std::nullopt);
  EXPECT_EQ(modifier.filterGroup, fresh);
  SVG::Filter onlyUnknown;
  onlyUnknown.primitives = {merge({In::named("x")})};
  EXPECT_EQ(figurer.convert(onlyUnknown).filterGroup, source);
  EXPECT_EQ(figurer.convert(onlyUnknown).typeName, "Filter2");
}

SVG::NamedDefinition filterDefinition(std::string id) {
  SVG::Filter filter;
  filter.core.id = id;
  filter.primitives = {blur(2)};
  return {id, SVG::Definition{filter}};
}

TEST(Filters, LookupByReference) {
  SVG::Circle withHash = circle(0, 0, 1);
  withHash.presentation.filter = SVG::Inheritable<std::string>::some("#f");
  SVG::Circle withoutHash = circle(0, 0, 1);
  withoutHash.presentation.filter = SVG::Inheritable<std::string>::some("f");
  SVG::Circle gradientName = circle(0, 0, 1);
  gradientName.presentation.filter = SVG::Inheritable<std::string>::some("#g");
  SVG::Circle unknown = circle(0, 0, 1);
  unknown.presentation.filter = SVG::Inheritable<std::string>::some("#nope");
  SVG::Group group = groupOf({item(circle(0, 0, 1))});
  group.presentation.filter = SVG::Inheritable<std::string>::some("#f");

  SVG::LinearGradient gradient;
  SVG svg =
      svgOf({item(withHash), item(withoutHash), item(gradientName), item(unknown), item(group)});
  svg.definitions = {filterDefinition("f"), {"g", SVG::Definition{gradient}}};
  Collected collected;
  const auto result = model(svg, &collected);
  EXPECT_TRUE(collected.lines.empty());
  const auto filterOf = [&](std::size_t i) {
    return child<SwiftUIModel::CircleViewType>(result, i).drawing.filterModifier;
  };
  ASSERT_TRUE(filterOf(0));
  EXPECT_EQ(filterOf(0)->typeName, "F");
  EXPECT_EQ(filterOf(0)->filterGroup, Group::primitive(source, {mBlur(2)}));
  EXPECT_TRUE(filterOf(1));
  EXPECT_FALSE(filterOf(2));
  EXPECT_FALSE(filterOf(3));
  const auto& g = child<ContainerViewType>(result, 4);
  ASSERT_TRUE(g.filterModifier);
  EXPECT_EQ(g.filterModifier->typeName, "F");
  EXPECT_FALSE(child<SwiftUIModel::CircleViewType>(g, 0).drawing.filterModifier);
}

// The filter of an `svg` element is looked up after its own scope is closed.
TEST(Filters, SVGFilterSeesTheEnclosingScopeOnly) {
  SVG nested;
  nested.definitions = {filterDefinition("own")};
  nested.presentation.filter = SVG::Inheritable<std::string>::some("#own");
  SVG nestedUsingOuter;
  nestedUsingOuter.presentation.filter = SVG::Inheritable<std::string>::some("#outer");
  SVG svg = svgOf({item(nested), item(nestedUsingOuter)});
  svg.definitions = {filterDefinition("outer")};
  const auto result = model(svg);
  EXPECT_FALSE(child<ContainerViewType>(result, 0).filterModifier);
  ASSERT_TRUE(child<ContainerViewType>(result, 1).filterModifier);
  EXPECT_EQ(child<ContainerViewType>(result, 1).filterModifier->typeName, "Outer");
}

}  // namespace
