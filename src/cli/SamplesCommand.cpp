// `svgfigurer samples`: lists the sample SVGs; `svgfigurer samples NAME` prints one.
#include <iostream>

#include "AppSupport.h"
#include "Commands.h"
#include "SVGFigurerApp/ExampleCatalogue.h"

namespace svgfigurer::cli {

void addSamplesCommand(CLI::App& app) {
  auto* command = app.add_subcommand("samples", "List the sample SVGs, or print one");
  auto name = std::make_shared<std::string>();
  command->add_option("name", *name, "The sample to print");
  command->callback([name] {
    if (name->empty()) {
      for (const auto& example : SVGFigurerApp::exampleSVGs()) std::cout << example.name << '\n';
      return;
    }
    const auto example = SVGFigurerApp::exampleNamed(*name);
    if (!example) {
      printError("no sample named \"" + *name + "\"");
      throw CLI::RuntimeError(1);
    }
    std::cout << example->svg;
  });
}

}  // namespace svgfigurer::cli
