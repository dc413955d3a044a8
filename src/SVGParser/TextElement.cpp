// Reader of the text element's attributes. Its character data is appended later by the parse
// driver as it arrives.
#include "SVGParser/SVG.h"

namespace SVGModel {

Text Text::read(const Attributes& attributes, const CSS::Style& resolver, const Report& report) {
  Text text;
  static_cast<ElementAttributes&>(text) = ElementAttributes::read(attributes, resolver, report);
  // One position only: a list of coordinates fails as a length and leaves the origin.
  text.x = CSS::UnitLength::parse(attributes["x"], report).value_or(text.x);
  text.y = CSS::UnitLength::parse(attributes["y"], report).value_or(text.y);
  text.dx = CSS::UnitLength::parse(attributes["dx"], report);
  text.dy = CSS::UnitLength::parse(attributes["dy"], report);
  text.textLength = CSS::UnitLength::parse(attributes["textLength"], report);
  // Font attributes on the element itself are not read; only CSS sets a font.
  text.font = CSS::Font::resolve(resolver, report);
  return text;
}

}  // namespace SVGModel
