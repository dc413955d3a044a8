#include "SVGConverter/PathConversion.h"

#include <cmath>

namespace SVGConverter {

using SwiftUIModel::PathCommand;
using SwiftUIModel::TransformStep;
using Kind = SVG::Command::Kind;

namespace {

constexpr double pi = 3.141592653589793;
constexpr double twoPi = 6.283185307179586;

CGPoint operator+(CGPoint p, CGPoint q) {
  return {p.x + q.x, p.y + q.y};
}

CGPoint point(const SVG::Command& command, int index) {
  return {command.values[static_cast<std::size_t>(index)],
          command.values[static_cast<std::size_t>(index) + 1]};
}

CGPoint reflect(CGPoint current, CGPoint control) {
  return {2 * current.x - control.x, 2 * current.y - control.y};
}

}  // namespace

PathCommand arcCommand(double rx, double ry, double angle, bool sweep, CGPoint end,
                       CGPoint current) {
  if (rx == 0 && ry == 0) return PathCommand::addLineTo(end);
  double ax = std::fabs(rx);
  double ay = std::fabs(ry);

  const double phi = std::fmod(angle * pi / 180.0, twoPi);
  const double s = std::sin(phi);
  const double c = std::cos(phi);

  const double x0 = current.x, y0 = current.y;
  const double dx = x0 - end.x;
  const double dy = y0 - end.y;
  const double x1 = 0.5 * (c * dx + s * dy);
  const double y1 = 0.5 * (c * dy - s * dx);

  const double lambda = x1 * x1 / (rx * rx) + y1 * y1 / (ry * ry);
  if (lambda > 1.0) {
    const double factor = std::sqrt(lambda);
    ax *= factor;
    ay *= factor;
  }
  const double rxs = ax * ax;
  const double rys = ay * ay;

  const double den = rxs * y1 * y1 + rys * x1 * x1;
  double f = 0;
  if (den != 0) {
    double num = rxs * rys - rxs * y1 * y1 - rys * x1 * x1;
    if (num < 0) num = 0;
    f = std::sqrt(num / den);
  }

  const double cxr = f * ax * y1 / ay;
  const double cyr = -f * ay * x1 / ax;
  const double cx = c * cxr - s * cyr + (x0 + end.x) * 0.5;
  const double cy = s * cxr + c * cyr + (y0 + end.y) * 0.5;

  auto toUnit = CGAffineTransformMakeScale(1 / ax, 1 / ay);
  toUnit = CGAffineTransformRotate(toUnit, -phi);
  toUnit = CGAffineTransformTranslate(toUnit, -cx, -cy);
  const CGPoint p0 = CGPointApplyAffineTransform(current, toUnit);
  const CGPoint p1 = CGPointApplyAffineTransform(end, toUnit);

  const double startAngle = std::atan2(p0.y, p0.x);
  double delta = std::atan2(p1.y, p1.x) - startAngle;
  if (sweep && delta < 0) {
    delta += twoPi;
  } else if (!sweep && delta > 0) {
    delta += -twoPi;
  }

  std::vector<TransformStep> steps;
  if (!(cx == 0 && cy == 0)) steps.push_back(TransformStep::translate(cx, cy));
  if (phi != 0) steps.push_back(TransformStep::rotate(phi));
  if (!(ax == 1.0 && ay == 1.0)) steps.push_back(TransformStep::scale(ax, ay));
  return PathCommand::addRelativeArc({0, 0}, 1.0, startAngle, delta, std::move(steps));
}

std::vector<PathCommand> absoluteCommands(const std::vector<SVG::Command>& commands) {
  std::vector<PathCommand> result;
  result.reserve(commands.size());
  CGPoint current{0, 0};
  CGPoint lastControl{0, 0};

  // Straight segments and moves leave the control point on the new current point.
  const auto straight = [&](CGPoint to, bool move) {
    result.push_back(move ? PathCommand::moveTo(to) : PathCommand::addLineTo(to));
    current = to;
    lastControl = to;
  };
  const auto cubic = [&](CGPoint to, CGPoint control1, CGPoint control2) {
    result.push_back(PathCommand::addCurveTo(to, control1, control2));
    current = to;
    lastControl = control2;
  };
  const auto quad = [&](CGPoint to, CGPoint control, CGPoint nextControl) {
    result.push_back(PathCommand::addQuadCurveTo(to, control));
    current = to;
    lastControl = nextControl;
  };
  const auto arc = [&](const SVG::Command& command, CGPoint to) {
    const auto& v = command.values;
    result.push_back(arcCommand(v[0], v[1], v[2], command.sweep(), to, current));
    current = to;
    lastControl = to;
  };

  for (const auto& command : commands) {
    const auto& v = command.values;
    switch (command.kind) {
      case Kind::M:
        straight(point(command, 0), true);
        break;
      case Kind::m:
        straight(current + point(command, 0), true);
        break;
      case Kind::L:
        straight(point(command, 0), false);
        break;
      case Kind::l:
        straight(current + point(command, 0), false);
        break;
      case Kind::H:
        straight({v[0], current.y}, false);
        break;
      case Kind::h:
        straight({current.x + v[0], current.y}, false);
        break;
      case Kind::V:
        straight({current.x, v[0]}, false);
        break;
      case Kind::v:
        straight({current.x, current.y + v[0]}, false);
        break;
      case Kind::C:
        cubic(point(command, 4), point(command, 0), point(command, 2));
        break;
      case Kind::c:
        cubic(current + point(command, 4), current + point(command, 0),
              current + point(command, 2));
        break;
      case Kind::S:
        cubic(point(command, 2), reflect(current, lastControl), point(command, 0));
        break;
      case Kind::s:
        cubic(current + point(command, 2), reflect(current, lastControl),
              current + point(command, 0));
        break;
      case Kind::Q:
        quad(point(command, 2), point(command, 0), point(command, 0));
        break;
      case Kind::q: {
        const CGPoint control = current + point(command, 0);
        quad(current + point(command, 2), control, control);
        break;
      }
      // Smooth quadratics take the last control point as it stands, unreflected.
      case Kind::T: {
        const CGPoint to = point(command, 0);
        quad(to, lastControl, to);
        break;
      }
      case Kind::t: {
        const CGPoint to = current + point(command, 0);
        quad(to, lastControl, to);
        break;
      }
      case Kind::A:
        arc(command, point(command, 5));
        break;
      case Kind::a:
        arc(command, current + point(command, 5));
        break;
      case Kind::Z:
        result.push_back(PathCommand::closeSubpath());
        lastControl = current;
        break;
    }
  }
  return result;
}

std::vector<PathCommand> foldLines(std::vector<PathCommand> commands) {
  using AddLines = PathCommand::AddLines;
  std::vector<PathCommand> result;
  result.reserve(commands.size());

  for (std::size_t i = 0; i < commands.size(); ++i) {
    auto& command = commands[i];
    if (const auto* line = std::get_if<PathCommand::AddLineTo>(&command.value)) {
      if (result.empty()) {
        // Nothing to fold into: the line stands as written.
        result.push_back(std::move(command));
        continue;
      }
      auto& last = result.back();
      if (auto* lines = std::get_if<AddLines>(&last.value)) {
        lines->points.push_back(line->point);
        continue;
      }
      const auto* move = std::get_if<PathCommand::MoveTo>(&last.value);
      const bool lineFollows =
          i + 1 < commands.size() &&
          (std::holds_alternative<PathCommand::AddLineTo>(commands[i + 1].value) ||
           std::holds_alternative<AddLines>(commands[i + 1].value));
      if (move && lineFollows) {
        last = PathCommand::addLines({move->point, line->point});
        continue;
      }
      result.push_back(std::move(command));
    } else if (auto* next = std::get_if<AddLines>(&command.value)) {
      auto* lines = result.empty() ? nullptr : std::get_if<AddLines>(&result.back().value);
      if (lines && !lines->points.empty() && !next->points.empty() &&
          lines->points.back() == next->points.front()) {
        lines->points.insert(lines->points.end(), next->points.begin() + 1, next->points.end());
        continue;
      }
      result.push_back(std::move(command));
    } else {
      result.push_back(std::move(command));
    }
  }
  return result;
}

std::vector<PathCommand> convertPath(const std::vector<SVG::Command>& commands) {
  return foldLines(absoluteCommands(commands));
}

}  // namespace SVGConverter
