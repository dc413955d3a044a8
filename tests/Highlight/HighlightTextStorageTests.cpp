#include "Highlight/HighlightTextStorage.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTextCursor>
#include <sstream>

#include "FigurerUtilities/Transcript.h"
#include "Highlight/QtStyle.h"
#include "TestSupport.h"

namespace Highlight {
namespace {

const TextStyle kBold{RGBColor::fromHex(0x123456), false, {}, ThemeFont{"", {}, true}};
const TextStyle kRed{RGBColor::fromHex(0xFF0000), false, {}, ThemeFont{}};

// A storage with a recording highlighter and the attributes-only edits it announced.
struct Harness {
  QTextDocument document;
  std::shared_ptr<RecordingHighlighter> highlighter = std::make_shared<RecordingHighlighter>();
  HighlightTextStorage storage{&document, highlighter};
  std::vector<TextRange> applied;

  Harness() {
    QObject::connect(&storage, &HighlightTextStorage::highlightApplied,
                     [this](int start, int length) {
                       applied.push_back({start, length});
                     });
  }
  // Shows `text` with its first request answered plain, so that nothing is left in flight.
  void start(const QString& text) {
    document.setPlainText(text);
    ASSERT_EQ(highlighter->requests.size(), 1u);
    highlighter->requests[0].completion(StyledText(text.toStdU16String(), TextStyle{}));
    highlighter->requests.clear();
  }
  // Replaces `removed` units at `position` with `text`, as typing or pasting would.
  void edit(int position, int removed, const QString& text) {
    QTextCursor cursor(&document);
    cursor.setPosition(position);
    cursor.setPosition(position + removed, QTextCursor::KeepAnchor);
    cursor.insertText(text);
  }
};

class HighlightTextStorageTest : public testing::Test, protected Harness {
 protected:
  void SetUp() override { start("abc\ndef\nghi"); }
};

// Each input is an edit of "abc\ndef\nghi": where, how many units it removes and what it inserts.
// The answer is the text of the last request it makes, which covers whole paragraphs.
TEST(HighlightTextStorageEdits, AnEditRequestsTheWholeParagraphsItTouched) {
  Transcript::expect("Highlight/data/paragraph-requests.txt", [](const std::string& input) {
    std::istringstream fields(input);
    int position = 0, removed = 0;
    fields >> position >> removed;
    std::string inserted;
    std::getline(fields >> std::ws, inserted);
    Harness h;
    h.start("abc\ndef\nghi");
    h.edit(position, removed, QString::fromStdString(Transcript::unescape(inserted)));
    if (h.highlighter->requests.empty()) return std::string("> no request\n");
    return "> " + Transcript::escape(toUTF8(h.highlighter->requests.back().text)) + "\n";
  });
}

TEST_F(HighlightTextStorageTest, AppliesAResultAsLayoutFormats) {
  edit(5, 0, "X");  // "abc\ndXef\nghi"
  ASSERT_EQ(highlighter->requests.size(), 1u);
  highlighter->requests[0].completion(styled({{u"dX", kBold}, {u"ef\n", TextStyle{}}}));
  EXPECT_EQ(applied, (std::vector<TextRange>{{4, 5}}));
  EXPECT_EQ(storage.formatAt(4), toCharFormat(kBold));
  EXPECT_EQ(storage.formatAt(5), toCharFormat(kBold));
  EXPECT_EQ(storage.formatAt(6), QTextCharFormat());
  EXPECT_EQ(storage.formatAt(0), QTextCharFormat());
  EXPECT_EQ(document.toPlainText(), "abc\ndXef\nghi");  // the text itself is untouched
  EXPECT_EQ(highlighter->requests.size(), 1u) << "applying must not trigger a new request";
}

TEST_F(HighlightTextStorageTest, SettingReplacesWhatWasShownAndAnEqualResultMakesNoEdit) {
  ASSERT_TRUE(storage.applyHighlight(styled({{u"abc\ndef", kBold}}), {0, 7}));
  ASSERT_TRUE(storage.applyHighlight(styled({{u"b", kRed}, {u"c\nd", TextStyle{}}}), {1, 4}));
  EXPECT_EQ(storage.formatAt(0), toCharFormat(kBold));
  EXPECT_EQ(storage.formatAt(1), toCharFormat(kRed));
  EXPECT_EQ(storage.formatAt(2), QTextCharFormat());
  EXPECT_EQ(storage.formatAt(4), QTextCharFormat());
  EXPECT_EQ(storage.formatAt(5), toCharFormat(kBold));

  const StyledText result = styled({{u"abc", kBold}, {u"\n", kRed}});
  EXPECT_TRUE(storage.applyHighlight(result, {0, 4}));
  EXPECT_FALSE(storage.applyHighlight(result, {0, 4}));
  // Paragraph breaks carry no format, so a result that styles them differently is still equal.
  EXPECT_FALSE(storage.applyHighlight(styled({{u"abc\n", kBold}}), {0, 4}));
  EXPECT_EQ(applied.size(), 3u);
  EXPECT_TRUE(highlighter->requests.empty());
}

TEST_F(HighlightTextStorageTest, AResultForTextTypedOverOrCutAwaySinceIsDropped) {
  edit(5, 0, "X");
  edit(6, 0, "Y");  // the user typed on before the first result came back
  ASSERT_EQ(highlighter->requests.size(), 2u);
  highlighter->requests[0].completion(styled({{u"dXef\n", kBold}}));
  EXPECT_TRUE(applied.empty());
  EXPECT_EQ(storage.formatAt(4), QTextCharFormat());
  highlighter->requests[1].completion(styled({{u"dXYef\n", kBold}}));
  EXPECT_EQ(applied.size(), 1u);
  EXPECT_EQ(storage.formatAt(4), toCharFormat(kBold));

  // So is one for text that has since been cut away.
  edit(13, 0, "X");  // request for "ghiX" at 10
  const std::size_t request = highlighter->requests.size() - 1;
  edit(0, 10, "");
  highlighter->requests[request].completion(styled({{u"ghiX", kBold}}));
  EXPECT_EQ(applied.size(), 1u);
  EXPECT_FALSE(storage.applyHighlight(styled({{u"x", kBold}}), {-1, 1}));
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

TEST_F(HighlightTextStorageTest, LanguageAndThemeChangesRehighlightTheWholeTextOnlyWhenTheyDiffer) {
  storage.setLanguage("swift");
  ASSERT_EQ(highlighter->requests.size(), 1u);
  EXPECT_EQ(highlighter->requests[0].text, u"abc\ndef\nghi");
  EXPECT_EQ(highlighter->requests[0].language, "swift");
  storage.setLanguage("swift");
  EXPECT_EQ(highlighter->requests.size(), 1u);
  storage.setLanguage(std::nullopt);
  EXPECT_EQ(highlighter->requests.size(), 2u);
  highlighter->requests.clear();

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

struct Chunking : Harness {
  int visibleLine = -1;  // -1: the provider has no answer

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
  // Every sampled character outside the line breaks shows `expected`.
  void expectFormat(const QTextCharFormat& expected, int step) {
    const QString text = document.toPlainText();
    for (int position = 0; position < text.size(); position += step) {
      if (text[position] == '\n') continue;
      ASSERT_EQ(storage.formatAt(position), expected) << position;
    }
  }
};

TEST(HighlightTextStorageChunks, StartOnScreenAndFollowTheScroll) {
  const struct {
    int visibleLine, expectedFirst, expectedSecond, scrolledTo;
  } rows[] = {{-1, 0, 40, 160}, {0, 0, 40, 160}, {100, 100, 140, 20}, {190, 190, 0, 100}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.visibleLine);
    Chunking c;
    c.setVisibleLine(row.visibleLine);
    c.document.setPlainText(numberedLines(200));
    EXPECT_TRUE(c.highlighter->requests.empty()) << "a large range waits for the event loop";
    QCoreApplication::processEvents();
    auto& requests = c.highlighter->requests;
    ASSERT_EQ(requests.size(), std::size_t{HighlightTextStorage::kMaxChunksInFlight});
    EXPECT_EQ(firstLine(requests[0]), row.expectedFirst);
    EXPECT_EQ(firstLine(requests[1]), row.expectedSecond);
    c.setVisibleLine(row.scrolledTo);
    c.answer(requests[0]);
    ASSERT_EQ(requests.size(), 3u);
    EXPECT_EQ(firstLine(requests[2]), row.scrolledTo);
    for (const auto& request : requests) {
      EXPECT_LE(request.text.size(), std::size_t{HighlightTextStorage::kChunkLimit});
    }
  }
}

TEST(HighlightTextStorageChunks, RequestsWhoseTextChangedAreCancelledAndTheRestStillApplies) {
  const struct {
    int position, removed;
    const char* inserted;
    bool firstCancelled, secondCancelled;
  } rows[] = {
      {10 * kLineLength, 0, "X", true, false},        // in the first chunk
      {40 * kLineLength - 1, 1, "", true, true},      // joining the two chunks
      {150 * kLineLength, 0, "X\nY", false, false},   // in text not yet requested
      {0, 200 * kLineLength - 1, "new", true, true},  // replacing everything
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.position);
    Chunking c;
    c.document.setPlainText(numberedLines(200));
    QCoreApplication::processEvents();
    ASSERT_EQ(c.highlighter->requests.size(), 2u);  // lines 0-39 and 40-79
    c.edit(row.position, row.removed, row.inserted);
    EXPECT_EQ(c.highlighter->requests[0].item->isCancelled(), row.firstCancelled);
    EXPECT_EQ(c.highlighter->requests[1].item->isCancelled(), row.secondCancelled);
    // Answers arrive for all of them, cancelled or not: only live ones may show.
    while (!c.outstanding().empty() || !c.storage.pendingRanges().empty()) {
      for (auto& request : c.highlighter->requests) {
        if (!request.answered) c.answer(request);
      }
      QCoreApplication::processEvents();
    }
    c.expectFormat(toCharFormat(kBold), 37);
  }
}

QString lines(const QString& line, int count) {
  return (line + "\n").repeated(count);
}

TEST(HighlightTextStorageChunks, AMegabyteIsHighlightedInBoundedPieces) {
  const struct {
    const char* name;
    QString text;
    bool highlighted;
  } rows[] = {
      {"shortLines", numberedLines(10000), true},
      {"longLinesWithTags", lines(QString("<g a=\"1\"/>").repeated(3000), 33), true},
      {"longLinesWithoutBreaks", lines(QString::fromUtf8("ab\xF0\x9F\x98\x80").repeated(7000), 36),
       true},
      {"oneMinifiedMegabyteStaysPlain", QString("<g a=\"1\"/>").repeated(100000), false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    Chunking c;
    c.document.setPlainText(row.text);
    c.setVisibleLine(3);
    std::size_t largest = 0;
    for (int rounds = 0; rounds < 100000; ++rounds) {
      QCoreApplication::processEvents();
      const auto open = c.outstanding();
      ASSERT_LE(open.size(), std::size_t{HighlightTextStorage::kMaxChunksInFlight});
      if (open.empty()) break;
      largest = std::max(largest, open.front()->text.size());
      c.answer(*open.front());
    }
    EXPECT_LE(largest, std::size_t{HighlightTextStorage::kChunkLimit});
    EXPECT_TRUE(c.storage.pendingRanges().empty());
    c.expectFormat(row.highlighted ? toCharFormat(kBold) : QTextCharFormat(), 1009);
  }
}

TEST(HighlightTextStorageEngineTest, HighlightsThroughTheRealEngineOnTheMainThread) {
  auto engine = HighlightJS::load({});
  ASSERT_NE(engine, nullptr);
  QTextDocument document;
  HighlightTextStorage storage(&document, engine);
  storage.setLanguage("swift");
  bool applied = false;
  QObject::connect(&storage, &HighlightTextStorage::highlightApplied, [&] { applied = true; });
  document.setPlainText("func f() -> Int {\n  return 1\n}\n");
  QElapsedTimer timer;
  timer.start();
  while (!applied && timer.elapsed() < 10000) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
  }
  ASSERT_TRUE(applied);
  EXPECT_TRUE(storage.formatAt(0).font().bold());  // "func"
  EXPECT_EQ(storage.formatAt(0).foreground().color(), QColor(0x44, 0x44, 0x44));
}

}  // namespace
}  // namespace Highlight
