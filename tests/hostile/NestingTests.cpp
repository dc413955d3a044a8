// Deep nesting: no stage may recurse as deep as the input goes.
#include <string>

#include "HostileSupport.h"

namespace {

struct NestingCase {
  const char* name;
  const char* open;
  const char* close;
  std::size_t depth;
  bool converts;
  const char* report;  // a fragment of one expected report line
  bool root = true;    // inside an `svg` element, or a fragment
};

class Nesting : public testing::TestWithParam<NestingCase> {};

TEST_P(Nesting, EndsCleanly) {
  const auto& row = GetParam();
  std::string text = row.root ? "<svg xmlns=\"http://www.w3.org/2000/svg\">" : "";
  for (std::size_t i = 0; i < row.depth; ++i) text += row.open;
  text += "<circle r=\"1\"/>";
  for (std::size_t i = 0; i < row.depth; ++i) text += row.close;
  if (row.root) text += "</svg>";
  const auto outcome = Hostile::convert(text);
  EXPECT_EQ(outcome.converted(), row.converts) << outcome.allLines();
  EXPECT_TRUE(outcome.reported(row.report)) << outcome.allLines();
  if (row.converts) Hostile::expectCompleteFile(outcome);
}

// The reader refuses what is deeper than its limit; within it, the converter drops the
// containers beyond its own, smaller limit and says so. Expat reports the limit from inside
// its callback; the second pass over a wrapped fragment must honour the same limit and not run
// away with the extra level.
const NestingCase nestingCases[] = {
    {"hundredThousandGroups", "<g>", "</g>", 100'000, false, "nested deeper than 1000 levels"},
    {"hundredThousandSVGs", "<svg>", "</svg>", 100'000, false, "nested deeper than 1000 levels"},
    {"hundredThousandTexts", "<text>", "</text>", 100'000, false, "nested deeper than 1000"},
    {"hundredThousandUnknown", "<a>", "</a>", 100'000, false, "nested deeper than 1000 levels"},
    {"hundredThousandGroupsWithoutRoot", "<g>", "</g>", 100'000, false,
     "nested deeper than 1000 levels", false},
    {"groupsAtReaderLimit", "<g>", "</g>", 998, true, "Containers nested deeper than 256"},
    {"svgsAtReaderLimit", "<svg>", "</svg>", 998, true, "Containers nested deeper than 256"},
};

INSTANTIATE_TEST_SUITE_P(Hostile, Nesting, testing::ValuesIn(nestingCases),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
