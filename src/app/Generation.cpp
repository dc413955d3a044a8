#include "SVGFigurerApp/Generation.h"

#include <algorithm>
#include <string>

#include "SVGConverter/CommentText.h"
#include "SVGConverter/SVGSwiftUIExporter.h"
#include "SVGParser/SVGParser.h"
#include "UnicodeText.h"

namespace SVGFigurerApp {

namespace {

// Hands the header comment to `put` in pieces: every non-empty line of the SVG, as it stands,
// or, for compilable text, with its comment marks broken.
template <class Put>
void putHeaderComment(std::string_view svg, bool compilable, Put&& put) {
  put("/**\n * Generated from SVG:\n * \n");
  std::size_t start = 0;
  while (start <= svg.size()) {
    const std::size_t end = std::min(svg.find('\n', start), svg.size());
    if (end > start) {
      put(" *     ");
      const auto line = svg.substr(start, end - start);
      if (compilable) {
        put(SVGConverter::commentSafeText(line));
      } else {
        put(line);
      }
      put("\n");
    }
    start = end + 1;
  }
  put(" * \n */\n");
}

// The one road of both forms. `put` receives text; `generate` the document, read in order,
// after the header comment, and adds the defects it wrote. Reports the defects of the whole
// text as one line. Returns whether the text did not parse.
template <class Put, class Generate>
bool rebuild(std::string_view svg, const SVGFigurerConfiguration& config, CoreS::Logger& log,
             const SVGParser::Report& report, Put&& put, Generate&& generate) {
  log.log("rebuilding SVG ...", unicodeScalarCount(svg));
  auto document = SVGParser::InOrderReader::open(svg, {}, report);
  if (!document) {
    log.warn("Parsing of SVG failed.");
    if (isBlank(svg)) {
      put(emptySVGText);
      return false;
    }
    put(unparsableSVGText);
    return true;
  }
  // The exporter always writes the root view, so the header never stands alone.
  SVGSwiftUIExporter::Defects defects = 0;
  if (config.prefixSVG && !svg.empty()) {
    putHeaderComment(svg, config.compilableSwift, put);
    if (!config.compilableSwift && SVGConverter::breaksBlockComment(svg)) {
      defects |= SVGSwiftUIExporter::headerComment;
    }
  }
  generate(*document, defects);
  SVGSwiftUIExporter::reportDefects(report, defects);
  return false;
}

SVGSwiftUIExporter::ChildSource childrenOf(SVGParser::InOrderReader& document) {
  return [&document] { return document.next(); };
}

// `owner`, when given, holds the text `svg` views; it is released once the reader and the header
// are made, before the conversion reaches its largest state.
bool streamSwift(std::string_view svg, std::string* owner, const SVGFigurerConfiguration& config,
                 CoreS::Logger& log, const SVGParser::Report& report,
                 const SVGSwiftUIExporter::TextSink& sink) {
  // The header comes in many small pieces; they are gathered into sink-sized ones.
  std::string pending;
  const auto put = [&](std::string_view text) {
    pending += text;
    if (pending.size() >= 64 * 1024) {
      sink(pending);
      pending.clear();
    }
  };
  const auto flush = [&] {
    if (!pending.empty()) sink(pending);
    pending = std::string();
  };
  const bool failed =
      rebuild(svg, config, log, report, put,
              [&](SVGParser::InOrderReader& document, SVGSwiftUIExporter::Defects& defects) {
                flush();
                // The reader holds what it still needs of the text.
                if (owner != nullptr) *owner = std::string();
                SVGSwiftUIExporter::generate(document.root(), childrenOf(document),
                                             config.exporterConfig(), report, sink, &defects);
              });
  flush();
  return failed;
}

}  // namespace

GeneratedSwift generateSwift(std::string_view svg, const SVGFigurerConfiguration& config,
                             CoreS::Logger& log, const SVGParser::Report& report) {
  GeneratedSwift result;
  result.failed = rebuild(
      svg, config, log, report, [&](std::string_view text) { result.text += text; },
      [&](SVGParser::InOrderReader& document, SVGSwiftUIExporter::Defects& defects) {
        SVGSwiftUIExporter::generate(document.root(), childrenOf(document), config.exporterConfig(),
                                     report, result.text, &defects);
      });
  return result;
}

bool generateSwift(std::string_view svg, const SVGFigurerConfiguration& config, CoreS::Logger& log,
                   const SVGParser::Report& report, const SVGSwiftUIExporter::TextSink& sink) {
  return streamSwift(svg, nullptr, config, log, report, sink);
}

bool generateSwift(std::string&& svg, const SVGFigurerConfiguration& config, CoreS::Logger& log,
                   const SVGParser::Report& report, const SVGSwiftUIExporter::TextSink& sink) {
  std::string text = std::move(svg);
  return streamSwift(text, &text, config, log, report, sink);
}

std::string svgHeaderComment(std::string_view svg, bool compilable) {
  std::string header;
  putHeaderComment(svg, compilable, [&](std::string_view text) { header += text; });
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
