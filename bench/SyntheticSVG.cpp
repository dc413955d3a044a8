#include "SyntheticSVG.h"

#include <cstdio>
#include <random>

namespace bench {

std::string pathSVG(std::size_t bytes) {
  std::mt19937 random(42);
  std::uniform_real_distribution<double> coordinate(0, 512);
  auto number = [&] {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.2f", coordinate(random));
    return std::string(buffer);
  };
  std::string svg =
      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"512\" height=\"512\" viewBox=\"0 0 512 "
      "512\">\n"
      "<style>.a{fill:#336699}.b{stroke:red;stroke-width:2px}</style>\n";
  while (svg.size() < bytes) {
    svg += "<g transform=\"translate(" + number() + "," + number() + ")\" class=\"a\">\n";
    for (int p = 0; p < 8; ++p) {
      svg += "<path class=\"b\" fill-opacity=\"0.5\" d=\"M" + number() + " " + number();
      for (int c = 0; c < 12; ++c) {
        switch (c % 4) {
          case 0:
            svg += " L" + number() + " " + number();
            break;
          case 1:
            svg += " C" + number() + " " + number() + " " + number() + " " + number() + " " +
                   number() + " " + number();
            break;
          case 2:
            svg += " A20 20 0 0 1 " + number() + " " + number();
            break;
          default:
            svg += " q10-5 " + number() + " " + number();
            break;
        }
      }
      svg += " Z\"/>\n";
    }
    svg +=
        "<circle cx=\"" + number() + "\" cy=\"" + number() + "\" r=\"4\" fill=\"gold\"/>\n</g>\n";
  }
  svg += "</svg>\n";
  return svg;
}

const std::string& largePathSVG() {
  static const std::string svg = pathSVG(2'000'000);
  return svg;
}

const std::string& hugePathSVG() {
  static const std::string svg = pathSVG(50'000'000);
  return svg;
}

}  // namespace bench
