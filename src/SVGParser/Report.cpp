#include "SVGParser/Report.h"

namespace SVGParser {

void Report::print(std::initializer_list<std::string_view> items) const {
  if (!sink_) return;
  std::string line;
  bool first = true;
  for (std::string_view item : items) {
    if (!first) line += ' ';
    line += item;
    first = false;
  }
  sink_(line);
}

}  // namespace SVGParser
