// The sample SVGs offered in the "Sample SVGs" menu: a fixed, ordered list of names and
// texts, each showing a part of what the converter can do.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string_view>

#include "SVGFigurerApp/SVGFigurerDocument.h"

namespace SVGFigurerApp {

struct ExampleSVG {
  std::string_view name;
  std::string_view svg;
};

// "IconMonstr Icon", "Linear Gradient", "Simple Ellipse", "Blurred Circles",
// "Merge Filter Drop Shadow", "Gradient Filled Text".
std::span<const ExampleSVG> exampleSVGs();
std::optional<ExampleSVG> exampleNamed(std::string_view name);

// The menu action. With a focused document the sample replaces its SVG text (the usual
// rebuild rule applies). Without one, the sample goes through the pending-document queue and
// `openUntitledDocument` asks the platform for a new document, which takes it from there.
void pickSample(std::string_view svg, SVGFigurerDocument* focused,
                const DocumentEnvironment& environment,
                const std::function<void()>& openUntitledDocument);

}  // namespace SVGFigurerApp
