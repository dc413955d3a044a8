// The reader and the conversion over arbitrary bytes: every tree the reader accepts must
// convert without stopping, and the model must copy, compare and describe.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "SVGConverter/ModelDescription.h"
#include "SVGConverter/SVGSwiftUIFigurer.h"
#include "SVGParser/SVGParser.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  std::size_t lines = 0;
  const SVGParser::Report report([&lines](std::string_view) { ++lines; });
  if (auto svg = SVGParser::parse(text, report)) {
    const auto model = SVGSwiftUIFigurer::makeModel(*svg, "", report);
    const auto copy = model;
    (void)(copy == model);  // NaN coordinates make a model unequal to itself
    (void)SVGConverter::describeModel(copy);
  }
  return 0;
}
