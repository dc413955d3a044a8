// The nested view struct of each shape child: a `Shape` with its path for path-like views, and
// the stroke and fill chain that every shape shares.
#include <algorithm>
#include <string>
#include <type_traits>
#include <variant>

#include "Emitters.h"
#include "SVGConverter/PaintText.h"
#include "SVGConverter/ValueLiterals.h"

namespace SVGConverter {

namespace {

using SwiftUIModel::Paint;
using SwiftUIModel::PathCommand;
using SwiftUIModel::ShapeDrawing;

std::string rawValueText(auto value) {
  return std::to_string(static_cast<int>(value));
}

std::string strokeStyleText(const CodeGenerationStream& s, const SwiftUIModel::StrokeStyle& style) {
  const bool infoComments = s.config().infoComments;
  std::vector<std::string> parts;
  if (style.lineWidth && *style.lineWidth != 1.0) {
    parts.push_back("lineWidth: " + s.numberString(*style.lineWidth));
  }
  switch (style.lineCap) {
    case CGLineCap::butt:
      break;
    case CGLineCap::round:
      parts.emplace_back("lineCap: .round");
      break;
    case CGLineCap::square:
      parts.emplace_back("lineCap: .square");
      break;
    default:
      if (infoComments) parts.push_back("/* lineCap: " + rawValueText(style.lineCap) + " */");
  }
  switch (style.lineJoin) {
    case CGLineJoin::miter:
      break;
    case CGLineJoin::round:
      parts.emplace_back("lineJoin: .round");
      break;
    case CGLineJoin::bevel:
      parts.emplace_back("lineJoin: .bevel");
      break;
    default:
      if (infoComments) parts.push_back("/* lineJoin: " + rawValueText(style.lineJoin) + " */");
  }
  std::string text = "StrokeStyle(";
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i > 0) text += ", ";
    text += parts[i];
  }
  return text + ")";
}

// A plain colour for fill or stroke; an opacity below 1 (on the tree's scale of 0 to 100)
// follows as a modifier.
std::optional<std::string> shapeColorText(CodeGenerationStream& s, const Paint::Color& paint) {
  auto color = colorText(s, paint.color, std::nullopt, false, s.config().exportHexColorExtension);
  if (color && paint.opacity && *paint.opacity < 1.0) {
    *color += ".opacity(" + s.numberString(*paint.opacity) + ")";
  }
  return color;
}

void appendFillLine(CodeGenerationStream& s, const Paint& fill) {
  if (const auto* opacity = std::get_if<Paint::Opacity>(&fill.value)) {
    s.appendLine(".fill()");
    s.appendLine(".opacity(" + s.numberString(opacity->opacity) + ")");
  } else if (const auto* color = std::get_if<Paint::Color>(&fill.value)) {
    if (auto text = shapeColorText(s, *color)) {
      s.appendLine(".fill(" + *text + ")");
    } else {
      s.appendCommentedLine(".fill()", "Could not generate color");
    }
  } else {
    s.appendLine(".fill(" + std::get<Paint::Property>(fill.value).id + ")");
  }
}

void appendStrokeLines(CodeGenerationStream& s, const ShapeDrawing& drawing) {
  const auto& config = s.config();
  std::optional<std::string> style;
  if (drawing.strokeStyle) style = strokeStyleText(s, *drawing.strokeStyle);
  if (style == "StrokeStyle()" && config.assumeDefaultStrokeStyle) {
    style.reset();
  } else if (style && config.preferInitOverType && style->starts_with("StrokeStyle(")) {
    style = ".init" + style->substr(11);
  }

  std::optional<std::string> paint;
  if (drawing.stroke) {
    if (const auto* color = std::get_if<Paint::Color>(&drawing.stroke->value)) {
      paint = shapeColorText(s, *color);
    } else if (const auto* property = std::get_if<Paint::Property>(&drawing.stroke->value)) {
      paint = property->id;
    }
  }

  if (!style && !paint) {
    s.appendLine(".stroke()");
  } else if (!style) {
    s.appendLine(".stroke(" + *paint + ")");
  } else if (!paint) {
    s.appendLine(".stroke(style: " + *style + ")");
  } else {
    s.appendLine(".stroke(" + *paint + ", style: " + *style + ")");
  }
  if (drawing.stroke) {
    if (const auto* opacity = std::get_if<Paint::Opacity>(&drawing.stroke->value)) {
      s.appendLine(".opacity(" + s.numberString(opacity->opacity) + ")");
    }
  }
}

// The shape with its fill and stroke. Returns whether the two stand in a "ZStack" block, after
// which further modifiers stay at the block's level instead of one level in.
bool appendDrawingChain(CodeGenerationStream& s, const std::string& shape,
                        const ShapeDrawing& drawing) {
  const bool hasStroke = drawing.stroke || drawing.strokeStyle;
  const bool hasFill = drawing.fill.has_value();
  if (hasStroke && hasFill) {
    // Fill first, so that the stroke lies on top.
    s.appendBlock("ZStack", std::nullopt, [&] {
      s.appendLine(shape);
      s.indented(true, [&] { appendFillLine(s, *drawing.fill); });
      s.appendLine(shape);
      s.indented(true, [&] { appendStrokeLines(s, drawing); });
    });
    return true;
  }
  s.appendLine(shape);
  s.indented(true, [&] {
    if (hasFill) appendFillLine(s, *drawing.fill);
    if (hasStroke) appendStrokeLines(s, drawing);
  });
  return false;
}

void appendSimpleShapeBody(CodeGenerationStream& s, const std::string& shape,
                           const std::optional<CGPoint>& origin, const std::optional<CGSize>& size,
                           const ShapeDrawing& drawing) {
  appendStatics(s, origin, size, false);
  s.appendBlankLine();
  s.appendBlock("var body: some View", std::nullopt, [&] {
    const bool stacked = appendDrawingChain(s, shape, drawing);
    appendViewModifiers(s, drawing.filterModifier, drawing.transform, !stacked);
  });
}

void appendArc(CodeGenerationStream& s, const PathCommand::AddRelativeArc& arc, std::string& line) {
  line.assign("path.addRelativeArc(center: ");
  appendPointLiteral(line, s, arc.center, s.config().preferInitOverType);
  line += ", radius: ";
  s.appendNumber(line, arc.radius);
  line += ", startAngle: Angle(radians: ";
  s.appendNumber(line, arc.startAngle);
  line += "), delta: Angle(radians: ";
  s.appendNumber(line, arc.delta);
  if (arc.transform.empty()) {
    line += "))";
    s.appendLine(line);
    return;
  }
  // Existing documents hold a doubled parenthesis after the delta, which ends the call before
  // its transform; only the compilable text closes the angle alone.
  if (s.config().compilableSwift) {
    line += ')';
  } else {
    line += "))";
    s.noteDefect(SVGSwiftUIExporter::arcTransform);
  }
  line += ", transform: ";
  appendFirstStepText(line, s, arc.transform.front(), false);
  if (arc.transform.size() == 1) {
    line += ')';
    s.appendLine(line);
    return;
  }
  // The further steps one level deeper, and the closing ")" alone at column zero.
  s.appendLine(line);
  s.indented(true, [&] {
    for (std::size_t i = 1; i < arc.transform.size(); ++i) {
      line.clear();
      appendChainedStepText(line, s, arc.transform[i]);
      s.appendLine(line);
    }
  });
  s.appendVerbatim(")\n");
}

void appendCommands(CodeGenerationStream& s, const std::vector<PathCommand>& commands) {
  const bool preferInit = s.config().preferInitOverType;
  // One line buffer for the whole path: most lines are a call around one or two points.
  std::string line;
  const auto pointLine = [&](std::string_view head, CGPoint p, std::string_view tail) {
    // Nearly every line takes the quick road through one stack buffer.
    char buffer[2 * maximumPointLiteralLength];
    if (head.size() + tail.size() <= maximumPointLiteralLength) {
      char* cursor = std::copy(head.begin(), head.end(), buffer);
      if (writePointLiteral(cursor, s, p, preferInit)) {
        cursor = std::copy(tail.begin(), tail.end(), cursor);
        s.appendLine(std::string_view(buffer, static_cast<std::size_t>(cursor - buffer)));
        return;
      }
    }
    line.assign(head);
    appendPointLiteral(line, s, p, preferInit);
    line += tail;
    s.appendLine(line);
  };
  for (std::size_t i = 0; i < commands.size(); ++i) {
    std::visit(
        [&](const auto& c) {
          using T = std::decay_t<decltype(c)>;
          if constexpr (std::is_same_v<T, PathCommand::MoveTo>) {
            pointLine("path.move(to: ", c.point, ")");
          } else if constexpr (std::is_same_v<T, PathCommand::AddLineTo>) {
            pointLine("path.addLine(to: ", c.point, ")");
          } else if constexpr (std::is_same_v<T, PathCommand::AddCurveTo>) {
            pointLine("path.addCurve(to: ", c.point, ",");
            pointLine("              control1: ", c.control1, ",");
            pointLine("              control2: ", c.control2, ")");
          } else if constexpr (std::is_same_v<T, PathCommand::AddQuadCurveTo>) {
            pointLine("path.addQuadCurve(to: ", c.point, ",");
            pointLine("                  control: ", c.control, ")");
          } else if constexpr (std::is_same_v<T, PathCommand::AddRelativeArc>) {
            appendArc(s, c, line);
          } else if constexpr (std::is_same_v<T, PathCommand::AddLines>) {
            if (c.points.empty()) return;
            s.appendLine("path.addLines([");
            s.indented(true, [&] {
              for (std::size_t p = 0; p < c.points.size(); ++p) {
                pointLine("", c.points[p], p + 1 < c.points.size() ? "," : "");
              }
            });
            s.appendLine("])");
          } else {
            s.appendLine("path.closeSubpath()");
            if (i + 1 < commands.size() && s.config().newlineAfterClosePath) s.appendBlankLine();
          }
        },
        commands[i].value);
  }
}

void appendPathExpression(CodeGenerationStream& s, const SwiftUIModel::ShapeType& shape) {
  s.appendBlock("Path { path in", std::nullopt, [&] { appendCommands(s, shape.path); });
  if (shape.transform.empty()) return;
  if (shape.transform.size() == 1) {
    if (const auto* t = std::get_if<TransformStep::Translate>(&shape.transform.front().value)) {
      s.appendLine(".offsetBy(dx: " + s.numberString(t->dx) + ", dy: " + s.numberString(t->dy) +
                   ")");
      return;
    }
  }
  const auto steps = transformStepTexts(s, shape.transform, s.config().preferInitOverType);
  std::string joined;
  for (const auto& step : steps) joined += step;
  if (joined.size() < 50) {
    s.appendLine(".applying(" + joined + ")");
    return;
  }
  s.appendLine(".applying(");
  appendMultilineSteps(s, steps);
  s.appendLine(")");
}

void appendPathBody(CodeGenerationStream& s, const SwiftUIModel::PathViewType& view) {
  const auto& config = s.config();
  appendStatics(s, view.origin, view.intrinsicSize, false);
  s.appendVerbatim(config.shapeTypePrefix);
  const auto& shape = view.shapeType;
  s.appendBlock(
      "struct " + shape.typeName + ": " + (shape.insettable ? "InsettableShape" : "Shape"),
      std::nullopt, [&] {
        s.appendVerbatim(config.pathMethodPrefix);
        s.appendBlock("func path(in rect: CGRect) -> Path", std::nullopt,
                      [&] { appendPathExpression(s, shape); });
      });
  s.appendBlankLine();
  s.appendBlock("var body: some View", std::nullopt, [&] {
    const bool stacked = appendDrawingChain(s, shape.typeName + "()", view.drawing);
    // A path's transform lives in its path expression, so it is not repeated here.
    appendViewModifiers(s, view.drawing.filterModifier, {}, !stacked);
  });
}

}  // namespace

void appendShapeStruct(CodeGenerationStream& s, const SwiftUIModel::Subview& child) {
  std::visit(
      [&](const auto& view) {
        using T = std::decay_t<decltype(view)>;
        if constexpr (std::is_same_v<T, SwiftUIModel::Text> ||
                      std::is_same_v<T, SwiftUIModel::ContainerViewType>) {
          return;  // no shape: written by the container emitters
        } else {
          const auto header = [&] { return "struct " + view.typeName + ": View"; };
          if constexpr (std::is_same_v<T, SwiftUIModel::PathViewType>) {
            // The marker belongs to the header and is written whatever infoComments says.
            s.appendBlock(header() + " { // SVGPath", std::nullopt,
                          [&] { appendPathBody(s, view); });
          } else if constexpr (std::is_same_v<T, SwiftUIModel::CircleViewType>) {
            s.appendBlock(header(), std::nullopt, [&] {
              appendSimpleShapeBody(s, "Circle()", view.origin, view.intrinsicSize, view.drawing);
            });
          } else if constexpr (std::is_same_v<T, SwiftUIModel::EllipseViewType>) {
            s.appendBlock(header(), std::nullopt, [&] {
              appendSimpleShapeBody(s, "Ellipse()", view.origin, view.intrinsicSize, view.drawing);
            });
          } else if constexpr (std::is_same_v<T, SwiftUIModel::RectangleViewType>) {
            const std::string shape =
                view.cornerRadius
                    ? "RoundedRectangle(cornerRadius: " + s.numberString(*view.cornerRadius) + ")"
                    : "Rectangle()";
            s.appendBlock(header(), std::nullopt, [&] {
              appendSimpleShapeBody(s, shape, view.origin, view.intrinsicSize, view.drawing);
            });
          }
        }
      },
      child.value);
}

}  // namespace SVGConverter
