// Colours: the attribute spelling (names, "#" forms, rgb() and rgba()), the stylesheet
// spelling, and the integer forms used by the converter.
#include <cmath>
#include <string>
#include <vector>

#include "CoreS/DoubleText.h"
#include "SVGParser/CSS.h"
#include "TextUtilities.h"

namespace CSSModel {

namespace {

namespace text = SVGParser::text;

// The channels of rgb() and rgba(): base-10 integers over 255, without clamping. An alpha
// that is no integer (such as 0.5) is dropped and the colour stays opaque.
std::optional<Color> colorFromArguments(const std::vector<std::string>& arguments, bool withAlpha) {
  const auto red = text::parseInteger(arguments[0]);
  const auto green = text::parseInteger(arguments[1]);
  const auto blue = text::parseInteger(arguments[2]);
  if (!red || !green || !blue) return std::nullopt;
  const double r = static_cast<double>(*red) / 255.0;
  const double g = static_cast<double>(*green) / 255.0;
  const double b = static_cast<double>(*blue) / 255.0;
  if (withAlpha) {
    if (const auto alpha = text::parseInteger(arguments[3])) {
      return Color::rgba(r, g, b, static_cast<double>(*alpha) / 255.0);
    }
  }
  return Color::rgb(r, g, b);
}

// "#rgb", "#rrggbb" and "#rrggbbaa", after the non-alphanumerics at both ends are gone.
std::optional<std::uint32_t> hexColorValue(std::string_view digits) {
  if (digits.size() != 3 && digits.size() != 6 && digits.size() != 8) return std::nullopt;
  const auto value = text::parseHex32(digits);
  if (!value || digits.size() != 3) return value;
  const std::uint32_t r = (*value >> 8) & 0xF, g = (*value >> 4) & 0xF, b = *value & 0xF;
  return (r * 0x11) << 16 | (g * 0x11) << 8 | b * 0x11;
}

// A channel times 255 as the unsigned 32-bit integer it truncates to; nothing where that
// conversion is impossible.
std::optional<std::uint32_t> channelValue(double channel) {
  const double scaled = channel * 255;
  if (!std::isfinite(scaled) || scaled <= -1 || scaled >= 4294967296.0) return std::nullopt;
  return static_cast<std::uint32_t>(std::trunc(scaled));
}

// Channels packed from the most significant end. Shifting drops the high bits of a
// channel that is too large; the sum itself must stay within 32 bits.
std::optional<std::uint32_t> packChannels(std::initializer_list<double> channels) {
  std::uint64_t sum = 0;
  int shift = 8 * (static_cast<int>(channels.size()) - 1);
  for (double channel : channels) {
    const auto value = channelValue(channel);
    if (!value) return std::nullopt;
    sum += static_cast<std::uint32_t>(*value << shift);
    if (sum > 0xFFFFFFFFu) return std::nullopt;
    shift -= 8;
  }
  return static_cast<std::uint32_t>(sum);
}

void appendChannels(std::string& out, std::initializer_list<double> channels) {
  bool first = true;
  for (double channel : channels) {
    if (!first) out += ", ";
    out += CoreS::swiftDoubleDescription(channel);
    first = false;
  }
  out += ')';
}

}  // namespace

std::optional<Color> Color::parse(std::optional<std::string_view> source, const Report& report) {
  if (!source || *source == "none") return std::nullopt;
  const std::string lower = text::lowercased(text::trim(*source));
  if (CSS::namedColorValue(lower)) return named(lower);

  if (lower.starts_with('#')) {
    if (const auto value = hexColorValue(text::trimNonAlphanumerics(lower))) {
      return fromInteger(*value);
    }
    report.print({"ERROR: failed to parse color:", lower});
    return std::nullopt;
  }

  const auto function = CSS::parseFunction(lower);
  if (!function) {
    // Any other word is taken as a colour name; whoever draws it decides what it means.
    if (lower.empty()) return std::nullopt;
    return named(lower);
  }
  const bool isRGB = function->name == "rgb";
  const bool isRGBA = function->name == "rgba";
  if (!isRGB && !isRGBA) return std::nullopt;
  if (function->arguments.size() < (isRGB ? 3u : 4u)) {
    report.print({"ERROR: failed to parse color:", lower});
    return std::nullopt;
  }
  return colorFromArguments(function->arguments, isRGBA);
}

std::optional<Color> Color::fromValue(const Value* value) {
  if (value == nullptr) return std::nullopt;
  if (const auto* function = std::get_if<Value::Function>(&value->value)) {
    if (function->name == "rgb" && function->arguments.size() > 2) {
      return colorFromArguments(function->arguments, false);
    }
    if (function->name == "rgba" && function->arguments.size() > 3) {
      return colorFromArguments(function->arguments, true);
    }
    return std::nullopt;
  }
  const auto* id = std::get_if<Value::Id>(&value->value);
  if (id == nullptr) return std::nullopt;
  if (!id->text.empty()) {
    std::string lower = text::lowercased(id->text);
    if (CSS::namedColorValue(lower)) return named(std::move(lower));
  }
  // Only the six-digit form is known here, with or without its "#".
  const std::string_view digits = text::trimNonAlphanumerics(id->text);
  if (digits.size() != 6) return std::nullopt;
  const auto rgbValue = text::parseHex32(digits);
  if (!rgbValue) return std::nullopt;
  return fromInteger(*rgbValue);
}

Color Color::fromInteger(std::uint32_t value) {
  const auto channel = [value](int shift) {
    return static_cast<double>((value >> shift) & 0xFF) / 255.0;
  };
  // Below 0x1000000 the value has no room for an alpha, so an "#00rrggbb" reads as rgb.
  if (value < 0x1000000) return rgb(channel(16), channel(8), channel(0));
  return rgba(channel(24), channel(16), channel(8), channel(0));
}

std::optional<std::uint32_t> Color::rgbValue() const {
  if (const auto* n = std::get_if<Named>(&value)) return CSS::namedColorValue(n->name);
  if (const auto* c = std::get_if<RGB>(&value)) return packChannels({c->red, c->green, c->blue});
  const auto& c = std::get<RGBA>(value);
  return packChannels({c.red, c.green, c.blue});
}

std::optional<std::uint32_t> Color::rgbaValue() const {
  const auto* c = std::get_if<RGBA>(&value);
  if (c == nullptr || c->alpha >= 1.0) return rgbValue();
  return packChannels({c->red, c->green, c->blue, c->alpha});
}

std::string Color::description() const {
  std::string out;
  if (const auto* n = std::get_if<Named>(&value)) {
    out = ".named(";
    text::appendQuoted(out, n->name);
    out += ')';
  } else if (const auto* c = std::get_if<RGB>(&value)) {
    out = ".rgb(";
    appendChannels(out, {c->red, c->green, c->blue});
  } else {
    const auto& a = std::get<RGBA>(value);
    out = ".rgba(";
    appendChannels(out, {a.red, a.green, a.blue, a.alpha});
  }
  return out;
}

}  // namespace CSSModel
