// Path data from arbitrary bytes: the reader must return, never crash, and every command it
// gives must leave the slots its kind does not use at 0 and hold arc flags as 1 or 0.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "SVGParser/SVG.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using Command = SVG::Command;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const Command::ParseResult result = Command::parse(text);
  if (result.error) {
    // Every error names what stopped the reader; the description must never be empty.
    if (result.error->description().empty()) std::abort();
    return 0;
  }
  // Every command, the one the end of text emits included, stems from a byte of its own.
  if (result.commands.size() > size) std::abort();
  for (const Command& command : result.commands) {
    const int count = Command::argumentCount(command.kind);
    for (int i = count; i < 7; ++i) {
      if (command.values[i] != 0.0) std::abort();
    }
    if (command.kind == Command::Kind::A || command.kind == Command::Kind::a) {
      for (int flag : {3, 4}) {
        if (command.values[flag] != 0.0 && command.values[flag] != 1.0) std::abort();
      }
    }
    if (command.description().empty()) std::abort();
  }
  return 0;
}
