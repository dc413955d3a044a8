// The corrections of `compilableSwift`, and the one note line that names the defects a text
// written without it holds.
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "SVGConverter/CommentText.h"
#include "SVGConverter/SVGSwiftUIExporter.h"
#include "SVGParser/SVGParser.h"

namespace {

using SVGConverter::breaksBlockComment;
using SVGConverter::commentSafeText;

TEST(CommentText, BreaksEveryMarkAndTellsWhichTextsNeedIt) {
  const std::tuple<std::string, bool, std::string> rows[] = {
      {"<svg a='*' b='/'/>", false, "<svg a='*' b='/'/>"},
      {"a */ b", true, "a * / b"},
      {"a /* b", true, "a / * b"},
      // Swift nests block comments, so a balanced pair leaves the header whole.
      {"/* css */", false, "/ * css * /"},
      {"*/ /*", true, "* / / *"},
      {"/*/", true, "/ * /"}};
  for (const auto& [text, breaks, safe] : rows) {
    EXPECT_EQ(breaksBlockComment(text), breaks) << text;
    EXPECT_EQ(commentSafeText(text), safe);
    EXPECT_FALSE(breaksBlockComment(commentSafeText(text))) << text;
  }
}

// An arc on a rotated ellipse (transform steps with a chained rotation) filled with a colour
// name the colour type lacks.
constexpr std::string_view defectiveSVG =
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="20" height="20">)"
    R"(<path d="M0 0A10 5 30 0 1 20 0" fill="inherit"/></svg>)";

// Off, the text keeps the defects and hands them to the caller, which reports them in one
// line; on, they are corrected (the compilable and paths golden cases show both texts).
TEST(CompilableSwift, DefectsAreHandedToTheCallerOrCorrected) {
  const auto svg = SVGParser::parse(defectiveSVG, {});
  ASSERT_TRUE(svg);
  std::vector<std::string> lines;
  const SVGParser::Report report([&](std::string_view line) { lines.emplace_back(line); });
  for (const bool compilable : {false, true}) {
    SVGSwiftUIExporter::Config config;
    config.compilableSwift = compilable;
    std::string swift;
    SVGSwiftUIExporter::Defects defects = 0;
    SVGSwiftUIExporter::generate(*svg, config, report, swift, &defects);
    EXPECT_EQ(defects, compilable
                           ? 0u
                           : SVGSwiftUIExporter::arcTransform | SVGSwiftUIExporter::rotationStep |
                                 SVGSwiftUIExporter::unknownColor);
    EXPECT_EQ(lines.size(), compilable ? 1u : 0u) << "only the caller reports them, once";
    SVGSwiftUIExporter::reportDefects(report, defects);
  }
  EXPECT_EQ(lines,
            std::vector<std::string>{
                "NOTE: the generated Swift does not compile as written (arc transform, rotation "
                "step, unknown colour name); turn on compilableSwift (--compilable-swift) to "
                "correct it"});
}

}  // namespace
