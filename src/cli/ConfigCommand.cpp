// `svgfigurer config`: prints the saved default settings; `config set KEY VALUE` changes one
// of them and `config reset` goes back to the first-launch settings.
#include <iostream>

#include "AppSupport.h"
#include "Commands.h"
#include "SVGFigurerApp/ConfigurationDefaults.h"

namespace svgfigurer::cli {

namespace {

void printConfiguration(const SVGFigurerApp::SVGFigurerConfiguration& config) {
  std::cout << SVGFigurerApp::toJSON(config).dump(2, ' ', false,
                                                  nlohmann::json::error_handler_t::replace)
            << '\n';
}

}  // namespace

void addConfigCommand(CLI::App& app) {
  auto* command = app.add_subcommand("config", "Show or change the default settings");
  command->require_subcommand(0, 1);
  command->callback([command] {
    if (!command->get_subcommands().empty()) return;
    printConfiguration(persistedDefaults().defaultConfiguration());
  });

  auto* set = command->add_subcommand("set", "Change one setting");
  auto key = std::make_shared<std::string>();
  auto value = std::make_shared<std::string>();
  std::string keys;
  for (auto name : SVGFigurerApp::configurationKeys()) keys += "\n  " + std::string(name);
  set->add_option("key", *key, "One of:" + keys)->required();
  set->add_option("value", *value, "The new value")->required();
  set->callback([key, value] {
    auto& defaults = persistedDefaults();
    auto config = defaults.defaultConfiguration();
    if (auto error = SVGFigurerApp::setConfigurationValue(config, *key, *value)) {
      printError("config set: " + *error);
      throw CLI::RuntimeError(2);
    }
    defaults.setDefaultConfiguration(config);
    printConfiguration(defaults.defaultConfiguration());
  });

  auto* reset = command->add_subcommand("reset", "Forget the saved settings");
  reset->callback([] {
    persistedDefaults().reset();
    printConfiguration(persistedDefaults().defaultConfiguration());
  });
}

}  // namespace svgfigurer::cli
