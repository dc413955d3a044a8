#include "FigurerUtilities/SVGPreview.h"

#include <gtest/gtest.h>

#include "FigurerUtilities/Transcript.h"
#include "support/CapturingLogger.h"

namespace FigurerUtilities {
namespace {

TEST(RewriteSVGSizeTest, RewritesTheRootTagOrLeavesItAlone) {
  Transcript::expect("FigurerUtilities/data/rewrite-svg-size.txt", [](const std::string& input) {
    CapturingLogger logger;
    std::string answer =
        "> " + Transcript::escape(rewriteSVGSize(Transcript::unescape(input), logger)) + "\n";
    for (const auto& line : logger.lines()) {
      answer += "> " + std::string(CoreS::logLevelName(line.level)) + ": " + line.text + "\n";
    }
    return answer;
  });
}

TEST(PreviewPageTest, WrapsTheRewrittenSVG) {
  CapturingLogger logger;
  const std::string head =
      "<html><head>\n<style>\n  div { width: 100%; height: 100%; }\n</style>\n</head><body><div>";
  const std::string tail = "</div></body></html>";
  EXPECT_EQ(previewPage("<svg width=\"1\" height=\"2\"/>", logger),
            head + "<svg width=\"1\" height=\"2\"/>" + tail);
  EXPECT_EQ(previewPage("plain text", logger), head + "plain text" + tail);
  EXPECT_EQ(previewPage("<svg height=\"2\"></svg>", logger),
            head + "<svg viewBox=\"0 0 100% 2\" width=\"100%\" height=\"100%\"></svg>" + tail);
}

TEST(EscapeForAttributeTest, EscapesEachSpecialCharacterOnce) {
  EXPECT_EQ(escapeForAttribute("&<>'\""), "&amp;&lt;&gt;&apos;&quot;");
  EXPECT_EQ(escapeForAttribute("&amp;"), "&amp;amp;");
  EXPECT_EQ(escapeForAttribute("plain \xC3\xA9"), "plain \xC3\xA9");
  EXPECT_EQ(escapeForAttribute(""), "");
}

}  // namespace
}  // namespace FigurerUtilities
