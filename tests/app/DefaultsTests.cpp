// The persisted default settings: where they live, when they are written, and what happens to
// data that does not decode.
#include <gtest/gtest.h>

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

TEST(DefaultsStore, SuiteLivesUnderXDGConfigHomeOrHome) {
  AppTest::TemporaryFolder folder;
  {
    ScopedVariable xdg("XDG_CONFIG_HOME", folder.path().string());
    EXPECT_EQ(DefaultsStore::forSuite("net.quivane.devtools").folder(),
              folder.path() / "net.quivane.devtools");
  }
  ScopedVariable relative("XDG_CONFIG_HOME", "relative/path");
  ScopedVariable home("HOME", folder.path().string());
  EXPECT_EQ(DefaultsStore::forSuite("s").folder(), folder.path() / ".config" / "s");
}

TEST(DefaultsStore, RoundTripUnderATemporaryConfigHome) {
  AppTest::TemporaryFolder folder;
  ScopedVariable xdg("XDG_CONFIG_HOME", folder.path().string());
  AppTest::RecordingLogger log;
  auto config = SVGFigurerConfiguration::fresh();
  config.rootViewName = "Stored";
  config.indentUsing = IndentType::tabs;
  {
    ConfigurationDefaults defaults(DefaultsStore::forSuite(defaultsSuiteName), log);
    defaults.setDefaultConfiguration(config);
  }
  const auto file = folder.path() / "net.quivane.devtools" / "DefaultSVGFigurerConfig";
  EXPECT_EQ(AppTest::readFile(file), encodeJSON(config));
  ConfigurationDefaults reopened(DefaultsStore::forSuite(defaultsSuiteName), log);
  EXPECT_EQ(reopened.defaultConfiguration(), config);
  // Nothing but the one file is left behind by the atomic write.
  std::size_t entries = 0;
  for ([[maybe_unused]] const auto& entry :
       std::filesystem::directory_iterator(file.parent_path())) {
    ++entries;
  }
  EXPECT_EQ(entries, 1u);
}

struct StoredRow {
  const char* name;
  std::optional<std::string> data;
  bool logsDecodeError;
};

class StoredData : public testing::TestWithParam<StoredRow> {};

TEST_P(StoredData, WithoutAGoodRecordTheDefaultIsFresh) {
  Fixture fixture;
  if (GetParam().data) fixture.store().setData(defaultConfigurationKey, *GetParam().data);
  EXPECT_EQ(fixture.defaults.defaultConfiguration(), SVGFigurerConfiguration::fresh());
  EXPECT_EQ(fixture.log.contains(CoreS::LogLevel::error, "could not decode config:"),
            GetParam().logsDecodeError);
  EXPECT_EQ(fixture.log.lines.size(), GetParam().logsDecodeError ? 1u : 0u);
  // Nothing is written until something changes, so bad data stays until then.
  EXPECT_EQ(fixture.store().data(defaultConfigurationKey), GetParam().data);
}

INSTANTIATE_TEST_SUITE_P(Rows, StoredData,
                         testing::Values(StoredRow{"Absent", std::nullopt, false},
                                         StoredRow{"Empty", "", false},
                                         StoredRow{"NotJSON", "{", true},
                                         StoredRow{"MissingKeys", "{}", true}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(ConfigurationDefaults, OutsideChangeIsAdoptedAndWrittenBack) {
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
}

TEST(ConfigurationDefaults, ResetForgetsTheStoredRecord) {
  Fixture fixture;
  auto config = SVGFigurerConfiguration::fresh();
  config.useHexColor = true;
  fixture.defaults.setDefaultConfiguration(config);
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

}  // namespace
