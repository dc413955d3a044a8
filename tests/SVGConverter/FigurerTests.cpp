// What the generated text cannot show: the id record the editor selects by, the limits on
// nesting and filter graphs, and how definitions and filter groups are shared. Everything else
// the conversion decides is pinned by the golden model_* cases.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "SVGConverter/ModelDescription.h"
#include "SVGConverter/SVGSwiftUIFigurer.h"

namespace {

using SwiftUIModel::ContainerViewType;
using SwiftUIModel::Paint;
using Group = SwiftUIModel::FilterModifierType::FilterGroup;
using ModelPrimitive = SwiftUIModel::FilterModifierType::Primitive;
using P = SVG::Filter::Primitive;
using In = SVG::Filter::Input;

template <class T>
SVG::GroupItem item(T element) {
  return SVG::GroupItem{std::move(element)};
}

SVG::Circle circle(std::optional<std::string> id = std::nullopt) {
  SVG::Circle c;
  c.core.id = std::move(id);
  c.r = CSS::UnitLength::number(1);
  return c;
}

template <class Container>
Container containerOf(std::vector<SVG::GroupItem> children) {
  Container container;
  container.children = std::move(children);
  return container;
}

struct Collected {
  std::vector<std::string> lines;
  SVGParser::Report report() {
    return SVGParser::Report([this](std::string_view line) { lines.emplace_back(line); });
  }
};

template <class T>
const T& child(const ContainerViewType& container, std::size_t index) {
  return std::get<T>(container.childTypes.at(index).value);
}

TEST(Containers, IdsAreRecordedWithTheirViewNames) {
  SVGSwiftUIFigurer figurer;
  figurer.pushAttributes(SVGSwiftUIFigurer::defaultAttributes());
  SVG::Text text;
  text.core.id = "t";
  const auto svg = containerOf<SVG>({item(circle("c")), item(circle("c")), item(text)});
  figurer.convert(svg, "");
  ASSERT_EQ(figurer.svgID2Node.size(), 2u);
  EXPECT_EQ(figurer.svgID2Node.at("c").typeName, "Circle1");
  EXPECT_EQ(figurer.svgID2Node.at("c").node, &svg.children[1]);
  EXPECT_EQ(figurer.svgID2Node.at("t").typeName, "");
}

// Deep documents are cut at a fixed depth with one report, so nothing that walks the model
// afterwards can run out of stack.
TEST(Containers, NestingBeyondTheLimitIsDroppedWithAReport) {
  auto deepest = containerOf<SVG::Group>({item(circle())});
  for (int i = 0; i < 400; ++i) deepest = containerOf<SVG::Group>({item(std::move(deepest))});
  Collected collected;
  const auto result = SVGSwiftUIFigurer::makeModel(containerOf<SVG>({item(std::move(deepest))}), "",
                                                   collected.report());
  std::size_t depth = 1;
  const ContainerViewType* level = &result;
  while (!level->childTypes.empty()) {
    level = &child<ContainerViewType>(*level, 0);
    ++depth;
  }
  EXPECT_EQ(depth, SVGSwiftUIFigurer::maximumNesting);
  ASSERT_EQ(collected.lines.size(), 1u);
  EXPECT_NE(collected.lines[0].find("dropping: g"), std::string::npos) << collected.lines[0];
}

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
  SVG::Circle usesFirst = circle(), usesLast = circle();
  usesFirst.presentation.fill = SVG::Paint::makeDefinition("g0");
  usesLast.presentation.fill = SVG::Paint::makeDefinition("g" + std::to_string(count - 1));
  auto middle = containerOf<SVG>({item(containerOf<SVG>({item(usesFirst), item(usesLast)}))});
  middle.definitions = {linear("g0")};
  SVG svg;
  for (int i = 0; i < count; ++i) svg.definitions.push_back(linear("g" + std::to_string(i)));
  svg.children.push_back(item(middle));
  for (int i = 0; i < count; ++i) svg.children.push_back(item(containerOf<SVG>({item(usesFirst)})));
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

const In previous{In::Kind::previous, {}};
const In sourceGraphic{In::Kind::sourceGraphic, {}};

P offset(double dx) {
  return P{P::Offset{{}, previous, dx, 0}};
}
P blend(In in2) {
  return P{P::Blend{{}, previous, std::move(in2), P::Blend::Mode::multiply}};
}
ModelPrimitive mBlur(double radius) {
  return {std::nullopt, std::nullopt, ModelPrimitive::Blur{radius}};
}
ModelPrimitive mOffset(double dx, double dy) {
  return {std::nullopt, std::nullopt, ModelPrimitive::Offset{{dx, dy}}};
}

const Group source = Group::source();

// Past the depth limit primitives are dropped with a report.
TEST(FilterGraphs, DeepGraphsStayBounded) {
  std::vector<P> primitives;
  for (int i = 0; i < 1000; ++i) primitives.push_back(blend(sourceGraphic));
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
  for (int i = 0; i < 200; ++i) primitives.push_back(blend(previous));
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
  std::vector<P> primitives(count, offset(1));
  primitives.push_back(P{P::Merge{{}, {previous, previous}}});
  primitives.push_back(offset(2));
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

}  // namespace
