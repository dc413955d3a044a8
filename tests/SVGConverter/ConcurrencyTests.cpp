// Conversions running on many threads at once must each give exactly what the same conversion
// gives alone: batch conversion shares nothing but read-only tables between documents. Under
// ThreadSanitizer these tests are also the race detector's workload.
//
// The threaded phase runs before any single-threaded conversion in the process, so that lazily
// built tables are first built under contention too.
#include <gtest/gtest.h>

#include <atomic>
#include <barrier>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "SVGConverter/SVGSwiftUIExporter.h"
#include "SVGParser/SVGParser.h"

namespace {

namespace fs = std::filesystem;

constexpr int threadCount = 8;
constexpr int rounds = 6;

struct Job {
  std::string name;
  std::string svg;
  SVGSwiftUIExporter::Config config;
};

struct Outcome {
  bool parsed = false;
  std::string swift;
  std::vector<std::string> reportLines;
  bool operator==(const Outcome&) const = default;
};

Outcome run(const Job& job) {
  Outcome outcome;
  const SVGParser::Report report(
      [&outcome](std::string_view line) { outcome.reportLines.emplace_back(line); });
  if (const auto svg = SVGParser::parse(job.svg, report)) {
    outcome.parsed = true;
    outcome.swift = SVGSwiftUIExporter::generate(*svg, job.config, report);
  }
  return outcome;
}

fs::path goldenDirectory() {
  if (const char* root = std::getenv("SVGFIGURER_SOURCE_DIR")) {
    return fs::path(root) / "tests/golden";
  }
  return fs::path("golden");
}

// Settings that move every number through other digit counts and pick the other emitters.
SVGSwiftUIExporter::Config otherConfig() {
  SVGSwiftUIExporter::Config config;
  config.maximumFractionDigits = 9;
  config.useThousandsSeparator = false;
  config.preferInitOverType = false;
  config.positionUsingPadding = false;
  config.inlineFiltersIfPossible = false;
  config.exportHexColorExtension = true;
  config.infoComments = false;
  return config;
}

// Documents beyond the recorded cases: numbers only the slow formatting path can print, deep
// nesting, a stylesheet, report lines, and text the reader refuses.
std::vector<std::pair<std::string, std::string>> generatedDocuments() {
  std::vector<std::pair<std::string, std::string>> documents;
  documents.emplace_back("extreme_numbers",
                         "<svg width='1e21' height='0.000000123'>"
                         "<path d='M1e20 -3.5e-9 L123456789012.987654321 7 C1e300 2 3 4 5 6 Z'"
                         " stroke='red' stroke-width='1e-320'/>"
                         "<rect x='-1e308' y='NaN' width='Infinity' height='98765.4321'/></svg>");
  std::string nested = "<svg>";
  for (int i = 0; i < 60; ++i) {
    nested += "<g transform='rotate(" + std::to_string(i * 7) + ") translate(" + std::to_string(i) +
              ".25 3)' opacity='0.9'>";
  }
  nested += "<circle cx='1' cy='2' r='3' fill='#0a0b0c'/>";
  for (int i = 0; i < 60; ++i) nested += "</g>";
  nested += "</svg>";
  documents.emplace_back("nested_groups", nested);
  std::string styled = "<svg viewBox='0 0 100 100'><style>";
  for (int i = 0; i < 40; ++i) {
    styled += ".c" + std::to_string(i) + "{fill:rgb(" + std::to_string(i * 6) + ",20,30);" +
              "stroke-width:" + std::to_string(i) + ".5}";
  }
  styled += "</style>";
  for (int i = 0; i < 40; ++i) {
    styled += "<ellipse class='c" + std::to_string(i) + "' cx='" + std::to_string(i) +
              "' cy='5' rx='2' ry='3'/>";
  }
  styled += "<text x='3' y='4'>Hello <tspan font-weight='bold'>world</tspan></text></svg>";
  documents.emplace_back("stylesheet", styled);
  documents.emplace_back("reports",
                         "<svg><mask id='m'/><use href='#m'/><path d='M 0 0 L 1 x'/>"
                         "<rect fill='rgb(1,2)' width='3' height='4'/>"
                         "<circle fill='url(#missing)' r='2'/></svg>");
  documents.emplace_back("fragment", "<polygon points='0,0 10,0 5,8.5'/>");
  documents.emplace_back("unparsable", "<svg><g></svg>");
  return documents;
}

std::vector<Job> jobs() {
  std::vector<std::pair<std::string, std::string>> documents;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(goldenDirectory(), error)) {
    if (entry.path().extension() != ".svg") continue;
    std::ifstream in(entry.path(), std::ios::binary);
    std::stringstream text;
    text << in.rdbuf();
    documents.emplace_back(entry.path().stem().string(), text.str());
  }
  for (auto& document : generatedDocuments()) documents.push_back(std::move(document));

  std::vector<Job> all;
  for (const auto& [name, svg] : documents) {
    all.push_back({name + "/default", svg, {}});
    all.push_back({name + "/other", svg, otherConfig()});
  }
  return all;
}

// How the threads walk the job list. Staggered: each thread starts at its own job, so different
// documents meet. Lockstep: all threads take the same job together, so the very same code and
// tables are used at the same moment.
enum class Schedule { staggered, lockstep };

struct ScheduleCase {
  const char* name;
  Schedule schedule;
};

class ConcurrencyTest : public testing::TestWithParam<ScheduleCase> {};

TEST_P(ConcurrencyTest, EveryThreadGetsTheSingleThreadedResult) {
  const std::vector<Job> all = jobs();
  ASSERT_GE(all.size(), 2 * generatedDocuments().size() + 2) << "no recorded cases found";

  // results[thread][round * jobs + job]
  const bool lockstep = GetParam().schedule == Schedule::lockstep;
  std::vector<std::vector<Outcome>> results(threadCount);
  std::barrier sync(threadCount);
  std::vector<std::thread> threads;
  for (int t = 0; t < threadCount; ++t) {
    threads.emplace_back([&, t] {
      auto& mine = results[static_cast<std::size_t>(t)];
      mine.resize(rounds * all.size());
      for (int round = 0; round < rounds; ++round) {
        const std::size_t offset = lockstep ? 0 : static_cast<std::size_t>(t * 3 + round);
        sync.arrive_and_wait();
        for (std::size_t step = 0; step < all.size(); ++step) {
          if (lockstep) sync.arrive_and_wait();
          const std::size_t job = (step + offset) % all.size();
          mine[round * all.size() + job] = run(all[job]);
        }
      }
    });
  }
  for (auto& thread : threads) thread.join();

  std::vector<Outcome> expected;
  for (const auto& job : all) expected.push_back(run(job));
  for (std::size_t job = 0; job < all.size(); ++job) {
    int differing = 0;
    for (const auto& mine : results) {
      for (int round = 0; round < rounds; ++round) {
        if (!(mine[round * all.size() + job] == expected[job])) ++differing;
      }
    }
    EXPECT_EQ(differing, 0) << all[job].name << ": " << differing << " of " << threadCount * rounds
                            << " threaded runs differ";
  }
  // The cases must exercise what they claim: the refused text is refused, the rest converts.
  for (std::size_t job = 0; job < all.size(); ++job) {
    EXPECT_EQ(expected[job].parsed, !all[job].name.starts_with("unparsable/")) << all[job].name;
  }
}

INSTANTIATE_TEST_SUITE_P(Schedules, ConcurrencyTest,
                         testing::Values(ScheduleCase{"staggered", Schedule::staggered},
                                         ScheduleCase{"lockstep", Schedule::lockstep}),
                         [](const testing::TestParamInfo<ScheduleCase>& info) {
                           return std::string(info.param.name);
                         });

}  // namespace
