// svgfigurer: reads SVG and prints what the engine makes of it.
#include <iostream>

#include "Commands.h"

int main(int argc, char** argv) {
  CLI::App app{"svgfigurer: turn SVG images into SwiftUI drawing code"};
  app.set_version_flag("--version", std::string("svgfigurer ") + SVGFIGURER_VERSION);
  app.require_subcommand(1);
  svgfigurer::cli::addParseCommand(app);
  svgfigurer::cli::addModelCommand(app);
  svgfigurer::cli::addHighlightCommand(app);
  svgfigurer::cli::addPreviewCommand(app);
  svgfigurer::cli::addConvertCommand(app);
  svgfigurer::cli::addInspectCommand(app);
  svgfigurer::cli::addNewCommand(app);
  svgfigurer::cli::addConfigCommand(app);
  svgfigurer::cli::addSamplesCommand(app);
  svgfigurer::cli::addServiceCommand(app);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    const int status = app.exit(error);
    // The parser numbers each kind of argument error its own way; every one of them is an
    // unusable command line, status 2. A command's own status passes through.
    if (status == 0 || dynamic_cast<const CLI::RuntimeError*>(&error) != nullptr) return status;
    return 2;
  }
  return 0;
}
