// The reader, the conversion and the source generation over arbitrary bytes: every tree the
// reader accepts must convert and export without stopping, and the model must copy, compare
// and describe.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "SVGConverter/ModelDescription.h"
#include "SVGConverter/SVGSwiftUIExporter.h"
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
    // The first byte picks a few settings, so that the non-default emitters run too.
    SVGSwiftUIExporter::Config config;
    const std::uint8_t flags = size > 0 ? data[0] : 0;
    config.preferInitOverType = (flags & 1) == 0;
    config.positionUsingPadding = (flags & 2) == 0;
    config.inlineFiltersIfPossible = (flags & 4) == 0;
    config.exportHexColorExtension = (flags & 8) != 0;
    config.infoComments = (flags & 16) == 0;
    config.maximumFractionDigits = flags >> 5;
    (void)SVGSwiftUIExporter::generate(*svg, config, report);
  }
  return 0;
}
