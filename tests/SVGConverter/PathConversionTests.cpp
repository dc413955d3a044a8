#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <string>
#include <vector>

#include "SVGConverter/ModelDescription.h"
#include "SVGConverter/PathConversion.h"

using SwiftUIModel::PathCommand;
using SwiftUIModel::TransformStep;
using K = SVG::Command::Kind;

namespace {

constexpr double pi = 3.141592653589793;

SVG::Command cmd(K kind, std::initializer_list<double> values = {}) {
  SVG::Command command;
  command.kind = kind;
  std::size_t i = 0;
  for (double v : values) command.values[i++] = v;
  return command;
}

std::string describeAll(const std::vector<PathCommand>& commands) {
  std::string text;
  for (const auto& c : commands) text += SVGConverter::describe(c) + "\n";
  return text;
}

PathCommand move(double x, double y) {
  return PathCommand::moveTo({x, y});
}
PathCommand line(double x, double y) {
  return PathCommand::addLineTo({x, y});
}
PathCommand lines(std::vector<CGPoint> points) {
  return PathCommand::addLines(std::move(points));
}
PathCommand curve(CGPoint p, CGPoint c1, CGPoint c2) {
  return PathCommand::addCurveTo(p, c1, c2);
}
PathCommand close() {
  return PathCommand::closeSubpath();
}

TEST(Arc, EndOnCurrentPointGivesAZeroArcAtThePoint) {
  const auto arc = SVGConverter::arcCommand(2, 3, 0, true, {5, 5}, {5, 5});
  EXPECT_EQ(arc,
            PathCommand::addRelativeArc(
                {0, 0}, 1.0, 0, 0, {TransformStep::translate(5, 5), TransformStep::scale(2, 3)}))
      << SVGConverter::describe(arc);
}

struct ArcRow {
  const char* label;
  double rx, ry, angle;
  bool sweep;
  CGPoint end, current;
  PathCommand expected;
};

class ExactArcs : public testing::TestWithParam<ArcRow> {};

// Cases whose arithmetic can be followed by hand to the last bit.
TEST_P(ExactArcs, MatchToTheLastBit) {
  const auto& row = GetParam();
  const auto arc =
      SVGConverter::arcCommand(row.rx, row.ry, row.angle, row.sweep, row.end, row.current);
  EXPECT_EQ(arc, row.expected) << SVGConverter::describe(arc);
}

PathCommand arc(double startAngle, double delta, std::vector<TransformStep> steps) {
  return PathCommand::addRelativeArc({0, 0}, 1.0, startAngle, delta, std::move(steps));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(
    Rows, ExactArcs,
    testing::Values(
        ArcRow{"semicircleSweep", 1, 1, 0, true, {2, 0}, {0, 0},
               arc(pi, pi, {TransformStep::translate(1, 0)})},
        ArcRow{"semicircleNoSweep", 1, 1, 0, false, {2, 0}, {0, 0},
               arc(pi, -pi, {TransformStep::translate(1, 0)})},
        ArcRow{"negativeRadiiActAsAbsolute", -1, -1, 0, true, {2, 0}, {0, 0},
               arc(pi, pi, {TransformStep::translate(1, 0)})},
        // Radii too small are scaled up until the chord fits: centre on its midpoint.
        ArcRow{"radiiScaledUp", 1, 1, 0, true, {4, 0}, {0, 0},
               arc(pi, pi, {TransformStep::translate(2, 0), TransformStep::scale(2, 2)})},
        ArcRow{"unitCircleAtOriginHasNoSteps", 1, 1, 0, true, {1, 0}, {-1, 0}, arc(pi, pi, {})}),
    [](const auto& info) { return std::string(info.param.label); });
// clang-format on

// fmod keeps the sign and reduces by two pi: 450 degrees rotate by pi/2 as 90 do.
TEST(Arc, AngleIsReducedWithFmod) {
  const auto a90 = SVGConverter::arcCommand(1, 2, 90, true, {3, 1}, {0, 0});
  const auto a450 = SVGConverter::arcCommand(1, 2, 450, true, {3, 1}, {0, 0});
  const auto& steps90 = std::get<PathCommand::AddRelativeArc>(a90.value).transform;
  const auto& steps450 = std::get<PathCommand::AddRelativeArc>(a450.value).transform;
  ASSERT_EQ(steps90.size(), 3u);
  ASSERT_EQ(steps450.size(), 3u);
  EXPECT_EQ(steps90[1], TransformStep::rotate(std::fmod(90 * pi / 180.0, 2 * pi)));
  EXPECT_EQ(steps450[1], TransformStep::rotate(std::fmod(450 * pi / 180.0, 6.283185307179586)));
  const auto negative = SVGConverter::arcCommand(1, 2, -90, true, {3, 1}, {0, 0});
  EXPECT_EQ(std::get<PathCommand::AddRelativeArc>(negative.value).transform[1],
            TransformStep::rotate(-90 * pi / 180.0));
}

// The large flag is not an input; the centre always lies on the same side of the chord.
TEST(Arc, LargeFlagHasNoInfluence) {
  const auto small =
      SVGConverter::absoluteCommands({cmd(K::M, {0, 0}), cmd(K::A, {5, 5, 0, 0, 1, 6, 0})});
  const auto large =
      SVGConverter::absoluteCommands({cmd(K::M, {0, 0}), cmd(K::A, {5, 5, 0, 1, 1, 6, 0})});
  const auto relative =
      SVGConverter::absoluteCommands({cmd(K::M, {0, 0}), cmd(K::a, {5, 5, 0, 1, 1, 6, 0})});
  EXPECT_EQ(small, large);
  EXPECT_EQ(small, relative);
}

// A quarter of the unit circle, rotated a quarter turn: the centre follows the formulas'
// fixed side of the chord.
TEST(Arc, RotatedQuarterArcHasItsCentreOnTheFormulasSide) {
  const auto arc = SVGConverter::arcCommand(1, 1, 90, false, {1, 1}, {0, 0});
  const auto& a = std::get<PathCommand::AddRelativeArc>(arc.value);
  ASSERT_EQ(a.transform.size(), 2u) << SVGConverter::describe(arc);
  const auto& translate = std::get<TransformStep::Translate>(a.transform[0].value);
  EXPECT_NEAR(translate.dx, 0, 1e-15);
  EXPECT_NEAR(translate.dy, 1, 1e-15);
  EXPECT_EQ(a.transform[1], TransformStep::rotate(pi / 2));
  // The start point (0,0) seen from the centre (0,1), turned back by -pi/2, is at angle pi;
  // without sweep the arc runs clockwise to the end at -pi/2, the long way round.
  EXPECT_NEAR(std::fabs(a.startAngle), pi, 1e-15);
  EXPECT_NEAR(a.delta, -3 * pi / 2, 1e-15);
}

TEST(Arc, OneZeroRadiusDoesNotStopTheConversion) {
  const auto arc = SVGConverter::arcCommand(0, 5, 0, true, {10, 0}, {0, 0});
  EXPECT_TRUE(std::holds_alternative<PathCommand::AddRelativeArc>(arc.value));
  const auto nan = SVGConverter::arcCommand(NAN, INFINITY, NAN, true, {NAN, 1}, {0, 0});
  EXPECT_TRUE(std::holds_alternative<PathCommand::AddRelativeArc>(nan.value));
}

struct FoldRow {
  const char* label;
  std::vector<PathCommand> input;
  std::vector<PathCommand> expected;
};

class Folding : public testing::TestWithParam<FoldRow> {};

TEST_P(Folding, FoldsStraightRuns) {
  const auto result = SVGConverter::foldLines(GetParam().input);
  EXPECT_EQ(result, GetParam().expected) << describeAll(result);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Folding,
    testing::Values(
        FoldRow{"moveAndTwoLines",
                {move(0, 0), line(1, 1), line(2, 2), close()},
                {lines({{0, 0}, {1, 1}, {2, 2}}), close()}},
        FoldRow{"moveAndOneLineStayApart", {move(0, 0), line(1, 1)}, {move(0, 0), line(1, 1)}},
        FoldRow{"linesAfterCurveStayApart",
                {move(0, 0), line(1, 1), curve({3, 3}, {1, 1}, {2, 2}), line(4, 4), line(5, 5)},
                {move(0, 0), line(1, 1), curve({3, 3}, {1, 1}, {2, 2}), line(4, 4), line(5, 5)}},
        FoldRow{"leadingLineBeforeCurve",
                {line(1, 1), curve({3, 3}, {1, 1}, {2, 2})},
                {line(1, 1), curve({3, 3}, {1, 1}, {2, 2})}},
        // Two leading lines have no move to fold into: both stand as they are.
        FoldRow{"twoLeadingLinesKeptUnfolded",
                {line(1, 1), line(2, 2), line(3, 3)},
                {line(1, 1), line(2, 2), line(3, 3)}},
        FoldRow{"leadingLineThenLines",
                {line(1, 1), lines({{1, 1}, {2, 2}})},
                {line(1, 1), lines({{1, 1}, {2, 2}})}},
        FoldRow{"moveThenLinesRecordJoinsAtSharedPoint",
                {move(0, 0), line(1, 1), lines({{1, 1}, {2, 2}}), lines({{2, 2}, {3, 3}})},
                {lines({{0, 0}, {1, 1}, {2, 2}, {3, 3}})}},
        FoldRow{"linesRecordsWithGapStayApart",
                {lines({{0, 0}, {1, 1}}), lines({{5, 5}, {6, 6}})},
                {lines({{0, 0}, {1, 1}}), lines({{5, 5}, {6, 6}})}},
        FoldRow{"emptyLinesRecordsStayApart", {lines({}), lines({})}, {lines({}), lines({})}},
        FoldRow{"secondSubpath",
                {move(0, 0), line(1, 0), line(1, 1), move(5, 5), line(6, 5), line(6, 6)},
                {lines({{0, 0}, {1, 0}, {1, 1}}), lines({{5, 5}, {6, 5}, {6, 6}})}}),
    [](const auto& info) { return std::string(info.param.label); });

TEST(ConvertPath, RunsBothPasses) {
  const auto result = SVGConverter::convertPath(
      {cmd(K::M, {0, 0}), cmd(K::L, {1, 1}), cmd(K::L, {2, 2}), cmd(K::Z)});
  EXPECT_EQ(result, (std::vector<PathCommand>{lines({{0, 0}, {1, 1}, {2, 2}}), close()}));
}

}  // namespace
