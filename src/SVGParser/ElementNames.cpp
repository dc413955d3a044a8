#include "ElementNames.h"

#include <algorithm>
#include <array>
#include <utility>

namespace SVGParser {

namespace {

using Entry = std::pair<std::string_view, ElementKind>;

constexpr std::array<Entry, 34> entries{{
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

// Every element name is looked up, often several times, so the names sit in a small open
// hash table built at compile time: one slot computation and, nearly always, one comparison.
constexpr std::size_t slotCount = 128;

constexpr std::size_t slotOf(std::string_view name) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(name[i]); };
  return (name.size() * 37 + byte(0) * 5 + byte(name.size() - 1) * 11 + byte(name.size() / 2) * 3) %
         slotCount;
}

constexpr auto slots = [] {
  std::array<int, slotCount> table{};
  for (auto& slot : table) slot = -1;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    std::size_t slot = slotOf(entries[i].first);
    while (table[slot] >= 0) slot = (slot + 1) % slotCount;
    table[slot] = static_cast<int>(i);
  }
  return table;
}();

}  // namespace

ElementKind elementKind(std::string_view name) {
  if (name.empty()) return ElementKind::other;
  for (std::size_t slot = slotOf(name);; slot = (slot + 1) % slotCount) {
    const int index = slots[slot];
    if (index < 0) return ElementKind::other;
    if (entries[static_cast<std::size_t>(index)].first == name) {
      return entries[static_cast<std::size_t>(index)].second;
    }
  }
}

}  // namespace SVGParser
