#include "SVGConverter/ModelDescription.h"

#include <charconv>
#include <cmath>

#include "ConversionSupport.h"

namespace SVGConverter {

using namespace SwiftUIModel;
using FilterGroup = FilterModifierType::FilterGroup;

namespace {

std::string pointText(CGPoint p) {
  return "(" + describeNumber(p.x) + ", " + describeNumber(p.y) + ")";
}

std::string sizeText(CGSize s) {
  return "(" + describeNumber(s.width) + ", " + describeNumber(s.height) + ")";
}

std::string optionalNumber(const std::optional<double>& value) {
  return value ? describeNumber(*value) : "nil";
}

std::string_view capName(CGLineCap cap) {
  switch (cap) {
    case CGLineCap::butt:
      return "butt";
    case CGLineCap::round:
      return "round";
    case CGLineCap::square:
      return "square";
  }
  return "?";
}

std::string_view joinName(CGLineJoin join) {
  switch (join) {
    case CGLineJoin::miter:
      return "miter";
    case CGLineJoin::round:
      return "round";
    case CGLineJoin::bevel:
      return "bevel";
  }
  return "?";
}

std::string stepsText(const std::vector<TransformStep>& steps) {
  std::string text;
  for (const auto& step : steps) {
    if (!text.empty()) text += ' ';
    text += describe(step);
  }
  return text;
}

std::string frameText(const std::optional<CGPoint>& origin, const std::optional<CGSize>& size) {
  std::string text;
  if (origin) text += " origin " + pointText(*origin);
  if (size) text += " size " + sizeText(*size);
  return text;
}

std::string primitiveText(const FilterModifierType::Primitive& primitive) {
  std::string text = std::visit(Overloaded{
                                    [](const FilterModifierType::Primitive::Blur& b) {
                                      return "blur(" + describeNumber(b.radius) + ")";
                                    },
                                    [](const FilterModifierType::Primitive::Offset& o) {
                                      return "offset" + pointText(o.offset);
                                    },
                                    [](const FilterModifierType::Primitive::Shadow& s) {
                                      std::string t = "shadow(radius " + describeNumber(s.radius);
                                      if (s.color) t += ", color " + s.color->description();
                                      if (s.opacity) t += ", opacity " + describeNumber(*s.opacity);
                                      if (s.position) t += ", position " + pointText(*s.position);
                                      return t + ")";
                                    },
                                },
                                primitive.operation);
  return text + frameText(primitive.origin, primitive.intrinsicSize);
}

void appendGroup(std::string& out, const FilterGroup& group, std::size_t& budget) {
  if (budget == 0) {
    out += "…";
    return;
  }
  --budget;
  switch (group.kind()) {
    case FilterGroup::Kind::source:
      out += "source";
      return;
    case FilterGroup::Kind::sourceAlpha:
      out += "sourceAlpha";
      return;
    case FilterGroup::Kind::merge: {
      out += "merge([";
      bool first = true;
      for (const auto& input : group.inputs()) {
        if (!first) out += ", ";
        first = false;
        appendGroup(out, input, budget);
      }
      out += "])";
      return;
    }
    case FilterGroup::Kind::blend:
      out += "blend(";
      appendGroup(out, group.input(), budget);
      out += ", ";
      appendGroup(out, group.input2(), budget);
      out += ", ";
      out += SVGModel::blendModeName(group.mode());
      out += ")";
      return;
    case FilterGroup::Kind::primitive: {
      out += "primitive(";
      appendGroup(out, group.input(), budget);
      out += ", [";
      bool first = true;
      for (const auto& primitive : group.primitives()) {
        if (!first) out += ", ";
        first = false;
        out += primitiveText(primitive);
      }
      out += "])";
      return;
    }
  }
}

std::string modifierText(const FilterModifierType& modifier) {
  return modifier.typeName + frameText(modifier.origin, modifier.intrinsicSize) + " " +
         describe(modifier.filterGroup);
}

class ModelWriter {
 public:
  std::string text;

  void container(const ContainerViewType& c, std::string_view kind, int depth) {
    std::string head = std::string(kind) + " " + c.typeName + frameText(c.origin, c.intrinsicSize);
    if (c.viewBox) {
      head += " viewBox (" + describeNumber(c.viewBox->origin.x) + ", " +
              describeNumber(c.viewBox->origin.y) + ", " + describeNumber(c.viewBox->size.width) +
              ", " + describeNumber(c.viewBox->size.height) + ")";
    }
    if (c.resizable.width || c.resizable.height) {
      head += " resizable (" + optionalNumber(c.resizable.width) + ", " +
              optionalNumber(c.resizable.height) + ")";
    }
    line(depth, head);
    if (c.filterModifier) line(depth + 1, "filter: " + modifierText(*c.filterModifier));
    if (!c.transform.empty()) line(depth + 1, "transform: " + stepsText(c.transform));
    if (!c.definitions.empty()) {
      line(depth + 1, "definitions:");
      for (const auto& definition : c.definitions) line(depth + 2, describe(definition));
    }
    for (const auto& child : c.childTypes) subview(child, depth + 1);
  }

 private:
  void line(int depth, std::string_view content) {
    text.append(static_cast<std::size_t>(depth) * 2, ' ');
    text += content;
    text += '\n';
  }

  void drawing(const ShapeDrawing& d, int depth) { line(depth, describe(d)); }

  void subview(const Subview& view, int depth) {
    std::visit(Overloaded{
                   [&](const PathViewType& p) {
                     line(depth, "path " + p.typeName + " shape " + p.shapeType.typeName +
                                     frameText(p.origin, p.intrinsicSize));
                     drawing(p.drawing, depth + 1);
                     if (!p.shapeType.transform.empty()) {
                       line(depth + 1, "shape transform: " + stepsText(p.shapeType.transform));
                     }
                     for (const auto& command : p.shapeType.path) {
                       line(depth + 1, describe(command));
                     }
                   },
                   [&](const CircleViewType& c) {
                     line(depth, "circle " + c.typeName + frameText(c.origin, c.intrinsicSize));
                     drawing(c.drawing, depth + 1);
                   },
                   [&](const EllipseViewType& e) {
                     line(depth, "ellipse " + e.typeName + frameText(e.origin, e.intrinsicSize));
                     drawing(e.drawing, depth + 1);
                   },
                   [&](const RectangleViewType& r) {
                     std::string head =
                         "rectangle " + r.typeName + frameText(r.origin, r.intrinsicSize);
                     if (r.cornerRadius) head += " cornerRadius " + describeNumber(*r.cornerRadius);
                     line(depth, head);
                     drawing(r.drawing, depth + 1);
                   },
                   [&](const Text& t) {
                     std::string head = "text " + pointText(t.origin);
                     if (t.font) head += " font " + t.font->description();
                     head += " paint " + (t.paint ? describe(*t.paint) : std::string("nil"));
                     line(depth, head);
                     line(depth + 1, "\"" + t.text + "\"");
                   },
                   [&](const ContainerViewType& c) {
                     container(c, view.kind == Subview::Kind::svg ? "svg" : "group", depth);
                   },
               },
               view.value);
  }
};

}  // namespace

std::string describeNumber(double value) {
  if (std::isnan(value)) return "nan";
  if (std::isinf(value)) return value < 0 ? "-inf" : "inf";
  char buffer[64];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
  return std::string(buffer, result.ptr);
}

std::string describe(const TransformStep& step) {
  return std::visit(
      Overloaded{
          [](const TransformStep::Translate& t) {
            return "translate(" + describeNumber(t.dx) + ", " + describeNumber(t.dy) + ")";
          },
          [](const TransformStep::Rotate& r) { return "rotate(" + describeNumber(r.angle) + ")"; },
          [](const TransformStep::Scale& s) {
            return "scale(" + describeNumber(s.x) + ", " + describeNumber(s.y) + ")";
          },
          [](const TransformStep::Matrix& m) {
            const auto& t = m.transform;
            return "matrix(" + describeNumber(t.a) + ", " + describeNumber(t.b) + ", " +
                   describeNumber(t.c) + ", " + describeNumber(t.d) + ", " + describeNumber(t.tx) +
                   ", " + describeNumber(t.ty) + ")";
          },
      },
      step.value);
}

std::string describe(const PathCommand& command) {
  return std::visit(
      Overloaded{
          [](const PathCommand::MoveTo& m) { return "moveTo " + pointText(m.point); },
          [](const PathCommand::AddLineTo& l) { return "addLineTo " + pointText(l.point); },
          [](const PathCommand::AddCurveTo& c) {
            return "addCurveTo " + pointText(c.point) + " control1 " + pointText(c.control1) +
                   " control2 " + pointText(c.control2);
          },
          [](const PathCommand::AddQuadCurveTo& q) {
            return "addQuadCurveTo " + pointText(q.point) + " control " + pointText(q.control);
          },
          [](const PathCommand::AddRelativeArc& a) {
            std::string text = "addRelativeArc center " + pointText(a.center) + " radius " +
                               describeNumber(a.radius) + " start " + describeNumber(a.startAngle) +
                               " delta " + describeNumber(a.delta);
            if (!a.transform.empty()) text += " transform " + stepsText(a.transform);
            return text;
          },
          [](const PathCommand::AddLines& l) {
            std::string text = "addLines [";
            for (std::size_t i = 0; i < l.points.size(); ++i) {
              if (i > 0) text += ", ";
              text += pointText(l.points[i]);
            }
            return text + "]";
          },
          [](const PathCommand::CloseSubpath&) { return std::string("closeSubpath"); },
      },
      command.value);
}

std::string describe(const Paint& paint) {
  return std::visit(
      Overloaded{
          [](const Paint::Opacity& o) { return "opacity(" + describeNumber(o.opacity) + ")"; },
          [](const Paint::Color& c) {
            std::string text = "color(" + c.color.description();
            if (c.opacity) text += ", opacity " + describeNumber(*c.opacity);
            return text + ")";
          },
          [](const Paint::Property& p) { return "property(" + p.id + ")"; },
      },
      paint.value);
}

std::string describe(const ShapeDrawing& d) {
  std::string text = "fill " + (d.fill ? describe(*d.fill) : std::string("nil"));
  text += ", stroke " + (d.stroke ? describe(*d.stroke) : std::string("nil"));
  if (d.strokeStyle) {
    text += ", strokeStyle (width " + optionalNumber(d.strokeStyle->lineWidth) + ", cap " +
            std::string(capName(d.strokeStyle->lineCap)) + ", join " +
            std::string(joinName(d.strokeStyle->lineJoin)) + ")";
  }
  if (d.filterModifier) text += ", filter " + modifierText(*d.filterModifier);
  if (!d.transform.empty()) text += ", transform " + stepsText(d.transform);
  return text;
}

std::string describe(const Definition& definition) {
  const auto stopsText = [](const std::vector<GradientStop>& stops) {
    std::string text = " stops [";
    for (std::size_t i = 0; i < stops.size(); ++i) {
      if (i > 0) text += ", ";
      text += describeNumber(stops[i].offset) + " " + stops[i].color.description();
      if (stops[i].opacity) text += " opacity " + describeNumber(*stops[i].opacity);
    }
    return text + "]";
  };
  return std::visit(Overloaded{
                        [&](const LinearGradientProperty& g) {
                          return "linearGradient " + g.propertyID + " start " +
                                 pointText(g.startPoint) + " end " + pointText(g.endPoint) +
                                 stopsText(g.stops);
                        },
                        [&](const RadialGradientProperty& g) {
                          return "radialGradient " + g.propertyID + " center " +
                                 pointText(g.center) + " radius " + describeNumber(g.startRadius) +
                                 " to " + describeNumber(g.endRadius) + stopsText(g.stops);
                        },
                        [](const FilterModifierType& f) { return "filter " + modifierText(f); },
                    },
                    definition.value);
}

std::string describe(const FilterGroup& group, std::size_t budget) {
  std::string out;
  appendGroup(out, group, budget);
  return out;
}

std::string describeModel(const ContainerViewType& container) {
  ModelWriter writer;
  writer.container(container, "svg", 0);
  return writer.text;
}

}  // namespace SVGConverter
