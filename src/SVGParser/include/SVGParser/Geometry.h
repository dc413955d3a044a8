// Plain geometry records of 64-bit floats and the stroke and fill enumerations.
#pragma once

#include <cstdint>

struct CGPoint {
  double x = 0;
  double y = 0;
  bool operator==(const CGPoint&) const = default;
};

struct CGSize {
  double width = 0;
  double height = 0;
  bool operator==(const CGSize&) const = default;
};

struct CGRect {
  CGPoint origin;
  CGSize size;
  bool operator==(const CGRect&) const = default;
};

enum class CGLineCap : std::uint8_t { butt = 0, round = 1, square = 2 };
enum class CGLineJoin : std::uint8_t { miter = 0, round = 1, bevel = 2 };
enum class CGPathFillRule : std::uint8_t { winding, evenOdd };
