#include "UnicodeText.h"

#include <cstdint>
#include <optional>

namespace SVGFigurerApp {

namespace {

struct Scalar {
  char32_t value;
  std::size_t length;
};

// The scalar that starts at `i`, or nothing for a malformed sequence.
std::optional<Scalar> decodeAt(std::string_view text, std::size_t i) {
  const auto byte = [&](std::size_t k) { return static_cast<std::uint8_t>(text[k]); };
  const std::uint8_t lead = byte(i);
  if (lead < 0x80) return Scalar{lead, 1};
  std::size_t length;
  char32_t value;
  char32_t minimum;
  if ((lead & 0xE0) == 0xC0) {
    length = 2, value = lead & 0x1F, minimum = 0x80;
  } else if ((lead & 0xF0) == 0xE0) {
    length = 3, value = lead & 0x0F, minimum = 0x800;
  } else if ((lead & 0xF8) == 0xF0) {
    length = 4, value = lead & 0x07, minimum = 0x10000;
  } else {
    return std::nullopt;
  }
  if (i + length > text.size()) return std::nullopt;
  for (std::size_t k = 1; k < length; ++k) {
    if ((byte(i + k) & 0xC0) != 0x80) return std::nullopt;
    value = (value << 6) | (byte(i + k) & 0x3F);
  }
  if (value < minimum || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF)) {
    return std::nullopt;
  }
  return Scalar{value, length};
}

bool isWhitespaceOrNewline(char32_t c) {
  switch (c) {
    case 0x20:
    case 0xA0:
    case 0x1680:
    case 0x2028:
    case 0x2029:
    case 0x202F:
    case 0x205F:
    case 0x3000:
    case 0x85:
      return true;
    default:
      return (c >= 0x0A && c <= 0x0D) || (c >= 0x2000 && c <= 0x200A);
  }
}

}  // namespace

bool isValidUTF8(std::string_view text) {
  for (std::size_t i = 0; i < text.size();) {
    const auto scalar = decodeAt(text, i);
    if (!scalar) return false;
    i += scalar->length;
  }
  return true;
}

std::size_t unicodeScalarCount(std::string_view text) {
  // Plain ASCII, the usual case, is one scalar per byte; the test runs at memory speed.
  unsigned char anyHighBit = 0;
  for (const char c : text) anyHighBit |= static_cast<unsigned char>(c);
  if (anyHighBit < 0x80) return text.size();
  std::size_t count = 0;
  for (std::size_t i = 0; i < text.size(); ++count) {
    const auto scalar = decodeAt(text, i);
    i += scalar ? scalar->length : 1;
  }
  return count;
}

bool isBlank(std::string_view text) {
  for (std::size_t i = 0; i < text.size();) {
    const auto scalar = decodeAt(text, i);
    if (!scalar || !isWhitespaceOrNewline(scalar->value)) return false;
    i += scalar->length;
  }
  return true;
}

}  // namespace SVGFigurerApp
