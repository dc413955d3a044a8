#include "SVGConverter/IDPool.h"

#include <unicode/brkiter.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utext.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <memory>
#include <random>

namespace SwiftUIModel {

namespace {

constexpr std::int64_t lastNumberedCandidate = 999;

std::string randomUUID() {
  std::random_device device;
  std::array<std::uint8_t, 16> bytes{};
  for (auto& byte : bytes) byte = static_cast<std::uint8_t>(device() & 0xFF);
  bytes[6] = static_cast<std::uint8_t>((bytes[6] & 0x0F) | 0x40);  // version 4
  bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x3F) | 0x80);  // RFC 4122 variant
  static constexpr char digits[] = "0123456789ABCDEF";
  std::string text;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (i == 4 || i == 6 || i == 8 || i == 10) text += '-';
    text += digits[bytes[i] >> 4];
    text += digits[bytes[i] & 0x0F];
  }
  return text;
}

// Letters in the generous sense of the generated language's character set: every letter
// and every mark.
bool isLetter(UChar32 c) {
  if (c < 0) return false;
  const auto mask = U_GET_GC_MASK(c);
  return (mask & (U_GC_L_MASK | U_GC_M_MASK)) != 0;
}

// Byte length of the first user-perceived character.
std::size_t firstCharacterLength(const std::string& text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  // Between two ASCII characters there is always a boundary, except inside CR LF.
  if (byte(0) < 0x80 &&
      (text.size() == 1 || (byte(1) < 0x80 && !(byte(0) == '\r' && byte(1) == '\n')))) {
    return 1;
  }
  UErrorCode status = U_ZERO_ERROR;
  UText* utext = utext_openUTF8(nullptr, text.data(), static_cast<int64_t>(text.size()), &status);
  std::unique_ptr<UText, decltype(&utext_close)> guard(utext, &utext_close);
  std::unique_ptr<icu::BreakIterator> breaks(
      icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
  if (U_FAILURE(status) || !breaks) return 1;
  breaks->setText(utext, status);
  if (U_FAILURE(status)) return 1;
  const int32_t end = breaks->following(0);
  if (end <= 0 || static_cast<std::size_t>(end) > text.size()) return 1;
  return static_cast<std::size_t>(end);
}

std::string changeCase(std::string_view character, NameCase nameCase) {
  if (character.size() == 1 && static_cast<unsigned char>(character[0]) < 0x80) {
    const auto c = static_cast<unsigned char>(character[0]);
    return std::string(
        1, static_cast<char>(nameCase == NameCase::type ? std::toupper(c) : std::tolower(c)));
  }
  auto unicode = icu::UnicodeString::fromUTF8(
      icu::StringPiece(character.data(), static_cast<int32_t>(character.size())));
  if (nameCase == NameCase::type) {
    unicode.toUpper(icu::Locale::getRoot());
  } else {
    unicode.toLower(icu::Locale::getRoot());
  }
  std::string result;
  unicode.toUTF8String(result);
  return result;
}

}  // namespace

bool IDPool::isTaken(std::string_view name) const {
  if (name.size() > prefix.size() && name.substr(0, prefix.size()) == prefix) {
    // A number as the pool writes it: no sign, no leading zero.
    const std::string_view digits = name.substr(prefix.size());
    std::int64_t value = 0;
    bool numbered = digits.front() != '0' && digits.size() <= 18;
    for (std::size_t i = 0; numbered && i < digits.size(); ++i) {
      numbered = digits[i] >= '0' && digits[i] <= '9';
      value = value * 10 + (digits[i] - '0');
    }
    if (numbered && value <= counter) return true;
  }
  return usedIDs.find(std::string(name)) != usedIDs.end();
}

std::string IDPool::uniqueID(const std::optional<std::string>& wanted) {
  if (wanted && !isTaken(*wanted)) {
    usedIDs.insert(*wanted);
    return *wanted;
  }
  while (true) {
    ++counter;
    auto candidate = prefix + std::to_string(counter);
    // Above every number tried before, so taken only if it was wanted by name.
    if (usedIDs.find(candidate) == usedIDs.end()) return candidate;
    if (counter > lastNumberedCandidate) return randomUUID();
  }
}

std::string identifierFromName(std::string name, NameCase nameCase) {
  if (name.empty()) return name;
  std::replace(name.begin(), name.end(), '-', '_');

  int32_t offset = 0;
  UChar32 first = 0;
  const auto* bytes = reinterpret_cast<const uint8_t*>(name.data());
  const auto length = static_cast<int32_t>(std::min<std::size_t>(name.size(), INT32_MAX));
  U8_NEXT(bytes, offset, length, first);
  if (!isLetter(first)) name.insert(0, 1, 'z');

  const auto head = firstCharacterLength(name);
  return changeCase(std::string_view(name).substr(0, head), nameCase) + name.substr(head);
}

std::string makeTypeName(IDPool& pool, const std::optional<std::string>& id, NameCase nameCase) {
  return identifierFromName(pool.uniqueID(id), nameCase);
}

}  // namespace SwiftUIModel
