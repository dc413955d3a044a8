#include "SVGFigurerApp/Generation.h"

#include "SVGConverter/SVGSwiftUIExporter.h"
#include "SVGParser/SVGParser.h"
#include "UnicodeText.h"

namespace SVGFigurerApp {

GeneratedSwift generateSwift(std::string_view svg, const SVGFigurerConfiguration& config,
                             CoreS::Logger& log, const SVGParser::Report& report) {
  log.log("rebuilding SVG ...", unicodeScalarCount(svg));
  const auto tree = SVGParser::parse(svg, report);
  if (!tree) {
    log.warn("Parsing of SVG failed.");
    if (isBlank(svg)) return {std::string(emptySVGText), false};
    return {std::string(unparsableSVGText), true};
  }
  std::string body = SVGSwiftUIExporter::generate(*tree, config.exporterConfig(), report);
  if (!config.prefixSVG || body.empty() || svg.empty()) return {std::move(body), false};
  return {svgHeaderComment(svg) + body, false};
}

std::string svgHeaderComment(std::string_view svg) {
  std::string header = "/**\n * Generated from SVG:\n * \n";
  std::size_t start = 0;
  while (start <= svg.size()) {
    const std::size_t end = std::min(svg.find('\n', start), svg.size());
    if (end > start) {
      header += " *     ";
      header += svg.substr(start, end - start);
      header += '\n';
    }
    start = end + 1;
  }
  header += " * \n */\n";
  return header;
}

Snapshot makeSnapshot(std::string svg, const std::optional<std::string>& fileName,
                      const SVGFigurerConfiguration& config, const SVGParser::Report& report) {
  const auto tree = SVGParser::parse(svg, report);
  std::string swift;
  if (!tree) {
    swift =
        fileName ? "// Could not parse SVG " + *fileName + "\n" : std::string(unparsableSVGText);
  } else {
    swift = SVGSwiftUIExporter::generate(*tree, config.exporterConfig(), report);
  }
  return Snapshot{std::move(svg), std::move(swift), config};
}

}  // namespace SVGFigurerApp
