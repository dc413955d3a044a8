// `svgfigurer_synthetic [MEGABYTES]` writes the benchmarks' path-heavy SVG to standard output;
// `svgfigurer_synthetic --rects [COUNT]` the shape-heavy one (default 200,000 squares), so that
// the command-line tool can be measured on the same bytes.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "SyntheticSVG.h"

int main(int argc, char** argv) {
  const bool rects = argc > 1 && std::strcmp(argv[1], "--rects") == 0;
  const char* sizeArgument = argc > (rects ? 2 : 1) ? argv[rects ? 2 : 1] : nullptr;
  const long size = sizeArgument ? std::strtol(sizeArgument, nullptr, 10) : (rects ? 200'000 : 50);
  if (size <= 0 || size > (rects ? 100'000'000 : 4096)) {
    std::fprintf(stderr,
                 "usage: svgfigurer_synthetic [MEGABYTES (1-4096)]\n"
                 "       svgfigurer_synthetic --rects [COUNT (1-100000000)]\n");
    return 2;
  }
  const std::string svg = rects ? bench::rectSVG(static_cast<std::size_t>(size))
                                : bench::pathSVG(static_cast<std::size_t>(size) * 1'000'000);
  return std::fwrite(svg.data(), 1, svg.size(), stdout) == svg.size() ? 0 : 1;
}
