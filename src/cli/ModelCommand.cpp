// `svgfigurer model [FILE|-]`: reads SVG and prints the view model it converts to.
#include <iostream>
#include <memory>
#include <string>

#include "Commands.h"
#include "Input.h"
#include "SVGConverter/ModelDescription.h"
#include "SVGConverter/SVGSwiftUIFigurer.h"
#include "SVGParser/SVGParser.h"

namespace svgfigurer::cli {

void addModelCommand(CLI::App& app) {
  auto* command = app.add_subcommand("model", "Read SVG and print its view model");
  auto path = std::make_shared<std::string>("-");
  auto name = std::make_shared<std::string>();
  command->add_option("file", *path, "SVG file to read, or - for standard input")
      ->capture_default_str();
  command->add_option("--name", *name,
                      "Type name of the outermost container; without it the name is generated");
  command->callback([path, name] {
    auto input = readInput(*path);
    if (!input) throw CLI::RuntimeError(2);
    const SVGParser::Report report([](std::string_view line) { std::cerr << line << '\n'; });
    auto svg = SVGParser::parse(input->text, report);
    if (!svg) {
      std::cerr << "svgfigurer: could not parse SVG: " << input->name << '\n';
      throw CLI::RuntimeError(1);
    }
    const auto model = SVGSwiftUIFigurer::makeModel(*svg, *name, report);
    std::cout << SVGConverter::describeModel(model);
  });
}

}  // namespace svgfigurer::cli
