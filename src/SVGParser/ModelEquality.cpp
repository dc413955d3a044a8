// Member-wise equality of the recursive records, spelled out so that the comparison of a
// tree instantiates once, here, and not in every file that includes the tree.
#include "SVGParser/SVG.h"

namespace SVGModel {

bool GroupItem::operator==(const GroupItem& other) const { return value == other.value; }

bool Group::operator==(const Group& other) const {
  return static_cast<const ElementAttributes&>(*this) == other && children == other.children;
}

}  // namespace SVGModel

bool SVG::operator==(const SVG& other) const {
  return static_cast<const SVGModel::ElementAttributes&>(*this) == other && x == other.x &&
         y == other.y && width == other.width && height == other.height &&
         viewBox == other.viewBox && children == other.children && definitions == other.definitions;
}
