// Generated benchmark inputs, the same bytes on every run.
#pragma once

#include <string>

namespace bench {

// About 2 MB of SVG: groups of paths with curves, arcs and styling, as icon sets and drawing
// tools write them.
const std::string& largePathSVG();

}  // namespace bench
