// Filters as `ViewModifier` structs, or inline as plain modifiers where they are simple.
#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <type_traits>
#include <unordered_map>
#include <variant>

#include "Emitters.h"
#include "SVGConverter/PaintText.h"

namespace SVGConverter {

namespace {

using FilterGroup = FilterModifierType::FilterGroup;
using Primitive = FilterModifierType::Primitive;

// Groups share their inputs, so a chain of blends that each use their predecessor twice is
// small as a model but doubles in size with every link once written out. Beyond this many
// written groups and effects the filter is left out of the text.
constexpr std::size_t writtenEntriesBudget = 10'000;

// The number of groups and effects the struct body would write, capped just above the budget.
// Shared inputs are counted once per use, as they will be written, but computed once.
class WrittenSize {
 public:
  std::size_t of(const FilterGroup& group) {
    const auto key = &group.inputs();
    if (const auto found = memo_.find(key); found != memo_.end() && !group.inputs().empty()) {
      return found->second;
    }
    std::size_t size = 1 + group.primitives().size();
    for (const auto& input : group.inputs()) {
      size = std::min(size + of(input), writtenEntriesBudget + 1);
    }
    if (!group.inputs().empty()) memo_[key] = size;
    return size;
  }

 private:
  std::unordered_map<const void*, std::size_t> memo_;
};

void appendFrameLines(CodeGenerationStream& s, const std::optional<CGSize>& size,
                      const std::optional<CGPoint>& origin) {
  if (size) {
    s.appendLine(".frame(width: " + s.numberString(size->width) +
                 ", height: " + s.numberString(size->height) + ")");
  }
  if (origin) {
    s.appendLine(".offset(x: " + s.numberString(origin->x) + ", y: " + s.numberString(origin->y) +
                 ")");
  }
}

std::string shadowColor(CodeGenerationStream& s, const Primitive::Shadow& shadow) {
  const auto& config = s.config();
  std::optional<std::string> color;
  if (shadow.color) {
    color = colorText(s, *shadow.color, shadow.opacity, config.preferInitOverType,
                      config.exportHexColorExtension);
  }
  if (color) return *color;
  return config.preferInitOverType ? ".init(.sRGBLinear, white: 0, opacity: 0.33)"
                                   : "Color(.sRGBLinear, white: 0, opacity: 0.33)";
}

void appendPrimitive(CodeGenerationStream& s, const Primitive& primitive) {
  std::visit(
      [&](const auto& op) {
        using T = std::decay_t<decltype(op)>;
        if constexpr (std::is_same_v<T, Primitive::Blur>) {
          s.appendLine(".blur(radius: " + s.numberString(op.radius) + ")", std::nullopt,
                       "feGaussianBlur");
        } else if constexpr (std::is_same_v<T, Primitive::Offset>) {
          s.appendLine(".offset(x: " + s.numberString(op.offset.x) +
                           ", y: " + s.numberString(op.offset.y) + ")",
                       std::nullopt, "feOffset");
        } else {
          std::string line;
          if (!op.color && !op.opacity) {
            line = ".shadow(radius: " + s.numberString(op.radius) + ")";
          } else {
            line =
                ".shadow(color: " + shadowColor(s, op) + ", radius: " + s.numberString(op.radius);
            if (op.position) {
              line += ", x: " + s.numberString(op.position->x) +
                      ", y: " + s.numberString(op.position->y);
            }
            line += ")";
          }
          s.appendLine(line, std::nullopt, "feDropShadow");
        }
      },
      primitive.operation);
  appendFrameLines(s, primitive.intrinsicSize, primitive.origin);
}

void appendPrimitives(CodeGenerationStream& s, const std::vector<Primitive>& primitives) {
  for (const auto& primitive : primitives) appendPrimitive(s, primitive);
}

std::string_view blendModeText(FilterGroup::BlendMode mode) {
  static constexpr std::array<std::string_view, 16> names{
      ".normal",     ".multiply",  ".screen",    ".overlay",    ".darken", ".lighten",
      ".difference", ".exclusion", ".hue",       ".saturation", ".color",  ".luminosity",
      ".colorDodge", ".colorBurn", ".hardLight", ".softLight"};
  const auto index = static_cast<std::size_t>(mode);
  return index < names.size() ? names[index] : ".normal";
}

// Recursion follows the filter's depth, which the conversion bounds.
void appendGroupBody(CodeGenerationStream& s, const FilterGroup& group) {
  switch (group.kind()) {
    case FilterGroup::Kind::source:
      s.appendLine("content", std::nullopt, "SourceGraphic");
      break;
    case FilterGroup::Kind::sourceAlpha:
      s.appendLine("Color.black.mask(content)", std::nullopt, "SourceAlpha");
      break;
    case FilterGroup::Kind::merge:
      s.appendBlock("ZStack(alignment: .topLeading)", "feMerge", [&] {
        for (const auto& input : group.inputs()) appendGroupBody(s, input);
      });
      break;
    case FilterGroup::Kind::blend:
      s.appendBlock("ZStack(alignment: .topLeading)", "feBlend", [&] {
        appendGroupBody(s, group.input());
        appendGroupBody(s, group.input2());
        s.indented(true, [&] {
          s.appendLine(".blendMode(" + std::string(blendModeText(group.mode())) + ")");
        });
      });
      break;
    case FilterGroup::Kind::primitive:
      appendGroupBody(s, group.input());
      s.indented(true, [&] { appendPrimitives(s, group.primitives()); });
      break;
  }
}

void appendGroupInline(CodeGenerationStream& s, const FilterGroup& group) {
  switch (group.kind()) {
    case FilterGroup::Kind::source:
      break;
    case FilterGroup::Kind::sourceAlpha:
      s.appendLine("// Cannot render `SourceAlpha` inline");
      break;
    case FilterGroup::Kind::merge:
      s.appendLine("// Cannot render `feMerge` inline");
      break;
    case FilterGroup::Kind::blend:
      s.appendLine("// Cannot render `feBlend` inline");
      break;
    case FilterGroup::Kind::primitive:
      appendGroupInline(s, group.input());
      appendPrimitives(s, group.primitives());
      break;
  }
}

}  // namespace

bool isInlinable(const FilterModifierType& filter) {
  if (filter.intrinsicSize || filter.origin) return false;
  const auto& group = filter.filterGroup;
  return group.kind() == FilterGroup::Kind::source ||
         (group.kind() == FilterGroup::Kind::primitive &&
          group.input().kind() == FilterGroup::Kind::source);
}

void appendFilterStruct(CodeGenerationStream& s, const FilterModifierType& filter,
                        const SVGParser::Report& report) {
  s.appendBlock("struct " + filter.typeName + ": ViewModifier {", std::nullopt, [&] {
    appendStatics(s, filter.origin, filter.intrinsicSize, false);
    s.appendBlankLine();
    s.appendBlock("func body(content: Content) -> some View", std::nullopt, [&] {
      if (WrittenSize().of(filter.filterGroup) > writtenEntriesBudget) {
        report.print({"Filter too large to write, left unfiltered:", filter.typeName});
        s.appendLine("// Filter too large to write out: drawn unfiltered");
        s.appendLine("content");
      } else {
        appendGroupBody(s, filter.filterGroup);
      }
      appendFrameLines(s, filter.intrinsicSize, filter.origin);
    });
  });
}

void appendFilterInline(CodeGenerationStream& s, const FilterModifierType& filter) {
  appendGroupInline(s, filter.filterGroup);
  appendFrameLines(s, filter.intrinsicSize, filter.origin);
}

}  // namespace SVGConverter
