// The SVG reader: SVG text in, one SVG tree (or nothing) out.
//
//   SVG.h        the object tree and the readers of each element
//   CSS.h        values, lengths, colours, fonts, stylesheets
//   Geometry.h   CGPoint, CGSize, CGRect and the stroke enumerations
//   Report.h     the sink for the reader's plain report lines
//   Describe.h   readable dumps of trees and values
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>

#include "SVGParser/Attributes.h"
#include "SVGParser/CSS.h"
#include "SVGParser/Geometry.h"
#include "SVGParser/Report.h"
#include "SVGParser/SVG.h"

namespace SVGParser {

// The namespace URI that an `xmlns` attribute gives SVG elements.
inline constexpr std::string_view svgNamespace = "http://www.w3.org/2000/svg";

struct ParseOptions {
  // Text without a root `svg` element is wrapped in one, so a lone `path` reads as a document.
  bool wrapFragments = true;
  // Bytes handed to the XML parser at a time; 0 hands over everything at once.
  std::size_t chunkSize = 0;
  // Documents nested deeper than this are refused, so that every recursive operation on a
  // tree (copy, comparison, destruction, conversion) has a bounded depth.
  std::size_t maximumDepth = 1000;
};

// Reads SVG text in two passes (stylesheets first, then the tree). Gives nothing for XML that
// does not parse, a document nested too deeply, or a document without a root.
std::optional<SVG> parse(std::string_view data, const ParseOptions& options, const Report& report);
inline std::optional<SVG> parse(std::string_view text, const Report& report) {
  return parse(text, ParseOptions{}, report);
}

// The same document handed over in order: the root (its attributes and definitions; its
// children are not read from it), then each child of the root as its end tag is reached, so that a
// writer need never hold the whole tree. The children and the report lines are those of `parse`, in
// the same order. `open` reads the XML and the stylesheets; `data` is not read after it returns,
// while `report` must outlive the reader.
class InOrderReader {
 public:
  static std::optional<InOrderReader> open(std::string_view data, const ParseOptions& options,
                                           const Report& report);
  InOrderReader(InOrderReader&&) noexcept;
  InOrderReader& operator=(InOrderReader&&) noexcept;
  ~InOrderReader();

  const SVG& root() const;
  // The next child of the root, valid until the next call; nothing after the last.
  const SVG::GroupItem* next();

 private:
  struct State;
  explicit InOrderReader(std::unique_ptr<State> state);
  std::unique_ptr<State> state_;
};

}  // namespace SVGParser
