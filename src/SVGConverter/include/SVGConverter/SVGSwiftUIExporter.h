// Writes one SVG tree as SwiftUI source text: converts it to the view model, then prints the
// model through a CodeGenerationStream. The entry point cannot fail; what cannot be rendered
// becomes comment lines in the text.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "SVGParser/Report.h"
#include "SVGParser/SVG.h"

class SVGSwiftUIExporter {
 public:
  struct Config {
    std::string rootViewName;
    std::string indentString = "  ";
    std::string shapeTypePrefix = "\n";
    std::string pathMethodPrefix = "\n";
    bool infoComments = true;
    bool generatePreviewProvider = true;
    bool exportHexColorExtension = false;
    bool generateImport = true;
    bool newlineAfterClosePath = true;
    bool frameAsProperty = true;
    bool assumeDefaultStrokeStyle = false;
    bool indentEmptyLines = false;
    bool preferInitOverType = true;
    bool positionUsingPadding = true;
    bool preferMultilineConstants = false;
    bool modifiersForInlinableFilters = true;
    bool inlineFiltersIfPossible = true;
    bool useThousandsSeparator = true;
    int maximumFractionDigits = 4;
    bool verbatimTexts = false;
    std::optional<std::string> modifierSectionComment = "Modifiers and Statics";
    std::optional<std::string> nestedViewsSectionComment = "Nested Groups and Shapes";

    bool operator==(const Config&) const = default;
  };

  // Receives the generated text in order, a piece at a time.
  using TextSink = std::function<void(std::string_view)>;

  // The complete source file for `svg`. The converter's plain report lines go to `report`.
  static std::string generate(const SVG& svg, const Config& config,
                              const SVGParser::Report& report = {});
  // The same text appended to `text`, which spares a copy when something comes before it.
  static void generate(const SVG& svg, const Config& config, const SVGParser::Report& report,
                       std::string& text);
  // The same text handed to `sink` in pieces as it is written, so that a large result need
  // never be held whole.
  static void generate(const SVG& svg, const Config& config, const SVGParser::Report& report,
                       const TextSink& sink);
};
