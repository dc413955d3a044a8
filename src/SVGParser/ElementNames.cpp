#include "ElementNames.h"

#include <algorithm>
#include <array>
#include <utility>

namespace SVGParser {

namespace {

using Entry = std::pair<std::string_view, ElementKind>;

// Sorted by name, so a lookup is a binary search over a table fixed at compile time.
constexpr auto table = [] {
  std::array<Entry, 34> entries{{
      {"circle", ElementKind::circle},
      {"defs", ElementKind::defs},
      {"ellipse", ElementKind::ellipse},
      {"feBlend", ElementKind::feBlend},
      {"feColorMatrix", ElementKind::feColorMatrix},
      {"feComponentTransfer", ElementKind::feComponentTransfer},
      {"feComposite", ElementKind::feComposite},
      {"feConvolveMatrix", ElementKind::feConvolveMatrix},
      {"feDiffuseLighting", ElementKind::feDiffuseLighting},
      {"feDisplacementMap", ElementKind::feDisplacementMap},
      {"feDropShadow", ElementKind::feDropShadow},
      {"feFlood", ElementKind::feFlood},
      {"feGaussianBlur", ElementKind::feGaussianBlur},
      {"feMerge", ElementKind::feMerge},
      {"feMergeNode", ElementKind::feMergeNode},
      {"feMorphology", ElementKind::feMorphology},
      {"feOffset", ElementKind::feOffset},
      {"feSpecularLighting", ElementKind::feSpecularLighting},
      {"feTile", ElementKind::feTile},
      {"feTurbulence", ElementKind::feTurbulence},
      {"filter", ElementKind::filter},
      {"g", ElementKind::g},
      {"image", ElementKind::image},
      {"line", ElementKind::line},
      {"linearGradient", ElementKind::linearGradient},
      {"path", ElementKind::path},
      {"polygon", ElementKind::polygon},
      {"polyline", ElementKind::polyline},
      {"radialGradient", ElementKind::radialGradient},
      {"rect", ElementKind::rect},
      {"stop", ElementKind::stop},
      {"style", ElementKind::style},
      {"svg", ElementKind::svg},
      {"text", ElementKind::text},
  }};
  std::sort(entries.begin(), entries.end());
  return entries;
}();

}  // namespace

ElementKind elementKind(std::string_view name) {
  auto it = std::lower_bound(table.begin(), table.end(), name,
                             [](const Entry& entry, std::string_view key) { return entry.first < key; });
  return it != table.end() && it->first == name ? it->second : ElementKind::other;
}

}  // namespace SVGParser
