// Path data to absolute drawing commands. Pure functions; nothing outlives a call.
#pragma once

#include <vector>

#include "SVGConverter/SwiftUIModel.h"
#include "SVGParser/SVG.h"

namespace SVGConverter {

// Makes every command absolute. The current point and the control point that smooth
// commands read both start at (0, 0); `Z` leaves the current point where it is.
std::vector<SwiftUIModel::PathCommand> absoluteCommands(const std::vector<SVG::Command>& commands);

// An elliptical arc as a unit-circle arc with the steps that carry it into place. The `large`
// flag takes no part: the centre is always on the same side of the chord.
SwiftUIModel::PathCommand arcCommand(double rx, double ry, double angle, bool sweep, CGPoint end,
                                     CGPoint current);

// Folds runs of straight lines into `addLines`. A line with nothing before it to fold into is
// kept as it is.
std::vector<SwiftUIModel::PathCommand> foldLines(std::vector<SwiftUIModel::PathCommand> commands);

// Both passes, as a `path` element gets them.
std::vector<SwiftUIModel::PathCommand> convertPath(const std::vector<SVG::Command>& commands);

}  // namespace SVGConverter
