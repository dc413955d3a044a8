#include <gtest/gtest.h>

#include "ReaderTestSupport.h"

namespace {

using CSS_L = CSS::UnitLength;
using testsupport::only;
using testsupport::read;

SVG::GroupItem readOne(std::string_view element, std::vector<std::string>* lines = nullptr) {
  auto reading = read("<svg>" + std::string(element) + "</svg>");
  if (lines != nullptr) *lines = reading.lines;
  if (!reading.svg || reading.svg->children.size() != 1) {
    ADD_FAILURE() << "no single item for " << element;
    return {};
  }
  return reading.svg->children[0];
}

template <class T>
T readAs(std::string_view element, std::vector<std::string>* lines = nullptr) {
  const auto item = readOne(element, lines);
  if (!std::holds_alternative<T>(item.value)) {
    ADD_FAILURE() << "wrong kind for " << element;
    return T{};
  }
  return std::get<T>(item.value);
}

TEST(RectReaderTest, FillsPositionSizeAndCornersAsWritten) {
  struct Row {
    const char* element;
    std::optional<CSS_L> x, y, width, height, rx, ry;
  };
  const Row rows[] = {
      {"<rect/>", {}, {}, {}, {}, {}, {}},
      {"<rect x=\"5\"/>", CSS_L::number(5), CSS_L::point(0), {}, {}, {}, {}},
      {"<rect y=\"5%\"/>", CSS_L::point(0), CSS_L::percentage(5), {}, {}, {}, {}},
      {"<rect rx=\"3\"/>", {}, {}, {}, {}, CSS_L::number(3), CSS_L::number(3)},
      {"<rect ry=\"2mm\"/>", {}, {}, {}, {}, CSS_L::millimeter(2), CSS_L::millimeter(2)},
      {"<rect rx=\"1\" ry=\"2\"/>", {}, {}, {}, {}, CSS_L::number(1), CSS_L::number(2)},
      {"<rect width=\"1in\" height=\"2px\"/>", {}, {}, CSS_L::inch(1), CSS_L::pixel(2), {}, {}},
      {"<rect style=\"width:3px;height:4;x:7\"/>",
       CSS_L::number(7),
       CSS_L::point(0),
       CSS_L::pixel(3),
       CSS_L::number(4),
       {},
       {}},
      {"<rect width=\"9\" style=\"width:3px\"/>", {}, {}, CSS_L::number(9), {}, {}, {}},
      {"<rect width=\"2em\" style=\"width:3px\"/>", {}, {}, CSS_L::pixel(3), {}, {}, {}},
  };
  for (const auto& row : rows) {
    const auto rect = readAs<SVG::Rect>(row.element);
    EXPECT_EQ(rect.x, row.x) << row.element;
    EXPECT_EQ(rect.y, row.y) << row.element;
    EXPECT_EQ(rect.width, row.width) << row.element;
    EXPECT_EQ(rect.height, row.height) << row.element;
    EXPECT_EQ(rect.rx, row.rx) << row.element;
    EXPECT_EQ(rect.ry, row.ry) << row.element;
  }
}

TEST(CircleAndEllipseReaderTest, MissingOrBadLengthsAreZero) {
  std::vector<std::string> lines;
  const auto circle = readAs<SVG::Circle>("<circle cx=\"1\" r=\"5em\" pathLength=\"3\"/>", &lines);
  EXPECT_EQ(circle.cx, CSS_L::number(1));
  EXPECT_EQ(circle.cy, CSS_L::number(0));
  EXPECT_EQ(circle.r, CSS_L::number(0));
  EXPECT_EQ(circle.pathLength, CSS_L::number(3));
  EXPECT_EQ(lines, std::vector<std::string>{"ERROR: unsupported CSS unit: 5em"});

  const auto ellipse = readAs<SVG::Ellipse>("<ellipse rx=\"4\" style=\"ry:2\"/>");
  EXPECT_EQ(ellipse.rx, CSS_L::number(4));
  EXPECT_EQ(ellipse.ry, CSS_L::number(0));
}

TEST(LineReaderTest, EachEndIsAPointPair) {
  const auto none = readAs<SVG::Line>("<line/>");
  EXPECT_FALSE(none.startPoint);
  EXPECT_FALSE(none.endPoint);
  const auto half = readAs<SVG::Line>("<line x1=\"1\" y2=\"2\"/>");
  EXPECT_EQ(half.startPoint, (SVG::UnitPoint{CSS_L::number(1), CSS_L::point(0)}));
  EXPECT_EQ(half.endPoint, (SVG::UnitPoint{CSS_L::point(0), CSS_L::number(2)}));
}

TEST(PointListTest, ReadsCommaJoinedPairsOnly) {
  using P = SVG::UnitPoint;
  const auto n = [](double v) { return CSS_L::number(v); };
  const std::pair<const char*, std::vector<P>> rows[] = {
      {"", {}},
      {"0,0 10,5", {P{n(0), n(0)}, P{n(10), n(5)}}},
      {"10 20 30", {P{n(10), n(10)}, P{n(20), n(20)}, P{n(30), n(30)}}},
      {"10,20,30,40", {}},
      // XML turns literal tabs into blanks; a tab by reference is no separator, so "\t3" is no length.
      {"1,2&#10;&#9;3,4", {P{n(1), n(2)}}},
      {",5 6,", {P{n(5), n(5)}, P{n(6), n(6)}}},
      {"1,x 2,3", {P{n(2), n(3)}}},
      {"1px,2%", {P{CSS_L::pixel(1), CSS_L::percentage(2)}}},
  };
  for (const auto& [points, expected] : rows) {
    const auto polygon = readAs<SVG::Polygon>("<polygon points=\"" + std::string(points) + "\"/>");
    EXPECT_EQ(polygon.points, expected) << points;
    const auto polyline =
        readAs<SVG::Polyline>("<polyline points=\"" + std::string(points) + "\"/>");
    EXPECT_EQ(polyline.points, expected) << points;
  }
}

TEST(ImageReaderTest, KeepsGeometryAndTransformButNoSource) {
  const auto image = readAs<SVG::Image>(
      "<image xmlns:xlink=\"http://www.w3.org/1999/xlink\" xlink:href=\"a.png\" x=\"1\" "
      "width=\"2\" "
      "transform=\"translate(3)\"/>");
  EXPECT_EQ(image.x, CSS_L::number(1));
  EXPECT_EQ(image.y, CSS_L::point(0));
  EXPECT_EQ(image.width, CSS_L::number(2));
  ASSERT_EQ(image.transform.size(), 1u);
  EXPECT_EQ(image.transform, image.presentation.transform);
}

TEST(CommonAttributesTest, IdClassAndStyleAreKeptAsWritten) {
  const auto empty = readAs<SVG::Circle>("<circle id=\"\" style=\"\"/>");
  EXPECT_EQ(empty.core.id, std::string());
  EXPECT_FALSE(empty.style.style);
  const auto absent = readAs<SVG::Circle>("<circle/>");
  EXPECT_FALSE(absent.core.id);
  const auto named = readAs<SVG::Circle>("<circle id=\"c\" class=\"a  b\" style=\"fill:red\"/>");
  EXPECT_EQ(named.core.id, "c");
  EXPECT_EQ(named.style.classes, (std::vector<std::string>{"a", "b"}));
  EXPECT_EQ(named.style.style, "fill:red");
}

TEST(SvgReaderTest, ReadsSizeOriginAndViewBox) {
  const auto svg = read("<svg x=\"1\" width=\"2cm\" height=\"50%\" viewBox=\"0,0 20 10\"/>").svg;
  ASSERT_TRUE(svg);
  EXPECT_EQ(svg->x, CSS_L::number(1));
  EXPECT_EQ(svg->y, CSS_L::point(0));
  EXPECT_EQ(svg->width, CSS_L::centimeter(2));
  EXPECT_EQ(svg->height, CSS_L::percentage(50));
  EXPECT_EQ(svg->viewBox, (CGRect{{0, 0}, {20, 10}}));
}

TEST(PathReaderTest, PathLengthToleratesNone) {
  EXPECT_FALSE(readAs<SVG::Path>("<path d=\"M0 0\" pathLength=\"none\"/>").pathLength);
  EXPECT_EQ(readAs<SVG::Path>("<path pathLength=\"7\"/>").pathLength, CSS_L::number(7));
  EXPECT_TRUE(readAs<SVG::Path>("<path/>").commands.empty());
}

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
