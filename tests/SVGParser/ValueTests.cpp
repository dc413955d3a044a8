// Value rules below the reading of whole documents: colour integers, the colour name table,
// stroke keywords and unit points.
#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "CSSPrinters.h"
#include "SVGParser/SVG.h"

namespace {

using Color = CSS::Color;
using FillRule = SVG::Inheritable<CGPathFillRule>;
using CSS_L = CSS::UnitLength;

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
}

TEST(NamedColors, TableKeepsItsOwnRows) {
  const std::vector<std::pair<std::string_view, std::optional<std::uint32_t>>> rows = {
      {"aliceblue", 0xF0F8FF},
      {"yellowgreen", 0x09ACD3},
      {"currentcolor", 0},
      {"slategrey", 0x708090},
      {"darkslategray", 0x2F4F4F},
      {"lightslategray", 0x778899},
      {"rebeccapurple", std::nullopt},
      {"slategray", std::nullopt},
      {"Red", std::nullopt},
      {"", std::nullopt}};
  for (const auto& [name, value] : rows) EXPECT_EQ(CSS::namedColorValue(name), value) << name;
  EXPECT_EQ(Color::rgba(1, 0, 0, 0.25).description(), ".rgba(1.0, 0.0, 0.0, 0.25)");
}

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

TEST(UnitConversionTest, PointsNeedEveryMemberInPoints) {
  const SVG::UnitPoint inches{CSS_L::inch(1), CSS_L::pixel(2)};
  EXPECT_EQ(inches.points(), (CGPoint{72, 2}));
  EXPECT_FALSE((SVG::UnitPoint{CSS_L::percentage(1), CSS_L::number(2)}).points());
  EXPECT_FALSE((SVG::UnitSize{CSS_L::number(1), CSS_L::pc(2)}).points());
  const SVG::UnitRect rect{{CSS_L::number(1), CSS_L::number(2)},
                           {CSS_L::number(3), CSS_L::number(4)}};
  EXPECT_EQ(rect.points(), (CGRect{{1, 2}, {3, 4}}));
}

}  // namespace
