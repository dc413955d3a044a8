// SVG transform lists as steps of the view model and as affine transforms of gradients.
#pragma once

#include <vector>

#include "SVGConverter/AffineTransform.h"
#include "SVGConverter/SwiftUIModel.h"
#include "SVGParser/SVG.h"

namespace SVGConverter {

// One step per transform, in list order. Rotations about a point and skews become matrices.
SwiftUIModel::TransformStep transformStep(const SVG::Transform& transform);
std::vector<SwiftUIModel::TransformStep> transformSteps(const std::vector<SVG::Transform>& list);

// The affine form of one transform of a `gradientTransform`.
CGAffineTransform affineTransform(const SVG::Transform& transform);
// The list folded so that the first listed transform applies to a point first.
CGAffineTransform affineTransform(const std::vector<SVG::Transform>& list);

}  // namespace SVGConverter
