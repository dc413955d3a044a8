// Deep nesting: no stage may recurse as deep as the input goes.
#include <string>

#include "HostileSupport.h"

namespace {

using Hostile::convert;

std::string nested(std::string_view open, std::string_view close, std::size_t depth,
                   std::string_view core) {
  std::string text;
  text.reserve(depth * (open.size() + close.size()) + core.size() + 64);
  text += "<svg xmlns=\"http://www.w3.org/2000/svg\">";
  for (std::size_t i = 0; i < depth; ++i) text += open;
  text += core;
  for (std::size_t i = 0; i < depth; ++i) text += close;
  text += "</svg>";
  return text;
}

struct NestingCase {
  const char* name;
  const char* open;
  const char* close;
  std::size_t depth;
  bool converts;
  const char* report;  // a fragment of one expected report line
};

class Nesting : public testing::TestWithParam<NestingCase> {};

TEST_P(Nesting, EndsCleanly) {
  const auto& row = GetParam();
  const auto outcome = convert(nested(row.open, row.close, row.depth, "<circle r=\"1\"/>"));
  EXPECT_EQ(outcome.converted(), row.converts) << outcome.allLines();
  EXPECT_TRUE(outcome.reported(row.report)) << outcome.allLines();
  if (row.converts) Hostile::expectCompleteFile(outcome);
}

// The reader refuses what is deeper than its limit; within it, the converter drops the
// containers beyond its own, smaller limit and says so.
const NestingCase nestingCases[] = {
    {"hundredThousandGroups", "<g>", "</g>", 100'000, false, "nested deeper than 1000 levels"},
    {"hundredThousandSVGs", "<svg>", "</svg>", 100'000, false, "nested deeper than 1000 levels"},
    {"hundredThousandTexts", "<text>", "</text>", 100'000, false, "nested deeper than 1000"},
    {"hundredThousandUnknown", "<a>", "</a>", 100'000, false, "nested deeper than 1000 levels"},
    {"groupsAtReaderLimit", "<g>", "</g>", 998, true, "Containers nested deeper than 256"},
    {"svgsAtReaderLimit", "<svg>", "</svg>", 998, true, "Containers nested deeper than 256"},
};

INSTANTIATE_TEST_SUITE_P(Hostile, Nesting, testing::ValuesIn(nestingCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(Nesting, ConverterKeepsContainersUpToItsLimit) {
  const auto outcome = convert(nested("<g>", "</g>", 300, "<circle r=\"1\"/>"));
  ASSERT_TRUE(outcome.converted());
  const auto model = outcome.model();
  // The root counts as the first level.
  std::size_t depth = 0;
  const SwiftUIModel::ContainerViewType* container = &model;
  while (!container->childTypes.empty() &&
         container->childTypes.front().kind == SwiftUIModel::Subview::Kind::group) {
    container = &std::get<SwiftUIModel::ContainerViewType>(container->childTypes.front().value);
    ++depth;
  }
  EXPECT_EQ(depth, SVGSwiftUIFigurer::maximumNesting - 1);
  EXPECT_TRUE(container->childTypes.empty());
}

// Expat reports the depth limit from inside its callback; the second pass over a wrapped
// fragment must honour the same limit and not run away with the extra level.
TEST(Nesting, DeepFragmentWithoutRootIsRefused) {
  std::string text;
  for (int i = 0; i < 100'000; ++i) text += "<g>";
  for (int i = 0; i < 100'000; ++i) text += "</g>";
  const auto outcome = convert(text);
  EXPECT_FALSE(outcome.converted());
  EXPECT_TRUE(outcome.reported("nested deeper than 1000 levels")) << outcome.allLines();
}

}  // namespace
