#include "SyntheticSVG.h"

#include <cstdio>
#include <random>
#include <string_view>

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

// About 100 KB in the shape icon sets take: a grid of 24 by 24 glyphs, each a group holding a
// few paths of relative curves, with shared classes in a stylesheet.
const std::string& iconSetSVG() {
  static const std::string text = [] {
    std::string svg =
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"960\" height=\"960\" "
        "viewBox=\"0 0 960 960\">\n<style>.a{fill:#223344}.b{fill:none;stroke:#cc5500;"
        "stroke-width:1.5}</style>\n";
    for (int i = 0; svg.size() < 100 * 1024; ++i) {
      const int x = (i % 40) * 24;
      const int y = (i / 40) * 24;
      const double s = 1 + (i % 7) * 0.25;
      svg += "<g id=\"icon" + std::to_string(i) + "\" transform=\"translate(" + std::to_string(x) +
             " " + std::to_string(y) + ")\">\n";
      svg +=
          "  <path class=\"a\" d=\"M12 2c-3.3 0-6 2.7-6 6v5l-2 3v1h16v-1l-2-3v-5c0-3.3-2.7-6-6"
          "-6zm-2 17h4c0 1.1-.9 2-2 2s-2-.9-2-2z\"/>\n";
      svg += "  <path class=\"b\" d=\"M3 " + std::to_string(s) +
             "a9 9 0 1 0 18 0a9 9 0 1 0-18 "
             "0zm9 4.5v" +
             std::to_string(s) + "l3.2 1.8\"/>\n";
      svg += "  <circle cx=\"18\" cy=\"6\" r=\"" + std::to_string(s) + "\" fill=\"red\"/>\n</g>\n";
    }
    return svg + "</svg>\n";
  }();
  return text;
}

std::string rectSVG(std::size_t count) {
  std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"512\" height=\"512\">\n";
  constexpr std::string_view rect = "<rect width=\"1\" height=\"1\"/>\n";
  svg.reserve(svg.size() + count * rect.size() + 8);
  for (std::size_t i = 0; i < count; ++i) svg += rect;
  return svg + "</svg>\n";
}

const std::string& rectsSVG() {
  static const std::string svg = rectSVG(200'000);
  return svg;
}

}  // namespace bench
