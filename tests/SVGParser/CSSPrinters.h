// Readable failure output for the CSS value types: GoogleTest finds these by argument lookup.
#pragma once

#include <ostream>

#include "SVGParser/CSS.h"

namespace CSSModel {

inline void PrintTo(const Value& value, std::ostream* out) {
  *out << value.description();
}
inline void PrintTo(const Color& color, std::ostream* out) {
  *out << color.description();
}
inline void PrintTo(const UnitLength& length, std::ostream* out) {
  *out << length.description();
}
inline void PrintTo(const Selector& selector, std::ostream* out) {
  static constexpr const char* kinds[] = {"id", "cssClass", "unsupported"};
  *out << '.' << kinds[static_cast<int>(selector.kind)] << "(\"" << selector.text << "\")";
}

}  // namespace CSSModel
