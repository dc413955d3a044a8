// The two ways a document turns SVG text into source text: `generateSwift`, the full pipeline
// with the header comment and the failure texts, and `makeSnapshot`, the same conversion
// without the header, for content that enters through the pending-document queue.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "CoreS/Logger.h"
#include "SVGConverter/SVGSwiftUIExporter.h"
#include "SVGFigurerApp/SVGFigurerConfiguration.h"
#include "SVGFigurerApp/Snapshot.h"
#include "SVGParser/Report.h"

namespace SVGFigurerApp {

inline constexpr std::string_view emptySVGText = "// Empty SVG\n";
inline constexpr std::string_view unparsableSVGText = "// Could not parse SVG\n";

struct GeneratedSwift {
  std::string text;
  bool failed = false;
  bool operator==(const GeneratedSwift&) const = default;
};

// Logs "rebuilding SVG ..." and, for text that does not parse, "Parsing of SVG failed.".
// Text the compiler would reject, written because `compilableSwift` is off, is reported to
// `report` as one line.
// Text that is only white space gives "// Empty SVG\n" and is not a failure.
GeneratedSwift generateSwift(std::string_view svg, const SVGFigurerConfiguration& config,
                             CoreS::Logger& log, const SVGParser::Report& report = {});
// The same text handed to `sink` in pieces as it is written; returns whether it failed.
bool generateSwift(std::string_view svg, const SVGFigurerConfiguration& config, CoreS::Logger& log,
                   const SVGParser::Report& report, const SVGSwiftUIExporter::TextSink& sink);
// The same for text the caller gives up: it is released as soon as it has been read.
bool generateSwift(std::string&& svg, const SVGFigurerConfiguration& config, CoreS::Logger& log,
                   const SVGParser::Report& report, const SVGSwiftUIExporter::TextSink& sink);

// The header comment that `generateSwift` puts ahead of the exporter's text: every non-empty
// line of the SVG, as it stands, or with "/*" and "*/" broken apart for compilable text.
std::string svgHeaderComment(std::string_view svg, bool compilable = false);

// No logging, no header; blank text counts as a parse failure. A failure names `fileName`.
Snapshot makeSnapshot(std::string svg, const std::optional<std::string>& fileName,
                      const SVGFigurerConfiguration& config, const SVGParser::Report& report = {});

}  // namespace SVGFigurerApp
