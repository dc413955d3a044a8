// The emitters of the generated file, each writing one kind of model record through the
// stream. The container emitters call the shape, text, paint and filter ones.
#pragma once

#include <cstdint>
#include <deque>
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
// or, for a text, the text itself. Compact and never copied as it grows, for roots of hundreds
// of thousands of children.
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

  // Each call in order.
  template <class Visit>
  void forEach(Visit&& visit) const {
    std::size_t chunk = 0, offset = 0, text = 0;
    for (const Entry& entry : entries_) {
      if ((entry.flags & isText) != 0) {
        visit(Call{{}, {}, {}, false, &texts_[text++]});
        continue;
      }
      if (offset + entry.nameLength > names_[chunk].size()) {
        ++chunk;
        offset = 0;
      }
      Call call{std::string_view(names_[chunk]).substr(offset, entry.nameLength),
                {},
                {},
                (entry.flags & resizable) != 0,
                nullptr};
      offset += entry.nameLength;
      if ((entry.flags & hasOrigin) != 0) call.origin = CGPoint{entry.x, entry.y};
      if ((entry.flags & hasSize) != 0) call.intrinsicSize = CGSize{entry.width, entry.height};
      visit(call);
    }
  }

 private:
  enum Flag : std::uint8_t { hasOrigin = 1, hasSize = 2, resizable = 4, isText = 8 };
  struct Entry {
    double x, y, width, height;
    std::uint32_t nameLength;
    std::uint8_t flags;
  };
  static constexpr std::size_t nameChunk = 64 * 1024;

  std::deque<Entry> entries_;
  // The names one after the other, in chunks that are filled and never moved: a name that
  // does not fit begins the next chunk.
  std::vector<std::string> names_;
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
