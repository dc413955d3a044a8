// The emitters of the generated file, each writing one kind of model record through the
// stream. The container emitters call the shape, text, paint and filter ones.
#pragma once

#include <optional>
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
