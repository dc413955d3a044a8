// Large inputs: a document of many paths, single attributes of many megabytes, long texts and
// long names. Each must convert in one linear pass per stage.
#include <string>

#include "HostileSupport.h"

namespace {

using Hostile::convert;
using Hostile::occurrences;

constexpr std::size_t megabyte = 1024 * 1024;

// Under a sanitizer every byte costs many times more; the smaller sizes still take every path
// through the code and still expose anything worse than linear.
constexpr std::size_t documentSize = Hostile::sanitized ? 5 * megabyte : 50 * megabyte;
constexpr std::size_t attributeSize = Hostile::sanitized ? 2 * megabyte : 10 * megabyte;

// Path data in the shape icon sets use: relative commands, decimals, a few curves.
std::string iconPathData(std::size_t index) {
  const std::string n = std::to_string(index % 97);
  return "M" + n +
         ".25 12.5l3.75-1.5c1.2 0 2.4.8 2.4 2.1v4.3h-6.15q-1.5 0-1.5-1.5s.5-1 1-1"
         "a2.5 2.5 0 0 1-2.5 2.5L" +
         n + " 3z";
}

TEST(Size, FiftyMegabytesOfPaths) {
  std::string text = "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 100 100\">";
  text.reserve(documentSize + 256);
  std::size_t paths = 0;
  while (text.size() < documentSize) {
    text += "<g fill=\"#336699\" stroke=\"red\"><path d=\"" + iconPathData(paths) +
            "\"/><path d=\"" + iconPathData(paths + 1) + "\" opacity=\".5\"/></g>\n";
    paths += 2;
  }
  text += "</svg>";
  const auto outcome = convert(text);
  ASSERT_NO_FATAL_FAILURE(Hostile::expectCompleteFile(outcome));
  EXPECT_TRUE(outcome.lines.empty()) << outcome.lines.front();
  EXPECT_EQ(occurrences(outcome.swift, "path.closeSubpath()"), paths);
}

// One `d` of many megabytes, in the forms that build the longest command lists.
struct LongPathCase {
  const char* name;
  const char* start;
  const char* repeated;
  const char* end;
  const char* call;  // the drawing call each repetition adds
  std::size_t callsPerRepetition;
  bool parses;
};

class LongPathData : public testing::TestWithParam<LongPathCase> {};

TEST_P(LongPathData, ParsesInOnePass) {
  const auto& row = GetParam();
  std::string d = row.start;
  std::size_t repetitions = 0;
  for (d.reserve(attributeSize + 64); d.size() < attributeSize; ++repetitions) d += row.repeated;
  d += row.end;
  const auto outcome = convert(Hostile::document("<path d=\"" + d + "\"/><circle r=\"1\"/>"));
  ASSERT_NO_FATAL_FAILURE(Hostile::expectCompleteFile(outcome));
  if (row.parses) {
    EXPECT_TRUE(outcome.lines.empty());
    EXPECT_GE(occurrences(outcome.swift, row.call), repetitions * row.callsPerRepetition);
  } else {
    ASSERT_EQ(outcome.lines.size(), 1u);
    EXPECT_TRUE(outcome.lines.front().starts_with("could not parse path:"));
    EXPECT_EQ(occurrences(outcome.swift, "path."), 0u);
  }
  EXPECT_EQ(occurrences(outcome.swift, "Circle()"), 1u);
}

const LongPathCase longPathCases[] = {
    // Every line after the move folds into one addLines of millions of points.
    {"foldedLines", "M0 0", "L1.5 2.25", "", ".init(x: 1.5, y: 2.25)", 1, true},
    {"implicitRelativeLines", "m0 0", " 1,1", "z", ".init(x:", 1, true},
    {"curves", "M0 0", "c1 2 3 4 5 6", "", "path.addCurve", 1, true},
    {"arcs", "M0 0", "a1 2 30 1 0 3 4", "", "path.addRelativeArc", 1, true},
    {"closedSubpaths", "", "M1 1h2v2z", "", "path.closeSubpath()", 1, true},
    // The fault comes at the very last byte, after everything was collected.
    {"failsAtTheEnd", "M0 0", "L1 2", "X", "", 0, false},
    {"oneNumberOfManyDigits", "M", "1234567890", " 0", "path.move", 0, true},
};

INSTANTIATE_TEST_SUITE_P(Hostile, LongPathData, testing::ValuesIn(longPathCases),
                         [](const auto& info) { return std::string(info.param.name); });

// Other attributes and texts of many megabytes: the reader keeps them, the converter makes
// names and string literals from them. Each is `copies` times the unit repeated to the size
// over `share`, between `before` and `after`.
struct LongValueCase {
  const char* name;
  std::string before;
  const char* unit;
  std::size_t share;
  const char* after;
  const char* reported;  // a fragment of one report line, or empty for none
  int copies = 1;
};

class LongValue : public testing::TestWithParam<LongValueCase> {};

TEST_P(LongValue, Converts) {
  const auto& row = GetParam();
  std::string value;
  while (value.size() < attributeSize / row.share) value += row.unit;
  std::string body;
  for (int i = 0; i < row.copies; ++i) body += row.before + value + row.after;
  const auto outcome = convert(Hostile::document(body));
  ASSERT_NO_FATAL_FAILURE(Hostile::expectCompleteFile(outcome));
  if (*row.reported == 0) {
    EXPECT_TRUE(outcome.lines.empty()) << outcome.allLines();
  } else {
    EXPECT_TRUE(outcome.reported(row.reported)) << outcome.allLines();
  }
}

const LongValueCase longValueCases[] = {
    {"text", "<text>", "a", 1, "</text>", ""},
    {"textOfEscapes", "<text>", "&quot;\\\n", 1, "</text>", ""},
    {"id", "<rect width=\"1\" id=\"", "a", 1, "\"/>", ""},
    {"idsThatCollide", "<circle r=\"1\" id=\"", "a", 10, "\"/>", "", 10},
    {"classAttribute", "<rect width=\"1\" class=\"", "a", 1, "\"/>", ""},
    {"styleAttribute", "<rect width=\"1\" style=\"fill:", "a", 1, "\"/>", ""},
    {"unknownNumber", "<rect width=\"1", "a", 1, "\"/>", "ERROR: unsupported CSS unit:"},
    {"unknownElement", "<" + std::string(1000, 'a') + " x=\"", "a", 1, "\"/>", "OTHER:"},
    {"pointsList", "<polyline stroke=\"red\" points=\"", "1,2 3.5,4 ", 1, "\"/>", ""},
    {"transformList", "<rect width=\"1\" height=\"1\" transform=\"", "translate(1 2) ", 4, "\"/>",
     ""},
    {"viewBox", "<svg viewBox=\"", "1 ", 1, "\"><circle r=\"1\"/></svg>",
     "Unexpected CGRect value:"},
};

INSTANTIATE_TEST_SUITE_P(Hostile, LongValue, testing::ValuesIn(longValueCases),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
