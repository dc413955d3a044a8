#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "SVGParser/SVG.h"

namespace {

using SVGParser::Attributes;
using Font = CSS::Font;
using Family = Font::Family;
using Style = Font::Style;
using Weight = Font::Weight;
using Length = CSS::UnitLength;
using Lines = std::vector<std::string>;

struct ReportLines {
  Lines lines;
  SVGParser::Report report{[this](std::string_view line) { lines.emplace_back(line); }};
};

template <class Row>
std::string rowName(const testing::TestParamInfo<Row>& info) {
  return info.param.name;
}

// Rows print as their name instead of a byte dump.
template <class Row>
requires requires(const Row& row) {
  row.name;
}
void PrintTo(const Row& row, std::ostream* out) {
  *out << row.name;
}

CSS::Value id(std::string text) {
  return {CSS::Value::Id{std::move(text)}};
}
CSS::Value number(double value) {
  return {CSS::Value::Number{value}};
}
CSS::Value pixel(double value) {
  return {CSS::Value::Pixel{value}};
}
CSS::Value percent(double value) {
  return {CSS::Value::PercentValue{value}};
}

Family named(std::string name) {
  return {Family::Kind::named, std::move(name)};
}
const Family sansSerif{Family::Kind::sansSerif, {}};
const Family serif{Family::Kind::serif, {}};
const Family monospace{Family::Kind::monospace, {}};
const Weight normal{Weight::Kind::normal, 0};
const Weight bold{Weight::Kind::bold, 0};
const Weight lighter{Weight::Kind::lighter, 0};
const Weight bolder{Weight::Kind::bolder, 0};
Weight weight(std::int64_t value) {
  return {Weight::Kind::value, value};
}

Font font(Family family, Style style, Weight weight, std::optional<Length> size) {
  return {Font::Shorthand{std::move(family), style, weight, size}};
}
constexpr Style upright = Style::normal;
constexpr Style italic = Style::italic;
constexpr Style oblique = Style::oblique;
std::optional<Length> px(double value) {
  return Length::pixel(value);
}
std::optional<Length> num(double value) {
  return Length::number(value);
}

Font sized(std::optional<Length> size) {
  return font(sansSerif, upright, normal, size);
}
const Font caption{Font::System::caption};

std::string describe(const std::optional<Font>& font) {
  return font ? font->description() : "nothing";
}

std::string unitError(std::string_view text) {
  return "ERROR: unsupported CSS unit: " + std::string(text);
}
std::string fontWarning(std::string_view text) {
  return "WARN: unexpected CSS font value: " + std::string(text);
}

// ---- families and weights --------------------------------------------------------------

struct FamilyRow {
  std::string name;
  std::optional<std::string_view> text;
  std::optional<Family> expected;
};

class FontFamilyParse : public testing::TestWithParam<FamilyRow> {};

TEST_P(FontFamilyParse, KeywordsIgnoreCaseOthersKeepIt) {
  EXPECT_EQ(Family::parse(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, FontFamilyParse,
                         testing::ValuesIn(std::vector<FamilyRow>{
                             {"Missing", std::nullopt, std::nullopt},
                             {"EmptyIsANamedFamily", "", named("")},
                             {"Serif", "serif", serif},
                             {"UpperCaseKeyword", "SERIF", serif},
                             {"SansSerif", "Sans-Serif", sansSerif},
                             {"SystemUI", "system-ui", Family{Family::Kind::systemUI, {}}},
                             {"UIRounded", "UI-Rounded", Family{Family::Kind::uiRounded, {}}},
                             {"NameKeepsCase", "Arial", named("Arial")},
                             {"ListIsOneName", "Georgia, serif", named("Georgia, serif")},
                             {"QuotesKept", "'Fira Code'", named("'Fira Code'")},
                         }),
                         rowName<FamilyRow>);

struct WeightRow {
  std::string name;
  std::optional<std::string_view> text;
  std::optional<Weight> expected;
};

class FontWeightParse : public testing::TestWithParam<WeightRow> {};

TEST_P(FontWeightParse, KeywordsAndIntegers) {
  EXPECT_EQ(Weight::parse(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, FontWeightParse,
                         testing::ValuesIn(std::vector<WeightRow>{
                             {"Missing", std::nullopt, std::nullopt},
                             {"Empty", "", std::nullopt},
                             {"Normal", "Normal", normal},
                             {"FourHundred", "400", normal},
                             {"Bold", "BOLD", bold},
                             {"SevenHundred", "700", bold},
                             {"Lighter", "lighter", lighter},
                             {"Bolder", "bolder", bolder},
                             {"Integer", "550", weight(550)},
                             {"Negative", "-3", weight(-3)},
                             {"LeadingZero", "0400", weight(400)},
                             {"Decimal", "500.5", std::nullopt},
                             {"Padded", "bold ", std::nullopt},
                             {"Unknown", "heavy", std::nullopt},
                         }),
                         rowName<WeightRow>);

// ---- the font property -----------------------------------------------------------------

struct FontRow {
  std::string name;
  std::optional<std::string_view> text;
  std::optional<Font> expected;
  Lines lines;
};

class FontParse : public testing::TestWithParam<FontRow> {};

TEST_P(FontParse, ReadsShorthandWordByWord) {
  const FontRow& row = GetParam();
  ReportLines out;
  const auto font = Font::parse(row.text, out.report);
  EXPECT_EQ(font, row.expected) << describe(font);
  EXPECT_EQ(out.lines, row.lines);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, FontParse, testing::ValuesIn(std::vector<FontRow>{
    {"Missing", std::nullopt, std::nullopt, {}},
    {"Empty", "", std::nullopt, {}},
    {"Caption", "caption", caption, {}},
    {"SystemFontIgnoresCase", "Message-Box", Font{Font::System::messageBox}, {}},
    {"SystemFontNotTrimmed", " caption", font(named("caption"), upright, normal, {}),
     {unitError("caption")}},
    {"OnlyBlanks", "  ", sized({}), {}},
    {"SizeAndFamily", "12px serif", font(serif, upright, normal, px(12)), {}},
    {"AllParts", "italic bold 12px Arial", font(named("arial"), italic, bold, px(12)), {}},
    {"LeadingIntegerIsAWeight", "12 serif", font(serif, upright, weight(12), {}), {}},
    {"IntegerAfterWeightIsASize", "bold 12 serif", font(serif, upright, bold, num(12)), {}},
    {"SecondIntegerIsASize", "12 14 serif", font(serif, upright, weight(12), num(14)), {}},
    {"IntegerAfterFamilyIsASize", "serif 12", font(serif, upright, normal, num(12)), {}},
    {"LoneWordIsReportedThenAFamily", "Arial", font(named("arial"), upright, normal, {}),
     {unitError("arial")}},
    {"FamilyLowerCasedBeyondAscii", "12px \u00C9LAN", font(named("\u00E9lan"), upright, normal, px(12)),
     {}},
    {"MultiWordFamilyKeepsFirstWord", "12px Helvetica Neue",
     font(named("helvetica"), upright, normal, px(12)), {fontWarning("neue")}},
    {"WordAfterKeywordFamilyWarns", "monospace 12px arial",
     font(monospace, upright, normal, px(12)), {fontWarning("arial")}},
    {"SecondLengthIsAFamily", "12px 14px", font(named("14px"), upright, normal, px(12)), {}},
    // The slash form is no length; it becomes a family that the keyword then replaces.
    {"LineHeightBecomesFamily", "12px/14px serif", font(serif, upright, normal, {}),
     {unitError("12px/14px")}},
    {"LineHeightAloneStaysFamily", "bold 12px/1.5 Arial",
     font(named("12px/1.5"), upright, bold, {}), {unitError("12px/1.5"), unitError("arial")}},
    {"WordAfterSettledFamilyDropped", "oblique 600 1.5em x",
     font(named("1.5em"), oblique, weight(600), {}), {unitError("1.5em"), unitError("x")}},
    {"NormalWordsSkipped", "normal normal 10pt monospace",
     font(monospace, upright, normal, Length::point(10)), {}},
    {"WeightKeywordAfterSettling", "12px serif 700", font(serif, upright, bold, px(12)), {}},
    {"LaterFamilyKeywordReplaces", "serif sans-serif", sized({}), {}},
    {"WeightOnly", "lighter", font(sansSerif, upright, lighter, {}), {}},
    {"WeightAndStyle", "bolder italic", font(sansSerif, italic, bolder, {}), {}},
    {"LineBreaksSeparate", "16px \n\r serif", font(serif, upright, normal, px(16)), {}},
    // A tab is a control character, not a blank, so it joins the words around it.
    {"TabDoesNotSeparate", "16px\tArial", font(named("16px\tarial"), upright, normal, {}),
     {unitError("16px\tarial")}},
    {"PercentSize", "150% cursive",
     font(Family{Family::Kind::cursive, {}}, upright, normal, Length::percentage(150)), {}},
}), rowName<FontRow>);
// clang-format on

TEST(FontParseShorthand, TakesTextAsItStands) {
  ReportLines out;
  // Called directly, a capitalised keyword misses the word table but Family::parse still
  // recognises it once it fails as a length.
  EXPECT_EQ(Font::parseShorthand("Serif", out.report), font(serif, upright, normal, {}));
  EXPECT_EQ(Font::parseShorthand("", out.report), sized({}));
  EXPECT_EQ(Font::parseShorthand("caption", out.report),
            font(named("caption"), upright, normal, {}));
  EXPECT_EQ(out.lines, (Lines{unitError("Serif"), unitError("caption")}));
}

struct ValueRow {
  std::string name;
  std::optional<CSS::Value> value;
  std::optional<Font> expected;
};

class FontFromValue : public testing::TestWithParam<ValueRow> {};

TEST_P(FontFromValue, NumbersAreSizes) {
  const ValueRow& row = GetParam();
  ReportLines out;
  const auto font = Font::fromValue(row.value ? &*row.value : nullptr, out.report);
  EXPECT_EQ(font, row.expected) << describe(font);
}

INSTANTIATE_TEST_SUITE_P(Rows, FontFromValue,
                         testing::ValuesIn(std::vector<ValueRow>{
                             {"Missing", std::nullopt, std::nullopt},
                             {"Identifier", id("Caption"), caption},
                             {"IdentifierShorthand", id("10pt Serif"),
                              font(serif, upright, normal, Length::point(10))},
                             {"Number", number(12), sized(Length::number(12))},
                             {"Pixel", pixel(12), sized(Length::pixel(12))},
                             {"Percent", percent(120), sized(Length::percentage(120))},
                             {"Url", CSS::Value{CSS::Value::Url{"#f"}}, std::nullopt},
                             {"Auto", CSS::Value{CSS::Value::Auto{}}, std::nullopt},
                         }),
                         rowName<ValueRow>);

// ---- resolution from the style of an element -------------------------------------------

struct ResolveRow {
  std::string name;
  CSS::Declarations properties;
  std::optional<Font> expected;
  Lines lines;
};

class FontResolve : public testing::TestWithParam<ResolveRow> {};

TEST_P(FontResolve, LonghandsRefineTheShorthand) {
  const ResolveRow& row = GetParam();
  ReportLines out;
  const auto font = Font::resolve(CSS::Style{row.properties}, out.report);
  EXPECT_EQ(font, row.expected) << describe(font);
  EXPECT_EQ(out.lines, row.lines);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, FontResolve, testing::ValuesIn(std::vector<ResolveRow>{
    {"Nothing", {}, std::nullopt, {}},
    {"UnrelatedProperties", {{"fill", id("red")}}, std::nullopt, {}},
    {"SizeOnly", {{"font-size", pixel(12)}}, sized(px(12)), {}},
    {"SizeIdentifier", {{"font-size", id("1cm")}}, sized(Length::centimeter(1)), {}},
    {"BadSizeGivesNothing", {{"font-size", id("1em")}}, std::nullopt, {unitError("1em")}},
    {"NumericWeightIgnored", {{"font-weight", number(700)}}, std::nullopt, {}},
    {"WeightWord", {{"font-weight", id("bold")}}, font(sansSerif, upright, bold, {}), {}},
    {"UnknownWeightGivesNothing", {{"font-weight", id("heavy")}}, std::nullopt, {}},
    {"StyleWord", {{"font-style", id("italic")}}, font(sansSerif, italic, normal, {}), {}},
    {"StyleIsCaseSensitive", {{"font-style", id("Italic")}}, std::nullopt, {}},
    {"FamilyList", {{"font-family", id("Georgia, serif")}},
     font(named("Georgia, serif"), upright, normal, {}), {}},
    {"SystemFontWins",
     {{"font", id("caption")}, {"font-size", pixel(20)}, {"font-weight", id("bold")}}, caption, {}},
    {"LonghandsOverrideShorthand",
     {{"font", id("bold 12px serif")}, {"font-weight", id("lighter")},
      {"font-family", id("Arial")}, {"font-style", id("oblique")}},
     font(named("Arial"), oblique, lighter, px(12)), {}},
    {"SizeOverridesShorthand", {{"font", id("12px serif")}, {"font-size", percent(80)}},
     font(serif, upright, normal, Length::percentage(80)), {}},
    {"NumericFont", {{"font", number(10)}}, sized(num(10)), {}},
    {"UnreadableFontLeavesLonghands",
     {{"font", CSS::Value{CSS::Value::Auto{}}}, {"font-style", id("italic")}},
     font(sansSerif, italic, normal, {}), {}},
    {"ReportsInPropertyOrder", {{"font", id("arial")}, {"font-size", id("2pc")}},
     font(named("arial"), upright, normal, {}), {unitError("arial"), unitError("2pc")}},
}), rowName<ResolveRow>);
// clang-format on

// ---- the text element ------------------------------------------------------------------

struct TextRow {
  std::string name;
  Attributes attributes;
  CSS::Declarations properties;
  Length x, y;
  std::optional<Length> dx, dy, textLength;
  std::optional<Font> font;
  Lines lines;
};

class TextRead : public testing::TestWithParam<TextRow> {};

TEST_P(TextRead, ReadsPositionAndFont) {
  const TextRow& row = GetParam();
  ReportLines out;
  const auto text = SVG::Text::read(row.attributes, CSS::Style{row.properties}, out.report);
  EXPECT_EQ(text.x, row.x);
  EXPECT_EQ(text.y, row.y);
  EXPECT_EQ(text.dx, row.dx);
  EXPECT_EQ(text.dy, row.dy);
  EXPECT_EQ(text.textLength, row.textLength);
  EXPECT_EQ(text.font, row.font) << describe(text.font);
  EXPECT_EQ(text.text, "");
  EXPECT_EQ(out.lines, row.lines);
}

const Length zero = Length::number(0);

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, TextRead, testing::ValuesIn(std::vector<TextRow>{
    {"Nothing", {}, {}, zero, zero, {}, {}, {}, {}, {}},
    {"Positions", {{"x", "10"}, {"y", "2cm"}, {"dx", "1px"}, {"dy", "-1"}, {"textLength", "50%"}},
     {}, Length::number(10), Length::centimeter(2), px(1), num(-1), Length::percentage(50), {}, {}},
    {"PositionListFails", {{"x", "10 20"}}, {}, zero, zero, {}, {}, {}, {}, {unitError("10 20")}},
    {"FontAttributesIgnored", {{"font-size", "12"}, {"font-family", "serif"}, {"font", "bold"}},
     {}, zero, zero, {}, {}, {}, {}, {}},
    {"FontFromStyle", {}, {{"font-size", pixel(12)}}, zero, zero, {}, {}, {}, sized(px(12)), {}},
}), rowName<TextRow>);
// clang-format on

TEST(TextRead, FillsSharedElementAttributes) {
  ReportLines out;
  const auto text =
      SVG::Text::read({{"id", "t"}, {"fill", "none"}, {"class", "c"}}, CSS::Style{}, out.report);
  EXPECT_EQ(text.core.id, "t");
  EXPECT_EQ(text.style.classes, std::vector<std::string>{"c"});
  EXPECT_EQ(text.presentation.fill, SVG::Paint::none());
  EXPECT_TRUE(out.lines.empty());
}

}  // namespace
