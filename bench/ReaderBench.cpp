// Reader throughput on a large path-heavy document, next to a bare expat pass over the same
// bytes: the reader should stay within a small factor of the XML parser alone.
#include <benchmark/benchmark.h>

#include <string>

#include "BenchSupport.h"
#include "SVGParser/SVGParser.h"
#include "SyntheticSVG.h"

namespace {

void expatOnly(benchmark::State& state, const std::string& text) {
  for (auto _ : state) {
    if (bench::expatElementCount(text) < 0) return state.SkipWithError("expat failed");
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

void BM_ExpatOnly_Rects200k(benchmark::State& state) {
  expatOnly(state, bench::rectsSVG());
}
BENCHMARK(BM_ExpatOnly_Rects200k)->Unit(benchmark::kMillisecond);

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
