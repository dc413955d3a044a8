// Generated benchmark inputs, the same bytes on every run.
#pragma once

#include <cstddef>
#include <string>

namespace bench {

// At least `bytes` of SVG in the shape below; the same bytes for the same size on every run.
std::string pathSVG(std::size_t bytes);

// About 2 MB of SVG: groups of paths with curves, arcs and styling, as icon sets and drawing
// tools write them.
const std::string& largePathSVG();
// The same shape at 50 MB, for throughput and memory at scale.
const std::string& hugePathSVG();
// About 100 KB in the shape icon sets take: a grid of 24 by 24 glyphs, each a group holding a
// few paths of relative curves, with shared classes in a stylesheet.
const std::string& iconSetSVG();
// `count` unit squares, one element a line: the shape-heavy worst case, where per-element costs
// outweigh the text. 200,000 of them make about 5.6 MB.
std::string rectSVG(std::size_t count);
const std::string& rectsSVG();

}  // namespace bench
