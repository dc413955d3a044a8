#include "Highlight/StyledText.h"

#include <algorithm>
#include <array>

namespace Highlight {

std::string RGBColor::hex() const {
  static constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string out = "#";
  for (std::uint8_t channel : {red, green, blue}) {
    out += kDigits[channel >> 4];
    out += kDigits[channel & 0xF];
  }
  return out;
}

void StyledText::append(std::u16string_view text, const TextStyle& style) {
  if (text.empty()) return;
  text_ += text;
  if (!runs_.empty() && runs_.back().style == style) {
    runs_.back().length += text.size();
  } else {
    runs_.push_back({text.size(), style});
  }
}

TextStyle StyledText::styleAt(std::size_t position) const {
  std::size_t start = 0;
  for (const StyledRun& run : runs_) {
    if (position < start + run.length) return run.style;
    start += run.length;
  }
  return {};
}

void StyledText::replace(std::size_t position, std::size_t length,
                         std::u16string_view replacement) {
  if (position > text_.size()) position = text_.size();
  length = std::min(length, text_.size() - position);
  const TextStyle style = position < text_.size() ? styleAt(position)
                          : runs_.empty()         ? TextStyle{}
                                                  : runs_.back().style;
  text_.replace(position, length, replacement);

  // Rebuild the runs around the edit: the part before, the new characters, the part after.
  std::vector<StyledRun> runs;
  runs.reserve(runs_.size() + 2);
  auto push = [&runs](std::size_t count, const TextStyle& s) {
    if (count == 0) return;
    if (!runs.empty() && runs.back().style == s) {
      runs.back().length += count;
    } else {
      runs.push_back({count, s});
    }
  };
  const std::size_t end = position + length;
  std::size_t start = 0;
  bool inserted = false;
  for (const StyledRun& run : runs_) {
    const std::size_t runEnd = start + run.length;
    push(std::min(runEnd, position) - std::min(start, position), run.style);
    if (!inserted && runEnd >= position) {
      push(replacement.size(), style);
      inserted = true;
    }
    push(std::max(runEnd, end) - std::max(start, end), run.style);
    start = runEnd;
  }
  if (!inserted) push(replacement.size(), style);
  runs_ = std::move(runs);
}

std::string toUTF8(std::u16string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = text[i];
    if (c >= 0xD800 && c <= 0xDBFF && i + 1 < text.size() && text[i + 1] >= 0xDC00 &&
        text[i + 1] <= 0xDFFF) {
      c = 0x10000 + ((c - 0xD800) << 10) + (text[i + 1] - 0xDC00);
      ++i;
    } else if (c >= 0xD800 && c <= 0xDFFF) {
      c = 0xFFFD;
    }
    if (c < 0x80) {
      out += static_cast<char>(c);
    } else if (c < 0x800) {
      out += static_cast<char>(0xC0 | (c >> 6));
      out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
      out += static_cast<char>(0xE0 | (c >> 12));
      out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
      out += static_cast<char>(0xF0 | (c >> 18));
      out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
      out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (c & 0x3F));
    }
  }
  return out;
}

std::u16string fromUTF8(std::string_view text) {
  std::u16string out;
  out.reserve(text.size());
  std::size_t i = 0;
  while (i < text.size()) {
    const auto lead = static_cast<unsigned char>(text[i]);
    std::size_t count = 0;
    char32_t c = 0;
    char32_t minimum = 0;
    if (lead < 0x80) {
      c = lead;
    } else if (lead >= 0xC2 && lead <= 0xDF) {
      count = 1, c = lead & 0x1F, minimum = 0x80;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
      count = 2, c = lead & 0x0F, minimum = 0x800;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
      count = 3, c = lead & 0x07, minimum = 0x10000;
    } else {
      out += u'\uFFFD';
      ++i;
      continue;
    }
    std::size_t taken = 1;
    bool valid = true;
    for (; taken <= count; ++taken) {
      if (i + taken >= text.size()) {
        valid = false;
        break;
      }
      const auto next = static_cast<unsigned char>(text[i + taken]);
      if ((next & 0xC0) != 0x80) {
        valid = false;
        break;
      }
      c = (c << 6) | (next & 0x3F);
    }
    if (!valid || c < minimum || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) {
      out += u'\uFFFD';
      i += taken;  // skip the bytes that looked like one sequence
      continue;
    }
    if (c >= 0x10000) {
      c -= 0x10000;
      out += static_cast<char16_t>(0xD800 + (c >> 10));
      out += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
    } else {
      out += static_cast<char16_t>(c);
    }
    i += taken;
  }
  return out;
}

}  // namespace Highlight
