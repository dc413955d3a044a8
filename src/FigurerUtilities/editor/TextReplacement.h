// The smallest middle replacement that turns one UTF-8 text into another, so that an outside
// write of a whole text touches only what differs.
#pragma once

#include <cstddef>
#include <string_view>

namespace FigurerUtilities {

// In bytes: replace `removed` bytes at `start` by the `inserted` bytes of the new text that
// begin there.
struct TextReplacement {
  std::size_t start = 0;
  std::size_t removed = 0;
  std::size_t inserted = 0;
  bool operator==(const TextReplacement&) const = default;
};

// Keeps the longest common prefix and then the longest common suffix, both cut between whole
// characters.
TextReplacement middleReplacement(std::string_view from, std::string_view to);

// The length in UTF-16 units (the editor's positions) of valid UTF-8 text.
std::size_t utf16Length(std::string_view utf8);

}  // namespace FigurerUtilities
