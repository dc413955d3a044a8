// The whole road of one edit: SVG text through the reader, the conversion and the exporter to
// the final source text, as `generateSwift` and a document rebuild run it. Targets: one rebuild
// of the default document within 50 us; the large documents below.
#include <benchmark/benchmark.h>

#include <string>

#include "BenchSupport.h"
#include "SVGFigurerApp/SVGFigurerApp.h"
#include "SyntheticSVG.h"

namespace {

using SVGFigurerApp::SVGFigurerConfiguration;

using bench::SilentLogger;

void BM_EndToEnd_LargePath(benchmark::State& state) {
  const std::string& text = bench::largePathSVG();
  SilentLogger log;
  const auto config = SVGFigurerConfiguration::fresh();
  for (auto _ : state) {
    auto result = SVGFigurerApp::generateSwift(text, config, log);
    if (result.failed) {
      state.SkipWithError("generation failed");
      break;
    }
    benchmark::DoNotOptimize(result);
  }
  state.SetBytesProcessed(std::int64_t(state.iterations()) * std::int64_t(text.size()));
}
BENCHMARK(BM_EndToEnd_LargePath)->Unit(benchmark::kMillisecond);

// The road of the command-line tool: the text is handed on in pieces as it is written and
// never held whole.
void streamedEndToEnd(benchmark::State& state, const std::string& text) {
  SilentLogger log;
  const auto config = SVGFigurerConfiguration::fresh();
  std::size_t written = 0;
  const auto sink = [&](std::string_view piece) { written += piece.size(); };
  for (auto _ : state) {
    if (SVGFigurerApp::generateSwift(text, config, log, {}, sink)) {
      state.SkipWithError("generation failed");
      break;
    }
  }
  benchmark::DoNotOptimize(written);
  state.SetBytesProcessed(std::int64_t(state.iterations()) * std::int64_t(text.size()));
}

// Targets: at least 50 MB/s, and within 5x of BM_ExpatOnly_50MB.
void BM_EndToEnd_50MB_Streamed(benchmark::State& state) {
  streamedEndToEnd(state, bench::hugePathSVG());
}
BENCHMARK(BM_EndToEnd_50MB_Streamed)->Unit(benchmark::kMillisecond)->Iterations(3);

// The shape-heavy worst case, 200,000 unit squares (5.6 MB). Target: within 15x of
// BM_ExpatOnly_Rects200k.
void BM_EndToEnd_Rects200k_Streamed(benchmark::State& state) {
  streamedEndToEnd(state, bench::rectsSVG());
}
BENCHMARK(BM_EndToEnd_Rects200k_Streamed)->Unit(benchmark::kMillisecond);

// One rebuild per iteration: the document's SVG alternates between two texts that differ by a
// final line feed, so every write rebuilds and pushes the text into the unedited source.
void rebuildLatency(benchmark::State& state, const std::string& svg) {
  SilentLogger log;
  SVGFigurerApp::ConfigurationDefaults defaults(
      SVGFigurerApp::DefaultsStore("/nonexistent/svgfigurer-bench"), log);
  SVGFigurerApp::PendingDocumentQueue pending;
  SVGFigurerApp::DocumentEnvironment environment{&log, &defaults, &pending, {}};
  SVGFigurerApp::SVGFigurerDocument document(svg, "", environment);
  const std::string variants[2] = {svg + "\n", svg};
  std::size_t next = 0;
  for (auto _ : state) {
    document.setSVGString(variants[next]);
    next ^= 1;
    benchmark::DoNotOptimize(document.swift().data());
  }
  if (document.rebuildFailed()) state.SkipWithError("rebuild failed");
  state.SetBytesProcessed(std::int64_t(state.iterations()) * std::int64_t(svg.size()));
}

void BM_Rebuild_DefaultDocument(benchmark::State& state) {
  rebuildLatency(state, std::string(SVGFigurerApp::defaultDocumentSVG));
}
BENCHMARK(BM_Rebuild_DefaultDocument)->Unit(benchmark::kMicrosecond);

void BM_Rebuild_IconSet100KB(benchmark::State& state) {
  rebuildLatency(state, bench::iconSetSVG());
}
BENCHMARK(BM_Rebuild_IconSet100KB)->Unit(benchmark::kMillisecond);

}  // namespace
