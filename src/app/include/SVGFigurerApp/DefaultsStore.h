// A persistent key-value store of byte values, grouped in suites: one folder per suite under
// "$XDG_CONFIG_HOME" (or "~/.config"), one file per key, each replaced atomically.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace SVGFigurerApp {

class DefaultsStore {
 public:
  explicit DefaultsStore(std::filesystem::path folder) : folder_(std::move(folder)) {}

  // The suite's folder under the user's configuration folder: "$XDG_CONFIG_HOME/<suite>" when
  // the variable holds an absolute path, else "$HOME/.config/<suite>". Without either, the
  // suite lives in "./.config/<suite>" so that the program still runs.
  static DefaultsStore forSuite(std::string_view suite);

  // The bytes stored under `key`; nothing if there are none or they cannot be read.
  std::optional<std::string> data(std::string_view key) const;
  // Gives the reason on failure; the previous value then stays.
  std::optional<std::string> setData(std::string_view key, std::string_view bytes);
  std::optional<std::string> removeData(std::string_view key);

  const std::filesystem::path& folder() const { return folder_; }
  std::filesystem::path fileFor(std::string_view key) const;

 private:
  std::filesystem::path folder_;
};

}  // namespace SVGFigurerApp
