#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "SVGParser/SVG.h"

namespace {

using Presentation = SVG::PresentationAttributes;
using Paint = SVG::Paint;
using Filter = SVG::Inheritable<std::string>;
using FillRule = SVG::Inheritable<CGPathFillRule>;
using Length = CSS::UnitLength;
using Value = CSS::Value;

struct Row {
  const char* name;
  std::vector<SVGParser::Attributes::Item> attributes;
  CSS::Declarations style;
  // Applied to a freshly declared record to give the expected one.
  std::function<void(Presentation&)> expect;
  std::vector<std::string> reports;
};

void PrintTo(const Row& row, std::ostream* out) {
  *out << row.name;
}

Value id(const char* text) {
  return {Value::Id{text}};
}
Value number(double value) {
  return {Value::Number{value}};
}

const Row kRows[] = {
    {"Defaults", {}, {}, [](Presentation&) {}, {}},
    // Opacity, on a 0 to 100 scale from both sources.
    {"OpacityOne", {{"opacity", "1"}}, {}, [](Presentation& p) { p.opacity = 100; }, {}},
    {"OpacityPercent", {{"opacity", "50%"}}, {}, [](Presentation& p) { p.opacity = 50; }, {}},
    {"OpacityNone", {{"opacity", "none"}}, {}, [](Presentation&) {}, {}},
    {"OpacityFromStyle",
     {},
     {{"opacity", number(0.5)}},
     [](Presentation& p) { p.opacity = 50; },
     {}},
    {"OpacityPercentFromStyle",
     {},
     {{"fill-opacity", Value{Value::PercentValue{30}}}},
     [](Presentation& p) { p.fillOpacity = 30; },
     {}},
    {"OpacityPixelFromStyle",
     {},
     {{"stroke-opacity", Value{Value::Pixel{1}}}},
     [](Presentation&) {},
     {}},
    {"AttributeBeforeStyle",
     {{"stroke-opacity", "0.25"}},
     {{"stroke-opacity", number(1)}},
     [](Presentation& p) { p.strokeOpacity = 25; },
     {}},
    {"FailedAttributeFallsBackToStyle",
     {{"opacity", "x"}},
     {{"opacity", number(0.1)}},
     [](Presentation& p) { p.opacity = 10; },
     {}},
    // Stroke width and miter limit.
    {"StrokeWidth",
     {{"stroke-width", "2px"}},
     {},
     [](Presentation& p) { p.strokeWidth = Length::pixel(2); },
     {}},
    {"StrokeWidthFromStyle",
     {},
     {{"stroke-width", id("1cm")}},
     [](Presentation& p) { p.strokeWidth = Length::centimeter(1); },
     {}},
    {"StrokeWidthBadUnit",
     {{"stroke-width", "5em"}},
     {},
     [](Presentation&) {},
     {"ERROR: unsupported CSS unit: 5em"}},
    {"MiterLimit",
     {{"stroke-miterlimit", "10"}},
     {},
     [](Presentation& p) { p.strokeMiterLimit = Length::number(10); },
     {}},
    // Paints: "none" means something only as an attribute.
    {"FillNone", {{"fill", "none"}}, {}, [](Presentation& p) { p.fill = Paint::none(); }, {}},
    {"FillNoneFromStyle", {}, {{"fill", Value{Value::ExplicitNone{}}}}, [](Presentation&) {}, {}},
    {"FillOneLetterReference",
     {{"fill", "url(#a)"}},
     {},
     [](Presentation& p) { p.fill = Paint::makeDefinition("a"); },
     {}},
    {"FillOneLetterReferenceFromStyle",
     {},
     {{"fill", Value{Value::Url{"#a"}}}},
     [](Presentation&) {},
     {}},
    {"BadPaintFallsBackToStyle",
     {{"fill", "foo(1)"}},
     {{"fill", id("blue")}},
     [](Presentation& p) { p.fill = Paint::makeColor(CSS::Color::named("blue")); },
     {"ERROR: Failed to parse paint: 'foo(1)'"}},
    {"ReportsInFieldOrder",
     {{"stroke", "b(1)"}, {"fill", "a(1)"}, {"stroke-width", "1em"}},
     {},
     [](Presentation&) {},
     {"ERROR: unsupported CSS unit: 1em", "ERROR: Failed to parse paint: 'a(1)'",
      "ERROR: Failed to parse paint: 'b(1)'"}},
    // Caps and joins.
    {"CapRound",
     {{"stroke-linecap", "round"}},
     {},
     [](Presentation& p) { p.strokeLineCap = CGLineCap::round; },
     {}},
    {"CapFromStyle",
     {{"stroke-linecap", "Square"}},
     {{"stroke-linecap", id("square")}},
     [](Presentation& p) { p.strokeLineCap = CGLineCap::square; },
     {}},
    {"JoinMiterClip",
     {{"stroke-linejoin", "miter-clip"}},
     {{"stroke-linejoin", id("round")}},
     [](Presentation&) {},
     {}},
    {"JoinRoundFromStyle",
     {},
     {{"stroke-linejoin", id("round")}},
     [](Presentation& p) { p.strokeLineJoin = CGLineJoin::round; },
     {}},
    // Fill and clip rules are never read.
    {"RulesIgnored",
     {{"fill-rule", "evenodd"}, {"clip-rule", "evenodd"}},
     {{"fill-rule", id("evenodd")}},
     [](Presentation&) {},
     {}},
    // Transforms come from the attribute only.
    {"Transform",
     {{"transform", "translate(1,2) scale(3)"}},
     {},
     [](Presentation& p) {
       p.transform = {{SVG::Transform::Translate{1, 2}}, {SVG::Transform::Scale{3, 3}}};
     },
     {}},
    {"TransformFromStyleIgnored",
     {},
     {{"transform", Value{Value::Function{"scale", {"2"}}}}},
     [](Presentation&) {},
     {}},
    // Filters: the attribute keeps words as they are; the stylesheet interprets them.
    {"FilterUrl",
     {{"filter", "url(#f)"}},
     {},
     [](Presentation& p) { p.filter = Filter::some("#f"); },
     {}},
    {"FilterUrlQuoted",
     {{"filter", "url('#f')"}},
     {},
     [](Presentation& p) { p.filter = Filter::some("'#f'"); },
     {}},
    {"FilterWord",
     {{"filter", "none"}},
     {},
     [](Presentation& p) { p.filter = Filter::some("none"); },
     {}},
    {"FilterEmptyHidesStyle", {{"filter", ""}}, {{"filter", id("x")}}, [](Presentation&) {}, {}},
    {"FilterOtherFunction", {{"filter", "blur(2)"}}, {}, [](Presentation&) {}, {}},
    {"FilterUrlWithoutArgument", {{"filter", "url()"}}, {}, [](Presentation&) {}, {}},
    {"FilterInheritFromStyle",
     {},
     {{"filter", id("inherit")}},
     [](Presentation& p) { p.filter = Filter::inherit(); },
     {}},
    {"FilterIdFromStyle",
     {},
     {{"filter", id("shadow")}},
     [](Presentation& p) { p.filter = Filter::some("shadow"); },
     {}},
    {"FilterUrlFromStyle",
     {},
     {{"filter", Value{Value::Url{"#f"}}}},
     [](Presentation& p) { p.filter = Filter::some("#f"); },
     {}},
    {"FilterNoneFromStyle",
     {},
     {{"filter", Value{Value::ExplicitNone{}}}},
     [](Presentation&) {},
     {}},
};

class PresentationTest : public testing::TestWithParam<Row> {};

TEST_P(PresentationTest, Reads) {
  const Row& row = GetParam();
  std::vector<std::string> reports;
  const SVGParser::Report report([&](std::string_view line) { reports.emplace_back(line); });
  Presentation expected;
  row.expect(expected);
  const CSS::Style style{row.style};
  EXPECT_EQ(Presentation::read(SVGParser::Attributes(row.attributes), style, report), expected);
  EXPECT_EQ(reports, row.reports);
}

INSTANTIATE_TEST_SUITE_P(Rows, PresentationTest, testing::ValuesIn(kRows),
                         [](const auto& info) { return std::string(info.param.name); });

struct KeywordRow {
  std::optional<std::string> text;
  std::optional<CGLineCap> cap;
  std::optional<CGLineJoin> join;
  FillRule fillRule;
};

class KeywordTest : public testing::TestWithParam<KeywordRow> {};

TEST_P(KeywordTest, Reads) {
  const KeywordRow& row = GetParam();
  EXPECT_EQ(SVGModel::parseLineCap(row.text), row.cap);
  EXPECT_EQ(SVGModel::parseLineJoin(row.text), row.join);
  EXPECT_EQ(SVGModel::parseFillRule(row.text), row.fillRule);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, KeywordTest,
    testing::Values(
        KeywordRow{std::nullopt, std::nullopt, std::nullopt, FillRule::none()},
        KeywordRow{"", std::nullopt, std::nullopt, FillRule::none()},
        KeywordRow{"butt", CGLineCap::butt, std::nullopt, FillRule::none()},
        KeywordRow{"round", CGLineCap::round, CGLineJoin::round, FillRule::none()},
        KeywordRow{"square", CGLineCap::square, std::nullopt, FillRule::none()},
        KeywordRow{"bevel", std::nullopt, CGLineJoin::bevel, FillRule::none()},
        KeywordRow{"miter", std::nullopt, CGLineJoin::miter, FillRule::none()},
        KeywordRow{"miter-clip", std::nullopt, CGLineJoin::miter, FillRule::none()},
        KeywordRow{"arcs", std::nullopt, std::nullopt, FillRule::none()},
        KeywordRow{"Round", std::nullopt, std::nullopt, FillRule::none()},
        KeywordRow{"evenodd", std::nullopt, std::nullopt, FillRule::some(CGPathFillRule::evenOdd)},
        KeywordRow{"nonzero", std::nullopt, std::nullopt, FillRule::some(CGPathFillRule::winding)},
        KeywordRow{"inherit", std::nullopt, std::nullopt, FillRule::inherit()},
        KeywordRow{"EvenOdd", std::nullopt, std::nullopt, FillRule::none()}));

TEST(KeywordTest, StyleValuesMustBeIds) {
  const Value round = id("round");
  const Value url{Value::Url{"round"}};
  EXPECT_EQ(SVGModel::lineCapFromValue(&round), CGLineCap::round);
  EXPECT_EQ(SVGModel::lineJoinFromValue(&round), CGLineJoin::round);
  EXPECT_EQ(SVGModel::lineCapFromValue(&url), std::nullopt);
  EXPECT_EQ(SVGModel::lineJoinFromValue(nullptr), std::nullopt);
}

}  // namespace
