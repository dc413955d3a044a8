#include "Highlight/HighlightTextStorage.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTextCursor>

#include "Highlight/QtStyle.h"
#include "TestSupport.h"

namespace Highlight {
namespace {

// Records the requests; the test decides when and with what each one completes.
class RecordingHighlighter final : public Highlighter {
 public:
  struct Request {
    std::u16string text;
    std::optional<std::string> language;
    std::shared_ptr<const HighlightJSTheme> theme;
    Completion completion;
  };
  std::shared_ptr<WorkItem> highlight(std::u16string text, std::optional<std::string> language,
                                      std::shared_ptr<const HighlightJSTheme> theme, Executor,
                                      Completion completion) override {
    requests.push_back(
        {std::move(text), std::move(language), std::move(theme), std::move(completion)});
    return std::make_shared<WorkItem>();
  }
  std::vector<Request> requests;
};

// Records the storage's attributes-only edit notifications.
struct AppliedSpy {
  explicit AppliedSpy(HighlightTextStorage* storage) {
    QObject::connect(storage, &HighlightTextStorage::highlightApplied,
                     [this](int start, int length) {
                       edits.push_back({start, length});
                     });
  }
  int count() const { return static_cast<int>(edits.size()); }
  bool isEmpty() const { return edits.empty(); }
  std::vector<TextRange> edits;
};

const TextStyle kBold{RGBColor::fromHex(0x123456), false, {}, ThemeFont{"", {}, true}};
const TextStyle kRed{RGBColor::fromHex(0xFF0000), false, {}, ThemeFont{}};

class HighlightTextStorageTest : public testing::Test {
 protected:
  void SetUp() override {
    document.setPlainText("abc\ndef\nghi");
    highlighter->requests.clear();
  }
  void insert(int position, const QString& text) {
    QTextCursor cursor(&document);
    cursor.setPosition(position);
    cursor.insertText(text);
  }
  void remove(int position, int count) {
    QTextCursor cursor(&document);
    cursor.setPosition(position);
    cursor.setPosition(position + count, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
  }

  QTextDocument document;
  std::shared_ptr<RecordingHighlighter> highlighter = std::make_shared<RecordingHighlighter>();
  HighlightTextStorage storage{&document, highlighter};
  AppliedSpy applied{&storage};
};

struct EditRow {
  const char* name;
  int position;
  int removed;
  const char16_t* inserted;
  std::u16string expectedRequest;
};

void PrintTo(const EditRow& row, std::ostream* out) {
  *out << row.name;
}

class ParagraphWideningTest : public HighlightTextStorageTest,
                              public testing::WithParamInterface<EditRow> {};

TEST_P(ParagraphWideningTest, AnEditRequestsTheWholeParagraphsItTouched) {
  const EditRow& row = GetParam();
  if (row.removed > 0) remove(row.position, row.removed);
  if (*row.inserted) insert(row.position, QString::fromStdU16String(row.inserted));
  ASSERT_FALSE(highlighter->requests.empty());
  EXPECT_EQ(toUTF8(highlighter->requests.back().text), toUTF8(row.expectedRequest));
}

INSTANTIATE_TEST_SUITE_P(
    Edits, ParagraphWideningTest,
    testing::Values(EditRow{"typingInAMiddleParagraph", 5, 0, u"X", u"dXef\n"},
                    EditRow{"typingAtTheVeryEnd", 11, 0, u"X", u"ghiX"},
                    EditRow{"typingAtAParagraphStart", 0, 0, u"X", u"Xabc\n"},
                    EditRow{"splittingAParagraph", 5, 0, u"\nX", u"d\nXef\n"},
                    EditRow{"deletingAcrossParagraphs", 2, 3, u"", u"abef\n"},
                    EditRow{"pastingWholeParagraphs", 4, 0, u"1\n2\n", u"1\n2\n"},
                    EditRow{"pastingIntoAParagraph", 5, 0, u"1\n2", u"d1\n2ef\n"}));

TEST_F(HighlightTextStorageTest, AppliesAResultAsLayoutFormats) {
  insert(5, "X");  // "abc\ndXef\nghi"
  ASSERT_EQ(highlighter->requests.size(), 1u);
  highlighter->requests[0].completion(styled({{u"dX", kBold}, {u"ef\n", TextStyle{}}}));
  EXPECT_EQ(applied.count(), 1);
  EXPECT_EQ(applied.edits[0], (TextRange{4, 5}));
  EXPECT_EQ(storage.formatAt(4), toCharFormat(kBold));
  EXPECT_EQ(storage.formatAt(5), toCharFormat(kBold));
  EXPECT_EQ(storage.formatAt(6), QTextCharFormat());
  EXPECT_EQ(storage.formatAt(0), QTextCharFormat());
  EXPECT_EQ(document.toPlainText(), "abc\ndXef\nghi");  // the text itself is untouched
  EXPECT_EQ(highlighter->requests.size(), 1u) << "applying must not trigger a new request";
}

TEST_F(HighlightTextStorageTest, SettingReplacesWhatWasShown) {
  ASSERT_TRUE(storage.applyHighlight(styled({{u"abc\ndef", kBold}}), {0, 7}));
  ASSERT_TRUE(storage.applyHighlight(styled({{u"b", kRed}, {u"c\nd", TextStyle{}}}), {1, 4}));
  EXPECT_EQ(storage.formatAt(0), toCharFormat(kBold));
  EXPECT_EQ(storage.formatAt(1), toCharFormat(kRed));
  EXPECT_EQ(storage.formatAt(2), QTextCharFormat());
  EXPECT_EQ(storage.formatAt(4), QTextCharFormat());
  EXPECT_EQ(storage.formatAt(5), toCharFormat(kBold));
}

TEST_F(HighlightTextStorageTest, AResultForTextTypedOverSinceIsDropped) {
  insert(5, "X");
  insert(6, "Y");  // the user typed on before the first result came back
  ASSERT_EQ(highlighter->requests.size(), 2u);
  highlighter->requests[0].completion(styled({{u"dXef\n", kBold}}));
  EXPECT_EQ(applied.count(), 0);
  EXPECT_EQ(storage.formatAt(4), QTextCharFormat());
  highlighter->requests[1].completion(styled({{u"dXYef\n", kBold}}));
  EXPECT_EQ(applied.count(), 1);
  EXPECT_EQ(storage.formatAt(4), toCharFormat(kBold));
}

TEST_F(HighlightTextStorageTest, AResultBeyondTheShrunkTextIsDropped) {
  insert(9, "X");  // request for "gXhi"
  remove(0, 8);
  highlighter->requests[0].completion(styled({{u"gXhi", kBold}}));
  EXPECT_EQ(applied.count(), 0);
  EXPECT_FALSE(storage.applyHighlight(styled({{u"x", kBold}}), {-1, 1}));
}

TEST_F(HighlightTextStorageTest, AnEqualResultMakesNoEdit) {
  const StyledText result = styled({{u"abc", kBold}, {u"\n", kRed}});
  EXPECT_TRUE(storage.applyHighlight(result, {0, 4}));
  EXPECT_FALSE(storage.applyHighlight(result, {0, 4}));
  // Paragraph breaks carry no format, so a result that styles them differently is still equal.
  EXPECT_FALSE(storage.applyHighlight(styled({{u"abc\n", kBold}}), {0, 4}));
  EXPECT_EQ(applied.count(), 1);
  EXPECT_TRUE(highlighter->requests.empty());
}

TEST_F(HighlightTextStorageTest, FormatChangesThroughTheDocumentRehighlightTheParagraph) {
  QTextCursor cursor(&document);
  cursor.setPosition(5);
  cursor.setPosition(6, QTextCursor::KeepAnchor);
  QTextCharFormat format;
  format.setFontItalic(true);
  cursor.mergeCharFormat(format);
  ASSERT_EQ(highlighter->requests.size(), 1u);
  EXPECT_EQ(highlighter->requests[0].text, u"def\n");
}

TEST_F(HighlightTextStorageTest, LanguageChangesRehighlightTheWholeTextOnce) {
  storage.setLanguage("swift");
  ASSERT_EQ(highlighter->requests.size(), 1u);
  EXPECT_EQ(highlighter->requests[0].text, u"abc\ndef\nghi");
  EXPECT_EQ(highlighter->requests[0].language, "swift");
  storage.setLanguage("swift");
  EXPECT_EQ(highlighter->requests.size(), 1u);
  storage.setLanguage(std::nullopt);
  EXPECT_EQ(highlighter->requests.size(), 2u);
}

TEST_F(HighlightTextStorageTest, ThemeChangesRehighlightOnlyWhenTheThemeDiffers) {
  EXPECT_EQ(storage.theme(), HighlightJSTheme::light());
  storage.setTheme(HighlightJSTheme::derivedWithFont(HighlightJSTheme::light(),
                                                     HighlightJSTheme::light()->baseFont()));
  storage.setTheme(std::make_shared<const HighlightJSTheme>(
      HighlightJSTheme::light()->baseFont(), HighlightJSTheme::light()->classToProperties()));
  EXPECT_TRUE(highlighter->requests.empty());
  storage.setTheme(HighlightJSTheme::dark());
  ASSERT_EQ(highlighter->requests.size(), 1u);
  EXPECT_EQ(highlighter->requests[0].theme, HighlightJSTheme::dark());
  EXPECT_EQ(highlighter->requests[0].text, u"abc\ndef\nghi");
  storage.setTheme(HighlightJSTheme::light());
  EXPECT_EQ(highlighter->requests.size(), 2u);
}

TEST_F(HighlightTextStorageTest, ALateResultForADeletedStorageIsIgnored) {
  QTextDocument other;
  auto* doomed = new HighlightTextStorage(&other, highlighter);
  other.setPlainText("x");
  ASSERT_FALSE(highlighter->requests.empty());
  delete doomed;
  highlighter->requests.back().completion(styled({{u"x", kBold}}));
  EXPECT_EQ(other.toPlainText(), "x");
}

TEST(HighlightTextStorageEngineTest, HighlightsThroughTheRealEngineOnTheMainThread) {
  auto engine = HighlightJS::load({});
  ASSERT_NE(engine, nullptr);
  QTextDocument document;
  HighlightTextStorage storage(&document, engine);
  storage.setLanguage("swift");
  AppliedSpy applied(&storage);
  document.setPlainText("func f() -> Int {\n  return 1\n}\n");
  QElapsedTimer timer;
  timer.start();
  while (applied.isEmpty() && timer.elapsed() < 10000) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
  }
  ASSERT_FALSE(applied.isEmpty());
  EXPECT_TRUE(storage.formatAt(0).font().bold());  // "func"
  EXPECT_EQ(storage.formatAt(0).foreground().color(), QColor(0x44, 0x44, 0x44));
}

}  // namespace
}  // namespace Highlight
