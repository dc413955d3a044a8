// `svgfigurer convert [OPTIONS] [FILE|-]`: prints the source text a document would generate.
// `svgfigurer convert -o DIR FILE...`: writes one <stem>.swift per input into DIR.
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "AppSupport.h"
#include "BatchConvert.h"
#include "Commands.h"
#include "Highlighting.h"
#include "Input.h"
#include "SVGFigurerApp/Generation.h"
#include "SVGFigurerApp/SVGFigurerConfiguration.h"

namespace svgfigurer::cli {

namespace {

using SVGFigurerApp::SVGFigurerConfiguration;

struct ConvertOptions {
  std::vector<std::string> files;
  std::string outputFolder;
  std::string filesFrom;
  unsigned jobs = 0;  // 0: one per core
  double timeoutSeconds = 10;
  std::string timingsFile;
  bool fresh = false;
  std::string configFile;
  std::optional<std::string> rootViewName;
  std::optional<std::string> indentUsing;
  std::optional<int> indent;
  std::optional<std::string> initType;
  std::optional<std::string> positioning;
  std::optional<int> maximumFractionDigits;
  // Each switch pairs "--name" with "--no-name"; only switches given on the line apply.
  std::map<std::string, bool> switches;
  std::string color = "auto";  // "always", "never", or "auto": only on a terminal
  std::string theme = "light";
};

struct Switch {
  const char* flag;
  bool SVGFigurerConfiguration::*field;
};
constexpr Switch switchTable[] = {
    {"prefix-svg", &SVGFigurerConfiguration::prefixSVG},
    {"info-comments", &SVGFigurerConfiguration::infoComments},
    {"preview-provider", &SVGFigurerConfiguration::previewProvider},
    {"imports", &SVGFigurerConfiguration::imports},
    {"newline-after-close-path", &SVGFigurerConfiguration::newlineAfterClosePath},
    {"hex-colors", &SVGFigurerConfiguration::useHexColor},
    {"indent-empty-lines", &SVGFigurerConfiguration::indentEmptyLines},
    {"compilable-swift", &SVGFigurerConfiguration::compilableSwift},
};

// The settings the options ask for, or nothing after printing why they cannot be had.
std::optional<SVGFigurerConfiguration> settingsFor(const ConvertOptions& options) {
  SVGFigurerConfiguration config;
  if (!options.configFile.empty()) {
    auto input = readInput(options.configFile);
    if (!input) return std::nullopt;
    auto decoded = SVGFigurerApp::decodeConfigurationText(input->text, stderrReport());
    if (!decoded) {
      printError("invalid configuration " + options.configFile + ": " + decoded.error);
      return std::nullopt;
    }
    config = *decoded.value;
  } else if (!options.fresh) {
    config = persistedDefaults().defaultConfiguration();
  }
  if (options.rootViewName) config.rootViewName = *options.rootViewName;
  if (options.indentUsing) {
    config.indentUsing = *options.indentUsing == "tabs" ? SVGFigurerApp::IndentType::tabs
                                                        : SVGFigurerApp::IndentType::spaces;
  }
  if (options.indent) config.indent = *options.indent;
  if (options.initType) {
    config.initType = *options.initType == "init" ? SVGFigurerApp::InitType::autoInit
                                                  : SVGFigurerApp::InitType::type;
  }
  if (options.positioning) {
    config.positioningType = *options.positioning == "offset"
                                 ? SVGFigurerApp::PositioningStyle::offset
                                 : SVGFigurerApp::PositioningStyle::padding;
  }
  if (options.maximumFractionDigits) config.maximumFractionDigits = *options.maximumFractionDigits;
  for (const auto& entry : switchTable) {
    if (auto found = options.switches.find(entry.flag); found != options.switches.end()) {
      config.*entry.field = found->second;
    }
  }
  return config;
}

void convertOne(const ConvertOptions& options, const SVGFigurerConfiguration& config) {
  const std::string path = options.files.empty() ? "-" : options.files.front();
  auto input = readInput(path);
  if (!input) throw CLI::RuntimeError(2);
  const bool colour =
      options.color == "always" || (options.color == "auto" && ::isatty(STDOUT_FILENO) == 1);
  bool failed = false;
  if (colour) {
    // The highlighter needs the whole text at once.
    const auto generated =
        SVGFigurerApp::generateSwift(input->text, config, stderrLogger(), stderrReport());
    failed = generated.failed;
    std::optional<std::string> coloured;
    if (!generated.text.empty()) {
      coloured = highlightForTerminal(generated.text, "swift", options.theme);
    }
    std::cout << coloured.value_or(generated.text);
  } else {
    // Written as it is generated, so that a large result is never held whole.
    failed = SVGFigurerApp::generateSwift(
        std::move(input->text), config, stderrLogger(), stderrReport(), [](std::string_view piece) {
          std::cout.write(piece.data(), std::streamsize(piece.size()));
        });
  }
  std::cout << std::flush;
  if (failed) {
    printError("could not parse SVG: " + input->name);
    throw CLI::RuntimeError(1);
  }
}

// Appends the paths of a list, one a line; empty lines are passed over.
bool readFileList(const std::string& list, std::vector<std::string>& files) {
  auto input = readInput(list);
  if (!input) return false;
  std::size_t start = 0;
  const std::string& text = input->text;
  while (start < text.size()) {
    std::size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    std::string line = text.substr(start, end - start);
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!line.empty()) files.push_back(std::move(line));
    start = end + 1;
  }
  return true;
}

void convertBatch(ConvertOptions& options, const SVGFigurerConfiguration& config) {
  namespace fs = std::filesystem;
  const fs::path folder(options.outputFolder);
  std::error_code error;
  fs::create_directories(folder, error);
  if (!fs::is_directory(folder, error)) {
    printError("cannot use output folder " + options.outputFolder);
    throw CLI::RuntimeError(2);
  }
  BatchRequest request{std::move(options.files), folder, options.jobs, options.timeoutSeconds,
                       options.timingsFile};
  if (request.jobs == 0) request.jobs = std::max(1u, std::thread::hardware_concurrency());
  if (const int status = runBatch(request, config); status != 0) throw CLI::RuntimeError(status);
}

}  // namespace

void addConvertCommand(CLI::App& app) {
  auto* command = app.add_subcommand("convert", "Generate SwiftUI source from SVG");
  auto options = std::make_shared<ConvertOptions>();
  command->add_option("files", options->files, "SVG files, or - for standard input");
  command->add_option("-o,--output", options->outputFolder,
                      "Write one <stem>.swift per input into this folder");
  command->add_option("--files-from", options->filesFrom,
                      "Also convert the files listed in this file, one a line (- for standard "
                      "input); needs -o");
  command->add_option("-j,--jobs", options->jobs,
                      "Conversions at the same time with -o (default: one per core)");
  command
      ->add_option("--timeout", options->timeoutSeconds,
                   "With -o, end with status 124 when one file takes longer (0: no limit)")
      ->check(CLI::NonNegativeNumber)
      ->capture_default_str();
  command->add_option("--timings", options->timingsFile,
                      "With -o, write a line per input: path, bytes, seconds, result");
  auto* fresh = command->add_flag("--fresh", options->fresh,
                                  "Start from the first-launch settings, not the saved default");
  command->add_option("--config", options->configFile, "Start from the settings in a JSON file")
      ->excludes(fresh);
  command->add_flag_callback(
      "--color", [options] { options->color = "always"; },
      "Colour the generated Swift (the default when standard output is a terminal)");
  command->add_flag_callback(
      "--no-color", [options] { options->color = "never"; }, "Never colour the generated Swift");
  command->add_option("--theme", options->theme, "Colour theme for --color")
      ->check(CLI::IsMember({"light", "classic", "dark"}))
      ->capture_default_str();
  command->add_option("--root-view-name", options->rootViewName, "Name of the root view");
  command->add_option("--indent-using", options->indentUsing, "Indent with spaces or tabs")
      ->check(CLI::IsMember({"spaces", "tabs"}));
  command->add_option("--indent", options->indent, "Indent characters per level");
  command->add_option("--init-type", options->initType, "Prefer .init or the type name")
      ->check(CLI::IsMember({"init", "type"}));
  command->add_option("--positioning", options->positioning, "Position text by offset or padding")
      ->check(CLI::IsMember({"offset", "padding"}));
  command->add_option("--max-fraction-digits", options->maximumFractionDigits,
                      "Fraction digits of the numbers written");
  for (const auto& entry : switchTable) {
    const std::string name = entry.flag;
    command->add_flag_callback(
        "--" + name, [options, name] { options->switches[name] = true; }, "Turn on " + name);
    command->add_flag_callback(
        "--no-" + name, [options, name] { options->switches[name] = false; }, "Turn off " + name);
  }
  command->callback([options] {
    if (!options->filesFrom.empty()) {
      if (options->outputFolder.empty()) {
        printError("--files-from needs an output folder (-o DIR)");
        throw CLI::RuntimeError(2);
      }
      if (!readFileList(options->filesFrom, options->files)) throw CLI::RuntimeError(2);
    }
    if (options->outputFolder.empty() && options->files.size() > 1) {
      printError("several inputs need an output folder (-o DIR)");
      throw CLI::RuntimeError(2);
    }
    if (!options->outputFolder.empty() && options->files.empty()) {
      printError("batch conversion needs at least one input file");
      throw CLI::RuntimeError(2);
    }
    const auto config = settingsFor(*options);
    if (!config) throw CLI::RuntimeError(2);
    if (options->outputFolder.empty()) {
      convertOne(*options, *config);
    } else {
      convertBatch(*options, *config);
    }
  });
}

}  // namespace svgfigurer::cli
