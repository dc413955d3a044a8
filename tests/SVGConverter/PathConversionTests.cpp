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

const auto move = [](double x, double y) { return PathCommand::moveTo({x, y}); };
const auto line = [](double x, double y) { return PathCommand::addLineTo({x, y}); };
const auto lines = [](std::vector<CGPoint> points) { return PathCommand::addLines(points); };
const auto curve = [](CGPoint p, CGPoint c1, CGPoint c2) {
  return PathCommand::addCurveTo(p, c1, c2);
};
const auto close = [] { return PathCommand::closeSubpath(); };

PathCommand arc(double startAngle, double delta, std::vector<TransformStep> steps) {
  return PathCommand::addRelativeArc({0, 0}, 1.0, startAngle, delta, std::move(steps));
}

// Cases whose arithmetic can be followed by hand to the last bit. Negative radii act as their
// absolute values; radii too small are scaled up until the chord fits, with the centre on its
// midpoint; an end on the current point gives a zero arc there.
TEST(Arc, ExactCasesMatchToTheLastBit) {
  struct Row {
    double rx, ry, angle;
    bool sweep;
    CGPoint end, current;
    PathCommand expected;
  };
  const auto translate = TransformStep::translate;
  const Row rows[] = {
      {1, 1, 0, true, {2, 0}, {0, 0}, arc(pi, pi, {translate(1, 0)})},
      {1, 1, 0, false, {2, 0}, {0, 0}, arc(pi, -pi, {translate(1, 0)})},
      {-1, -1, 0, true, {2, 0}, {0, 0}, arc(pi, pi, {translate(1, 0)})},
      {1, 1, 0, true, {4, 0}, {0, 0}, arc(pi, pi, {translate(2, 0), TransformStep::scale(2, 2)})},
      {1, 1, 0, true, {1, 0}, {-1, 0}, arc(pi, pi, {})},
      {2, 3, 0, true, {5, 5}, {5, 5}, arc(0, 0, {translate(5, 5), TransformStep::scale(2, 3)})}};
  for (const auto& row : rows) {
    const auto arc =
        SVGConverter::arcCommand(row.rx, row.ry, row.angle, row.sweep, row.end, row.current);
    EXPECT_EQ(arc, row.expected) << SVGConverter::describe(arc);
  }
}

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

// A move and the lines after it fold into one record, and so do records that join at a shared
// point; a leading line has no move to fold into, and curves and gaps break a run.
TEST(Folding, FoldsStraightRuns) {
  using Commands = std::vector<PathCommand>;
  const std::pair<Commands, Commands> rows[] = {
      {{move(0, 0), line(1, 1), line(2, 2), close()}, {lines({{0, 0}, {1, 1}, {2, 2}}), close()}},
      {{move(0, 0), line(1, 1)}, {move(0, 0), line(1, 1)}},
      {{move(0, 0), line(1, 1), curve({3, 3}, {1, 1}, {2, 2}), line(4, 4), line(5, 5)},
       {move(0, 0), line(1, 1), curve({3, 3}, {1, 1}, {2, 2}), line(4, 4), line(5, 5)}},
      {{line(1, 1), curve({3, 3}, {1, 1}, {2, 2})}, {line(1, 1), curve({3, 3}, {1, 1}, {2, 2})}},
      // Two leading lines have no move to fold into: both stand as they are.
      {{line(1, 1), line(2, 2), line(3, 3)}, {line(1, 1), line(2, 2), line(3, 3)}},
      {{line(1, 1), lines({{1, 1}, {2, 2}})}, {line(1, 1), lines({{1, 1}, {2, 2}})}},
      {{move(0, 0), line(1, 1), lines({{1, 1}, {2, 2}}), lines({{2, 2}, {3, 3}})},
       {lines({{0, 0}, {1, 1}, {2, 2}, {3, 3}})}},
      {{lines({{0, 0}, {1, 1}}), lines({{5, 5}, {6, 6}})},
       {lines({{0, 0}, {1, 1}}), lines({{5, 5}, {6, 6}})}},
      {{lines({}), lines({})}, {lines({}), lines({})}},
      {{move(0, 0), line(1, 0), line(1, 1), move(5, 5), line(6, 5), line(6, 6)},
       {lines({{0, 0}, {1, 0}, {1, 1}}), lines({{5, 5}, {6, 5}, {6, 6}})}}};
  for (const auto& [input, expected] : rows) {
    const auto result = SVGConverter::foldLines(input);
    EXPECT_EQ(result, expected) << describeAll(result);
  }
}

TEST(ConvertPath, RunsBothPasses) {
  const auto result = SVGConverter::convertPath(
      {cmd(K::M, {0, 0}), cmd(K::L, {1, 1}), cmd(K::L, {2, 2}), cmd(K::Z)});
  EXPECT_EQ(result, (std::vector<PathCommand>{lines({{0, 0}, {1, 1}, {2, 2}}), close()}));
}

}  // namespace
