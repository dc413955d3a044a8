#include "Highlight/HighlightJS.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <future>

#include "support/CapturingLogger.h"
#include "TestSupport.h"

namespace Highlight {
namespace {

using CoreS::LogLevel;

// A stand-in for highlight.js with the same entry points and predictable answers.
constexpr const char* kFakeScript = R"JS(
window.hljs = {
  listLanguages: function() { return ["Swift", "XML"]; },
  highlight: function(language, text, ignoreIllegals) {
    if (language === "throws") throw new Error("nope");
    if (language === "unbalanced") return { value: "a</span></span>" };
    if (language === "surrogate") return { value: "&#xD800;" };
    if (language === "novalue") return {};
    return { value: '<span class="hljs-keyword">' + text + '</span>&lt;' };
  },
  highlightAuto: function(text) { return { value: text }; }
};
)JS";

class ScriptDir {
 public:
  std::string write(const char* name, const char* content) {
    const QString path = dir_.filePath(QString::fromLatin1(name));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return path.toStdString();
  }
  std::string path() const { return dir_.path().toStdString(); }

 private:
  QTemporaryDir dir_;
};

std::shared_ptr<HighlightJS> loadScript(const std::string& path, CapturingLogger& logger) {
  return HighlightJS::load({path, &logger, inlineExecutor()});
}

TEST(HighlightJSLoadTest, MissingScriptGivesNoHighlighterAndOneLine) {
  CapturingLogger logger;
  EXPECT_EQ(loadScript("/nonexistent/highlight.min.js", logger), nullptr);
  EXPECT_EQ(logger.lines(),
            (std::vector<LoggedLine>{
                {LogLevel::log, "highlight.min.js not available, no code highlighting"}}));
}

struct LoadFailureRow {
  const char* name;
  const char* script;  // null: the path is a directory
  std::string expectedStart;
};

void PrintTo(const LoadFailureRow& row, std::ostream* out) {
  *out << row.name;
}

class HighlightJSLoadFailureTest : public testing::TestWithParam<LoadFailureRow> {};

TEST_P(HighlightJSLoadFailureTest, LogsOneErrorAndGivesNothing) {
  ScriptDir dir;
  CapturingLogger logger;
  const std::string path = GetParam().script ? dir.write("s.js", GetParam().script) : dir.path();
  EXPECT_EQ(loadScript(path, logger), nullptr);
  const auto lines = logger.lines();
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0].level, LogLevel::error);
  EXPECT_TRUE(lines[0].text.starts_with(GetParam().expectedStart)) << lines[0].text;
}

INSTANTIATE_TEST_SUITE_P(
    Scripts, HighlightJSLoadFailureTest,
    testing::Values(LoadFailureRow{"syntaxError", "var = ;",
                                   "Highlight.js script evaluation failed: SyntaxError"},
                    LoadFailureRow{"throws", "throw new Error('boom');",
                                   "Highlight.js script evaluation failed: Error: boom"},
                    LoadFailureRow{"noHljs", "var hljs = 1;",
                                   "could not locate Highlight.js in JSContext"},
                    LoadFailureRow{"unreadable", nullptr, "could not load highlight.js at: /"}));

class FakeHighlightJSTest : public testing::Test {
 protected:
  void SetUp() override {
    highlighter = loadScript(dir.write("fake.js", kFakeScript), logger);
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

  ScriptDir dir;
  CapturingLogger logger;
  std::shared_ptr<HighlightJS> highlighter;
};

TEST_F(FakeHighlightJSTest, ListsLanguagesLowerCased) {
  EXPECT_EQ(highlighter->languages(), (std::set<std::string>{"swift", "xml"}));
  EXPECT_EQ(logger.lines(),
            (std::vector<LoggedLine>{{LogLevel::log, "Highlight languages: swift, xml"}}));
}

TEST_F(FakeHighlightJSTest, ConvertsTheScriptsSpans) {
  const TextStyle keyword{RGBColor::fromHex(0x444444), false, {}, ThemeFont{"", {}, true}};
  const TextStyle plain{RGBColor::fromHex(0x444444), false, {}, ThemeFont{}};
  EXPECT_EQ(run(u"let", "swift"), styled({{u"let", keyword}, {u"<", plain}}));
  // No language, or an empty one, goes to automatic detection.
  EXPECT_EQ(run(u"let", std::nullopt), styled({{u"let", plain}}));
  EXPECT_EQ(run(u"let", ""), styled({{u"let", plain}}));
  EXPECT_TRUE(errors().empty());
}

TEST_F(FakeHighlightJSTest, EmptyOutputGivesNothingWithoutComplaint) {
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
  auto highlighter = loadScript(
      dir.write("list.js", "window.hljs = { listLanguages: function() { throw 1; } };"), logger);
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

TEST_F(BundledHighlightJSTest, LoadsAndListsItsLanguages) {
  ASSERT_NE(highlighter, nullptr) << "the script resource is missing";
  highlighter->waitUntilIdle();
  const auto languages = highlighter->languages();
  EXPECT_TRUE(languages.count("swift"));
  EXPECT_TRUE(languages.count("xml"));
  EXPECT_GT(languages.size(), 100u);
}

TEST_F(BundledHighlightJSTest, HighlightsSwiftKeepingTheText) {
  ASSERT_NE(highlighter, nullptr);
  const std::u16string source = u"struct A: View {\n  let s = \"a < b && c > d\" // note\n}\n";
  const auto result = highlighter->highlightAndWait(source, "swift", HighlightJSTheme::light());
  ASSERT_TRUE(result);
  EXPECT_EQ(result->text(), source);
  const TextStyle keyword = result->styleAt(0);  // "struct"
  ASSERT_TRUE(keyword.font);
  EXPECT_TRUE(keyword.font->bold);
  const TextStyle comment = result->styleAt(source.find(u"// note"));
  EXPECT_EQ(comment.foreground, RGBColor::fromHex(0x888888));
}

TEST_F(BundledHighlightJSTest, EmptyTextAndUnknownLanguageGiveNothing) {
  ASSERT_NE(highlighter, nullptr);
  EXPECT_EQ(highlighter->highlightAndWait(u"", std::nullopt, nullptr), std::nullopt);
  EXPECT_EQ(highlighter->highlightAndWait(u"x", "no-such-language", nullptr), std::nullopt);
  EXPECT_EQ(logger.lines().back().level, LogLevel::error);
  EXPECT_TRUE(logger.lines().back().text.starts_with("could not highlight code:"));
}

TEST_F(BundledHighlightJSTest, DetectsTheLanguageWhenNoneIsGiven) {
  ASSERT_NE(highlighter, nullptr);
  const std::u16string svg = u"<svg xmlns=\"http://www.w3.org/2000/svg\"><rect width=\"1\"/></svg>";
  const auto result = highlighter->highlightAndWait(svg, std::nullopt, HighlightJSTheme::dark());
  ASSERT_TRUE(result);
  EXPECT_EQ(result->text(), svg);
  EXPECT_GT(result->runs().size(), 3u);
}

}  // namespace
}  // namespace Highlight
