// `svgfigurer parse [FILE|-]`: reads SVG and prints the object tree.
#include <iostream>

#include "Commands.h"
#include "Input.h"
#include "SVGParser/Describe.h"
#include "SVGParser/SVGParser.h"

namespace svgfigurer::cli {

void addParseCommand(CLI::App& app) {
  auto* command = app.add_subcommand("parse", "Read SVG and print its object tree");
  auto path = std::make_shared<std::string>("-");
  command->add_option("file", *path, "SVG file to read, or - for standard input")->capture_default_str();
  command->callback([path] {
    auto input = readInput(*path);
    if (!input) throw CLI::RuntimeError(2);
    const SVGParser::Report report([](std::string_view line) { std::cerr << line << '\n'; });
    auto svg = SVGParser::parse(input->text, report);
    if (!svg) {
      std::cerr << "svgfigurer: could not parse SVG: " << input->name << '\n';
      throw CLI::RuntimeError(1);
    }
    std::cout << SVGParser::describeTree(*svg);
  });
}

}  // namespace svgfigurer::cli
