#include "SVGFigurerApp/DefaultsStore.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <system_error>

#include "SVGFigurerApp/AtomicFile.h"

namespace SVGFigurerApp {

namespace {

std::filesystem::path configurationHome() {
  const char* xdg = std::getenv("XDG_CONFIG_HOME");
  // The base directory rules ignore a relative XDG_CONFIG_HOME.
  if (xdg != nullptr && *xdg != '\0' && std::filesystem::path(xdg).is_absolute()) return xdg;
  const char* home = std::getenv("HOME");
  if (home != nullptr && *home != '\0') return std::filesystem::path(home) / ".config";
  return ".config";
}

}  // namespace

DefaultsStore DefaultsStore::forSuite(std::string_view suite) {
  return DefaultsStore(configurationHome() / std::string(suite));
}

std::filesystem::path DefaultsStore::fileFor(std::string_view key) const {
  return folder_ / std::string(key);
}

std::optional<std::string> DefaultsStore::data(std::string_view key) const {
  std::error_code error;
  const auto file = fileFor(key);
  if (!std::filesystem::is_regular_file(file, error)) return std::nullopt;
  std::ifstream in(file, std::ios::binary);
  if (!in) return std::nullopt;
  std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  if (in.bad()) return std::nullopt;
  return bytes;
}

std::optional<std::string> DefaultsStore::setData(std::string_view key, std::string_view bytes) {
  std::error_code error;
  std::filesystem::create_directories(folder_, error);
  if (error) return "cannot create " + folder_.string() + ": " + error.message();
  return writeFileAtomically(fileFor(key), bytes);
}

std::optional<std::string> DefaultsStore::removeData(std::string_view key) {
  std::error_code error;
  std::filesystem::remove(fileFor(key), error);
  if (error) return "cannot remove " + fileFor(key).string() + ": " + error.message();
  return std::nullopt;
}

}  // namespace SVGFigurerApp
