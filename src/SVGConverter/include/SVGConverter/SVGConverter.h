// The view-model conversion: one SVG tree in, one container of the view model out.
//
//   SVGSwiftUIFigurer.h   the walk; SVGSwiftUIFigurer::makeModel is the entry point
//   SwiftUIModel.h        the view model records
//   IDPool.h              unique names and the name pipeline
//   PathConversion.h      path data to absolute commands, arcs, line folding
//   Transforms.h          transform lists as model steps and affine transforms
//   AffineTransform.h     CGAffineTransform and its prepending operations
//   ModelDescription.h    readable dumps of the model
#pragma once

#include "SVGConverter/AffineTransform.h"
#include "SVGConverter/IDPool.h"
#include "SVGConverter/ModelDescription.h"
#include "SVGConverter/PathConversion.h"
#include "SVGConverter/SVGSwiftUIFigurer.h"
#include "SVGConverter/SwiftUIModel.h"
#include "SVGConverter/Transforms.h"
