// Small files: the icon part of the corpus converted in memory by one thread, file by file, as
// the batch command does minus the writes, next to a bare expat pass over the same files. Here
// per-file set-up (parsers, formatters, loggers, configuration) weighs as much as the text.
// Target: within 4x of expat. Needs the corpus (SVGFIGURER_CORPUS, default ../shared/corpus).
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "BenchSupport.h"
#include "SVGFigurerApp/SVGFigurerApp.h"

namespace {

const std::vector<std::string>& iconFiles() {
  static const std::vector<std::string> files = [] {
    const char* root = std::getenv("SVGFIGURER_CORPUS");
    const std::filesystem::path folder =
        std::filesystem::path(root ? root : SVGFIGURER_SOURCE_DIR "/../shared/corpus") / "icons";
    std::vector<std::filesystem::path> paths;
    std::error_code error;
    for (std::filesystem::recursive_directory_iterator it(folder, error), end; !error && it != end;
         it.increment(error)) {
      if (it->is_regular_file() && it->path().extension() == ".svg") paths.push_back(it->path());
    }
    std::sort(paths.begin(), paths.end());
    std::vector<std::string> texts;
    for (const auto& path : paths) {
      std::ifstream in(path, std::ios::binary);
      std::ostringstream text;
      text << in.rdbuf();
      texts.push_back(std::move(text).str());
    }
    return texts;
  }();
  return files;
}

std::int64_t totalBytes(const std::vector<std::string>& files) {
  std::int64_t bytes = 0;
  for (const auto& file : files) bytes += std::int64_t(file.size());
  return bytes;
}

void expatPass(benchmark::State& state, const std::vector<std::string>& files) {
  for (auto _ : state) {
    for (const auto& text : files) {
      if (bench::expatElementCount(text) < 0) return state.SkipWithError("expat failed");
    }
  }
  state.SetBytesProcessed(std::int64_t(state.iterations()) * totalBytes(files));
}

void generatePass(benchmark::State& state, const std::vector<std::string>& files) {
  bench::SilentLogger log;
  const SVGParser::Report silent;
  const auto config = SVGFigurerApp::SVGFigurerConfiguration::fresh();
  for (auto _ : state) {
    for (const auto& text : files) {
      auto result = SVGFigurerApp::generateSwift(text, config, log, silent);
      benchmark::DoNotOptimize(result);
    }
  }
  state.SetBytesProcessed(std::int64_t(state.iterations()) * totalBytes(files));
}

void BM_ExpatOnly_IconSet(benchmark::State& state) {
  if (iconFiles().empty()) return state.SkipWithError("no corpus icons; set SVGFIGURER_CORPUS");
  expatPass(state, iconFiles());
}
BENCHMARK(BM_ExpatOnly_IconSet)->Unit(benchmark::kMillisecond);

void BM_Generate_IconSet(benchmark::State& state) {
  if (iconFiles().empty()) return state.SkipWithError("no corpus icons; set SVGFIGURER_CORPUS");
  generatePass(state, iconFiles());
}
BENCHMARK(BM_Generate_IconSet)->Unit(benchmark::kMillisecond);

}  // namespace
