// `svgfigurer preview [FILE|-]`: prints the HTML page the preview pane shows for the SVG text.
#include <iostream>

#include "Commands.h"
#include "FigurerUtilities/SVGPreview.h"
#include "Input.h"

namespace svgfigurer::cli {

void addPreviewCommand(CLI::App& app) {
  auto* command = app.add_subcommand("preview", "Print the preview page for SVG text");
  auto path = std::make_shared<std::string>("-");
  command->add_option("file", *path, "SVG file to read, or - for standard input")
      ->capture_default_str();
  command->callback([path] {
    auto input = readInput(*path);
    if (!input) throw CLI::RuntimeError(2);
    std::cout << FigurerUtilities::previewPage(input->text) << '\n';
  });
}

}  // namespace svgfigurer::cli
