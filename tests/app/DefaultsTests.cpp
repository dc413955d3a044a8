// The persisted default settings: where they live, when they are written, and what happens to
// data that does not decode.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "AppTestSupport.h"

using namespace SVGFigurerApp;
using AppTest::Fixture;

namespace {

// Sets an environment variable for the life of the object.
class ScopedVariable {
 public:
  ScopedVariable(const char* name, const std::string& value) : name_(name) {
    if (const char* old = std::getenv(name)) old_ = old;
    ::setenv(name, value.c_str(), 1);
  }
  ~ScopedVariable() {
    if (old_) {
      ::setenv(name_, old_->c_str(), 1);
    } else {
      ::unsetenv(name_);
    }
  }

 private:
  const char* name_;
  std::optional<std::string> old_;
};

TEST(DefaultsStore, RoundTripUnderTheConfigHome) {
  AppTest::TemporaryFolder folder;
  AppTest::RecordingLogger log;
  auto config = SVGFigurerConfiguration::fresh();
  config.rootViewName = "Stored";
  config.indentUsing = IndentType::tabs;
  {
    ScopedVariable xdg("XDG_CONFIG_HOME", folder.path().string());
    ConfigurationDefaults defaults(DefaultsStore::forSuite(defaultsSuiteName), log);
    defaults.setDefaultConfiguration(config);
    EXPECT_EQ(DefaultsStore::forSuite(defaultsSuiteName).folder(),
              folder.path() / "net.quivane.devtools");
  }
  const auto file = folder.path() / "net.quivane.devtools" / "DefaultSVGFigurerConfig";
  EXPECT_EQ(AppTest::readFile(file), encodeJSON(config));
  // Nothing but the one file is left behind by the atomic write.
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(file.parent_path()), {}), 1);
  // A relative XDG_CONFIG_HOME does not count: the folder is under HOME then.
  ScopedVariable relative("XDG_CONFIG_HOME", "relative/path");
  ScopedVariable home("HOME", (folder.path() / "home").string());
  EXPECT_EQ(DefaultsStore::forSuite("s").folder(), folder.path() / "home" / ".config" / "s");
  std::filesystem::create_directories(folder.path() / "home" / ".config");
  std::filesystem::rename(file.parent_path(),
                          folder.path() / "home" / ".config" / defaultsSuiteName);
  ConfigurationDefaults reopened(DefaultsStore::forSuite(defaultsSuiteName), log);
  EXPECT_EQ(reopened.defaultConfiguration(), config);
}

TEST(ConfigurationDefaults, WithoutAGoodRecordTheDefaultIsFresh) {
  const std::pair<std::optional<std::string>, bool> rows[] = {
      {std::nullopt, false}, {"", false}, {"{", true}, {"{}", true}};
  for (const auto& [data, logsDecodeError] : rows) {
    Fixture fixture;
    if (data) fixture.store().setData(defaultConfigurationKey, *data);
    EXPECT_EQ(fixture.defaults.defaultConfiguration(), SVGFigurerConfiguration::fresh());
    EXPECT_EQ(fixture.log.contains(CoreS::LogLevel::error, "could not decode config:"),
              logsDecodeError)
        << data.value_or("(absent)");
    EXPECT_EQ(fixture.log.lines.size(), logsDecodeError ? 1u : 0u);
    // Nothing is written until something changes, so bad data stays until then.
    EXPECT_EQ(fixture.store().data(defaultConfigurationKey), data);
  }
}

TEST(ConfigurationDefaults, OutsideChangeIsAdoptedAndWrittenBackAndResetForgetsIt) {
  Fixture fixture;
  auto changed = SVGFigurerConfiguration::fresh();
  changed.indent = 4;
  ASSERT_EQ(fixture.defaults.defaultConfiguration(), SVGFigurerConfiguration::fresh());
  fixture.store().setData(defaultConfigurationKey,
                          R"({"rootViewName":"","indentUsing":" ","indent":4,"initType":"type",)"
                          R"("positioningType":"padding","maximumFractionDigits":4})");
  fixture.defaults.storeDidChange();
  EXPECT_EQ(fixture.defaults.defaultConfiguration(), changed);
  EXPECT_TRUE(fixture.log.contains(CoreS::LogLevel::log, "reloading default config"));
  EXPECT_EQ(fixture.log.count("writing default config"), 1u);
  EXPECT_EQ(*fixture.store().data(defaultConfigurationKey), encodeJSON(changed));
  // The write-back raises a further notification, which stops at the comparison.
  fixture.defaults.storeDidChange();
  EXPECT_EQ(fixture.log.count("reloading default config"), 1u);
  // A reset forgets the stored record.
  fixture.defaults.reset();
  EXPECT_FALSE(fixture.store().data(defaultConfigurationKey).has_value());
  EXPECT_EQ(fixture.defaults.defaultConfiguration(), SVGFigurerConfiguration::fresh());
}

TEST(AtomicFile, ReplacesTheWholeFileOrNothing) {
  AppTest::TemporaryFolder folder;
  const auto path = folder.path() / "out.swift";
  AppTest::writeFile(path, "old contents that are longer");
  EXPECT_FALSE(writeFileAtomically(path, "new"));
  EXPECT_EQ(AppTest::readFile(path), "new");
  const auto missing = folder.path() / "no-such-folder" / "x";
  EXPECT_TRUE(writeFileAtomically(missing, "x").has_value());
}

// Replacing a pipe or a device (such as /dev/null) by a plain file would break it for everyone.
TEST(AtomicFile, WritesIntoAPipeInsteadOfReplacingIt) {
  AppTest::TemporaryFolder folder;
  const auto pipe = folder.path() / "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  // The read end is open first, so the write neither blocks nor, if it wrongly replaced the
  // pipe, leaves this test waiting.
  const int reader = ::open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
  ASSERT_GE(reader, 0);
  EXPECT_FALSE(writeFileAtomically(pipe, "through the pipe"));
  char received[64] = {};
  const ssize_t count = ::read(reader, received, sizeof received);
  ::close(reader);
  EXPECT_EQ(std::string(received, count > 0 ? std::size_t(count) : 0), "through the pipe");
  struct stat status {};
  ASSERT_EQ(::stat(pipe.c_str(), &status), 0);
  EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

}  // namespace
