#include "SVGParser/Describe.h"

#include <type_traits>

#include "CoreS/DoubleText.h"
#include "TextUtilities.h"

namespace SVGParser {

namespace {

using CoreS::swiftDoubleDescription;

// Joins pieces by appending; GCC 12 misreads chains of "literal" + std::string at -O3.
std::string concat(std::initializer_list<std::string_view> pieces) {
  std::string out;
  for (std::string_view piece : pieces) out += piece;
  return out;
}

std::string quoted(std::string_view text) {
  std::string out;
  text::appendQuoted(out, text);
  return out;
}

// Collects "name=value" fields of one line.
class Fields {
 public:
  explicit Fields(std::string head) : line_(std::move(head)) {}
  void add(std::string_view name, const std::string& value) {
    line_ += ' ';
    line_ += name;
    line_ += '=';
    line_ += value;
  }
  void add(std::string_view name, const std::optional<CSS::UnitLength>& length) {
    if (length) add(name, length->description());
  }
  void add(std::string_view name, const std::optional<double>& number) {
    if (number) add(name, swiftDoubleDescription(*number));
  }
  void add(std::string_view name, const std::optional<std::string>& text) {
    if (text) add(name, quoted(*text));
  }
  std::string take() { return std::move(line_); }

 private:
  std::string line_;
};

std::string describeTransforms(const std::vector<SVG::Transform>& transforms) {
  std::string out = "[";
  for (std::size_t i = 0; i < transforms.size(); ++i) {
    if (i > 0) out += ", ";
    out += transforms[i].description();
  }
  out += ']';
  return out;
}

std::string describePoint(const SVG::UnitPoint& point) {
  return concat({"(", point.x.description(), ", ", point.y.description(), ")"});
}

std::string describePoints(const std::vector<SVG::UnitPoint>& points) {
  std::string out = "[";
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (i > 0) out += ", ";
    out += describePoint(points[i]);
  }
  out += ']';
  return out;
}

std::string describeRect(const CGRect& rect) {
  return concat({"(", swiftDoubleDescription(rect.origin.x), ", ", swiftDoubleDescription(rect.origin.y),
                 ", ", swiftDoubleDescription(rect.size.width), ", ",
                 swiftDoubleDescription(rect.size.height), ")"});
}

template <class T>
std::string describeInheritable(const SVG::Inheritable<T>& value) {
  switch (value.kind) {
    case SVG::Inheritable<T>::Kind::none: return "none";
    case SVG::Inheritable<T>::Kind::inherit: return "inherit";
    case SVG::Inheritable<T>::Kind::some: break;
  }
  if constexpr (std::is_same_v<T, std::string>) {
    return concat({"some(", quoted(value.value), ")"});
  } else {
    return value.value == CGPathFillRule::evenOdd ? "some(evenOdd)" : "some(winding)";
  }
}

void addElementFields(Fields& fields, const SVGModel::ElementAttributes& element) {
  fields.add("id", element.core.id);
  if (!element.style.classes.empty()) {
    std::string classes = "[";
    for (std::size_t i = 0; i < element.style.classes.size(); ++i) {
      if (i > 0) classes += ", ";
      classes += quoted(element.style.classes[i]);
    }
    classes += ']';
    fields.add("class", classes);
  }
  fields.add("style", element.style.style);
  const std::string presentation = describe(element.presentation);
  if (!presentation.empty()) fields.add("presentation", concat({"{", presentation, "}"}));
}

std::string describeStop(const SVG::GradientStop& stop) {
  Fields fields("stop");
  fields.add("id", stop.core.id);
  fields.add("offset", stop.offset);
  if (stop.color) fields.add("color", stop.color->description());
  fields.add("opacity", stop.opacity);
  return fields.take();
}

class TreeWriter {
 public:
  std::string take() { return std::move(out_); }

  void svg(const SVG& svg, int depth) {
    Fields fields("svg");
    fields.add("x", svg.x);
    fields.add("y", svg.y);
    fields.add("width", svg.width);
    fields.add("height", svg.height);
    if (svg.viewBox) fields.add("viewBox", describeRect(*svg.viewBox));
    addElementFields(fields, svg);
    line(depth, fields.take());
    for (const auto& named : svg.definitions) definition(named, depth + 1);
    children(svg.children, depth + 1);
  }

 private:
  void line(int depth, const std::string& text) {
    out_.append(std::size_t(depth) * 2, ' ');
    out_ += text;
    out_ += '\n';
  }

  void children(const std::vector<SVG::GroupItem>& items, int depth) {
    for (const auto& item : items) {
      if (const auto* nested = std::get_if<SVG>(&item.value)) {
        svg(*nested, depth);
      } else if (const auto* group = std::get_if<SVG::Group>(&item.value)) {
        Fields fields("g");
        addElementFields(fields, *group);
        line(depth, fields.take());
        children(group->children, depth + 1);
      } else {
        line(depth, describe(item));
      }
    }
  }

  void definition(const SVG::NamedDefinition& named, int depth) {
    line(depth, concat({"definition ", quoted(named.id), ": ", describe(named.definition)}));
    std::visit(
        [&](const auto& record) {
          using T = std::decay_t<decltype(record)>;
          if constexpr (std::is_same_v<T, SVG::Filter>) {
            for (const auto& primitive : record.primitives) line(depth + 1, primitive.description());
          } else {
            for (const auto& stop : record.stops) line(depth + 1, describeStop(stop));
          }
        },
        named.definition.value);
  }

  std::string out_;
};

}  // namespace

std::string describe(const SVG::PresentationAttributes& p) {
  Fields fields("");
  fields.add("opacity", p.opacity);
  fields.add("fill-opacity", p.fillOpacity);
  fields.add("stroke-opacity", p.strokeOpacity);
  fields.add("stroke-width", p.strokeWidth);
  if (p.fill) fields.add("fill", p.fill->description());
  if (p.strokeMiterLimit != CSS::UnitLength::point(4)) fields.add("stroke-miterlimit", p.strokeMiterLimit);
  if (p.stroke) fields.add("stroke", p.stroke->description());
  if (p.fillRule.kind != SVG::Inheritable<CGPathFillRule>::Kind::none) {
    fields.add("fill-rule", describeInheritable(p.fillRule));
  }
  if (p.clipRule.kind != SVG::Inheritable<CGPathFillRule>::Kind::none) {
    fields.add("clip-rule", describeInheritable(p.clipRule));
  }
  if (p.strokeLineCap != CGLineCap::butt) {
    static constexpr const char* caps[] = {"butt", "round", "square"};
    fields.add("stroke-linecap", std::string(p.strokeLineCap ? caps[int(*p.strokeLineCap)] : "nil"));
  }
  if (p.strokeLineJoin != CGLineJoin::miter) {
    static constexpr const char* joins[] = {"miter", "round", "bevel"};
    fields.add("stroke-linejoin", std::string(p.strokeLineJoin ? joins[int(*p.strokeLineJoin)] : "nil"));
  }
  if (p.filter.kind != SVG::Inheritable<std::string>::Kind::none) {
    fields.add("filter", describeInheritable(p.filter));
  }
  if (!p.transform.empty()) fields.add("transform", describeTransforms(p.transform));
  std::string text = fields.take();
  return text.empty() ? text : text.substr(1);
}

std::string describe(const SVG::Definition& definition) {
  return std::visit(
      [](const auto& record) -> std::string {
        using T = std::decay_t<decltype(record)>;
        if constexpr (std::is_same_v<T, SVG::LinearGradient>) {
          Fields fields("linearGradient");
          fields.add("href", record.templateGradientID);
          fields.add("x1", record.x1.description());
          fields.add("y1", record.y1.description());
          fields.add("x2", record.x2.description());
          fields.add("y2", record.y2.description());
          if (!record.gradientTransform.empty()) {
            fields.add("gradientTransform", describeTransforms(record.gradientTransform));
          }
          fields.add("stops", std::to_string(record.stops.size()));
          return fields.take();
        } else if constexpr (std::is_same_v<T, SVG::RadialGradient>) {
          Fields fields("radialGradient");
          fields.add("href", record.templateGradientID);
          fields.add("cx", record.cx.description());
          fields.add("cy", record.cy.description());
          fields.add("r", record.r.description());
          fields.add("fr", record.fr.description());
          fields.add("fx", record.fx);
          fields.add("fy", record.fy);
          if (!record.gradientTransform.empty()) {
            fields.add("gradientTransform", describeTransforms(record.gradientTransform));
          }
          fields.add("stops", std::to_string(record.stops.size()));
          return fields.take();
        } else {
          Fields fields("filter");
          fields.add("x", record.x);
          fields.add("y", record.y);
          fields.add("width", record.width);
          fields.add("height", record.height);
          fields.add("primitives", std::to_string(record.primitives.size()));
          return fields.take();
        }
      },
      definition.value);
}

std::string describe(const SVG::GroupItem& item) {
  return std::visit(
      [](const auto& record) -> std::string {
        using T = std::decay_t<decltype(record)>;
        if constexpr (std::is_same_v<T, SVG>) {
          return concat({"svg children=", std::to_string(record.children.size())});
        } else if constexpr (std::is_same_v<T, SVG::Group>) {
          return concat({"g children=", std::to_string(record.children.size())});
        } else {
          Fields fields("");
          if constexpr (std::is_same_v<T, SVG::Path>) {
            fields = Fields("path");
            std::string commands = "[";
            for (std::size_t i = 0; i < record.commands.size(); ++i) {
              if (i > 0) commands += ", ";
              commands += record.commands[i].description();
            }
            commands += ']';
            fields.add("d", commands);
            fields.add("pathLength", record.pathLength);
          } else if constexpr (std::is_same_v<T, SVG::Circle>) {
            fields = Fields("circle");
            fields.add("cx", record.cx.description());
            fields.add("cy", record.cy.description());
            fields.add("r", record.r.description());
            fields.add("pathLength", record.pathLength);
          } else if constexpr (std::is_same_v<T, SVG::Ellipse>) {
            fields = Fields("ellipse");
            fields.add("cx", record.cx.description());
            fields.add("cy", record.cy.description());
            fields.add("rx", record.rx.description());
            fields.add("ry", record.ry.description());
            fields.add("pathLength", record.pathLength);
          } else if constexpr (std::is_same_v<T, SVG::Rect>) {
            fields = Fields("rect");
            fields.add("x", record.x);
            fields.add("y", record.y);
            fields.add("width", record.width);
            fields.add("height", record.height);
            fields.add("rx", record.rx);
            fields.add("ry", record.ry);
            fields.add("pathLength", record.pathLength);
          } else if constexpr (std::is_same_v<T, SVG::Line>) {
            fields = Fields("line");
            if (record.startPoint) fields.add("start", describePoint(*record.startPoint));
            if (record.endPoint) fields.add("end", describePoint(*record.endPoint));
            fields.add("pathLength", record.pathLength);
          } else if constexpr (std::is_same_v<T, SVG::Polygon>) {
            fields = Fields("polygon");
            fields.add("points", describePoints(record.points));
            fields.add("pathLength", record.pathLength);
          } else if constexpr (std::is_same_v<T, SVG::Polyline>) {
            fields = Fields("polyline");
            fields.add("points", describePoints(record.points));
            fields.add("pathLength", record.pathLength);
          } else if constexpr (std::is_same_v<T, SVG::Image>) {
            fields = Fields("image");
            fields.add("x", record.x);
            fields.add("y", record.y);
            fields.add("width", record.width);
            fields.add("height", record.height);
            if (!record.transform.empty()) fields.add("transform", describeTransforms(record.transform));
          } else if constexpr (std::is_same_v<T, SVG::Text>) {
            fields = Fields("text");
            fields.add("x", record.x.description());
            fields.add("y", record.y.description());
            fields.add("dx", record.dx);
            fields.add("dy", record.dy);
            fields.add("textLength", record.textLength);
            if (record.font) fields.add("font", record.font->description());
            fields.add("text", quoted(record.text));
          }
          addElementFields(fields, record);
          return fields.take();
        }
      },
      item.value);
}

std::string describeTree(const SVG& svg) {
  TreeWriter writer;
  writer.svg(svg, 0);
  return writer.take();
}

}  // namespace SVGParser
