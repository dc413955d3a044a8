// Readable, stable text forms of trees and values, for dumps and report lines. Nothing in
// the system parses these back.
#pragma once

#include <string>

#include "SVGParser/SVG.h"

namespace SVGParser {

// A multi-line dump: one line per element and definition, indented two blanks per depth,
// with the fields that are set.
std::string describeTree(const SVG& svg);
// One line for an item, as used by "dropping element, no group:".
std::string describe(const SVG::GroupItem& item);
std::string describe(const SVG::PresentationAttributes& presentation);
std::string describe(const SVG::Definition& definition);

}  // namespace SVGParser
