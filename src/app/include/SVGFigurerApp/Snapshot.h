// The stored form of a document, and the bytes of a document file: one compact JSON object
// with "svg", "swift" and, when known, "config".
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "SVGFigurerApp/Decoded.h"
#include "SVGFigurerApp/SVGFigurerConfiguration.h"
#include "SVGParser/Report.h"

namespace SVGFigurerApp {

struct Snapshot {
  std::string svg;
  std::string swift;
  std::optional<SVGFigurerConfiguration> config;

  bool operator==(const Snapshot&) const = default;
};

// No white space, no final newline. Fails only for text that is not valid UTF-8.
Decoded<std::string> encodeSnapshot(const Snapshot& snapshot);
// "svg" and "swift" are required; a "config" that does not decode fails the whole snapshot.
Decoded<Snapshot> decodeSnapshot(std::string_view bytes, const SVGParser::Report& report = {});

}  // namespace SVGFigurerApp
