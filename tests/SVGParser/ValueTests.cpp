// Value rules below the reading of whole documents that a text table cannot hold: colour
// integers, unit ratios and points, stylesheets, and splitting. The text readers are in
// values.txt.
#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "../../src/SVGParser/TextUtilities.h"
#include "SVGParser/SVG.h"

// Readable failure output for the CSS value types: GoogleTest finds these by argument lookup.
namespace CSSModel {

inline void PrintTo(const Value& value, std::ostream* out) {
  *out << value.description();
}
inline void PrintTo(const Color& color, std::ostream* out) {
  *out << color.description();
}
inline void PrintTo(const UnitLength& length, std::ostream* out) {
  *out << length.description();
}
inline void PrintTo(const Selector& selector, std::ostream* out) {
  static constexpr const char* kinds[] = {"id", "cssClass", "unsupported"};
  *out << '.' << kinds[static_cast<int>(selector.kind)] << "(\"" << selector.text << "\")";
}

}  // namespace CSSModel

namespace {

using Color = CSS::Color;
using Length = CSS::UnitLength;
using Value = CSS::Value;
using Declarations = CSS::Declarations;
using Lines = std::vector<std::string>;
using Pieces = std::vector<std::string_view>;
using namespace SVGParser::text;

Value id(std::string text) {
  return Value{Value::Id{std::move(text)}};
}

TEST(ColorIntegers, PackAndUnpackChannels) {
  EXPECT_EQ(Color::fromInteger(0xFFFFFF), Color::rgb(1, 1, 1));
  EXPECT_EQ(Color::fromInteger(0x1000000), Color::rgba(1 / 255.0, 0, 0, 0));

  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
  struct Row {
    Color color;
    std::optional<std::uint32_t> rgb, rgba;
  };
  const std::vector<Row> rows = {
      {Color::named("yellowgreen"), 0x09ACD3, 0x09ACD3},
      {Color::named("slategray"), std::nullopt, std::nullopt},
      // Truncated, not rounded; a small negative becomes zero.
      {Color::rgb(0.999, 0.5, -0.003), 0xFE7F00, 0xFE7F00},
      {Color::rgba(1, 0, 0, 0.5), 0xFF0000, 0xFF00007F},
      // Unclamped channels spill over; shifted-out bits are lost, but the sum must fit.
      {Color::rgb(300 / 255.0, 0, 0), 0x12C0000, 0x12C0000},
      {Color::rgba(256 / 255.0, 0, 0, 0), 0x1000000, 0x0},
      {Color::rgb(0, 0, 4294967295.0 / 255.0), 0xFFFFFFFF, 0xFFFFFFFF},
      {Color::rgb(1, 0, 4294967295.0 / 255.0), std::nullopt, std::nullopt},
      {Color::rgb(-1 / 255.0, 0, 0), std::nullopt, std::nullopt},
      {Color::rgb(nan, 0, 0), std::nullopt, std::nullopt},
      {Color::rgba(0, 0, 0, nan), 0x0, std::nullopt}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.color.rgbValue(), row.rgb) << row.color.description();
    EXPECT_EQ(row.color.rgbaValue(), row.rgba) << row.color.description();
  }
  EXPECT_EQ(Color::rgba(1, 0, 0, 0.25).description(), ".rgba(1.0, 0.0, 0.0, 0.25)");
}

TEST(UnitConversionTest, PointsNeedEveryMemberInPoints) {
  const SVG::UnitPoint inches{Length::inch(1), Length::pixel(2)};
  EXPECT_EQ(inches.points(), (CGPoint{72, 2}));
  EXPECT_FALSE((SVG::UnitPoint{Length::percentage(1), Length::number(2)}).points());
  EXPECT_FALSE((SVG::UnitSize{Length::number(1), Length::pc(2)}).points());
  const SVG::UnitRect rect{{Length::number(1), Length::number(2)},
                           {Length::number(3), Length::number(4)}};
  EXPECT_EQ(rect.points(), (CGRect{{1, 2}, {3, 4}}));
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
  EXPECT_EQ(Length::fromValue(nullptr, SVGParser::Report()), std::nullopt);
}

// Removing the first comment and searching again from the front can join a "/" and a "*"
// across the removed text; the single pass must give the same text for every arrangement.
TEST(StripComments, AgreesWithRepeatedFirstRemoval) {
  const auto reference = [](std::string text) {
    for (std::size_t open; (open = text.find("/*")) != std::string::npos;) {
      const std::size_t close = text.find("*/", open + 2);
      if (close == std::string::npos) return text.substr(0, open);
      text.erase(open, close + 2 - open);
    }
    return text;
  };
  std::mt19937 random(12345);
  for (int round = 0; round < 20000; ++round) {
    std::string text(random() % 12, ' ');
    for (char& c : text) c = "/*a"[random() % 3];
    ASSERT_EQ(CSS::stripComments(text), reference(text)) << text;
  }
}

// Past a thousand declarations the rest stays in the last value, uncut.
TEST(ParseDeclarations, StopsCuttingAfterAThousand) {
  std::string many;
  for (int i = 0; i < 1002; ++i) many += "p" + std::to_string(i) + ":1;";
  const auto declarations = CSS::parseDeclarations(many);
  EXPECT_EQ(declarations.size(), 1001u);
  EXPECT_EQ(declarations.at("p1000"), id("1;p1001:1;"));
}

TEST(Stylesheet, MergesRulesAndReportsDroppedOnes) {
  Lines lines;
  const CSS css(
      ".a { fill: red; stroke: blue }  #i { fill: green }  .a { fill: yellow; opacity: 1 }"
      "{ fill: black }  rect { fill: gray }  .b{}  .c{ }",
      SVGParser::Report([&lines](std::string_view line) { lines.emplace_back(line); }));
  EXPECT_EQ(
      css.classToStyles.at("a").properties,
      (Declarations{
          {"fill", id("yellow")}, {"stroke", id("blue")}, {"opacity", Value{Value::Number{1}}}}));
  EXPECT_EQ(css.idToStyles.at("i").properties, (Declarations{{"fill", id("green")}}));
  EXPECT_EQ(css.classToStyles.count("b"), 0u);
  EXPECT_TRUE(css.classToStyles.at("c").isEmpty());
  EXPECT_EQ(lines, (Lines{"Unsupported global CSS: [\"fill\": .id(\"black\")]",
                          "Unsupported CSS selector: rect style: [\"fill\": .id(\"gray\")]"}));
}

TEST(Stylesheet, ResolverFoldsClassesThenIdThenStyle) {
  const CSS css(
      ".a { fill: red; stroke: red } .b { fill: blue } #i { fill: green; opacity: 1 }"
      ".c { fill: white !important }",
      SVGParser::Report());
  const Value one{Value::Number{1}};
  const std::vector<std::pair<SVGParser::Attributes, Declarations>> rows = {
      {{}, {}},
      {{{"class", "a  b"}}, {{"fill", id("blue")}, {"stroke", id("red")}}},
      {{{"class", "b a"}}, {{"fill", id("red")}, {"stroke", id("red")}}},
      {{{"class", "c b"}}, {{"fill", id("blue")}}},
      {{{"id", "i"}, {"class", "b"}}, {{"fill", id("green")}, {"opacity", one}}},
      {{{"class", "b"}, {"id", "i"}, {"style", "fill: black"}},
       {{"fill", id("black")}, {"opacity", one}}},
      {{{"class", "a\tb"}}, {}}};
  for (const auto& [attributes, expected] : rows) {
    EXPECT_EQ(css.resolver(attributes).properties, expected) << attributes.description();
  }
}

TEST(SplitTest, DropsEmptyPiecesAndLeavesTheRestAfterTheLastCut) {
  EXPECT_EQ(split("a  b", ' ', 100), (Pieces{"a", "b"}));
  EXPECT_EQ(split(" a b c ", ' ', 1), (Pieces{"a", "b c "}));
  EXPECT_EQ(split("a  b  c", ' ', 1), (Pieces{"a", " b  c"}));
  EXPECT_EQ(split("", ' ', 5), Pieces{});
  EXPECT_EQ(split(";;;", ';', 5), Pieces{});
  EXPECT_EQ(splitAny("0,0 10,,20", " ,", 10), (Pieces{"0", "0", "10", "20"}));
  EXPECT_EQ(splitWhitespace("1,2\n 3,4\xc2\xa0"
                            "5"),
            (Pieces{"1,2", "3,4", "5"}));
}

TEST(SplitTest, AListOfMoreThanAHundredNamesKeepsTheRemainderWhole) {
  std::string classes;
  for (int i = 0; i < 103; ++i) classes += "c" + std::to_string(i) + "  ";
  const auto pieces = split(classes, ' ', 100);
  ASSERT_EQ(pieces.size(), 101u);
  EXPECT_EQ(pieces[99], "c99");
  EXPECT_EQ(pieces[100], " c100  c101  c102  ");
}

}  // namespace
