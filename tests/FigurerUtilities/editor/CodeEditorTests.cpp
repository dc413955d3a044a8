#include "FigurerUtilities/CodeEditor.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QUrl>

#include "FigurerUtilities/FontCommand.h"
#include "TextReplacement.h"

namespace FigurerUtilities {
namespace {

using Highlight::Completion;
using Highlight::Executor;
using Highlight::HighlightJSTheme;
using Highlight::WorkItem;

// Records what the storage asks for; answers nothing.
class RecordingHighlighter final : public Highlight::Highlighter {
 public:
  std::shared_ptr<WorkItem> highlight(std::u16string text, std::optional<std::string>,
                                      std::shared_ptr<const HighlightJSTheme> theme, Executor,
                                      Completion) override {
    texts.push_back(std::move(text));
    themes.push_back(std::move(theme));
    return std::make_shared<WorkItem>();
  }
  std::vector<std::u16string> texts;
  std::vector<std::shared_ptr<const HighlightJSTheme>> themes;
};

class CodeEditorTest : public testing::Test {
 protected:
  void SetUp() override {
    QObject::connect(editor.document(), &QTextDocument::contentsChange,
                     [this](int, int, int) { ++replacements; });
  }
  void reset() {
    QCoreApplication::processEvents();
    highlighter->texts.clear();
    replacements = 0;
    edits.clear();
  }
  void focus() {
    editor.show();
    editor.activateWindow();
    editor.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&editor));
  }

  std::shared_ptr<RecordingHighlighter> highlighter = std::make_shared<RecordingHighlighter>();
  CodeEditor editor{highlighter, "xml"};
  QSignalSpy edits{&editor, &CodeEditor::sourceEdited};
  int replacements = 0;
};

TEST_F(CodeEditorTest, ATypedCharacterIsOneEditAndItsEchoChangesNothing) {
  editor.setSource("<svg>\n</svg>");
  reset();
  editor.setSource("<svg>\r\n</svg>");  // the shown text, with another line end
  EXPECT_EQ(replacements, 0);
  QTest::keyClicks(&editor, "x");
  EXPECT_EQ(edits.count(), 1);
  EXPECT_EQ(editor.source(), "<svg>\n</svg>x");
  reset();
  editor.setSource(editor.source());
  QCoreApplication::processEvents();
  EXPECT_EQ(replacements, 0);
  EXPECT_TRUE(highlighter->texts.empty());
  EXPECT_TRUE(edits.isEmpty());
}

TEST_F(CodeEditorTest, AChangedMiddleOfAMegabyteReplacesOnlyTheMiddle) {
  std::string text;
  for (int i = 0; text.size() < 1'000'000; ++i) {
    text += "  <rect id=\"r" + std::to_string(i) + "\" width=\"10\" height=\"20\" fill=\"red\"/>\n";
  }
  editor.setSource(text);
  reset();
  const int lines = editor.document()->blockCount();
  QTextBlock before = editor.document()->findBlockByNumber(10);
  const QTextBlock after = editor.document()->findBlockByNumber(lines - 10);
  before.setUserState(1);
  const QTextLayout* beforeLayout = before.layout();
  const int afterPosition = after.position();
  editor.verticalScrollBar()->setValue(editor.verticalScrollBar()->maximum() / 3);
  const int scroll = editor.verticalScrollBar()->value();

  std::string changed = text;
  const std::size_t middle = changed.find("r9000\"");
  changed.replace(middle, 5, "blue-rectangle");  // 9 more bytes
  QElapsedTimer timer;
  timer.start();
  editor.setSource(changed);
  const qint64 elapsed = timer.nsecsElapsed();
  RecordProperty("setSourceMicroseconds", static_cast<int>(elapsed / 1000));

  EXPECT_EQ(editor.source(), changed);
  EXPECT_EQ(replacements, 1);
  EXPECT_TRUE(edits.isEmpty());
  EXPECT_EQ(editor.document()->findBlockByNumber(10).userState(), 1);
  EXPECT_EQ(editor.document()->findBlockByNumber(10).layout(), beforeLayout);
  EXPECT_EQ(editor.document()->findBlockByNumber(lines - 10).position(), afterPosition + 9);
  EXPECT_EQ(editor.verticalScrollBar()->value(), scroll);
  // One line changed: one paragraph to highlight.
  ASSERT_EQ(highlighter->texts.size(), 1u);
  EXPECT_EQ(highlighter->texts[0],
            u"  <rect id=\"blue-rectangle\" width=\"10\" height=\"20\" fill=\"red\"/>\n");
  EXPECT_LT(elapsed, 50'000'000) << "a middle change must not reset the whole text";
}

TEST_F(CodeEditorTest, AWriteFromOutsideClearsTheHistoryAndTypingIsUndoable) {
  editor.setSource("one");
  QTest::keyClicks(&editor, "A");
  editor.setSource("two");
  EXPECT_FALSE(editor.document()->isUndoAvailable());
  editor.undo();
  EXPECT_EQ(editor.source(), "two");

  editor.moveCursor(QTextCursor::End);
  QTest::keyClicks(&editor, "!");
  const int before = edits.count();
  editor.undo();
  EXPECT_EQ(editor.source(), "two");
  EXPECT_EQ(edits.count(), before + 1) << "undo is a change by the user";
}

TEST_F(CodeEditorTest, WithoutFlagsTheTextIsReadOnlyAndCopyDoesNothing) {
  editor.setSource("secret");
  QApplication::clipboard()->setText("before");
  editor.setFlags({});
  EXPECT_TRUE(editor.isReadOnly());
  EXPECT_EQ(editor.textInteractionFlags(), Qt::NoTextInteraction);
  editor.selectAll();
  editor.copy();
  QTest::keySequence(&editor, QKeySequence::Copy);
  EXPECT_EQ(QApplication::clipboard()->text(), "before");

  editor.setFlags(CodeEditor::Flags::selectable());
  EXPECT_TRUE(editor.isReadOnly());
  editor.selectAll();
  editor.copy();
  EXPECT_EQ(QApplication::clipboard()->text(), "secret");
}

struct FontRow {
  int action;
  double size;
  bool selection;
  FontCommand expected;
};

TEST(FontCommandTest, ActionsTable) {
  using Kind = FontCommand::Kind;
  const FontRow rows[] = {
      {1, 12, true, {Kind::useSelected}},  {1, 12, false, {Kind::notHandled}},
      {2, 12, true, {Kind::beep}},         {7, 12, false, {Kind::beep}},
      {3, 12, false, {Kind::setSize, 13}}, {4, 12, false, {Kind::setSize, 11}},
      {4, 1.5, false, {Kind::beep}},       {0, 12, false, {Kind::notHandled}},
      {5, 12, true, {Kind::notHandled}},   {-3, 12, false, {Kind::notHandled}},
  };
  for (const FontRow& row : rows) {
    EXPECT_EQ(fontCommand(row.action, row.size, row.selection), row.expected)
        << "action " << row.action << " at " << row.size;
  }
}

TEST_F(CodeEditorTest, FontCommandsAskTheWindowOrBeep) {
  int beeps = 0;
  editor.setBeep([&beeps] { ++beeps; });
  QFont font = editor.themeFont();
  font.setPointSizeF(12);
  editor.setThemeFont(font);
  QSignalSpy requested(&editor, &CodeEditor::fontChangeRequested);
  EXPECT_FALSE(editor.changeFont(3, std::nullopt)) << "not focused";

  focus();
  EXPECT_TRUE(editor.changeFont(3, std::nullopt));
  EXPECT_TRUE(editor.changeFont(2, std::nullopt));
  EXPECT_FALSE(editor.changeFont(99, std::nullopt));
  EXPECT_EQ(beeps, 1);
  ASSERT_EQ(requested.count(), 1);
  EXPECT_EQ(requested[0][0].value<QFont>().pointSizeF(), 13);
  EXPECT_EQ(editor.font().pointSizeF(), 12) << "the window sets the font on all its editors";
}

TEST_F(CodeEditorTest, APaletteChangePicksTheThemeAndRehighlights) {
  editor.setSource("<svg/>");
  reset();
  QPalette dark = editor.palette();
  dark.setColor(QPalette::Window, QColor(30, 30, 30));
  editor.setPalette(dark);
  ASSERT_FALSE(highlighter->themes.empty());
  EXPECT_EQ(highlighter->texts.back(), u"<svg/>");
  EXPECT_EQ(highlighter->themes.back()->classToProperties(),
            HighlightJSTheme::dark()->classToProperties());
}

struct DropRow {
  const char* name;
  bool fileURL;
  bool taken;
};

// Stands for the document window, which takes dropped files.
class DropTarget : public QWidget {
 public:
  int drops = 0;

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override { event->acceptProposedAction(); }
  void dropEvent(QDropEvent* event) override {
    ++drops;
    event->acceptProposedAction();
  }
};

TEST_F(CodeEditorTest, DropsOfFilesGoOnToTheWindowAndTextIsInserted) {
  DropTarget window;
  window.setAcceptDrops(true);
  editor.setParent(&window);
  window.show();
  editor.setSource("<svg/>");
  for (const DropRow row : {DropRow{"file", true, false}, DropRow{"text", false, true}}) {
    edits.clear();
    window.drops = 0;
    QMimeData data;
    if (row.fileURL) data.setUrls({QUrl::fromLocalFile("/tmp/art.svg")});
    data.setText("<g/>");
    const QPointF point(20, 12);
    QDragEnterEvent enter(point.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(editor.viewport(), &enter);
    QDropEvent drop(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(editor.viewport(), &drop);
    EXPECT_EQ(window.drops, row.fileURL ? 1 : 0) << row.name;
    EXPECT_EQ(edits.count(), row.taken ? 1 : 0) << row.name;
    EXPECT_EQ(editor.source().find("<g/>") != std::string::npos, row.taken) << row.name;
  }
  editor.setParent(nullptr);
}

struct ReplacementRow {
  const char* from;
  const char* to;
  TextReplacement expected;
};

TEST(MiddleReplacementTest, KeepsPrefixAndSuffixOfWholeCharacters) {
  const ReplacementRow rows[] = {
      {"abcdef", "abXdef", {2, 1, 1}},
      {"abc", "abc", {3, 0, 0}},
      {"", "new", {0, 0, 3}},
      {"aaa", "aaaa", {3, 0, 1}},               // the suffix never overlaps the prefix
      {"x\u00E9y", "x\u00EAy", {1, 2, 2}},      // é and ê share their first byte
      {"\U0001F600", "\U0001F601", {0, 4, 4}},  // so do two emoji, and their suffix
      {"a\u00E9", "a\u00E9\u00E9", {3, 0, 2}},
  };
  for (const ReplacementRow& row : rows) {
    EXPECT_EQ(middleReplacement(row.from, row.to), row.expected) << row.from << " -> " << row.to;
  }
  EXPECT_EQ(utf16Length("a\u00E9\u20AC\U0001F600"), 5u);
}

}  // namespace
}  // namespace FigurerUtilities
