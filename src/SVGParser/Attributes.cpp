#include "SVGParser/Attributes.h"

namespace SVGParser {

namespace {

void appendQuoted(std::string& out, std::string_view text) {
  out += '"';
  for (char c : text) {
    switch (c) {
      case '"': out += "\\\""; break;
      case '\\': out += "\\\\"; break;
      case '\n': out += "\\n"; break;
      case '\r': out += "\\r"; break;
      case '\t': out += "\\t"; break;
      default: out += c;
    }
  }
  out += '"';
}

}  // namespace

std::string Attributes::description() const {
  if (items_.empty()) return "[:]";
  std::string out = "[";
  bool first = true;
  for (const auto& [name, value] : items_) {
    if (!first) out += ", ";
    appendQuoted(out, name);
    out += ": ";
    appendQuoted(out, value);
    first = false;
  }
  out += ']';
  return out;
}

}  // namespace SVGParser
