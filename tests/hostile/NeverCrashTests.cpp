// Inputs whose natural handling would stop the process: too few colour arguments, colour
// channels without an integer form, and paths that start with two straight segments.
#include <string>
#include <vector>

#include "HostileSupport.h"

namespace {

using Hostile::convert;
using Lines = std::vector<std::string>;

struct ColorCase {
  const char* name;
  const char* attributes;  // on a unit rect
  Lines report;            // exactly these lines, in order
  const char* fill;        // the fill modifier the generated text must hold
};

class ColorForm : public testing::TestWithParam<ColorCase> {};

TEST_P(ColorForm, GivesTheDocumentedColourOrNone) {
  const auto& row = GetParam();
  SVGSwiftUIExporter::Config config;
  config.exportHexColorExtension = true;
  const auto outcome = convert(
      Hostile::document("<rect width=\"1\" height=\"1\" " + std::string(row.attributes) + "/>"), {},
      config);
  ASSERT_NO_FATAL_FAILURE(Hostile::expectCompleteFile(outcome));
  EXPECT_EQ(outcome.lines, row.report);
  EXPECT_NE(outcome.swift.find(row.fill), std::string::npos) << outcome.swift;
}

// With no colour the rect keeps the default black fill.
const ColorCase colorCases[] = {
    {"rgbWithoutArguments",
     "fill=\"rgb()\"",
     {"ERROR: failed to parse color: rgb()", "ERROR: Failed to parse paint: 'rgb()'"},
     ".fill(Color.black)"},
    {"rgbWithTwoArguments",
     "fill=\"rgb(1, 2)\"",
     {"ERROR: failed to parse color: rgb(1, 2)", "ERROR: Failed to parse paint: 'rgb(1, 2)'"},
     ".fill(Color.black)"},
    {"rgbaWithThreeArguments",
     "fill=\"RGBA(255,0,0)\"",
     {"ERROR: failed to parse color: rgba(255,0,0)",
      "ERROR: Failed to parse paint: 'RGBA(255,0,0)'"},
     ".fill(Color.black)"},
    {"rgbaWithOnlyCommas",
     "fill=\"rgba(,,,,)\"",
     {"ERROR: failed to parse color: rgba(,,,,)", "ERROR: Failed to parse paint: 'rgba(,,,,)'"},
     ".fill(Color.black)"},
    // The stylesheet form has no message for too few arguments: it simply has no colour.
    {"styledRGBWithTwoArguments", "style=\"fill: rgb(1, 2)\"", {}, ".fill(Color.black)"},
    {"styledRGBAWithThreeArguments", "style=\"fill: rgba(1, 2, 3)\"", {}, ".fill(Color.black)"},
    // Components beyond every integer type fail to read: no colour, only the paint message.
    {"rgbBeyondInt64",
     "fill=\"rgb(99999999999999999999999,0,0)\"",
     {"ERROR: Failed to parse paint: 'rgb(99999999999999999999999,0,0)'"},
     ".fill(Color.black)"},
    {"rgbaAlphaBeyondInt64",
     "fill=\"rgba(0,0,255,99999999999999999999999)\"",
     {},
     "fill(Color(0x0000FF))"},
    // Components that read but give no 24-bit value: the colour is written by its channels.
    {"rgbAbove32Bits",
     "fill=\"rgb(99999999999,0,0)\"",
     {},
     "Color(red: 392156862.7412, green: 0, blue: 0)"},
    {"rgbNegative", "fill=\"rgb(-300,0,0)\"", {}, "red: -1.1765, green: 0, blue: 0"},
    {"rgbJustAbove24Bits", "fill=\"rgb(256,0,0)\"", {}, "red: 1.0039, green: 0, blue: 0"},
    {"rgbLargestFitting", "fill=\"rgb(255,255,254)\"", {}, "fill(Color(0xFFFFFE))"},
    {"rgbaHugeAlpha",
     "fill=\"rgba(1,2,3,9223372036854775807)\"",
     {},
     "Color(0x010203, opacity: 3617008641903834"},
};

INSTANTIATE_TEST_SUITE_P(Hostile, ColorForm, testing::ValuesIn(colorCases),
                         [](const auto& info) { return std::string(info.param.name); });

struct PathCase {
  const char* name;
  const char* d;
  Lines commands;  // the generated drawing calls, in order
};

class StraightStart : public testing::TestWithParam<PathCase> {};

TEST_P(StraightStart, IsWrittenUnfolded) {
  const auto& row = GetParam();
  const auto outcome = convert(Hostile::document("<path d=\"" + std::string(row.d) + "\"/>"));
  ASSERT_NO_FATAL_FAILURE(Hostile::expectCompleteFile(outcome));
  EXPECT_TRUE(outcome.lines.empty()) << outcome.allLines();
  Lines calls;
  std::size_t at = 0;
  while ((at = outcome.swift.find("path.", at)) != std::string::npos) {
    const auto end = outcome.swift.find('(', at);
    calls.push_back(outcome.swift.substr(at + 5, end - at - 5));
    at = end;
  }
  EXPECT_EQ(calls, row.commands) << outcome.swift;
}

const PathCase pathCases[] = {
    {"twoLines", "L1 1 L2 2", {"addLine", "addLine"}},
    {"threeLines", "L1 1 2 2 3 3", {"addLine", "addLine", "addLine"}},
    {"horizontalThenVertical", "H5 V5 h1", {"addLine", "addLine", "addLine"}},
    {"relativeLines", "l1 1 l2 2 Z", {"addLine", "addLine", "closeSubpath"}},
    {"linesThenMoveAndLines", "L1 1 L2 2 M0 0 L3 3 L4 4", {"addLine", "addLine", "addLines"}},
    {"arcWithZeroRadiiThenLine", "A0 0 0 0 1 5 5 L6 6", {"addLine", "addLine"}},
    // For contrast: a move in front folds, a single line does not.
    {"moveThenTwoLines", "M0 0 L1 1 L2 2", {"addLines"}},
    {"lineThenCurve", "L1 1 C1 1 2 2 3 3", {"addLine", "addCurve"}},
};

INSTANTIATE_TEST_SUITE_P(Hostile, StraightStart, testing::ValuesIn(pathCases),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
