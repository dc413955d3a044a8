// The corrections of `compilableSwift`, and the one note line that names the defects a text
// written without it holds.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "SVGConverter/CommentText.h"
#include "SVGConverter/SVGSwiftUIExporter.h"
#include "SVGParser/SVGParser.h"

namespace {

using SVGConverter::breaksBlockComment;
using SVGConverter::commentSafeText;

struct CommentRow {
  const char* name;
  std::string text;
  bool breaks;
  std::string safe;
};

class CommentText : public testing::TestWithParam<CommentRow> {};

TEST_P(CommentText, BreaksEveryMarkAndTellsWhichTextsNeedIt) {
  EXPECT_EQ(breaksBlockComment(GetParam().text), GetParam().breaks);
  EXPECT_EQ(commentSafeText(GetParam().text), GetParam().safe);
  EXPECT_FALSE(breaksBlockComment(commentSafeText(GetParam().text)));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CommentText,
    testing::Values(CommentRow{"Plain", "<svg a='*' b='/'/>", false, "<svg a='*' b='/'/>"},
                    CommentRow{"Close", "a */ b", true, "a * / b"},
                    CommentRow{"Open", "a /* b", true, "a / * b"},
                    // Swift nests block comments, so a balanced pair leaves the header whole.
                    CommentRow{"BalancedPair", "/* css */", false, "/ * css * /"},
                    CommentRow{"CloseBeforeOpen", "*/ /*", true, "* / / *"},
                    CommentRow{"SharedStar", "/*/", true, "/ * /"}),
    [](const auto& info) { return std::string(info.param.name); });

// An arc on a rotated ellipse (transform steps with a chained rotation) filled with a colour
// name the colour type lacks.
constexpr std::string_view defectiveSVG =
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="20" height="20">)"
    R"(<path d="M0 0A10 5 30 0 1 20 0" fill="inherit"/></svg>)";

struct Run {
  std::string swift;
  SVGSwiftUIExporter::Defects defects = 0;
  std::vector<std::string> lines;
};

Run generate(bool compilable) {
  Run run;
  const SVGParser::Report report([&](std::string_view line) { run.lines.emplace_back(line); });
  const auto svg = SVGParser::parse(defectiveSVG, report);
  SVGSwiftUIExporter::Config config;
  config.compilableSwift = compilable;
  SVGSwiftUIExporter::generate(*svg, config, report, run.swift, &run.defects);
  return run;
}

TEST(CompilableSwift, OffKeepsTheDefectsAndHandsThemToTheCaller) {
  const auto run = generate(false);
  for (const char* text : {"Angle(radians: 3.1416)), transform: ", ".rotatedy(x: 0.5236)",
                           "Color.inherit /*unknown*/"}) {
    EXPECT_NE(run.swift.find(text), std::string::npos) << text;
  }
  EXPECT_EQ(run.defects, SVGSwiftUIExporter::arcTransform | SVGSwiftUIExporter::rotationStep |
                             SVGSwiftUIExporter::unknownColor);
  EXPECT_TRUE(run.lines.empty()) << "the caller reports them, once";
  std::vector<std::string> lines;
  SVGSwiftUIExporter::reportDefects(
      SVGParser::Report([&](std::string_view line) { lines.emplace_back(line); }), run.defects);
  SVGSwiftUIExporter::reportDefects(
      SVGParser::Report([&](std::string_view line) { lines.emplace_back(line); }), 0);
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0],
            "NOTE: the generated Swift does not compile as written (arc transform, rotation step, "
            "unknown colour name); turn on compilableSwift (--compilable-swift) to correct it");
}

TEST(CompilableSwift, OnCorrectsTheDefects) {
  const auto run = generate(true);
  for (const char* text : {"Angle(radians: 3.1416), transform: ", ".rotated(by: 0.5236)",
                           "Color.clear /*unknown: inherit */"}) {
    EXPECT_NE(run.swift.find(text), std::string::npos) << text;
  }
  EXPECT_EQ(run.defects, 0u);
}

}  // namespace
