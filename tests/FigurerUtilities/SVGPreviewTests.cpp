#include "FigurerUtilities/SVGPreview.h"

#include <gtest/gtest.h>

#include "support/CapturingLogger.h"

namespace FigurerUtilities {
namespace {

using CoreS::LogLevel;

struct RewriteRow {
  const char* name;
  std::string svg;
  std::string expected;  // empty: the text comes back unchanged
  std::vector<LoggedLine> lines;
};

void PrintTo(const RewriteRow& row, std::ostream* out) {
  *out << row.name;
}

LoggedLine rewrote(const std::string& tag) {
  return {LogLevel::trace, "Rewrote SVG tag to: " + tag};
}
const LoggedLine kUnchanged{LogLevel::log, "didn't rewrite SVG size"};

class RewriteSVGSizeTest : public testing::TestWithParam<RewriteRow> {};

TEST_P(RewriteSVGSizeTest, RewritesTheRootTag) {
  CapturingLogger logger;
  const RewriteRow& row = GetParam();
  EXPECT_EQ(rewriteSVGSize(row.svg, logger), row.expected.empty() ? row.svg : row.expected);
  EXPECT_EQ(logger.lines(), row.lines);
}

INSTANTIATE_TEST_SUITE_P(
    Roots, RewriteSVGSizeTest,
    testing::Values(
        RewriteRow{"sizeBecomesViewBox",
                   "<svg width=\"24\" height=\"48\"><path/></svg>",
                   "<svg viewBox=\"0 0 24 48\" width=\"100%\" height=\"100%\"><path/></svg>",
                   {rewrote("<svg viewBox=\"0 0 24 48\" width=\"100%\" height=\"100%\">")}},
        RewriteRow{"viewBoxIsKeptAndPositionDropped",
                   "<svg viewBox=\"0 0 10 10\" width=\"5\" x=\"1\" height=\"6\" y=\"2\">",
                   "<svg viewBox=\"0 0 10 10\" width=\"100%\" height=\"100%\">",
                   {rewrote("<svg viewBox=\"0 0 10 10\" width=\"100%\" height=\"100%\">")}},
        RewriteRow{"positionAndUnitsGoIntoTheViewBoxAsTheyStand",
                   "<svg x=\"3\" y=\"4\" width=\"24px\">",
                   "<svg viewBox=\"3 4 24px 100%\" width=\"100%\" height=\"100%\">",
                   {rewrote("<svg viewBox=\"3 4 24px 100%\" width=\"100%\" height=\"100%\">")}},
        RewriteRow{
            "noSizeGetsWidthAndHeightOnly",
            "<svg xmlns=\"http://www.w3.org/2000/svg\"></svg>",
            "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"100%\" height=\"100%\"></svg>",
            {rewrote("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"100%\" height=\"100%\">")}},
        RewriteRow{"namespacesSurviveAndAmpersandsAreEscaped",
                   "<svg xmlns:xlink=\"http://www.w3.org/1999/xlink\" id=\"a&amp;b\" height=\"2\">",
                   "<svg xmlns:xlink=\"http://www.w3.org/1999/xlink\" id=\"a&amp;b\" "
                   "viewBox=\"0 0 100% 2\" width=\"100%\" height=\"100%\">",
                   {rewrote("<svg xmlns:xlink=\"http://www.w3.org/1999/xlink\" id=\"a&amp;b\" "
                            "viewBox=\"0 0 100% 2\" width=\"100%\" height=\"100%\">")}},
        RewriteRow{
            "quotesInValuesAreEscaped",
            "<svg id='a\"b&lt;&apos;' viewBox=\"0 0 1 1\">",
            "<svg id=\"a&quot;b&lt;&apos;\" viewBox=\"0 0 1 1\" width=\"100%\" height=\"100%\">",
            {rewrote("<svg id=\"a&quot;b&lt;&apos;\" viewBox=\"0 0 1 1\" width=\"100%\" "
                     "height=\"100%\">")}},
        RewriteRow{"textAroundTheTagIsKept",
                   "<?xml version=\"1.0\"?>\n<svg height=\"2\"><rect/></svg>\n",
                   "<?xml version=\"1.0\"?>\n<svg viewBox=\"0 0 100% 2\" width=\"100%\" "
                   "height=\"100%\"><rect/></svg>\n",
                   {rewrote("<svg viewBox=\"0 0 100% 2\" width=\"100%\" height=\"100%\">")}},
        RewriteRow{"aCommentBeforeTheRootIsNotSkipped",
                   "<!-- <svg width=\"1\"> --><svg width=\"9\"/>",
                   "<!-- <svg viewBox=\"0 0 1 100%\" width=\"100%\" height=\"100%\"> --><svg "
                   "width=\"9\"/>",
                   {rewrote("<svg viewBox=\"0 0 1 100%\" width=\"100%\" height=\"100%\">")}},
        RewriteRow{"brokenSelfClose",
                   "<svg viewBox=\"0 0 1 1\" width=\"100%\" height=\"100%\"/ >",
                   "",
                   {}},
        RewriteRow{"alreadyScalingOpenRoot",
                   "<svg viewBox=\"0 0 1 1\" width=\"100%\" height=\"100%\"><g/></svg>",
                   "",
                   {kUnchanged}},
        RewriteRow{"noAttributes", "<svg><g/></svg>", "", {}},
        RewriteRow{"selfClosedRoot", "<svg width=\"24\" height=\"48\"/>", "", {}},
        RewriteRow{"noRoot", "<g width=\"1\"/>", "", {}},
        RewriteRow{"noClosingBracket", "<svg width=\"1\"", "", {}},
        RewriteRow{"greaterThanInAValueEndsTheTagEarly", "<svg id=\"a>b\" width=\"1\">", "", {}},
        RewriteRow{"duplicateAttributes", "<svg width=\"1\" width=\"2\">", "", {}},
        RewriteRow{"otherElementNamedLikeSvg", "<svgx width=\"1\">", "", {}},
        RewriteRow{"malformedUTF8", "<svg id=\"\xFF\" width=\"1\">", "", {}}));

TEST(PreviewPageTest, WrapsTheRewrittenSVG) {
  CapturingLogger logger;
  EXPECT_EQ(previewPage("<svg width=\"1\" height=\"2\"/>", logger),
            "<html><head>\n<style>\n  div { width: 100%; height: 100%; }\n</style>\n</head>"
            "<body><div><svg width=\"1\" height=\"2\"/></div></body></html>");
  EXPECT_EQ(previewPage("plain text", logger),
            "<html><head>\n<style>\n  div { width: 100%; height: 100%; }\n</style>\n</head>"
            "<body><div>plain text</div></body></html>");
  EXPECT_EQ(previewPage("<svg height=\"2\"></svg>", logger),
            "<html><head>\n<style>\n  div { width: 100%; height: 100%; }\n</style>\n</head>"
            "<body><div><svg viewBox=\"0 0 100% 2\" width=\"100%\" height=\"100%\"></svg>"
            "</div></body></html>");
}

TEST(EscapeForAttributeTest, EscapesEachSpecialCharacterOnce) {
  EXPECT_EQ(escapeForAttribute("&<>'\""), "&amp;&lt;&gt;&apos;&quot;");
  EXPECT_EQ(escapeForAttribute("&amp;"), "&amp;amp;");
  EXPECT_EQ(escapeForAttribute("plain \xC3\xA9"), "plain \xC3\xA9");
  EXPECT_EQ(escapeForAttribute(""), "");
}

}  // namespace
}  // namespace FigurerUtilities
