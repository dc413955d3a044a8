#include "TextReplacement.h"

#include <algorithm>
#include <cstring>

namespace FigurerUtilities {

namespace {

bool continuesACharacter(std::string_view text, std::size_t index) {
  return index < text.size() && (static_cast<unsigned char>(text[index]) & 0xC0) == 0x80;
}

// The length of the common prefix; memcmp over blocks finds the differing block fast.
std::size_t commonPrefix(const char* a, const char* b, std::size_t length) {
  constexpr std::size_t kBlock = 256;
  std::size_t at = 0;
  while (at + kBlock <= length && std::memcmp(a + at, b + at, kBlock) == 0) at += kBlock;
  while (at < length && a[at] == b[at]) ++at;
  return at;
}

std::size_t commonSuffix(const char* aEnd, const char* bEnd, std::size_t length) {
  constexpr std::size_t kBlock = 256;
  std::size_t at = 0;
  while (at + kBlock <= length &&
         std::memcmp(aEnd - at - kBlock, bEnd - at - kBlock, kBlock) == 0) {
    at += kBlock;
  }
  while (at < length &&
         aEnd[-1 - static_cast<std::ptrdiff_t>(at)] == bEnd[-1 - static_cast<std::ptrdiff_t>(at)]) {
    ++at;
  }
  return at;
}

}  // namespace

TextReplacement middleReplacement(std::string_view from, std::string_view to) {
  const std::size_t shorter = std::min(from.size(), to.size());
  std::size_t prefix = commonPrefix(from.data(), to.data(), shorter);
  while (prefix > 0 && (continuesACharacter(from, prefix) || continuesACharacter(to, prefix)))
    --prefix;
  std::size_t suffix =
      commonSuffix(from.data() + from.size(), to.data() + to.size(), shorter - prefix);
  while (suffix > 0 && continuesACharacter(from, from.size() - suffix)) --suffix;
  return {prefix, from.size() - prefix - suffix, to.size() - prefix - suffix};
}

std::size_t utf16Length(std::string_view utf8) {
  std::size_t units = 0;
  for (const char c : utf8) {
    const auto byte = static_cast<unsigned char>(c);
    // Every character starts with a non-continuation byte; four-byte ones take two units.
    units +=
        static_cast<std::size_t>((byte & 0xC0) != 0x80) + static_cast<std::size_t>(byte >= 0xF0);
  }
  return units;
}

}  // namespace FigurerUtilities
