// Conversions running on many threads at once must each give exactly what the same conversion
// gives alone: batch conversion shares nothing but read-only tables between documents. Under
// ThreadSanitizer these tests are also the race detector's workload.
//
// The threaded phase runs before any single-threaded conversion in the process, so that lazily
// built tables are first built under contention too.
#include <gtest/gtest.h>

#include <barrier>
#include <string>
#include <thread>
#include <vector>

#include "SVGConverter/SVGSwiftUIExporter.h"
#include "SVGParser/SVGParser.h"
#include "support/GoldenFiles.h"

namespace {

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

// Every recorded case (the threads_* ones hold extreme numbers, deep nesting, a stylesheet
// and report lines) and one text the reader refuses, each with two sets of settings.
std::vector<Job> jobs() {
  const auto directory = golden::directory("golden");
  std::vector<std::pair<std::string, std::string>> documents{{"unparsable", "<svg><g></svg>"}};
  for (const auto& name : golden::cases(directory)) {
    documents.emplace_back(name, golden::read(directory / (name + ".svg")));
  }
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

class ConcurrencyTest : public testing::TestWithParam<Schedule> {};

TEST_P(ConcurrencyTest, EveryThreadGetsTheSingleThreadedResult) {
  const std::vector<Job> all = jobs();
  ASSERT_GE(all.size(), 12u) << "no recorded cases found";

  // results[thread][round * jobs + job]
  const bool lockstep = GetParam() == Schedule::lockstep;
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
                         testing::Values(Schedule::staggered, Schedule::lockstep),
                         [](const testing::TestParamInfo<Schedule>& info) {
                           return info.param == Schedule::lockstep ? "lockstep" : "staggered";
                         });

}  // namespace
