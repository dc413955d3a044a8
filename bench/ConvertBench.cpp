// Conversion throughput: the tree of the large path-heavy document into the view model, and
// the reader and the conversion together, as one rebuild of a document runs them.
#include <benchmark/benchmark.h>

#include <string>

#include "SVGConverter/SVGSwiftUIFigurer.h"
#include "SVGParser/SVGParser.h"
#include "SyntheticSVG.h"

namespace {

void BM_Convert(benchmark::State& state) {
  const std::string& text = bench::largePathSVG();
  const SVGParser::Report silent;
  const auto svg = SVGParser::parse(text, silent);
  if (!svg) {
    state.SkipWithError("reader failed");
    return;
  }
  for (auto _ : state) {
    auto model = SVGSwiftUIFigurer::makeModel(*svg, "Bench", silent);
    benchmark::DoNotOptimize(model);
  }
  state.SetBytesProcessed(std::int64_t(state.iterations()) * std::int64_t(text.size()));
}
BENCHMARK(BM_Convert)->Unit(benchmark::kMillisecond);

void BM_ReadAndConvert(benchmark::State& state) {
  const std::string& text = bench::largePathSVG();
  const SVGParser::Report silent;
  for (auto _ : state) {
    auto svg = SVGParser::parse(text, silent);
    if (!svg) {
      state.SkipWithError("reader failed");
      break;
    }
    auto model = SVGSwiftUIFigurer::makeModel(*svg, "Bench", silent);
    benchmark::DoNotOptimize(model);
  }
  state.SetBytesProcessed(std::int64_t(state.iterations()) * std::int64_t(text.size()));
}
BENCHMARK(BM_ReadAndConvert)->Unit(benchmark::kMillisecond);

}  // namespace
