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
#include <sstream>

#include "FigurerUtilities/FontCommand.h"
#include "FigurerUtilities/Transcript.h"
#include "Highlight/TestSupport.h"
#include "TextReplacement.h"

namespace FigurerUtilities {
namespace {

using Highlight::HighlightJSTheme;
using Highlight::RecordingHighlighter;

class CodeEditorTest : public testing::Test {
 protected:
  void SetUp() override {
    QObject::connect(editor.document(), &QTextDocument::contentsChange,
                     [this](int, int, int) { ++replacements; });
  }
  void reset() {
    QCoreApplication::processEvents();
    highlighter->requests.clear();
    replacements = 0;
    edits.clear();
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
  EXPECT_TRUE(highlighter->requests.empty());
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
  ASSERT_EQ(highlighter->requests.size(), 1u);
  EXPECT_EQ(highlighter->requests[0].text,
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

// Each input is a font panel action, the current size and whether text is selected.
TEST(FontCommandTest, ActionsTable) {
  Transcript::expect(
      "FigurerUtilities/editor/data/font-commands.txt", [](const std::string& input) {
        std::istringstream fields(input);
        int action = 0;
        double size = 0;
        std::string selection;
        fields >> action >> size >> selection;
        const FontCommand command = fontCommand(action, size, selection == "selected");
        const char* kinds[] = {"not handled", "use the selected font", "set the size to", "beep"};
        return "> " + std::string(kinds[int(command.kind)]) +
               (command.kind == FontCommand::Kind::setSize ? " " + std::to_string(command.pointSize)
                                                           : "") +
               (command.kind != FontCommand::Kind::setSize && command.pointSize != 0 ? " (a size!)"
                                                                                     : "") +
               "\n";
      });
}

TEST_F(CodeEditorTest, FontCommandsAskTheWindowOrBeep) {
  int beeps = 0;
  editor.setBeep([&beeps] { ++beeps; });
  QFont font = editor.themeFont();
  font.setPointSizeF(12);
  editor.setThemeFont(font);
  QSignalSpy requested(&editor, &CodeEditor::fontChangeRequested);
  EXPECT_FALSE(editor.changeFont(3, std::nullopt)) << "not focused";

  editor.show();
  editor.activateWindow();
  editor.setFocus();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&editor));
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
  ASSERT_FALSE(highlighter->requests.empty());
  EXPECT_EQ(highlighter->requests.back().text, u"<svg/>");
  EXPECT_EQ(highlighter->requests.back().theme->classToProperties(),
            HighlightJSTheme::dark()->classToProperties());
}

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
  // A file goes on to the window; text is taken.
  for (const bool file : {true, false}) {
    edits.clear();
    window.drops = 0;
    QMimeData data;
    if (file) data.setUrls({QUrl::fromLocalFile("/tmp/art.svg")});
    data.setText("<g/>");
    const QPointF point(20, 12);
    QDragEnterEvent enter(point.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(editor.viewport(), &enter);
    QDropEvent drop(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(editor.viewport(), &drop);
    EXPECT_EQ(window.drops, file ? 1 : 0) << file;
    EXPECT_EQ(edits.count(), file ? 0 : 1) << file;
    EXPECT_EQ(editor.source().find("<g/>") == std::string::npos, file) << file;
  }
  editor.setParent(nullptr);
}

// Each input is a text and the text replacing it: the replacement that keeps the common prefix and
// suffix, as start, bytes removed and bytes inserted.
TEST(MiddleReplacementTest, KeepsPrefixAndSuffixOfWholeCharacters) {
  Transcript::expect(
      "FigurerUtilities/editor/data/middle-replacements.txt", [](const std::string& input) {
        const auto arrow = input.find(" -> ");
        const auto r = middleReplacement(input.substr(0, arrow), input.substr(arrow + 4));
        return "> " + std::to_string(r.start) + " " + std::to_string(r.removed) + " " +
               std::to_string(r.inserted) + "\n";
      });
  EXPECT_EQ(utf16Length("a\u00E9\u20AC\U0001F600"), 5u);
}

}  // namespace
}  // namespace FigurerUtilities
