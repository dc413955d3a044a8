// Text as a running pen position: a text without a usable coordinate goes on where the last
// one stood. The position does not advance by the width of the text.
#include "SVGConverter/SVGSwiftUIFigurer.h"

SwiftUIModel::Text SVGSwiftUIFigurer::convert(const SVG::Text& text) {
  pushAttributes(text.presentation);
  double x = text.x.points().value_or(lastTextPosition.x);
  double y = text.y.points().value_or(lastTextPosition.y);
  if (text.dx) {
    if (const auto dx = text.dx->points()) x += *dx;
  }
  if (text.dy) {
    if (const auto dy = text.dy->points()) y += *dy;
  }
  lastTextPosition = {x, y};
  const auto& m = currentAttributes();
  auto paint = convertPaint(m.fill, m.fillOpacity);
  popAttributes();
  return {{x, y}, text.font, std::move(paint), text.text};
}
