// `svgfigurer convert [OPTIONS] [FILE|-]`: prints the source text a document would generate.
// `svgfigurer convert -o DIR FILE...`: writes one <stem>.swift per input into DIR.
#include <unistd.h>

#include <cctype>
#include <filesystem>
#include <iostream>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "AppSupport.h"
#include "Commands.h"
#include "Highlighting.h"
#include "Input.h"
#include "SVGConverter/IDPool.h"
#include "SVGFigurerApp/AtomicFile.h"
#include "SVGFigurerApp/Generation.h"
#include "SVGFigurerApp/SVGFigurerConfiguration.h"

namespace svgfigurer::cli {

namespace {

using SVGFigurerApp::SVGFigurerConfiguration;

struct ConvertOptions {
  std::vector<std::string> files;
  std::string outputFolder;
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

// "my-icon_2" gives "MyIcon2", "24px" gives "Z24px": words of ASCII letters and digits, each
// begun with a capital, then the converter's own rule for names that do not begin with a
// letter. Other characters only separate words.
std::string rootViewNameForStem(const std::string& stem) {
  std::string name;
  bool wordStart = true;
  for (const char c : stem) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x80 || !std::isalnum(byte)) {
      wordStart = true;
      continue;
    }
    name += wordStart ? static_cast<char>(std::toupper(byte)) : c;
    wordStart = false;
  }
  return SwiftUIModel::identifierFromName(name, SwiftUIModel::NameCase::type);
}

void convertOne(const ConvertOptions& options, const SVGFigurerConfiguration& config) {
  const std::string path = options.files.empty() ? "-" : options.files.front();
  auto input = readInput(path);
  if (!input) throw CLI::RuntimeError(2);
  const auto generated =
      SVGFigurerApp::generateSwift(input->text, config, stderrLogger(), stderrReport());
  const bool colour =
      options.color == "always" || (options.color == "auto" && ::isatty(STDOUT_FILENO) == 1);
  std::optional<std::string> coloured;
  if (colour && !generated.text.empty()) {
    coloured = highlightForTerminal(generated.text, "swift", options.theme);
  }
  std::cout << coloured.value_or(generated.text) << std::flush;
  if (generated.failed) {
    printError("could not parse SVG: " + input->name);
    throw CLI::RuntimeError(1);
  }
}

void convertBatch(const ConvertOptions& options, const SVGFigurerConfiguration& config) {
  namespace fs = std::filesystem;
  const fs::path folder(options.outputFolder);
  std::error_code error;
  fs::create_directories(folder, error);
  if (!fs::is_directory(folder, error)) {
    printError("cannot use output folder " + options.outputFolder);
    throw CLI::RuntimeError(2);
  }
  const bool showProgress = ::isatty(STDERR_FILENO) == 1;
  const std::size_t total = options.files.size();
  std::vector<std::string> failures;
  std::set<std::string> written;
  for (std::size_t i = 0; i < total; ++i) {
    const std::string& path = options.files[i];
    const auto fail = [&](const std::string& reason) {
      printError(path + ": " + reason);
      failures.push_back(path);
    };
    if (path == "-") {
      fail("standard input has no name to write a file for");
      continue;
    }
    const std::string stem = fs::path(path).stem().string();
    const fs::path output = folder / (stem + ".swift");
    if (showProgress) std::cerr << "[" << i + 1 << "/" << total << "] " << path << '\n';
    if (!written.insert(output.string()).second) {
      fail("another input already writes " + output.string());
      continue;
    }
    auto input = readInput(path);
    if (!input) {
      failures.push_back(path);
      continue;
    }
    SVGFigurerConfiguration fileConfig = config;
    if (fileConfig.rootViewName.empty()) fileConfig.rootViewName = rootViewNameForStem(stem);
    const auto generated =
        SVGFigurerApp::generateSwift(input->text, fileConfig, stderrLogger(), stderrReport());
    if (generated.failed) {
      fail("could not parse SVG");
      continue;
    }
    if (auto writeError = SVGFigurerApp::writeFileAtomically(output, generated.text)) {
      fail(*writeError);
    }
  }
  if (failures.empty()) return;
  printError(std::to_string(failures.size()) + " of " + std::to_string(total) + " inputs failed:");
  for (const auto& path : failures) std::cerr << "  " << path << '\n';
  throw CLI::RuntimeError(1);
}

}  // namespace

void addConvertCommand(CLI::App& app) {
  auto* command = app.add_subcommand("convert", "Generate SwiftUI source from SVG");
  auto options = std::make_shared<ConvertOptions>();
  command->add_option("files", options->files, "SVG files, or - for standard input");
  command->add_option("-o,--output", options->outputFolder,
                      "Write one <stem>.swift per input into this folder");
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
