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

}  // namespace
