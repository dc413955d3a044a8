// Printing and building styled text in tests.
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "Highlight/StyledText.h"

namespace Highlight {

inline void PrintTo(const TextStyle& style, std::ostream* out) {
  *out << "{";
  if (style.foreground) *out << "fg " << style.foreground->hex();
  if (style.underline) *out << " underline";
  if (style.underlineColor) *out << " ul " << style.underlineColor->hex();
  if (style.font) {
    *out << " font '" << style.font->family << "'" << (style.font->bold ? " bold" : "")
         << (style.font->italic ? " italic" : "");
  }
  *out << "}";
}

inline void PrintTo(const StyledText& text, std::ostream* out) {
  std::size_t offset = 0;
  *out << "[";
  for (const StyledRun& run : text.runs()) {
    *out << "\"" << toUTF8(std::u16string_view(text.text()).substr(offset, run.length)) << "\" ";
    PrintTo(run.style, out);
    *out << "; ";
    offset += run.length;
  }
  *out << "]";
}

inline StyledText styled(std::vector<std::pair<std::u16string, TextStyle>> runs) {
  StyledText out;
  for (const auto& [text, style] : runs) out.append(text, style);
  return out;
}

}  // namespace Highlight
