// The one text surface of the desktop program, for both the SVG text and the generated source:
// plain text, highlighted without ever waiting for the highlighter, bound to the document's
// text in both directions.
//
// Lines wrap at the widget's width (there is only a vertical scroller). Undo works on the
// user's own edits; a text written from outside (setSource) clears the history.
#pragma once

#include <QFont>
#include <QPlainTextEdit>
#include <QStringList>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "Highlight/HighlightJS.h"
#include "Highlight/HighlightTextStorage.h"

namespace FigurerUtilities {

struct CodeEditorFlags {
  std::uint8_t rawValue = 0;

  static constexpr CodeEditorFlags editable() { return {1}; }
  static constexpr CodeEditorFlags selectable() { return {2}; }
  static constexpr CodeEditorFlags all() { return {3}; }

  constexpr bool contains(CodeEditorFlags other) const {
    return (rawValue & other.rawValue) == other.rawValue;
  }
  constexpr CodeEditorFlags operator|(CodeEditorFlags other) const {
    return {static_cast<std::uint8_t>(rawValue | other.rawValue)};
  }
  bool operator==(const CodeEditorFlags&) const = default;
};

class CodeEditor : public QPlainTextEdit {
  Q_OBJECT

 public:
  using Flags = CodeEditorFlags;

  // A null highlighter leaves the text plain. `language` is highlight.js's name ("swift",
  // "xml"); none lets it guess.
  CodeEditor(std::shared_ptr<Highlight::Highlighter> highlighter,
             std::optional<std::string> language, QWidget* parent = nullptr);
  ~CodeEditor() override;

  // The system's fixed-pitch font, every editor's font until told otherwise.
  static QFont defaultFont();

  // The view update of the binding: a text equal to the shown one changes nothing at all;
  // otherwise only the differing middle is replaced, outside the undo history (which is
  // cleared), keeping the scroll position, and without sourceEdited. Line ends "\r\n" and "\r"
  // are shown as "\n".
  void setSource(std::string_view text);
  // The shown text, UTF-8, line ends as "\n".
  std::string source() const;

  const std::optional<std::string>& language() const;
  // A different language re-highlights the whole text.
  void setLanguage(std::optional<std::string> language);

  Flags flags() const { return flags_; }
  void setFlags(Flags flags);

  // The font that all editors of a window share. The highlighting theme is derived with it.
  QFont themeFont() const { return themeFont_; }
  void setThemeFont(const QFont& font);

  // A font command (FontAction numbers) while this editor has focus. A new font is not set
  // here but asked for through fontChangeRequested, so that the window sets it on all its
  // editors; trait commands beep. Returns false when the command is not this editor's.
  bool changeFont(int action, std::optional<QFont> selected);
  // What beeps; QApplication::beep by default.
  void setBeep(std::function<void()> beep);

  // The MIME types a drop may bring; "text/plain" by default. Drops of local files are never
  // taken here: they go on to the window.
  void setAcceptableDropTypes(QStringList mimeTypes);
  const QStringList& acceptableDropTypes() const { return acceptableDropTypes_; }

  // Copies the selection, unless the text is neither editable nor selectable.
  void copy();

  Highlight::HighlightTextStorage& highlightStorage() { return *storage_; }

 Q_SIGNALS:
  // Once for each change of the text by the user (typing, paste, cut, drop, undo, redo);
  // never for setSource. The new text is source().
  void sourceEdited();
  void fontChangeRequested(const QFont& font);

 protected:
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void contentsChanged(int position, int charsRemoved, int charsAdded);
  bool applyFontCommand(int action, const std::optional<QFont>& selected);
  bool takesDrop(const QMimeData* data) const;
  void updateTheme();
  Highlight::TextRange visibleRange() const;
  // The shown text as UTF-8, line breaks as "\n".
  const std::string& shownText() const;

  std::unique_ptr<Highlight::HighlightTextStorage> storage_;
  // What the document holds, so that setSource compares and diffs without reading the
  // document. A user's edit makes it stale; it is read again when next needed.
  mutable std::string shown_;
  mutable int shownLength_ = 0;  // in UTF-16 units, the document's positions
  mutable bool shownStale_ = false;
  bool writingSource_ = false;
  Flags flags_ = Flags::all();
  QFont themeFont_;
  std::function<void()> beep_;
  QStringList acceptableDropTypes_{QStringLiteral("text/plain")};
};

}  // namespace FigurerUtilities
