#include "FigurerUtilities/CodeEditor.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFontDatabase>
#include <QFontInfo>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QUrl>
#include <QWheelEvent>

#include "FigurerUtilities/FontCommand.h"
#include "TextReplacement.h"

namespace FigurerUtilities {

namespace {

constexpr int kTextInset = 8;

double pointSize(const QFont& font) {
  return font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
}

Highlight::ThemeFont toThemeFont(const QFont& font) {
  return {font.family().toStdString(), pointSize(font), font.weight() >= QFont::Bold,
          font.italic()};
}

bool isDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < 128;
}

}  // namespace

CodeEditor::CodeEditor(std::shared_ptr<Highlight::Highlighter> highlighter,
                       std::optional<std::string> language, QWidget* parent)
    : QPlainTextEdit(parent), beep_([] { QApplication::beep(); }) {
  setLineWrapMode(QPlainTextEdit::WidgetWidth);
  setUndoRedoEnabled(true);
  document()->setDocumentMargin(kTextInset);
  storage_ = std::make_unique<Highlight::HighlightTextStorage>(document(), std::move(highlighter));
  storage_->setLanguage(std::move(language));
  storage_->setVisibleRangeProvider([this] { return visibleRange(); });
  connect(document(), &QTextDocument::contentsChange, this, &CodeEditor::contentsChanged);
  setThemeFont(defaultFont());
}

CodeEditor::~CodeEditor() = default;

QFont CodeEditor::defaultFont() {
  return QFontDatabase::systemFont(QFontDatabase::FixedFont);
}

void CodeEditor::setSource(std::string_view text) {
  std::string normalized;
  if (text.find('\r') != std::string_view::npos) {
    normalized.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (text[i] != '\r') {
        normalized += text[i];
      } else if (i + 1 >= text.size() || text[i + 1] != '\n') {
        normalized += '\n';
      }
    }
    text = normalized;
  }
  const std::string& shown = shownText();
  if (text == shown) return;

  // All work stays proportional to the change, apart from comparing bytes and counting
  // characters in the common prefix; the text is never decoded or copied whole.
  const TextReplacement change = middleReplacement(shown, text);
  const QString inserted =
      QString::fromUtf8(text.data() + change.start, static_cast<qsizetype>(change.inserted));
  // Bytes that are not UTF-8 show as replacement characters, and are kept as such.
  const QByteArray insertedUTF8 = inserted.toUtf8();
  const std::string_view removedUTF8 = std::string_view(shown).substr(change.start, change.removed);
  if (removedUTF8 == std::string_view(insertedUTF8.constData(), insertedUTF8.size())) return;
  const int start = static_cast<int>(utf16Length(std::string_view(shown).substr(0, change.start)));
  const int removed = static_cast<int>(utf16Length(removedUTF8));

  const int vertical = verticalScrollBar()->value();
  const int horizontal = horizontalScrollBar()->value();
  writingSource_ = true;
  // The user's history does not describe the new text, and a write from outside is not the
  // user's to undo: switching undo off for the edit also clears the history.
  document()->setUndoRedoEnabled(false);
  QTextCursor cursor(document());
  cursor.setPosition(start);
  cursor.setPosition(start + removed, QTextCursor::KeepAnchor);
  cursor.insertText(inserted);
  document()->setUndoRedoEnabled(true);
  writingSource_ = false;

  // Room to grow, so that the next small change does not copy the whole text.
  const std::size_t size =
      shown_.size() - change.removed + static_cast<std::size_t>(insertedUTF8.size());
  if (size > shown_.capacity()) shown_.reserve(size + size / 8);
  shown_.replace(change.start, change.removed, insertedUTF8.constData(), insertedUTF8.size());
  shownLength_ += static_cast<int>(inserted.size()) - removed;
  // Characters that the document turns into something else (paragraph breaks of its own).
  if (shownLength_ != document()->characterCount() - 1) shownStale_ = true;
  verticalScrollBar()->setValue(vertical);
  horizontalScrollBar()->setValue(horizontal);
}

std::string CodeEditor::source() const {
  return shownText();
}

const std::string& CodeEditor::shownText() const {
  if (shownStale_) {
    QString text = document()->toRawText();
    shownLength_ = static_cast<int>(text.size());
    // A line break typed with Shift+Return counts as one, like a paragraph break.
    for (QChar& c : text) {
      if (c == QChar::ParagraphSeparator || c == QChar::LineSeparator) c = QLatin1Char('\n');
    }
    shown_ = text.toStdString();
    shownStale_ = false;
  }
  return shown_;
}

const std::optional<std::string>& CodeEditor::language() const {
  return storage_->language();
}

void CodeEditor::setLanguage(std::optional<std::string> language) {
  storage_->setLanguage(std::move(language));
}

void CodeEditor::setFlags(Flags flags) {
  flags_ = flags;
  const bool editable = flags.contains(Flags::editable());
  const bool selectable = flags.contains(Flags::selectable());
  setReadOnly(!editable);
  Qt::TextInteractionFlags interaction = Qt::NoTextInteraction;
  if (selectable) interaction |= Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard;
  if (editable) interaction |= Qt::TextEditable;
  setTextInteractionFlags(interaction);
  if (!selectable) {
    QTextCursor cursor = textCursor();
    cursor.clearSelection();
    setTextCursor(cursor);
  }
}

void CodeEditor::setThemeFont(const QFont& font) {
  themeFont_ = font;
  setFont(font);
  updateTheme();
}

bool CodeEditor::changeFont(int action, std::optional<QFont> selected) {
  if (!hasFocus()) return false;
  return applyFontCommand(action, selected);
}

bool CodeEditor::applyFontCommand(int action, const std::optional<QFont>& selected) {
  const FontCommand command = fontCommand(action, pointSize(themeFont_), selected.has_value());
  switch (command.kind) {
    case FontCommand::Kind::notHandled:
      return false;
    case FontCommand::Kind::beep:
      if (beep_) beep_();
      return true;
    case FontCommand::Kind::useSelected:
      Q_EMIT fontChangeRequested(*selected);
      return true;
    case FontCommand::Kind::setSize: {
      QFont font = themeFont_;
      font.setPointSizeF(command.pointSize);
      Q_EMIT fontChangeRequested(font);
      return true;
    }
  }
  return false;
}

void CodeEditor::setBeep(std::function<void()> beep) {
  beep_ = std::move(beep);
}

void CodeEditor::setAcceptableDropTypes(QStringList mimeTypes) {
  acceptableDropTypes_ = std::move(mimeTypes);
}

void CodeEditor::copy() {
  if (flags_ == Flags{}) return;
  QPlainTextEdit::copy();
}

void CodeEditor::changeEvent(QEvent* event) {
  QPlainTextEdit::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
    updateTheme();
}

void CodeEditor::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy) && flags_ == Flags{}) {
    event->accept();
    return;
  }
  QPlainTextEdit::keyPressEvent(event);
}

void CodeEditor::wheelEvent(QWheelEvent* event) {
  // The size steps of the shared font, not a zoom of this editor alone.
  if (event->modifiers() & Qt::ControlModifier) {
    const int delta = event->angleDelta().y();
    if (delta != 0) {
      applyFontCommand(static_cast<int>(delta > 0 ? FontAction::sizeUp : FontAction::sizeDown),
                       std::nullopt);
    }
    event->accept();
    return;
  }
  QPlainTextEdit::wheelEvent(event);
}

bool CodeEditor::takesDrop(const QMimeData* data) const {
  if (!data || isReadOnly()) return false;
  if (data->hasUrls()) {
    for (const QUrl& url : data->urls()) {
      if (url.isLocalFile()) return false;
    }
  }
  for (const QString& type : acceptableDropTypes_) {
    if (data->hasFormat(type)) return true;
  }
  return false;
}

void CodeEditor::dragEnterEvent(QDragEnterEvent* event) {
  if (!takesDrop(event->mimeData())) {
    event->ignore();
    return;
  }
  QPlainTextEdit::dragEnterEvent(event);
}

void CodeEditor::dragMoveEvent(QDragMoveEvent* event) {
  if (!takesDrop(event->mimeData())) {
    event->ignore();
    return;
  }
  QPlainTextEdit::dragMoveEvent(event);
}

void CodeEditor::dropEvent(QDropEvent* event) {
  if (!takesDrop(event->mimeData())) {
    event->ignore();
    return;
  }
  QPlainTextEdit::dropEvent(event);
}

void CodeEditor::contentsChanged(int, int charsRemoved, int charsAdded) {
  if (writingSource_ || (charsRemoved == 0 && charsAdded == 0)) return;
  // Read again when next needed: a keystroke costs no copy of the text here.
  shownStale_ = true;
  Q_EMIT sourceEdited();
}

void CodeEditor::updateTheme() {
  const auto base = isDark(palette()) ? Highlight::HighlightJSTheme::dark()
                                      : Highlight::HighlightJSTheme::light();
  storage_->setTheme(Highlight::HighlightJSTheme::derivedWithFont(base, toThemeFont(themeFont_)));
}

Highlight::TextRange CodeEditor::visibleRange() const {
  const QTextBlock first = firstVisibleBlock();
  if (!first.isValid()) return {};
  const QTextBlock last = cursorForPosition(QPoint(0, viewport()->height() - 1)).block();
  const int end =
      last.isValid() ? last.position() + last.length() : first.position() + first.length();
  return {first.position(), std::max(0, end - first.position())};
}

}  // namespace FigurerUtilities
