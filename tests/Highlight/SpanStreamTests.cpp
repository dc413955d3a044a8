#include "Highlight/SpanStream.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "FigurerUtilities/Transcript.h"
#include "Highlight/Rendering.h"
#include "TestSupport.h"

namespace Highlight {
namespace {

using C = HighlightJSClass;

// A theme whose colours are easy to tell apart in the expectations.
const HighlightJSTheme& testTheme() {
  static const HighlightJSTheme theme = [] {
    HighlightJSTheme::ClassProperties table;
    auto set = [&table](C cls, FontProperties p) { table[static_cast<std::size_t>(cls)] = p; };
    set(C::DEFAULT, {RGBColor::fromHex(0x000001), {}, {}, {}});
    set(C::keyword, {{}, true, {}, {}});
    set(C::string, {RGBColor::fromHex(0x000002), {}, {}, {}});
    set(C::comment, {RGBColor::fromHex(0x000003), {}, true, {}});
    set(C::link, {RGBColor::fromHex(0x000004), {}, {}, true});
    return HighlightJSTheme(ThemeFont{"Mono", 12.0}, table);
  }();
  return theme;
}

// Each input is read as highlight.js output with the theme above: the runs it gives, or the
// reason the whole result is dropped.
TEST(SpanStreamTest, ConvertsToStyledRunsOrDropsTheWholeResult) {
  Transcript::expect("Highlight/data/span-stream.txt", [](const std::string& html) {
    const SpanStreamResult result = styledTextFromHTML(fromUTF8(html), testTheme());
    if (const auto* error = std::get_if<SpanStreamError>(&result)) {
      return "> dropped: " + error->message + "\n";
    }
    std::ostringstream runs;
    PrintTo(std::get<StyledText>(result), &runs);
    std::string text = runs.str();
    for (std::size_t nul; (nul = text.find('\0')) != std::string::npos;)
      text.replace(nul, 1, "\\0");
    return "> " + text + "\n";
  });
}

// The renderings of highlighted text (given as highlight.js output, read with the theme above)
// for a terminal, for a web page (also over a dark background) and as JSON runs.
TEST(RenderingTest, TerminalPageAndJSON) {
  Transcript::expect("Highlight/data/rendering.txt", [](const std::string& html) {
    const auto text =
        std::get<StyledText>(styledTextFromHTML(fromUTF8(Transcript::unescape(html)), testTheme()));
    return "> plain: " + Transcript::escape(renderPlain(text)) +
           "\n> ansi: " + Transcript::escape(renderANSI(text)) +
           "\n> html: " + Transcript::escape(renderHTML(text)) + "\n> html on #1E1E1E: " +
           Transcript::escape(renderHTML(text, RGBColor::fromHex(0x1E1E1E))) +
           "\n> json: " + nlohmann::json::parse(renderRunsJSON(text)).dump() + "\n";
  });
}

// Each input is one entity: what it decodes to, or that it is left as it is, or the number that
// names no Unicode scalar value.
TEST(EntityTest, DecodesOrLeavesAsItIs) {
  Transcript::expect("Highlight/data/entities.txt", [](const std::string& entity) {
    const EntityDecoding result = decodeHTMLEntity(fromUTF8(entity));
    if (const auto* text = std::get_if<std::u16string>(&result)) {
      return "> " + Transcript::escape(toUTF8(*text)) + "\n";
    }
    if (const auto* invalid = std::get_if<InvalidScalar>(&result)) {
      return "> invalid scalar " + std::to_string(invalid->value) + "\n";
    }
    return std::string("> left as it is\n");
  });
}

TEST(StyledTextTest, ReplaceKeepsTheStyleOfTheFirstReplacedCharacterAndMergesRuns) {
  const TextStyle a{RGBColor::fromHex(0xAA), false, {}, {}};
  const TextStyle b{RGBColor::fromHex(0xBB), false, {}, {}};
  StyledText text = styled({{u"xx&am", a}, {u"p;yy", b}});
  text.replace(2, 5, u"&");
  EXPECT_EQ(text, styled({{u"xx&", a}, {u"yy", b}}));
  text.replace(3, 2, u"Z");  // a whole run replaced: the new text takes its style
  EXPECT_EQ(text, styled({{u"xx&", a}, {u"Z", b}}));
  text.replace(0, 3, u"");
  EXPECT_EQ(text, styled({{u"Z", b}}));
  text.replace(1, 0, u"!");  // at the end: the last style continues
  EXPECT_EQ(text, styled({{u"Z!", b}}));
  text.replace(7, 3, u"?");  // beyond the end: clipped to an append
  EXPECT_EQ(text, styled({{u"Z!?", b}}));
}

TEST(StyledTextTest, UTF8RoundTripAndRepairs) {
  EXPECT_EQ(fromUTF8("a\xC3\xA9\xF0\x9F\x98\x80"), u"a\u00E9\U0001F600");
  EXPECT_EQ(toUTF8(u"a\u00E9\U0001F600"), "a\xC3\xA9\xF0\x9F\x98\x80");
  EXPECT_EQ(toUTF8(std::u16string(1, char16_t(0xD800)) + u"x"), "\xEF\xBF\xBDx");
  EXPECT_EQ(fromUTF8("\xC0\xAFx\xE2\x82"), u"\uFFFD\uFFFDx\uFFFD");
  EXPECT_EQ(fromUTF8("\xED\xA0\x80"), u"\uFFFD");  // an encoded surrogate
}

}  // namespace
}  // namespace Highlight
