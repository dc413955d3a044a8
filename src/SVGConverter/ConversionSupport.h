// Small helpers shared by the conversion steps.
#pragma once

#include <optional>

#include "SVGConverter/SVGSwiftUIFigurer.h"
#include "SVGParser/CSS.h"

namespace SVGConverter {

template <class... Fs>
struct Overloaded : Fs... {
  using Fs::operator()...;
};
template <class... Fs>
Overloaded(Fs...) -> Overloaded<Fs...>;

inline std::optional<double> points(const std::optional<CSS::UnitLength>& length) {
  return length ? length->points() : std::nullopt;
}

struct FrameFields {
  std::optional<CGSize> intrinsicSize;
  std::optional<CGPoint> origin;
};

// The size needs both extents; the origin is absent only when both coordinates are, and a
// single missing coordinate counts as 0.
inline FrameFields frameFields(const SVGSwiftUIFigurer::PointFrame& frame) {
  FrameFields fields;
  if (frame.w && frame.h) fields.intrinsicSize = CGSize{*frame.w, *frame.h};
  if (frame.x || frame.y) fields.origin = CGPoint{frame.x.value_or(0), frame.y.value_or(0)};
  return fields;
}

// x and y go together: when one has a value, the other becomes 0.
inline SVGSwiftUIFigurer::PointFrame pairedFrame(std::optional<double> x, std::optional<double> y,
                                                 std::optional<double> w, std::optional<double> h) {
  if (x && !y) y = 0;
  if (y && !x) x = 0;
  return {x, y, w, h};
}

}  // namespace SVGConverter
