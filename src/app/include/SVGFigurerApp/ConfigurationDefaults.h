// The default settings for new documents: loaded from the defaults store at first use,
// replaced by any document's settings change, and persisted only when they changed.
#pragma once

#include <optional>

#include "CoreS/Logger.h"
#include "SVGFigurerApp/DefaultsStore.h"
#include "SVGFigurerApp/SVGFigurerConfiguration.h"
#include "SVGParser/Report.h"

namespace SVGFigurerApp {

inline constexpr std::string_view defaultsSuiteName = "net.quivane.devtools";
inline constexpr std::string_view defaultConfigurationKey = "DefaultSVGFigurerConfig";

// Confined to one thread (the main thread of the app, or the command's thread).
class ConfigurationDefaults {
 public:
  ConfigurationDefaults(DefaultsStore store, CoreS::Logger& log, SVGParser::Report report = {});

  // The process-wide instance over the suite "net.quivane.devtools", logging to the default
  // logger. Created on first use.
  static ConfigurationDefaults& shared();

  // Loads the persisted record on first use; a fresh record if there is none.
  const SVGFigurerConfiguration& defaultConfiguration();
  // Makes `config` the default and persists it if it differs from the previous default.
  void setDefaultConfiguration(const SVGFigurerConfiguration& config);

  // The stored record. Absent or empty data gives nothing silently; data that does not decode
  // logs "could not decode config:" and gives nothing.
  std::optional<SVGFigurerConfiguration> loadPersistedDefault() const;
  // Writes the current default to the store, logging "writing default config".
  void persistDefault();
  // What to do when the store was changed from outside (another process, or the user): adopt
  // a stored record that differs from the default, and write it back through the usual rule.
  // The platform's change watcher calls this; the store itself does not watch.
  void storeDidChange();
  // Forgets the stored record; the default becomes a fresh record.
  void reset();

  DefaultsStore& store() { return store_; }

 private:
  DefaultsStore store_;
  CoreS::Logger* log_;
  SVGParser::Report report_;
  std::optional<SVGFigurerConfiguration> current_;
};

}  // namespace SVGFigurerApp
