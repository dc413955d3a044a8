// The whole reader over arbitrary bytes: both passes, every grammar, fragment wrapping.
// Copying the result and dumping both exercises the tree's value semantics as well (equality
// cannot be the check: a tree that holds NaN is rightly unequal to itself).
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "SVGParser/Describe.h"
#include "SVGParser/SVGParser.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  std::size_t lines = 0;
  const SVGParser::Report report([&lines](std::string_view) { ++lines; });
  if (auto svg = SVGParser::parse(text, report)) {
    const SVG copy = *svg;
    if (SVGParser::describeTree(copy) != SVGParser::describeTree(*svg)) std::abort();
  }
  return 0;
}
