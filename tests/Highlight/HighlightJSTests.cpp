#include "Highlight/HighlightJS.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <future>

#include "FigurerUtilities/Transcript.h"
#include "TestSupport.h"
#include "support/CapturingLogger.h"

namespace Highlight {
namespace {

using CoreS::LogLevel;

// Writes a script into a temporary folder and gives its path.
struct ScriptDir : QTemporaryDir {
  std::string write(const char* content) {
    QFile file(filePath("s.js"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName().toStdString();
  }
};

std::shared_ptr<HighlightJS> loadScript(const std::string& path, CapturingLogger& logger) {
  return HighlightJS::load({path, &logger, inlineExecutor()});
}

TEST(HighlightJSLoadTest, AFailedLoadGivesNoHighlighterAndLogsOneLine) {
  const struct {
    const char* script;  // null: the path is a directory; "": the path does not exist
    LogLevel level;
    std::string expectedStart;
  } rows[] = {
      {"", LogLevel::log, "highlight.min.js not available, no code highlighting"},
      {"var = ;", LogLevel::error, "Highlight.js script evaluation failed: SyntaxError"},
      {"throw new Error('boom');", LogLevel::error,
       "Highlight.js script evaluation failed: Error: boom"},
      {"var hljs = 1;", LogLevel::error, "could not locate Highlight.js in JSContext"},
      {nullptr, LogLevel::error, "could not load highlight.js at: /"},
  };
  for (const auto& row : rows) {
    ScriptDir dir;
    CapturingLogger logger;
    const std::string path = !row.script    ? dir.path().toStdString()
                             : !*row.script ? "/nonexistent/highlight.min.js"
                                            : dir.write(row.script);
    EXPECT_EQ(loadScript(path, logger), nullptr) << row.expectedStart;
    const auto lines = logger.lines();
    ASSERT_EQ(lines.size(), 1u) << row.expectedStart;
    EXPECT_EQ(lines[0].level, row.level);
    EXPECT_TRUE(lines[0].text.starts_with(row.expectedStart)) << lines[0].text;
  }
}

class FakeHighlightJSTest : public testing::Test {
 protected:
  void SetUp() override {
    highlighter =
        loadScript(Transcript::testsPath("Highlight/data/fake-highlight.js").string(), logger);
    ASSERT_NE(highlighter, nullptr);
    highlighter->waitUntilIdle();
  }
  std::optional<StyledText> run(std::u16string text, std::optional<std::string> language) {
    return highlighter->highlightAndWait(std::move(text), std::move(language),
                                         HighlightJSTheme::light());
  }
  std::vector<LoggedLine> errors() const {
    std::vector<LoggedLine> out;
    for (const auto& line : logger.lines()) {
      if (line.level == LogLevel::error) out.push_back(line);
    }
    return out;
  }

  CapturingLogger logger;
  std::shared_ptr<HighlightJS> highlighter;
};

TEST_F(FakeHighlightJSTest, ListsLanguagesLowerCasedAndConvertsTheScriptsSpans) {
  EXPECT_EQ(highlighter->languages(), (std::set<std::string>{"swift", "xml"}));
  EXPECT_EQ(logger.lines(),
            (std::vector<LoggedLine>{{LogLevel::log, "Highlight languages: swift, xml"}}));
  const TextStyle keyword{RGBColor::fromHex(0x444444), false, {}, ThemeFont{"", {}, true}};
  const TextStyle plain{RGBColor::fromHex(0x444444), false, {}, ThemeFont{}};
  EXPECT_EQ(run(u"let", "swift"), styled({{u"let", keyword}, {u"<", plain}}));
  // No language, or an empty one, goes to automatic detection.
  EXPECT_EQ(run(u"let", std::nullopt), styled({{u"let", plain}}));
  EXPECT_EQ(run(u"let", ""), styled({{u"let", plain}}));
  // Empty output gives nothing without complaint.
  EXPECT_EQ(run(u"", std::nullopt), std::nullopt);
  EXPECT_TRUE(errors().empty());
}

TEST_F(FakeHighlightJSTest, FailuresGiveNothingAndLogAnError) {
  for (const char* language : {"throws", "novalue", "unbalanced", "surrogate"}) {
    EXPECT_EQ(run(u"x", language), std::nullopt) << language;
  }
  const auto lines = errors();
  ASSERT_EQ(lines.size(), 4u);
  EXPECT_TRUE(lines[0].text.starts_with("could not highlight code: Error: nope")) << lines[0].text;
  EXPECT_TRUE(lines[1].text.starts_with("could not highlight code:")) << lines[1].text;
  EXPECT_TRUE(lines[2].text.starts_with("unbalanced span")) << lines[2].text;
  EXPECT_TRUE(lines[3].text.starts_with("invalid character reference")) << lines[3].text;
}

TEST_F(FakeHighlightJSTest, CompletionsArriveInSchedulingOrderOnTheNamedQueue) {
  std::mutex mutex;
  std::vector<Task> posted;
  const Executor collect = [&](Task task) {
    std::lock_guard lock(mutex);
    posted.push_back(std::move(task));
  };
  std::vector<std::string> order;
  for (int i = 0; i < 5; ++i) {
    highlighter->highlight(
        u"t" + std::u16string(1, char16_t(u'0' + i)), "swift", HighlightJSTheme::light(), collect,
        [&order](std::optional<StyledText> r) { order.push_back(r ? toUTF8(r->text()) : "none"); });
  }
  highlighter->waitUntilIdle();
  EXPECT_TRUE(order.empty());  // nothing runs until the named queue runs it
  for (Task& task : posted) task();
  EXPECT_EQ(order, (std::vector<std::string>{"t0<", "t1<", "t2<", "t3<", "t4<"}));
}

TEST_F(FakeHighlightJSTest, CancelledItemThatHasNotStartedNeverRuns) {
  std::promise<void> release;
  std::shared_future<void> released = release.get_future().share();
  // The first completion runs on the worker and holds it until the second item is cancelled.
  highlighter->highlight(u"a", "swift", nullptr, inlineExecutor(),
                         [released](std::optional<StyledText>) { released.wait(); });
  bool secondRan = false;
  auto second =
      highlighter->highlight(u"b", "swift", nullptr, inlineExecutor(),
                             [&secondRan](std::optional<StyledText>) { secondRan = true; });
  second->cancel();
  release.set_value();
  highlighter->waitUntilIdle();
  EXPECT_TRUE(second->isCancelled());
  EXPECT_FALSE(secondRan);
}

TEST(FakeHighlightJSListTest, FailedListingLeavesLanguagesEmpty) {
  ScriptDir dir;
  CapturingLogger logger;
  auto highlighter =
      loadScript(dir.write("window.hljs = { listLanguages: function() { throw 1; } };"), logger);
  ASSERT_NE(highlighter, nullptr);
  highlighter->waitUntilIdle();
  EXPECT_TRUE(highlighter->languages().empty());
  EXPECT_EQ(logger.lines(),
            (std::vector<LoggedLine>{{LogLevel::log, "could not list highlight.js languages!"}}));
}

// The real script, as built into the program.
class BundledHighlightJSTest : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    highlighter = HighlightJS::load({std::nullopt, &logger, inlineExecutor()});
  }
  static void TearDownTestSuite() { highlighter.reset(); }
  static inline CapturingLogger logger;
  static inline std::shared_ptr<HighlightJS> highlighter;
};

TEST_F(BundledHighlightJSTest, ListsItsLanguagesAndHighlightsSwiftKeepingTheText) {
  ASSERT_NE(highlighter, nullptr) << "the script resource is missing";
  highlighter->waitUntilIdle();
  const auto languages = highlighter->languages();
  EXPECT_TRUE(languages.count("swift") && languages.count("xml"));
  EXPECT_GT(languages.size(), 100u);

  const std::u16string source = u"struct A: View {\n  let s = \"a < b && c > d\" // note\n}\n";
  const auto result = highlighter->highlightAndWait(source, "swift", HighlightJSTheme::light());
  ASSERT_TRUE(result);
  EXPECT_EQ(result->text(), source);
  const TextStyle keyword = result->styleAt(0);  // "struct"
  ASSERT_TRUE(keyword.font);
  EXPECT_TRUE(keyword.font->bold);
  EXPECT_EQ(result->styleAt(source.find(u"// note")).foreground, RGBColor::fromHex(0x888888));
}

TEST_F(BundledHighlightJSTest, DetectsTheLanguageAndGivesNothingForEmptyTextOrAnUnknownOne) {
  ASSERT_NE(highlighter, nullptr);
  const std::u16string svg = u"<svg xmlns=\"http://www.w3.org/2000/svg\"><rect width=\"1\"/></svg>";
  const auto result = highlighter->highlightAndWait(svg, std::nullopt, HighlightJSTheme::dark());
  ASSERT_TRUE(result);
  EXPECT_EQ(result->text(), svg);
  EXPECT_GT(result->runs().size(), 3u);

  EXPECT_EQ(highlighter->highlightAndWait(u"", std::nullopt, nullptr), std::nullopt);
  EXPECT_EQ(highlighter->highlightAndWait(u"x", "no-such-language", nullptr), std::nullopt);
  EXPECT_EQ(logger.lines().back().level, LogLevel::error);
  EXPECT_TRUE(logger.lines().back().text.starts_with("could not highlight code:"));
}

}  // namespace
}  // namespace Highlight
