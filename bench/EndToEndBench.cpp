// The whole road of one edit: SVG text through the reader, the conversion and the exporter to
// the final source text, as `generateSwift` and a document rebuild run it. Targets: one rebuild
// of the default document within 50 us; the large documents below.
#include <benchmark/benchmark.h>

#include <string>

#include "SVGFigurerApp/SVGFigurerApp.h"
#include "SyntheticSVG.h"

namespace {

using SVGFigurerApp::SVGFigurerConfiguration;

// Log calls still cost their level check, as they do in the app; nothing is written.
class SilentLogger final : public CoreS::Logger {
 public:
  CoreS::LogLevel logLevel() const override { return CoreS::LogLevel::error; }
  void primaryLog(CoreS::LogLevel, CoreS::MessageProducer,
                  std::span<const CoreS::LogValue>) override {}
  std::string description() const override { return "SilentLogger"; }
};

// About 100 KB in the shape icon sets take: a grid of 24 by 24 glyphs, each a group holding a
// few paths of relative curves, with shared classes in a stylesheet.
const std::string& iconSetSVG() {
  static const std::string text = [] {
    std::string svg =
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"960\" height=\"960\" "
        "viewBox=\"0 0 960 960\">\n<style>.a{fill:#223344}.b{fill:none;stroke:#cc5500;"
        "stroke-width:1.5}</style>\n";
    for (int i = 0; svg.size() < 100 * 1024; ++i) {
      const int x = (i % 40) * 24;
      const int y = (i / 40) * 24;
      const double s = 1 + (i % 7) * 0.25;
      svg += "<g id=\"icon" + std::to_string(i) + "\" transform=\"translate(" + std::to_string(x) +
             " " + std::to_string(y) + ")\">\n";
      svg +=
          "  <path class=\"a\" d=\"M12 2c-3.3 0-6 2.7-6 6v5l-2 3v1h16v-1l-2-3v-5c0-3.3-2.7-6-6"
          "-6zm-2 17h4c0 1.1-.9 2-2 2s-2-.9-2-2z\"/>\n";
      svg += "  <path class=\"b\" d=\"M3 " + std::to_string(s) +
             "a9 9 0 1 0 18 0a9 9 0 1 0-18 "
             "0zm9 4.5v" +
             std::to_string(s) + "l3.2 1.8\"/>\n";
      svg += "  <circle cx=\"18\" cy=\"6\" r=\"" + std::to_string(s) + "\" fill=\"red\"/>\n</g>\n";
    }
    return svg + "</svg>\n";
  }();
  return text;
}

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
// never held whole. Targets: at least 50 MB/s, and within 5x of BM_ExpatOnly_50MB.
void BM_EndToEnd_50MB_Streamed(benchmark::State& state) {
  const std::string& text = bench::hugePathSVG();
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
BENCHMARK(BM_EndToEnd_50MB_Streamed)->Unit(benchmark::kMillisecond)->Iterations(3);

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
  rebuildLatency(state, iconSetSVG());
}
BENCHMARK(BM_Rebuild_IconSet100KB)->Unit(benchmark::kMillisecond);

}  // namespace
