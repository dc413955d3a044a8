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
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error);
  }
  return 0;
}
