#include "TextUtilities.h"

#include <unicode/ustring.h>
#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include <array>
#include <charconv>

namespace SVGParser::text {

namespace {

// Decodes one UTF-8 scalar at `i`; malformed bytes decode as themselves (never whitespace).
char32_t decodeAt(std::string_view s, std::size_t i, std::size_t& length) {
  const auto b0 = static_cast<unsigned char>(s[i]);
  if (b0 < 0x80) {
    length = 1;
    return b0;
  }
  auto cont = [&](std::size_t k) -> int {
    if (i + k >= s.size()) return -1;
    const auto b = static_cast<unsigned char>(s[i + k]);
    return (b & 0xC0) == 0x80 ? (b & 0x3F) : -1;
  };
  if ((b0 & 0xE0) == 0xC0) {
    const int c1 = cont(1);
    if (c1 >= 0) {
      length = 2;
      return (char32_t(b0 & 0x1F) << 6) | char32_t(c1);
    }
  } else if ((b0 & 0xF0) == 0xE0) {
    const int c1 = cont(1), c2 = c1 >= 0 ? cont(2) : -1;
    if (c2 >= 0) {
      length = 3;
      return (char32_t(b0 & 0x0F) << 12) | (char32_t(c1) << 6) | char32_t(c2);
    }
  } else if ((b0 & 0xF8) == 0xF0) {
    const int c1 = cont(1), c2 = c1 >= 0 ? cont(2) : -1, c3 = c2 >= 0 ? cont(3) : -1;
    if (c3 >= 0) {
      length = 4;
      return (char32_t(b0 & 0x07) << 18) | (char32_t(c1) << 12) | (char32_t(c2) << 6) | char32_t(c3);
    }
  }
  length = 1;
  return 0xFFFD0000u | b0;  // not a scalar: matches no class
}

// Length of the whitespace character that ends at `end`, or 0.
std::size_t whitespaceBefore(std::string_view s, std::size_t end) {
  for (std::size_t len = 1; len <= 4 && len <= end; ++len) {
    const std::size_t start = end - len;
    const auto b = static_cast<unsigned char>(s[start]);
    if ((b & 0xC0) == 0x80) continue;  // a character never starts with a continuation byte
    std::size_t decoded = 0;
    const char32_t c = decodeAt(s, start, decoded);
    return decoded == len && isWhitespaceOrNewline(c) ? len : 0;
  }
  return 0;
}

// Appends the full lower-case mapping of one scalar taken by itself, as "İ" to "i̇". Without
// context a capital sigma always becomes "σ": letters are mapped one by one, not as words.
bool appendLowercase(std::string& out, char32_t c) {
  if (c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) return false;
  std::array<UChar, 2> source{};
  int32_t sourceLength = 0;
  UBool failed = false;
  U16_APPEND(source.data(), sourceLength, 2, static_cast<UChar32>(c), failed);
  if (failed) return false;
  std::array<UChar, 8> lower{};
  UErrorCode status = U_ZERO_ERROR;
  const int32_t lowerLength = u_strToLower(lower.data(), static_cast<int32_t>(lower.size()),
                                           source.data(), sourceLength, "", &status);
  if (U_FAILURE(status) || lowerLength > static_cast<int32_t>(lower.size())) return false;
  for (int32_t k = 0; k < lowerLength;) {
    UChar32 scalar = 0;
    U16_NEXT(lower.data(), k, lowerLength, scalar);
    std::array<char, 4> bytes{};
    int32_t byteLength = 0;
    U8_APPEND(reinterpret_cast<std::uint8_t*>(bytes.data()), byteLength, 4, scalar, failed);
    if (failed) return false;
    out.append(bytes.data(), static_cast<std::size_t>(byteLength));
  }
  return true;
}

}  // namespace

bool isWhitespaceOrNewline(char32_t c) {
  switch (c) {
    case 0x0A: case 0x0B: case 0x0C: case 0x0D: case 0x85:  // newlines
    case 0x20: case 0xA0: case 0x1680: case 0x202F: case 0x205F: case 0x3000:  // Zs
    case 0x2028: case 0x2029:  // Zl, Zp
      return true;
    default:
      return c >= 0x2000 && c <= 0x200A;  // Zs
  }
}

std::string_view trim(std::string_view s) {
  std::size_t begin = 0;
  while (begin < s.size()) {
    std::size_t length = 0;
    if (!isWhitespaceOrNewline(decodeAt(s, begin, length))) break;
    begin += length;
  }
  std::size_t end = s.size();
  while (end > begin) {
    const std::size_t length = whitespaceBefore(s, end);
    if (length == 0) break;
    end -= length;
  }
  return s.substr(begin, end - begin);
}

std::vector<std::string_view> splitAny(std::string_view s, std::string_view separators,
                                       std::size_t maxCuts) {
  std::vector<std::string_view> pieces;
  std::size_t cuts = 0;
  std::size_t start = 0;
  for (std::size_t i = 0; i < s.size() && cuts < maxCuts; ++i) {
    if (separators.find(s[i]) == std::string_view::npos) continue;
    // Empty pieces are dropped without spending a cut, as Swift's split does.
    if (i > start) {
      pieces.push_back(s.substr(start, i - start));
      ++cuts;
    }
    start = i + 1;
  }
  if (start < s.size()) pieces.push_back(s.substr(start));
  return pieces;
}

std::vector<std::string_view> split(std::string_view s, char separator, std::size_t maxCuts) {
  return splitAny(s, std::string_view(&separator, 1), maxCuts);
}

std::vector<std::string_view> splitWhitespace(std::string_view s) {
  std::vector<std::string_view> pieces;
  std::size_t i = 0, start = 0;
  while (i < s.size()) {
    std::size_t length = 0;
    if (isWhitespaceOrNewline(decodeAt(s, i, length))) {
      if (i > start) pieces.push_back(s.substr(start, i - start));
      start = i + length;
    }
    i += length;
  }
  if (start < s.size()) pieces.push_back(s.substr(start));
  return pieces;
}

std::string lowercased(std::string_view s) {
  std::string out;
  out.reserve(s.size());
  for (std::size_t i = 0; i < s.size();) {
    const auto b = static_cast<unsigned char>(s[i]);
    if (b < 0x80) {
      out += b >= 'A' && b <= 'Z' ? static_cast<char>(b - 'A' + 'a') : static_cast<char>(b);
      ++i;
      continue;
    }
    std::size_t length = 0;
    const char32_t c = decodeAt(s, i, length);
    if (!appendLowercase(out, c)) out.append(s.substr(i, length));
    i += length;
  }
  return out;
}

std::string uppercased(std::string_view s) {
  std::string out(s);
  for (char& c : out) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return out;
}

std::optional<std::int64_t> parseInteger(std::string_view s) {
  if (s.empty()) return std::nullopt;
  bool negative = false;
  if (s.front() == '+' || s.front() == '-') {
    negative = s.front() == '-';
    s.remove_prefix(1);
    if (s.empty()) return std::nullopt;
  }
  std::uint64_t magnitude = 0;
  const auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), magnitude);
  if (ec != std::errc() || end != s.data() + s.size()) return std::nullopt;
  if (negative) {
    if (magnitude > std::uint64_t(INT64_MAX) + 1) return std::nullopt;
    return magnitude == std::uint64_t(INT64_MAX) + 1 ? INT64_MIN : -std::int64_t(magnitude);
  }
  if (magnitude > std::uint64_t(INT64_MAX)) return std::nullopt;
  return std::int64_t(magnitude);
}

std::size_t characterCount(std::string_view s) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < s.size();) {
    std::size_t length = 0;
    decodeAt(s, i, length);
    i += length;
    ++count;
  }
  return count;
}

std::string_view trimNonAlphanumerics(std::string_view s) {
  const auto isStripped = [](char c) {
    const auto b = static_cast<unsigned char>(c);
    return b < 0x80 && !((b >= '0' && b <= '9') || (b >= 'a' && b <= 'z') || (b >= 'A' && b <= 'Z'));
  };
  while (!s.empty() && isStripped(s.front())) s.remove_prefix(1);
  while (!s.empty() && isStripped(s.back())) s.remove_suffix(1);
  return s;
}

std::optional<std::uint32_t> parseHex32(std::string_view s) {
  if (s.empty() || s.size() > 8) return std::nullopt;
  std::uint32_t value = 0;
  const auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), value, 16);
  if (ec != std::errc() || end != s.data() + s.size()) return std::nullopt;
  return value;
}

void appendQuoted(std::string& out, std::string_view text) {
  out += '"';
  for (char c : text) {
    switch (c) {
      case '"': out += "\\\""; break;
      case '\\': out += "\\\\"; break;
      case '\n': out += "\\n"; break;
      case '\r': out += "\\r"; break;
      case '\t': out += "\\t"; break;
      default: out += c;
    }
  }
  out += '"';
}

bool startsWith(std::string_view text, std::string_view prefix) { return text.starts_with(prefix); }
bool endsWith(std::string_view text, std::string_view suffix) { return text.ends_with(suffix); }

}  // namespace SVGParser::text
