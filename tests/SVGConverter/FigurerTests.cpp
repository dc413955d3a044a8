#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <typeinfo>
#include <vector>

#include "ConverterTestSupport.h"

using namespace ConverterTest;
using SwiftUIModel::ContainerViewType;
using SwiftUIModel::Paint;
using SwiftUIModel::PathCommand;
using SwiftUIModel::Subview;

namespace {

// ---- Attribute inheritance -------------------------------------------------------------

struct InheritRow {
  const char* label;
  std::function<void(SVG::PresentationAttributes&)> parent;
  std::function<void(SVG::PresentationAttributes&)> own;
  std::function<void(const SVG::PresentationAttributes&)> check;
};

class Inheritance : public testing::TestWithParam<InheritRow> {};

TEST_P(Inheritance, MergesWithTheTop) {
  SVGSwiftUIFigurer figurer;
  figurer.pushAttributes(SVGSwiftUIFigurer::defaultAttributes());
  SVG::PresentationAttributes parent, own;
  GetParam().parent(parent);
  GetParam().own(own);
  figurer.pushAttributes(parent);
  figurer.pushAttributes(own);
  GetParam().check(figurer.currentAttributes());
  figurer.popAttributes();
  figurer.popAttributes();
  EXPECT_EQ(figurer.attributeStack.size(), 1u);
}

using PA = SVG::PresentationAttributes;
const auto nothing = [](PA&) {};

INSTANTIATE_TEST_SUITE_P(
    Rows, Inheritance,
    testing::Values(
        InheritRow{"defaultFillIsBlack", nothing, nothing,
                   [](const PA& m) { EXPECT_EQ(m.fill, color("black")); }},
        InheritRow{"ownFillWins", [](PA& p) { p.fill = color("red"); },
                   [](PA& o) { o.fill = color("blue"); },
                   [](const PA& m) { EXPECT_EQ(m.fill, color("blue")); }},
        InheritRow{"fillFromParent", [](PA& p) { p.fill = color("red"); }, nothing,
                   [](const PA& m) { EXPECT_EQ(m.fill, color("red")); }},
        InheritRow{"opacitiesInherit",
                   [](PA& p) {
                     p.opacity = 10;
                     p.fillOpacity = 20;
                     p.strokeOpacity = 30;
                   },
                   nothing,
                   [](const PA& m) {
                     EXPECT_EQ(m.opacity, 10);
                     EXPECT_EQ(m.fillOpacity, 20);
                     EXPECT_EQ(m.strokeOpacity, 30);
                   }},
        InheritRow{"strokeFieldsInherit",
                   [](PA& p) {
                     p.stroke = color("red");
                     p.strokeWidth = UL::number(3);
                     p.strokeLineCap = CGLineCap::round;
                   },
                   [](PA& o) {
                     o.strokeLineCap.reset();
                     o.strokeLineJoin = CGLineJoin::bevel;
                   },
                   [](const PA& m) {
                     EXPECT_EQ(m.stroke, color("red"));
                     EXPECT_EQ(m.strokeWidth, UL::number(3));
                     EXPECT_EQ(m.strokeLineCap, CGLineCap::round);
                     EXPECT_EQ(m.strokeLineJoin, CGLineJoin::bevel);
                   }},
        InheritRow{"filterIsNotRepeated",
                   [](PA& p) { p.filter = SVG::Inheritable<std::string>::some("#f"); }, nothing,
                   [](const PA& m) { EXPECT_EQ(m.filter, SVG::Inheritable<std::string>::none()); }},
        InheritRow{
            "filterInheritedWhenAsked",
            [](PA& p) { p.filter = SVG::Inheritable<std::string>::some("#f"); },
            [](PA& o) { o.filter = SVG::Inheritable<std::string>::inherit(); },
            [](const PA& m) { EXPECT_EQ(m.filter, SVG::Inheritable<std::string>::some("#f")); }},
        InheritRow{"transformIsOwn",
                   [](PA& p) {
                     p.transform = {SVG::Transform{SVG::Transform::Scale{2, 2}}};
                   },
                   nothing, [](const PA& m) { EXPECT_TRUE(m.transform.empty()); }}),
    [](const auto& info) { return std::string(info.param.label); });

TEST(Inheritance, GroupFillOpacityReachesShapesBelow) {
  SVG::Group group = groupOf({item(circle(1, 1, 1))});
  group.presentation.fillOpacity = 50;
  group.presentation.fill = color("red");
  const auto result = model(svgOf({item(group)}));
  const auto& view = child<SwiftUIModel::CircleViewType>(child<ContainerViewType>(result, 0), 0);
  EXPECT_EQ(view.drawing.fill, Paint::color(CSS::Color::named("red"), 50));
}

// ---- Sizes and view boxes --------------------------------------------------------------

struct SizeRow {
  const char* label;
  std::optional<UL> width, height;
  std::optional<CGRect> viewBox;
  std::optional<CGSize> intrinsicSize;
  std::optional<CGRect> keptViewBox;
  SwiftUIModel::Resizable resizable;
  std::optional<CGSize> sizeSeenByChildren;
};

class Sizes : public testing::TestWithParam<SizeRow> {};

// A nested `svg` with only a width takes its height from the size stack, one with only a
// height its width: together they show what the parent pushed.
TEST_P(Sizes, SetSizeViewBoxAndSizeStack) {
  const auto& row = GetParam();
  SVG onlyWidth, onlyHeight;
  onlyWidth.width = UL::number(7);
  onlyHeight.height = UL::number(7);
  SVG svg = svgOf({item(onlyWidth), item(onlyHeight)});
  svg.width = row.width;
  svg.height = row.height;
  svg.viewBox = row.viewBox;
  const auto result = model(svg);
  EXPECT_EQ(result.intrinsicSize, row.intrinsicSize);
  EXPECT_EQ(result.viewBox, row.keptViewBox);
  EXPECT_EQ(result.resizable, row.resizable);
  const auto& first = child<ContainerViewType>(result, 0);
  const auto& second = child<ContainerViewType>(result, 1);
  if (row.sizeSeenByChildren) {
    EXPECT_EQ(first.intrinsicSize, (CGSize{7, row.sizeSeenByChildren->height}));
    EXPECT_EQ(second.intrinsicSize, (CGSize{row.sizeSeenByChildren->width, 7}));
  } else {
    EXPECT_EQ(first.intrinsicSize, std::nullopt);
    EXPECT_EQ(first.resizable, (SwiftUIModel::Resizable{7, std::nullopt}));
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, Sizes,
                         testing::Values(SizeRow{"viewBoxSameAsSize",
                                                 UL::number(100),
                                                 UL::number(50),
                                                 CGRect{{0, 0}, {100, 50}},
                                                 CGSize{100, 50},
                                                 std::nullopt,
                                                 {100, 50},
                                                 CGSize{100, 50}},
                                         SizeRow{"viewBoxDiffers",
                                                 UL::number(100),
                                                 UL::number(50),
                                                 CGRect{{0, 0}, {200, 100}},
                                                 CGSize{100, 50},
                                                 CGRect{{0, 0}, {200, 100}},
                                                 {100, 50},
                                                 CGSize{200, 100}},
                                         SizeRow{"viewBoxOffset",
                                                 UL::number(100),
                                                 UL::number(50),
                                                 CGRect{{1, 0}, {100, 50}},
                                                 CGSize{100, 50},
                                                 CGRect{{1, 0}, {100, 50}},
                                                 {100, 50},
                                                 CGSize{100, 50}},
                                         SizeRow{"onlyViewBox",
                                                 std::nullopt,
                                                 std::nullopt,
                                                 CGRect{{0, 0}, {30, 40}},
                                                 std::nullopt,
                                                 CGRect{{0, 0}, {30, 40}},
                                                 {},
                                                 CGSize{30, 40}},
                                         SizeRow{"noSizeAtAll",
                                                 std::nullopt,
                                                 std::nullopt,
                                                 std::nullopt,
                                                 std::nullopt,
                                                 std::nullopt,
                                                 {},
                                                 std::nullopt},
                                         SizeRow{"outermostWidthOnly",
                                                 UL::number(100),
                                                 std::nullopt,
                                                 std::nullopt,
                                                 std::nullopt,
                                                 std::nullopt,
                                                 {100, std::nullopt},
                                                 std::nullopt},
                                         SizeRow{"percentageCountsAsMissing",
                                                 UL::percentage(100),
                                                 UL::number(50),
                                                 std::nullopt,
                                                 std::nullopt,
                                                 std::nullopt,
                                                 {std::nullopt, 50},
                                                 std::nullopt},
                                         SizeRow{"unitsConvertToPoints",
                                                 UL::inch(1),
                                                 UL::centimeter(1),
                                                 std::nullopt,
                                                 CGSize{72, 1 * 10.0 * 2.8346456693},
                                                 std::nullopt,
                                                 {72, 1 * 10.0 * 2.8346456693},
                                                 CGSize{72, 1 * 10.0 * 2.8346456693}}),
                         [](const auto& info) { return std::string(info.param.label); });

TEST(Sizes, NestedWidthOnlyTakesHeightFromParent) {
  SVG nested;
  nested.width = UL::number(100);
  SVG svg = svgOf({item(nested)});
  svg.width = UL::number(300);
  svg.height = UL::number(200);
  const auto result = model(svg);
  const auto& inner = child<ContainerViewType>(result, 0);
  EXPECT_EQ(inner.intrinsicSize, (CGSize{100, 200}));
  EXPECT_EQ(inner.resizable, (SwiftUIModel::Resizable{100, 200}));
}

TEST(Containers, OriginNamesAndTransforms) {
  SVG nested = withID(SVG{}, "inner-svg");
  nested.x = UL::number(5);
  SVG::Group group;
  group.presentation.transform = {SVG::Transform{SVG::Transform::Translate{1, 2}}};
  SVG svg = svgOf({item(group), item(nested), item(SVG::Group{})});
  const auto result = model(svg);
  EXPECT_EQ(result.typeName, "Group1");
  EXPECT_EQ(result.origin, std::nullopt);
  const auto& g = child<ContainerViewType>(result, 0);
  EXPECT_EQ(g.typeName, "Group2");
  EXPECT_EQ(
      g.transform,
      (std::vector<SwiftUIModel::TransformStep>{SwiftUIModel::TransformStep::translate(1, 2)}));
  EXPECT_EQ(result.childTypes[0].kind, Subview::Kind::group);
  EXPECT_EQ(result.childTypes[1].kind, Subview::Kind::svg);
  const auto& s = child<ContainerViewType>(result, 1);
  EXPECT_EQ(s.typeName, "Inner_svg");
  EXPECT_EQ(s.origin, (CGPoint{5, 0}));
  EXPECT_EQ(child<ContainerViewType>(result, 2).typeName, "Group3");
}

TEST(Containers, GivenNameIsUsedAsItIsAndTakesNoNumber) {
  const auto result = SVGSwiftUIFigurer::makeModel(svgOf({item(SVG::Group{})}), "my-View", {});
  EXPECT_EQ(result.typeName, "my-View");
  EXPECT_EQ(child<ContainerViewType>(result, 0).typeName, "Group1");
}

TEST(Containers, ImagesAreReportedAndLeaveNoTrace) {
  Collected collected;
  const auto result =
      model(svgOf({item(groupOf({item(SVG::Image{}), item(SVG::Image{})}))}), &collected);
  EXPECT_TRUE(child<ContainerViewType>(result, 0).childTypes.empty());
  EXPECT_EQ(collected.lines,
            (std::vector<std::string>(2, "SVG image nodes are not supported, sorry!")));
}

TEST(Containers, IdsAreRecordedWithTheirViewNames) {
  SVGSwiftUIFigurer figurer;
  figurer.pushAttributes(SVGSwiftUIFigurer::defaultAttributes());
  SVG::Text text;
  const SVG svg = svgOf({item(withID(circle(0, 0, 1), "c")), item(withID(circle(0, 0, 1), "c")),
                         item(withID(text, "t"))});
  figurer.convert(svg, "");
  ASSERT_EQ(figurer.svgID2Node.size(), 2u);
  EXPECT_EQ(figurer.svgID2Node.at("c").typeName, "Circle1");
  EXPECT_EQ(figurer.svgID2Node.at("c").node, &svg.children[1]);
  EXPECT_EQ(figurer.svgID2Node.at("t").typeName, "");
}

// Deep documents are cut at a fixed depth with one report, so nothing that walks the model
// afterwards can run out of stack.
TEST(Containers, NestingBeyondTheLimitIsDroppedWithAReport) {
  SVG::Group deepest = groupOf({item(circle(0, 0, 1))});
  for (int i = 0; i < 400; ++i) deepest = groupOf({item(std::move(deepest))});
  Collected collected;
  const auto result = model(svgOf({item(std::move(deepest))}), &collected);
  std::size_t depth = 1;
  const ContainerViewType* level = &result;
  while (!level->childTypes.empty()) {
    level = &child<ContainerViewType>(*level, 0);
    ++depth;
  }
  EXPECT_EQ(depth, SVGSwiftUIFigurer::maximumNesting);
  ASSERT_EQ(collected.lines.size(), 1u);
  EXPECT_NE(collected.lines[0].find("dropping: g"), std::string::npos) << collected.lines[0];
}

// ---- Shapes ----------------------------------------------------------------------------

struct FrameRow {
  const char* label;
  SVG::GroupItem element;
  std::optional<CGPoint> origin;
  std::optional<CGSize> size;
};

class Frames : public testing::TestWithParam<FrameRow> {};

TEST_P(Frames, FollowTheFrameRule) {
  const auto result = model(svgOf({GetParam().element}));
  std::visit(
      [&](const auto& view) {
        using T = std::decay_t<decltype(view)>;
        if constexpr (requires {
                        view.drawing;
                        view.origin;
                      }) {
          EXPECT_EQ(view.origin, GetParam().origin);
          EXPECT_EQ(view.intrinsicSize, GetParam().size);
        } else {
          ADD_FAILURE() << "not a shape view: " << typeid(T).name();
        }
      },
      result.childTypes.at(0).value);
}

SVG::Ellipse ellipse(UL cx, UL cy, UL rx, UL ry) {
  SVG::Ellipse e;
  e.cx = cx;
  e.cy = cy;
  e.rx = rx;
  e.ry = ry;
  return e;
}

SVG::Rect rect(std::optional<UL> x, std::optional<UL> y, std::optional<UL> w, std::optional<UL> h) {
  SVG::Rect r;
  r.x = x;
  r.y = y;
  r.width = w;
  r.height = h;
  return r;
}

SVG::Circle circleOf(UL cx, UL cy, UL r) {
  SVG::Circle c;
  c.cx = cx;
  c.cy = cy;
  c.r = r;
  return c;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Frames,
    testing::Values(
        FrameRow{"circle", item(circle(20, 30, 10)), CGPoint{10, 20}, CGSize{20, 20}},
        FrameRow{"circlePercentRadius",
                 item(circleOf(UL::number(20), UL::number(30), UL::percentage(50))), std::nullopt,
                 std::nullopt},
        FrameRow{"circlePercentCentre",
                 item(circleOf(UL::percentage(50), UL::number(30), UL::number(10))), CGPoint{0, 20},
                 CGSize{20, 20}},
        FrameRow{"circleBothCentresValueless",
                 item(circleOf(UL::percentage(5), UL::percentage(5), UL::number(10))), std::nullopt,
                 CGSize{20, 20}},
        FrameRow{"ellipse",
                 item(ellipse(UL::number(10), UL::number(10), UL::number(5), UL::number(2))),
                 CGPoint{5, 8}, CGSize{10, 4}},
        FrameRow{"ellipsePercentRyTakesRx",
                 item(ellipse(UL::number(10), UL::number(10), UL::number(10), UL::percentage(3))),
                 CGPoint{0, 0}, CGSize{20, 20}},
        FrameRow{"ellipsePercentRx",
                 item(ellipse(UL::number(10), UL::number(10), UL::percentage(3), UL::number(10))),
                 std::nullopt, std::nullopt},
        FrameRow{"rect", item(rect(UL::number(1), UL::number(2), UL::number(3), UL::number(4))),
                 CGPoint{1, 2}, CGSize{3, 4}},
        FrameRow{"rectXOnly", item(rect(UL::number(5), std::nullopt, std::nullopt, std::nullopt)),
                 CGPoint{5, 0}, std::nullopt},
        FrameRow{"rectNoPosition",
                 item(rect(std::nullopt, std::nullopt, UL::number(3), UL::number(4))), std::nullopt,
                 CGSize{3, 4}},
        FrameRow{"rectWidthOnly",
                 item(rect(std::nullopt, std::nullopt, UL::number(3), std::nullopt)), std::nullopt,
                 std::nullopt},
        FrameRow{"rectPercentYWithX",
                 item(rect(UL::number(5), UL::percentage(1), std::nullopt, std::nullopt)),
                 CGPoint{5, 0}, std::nullopt}),
    [](const auto& info) { return std::string(info.param.label); });

TEST(Shapes, RectCornerRadiusComesFromRxOnly) {
  SVG::Rect onlyRy, both, zero;
  onlyRy.ry = UL::number(3);
  both.rx = UL::number(2);
  both.ry = UL::number(9);
  zero.rx = UL::number(0);
  const auto result = model(svgOf({item(onlyRy), item(both), item(zero)}));
  EXPECT_EQ(child<SwiftUIModel::RectangleViewType>(result, 0).cornerRadius, std::nullopt);
  EXPECT_EQ(child<SwiftUIModel::RectangleViewType>(result, 1).cornerRadius, 2);
  EXPECT_EQ(child<SwiftUIModel::RectangleViewType>(result, 2).cornerRadius, 0);
  EXPECT_EQ(child<SwiftUIModel::RectangleViewType>(result, 0).typeName, "Reactangle1");
}

TEST(Shapes, PathLikeOutlines) {
  SVG::Line line;
  line.startPoint = SVG::UnitPoint{UL::percentage(10), UL::number(5)};
  line.endPoint = SVG::UnitPoint{UL::number(3), UL::pixel(4)};
  SVG::Polygon polygon;
  polygon.points = {{UL::number(1), UL::number(2)}, {UL::number(3), UL::percentage(4)}};
  SVG::Polyline polyline;
  const auto result = model(svgOf({item(line), item(polygon), item(polyline)}));
  using V = std::vector<PathCommand>;
  EXPECT_EQ(child<SwiftUIModel::PathViewType>(result, 0).shapeType.path,
            (V{PathCommand::moveTo({0, 0}), PathCommand::addLineTo({3, 4})}));
  EXPECT_EQ(child<SwiftUIModel::PathViewType>(result, 1).shapeType.path,
            (V{PathCommand::addLines({{1, 2}, {0, 0}}), PathCommand::closeSubpath()}));
  EXPECT_EQ(child<SwiftUIModel::PathViewType>(result, 2).shapeType.path,
            (V{PathCommand::addLines({})}));
}

TEST(Shapes, PathNamesComeFromTwoPoolsShapeFirst) {
  const auto result =
      model(svgOf({item(withID(SVG::Path{}, "star")), item(SVG::Path{}), item(SVG::Line{})}));
  const auto& star = child<SwiftUIModel::PathViewType>(result, 0);
  EXPECT_EQ(star.typeName, "Star");
  EXPECT_EQ(star.shapeType.typeName, "Star");
  EXPECT_FALSE(star.shapeType.insettable);
  EXPECT_EQ(child<SwiftUIModel::PathViewType>(result, 1).shapeType.typeName, "PathShape1");
  EXPECT_EQ(child<SwiftUIModel::PathViewType>(result, 1).typeName, "PathView1");
  EXPECT_EQ(child<SwiftUIModel::PathViewType>(result, 2).typeName, "PathView2");
}

TEST(Shapes, TransformGoesToShapeForPathsAndToDrawingForPrimitives) {
  const SVG::Transform rotate{SVG::Transform::Rotate{45, 0, 0}};
  SVG::Path path;
  path.presentation.transform = {rotate};
  SVG::Circle c = circle(0, 0, 1);
  c.presentation.transform = {rotate};
  const auto result = model(svgOf({item(path), item(c)}));
  const std::vector<SwiftUIModel::TransformStep> steps{
      SwiftUIModel::TransformStep::rotate(0.7853981633974483)};
  EXPECT_EQ(child<SwiftUIModel::PathViewType>(result, 0).shapeType.transform, steps);
  EXPECT_TRUE(child<SwiftUIModel::PathViewType>(result, 0).drawing.transform.empty());
  EXPECT_EQ(child<SwiftUIModel::CircleViewType>(result, 1).drawing.transform, steps);
}

struct DrawingRow {
  const char* label;
  std::function<void(SVG::PresentationAttributes&)> set;
  SwiftUIModel::ShapeDrawing expected;
};

class Drawings : public testing::TestWithParam<DrawingRow> {};

TEST_P(Drawings, FromMergedAttributes) {
  SVG::Circle c = circle(0, 0, 1);
  GetParam().set(c.presentation);
  const auto result = model(svgOf({item(c)}));
  const auto& drawing = child<SwiftUIModel::CircleViewType>(result, 0).drawing;
  EXPECT_EQ(drawing, GetParam().expected) << SVGConverter::describe(drawing);
}

const auto black = Paint::color(CSS::Color::named("black"));

INSTANTIATE_TEST_SUITE_P(
    Rows, Drawings,
    testing::Values(
        DrawingRow{"plain", [](PA&) {}, {std::nullopt, std::nullopt, black, std::nullopt, {}}},
        DrawingRow{"strokeNoneHasNoStyle",
                   [](PA& p) {
                     p.stroke = SVG::Paint::none();
                     p.strokeWidth = UL::number(3);
                     p.strokeOpacity = 20;
                   },
                   {std::nullopt, std::nullopt, black, std::nullopt, {}}},
        DrawingRow{"strokeOpacityAlone",
                   [](PA& p) { p.strokeOpacity = 20; },
                   {std::nullopt, Paint::opacity(20), black, std::nullopt, {}}},
        DrawingRow{"strokeWithStyle",
                   [](PA& p) {
                     p.stroke = color("red");
                     p.strokeWidth = UL::number(3);
                     p.strokeLineCap = CGLineCap::square;
                     p.strokeOpacity = 20;
                     p.fill = SVG::Paint::none();
                     p.fillOpacity = 30;
                   },
                   {SwiftUIModel::StrokeStyle{3, CGLineCap::square, CGLineJoin::miter},
                    Paint::color(CSS::Color::named("red"), 20),
                    std::nullopt,
                    std::nullopt,
                    {}}},
        DrawingRow{"strokeWidthWithoutPoints",
                   [](PA& p) {
                     p.stroke = color("red");
                     p.strokeWidth = UL::percentage(3);
                     p.strokeLineCap.reset();
                     p.strokeLineJoin.reset();
                   },
                   {SwiftUIModel::StrokeStyle{std::nullopt, CGLineCap::butt, CGLineJoin::miter},
                    Paint::color(CSS::Color::named("red")),
                    black,
                    std::nullopt,
                    {}}},
        DrawingRow{"unknownDefinitionIsNoPaint",
                   [](PA& p) { p.fill = reference("nope"); },
                   {std::nullopt, std::nullopt, std::nullopt, std::nullopt, {}}}),
    [](const auto& info) { return std::string(info.param.label); });

// ---- Text ------------------------------------------------------------------------------

SVG::Text text(UL x, UL y, std::optional<UL> dx = std::nullopt,
               std::optional<UL> dy = std::nullopt) {
  SVG::Text t;
  t.x = x;
  t.y = y;
  t.dx = dx;
  t.dy = dy;
  t.text = "hi";
  return t;
}

TEST(Text, PositionRunsOnFromTheLastText) {
  SVG::Group group = groupOf({item(text(UL::percentage(50), UL::number(20)))});
  group.presentation.fill = color("red");
  const auto result = model(svgOf({
      item(text(UL::number(10), UL::number(5))),
      item(group),
      item(text(UL::percentage(1), UL::percentage(1), UL::number(3), UL::percentage(9))),
      item(text(UL::number(1), UL::number(1), UL::percentage(3), UL::millimeter(1))),
  }));
  EXPECT_EQ(child<SwiftUIModel::Text>(result, 0).origin, (CGPoint{10, 5}));
  const auto& inGroup = child<SwiftUIModel::Text>(child<ContainerViewType>(result, 1), 0);
  EXPECT_EQ(inGroup.origin, (CGPoint{10, 20}));
  EXPECT_EQ(inGroup.paint, Paint::color(CSS::Color::named("red")));
  EXPECT_EQ(child<SwiftUIModel::Text>(result, 2).origin, (CGPoint{13, 20}));
  EXPECT_EQ(child<SwiftUIModel::Text>(result, 3).origin, (CGPoint{1, 1 + 2.8346456693}));
  EXPECT_EQ(child<SwiftUIModel::Text>(result, 0).paint, black);
  EXPECT_EQ(child<SwiftUIModel::Text>(result, 0).text, "hi");
}

TEST(Text, FillNoneGivesNoPaintAndTransformIsDropped) {
  SVG::Text t = text(UL::number(0), UL::number(0));
  t.presentation.fill = SVG::Paint::none();
  t.presentation.fillOpacity = 40;
  t.presentation.transform = {SVG::Transform{SVG::Transform::Scale{2, 2}}};
  t.font = CSS::Font{CSS::Font::System::caption};
  const auto result = model(svgOf({item(t)}));
  const auto& converted = child<SwiftUIModel::Text>(result, 0);
  EXPECT_EQ(converted.paint, std::nullopt);
  EXPECT_EQ(converted.font, t.font);
}

}  // namespace
