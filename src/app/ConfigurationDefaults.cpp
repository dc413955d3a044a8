#include "SVGFigurerApp/ConfigurationDefaults.h"

namespace SVGFigurerApp {

ConfigurationDefaults::ConfigurationDefaults(DefaultsStore store, CoreS::Logger& log,
                                             SVGParser::Report report)
    : store_(std::move(store)), log_(&log), report_(std::move(report)) {}

ConfigurationDefaults& ConfigurationDefaults::shared() {
  static ConfigurationDefaults defaults(DefaultsStore::forSuite(defaultsSuiteName),
                                        CoreS::defaultLogger());
  return defaults;
}

const SVGFigurerConfiguration& ConfigurationDefaults::defaultConfiguration() {
  if (!current_) current_ = loadPersistedDefault().value_or(SVGFigurerConfiguration::fresh());
  return *current_;
}

void ConfigurationDefaults::setDefaultConfiguration(const SVGFigurerConfiguration& config) {
  const SVGFigurerConfiguration old = defaultConfiguration();
  current_ = config;
  if (old != config) persistDefault();
}

std::optional<SVGFigurerConfiguration> ConfigurationDefaults::loadPersistedDefault() const {
  const auto data = store_.data(defaultConfigurationKey);
  if (!data || data->empty()) return std::nullopt;
  auto decoded = decodeConfigurationText(*data, report_);
  if (!decoded) {
    log_->error("could not decode config:", *data, decoded.error);
    return std::nullopt;
  }
  return std::move(decoded.value);
}

void ConfigurationDefaults::persistDefault() {
  // Our encoder cannot fail (invalid text is replaced), so "could not encode config:" has no
  // cause here; a failed write of the store is logged instead.
  const std::string data = encodeJSON(defaultConfiguration());
  log_->log("writing default config");
  if (auto error = store_.setData(defaultConfigurationKey, data)) {
    log_->error("could not write config:", *error);
  }
}

void ConfigurationDefaults::storeDidChange() {
  auto loaded = loadPersistedDefault();
  if (!loaded || *loaded == defaultConfiguration()) return;
  log_->log("reloading default config");
  setDefaultConfiguration(*loaded);
}

void ConfigurationDefaults::reset() {
  if (auto error = store_.removeData(defaultConfigurationKey)) {
    log_->error("could not remove config:", *error);
  }
  current_ = SVGFigurerConfiguration::fresh();
}

}  // namespace SVGFigurerApp
