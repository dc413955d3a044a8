// svgfigurer_corpus_check LIST_FILE CORPUS_ROOT [FOLDER...]
//
// Runs the engine (read, convert, generate with the default settings) over every path listed in
// LIST_FILE (one corpus-relative path a line; blank lines and lines starting with '#' are
// skipped) and over every file in each FOLDER, then prints one summary line. Built for the
// sanitizer builds: the point is that nothing crashes, leaks or races, so a document the reader
// refuses is counted, named on standard error, and is not an error.
//
// Exit status: 0 when every file was read; 1 when a file could not be read; 2 for wrong usage;
// 3 when the engine threw (it must not); 77 (skipped) when CORPUS_ROOT does not exist, after
// the folders have still been checked, so machines without the corpus keep the regressions.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "SVGConverter/SVGSwiftUIExporter.h"
#include "SVGParser/SVGParser.h"

namespace {

namespace fs = std::filesystem;

constexpr int exitUnreadable = 1, exitUsage = 2, exitThrew = 3, exitSkipped = 77;

struct Tally {
  std::size_t files = 0, converted = 0, failed = 0, unreadable = 0, threw = 0, reportLines = 0;
  double slowestSeconds = 0;
  std::string slowestFile;
};

std::optional<std::string> readBytes(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return std::nullopt;
  std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  if (in.bad()) return std::nullopt;
  return bytes;
}

void check(const fs::path& path, Tally& tally) {
  ++tally.files;
  const auto bytes = readBytes(path);
  if (!bytes) {
    std::fprintf(stderr, "cannot read %s\n", path.c_str());
    ++tally.unreadable;
    return;
  }
  const auto start = std::chrono::steady_clock::now();
  std::size_t lines = 0;
  const SVGParser::Report report([&lines](std::string_view) { ++lines; });
  try {
    if (const auto svg = SVGParser::parse(*bytes, report)) {
      // The exporter builds the view model itself, so this is the whole pipeline.
      const std::string swift = SVGSwiftUIExporter::generate(*svg, {}, report);
      if (swift.empty()) {
        std::fprintf(stderr, "%s: generated no text\n", path.c_str());
        ++tally.failed;
      } else {
        ++tally.converted;
      }
    } else {
      std::fprintf(stderr, "%s: could not parse SVG\n", path.c_str());
      ++tally.failed;
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s: the engine threw: %s\n", path.c_str(), error.what());
    ++tally.threw;
  }
  tally.reportLines += lines;
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
  if (elapsed.count() > tally.slowestSeconds) {
    tally.slowestSeconds = elapsed.count();
    tally.slowestFile = path.string();
  }
}

// The listed paths, in list order; nothing when the list cannot be read.
std::optional<std::vector<std::string>> readList(const fs::path& listFile) {
  const auto text = readBytes(listFile);
  if (!text) return std::nullopt;
  std::vector<std::string> entries;
  std::istringstream lines(*text);
  for (std::string line; std::getline(lines, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!line.empty() && line.front() != '#') entries.push_back(std::move(line));
  }
  return entries;
}

// Every regular file below `folder`, sorted so that runs compare; an absent folder has none.
std::vector<fs::path> filesBelow(const fs::path& folder) {
  std::vector<fs::path> files;
  std::error_code error;
  if (!fs::is_directory(folder, error)) return files;
  for (fs::recursive_directory_iterator it(folder, error), end; !error && it != end;
       it.increment(error)) {
    if (it->is_regular_file(error) && it->path().filename().string().front() != '.') {
      files.push_back(it->path());
    }
  }
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: %s LIST_FILE CORPUS_ROOT [FOLDER...]\n", argv[0]);
    return exitUsage;
  }
  const fs::path listFile = argv[1];
  const fs::path root = argv[2];
  Tally tally;

  std::error_code error;
  const bool haveCorpus = fs::is_directory(root, error);
  if (haveCorpus) {
    const auto entries = readList(listFile);
    if (!entries) {
      std::fprintf(stderr, "cannot read the list %s\n", listFile.c_str());
      return exitUnreadable;
    }
    for (const auto& entry : *entries) check(root / entry, tally);
  } else {
    std::fprintf(stderr, "no corpus at %s: the listed files are skipped\n", root.c_str());
  }
  for (int i = 3; i < argc; ++i) {
    for (const auto& file : filesBelow(argv[i])) check(file, tally);
  }

  std::printf("files %zu, converted %zu, failed %zu, unreadable %zu, report lines %zu", tally.files,
              tally.converted, tally.failed, tally.unreadable, tally.reportLines);
  if (!tally.slowestFile.empty()) {
    std::printf(", slowest %.3f s (%s)", tally.slowestSeconds, tally.slowestFile.c_str());
  }
  std::printf("\n");

  if (tally.threw > 0) return exitThrew;
  if (tally.unreadable > 0) return exitUnreadable;
  return haveCorpus ? 0 : exitSkipped;
}
