// What the benchmarks share: a logger that writes nothing and the bare expat pass.
#pragma once

#include <expat.h>

#include <cstddef>
#include <string>

#include "CoreS/Logger.h"

namespace bench {

// Log calls still cost their level check, as they do in the app; nothing is written.
class SilentLogger final : public CoreS::Logger {
 public:
  CoreS::LogLevel logLevel() const override { return CoreS::LogLevel::error; }
  void primaryLog(CoreS::LogLevel, CoreS::MessageProducer,
                  std::span<const CoreS::LogValue>) override {}
  std::string description() const override { return "SilentLogger"; }
};

// The floor every reader stands on: expat's own pass with handlers that only count elements.
// Returns the count, or -1 when expat refused the text.
inline long expatElementCount(const std::string& text) {
  XML_Parser parser = XML_ParserCreate(nullptr);
  long elements = 0;
  XML_SetUserData(parser, &elements);
  XML_SetElementHandler(
      parser, [](void* user, const XML_Char*, const XML_Char**) { ++*static_cast<long*>(user); },
      [](void*, const XML_Char*) {});
  XML_SetCharacterDataHandler(parser, [](void*, const XML_Char*, int) {});
  const bool ok = XML_Parse(parser, text.data(), static_cast<int>(text.size()), 1) == XML_STATUS_OK;
  XML_ParserFree(parser);
  return ok ? elements : -1;
}

}  // namespace bench
