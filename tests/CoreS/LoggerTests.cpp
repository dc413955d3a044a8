#include <gtest/gtest.h>

#include <cstdlib>
#include <thread>

#include "CoreS/Logger.h"

namespace CoreS {
namespace {

// A stream that records what reaches it, or refuses every write.
class RecordingStream final : public WritableByteStreamType {
 public:
  explicit RecordingStream(std::string& sink, std::optional<Error> failure = std::nullopt)
      : sink_(sink), failure_(failure) {}
  std::optional<Error> write(std::initializer_list<std::string_view> buffers) override {
    if (failure_) return failure_;
    for (auto buffer : buffers) sink_ += buffer;
    return std::nullopt;
  }

 private:
  std::string& sink_;
  std::optional<Error> failure_;
};

struct ConsoleFixture {
  std::string out, err;
  Console2 console;
  explicit ConsoleFixture(LogLevel level)
      : console(std::make_unique<RecordingStream>(out), std::make_unique<RecordingStream>(err),
                level) {}
};

TEST(LogLevelTest, ReadsLevelsAsTheEnvironmentSpellsThem) {
  const std::pair<const char*, LogLevel> rows[] = {
      {"", LogLevel::error},    {"error", LogLevel::error},   {"ERROR", LogLevel::error},
      {"warn", LogLevel::warn}, {"WARNING", LogLevel::warn},  {"information", LogLevel::info},
      {"info", LogLevel::info}, {"trace", LogLevel::trace},   {"tracing", LogLevel::error},
      {"LOG", LogLevel::log},   {"logging", LogLevel::error}, {"errors", LogLevel::error},
  };
  for (const auto& [text, level] : rows) EXPECT_EQ(parseLogLevel(text), level) << text;
}

TEST(Console2Test, RoutesLinesByLevelWithTheirPrefixes) {
  struct Row {
    LogLevel consoleLevel;
    LogLevel lineLevel;
    const char* expectedOut;
    const char* expectedErr;
  };
  const Row rows[] = {
      {LogLevel::error, LogLevel::error, "", "ERROR: m\n"},
      {LogLevel::error, LogLevel::warn, "", ""},
      {LogLevel::error, LogLevel::log, "", ""},
      {LogLevel::warn, LogLevel::warn, "WARN:  m\n", ""},
      {LogLevel::log, LogLevel::log, "m\n", ""},
      {LogLevel::log, LogLevel::info, "", ""},
      {LogLevel::trace, LogLevel::info, "INFO:  m\n", ""},
      {LogLevel::trace, LogLevel::trace, "Trace: m\n", ""},
  };
  for (const auto& row : rows) {
    ConsoleFixture f(row.consoleLevel);
    f.console.primaryLog(row.lineLevel, "m", {});
    EXPECT_EQ(f.out, row.expectedOut);
    EXPECT_EQ(f.err, row.expectedErr);
  }
}

TEST(Console2Test, WritesValuesAfterOneBlankEachWithNilForAbsent) {
  ConsoleFixture f(LogLevel::log);
  const std::optional<int> absent;
  const std::optional<std::string> present = "x";
  f.console.log("rebuilding SVG ...", 1, absent, present, std::string("s"), 2.5, true);
  f.console.log(std::optional<int>(42));  // an optional object alone
  f.console.log(std::optional<int>());
  EXPECT_EQ(f.out, "rebuilding SVG ... 1 <nil> x s 2.5 true\n42\n\n");
}

TEST(Console2Test, FilteredCallsNeverRunTheProducer) {
  ConsoleFixture f(LogLevel::error);
  bool ran = false;
  f.console.trace([&] {
    ran = true;
    return std::string("expensive");
  });
  EXPECT_FALSE(ran);
  f.console.error([&] {
    ran = true;
    return std::string("needed");
  });
  EXPECT_TRUE(ran);
  EXPECT_EQ(f.err, "ERROR: needed\n");
}

TEST(Console2Test, AFailedWriteIsAnnouncedAndLoggingGoesOn) {
  std::string unused;
  Console2 console(
      std::make_unique<RecordingStream>(unused, WritableByteStreamType::Error::Closed),
      std::make_unique<RecordingStream>(unused, WritableByteStreamType::Error::WriteFailed),
      LogLevel::log);
  testing::internal::CaptureStdout();
  console.log("lost");
  console.error("also lost");
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "ERROR LOG WRITE FAILED: Closed\nERROR LOG WRITE FAILED: WriteFailed\n");
}

TEST(FileOutputStreamTest, AClosedHandleRefusesWrites) {
  FileOutputStream stream(nullptr);
  EXPECT_EQ(stream.write({"x"}), WritableByteStreamType::Error::Closed);
}

// The console shows its standard error level only when it differs; a module shows its parent.
TEST(DescriptionTest, NamesTheLevels) {
  ConsoleFixture quiet(LogLevel::error);
  EXPECT_EQ(quiet.console.description(), "<ConsoleLog: error>");
  ConsoleFixture loud(LogLevel::trace);
  EXPECT_EQ(loud.console.description(), "<ConsoleLog: trace error>");
  EXPECT_EQ(ModuleLogger(quiet.console, "Foo", LogLevel::info).description(),
            "<ModLog[Foo]: info parent<ConsoleLog: error>>");
}

class ModuleLoggerTest : public testing::Test {
 protected:
  void TearDown() override {
    unsetenv("LOGLEVEL_FOO");
    unsetenv("LOGLEVEL_BAR");
  }
};

TEST_F(ModuleLoggerTest, LevelComesFromItsVariableOrTheParent) {
  ConsoleFixture f(LogLevel::warn);
  EXPECT_EQ(ModuleLogger(f.console, "Foo").logLevel(), LogLevel::warn);
  setenv("LOGLEVEL_FOO", "trace", 1);
  EXPECT_EQ(ModuleLogger(f.console, "Foo").logLevel(), LogLevel::trace);
  EXPECT_EQ(ModuleLogger(f.console, "  foo \n").logLevel(), LogLevel::trace);
  setenv("LOGLEVEL_FOO", "", 1);
  EXPECT_EQ(ModuleLogger(f.console, "Foo").logLevel(), LogLevel::warn);
  EXPECT_EQ(ModuleLogger(f.console, "Foo", LogLevel::info).logLevel(), LogLevel::info);
}

TEST_F(ModuleLoggerTest, NothingPassesUnlessBothLevelsAllowIt) {
  setenv("LOGLEVEL_FOO", "trace", 1);
  ConsoleFixture f(LogLevel::error);
  ModuleLogger module(f.console, "Foo");
  module.trace("hidden");
  module.error("hidden too");  // reaches the console at `log`, which an error console drops
  EXPECT_EQ(f.out + f.err, "");
}

// Module errors arrive as plain lines on standard output, their prefixes lined up with the
// widest registered name.
TEST_F(ModuleLoggerTest, PrefixesLineUpWithTheWidestRegisteredName) {
  moduleLogger("AVeryLongModuleNameForAlignment");
  ConsoleFixture f(LogLevel::log);
  ModuleLogger module(f.console, "Foo", LogLevel::log);
  module.error("broken", 7);
  EXPECT_EQ(f.out, "Foo: " + std::string(longestModuleNameLength() - 3, ' ') + "broken 7\n");
  EXPECT_EQ(f.err, "");
  EXPECT_GE(longestModuleNameLength(), std::string("AVeryLongModuleNameForAlignment").size());
}

TEST(ModuleRegistryTest, ConcurrentFirstRequestsShareOneLogger) {
  for (int round = 0; round < 20; ++round) {
    const std::string name = "Concurrent" + std::to_string(round);
    ModuleLogger* seen[4] = {};
    std::thread threads[4];
    for (int i = 0; i < 4; ++i) threads[i] = std::thread([&, i] { seen[i] = &moduleLogger(name); });
    for (auto& t : threads) t.join();
    for (auto* logger : seen) EXPECT_EQ(logger, seen[0]);
    EXPECT_EQ(seen[0]->prefix(), name);
  }
}

}  // namespace
}  // namespace CoreS
