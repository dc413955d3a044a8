// Reader throughput on a large path-heavy document, next to a bare expat pass over the same
// bytes: the reader should stay within a small factor of the XML parser alone.
#include <benchmark/benchmark.h>
#include <expat.h>

#include <random>
#include <string>

#include "SVGParser/SVGParser.h"
#include "SyntheticSVG.h"

namespace {

// The floor every reader stands on: expat's own pass with handlers that do nothing.
void expatOnly(benchmark::State& state, const std::string& text) {
  for (auto _ : state) {
    XML_Parser parser = XML_ParserCreate(nullptr);
    std::size_t elements = 0;
    XML_SetUserData(parser, &elements);
    XML_SetElementHandler(
        parser,
        [](void* user, const XML_Char*, const XML_Char**) { ++*static_cast<std::size_t*>(user); },
        [](void*, const XML_Char*) {});
    XML_SetCharacterDataHandler(parser, [](void*, const XML_Char*, int) {});
    const bool ok =
        XML_Parse(parser, text.data(), static_cast<int>(text.size()), 1) == XML_STATUS_OK;
    XML_ParserFree(parser);
    if (!ok) state.SkipWithError("expat failed");
    benchmark::DoNotOptimize(elements);
  }
  state.SetBytesProcessed(std::int64_t(state.iterations()) * std::int64_t(text.size()));
}
void BM_ExpatOnly(benchmark::State& state) {
  expatOnly(state, bench::largePathSVG());
}
BENCHMARK(BM_ExpatOnly)->Unit(benchmark::kMillisecond);

void BM_ExpatOnly_50MB(benchmark::State& state) {
  expatOnly(state, bench::hugePathSVG());
}
BENCHMARK(BM_ExpatOnly_50MB)->Unit(benchmark::kMillisecond);

void BM_Reader(benchmark::State& state) {
  const std::string& text = bench::largePathSVG();
  const SVGParser::Report silent;
  for (auto _ : state) {
    auto svg = SVGParser::parse(text, silent);
    if (!svg) state.SkipWithError("reader failed");
    benchmark::DoNotOptimize(svg);
  }
  state.SetBytesProcessed(std::int64_t(state.iterations()) * std::int64_t(text.size()));
}
BENCHMARK(BM_Reader)->Unit(benchmark::kMillisecond);

}  // namespace
