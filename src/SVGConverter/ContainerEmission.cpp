// The inside of a container's view struct: statics, definitions, nested types, the resizing
// support and the body, with the modifiers and position lines every view shares.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <string>
#include <type_traits>
#include <variant>

#include "Emitters.h"
#include "SVGConverter/ValueLiterals.h"

namespace SVGConverter {

namespace {

using SwiftUIModel::Subview;

bool hasResizable(const ContainerViewType& c) {
  return c.resizable.width.has_value() || c.resizable.height.has_value();
}

// Written for every child of every container, often twice: the lines are built in one buffer.
void appendPositionLines(CodeGenerationStream& s, const std::optional<CGPoint>& origin,
                         const std::optional<CGSize>& size) {
  std::string line;
  const auto append = [&](const std::optional<double>& v, std::string_view unknown) {
    if (v) {
      s.appendNumber(line, *v);
    } else {
      line += unknown;
    }
  };
  // `head`, a, `middle`, b, `tail`; an absent number is written as `unknown`.
  const auto pairLine = [&](std::string_view head, const std::optional<double>& a,
                            std::string_view middle, const std::optional<double>& b,
                            std::string_view tail, std::string_view unknown) {
    line = head;
    append(a, unknown);
    line += middle;
    append(b, unknown);
    line += tail;
    s.appendLine(line);
  };
  const auto paddingLine = [&](std::string_view head, double v) {
    line = head;
    s.appendNumber(line, v);
    line += ')';
    s.appendLine(line);
  };
  std::optional<double> x, y, w, h;
  if (origin) x = origin->x, y = origin->y;
  if (size) w = size->width, h = size->height;
  if (w || h) pairLine(".frame(width: ", w, ", height: ", h, ", alignment: .topLeading)", "nil");
  if (!s.config().positionUsingPadding && (x || y)) {
    // An unknown coordinate stands at the parent's edge.
    pairLine(".position(x: ", x, ", y: ", y, ")", "0");
    return;
  }
  if (x && *x != 0) paddingLine(".padding(.leading, ", *x);
  if (y && *y != 0) paddingLine(".padding(.top, ", *y);
}

void appendCall(CodeGenerationStream& s, std::string_view typeName, bool resizable,
                const std::optional<CGPoint>& origin, const std::optional<CGSize>& size) {
  std::string call;
  call.reserve(typeName.size() + 2);
  call += typeName;
  call += "()";
  s.appendLine(call);
  s.indented(true, [&] {
    if (resizable) s.appendLine(".resizable()");
    appendPositionLines(s, origin, size);
  });
}

void appendChild(CodeGenerationStream& s, const Subview& child) {
  if (const auto* text = std::get_if<SwiftUIModel::Text>(&child.value)) {
    appendText(s, *text);
    return;
  }
  std::visit(
      [&](const auto& view) {
        using T = std::decay_t<decltype(view)>;
        if constexpr (!std::is_same_v<T, SwiftUIModel::Text>) {
          bool resizable = false;
          if constexpr (std::is_same_v<T, ContainerViewType>) resizable = hasResizable(view);
          appendCall(s, view.typeName, resizable, view.origin, view.intrinsicSize);
        }
      },
      child.value);
}

void appendChild(CodeGenerationStream& s, const ChildCalls::Call& child) {
  if (child.text != nullptr) {
    appendText(s, *child.text);
    return;
  }
  appendCall(s, child.typeName, child.resizable, child.origin, child.intrinsicSize);
}

template <class Visit>
void forEachChild(const std::vector<Subview>& children, Visit&& visit) {
  for (const auto& child : children) visit(child);
}
template <class Visit>
void forEachChild(const ChildCalls& children, Visit&& visit) {
  children.forEach(visit);
}

// The children, then the container's modifiers and `after`'s lines: one level in after a
// single view, at the block's own level after a "ZStack" block.
template <class Children, class After>
void appendContent(CodeGenerationStream& s, const ContainerViewType& c, const Children& children,
                   After&& after) {
  const auto appendAll = [&] {
    forEachChild(children, [&](const auto& child) { appendChild(s, child); });
  };
  if (children.empty()) {
    s.appendLine("EmptyView()", std::nullopt, "Group w/o content");
  } else if (children.size() == 1) {
    appendAll();
  } else {
    s.appendBlock("ZStack(alignment: .topLeading)", std::nullopt, appendAll);
  }
  s.indented(children.size() <= 1, [&] {
    appendViewModifiers(s, c.filterModifier, c.transform, false);
    after();
  });
}

void appendViewBoxPadding(CodeGenerationStream& s) {
  s.appendLine(".padding(.leading, Self.viewBox.minX)");
  s.appendLine(".padding(.top,     Self.viewBox.minY)");
}

void appendViewBoxScaling(CodeGenerationStream& s, bool needsOffset) {
  s.appendLine(".frame(width: Self.viewBox.width, height: Self.viewBox.height,");
  s.appendLine("       alignment: .topLeading)");
  if (needsOffset) appendViewBoxPadding(s);
  s.appendLine(".scaleEffect(x: proxy.size.width  / Self.viewBox.width,");
  s.appendLine("             y: proxy.size.height / Self.viewBox.height)");
  s.appendLine(".frame(width: proxy.size.width, height: proxy.size.height)");
}

void appendFixedFrame(CodeGenerationStream& s, const CGSize& size, bool padding) {
  if (padding) appendViewBoxPadding(s);
  s.appendLine(".frame(width: " + s.numberString(size.width) +
               ", height: " + s.numberString(size.height) + ")");
}

void appendProxyScaling(CodeGenerationStream& s, const SwiftUIModel::Resizable& resizable) {
  if (!resizable.width && !resizable.height) {
    s.appendLine(".frame(width: proxy.size.width, height: proxy.size.height,");
    s.appendLine("       alignment: .topLeading)");
    return;
  }
  const std::string w = resizable.width ? s.numberString(*resizable.width) : "proxy.size.width";
  const std::string h = resizable.height ? s.numberString(*resizable.height) : "proxy.size.height";
  s.appendLine(".frame(width: " + w + ", height: " + h + ",");
  s.appendLine("       alignment: .topLeading)");
  s.appendLine(".scaleEffect(x: " + (resizable.width ? "proxy.size.width  / " + w : "1.0") + ",");
  s.appendLine("             y: " + (resizable.height ? "proxy.size.height / " + h : "1.0") + ")");
  s.appendLine(".frame(width: proxy.size.width, height: proxy.size.height)");
}

template <class Children>
void appendBody(CodeGenerationStream& s, const ContainerViewType& c, const Children& children) {
  const auto& viewBox = c.viewBox;
  const bool resizable = hasResizable(c);
  const bool needsOffset = viewBox && (viewBox->origin.x != 0 || viewBox->origin.y != 0);
  const auto fixedFrame = [&](bool padding) {
    if (c.intrinsicSize) appendFixedFrame(s, *c.intrinsicSize, padding);
  };
  const auto geometryReader = [&](auto&& scaling) {
    s.appendBlock("GeometryReader { proxy in", std::nullopt,
                  [&] { appendContent(s, c, children, scaling); });
  };
  const auto viewBoxScaling = [&] { appendViewBoxScaling(s, needsOffset); };

  if (viewBox && !resizable) {
    geometryReader(viewBoxScaling);
  } else if (viewBox) {
    s.appendBlock("if isResizable", std::nullopt, [&] { geometryReader(viewBoxScaling); });
    s.appendBlock("else", std::nullopt,
                  [&] { appendContent(s, c, children, [&] { fixedFrame(needsOffset); }); });
  } else if (!resizable) {
    appendContent(s, c, children, [&] { fixedFrame(false); });
  } else {
    s.appendBlock("if isResizable", std::nullopt,
                  [&] { geometryReader([&] { appendProxyScaling(s, c.resizable); }); });
    s.appendBlock("else", std::nullopt,
                  [&] { appendContent(s, c, children, [&] { fixedFrame(false); }); });
  }
}

template <class Children>
void writeMembersAndBody(CodeGenerationStream& s, const ContainerViewType& c,
                         const Children& children) {
  if (hasResizable(c)) {
    s.appendBlankLine();
    s.appendLine("var isResizable = false");
    s.appendLine("func resizable() -> Self { Self(isResizable: true) }");
  }
  s.appendBlankLine();
  s.appendBlock("var body: some View", std::nullopt, [&] { appendBody(s, c, children); });
}

void appendNestedTypes(CodeGenerationStream& s, const std::vector<Subview>& children,
                       const SVGParser::Report& report) {
  for (const auto& child : children) appendNestedType(s, child, report);
}

void appendGroupStruct(CodeGenerationStream& s, const ContainerViewType& group,
                       const SVGParser::Report& report) {
  s.appendBlock("struct " + group.typeName + ": View", std::nullopt, [&] {
    s.appendInfoComment("Group");
    appendNestedTypes(s, group.childTypes, report);
    writeMembersAndBody(s, group, group.childTypes);
  });
}

void appendDefinition(CodeGenerationStream& s, const SwiftUIModel::Definition& definition,
                      const SVGParser::Report& report) {
  const auto& config = s.config();
  std::visit(
      [&](const auto& d) {
        using T = std::decay_t<decltype(d)>;
        if constexpr (std::is_same_v<T, SwiftUIModel::LinearGradientProperty>) {
          appendLinearGradient(s, d);
        } else if constexpr (std::is_same_v<T, SwiftUIModel::RadialGradientProperty>) {
          appendRadialGradient(s, d);
        } else {
          const bool skipped = !config.modifiersForInlinableFilters &&
                               config.inlineFiltersIfPossible && isInlinable(d);
          if (!skipped) appendFilterStruct(s, d, report);
        }
      },
      definition.value);
}

}  // namespace

bool appendStatics(CodeGenerationStream& s, const std::optional<CGPoint>& origin,
                   const std::optional<CGSize>& size, bool forced) {
  if (!forced && !s.config().frameAsProperty) return false;
  if (size) {
    s.appendBlankLine();
    std::string line = "static let intrinsicSize = ";
    line += sizeLiteral(s, *size, false);
    s.appendLine(line);
  } else if (origin) {
    s.appendBlankLine();
  }
  if (origin) s.appendLine("static let origin        = " + pointLiteral(s, *origin, false));
  return size || origin;
}

void appendViewModifiers(CodeGenerationStream& s, const std::optional<FilterModifierType>& filter,
                         const std::vector<TransformStep>& transform, bool indent) {
  s.indented(indent, [&] {
    if (filter) {
      if (s.config().inlineFiltersIfPossible && isInlinable(*filter)) {
        appendFilterInline(s, *filter);
      } else {
        s.appendLine(".modifier(" + filter->typeName + "())");
      }
    }
    for (const auto& step : transform) {
      std::visit(
          [&](const auto& v) {
            using T = std::decay_t<decltype(v)>;
            if constexpr (std::is_same_v<T, TransformStep::Translate>) {
              s.appendLine(".offset(x: " + s.numberString(v.dx) + ", y: " + s.numberString(v.dy) +
                           ")");
            } else if constexpr (std::is_same_v<T, TransformStep::Rotate>) {
              const double degrees = v.angle * 180 / std::numbers::pi;
              s.appendLine(".rotationEffect(Angle(degrees: " + s.numberString(degrees) + "))");
            } else if constexpr (std::is_same_v<T, TransformStep::Scale>) {
              s.appendLine(".scaleEffect(x: " + s.numberString(v.x) +
                           ", y: " + s.numberString(v.y) + ")");
            } else {
              s.appendLine(".transformEffect(" + firstStepText(s, step, false) + ")");
            }
          },
          step.value);
    }
  });
}

void appendMultilineSteps(CodeGenerationStream& s, const std::vector<std::string>& steps) {
  s.indented(true, [&] {
    s.appendLine(steps.empty() ? ".identity" : steps.front());
    s.indented(true, [&] {
      for (std::size_t i = 1; i < steps.size(); ++i) s.appendLine(steps[i]);
    });
  });
}

void ChildCalls::add(Subview&& child) {
  Entry entry{0, 0, 0, 0, 0, 0};
  if (auto* text = std::get_if<SwiftUIModel::Text>(&child.value)) {
    entry.flags = isText;
    texts_.push_back(std::move(*text));
    entries_.push_back(entry);
    return;
  }
  std::visit(
      [&](const auto& view) {
        using T = std::decay_t<decltype(view)>;
        if constexpr (!std::is_same_v<T, SwiftUIModel::Text>) {
          // Generated names are short; a longer one (from an id) is cut to what the body can
          // name, which no real document comes near.
          const std::string_view name = std::string_view(view.typeName).substr(0, UINT32_MAX);
          if (names_.empty() || names_.back().size() + name.size() > names_.back().capacity()) {
            names_.emplace_back().reserve(std::max(nameChunk, name.size()));
          }
          names_.back() += name;
          entry.nameLength = static_cast<std::uint32_t>(name.size());
          if (view.origin) {
            entry.flags |= hasOrigin;
            entry.x = view.origin->x;
            entry.y = view.origin->y;
          }
          if (view.intrinsicSize) {
            entry.flags |= hasSize;
            entry.width = view.intrinsicSize->width;
            entry.height = view.intrinsicSize->height;
          }
          if constexpr (std::is_same_v<T, ContainerViewType>) {
            if (hasResizable(view)) entry.flags |= resizable;
          }
        }
      },
      child.value);
  entries_.push_back(entry);
}

void appendContainerHead(CodeGenerationStream& s, const ContainerViewType& c,
                         const SVGParser::Report& report) {
  const auto& config = s.config();
  const bool wroteStatics = appendStatics(s, std::nullopt, c.intrinsicSize, true);
  if (!wroteStatics && c.viewBox) s.appendBlankLine();
  if (c.viewBox) s.appendLine("static let viewBox = " + rectLiteral(s, *c.viewBox, false));
  if (config.infoComments && !c.definitions.empty() && config.modifierSectionComment) {
    s.appendBlankLine();
    s.appendInfoComment(*config.modifierSectionComment);
  }
  for (const auto& definition : c.definitions) {
    // Written also ahead of a filter struct that turns out to be skipped.
    s.appendBlankLine();
    appendDefinition(s, definition, report);
  }
}

void appendNestedViewsComment(CodeGenerationStream& s) {
  const auto& config = s.config();
  if (config.infoComments && config.nestedViewsSectionComment) {
    s.appendBlankLine();
    s.appendInfoComment(*config.nestedViewsSectionComment);
  }
}

// Recursion follows the container nesting, which the conversion bounds.
void appendNestedType(CodeGenerationStream& s, const Subview& child,
                      const SVGParser::Report& report) {
  if (child.kind == Subview::Kind::text) return;
  s.appendBlankLine();
  switch (child.kind) {
    case Subview::Kind::group:
      appendGroupStruct(s, std::get<ContainerViewType>(child.value), report);
      break;
    case Subview::Kind::svg: {
      const auto& svg = std::get<ContainerViewType>(child.value);
      s.appendInfoComment("SVG");
      s.appendBlock("struct " + svg.typeName + ": View", std::nullopt,
                    [&] { appendContainerBody(s, svg, report); });
      break;
    }
    default:
      appendShapeStruct(s, child);
  }
}

void appendMembersAndBody(CodeGenerationStream& s, const ContainerViewType& c,
                          const ChildCalls& children) {
  writeMembersAndBody(s, c, children);
}

void appendContainerBody(CodeGenerationStream& s, const ContainerViewType& c,
                         const SVGParser::Report& report) {
  appendContainerHead(s, c, report);
  if (!c.childTypes.empty()) appendNestedViewsComment(s);
  appendNestedTypes(s, c.childTypes, report);
  writeMembersAndBody(s, c, c.childTypes);
}

}  // namespace SVGConverter
