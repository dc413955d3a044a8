// `svgfigurer new FILE.svg -o DOC.svgfigurer`: opens a file as a document and saves it.
#include <iostream>

#include "AppSupport.h"
#include "Commands.h"
#include "SVGFigurerApp/AtomicFile.h"
#include "SVGFigurerApp/SVGFigurerDocument.h"

namespace svgfigurer::cli {

void addNewCommand(CLI::App& app) {
  auto* command = app.add_subcommand("new", "Make a document file from an SVG file");
  auto input = std::make_shared<std::string>();
  auto output = std::make_shared<std::string>();
  command->add_option("file", *input, "The SVG file to open")->required();
  command->add_option("-o,--output", *output, "The document file to write")->required();
  command->callback([input, output] {
    auto document = openDocument(*input);
    auto bytes = SVGFigurerApp::encodeSnapshot(document->snapshot());
    if (!bytes) {
      printError("cannot encode " + *input + ": " + bytes.error);
      throw CLI::RuntimeError(1);
    }
    if (auto error = SVGFigurerApp::writeFileAtomically(*output, *bytes.value)) {
      printError(*error);
      throw CLI::RuntimeError(2);
    }
  });
}

}  // namespace svgfigurer::cli
