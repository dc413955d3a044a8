// Keeps a QTextDocument highlighted: every text edit re-highlights the paragraphs it touched,
// and results come back as format ranges on the blocks' layouts (the editor's "inner storage"),
// which neither changes the text nor reaches the undo stack or triggers a new request.
//
// highlight.js takes super-linear time in the length of what it is given, so a large range
// (a whole new text, a theme change) is never sent in one piece: it waits as "pending" text and
// goes out in chunks of whole paragraphs, the visible part first, only a few at a time, so that
// the small request of the next keystroke is never queued behind a megabyte of work. An edit
// cancels the requests whose text it changed.
#pragma once

#include <QObject>
#include <QPointer>
#include <QTextCharFormat>
#include <QTextDocument>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

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
  // The largest request, in UTF-16 units. A paragraph longer than this is cut inside, after a
  // blank or a tag's end where there is one.
  static constexpr int kChunkLimit = 4096;
  // Longer paragraphs stay plain: highlighting a minified megabyte would cost the worker
  // seconds for every keystroke in it, and Qt a relayout of the whole line to show the result.
  static constexpr int kLongestHighlightedParagraph = 32768;
  // Chunks in flight at once. The request of an edit that fits one chunk never waits for them.
  static constexpr int kMaxChunksInFlight = 2;

  // The part of the text on screen, asked each time a chunk is picked.
  using VisibleRangeProvider = std::function<TextRange()>;

  // A null highlighter leaves the text plain. Completions arrive through `completionQueue`
  // (the Qt main thread unless told otherwise).
  HighlightTextStorage(QTextDocument* document, std::shared_ptr<Highlighter> highlighter,
                       QObject* parent = nullptr, Executor completionQueue = mainThreadExecutor());
  // Cancels whatever is still in flight.
  ~HighlightTextStorage() override;

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

  void setVisibleRangeProvider(VisibleRangeProvider provider);

  // Requests `range` at once when it fits one chunk; otherwise it becomes pending and goes out
  // in chunks from the event loop. Requests in flight over the range are cancelled.
  void highlightRange(TextRange range);
  void highlightAll() { highlightRange({0, textLength()}); }
  // Text waiting to be requested, in order, and the requests not yet answered.
  const std::vector<TextRange>& pendingRanges() const { return pending_; }
  int requestsInFlight() const { return static_cast<int>(inFlight_.size()); }
  // Applies a result made for `range`. Drops it when the text has changed since, and makes no
  // edit when it equals what is shown. Returns whether it changed anything.
  bool applyHighlight(const StyledText& result, TextRange range);

 Q_SIGNALS:
  // An attributes-only edit of the range: the highlighting of these characters changed.
  void highlightApplied(int start, int length);

 private:
  struct Request {
    std::uint64_t id;
    TextRange range;  // follows the edits before it
    std::shared_ptr<WorkItem> item;
  };

  void contentsChanged(int position, int charsRemoved, int charsAdded);
  TextRange clamped(TextRange range) const;
  // Moves pending ranges and requests along an edit; requests whose text it touched are
  // cancelled and their ranges become pending again.
  void followEdit(int position, int charsRemoved, int charsAdded);
  void addPending(TextRange range);
  void removePending(TextRange range);
  void cancelRequestsOver(TextRange range);
  void request(TextRange range);
  void finished(std::uint64_t id, std::optional<StyledText> result);
  // Sets the result's formats without telling the layout; false when it is stale or equal.
  bool setFormats(const StyledText& result, TextRange range);
  void notifyApplied(TextRange range);
  bool stillComing(TextRange range) const;
  void deferLayout(TextRange range);
  void flushDeferredLayouts();
  void schedulePump();
  void pump();
  TextRange nextChunk() const;
  // Drops the highlighting of a paragraph too long to highlight.
  void leavePlain(TextRange paragraph);
  // The chunk that starts at `start` and ends at `end` at the latest.
  TextRange chunkFrom(int start, int end) const;

  QPointer<QTextDocument> document_;
  std::shared_ptr<Highlighter> highlighter_;
  Executor completionQueue_;
  std::optional<std::string> language_;
  std::shared_ptr<const HighlightJSTheme> theme_ = HighlightJSTheme::light();
  VisibleRangeProvider visibleRange_;
  std::vector<TextRange> pending_;  // sorted, disjoint, not touching
  std::vector<Request> inFlight_;
  struct HeldResult {
    TextRange range;
    StyledText result;
  };
  std::vector<TextRange> deferredLayouts_;  // long paragraphs waiting for their last chunk
  std::vector<HeldResult> held_;            // their results so far
  std::uint64_t nextRequestId_ = 0;
  bool pumpScheduled_ = false;
  bool pumping_ = false;
};

}  // namespace Highlight
