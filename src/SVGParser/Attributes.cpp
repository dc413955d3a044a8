#include "SVGParser/Attributes.h"

#include "TextUtilities.h"

namespace SVGParser {

std::string Attributes::description() const {
  if (items_.empty()) return "[:]";
  std::string out = "[";
  bool first = true;
  for (const auto& [name, value] : items_) {
    if (!first) out += ", ";
    text::appendQuoted(out, name);
    out += ": ";
    text::appendQuoted(out, value);
    first = false;
  }
  out += ']';
  return out;
}

}  // namespace SVGParser
