// Keeps a QTextDocument highlighted: every text edit re-highlights the paragraphs it touched,
// and results come back as format ranges on the blocks' layouts (the editor's "inner storage"),
// which neither changes the text nor reaches the undo stack or triggers a new request.
#pragma once

#include <QObject>
#include <QPointer>
#include <QTextCharFormat>
#include <QTextDocument>
#include <memory>
#include <optional>
#include <string>

#include "Highlight/HighlightJS.h"
#include "Highlight/HighlightJSTheme.h"
#include "Highlight/StyledText.h"

namespace Highlight {

// A range of document positions (UTF-16 units; a paragraph break counts one).
struct TextRange {
  int start = 0;
  int length = 0;
  int end() const { return start + length; }
  bool operator==(const TextRange&) const = default;
};

class HighlightTextStorage : public QObject {
  Q_OBJECT

 public:
  // A null highlighter leaves the text plain. Completions arrive through `completionQueue`
  // (the Qt main thread unless told otherwise).
  HighlightTextStorage(QTextDocument* document, std::shared_ptr<Highlighter> highlighter,
                       QObject* parent = nullptr, Executor completionQueue = mainThreadExecutor());

  QTextDocument* document() const { return document_; }

  const std::optional<std::string>& language() const { return language_; }
  // A different language re-highlights the whole text.
  void setLanguage(std::optional<std::string> language);
  const std::shared_ptr<const HighlightJSTheme>& theme() const { return theme_; }
  // A different theme (by theme equality) re-highlights the whole text.
  void setTheme(std::shared_ptr<const HighlightJSTheme> theme);

  // The whole paragraphs that `range` touches, with their paragraph breaks.
  TextRange paragraphRange(TextRange range) const;
  int textLength() const;
  // The plain text of `range`, paragraph breaks as "\n".
  std::u16string text(TextRange range) const;
  // The highlighting shown at a position (an empty format where there is none).
  QTextCharFormat formatAt(int position) const;

  void highlightRange(TextRange range);
  void highlightAll() { highlightRange({0, textLength()}); }
  // Applies a result made for `range`. Drops it when the text has changed since, and makes no
  // edit when it equals what is shown. Returns whether it changed anything.
  bool applyHighlight(const StyledText& result, TextRange range);

 Q_SIGNALS:
  // An attributes-only edit of the range: the highlighting of these characters changed.
  void highlightApplied(int start, int length);

 private:
  void contentsChanged(int position, int charsRemoved, int charsAdded);

  QPointer<QTextDocument> document_;
  std::shared_ptr<Highlighter> highlighter_;
  Executor completionQueue_;
  std::optional<std::string> language_;
  std::shared_ptr<const HighlightJSTheme> theme_ = HighlightJSTheme::light();
};

}  // namespace Highlight
