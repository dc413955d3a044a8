// Colour and font texts of the generated source.
#pragma once

#include <optional>
#include <string>

#include "SVGConverter/CodeGenerationStream.h"
#include "SVGParser/CSS.h"

namespace SVGConverter {

// A colour as a member name (".red"), a grey ("white: "), a hexadecimal value (which sets
// `didUseHexColorInit`) or three components; `opacity` is written when given, or taken from
// the colour's own alpha. Nothing for a colour that has no text.
std::optional<std::string> colorText(CodeGenerationStream& s, const CSS::Color& color,
                                     std::optional<double> opacity, bool preferInit, bool useHex);

// The expression inside ".font(" for a shorthand font.
std::string fontText(const CodeGenerationStream& s, const CSS::Font::Shorthand& font);

}  // namespace SVGConverter
