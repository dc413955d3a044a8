// The subcommands of `svgfigurer`. Each adds itself to the application and runs when chosen.
#pragma once

#include <CLI/CLI.hpp>

namespace svgfigurer::cli {

void addParseCommand(CLI::App& app);
void addModelCommand(CLI::App& app);
void addHighlightCommand(CLI::App& app);
void addPreviewCommand(CLI::App& app);
void addConvertCommand(CLI::App& app);
void addInspectCommand(CLI::App& app);
void addNewCommand(CLI::App& app);
void addConfigCommand(CLI::App& app);
void addSamplesCommand(CLI::App& app);
void addServiceCommand(CLI::App& app);

}  // namespace svgfigurer::cli
