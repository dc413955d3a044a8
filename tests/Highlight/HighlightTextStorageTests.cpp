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
    std::shared_ptr<WorkItem> item;
    bool answered = false;
  };
  std::shared_ptr<WorkItem> highlight(std::u16string text, std::optional<std::string> language,
                                      std::shared_ptr<const HighlightJSTheme> theme, Executor,
                                      Completion completion) override {
    auto item = std::make_shared<WorkItem>();
    requests.push_back(
        {std::move(text), std::move(language), std::move(theme), std::move(completion), item});
    return item;
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
    // Answered plain, so that nothing of it is left in flight.
    ASSERT_EQ(highlighter->requests.size(), 1u);
    highlighter->requests[0].completion(StyledText(u"abc\ndef\nghi", TextStyle{}));
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

// Large texts go out in chunks. Lines are 100 units with their break, so that a chunk holds 40.
constexpr int kLineLength = 100;
constexpr int kLinesPerChunk = HighlightTextStorage::kChunkLimit / kLineLength;

QString numberedLines(int count) {
  QString text;
  for (int i = 0; i < count; ++i) {
    QString line = QString("line %1 ").arg(i, 4, 10, QLatin1Char('0'));
    text += line.leftJustified(kLineLength - 1, QLatin1Char('.')) + (i + 1 < count ? "\n" : "");
  }
  return text;
}

// The line a request starts with.
int firstLine(const RecordingHighlighter::Request& request) {
  return QString::fromStdU16String(request.text).mid(5, 4).toInt();
}

class ChunkingTest : public testing::Test {
 protected:
  void setVisibleLine(int line) {
    visibleLine = line;
    storage.setVisibleRangeProvider([this]() -> TextRange {
      if (visibleLine < 0) return {};
      return {visibleLine * kLineLength, 20 * kLineLength};
    });
  }
  std::vector<RecordingHighlighter::Request*> outstanding() {
    std::vector<RecordingHighlighter::Request*> open;
    for (auto& request : highlighter->requests) {
      if (!request.answered && !request.item->isCancelled()) open.push_back(&request);
    }
    return open;
  }
  void answer(RecordingHighlighter::Request& request) {
    request.answered = true;
    request.completion(StyledText(request.text, kBold));
  }

  int visibleLine = -1;
  QTextDocument document;
  std::shared_ptr<RecordingHighlighter> highlighter = std::make_shared<RecordingHighlighter>();
  HighlightTextStorage storage{&document, highlighter};
};

struct VisibleRow {
  const char* name;
  int visibleLine;  // -1: no provider answer
  int expectedFirst;
  int expectedSecond;
  int scrolledTo;
  int expectedAfterScroll;
};

void PrintTo(const VisibleRow& row, std::ostream* out) {
  *out << row.name;
}

class VisibleFirstTest : public ChunkingTest, public testing::WithParamInterface<VisibleRow> {};

TEST_P(VisibleFirstTest, ChunksStartOnScreenAndFollowTheScroll) {
  const VisibleRow& row = GetParam();
  setVisibleLine(row.visibleLine);
  document.setPlainText(numberedLines(200));
  EXPECT_TRUE(highlighter->requests.empty()) << "a large range waits for the event loop";
  QCoreApplication::processEvents();
  ASSERT_EQ(highlighter->requests.size(), std::size_t{HighlightTextStorage::kMaxChunksInFlight});
  EXPECT_EQ(firstLine(highlighter->requests[0]), row.expectedFirst);
  EXPECT_EQ(firstLine(highlighter->requests[1]), row.expectedSecond);
  setVisibleLine(row.scrolledTo);
  answer(highlighter->requests[0]);
  ASSERT_EQ(highlighter->requests.size(), 3u);
  EXPECT_EQ(firstLine(highlighter->requests[2]), row.expectedAfterScroll);
  for (const auto& request : highlighter->requests) {
    EXPECT_LE(request.text.size(), std::size_t{HighlightTextStorage::kChunkLimit});
  }
}

INSTANTIATE_TEST_SUITE_P(Screens, VisibleFirstTest,
                         testing::Values(VisibleRow{"noScreen", -1, 0, 40, 160, 160},
                                         VisibleRow{"top", 0, 0, 40, 160, 160},
                                         VisibleRow{"middle", 100, 100, 140, 20, 20},
                                         VisibleRow{"bottomThenTheTop", 190, 190, 0, 100, 100}));

struct EditDuringChunksRow {
  const char* name;
  int position;
  int removed;
  const char* inserted;
  bool firstCancelled;
  bool secondCancelled;
};

void PrintTo(const EditDuringChunksRow& row, std::ostream* out) {
  *out << row.name;
}

class EditDuringChunksTest : public ChunkingTest,
                             public testing::WithParamInterface<EditDuringChunksRow> {};

TEST_P(EditDuringChunksTest, RequestsWhoseTextChangedAreCancelledAndTheRestStillApplies) {
  const EditDuringChunksRow& row = GetParam();
  document.setPlainText(numberedLines(200));
  QCoreApplication::processEvents();
  ASSERT_EQ(highlighter->requests.size(), 2u);  // lines 0-39 and 40-79
  QTextCursor cursor(&document);
  cursor.setPosition(row.position);
  cursor.setPosition(row.position + row.removed, QTextCursor::KeepAnchor);
  cursor.insertText(row.inserted);
  EXPECT_EQ(highlighter->requests[0].item->isCancelled(), row.firstCancelled);
  EXPECT_EQ(highlighter->requests[1].item->isCancelled(), row.secondCancelled);

  // Answers arrive for all of them, cancelled or not: only live ones may show.
  while (!outstanding().empty() || !storage.pendingRanges().empty()) {
    for (auto& request : highlighter->requests) {
      if (!request.answered) answer(request);
    }
    QCoreApplication::processEvents();
  }
  const QString text = document.toPlainText();
  for (int position = 0; position < text.size(); position += 37) {
    if (text[position] == '\n') continue;
    ASSERT_EQ(storage.formatAt(position), toCharFormat(kBold)) << position;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Edits, EditDuringChunksTest,
    testing::Values(
        EditDuringChunksRow{"inTheFirstChunk", 10 * kLineLength, 0, "X", true, false},
        EditDuringChunksRow{"joiningTheTwoChunks", 40 * kLineLength - 1, 1, "", true, true},
        EditDuringChunksRow{"inPendingText", 150 * kLineLength, 0, "X\nY", false, false},
        EditDuringChunksRow{"replacingEverything", 0, 200 * kLineLength - 1, "new", true, true}));

struct LargeTextRow {
  const char* name;
  QString text;
  bool highlighted;
};

void PrintTo(const LargeTextRow& row, std::ostream* out) {
  *out << row.name;
}

class LargeTextTest : public ChunkingTest, public testing::WithParamInterface<LargeTextRow> {};

TEST_P(LargeTextTest, AMegabyteIsHighlightedInBoundedPieces) {
  document.setPlainText(GetParam().text);
  setVisibleLine(3);
  std::size_t largest = 0;
  int rounds = 0;
  while (rounds++ < 100000) {
    QCoreApplication::processEvents();
    const auto open = outstanding();
    ASSERT_LE(open.size(), std::size_t{HighlightTextStorage::kMaxChunksInFlight});
    if (open.empty()) break;
    largest = std::max(largest, open.front()->text.size());
    answer(*open.front());
  }
  EXPECT_LE(largest, std::size_t{HighlightTextStorage::kChunkLimit});
  EXPECT_TRUE(storage.pendingRanges().empty());
  const QTextCharFormat expected = GetParam().highlighted ? toCharFormat(kBold) : QTextCharFormat();
  const QString text = document.toPlainText();
  for (int position = 0; position < text.size(); position += 1009) {
    if (text[position] == '\n') continue;
    ASSERT_EQ(storage.formatAt(position), expected) << position;
  }
}

QString lines(const QString& line, int count) {
  return (line + "\n").repeated(count);
}

INSTANTIATE_TEST_SUITE_P(
    Shapes, LargeTextTest,
    testing::Values(
        LargeTextRow{"shortLines", numberedLines(10000), true},
        LargeTextRow{"longLinesWithTags", lines(QString("<g a=\"1\"/>").repeated(3000), 33), true},
        LargeTextRow{"longLinesWithoutBreaks",
                     lines(QString::fromUtf8("ab\xF0\x9F\x98\x80").repeated(7000), 36), true},
        LargeTextRow{"oneMinifiedMegabyteStaysPlain", QString("<g a=\"1\"/>").repeated(100000),
                     false}));

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
