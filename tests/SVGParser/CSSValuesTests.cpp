#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "CSSPrinters.h"
#include "SVGParser/CSS.h"

namespace {

using Length = CSS::UnitLength;
using Value = CSS::Value;
using Lines = std::vector<std::string>;
constexpr double inf = std::numeric_limits<double>::infinity();

SVGParser::Report collect(Lines& lines) {
  return SVGParser::Report([&lines](std::string_view line) { lines.emplace_back(line); });
}

TEST(ParseNumber, ReadsTheWholeTextAsStrtodDoes) {
  const std::vector<std::pair<std::string, std::optional<double>>> rows = {
      {"10", 10},
      {"-2.5", -2.5},
      {"+3", 3},
      {".5", 0.5},
      {"5.", 5},
      {"1E-2", 0.01},
      {"2e+2", 200},
      {"0x1p3", 8},
      {"-0X10", -16},
      {"-Infinity", -inf},
      {"+INF", inf},
      {"1e400", inf},
      {"1e-400", 0.0},
      {"", std::nullopt},
      {" 12", std::nullopt},
      {"\t12", std::nullopt},
      {"12 ", std::nullopt},
      {"12abc", std::nullopt},
      {"1e", std::nullopt},
      {"+-1", std::nullopt},
      {"0x", std::nullopt},
      {".", std::nullopt},
      {"1,5", std::nullopt},
      {"10px", std::nullopt},
      {"infinit", std::nullopt},
      {std::string("1\0", 2), std::nullopt},
      {std::string("\0"
                   "1",
                   2),
       std::nullopt}};
  for (const auto& [text, expected] : rows) EXPECT_EQ(CSS::parseNumber(text), expected) << text;
  for (const char* text : {"nan", "-NaN", "NAN(123)"}) {
    EXPECT_TRUE(std::isnan(CSS::parseNumber(text).value_or(0))) << text;
  }
}

TEST(ParseOpacity, ScalesToAHundredWithoutClamping) {
  const std::vector<std::pair<std::optional<std::string_view>, std::optional<double>>> rows = {
      {std::nullopt, std::nullopt}, {"", std::nullopt},    {"0.5", 50}, {"50%", 50}, {"150%", 150},
      {"50 %", std::nullopt},       {" 0.5", std::nullopt}};
  for (const auto& [text, expected] : rows) EXPECT_EQ(CSS::parseOpacity(text), expected);
}

TEST(ParseFunction, SplitsAtCommasOnly) {
  using F = Value::Function;
  const std::vector<std::pair<std::string, std::optional<F>>> rows = {
      {"rgb(1, 2, 3)", F{"rgb", {"1", "2", "3"}}},
      {"  Blur ( 4 ) ", F{"Blur", {"4"}}},
      {"f(,,)", F{"f", {}}},
      {"f(a, ,b)", F{"f", {"a", "", "b"}}},
      {"f(1 2 3)", F{"f", {"1 2 3"}}},
      {"f(a)b)", F{"f", {"a)b"}}},
      {"f(a) tail", F{"f", {"a"}}},
      {" (1)", std::nullopt},
      {"f(1", std::nullopt},
      {"f)(", std::nullopt}};
  for (const auto& [text, expected] : rows) EXPECT_EQ(CSS::parseFunction(text), expected) << text;
}

TEST(ParseRect, TakesTwoOrFourNumbers) {
  struct Row {
    std::optional<std::string> text;
    std::optional<CGRect> expected;
    bool reported;
  };
  const std::vector<Row> rows = {
      {"0 0 100 50", CGRect{{0, 0}, {100, 50}}, false},
      {"100 50", CGRect{{0, 0}, {100, 50}}, false},
      {"0 0 a 100 50", CGRect{{0, 0}, {100, 50}}, false},
      // A line feed or tab inside a piece spoils it; at the ends the trim takes a line feed off.
      {"0 0\n100 50", CGRect{{0, 0}, {0, 50}}, false},
      {"0\t0 100 50", CGRect{{0, 0}, {100, 50}}, false},
      {" 0 0 100 50\n", CGRect{{0, 0}, {100, 50}}, false},
      {"1 2 3 4 x x x x x x 5 6", CGRect{{1, 2}, {3, 4}}, false},  // "5 6" stays one piece
      {"0 0 100", std::nullopt, true},
      {"1 2 3 4 5 6 7 8 9 10 11", std::nullopt, true},
      {"", std::nullopt, false},
      {std::nullopt, std::nullopt, false}};
  for (const auto& row : rows) {
    Lines lines;
    const auto text = row.text ? std::optional<std::string_view>(*row.text) : std::nullopt;
    EXPECT_EQ(CSS::parseRect(text, collect(lines)), row.expected) << row.text.value_or("-");
    EXPECT_EQ(lines,
              row.reported ? Lines{"Unexpected CGRect value: '" + *row.text + "'"} : Lines{});
  }
}

TEST(UnitLengthParse, ReadsSuffixesInOrder) {
  const std::vector<std::pair<std::string, std::optional<Length>>> rows = {
      {"10", Length::number(10)},
      {"10px", Length::pixel(10)},
      {"12pt", Length::point(12)},
      {".5in", Length::inch(0.5)},
      {"2cm", Length::centimeter(2)},
      {"infpx", Length::pixel(inf)},
      // Each of these prints the unit message.
      {"1em", std::nullopt},
      {"2pc", std::nullopt},
      {"10PX", std::nullopt},
      {" 10", std::nullopt},
      {"px", std::nullopt},
      {"10pt%", std::nullopt},
      {"none", std::nullopt}};
  for (const auto& [text, expected] : rows) {
    Lines lines;
    EXPECT_EQ(Length::parse(text, collect(lines)), expected) << text;
    EXPECT_EQ(lines, expected ? Lines{} : Lines{"ERROR: unsupported CSS unit: " + text});
  }
}

TEST(UnitLengthParse, NothingAndNoneAreSilent) {
  Lines lines;
  const auto report = collect(lines);
  EXPECT_EQ(Length::parse("", report), std::nullopt);
  EXPECT_EQ(Length::parseOrNone("none", report), std::nullopt);
  EXPECT_EQ(Length::parseOrNone(std::nullopt, report), std::nullopt);
  EXPECT_EQ(Length::parseOrNone("4mm", report), Length::millimeter(4));
  EXPECT_EQ(lines, Lines{});
}

TEST(UnitLengthFromValue, MapsNumbersAndReadsWords) {
  const std::vector<std::pair<Value, std::optional<Length>>> rows = {
      {{Value::Number{3}}, Length::number(3)},
      {{Value::Pixel{4}}, Length::pixel(4)},
      {{Value::PercentValue{50}}, Length::percentage(50)},
      {{Value::Id{"1cm"}}, Length::centimeter(1)},
      {{Value::Auto{}}, std::nullopt},
      {{Value::Url{"1"}}, std::nullopt}};
  Lines lines;
  for (const auto& [value, expected] : rows)
    EXPECT_EQ(Length::fromValue(&value, collect(lines)), expected);
  EXPECT_EQ(Length::fromValue(nullptr, collect(lines)), std::nullopt);
  const Value em{Value::Id{"2em"}};
  EXPECT_EQ(Length::fromValue(&em, collect(lines)), std::nullopt);
  EXPECT_EQ(lines, Lines{"ERROR: unsupported CSS unit: 2em"});
}

TEST(UnitLengthRatio, DividesByTheUnitRules) {
  struct Row {
    Length left, right;
    std::optional<double> expected;
  };
  const std::vector<Row> rows = {
      {Length::number(10), Length::number(4), 2.5},
      {Length::number(10), Length::percentage(50), 20},
      {Length::number(10), Length::inch(1), 10},
      {Length::number(10), Length::pc(1), 10},
      {Length::percentage(50), Length::number(2), 0.25},
      {Length::percentage(50), Length::percentage(25), 2},
      {Length::percentage(50), Length::pixel(3), 0.5},
      {Length::inch(1), Length::point(36), 2},
      // The two factors of a centimetre apply in turn; grouping them changes the last bit.
      {Length::centimeter(0.7), Length::pixel(1), 0.7 * 10.0 * 2.8346456693},
      {Length::millimeter(3), Length::number(1), 3 * 2.8346456693},
      {Length::point(10), Length::percentage(50), std::nullopt},
      {Length::millimeter(10), Length::pc(1), std::nullopt},
      {Length::pc(1), Length::number(1), std::nullopt}};
  for (const auto& row : rows) {
    EXPECT_EQ(Length::ratio(row.left, row.right), row.expected)
        << row.left.description() << " / " << row.right.description();
  }
  EXPECT_EQ(Length::percentage(5).points(), std::nullopt);
}

TEST(ValueParse, ClassifiesDeclarationValues) {
  using V = Value;
  const std::vector<std::pair<std::string, V>> rows = {
      {"", {V::Auto{}}},
      {"none", {V::ExplicitNone{}}},
      {"None", {V::Id{"None"}}},
      {"red !important", {V::Id{"red"}}},
      {"!important", {V::Auto{}}},
      {"red ! important", {V::Id{"red ! important"}}},
      {"url( #grad )", {V::Url{"#grad"}}},
      {"url(", {V::Url{""}}},
      {"url(#a) x", {V::Url{"#a)"}}},
      {"url(#a\u00e9", {V::Url{"#a"}}},
      {"50%", {V::PercentValue{50}}},
      {"3px", {V::Pixel{3}}},
      {"1cm", {V::Id{"1cm"}}},
      {"%", {V::Id{"%"}}},
      {"rgb(1, 2)", {V::Function{"rgb", {"1", "2"}}}},
      {"#fff", {V::Id{"#fff"}}}};
  for (const auto& [text, expected] : rows) EXPECT_EQ(Value::parse(text), expected) << text;
}

TEST(Descriptions, UseSwiftNumberText) {
  EXPECT_EQ(Length::number(10).description(), "10.0");
  EXPECT_EQ(Length::inch(2).description(), "2.0\"");
  EXPECT_EQ(Length::centimeter(1e16).description(), "1e+16cm");
  EXPECT_EQ(Length::percentage(1e-05).description(), "1e-05%");
  EXPECT_EQ(Value{Value::PercentValue{50}}.description(), ".percentValue(50.0)");
}

}  // namespace
