// Writes one SVG tree as SwiftUI source text: converts it to the view model and prints the
// model through a CodeGenerationStream, one child of the root at a time. The entry point cannot
// fail; what cannot be rendered becomes comment lines in the text.
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
    // Off, the text is exactly what existing documents hold, with the defects below; on, the
    // defects are corrected so that the file builds.
    bool compilableSwift = false;

    bool operator==(const Config&) const = default;
  };

  // Text the Swift compiler rejects, written as it always was unless `compilableSwift` is on.
  enum Defect : unsigned {
    arcTransform = 1u << 0,   // an arc with a transform closes its call once too often
    rotationStep = 1u << 1,   // a chained rotation calls a member the transform type lacks
    unknownColor = 1u << 2,   // a colour name the colour type has no member for
    headerComment = 1u << 3,  // a comment mark in the SVG breaks the header comment
  };
  // A set of `Defect` bits.
  using Defects = unsigned;

  // Prints the one line that names `defects` and the setting that corrects them; prints
  // nothing for none.
  static void reportDefects(const SVGParser::Report& report, Defects defects);

  // Receives the generated text in order, a piece at a time.
  using TextSink = std::function<void(std::string_view)>;

  // The complete source file for `svg`. The converter's plain report lines go to `report`.
  // The defects written are added to `defects` when given; the exporter reports none of them
  // itself, so that the caller can report them once with its own (see `reportDefects`).
  static std::string generate(const SVG& svg, const Config& config,
                              const SVGParser::Report& report = {});
  // The same text appended to `text`, which spares a copy when something comes before it.
  static void generate(const SVG& svg, const Config& config, const SVGParser::Report& report,
                       std::string& text, Defects* defects = nullptr);
  // The same text handed to `sink` in pieces as it is written, so that a large result need
  // never be held whole.
  static void generate(const SVG& svg, const Config& config, const SVGParser::Report& report,
                       const TextSink& sink, Defects* defects = nullptr);

  // Hands over the children of the root one at a time, each valid until the next call, and
  // nothing after the last.
  using ChildSource = std::function<const SVG::GroupItem*()>;
  // The same text for a root whose children come from `children` instead of the root itself,
  // each converted and written before the next is asked for: neither the tree nor the view
  // model need ever be whole. The report lines are the same, in the same order.
  static void generate(const SVG& root, const ChildSource& children, const Config& config,
                       const SVGParser::Report& report, std::string& text,
                       Defects* defects = nullptr);
  static void generate(const SVG& root, const ChildSource& children, const Config& config,
                       const SVGParser::Report& report, const TextSink& sink,
                       Defects* defects = nullptr);
};
