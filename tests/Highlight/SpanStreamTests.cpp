#include "Highlight/SpanStream.h"

#include <gtest/gtest.h>

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

TextStyle style(std::uint32_t rgb, bool bold = false, bool italic = false, bool underline = false) {
  TextStyle s;
  s.foreground = RGBColor::fromHex(rgb);
  s.font = ThemeFont{"Mono", 12.0, bold, italic && !bold};
  if (underline) {
    s.underline = true;
    s.underlineColor = s.foreground;
  }
  return s;
}

const TextStyle D = style(1);
const TextStyle K = style(1, true);
const TextStyle S = style(2);
const TextStyle SK = style(2, true);
const TextStyle CM = style(3, false, true);
const TextStyle CK = style(3, true, true);
const TextStyle L = style(4, false, false, true);
const TextStyle NONE{};

struct SpanRow {
  const char* name;
  std::u16string html;
  StyledText expected;
};

void PrintTo(const SpanRow& row, std::ostream* out) {
  *out << row.name;
}

class SpanStreamTest : public testing::TestWithParam<SpanRow> {};

TEST_P(SpanStreamTest, ConvertsToStyledRuns) {
  const SpanStreamResult result = styledTextFromHTML(GetParam().html, testTheme());
  ASSERT_TRUE(std::holds_alternative<StyledText>(result))
      << std::get<SpanStreamError>(result).message;
  EXPECT_EQ(std::get<StyledText>(result), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Spans, SpanStreamTest,
    testing::Values(
        SpanRow{"plain", u"let x", styled({{u"let x", D}})},
        SpanRow{"nested",
                u"<span class=\"hljs-string\">a<span class=\"hljs-keyword\">b</span>c</span>d",
                styled({{u"a", S}, {u"b", SK}, {u"c", S}, {u"d", D}})},
        SpanRow{"innerBoldOuterItalicGivesBold",
                u"<span class=\"hljs-comment\">x<span class=\"hljs-keyword\">y</span></span>",
                styled({{u"x", CM}, {u"y", CK}})},
        SpanRow{"underlineTakesTheColour", u"<span class=\"hljs-link\">u</span>",
                styled({{u"u", L}})},
        SpanRow{"unknownClassKeepsTheStackBalanced", u"<span class=\"nope\">x</span>y",
                styled({{u"xy", D}})},
        SpanRow{"classWithSeveralWordsSelectsNothing",
                u"<span class=\"hljs-keyword extra\">x</span>", styled({{u"x", D}})},
        SpanRow{"emptyClass", u"<span class=\"\">x</span>y", styled({{u"xy", D}})},
        SpanRow{"strayLessThanLosesTheNextCharacter", u"a<bc", styled({{u"a<c", D}})},
        SpanRow{"strayLessThanInsideASpan", u"<span class=\"hljs-keyword\">a<b</span>c",
                styled({{u"a<", K}, {u"c", D}})},
        SpanRow{"lessThanAtTheEnd", u"a<", styled({{u"a<", D}})},
        SpanRow{"closingTheDefaultLeavesNoAttributes", u"a</span>b",
                styled({{u"a", D}, {u"b", NONE}})},
        SpanRow{"unclosedSpanStart", u"a<span class=\"hljs-keyword", styled({{u"a", D}})},
        SpanRow{"empty", u"", StyledText()},
        SpanRow{"namedEntitiesKeepTheRunAttributes",
                u"<span class=\"hljs-string\">&lt;b&gt;</span>", styled({{u"<b>", S}})},
        SpanRow{"numericEntities", u"&#65;&#x41;&#X41;", styled({{u"AAA", D}})},
        SpanRow{"unknownEntityStays", u"&unknown; &LT;", styled({{u"&unknown; &LT;", D}})},
        SpanRow{"notEntities", u"&#; &; & amp;", styled({{u"&#; &; & amp;", D}})},
        SpanRow{"decodedOnce", u"&amp;lt; &&amp;", styled({{u"&lt; &&", D}})},
        SpanRow{"entityAcrossSpansTakesTheFirstStyle",
                u"&am<span class=\"hljs-keyword\">p;</span>x", styled({{u"&x", D}})},
        SpanRow{"hexWithoutDigitsIsNul", u"&#xzz;", styled({{std::u16string(1, u'\0'), D}})},
        SpanRow{"astralReplacementShiftsLaterMatches", u"&#128512;&lt;",
                styled({{u"\U0001F600&lt;", D}})},
        SpanRow{"largestScalar", u"&#1114111;", styled({{u"\U0010FFFF", D}})}));

struct ErrorRow {
  const char* name;
  std::u16string html;
};

void PrintTo(const ErrorRow& row, std::ostream* out) {
  *out << row.name;
}

class SpanStreamErrorTest : public testing::TestWithParam<ErrorRow> {};

TEST_P(SpanStreamErrorTest, DropsTheWholeResult) {
  EXPECT_TRUE(
      std::holds_alternative<SpanStreamError>(styledTextFromHTML(GetParam().html, testTheme())));
}

INSTANTIATE_TEST_SUITE_P(Malformed, SpanStreamErrorTest,
                         testing::Values(ErrorRow{"popFromEmptyStack", u"a</span></span>b"},
                                         ErrorRow{"aboveUnicode", u"ok &#x110000;"},
                                         ErrorRow{"surrogate", u"&#xD800;"},
                                         ErrorRow{"lowSurrogateDecimal", u"&#57343;"},
                                         ErrorRow{"overflowing", u"&#99999999999999999999999;"}));

struct EntityRow {
  std::u16string entity;
  std::optional<std::u16string> decoded;  // none: left as it is
};

void PrintTo(const EntityRow& row, std::ostream* out) {
  *out << toUTF8(row.entity);
}

class EntityTest : public testing::TestWithParam<EntityRow> {};

TEST_P(EntityTest, Decodes) {
  const EntityDecoding result = decodeHTMLEntity(GetParam().entity);
  if (GetParam().decoded) {
    ASSERT_TRUE(std::holds_alternative<std::u16string>(result));
    EXPECT_EQ(std::get<std::u16string>(result), *GetParam().decoded);
  } else {
    EXPECT_TRUE(std::holds_alternative<EntityNotDecoded>(result));
  }
}

INSTANTIATE_TEST_SUITE_P(
    Entities, EntityTest,
    testing::Values(EntityRow{u"&lt;", u"<"}, EntityRow{u"&gt;", u">"}, EntityRow{u"&amp;", u"&"},
                    EntityRow{u"&quot;", u"\""}, EntityRow{u"&apos;", u"'"},
                    EntityRow{u"&nbsp;", u"\u00A0"}, EntityRow{u"&AElig;", u"\u00C6"},
                    EntityRow{u"&aelig;", u"\u00E6"}, EntityRow{u"&yuml;", u"\u00FF"},
                    EntityRow{u"&Yuml;", u"\u0178"}, EntityRow{u"&thetasym;", u"\u03D1"},
                    EntityRow{u"&euro;", u"\u20AC"}, EntityRow{u"&diams;", u"\u2666"},
                    EntityRow{u"&rsaquo;", u"\u203A"}, EntityRow{u"&Amp;", std::nullopt},
                    EntityRow{u"&hellip", std::nullopt}, EntityRow{u"&bogus;", std::nullopt},
                    EntityRow{u"lt;", std::nullopt}, EntityRow{u"&#65;", u"A"},
                    EntityRow{u"&#x41;", u"A"}, EntityRow{u"&#X41;", u"A"},
                    EntityRow{u"&#x41zz;", u"A"}, EntityRow{u"&#0065;", u"A"},
                    EntityRow{u"&#xe000;", u"\uE000"}, EntityRow{u"&#xFFFF;", u"\uFFFF"},
                    EntityRow{u"&#x1F600;", u"\U0001F600"}));

TEST(EntityTest, InvalidScalarsAreReportedWithTheirValue) {
  EXPECT_EQ(decodeHTMLEntity(u"&#x110000;"), EntityDecoding(InvalidScalar{0x110000}));
  EXPECT_EQ(decodeHTMLEntity(u"&#xDC00;"), EntityDecoding(InvalidScalar{0xDC00}));
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
