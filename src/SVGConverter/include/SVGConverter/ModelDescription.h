// Readable dumps of the view model, for the command line and for test failure messages.
// Nothing parses them back.
#pragma once

#include <cstddef>
#include <string>

#include "SVGConverter/SwiftUIModel.h"

namespace SVGConverter {

// One line per container, definition, view and path command, indented two blanks per level.
std::string describeModel(const SwiftUIModel::ContainerViewType& container);

// One-line forms.
std::string describe(const SwiftUIModel::PathCommand& command);
std::string describe(const SwiftUIModel::TransformStep& step);
std::string describe(const SwiftUIModel::Paint& paint);
std::string describe(const SwiftUIModel::ShapeDrawing& drawing);
std::string describe(const SwiftUIModel::Definition& definition);
// Groups that share inputs are written out at each use; past `budget` groups the rest is
// elided, since a filter that reuses results can describe to a text far larger than itself.
std::string describe(const SwiftUIModel::FilterModifierType::FilterGroup& group,
                     std::size_t budget = 200);
std::string describeNumber(double value);

}  // namespace SVGConverter
