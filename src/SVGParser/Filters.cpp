// Readers of filter elements and of the five primitives that are modelled with parameters.
// Primitives take no stylesheet: CSS does not reach them, so every value comes from an
// attribute or a default.
#include <array>
#include <charconv>
#include <utility>

#include "SVGParser/SVG.h"

namespace SVGModel {

namespace {

using Primitive = Filter::Primitive;
using Mode = Primitive::Blend::Mode;

constexpr std::array<std::pair<Mode, std::string_view>, 16> blendModes{{
    {Mode::normal, "normal"},
    {Mode::multiply, "multiply"},
    {Mode::screen, "screen"},
    {Mode::overlay, "overlay"},
    {Mode::darken, "darken"},
    {Mode::lighten, "lighten"},
    {Mode::difference, "difference"},
    {Mode::exclusion, "exclusion"},
    {Mode::hue, "hue"},
    {Mode::saturation, "saturation"},
    {Mode::color, "color"},
    {Mode::luminosity, "luminosity"},
    {Mode::colorDodge, "color-dodge"},
    {Mode::colorBurn, "color-burn"},
    {Mode::hardLight, "hard-light"},
    {Mode::softLight, "soft-light"},
}};

constexpr std::array<std::pair<Filter::Input::Kind, std::string_view>, 6> inputKeywords{{
    {Filter::Input::Kind::sourceGraphic, "SourceGraphic"},
    {Filter::Input::Kind::sourceAlpha, "SourceAlpha"},
    {Filter::Input::Kind::backgroundImage, "BackgroundImage"},
    {Filter::Input::Kind::backgroundAlpha, "BackgroundAlpha"},
    {Filter::Input::Kind::fillPaint, "FillPaint"},
    {Filter::Input::Kind::strokePaint, "StrokePaint"},
}};

constexpr std::array<std::string_view, 12> unmodelledNames{
    "colorMatrix",     "componentTransfer", "composite", "convolveMatrix",
    "diffuseLighting", "displacementMap",   "flood",     "image",
    "morphology",      "specularLighting",  "tile",      "turbulence"};

std::optional<double> numberAttribute(const Attributes& attributes, std::string_view name) {
  auto text = attributes[name];
  return text ? CSS::parseNumber(*text) : std::nullopt;
}

Filter::Input inputOrDefault(const Attributes& attributes, std::string_view name,
                             const Filter::Input& fallback) {
  return Filter::Input::parse(attributes[name]).value_or(fallback);
}

std::string numberText(double value) {
  std::array<char, 32> buffer{};
  auto [end, ec] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return ec == std::errc() ? std::string(buffer.data(), end) : std::string("?");
}

std::string describe(const Primitive::Attributes& attributes) {
  std::string out;
  if (attributes.result) out += " result: " + *attributes.result;
  const std::array<std::pair<const char*, const std::optional<double>*>, 4> region{{
      {"x", &attributes.x},
      {"y", &attributes.y},
      {"width", &attributes.width},
      {"height", &attributes.height},
  }};
  for (const auto& [name, value] : region) {
    if (*value) out += std::string(" ") + name + ": " + numberText(**value);
  }
  return out;
}

struct PrimitiveDescriber {
  std::string operator()(const Primitive::Merge& merge) const {
    std::string out = "merge(";
    for (std::size_t i = 0; i < merge.inputs.size(); ++i) {
      if (i > 0) out += ", ";
      out += merge.inputs[i].description();
    }
    return out + ")" + describe(merge.attributes);
  }
  std::string operator()(const Primitive::Blur& blur) const {
    return "gaussianBlur(in: " + blur.input.description() +
           " stdDeviation: " + numberText(blur.standardDeviation) + ")" + describe(blur.attributes);
  }
  std::string operator()(const Primitive::Blend& blend) const {
    return "blend(in: " + blend.input.description() + " in2: " + blend.input2.description() +
           " mode: " + std::string(blendModeName(blend.mode)) + ")" + describe(blend.attributes);
  }
  std::string operator()(const Primitive::Offset& offset) const {
    return "offset(in: " + offset.input.description() + " dx: " + numberText(offset.dx) +
           " dy: " + numberText(offset.dy) + ")" + describe(offset.attributes);
  }
  std::string operator()(const Primitive::DropShadow& shadow) const {
    std::string out = "dropShadow(in: " + shadow.input.description() +
                      " dx: " + numberText(shadow.dx) + " dy: " + numberText(shadow.dy) +
                      " stdDeviation: " + numberText(shadow.standardDeviation) +
                      " color: " + shadow.color.description();
    if (shadow.opacity) out += " opacity: " + numberText(*shadow.opacity);
    return out + ")" + describe(shadow.attributes);
  }
  std::string operator()(const Primitive::Unmodelled& unmodelled) const {
    return std::string(unmodelledNames.at(static_cast<std::size_t>(unmodelled.kind)));
  }
};

}  // namespace

std::string_view blendModeName(Mode mode) {
  for (const auto& [candidate, name] : blendModes) {
    if (candidate == mode) return name;
  }
  return "normal";
}

std::optional<Mode> parseBlendMode(std::string_view text) {
  for (const auto& [mode, name] : blendModes) {
    if (name == text) return mode;
  }
  return std::nullopt;
}

std::optional<Filter::Input> Filter::Input::parse(std::optional<std::string_view> text) {
  if (!text || text->empty()) return std::nullopt;
  // Keywords are case-sensitive: "sourcegraphic" names a result, not the source.
  for (const auto& [kind, keyword] : inputKeywords) {
    if (keyword == *text) return Input{kind, {}};
  }
  return named(std::string(*text));
}

std::string Filter::Input::description() const {
  switch (kind) {
    case Kind::result:
      return "result(" + result + ")";
    case Kind::previous:
      return "previous";
    default:
      break;
  }
  for (const auto& [candidate, keyword] : inputKeywords) {
    if (candidate == kind) return std::string(keyword);
  }
  return "?";
}

Primitive::Attributes Primitive::Attributes::read(const SVGParser::Attributes& attributes) {
  Attributes result;
  if (auto name = attributes["result"]; name && !name->empty()) result.result = std::string(*name);
  // The primitive region takes plain numbers only; "10%" or "5px" are dropped without a word.
  result.x = numberAttribute(attributes, "x");
  result.y = numberAttribute(attributes, "y");
  result.width = numberAttribute(attributes, "width");
  result.height = numberAttribute(attributes, "height");
  return result;
}

Primitive::Blur Primitive::Blur::read(const SVGParser::Attributes& attributes,
                                      const Input& defaultInput) {
  Blur blur;
  blur.attributes = Attributes::read(attributes);
  blur.input = inputOrDefault(attributes, "in", defaultInput);
  // One deviation for both axes; the two-number form does not parse and falls back to 0.
  blur.standardDeviation = numberAttribute(attributes, "stdDeviation").value_or(0);
  return blur;
}

Primitive::Blend Primitive::Blend::read(const SVGParser::Attributes& attributes,
                                        const Input& defaultInput) {
  Blend blend;
  blend.attributes = Attributes::read(attributes);
  blend.input = inputOrDefault(attributes, "in", defaultInput);
  // A missing second input blends the first with itself rather than with the chain.
  blend.input2 = inputOrDefault(attributes, "in2", blend.input);
  if (auto mode = attributes["mode"]) blend.mode = parseBlendMode(*mode).value_or(Mode::normal);
  return blend;
}

Primitive::Offset Primitive::Offset::read(const SVGParser::Attributes& attributes,
                                          const Input& defaultInput) {
  Offset offset;
  offset.attributes = Attributes::read(attributes);
  offset.input = inputOrDefault(attributes, "in", defaultInput);
  offset.dx = numberAttribute(attributes, "dx").value_or(0);
  offset.dy = numberAttribute(attributes, "dy").value_or(0);
  return offset;
}

Primitive::DropShadow Primitive::DropShadow::read(const SVGParser::Attributes& attributes,
                                                  const Input& defaultInput, const Report& report) {
  DropShadow shadow;
  shadow.attributes = Attributes::read(attributes);
  shadow.input = inputOrDefault(attributes, "in", defaultInput);
  shadow.dx = numberAttribute(attributes, "dx").value_or(0);
  shadow.dy = numberAttribute(attributes, "dy").value_or(0);
  shadow.standardDeviation = numberAttribute(attributes, "stdDeviation").value_or(2);
  shadow.color =
      CSS::Color::parse(attributes["flood-color"], report).value_or(CSS::Color::named("black"));
  // Kept as the fraction it was written as, unlike the 0 to 100 opacities elsewhere.
  shadow.opacity = numberAttribute(attributes, "flood-opacity");
  return shadow;
}

std::string Primitive::description() const {
  return std::visit(PrimitiveDescriber{}, value);
}

Filter Filter::read(const SVGParser::Attributes& attributes, const Report& report) {
  Filter filter;
  filter.core = CoreAttributes::read(attributes);
  filter.style = StylingAttributes::read(attributes);
  filter.x = CSS::UnitLength::parseOrNone(attributes["x"], report);
  filter.y = CSS::UnitLength::parseOrNone(attributes["y"], report);
  filter.width = CSS::UnitLength::parseOrNone(attributes["width"], report);
  filter.height = CSS::UnitLength::parseOrNone(attributes["height"], report);
  return filter;
}

}  // namespace SVGModel
