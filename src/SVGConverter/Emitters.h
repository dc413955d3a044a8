// The emitters of the generated file, each writing one kind of model record through the
// stream. The container emitters call the shape, text, paint and filter ones.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "SVGConverter/CodeGenerationStream.h"
#include "SVGConverter/SwiftUIModel.h"
#include "SVGParser/Report.h"

namespace SVGConverter {

using SwiftUIModel::ContainerViewType;
using SwiftUIModel::FilterModifierType;
using SwiftUIModel::TransformStep;

// Containers (ContainerEmission.cpp).
void appendContainerBody(CodeGenerationStream& s, const ContainerViewType& container,
                         const SVGParser::Report& report);
// The same in parts, for a container whose children are written as each is converted: the
// statics and definitions; the comment ahead of the first child; each child's own type; then,
// from what the body needs of each child, the members and the body.
void appendContainerHead(CodeGenerationStream& s, const ContainerViewType& container,
                         const SVGParser::Report& report);
void appendNestedViewsComment(CodeGenerationStream& s);
void appendNestedType(CodeGenerationStream& s, const SwiftUIModel::Subview& child,
                      const SVGParser::Report& report);
// What a container's body writes of each child: the call of its view with the position lines,
// or, for a text, the text itself. Compact, for roots of many thousands of children.
class ChildCalls {
 public:
  struct Call {
    std::string_view typeName;
    std::optional<CGPoint> origin;
    std::optional<CGSize> intrinsicSize;
    bool resizable = false;
    const SwiftUIModel::Text* text = nullptr;
  };

  void add(SwiftUIModel::Subview&& child);
  std::size_t size() const { return entries_.size(); }
  bool empty() const { return entries_.empty(); }
  Call operator[](std::size_t index) const;
  Call front() const { return (*this)[0]; }

 private:
  enum Flag : std::uint8_t { hasOrigin = 1, hasSize = 2, resizable = 4, isText = 8 };
  struct Entry {
    std::size_t nameEnd;  // in `names_`; the name starts where the previous one ends
    double x, y, width, height;
    std::size_t text;  // in `texts_`
    std::uint8_t flags;
  };
  std::string names_;
  std::vector<Entry> entries_;
  std::vector<SwiftUIModel::Text> texts_;
};
void appendMembersAndBody(CodeGenerationStream& s, const ContainerViewType& container,
                          const ChildCalls& children);
// "static let intrinsicSize" and "static let origin"; whether anything was written.
bool appendStatics(CodeGenerationStream& s, const std::optional<CGPoint>& origin,
                   const std::optional<CGSize>& size, bool forced);
void appendViewModifiers(CodeGenerationStream& s, const std::optional<FilterModifierType>& filter,
                         const std::vector<TransformStep>& transform, bool indent);
// One level in, the first step (".identity" for none), then each further step one more level in.
void appendMultilineSteps(CodeGenerationStream& s, const std::vector<std::string>& steps);

// Shapes and paths (ShapeEmission.cpp).
void appendShapeStruct(CodeGenerationStream& s, const SwiftUIModel::Subview& child);

// Gradients (GradientEmission.cpp).
void appendLinearGradient(CodeGenerationStream& s,
                          const SwiftUIModel::LinearGradientProperty& gradient);
void appendRadialGradient(CodeGenerationStream& s,
                          const SwiftUIModel::RadialGradientProperty& gradient);

// Filters (FilterEmission.cpp).
bool isInlinable(const FilterModifierType& filter);
void appendFilterStruct(CodeGenerationStream& s, const FilterModifierType& filter,
                        const SVGParser::Report& report);
// An inlinable filter is a short chain, so it needs no size guard.
void appendFilterInline(CodeGenerationStream& s, const FilterModifierType& filter);

// Text (TextEmission.cpp).
void appendText(CodeGenerationStream& s, const SwiftUIModel::Text& text);

}  // namespace SVGConverter
