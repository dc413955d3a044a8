// Drives hostile documents through the whole engine (read, convert, generate) and keeps what
// came out: the tree, the source text and every report line of the three stages.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "SVGConverter/SVGSwiftUIExporter.h"
#include "SVGConverter/SVGSwiftUIFigurer.h"
#include "SVGParser/SVGParser.h"

namespace Hostile {

// Sanitizers slow the engine down by an order of magnitude; the largest generated inputs are
// shrunk under them so the suite stays usable there while still crossing every code path.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool sanitized = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
inline constexpr bool sanitized = true;
#else
inline constexpr bool sanitized = false;
#endif
#else
inline constexpr bool sanitized = false;
#endif

struct Outcome {
  std::optional<SVG> svg;  // absent: the reader refused the document
  std::string swift;
  std::vector<std::string> lines;

  bool converted() const { return svg.has_value(); }
  // The view model that the source was written from, made again: the exporter keeps its own.
  SwiftUIModel::ContainerViewType model() const {
    return SVGSwiftUIFigurer::makeModel(*svg, "", SVGParser::Report{});
  }
  bool reported(std::string_view fragment) const {
    return std::any_of(lines.begin(), lines.end(),
                       [&](const std::string& line) { return line.find(fragment) != line.npos; });
  }
  std::string allLines() const {
    std::string out;
    for (const auto& line : lines) out += line + "\n";
    return out;
  }
};

// The whole pipeline. A refused document stops after the reader, as the callers do: they show
// a failure text instead of source.
inline Outcome convert(std::string_view text, SVGParser::ParseOptions options = {}) {
  Outcome outcome;
  const SVGParser::Report report([&](std::string_view line) { outcome.lines.emplace_back(line); });
  outcome.svg = SVGParser::parse(text, options, report);
  if (outcome.svg) outcome.swift = SVGSwiftUIExporter::generate(*outcome.svg, {}, report);
  return outcome;
}

inline std::string document(std::string_view body, std::string_view rootAttributes = "") {
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" " + std::string(rootAttributes) + ">" +
         std::string(body) + "</svg>";
}

inline std::size_t occurrences(std::string_view text, std::string_view needle) {
  std::size_t count = 0;
  for (auto at = text.find(needle); at != text.npos; at = text.find(needle, at + needle.size())) {
    ++count;
  }
  return count;
}

// The generated text is either a complete file or nothing at all; a truncated or unbalanced
// file would mean a stage gave up halfway.
inline void expectCompleteFile(const Outcome& outcome) {
  ASSERT_TRUE(outcome.converted());
  ASSERT_FALSE(outcome.swift.empty());
  EXPECT_EQ(outcome.swift.back(), '\n');
  EXPECT_EQ(occurrences(outcome.swift, "{"), occurrences(outcome.swift, "}"));
}

}  // namespace Hostile
