// `svgfigurer_synthetic [MEGABYTES]`: writes the benchmarks' path-heavy SVG to standard output,
// so that the command-line tool can be measured on the same bytes.
#include <cstdio>
#include <cstdlib>
#include <string>

#include "SyntheticSVG.h"

int main(int argc, char** argv) {
  const long megabytes = argc > 1 ? std::strtol(argv[1], nullptr, 10) : 50;
  if (megabytes <= 0 || megabytes > 4096) {
    std::fprintf(stderr, "usage: svgfigurer_synthetic [MEGABYTES (1-4096)]\n");
    return 2;
  }
  const std::string svg = bench::pathSVG(static_cast<std::size_t>(megabytes) * 1'000'000);
  return std::fwrite(svg.data(), 1, svg.size(), stdout) == svg.size() ? 0 : 1;
}
