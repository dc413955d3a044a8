// The element names the tree builder knows, compared case-sensitively.
#pragma once

#include <cstdint>
#include <string_view>

namespace SVGParser {

enum class ElementKind : std::uint8_t {
  svg, g, text, circle, ellipse, rect, polygon, polyline, line, image, path, defs,
  linearGradient, radialGradient, stop, filter, feGaussianBlur, feOffset, feBlend, feDropShadow,
  feMerge, feMergeNode, feColorMatrix, feComponentTransfer, feComposite, feConvolveMatrix,
  feDiffuseLighting, feDisplacementMap, feFlood, feMorphology, feSpecularLighting, feTile,
  feTurbulence, style, other
};

ElementKind elementKind(std::string_view name);

}  // namespace SVGParser
