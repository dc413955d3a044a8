#include "Highlight/Rendering.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "TestSupport.h"

namespace Highlight {
namespace {

TextStyle red() {
  return {RGBColor::fromHex(0xFF0000), false, {}, ThemeFont{}};
}
TextStyle boldBlue() {
  return {RGBColor::fromHex(0x0000FF), false, {}, ThemeFont{"", {}, true}};
}
TextStyle italicOnly() {
  return {{}, false, {}, ThemeFont{"", {}, false, true}};
}
TextStyle underlined() {
  return {RGBColor::fromHex(0x010203), true, RGBColor::fromHex(0x010203), ThemeFont{}};
}

TEST(RenderingTest, ANSIClosesStylesAtLineEnds) {
  const StyledText text = styled({{u"a\nb", red()}, {u" ", {}}, {u"k", boldBlue()}});
  EXPECT_EQ(renderANSI(text),
            "\x1b[38;2;255;0;0ma\x1b[0m\n\x1b[38;2;255;0;0mb\x1b[0m \x1b[1;38;2;0;0;255mk\x1b[0m");
}

TEST(RenderingTest, ANSIStyleCodes) {
  EXPECT_EQ(renderANSI(styled({{u"i", italicOnly()}})), "\x1b[3mi\x1b[0m");
  EXPECT_EQ(renderANSI(styled({{u"u", underlined()}})), "\x1b[4;38;2;1;2;3mu\x1b[0m");
  EXPECT_EQ(renderANSI(styled({{u"\n\n", red()}})), "\n\n");
  EXPECT_EQ(renderANSI(StyledText()), "");
}

TEST(RenderingTest, HTMLEscapesTextAndStylesRuns) {
  const StyledText text = styled({{u"<a & \"b\">", {}}, {u"k", boldBlue()}, {u"u", underlined()}});
  EXPECT_EQ(renderHTML(text),
            "<pre style=\"font-family: monospace;\">&lt;a &amp; &quot;b&quot;&gt;"
            "<span style=\"color: #0000FF; font-weight: bold;\">k</span>"
            "<span style=\"color: #010203; text-decoration: underline;\">u</span></pre>\n");
  EXPECT_EQ(renderHTML(styled({{u"i", italicOnly()}}), RGBColor::fromHex(0x1E1E1E)),
            "<pre style=\"font-family: monospace; background-color: #1E1E1E;\">"
            "<span style=\"font-style: italic;\">i</span></pre>\n");
}

TEST(RenderingTest, RunsAsJSON) {
  const StyledText text = styled({{u"let", boldBlue()}, {u" \u00E9", {}}});
  const auto runs = nlohmann::json::parse(renderRunsJSON(text));
  ASSERT_EQ(runs.size(), 2u);
  EXPECT_EQ(runs[0], (nlohmann::json{{"text", "let"},
                                     {"color", "#0000FF"},
                                     {"bold", true},
                                     {"italic", false},
                                     {"underline", false}}));
  EXPECT_EQ(runs[1]["text"], " \xC3\xA9");
  EXPECT_TRUE(runs[1]["color"].is_null());
}

}  // namespace
}  // namespace Highlight
