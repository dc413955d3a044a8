#include "SVGFigurerApp/Snapshot.h"

namespace SVGFigurerApp {

Decoded<std::string> encodeSnapshot(const Snapshot& snapshot) {
  nlohmann::json json{{"svg", snapshot.svg}, {"swift", snapshot.swift}};
  if (snapshot.config) json["config"] = toJSON(*snapshot.config);
  try {
    return Decoded<std::string>::success(json.dump());
  } catch (const nlohmann::json::exception& error) {
    return Decoded<std::string>::failure(error.what());
  }
}

Decoded<Snapshot> decodeSnapshot(std::string_view bytes, const SVGParser::Report& report) {
  using Result = Decoded<Snapshot>;
  nlohmann::json json;
  try {
    json = nlohmann::json::parse(bytes);
  } catch (const nlohmann::json::exception& error) {
    return Result::failure(error.what());
  }
  if (!json.is_object())
    return Result::failure("expected an object, found " + std::string(json.type_name()));
  Snapshot snapshot;
  for (auto [key, field] : {std::pair{"svg", &snapshot.svg}, {"swift", &snapshot.swift}}) {
    const auto found = json.find(key);
    if (found == json.end() || found->is_null()) {
      return Result::failure(std::string("missing key \"") + key + "\"");
    }
    if (!found->is_string()) {
      return Result::failure(std::string("key \"") + key + "\": expected a string, found " +
                             found->type_name());
    }
    *field = found->get<std::string>();
  }
  if (const auto found = json.find("config"); found != json.end() && !found->is_null()) {
    auto config = decodeConfiguration(*found, report);
    if (!config) return Result::failure("key \"config\": " + config.error);
    snapshot.config = std::move(config.value);
  }
  return Result::success(std::move(snapshot));
}

}  // namespace SVGFigurerApp
