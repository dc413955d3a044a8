// Shared helpers for tests that read whole documents.
#pragma once

#include <string>
#include <vector>

#include "SVGParser/SVGParser.h"

namespace testsupport {

struct Reading {
  std::optional<SVG> svg;
  std::vector<std::string> lines;
};

inline Reading read(std::string_view text, SVGParser::ParseOptions options = {}) {
  Reading reading;
  const SVGParser::Report report([&](std::string_view line) { reading.lines.emplace_back(line); });
  reading.svg = SVGParser::parse(text, options, report);
  return reading;
}

template <class T>
const T& only(const std::vector<SVG::GroupItem>& items) {
  static const T none{};
  if (items.size() != 1 || !std::holds_alternative<T>(items[0].value)) {
    ADD_FAILURE() << "expected exactly one item of the asked kind, found " << items.size();
    return none;
  }
  return std::get<T>(items[0].value);
}

}  // namespace testsupport
