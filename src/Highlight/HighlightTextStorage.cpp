#include "Highlight/HighlightTextStorage.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>
#include <algorithm>
#include <vector>

#include "Highlight/QtStyle.h"

namespace Highlight {

namespace {

// Formats by index, so that per-character comparisons compare small integers.
class FormatTable {
 public:
  int indexOf(const QTextCharFormat& format) {
    for (std::size_t i = 0; i < formats_.size(); ++i) {
      if (formats_[i] == format) return static_cast<int>(i);
    }
    formats_.push_back(format);
    return static_cast<int>(formats_.size() - 1);
  }

 private:
  std::vector<QTextCharFormat> formats_;
};

bool overlaps(TextRange a, TextRange b) {
  return a.start < b.end() && b.start < a.end();
}

// The format ranges of a block, in block-relative positions, with [from, to) cut out.
QList<QTextLayout::FormatRange> withoutSpan(const QList<QTextLayout::FormatRange>& ranges, int from,
                                            int to) {
  QList<QTextLayout::FormatRange> kept;
  for (const QTextLayout::FormatRange& range : ranges) {
    const int end = range.start + range.length;
    if (range.start < from)
      kept.append({range.start, std::min(end, from) - range.start, range.format});
    if (end > to) {
      const int start = std::max(range.start, to);
      kept.append({start, end - start, range.format});
    }
  }
  return kept;
}

}  // namespace

HighlightTextStorage::HighlightTextStorage(QTextDocument* document,
                                           std::shared_ptr<Highlighter> highlighter,
                                           QObject* parent, Executor completionQueue)
    : QObject(parent),
      document_(document),
      highlighter_(std::move(highlighter)),
      completionQueue_(completionQueue ? std::move(completionQueue) : mainThreadExecutor()) {
  if (document_) {
    // The document reports edits only once it has a layout, which it otherwise makes lazily.
    document_->documentLayout();
    connect(document_, &QTextDocument::contentsChange, this,
            &HighlightTextStorage::contentsChanged);
  }
}

HighlightTextStorage::~HighlightTextStorage() {
  for (const Request& request : inFlight_) request.item->cancel();
}

void HighlightTextStorage::setVisibleRangeProvider(VisibleRangeProvider provider) {
  visibleRange_ = std::move(provider);
}

void HighlightTextStorage::setLanguage(std::optional<std::string> language) {
  if (language == language_) return;
  language_ = std::move(language);
  highlightAll();
}

void HighlightTextStorage::setTheme(std::shared_ptr<const HighlightJSTheme> theme) {
  if (!theme) theme = HighlightJSTheme::light();
  if (sameTheme(theme, theme_)) return;
  theme_ = std::move(theme);
  highlightAll();
}

int HighlightTextStorage::textLength() const {
  // characterCount() counts the final paragraph break, which is not part of the text.
  return document_ ? std::max(0, document_->characterCount() - 1) : 0;
}

TextRange HighlightTextStorage::paragraphRange(TextRange range) const {
  if (!document_) return {};
  const int length = textLength();
  const int start = std::clamp(range.start, 0, length);
  const int end = std::clamp(range.end(), start, length);
  const QTextBlock first = document_->findBlock(start);
  // The paragraph of the last character in the range, or of `start` for an empty range.
  const QTextBlock last = document_->findBlock(end > start ? end - 1 : start);
  const int from = first.isValid() ? first.position() : start;
  const int to = last.isValid() ? std::min(last.position() + last.length(), length) : end;
  return {from, std::max(0, to - from)};
}

std::u16string HighlightTextStorage::text(TextRange range) const {
  if (!document_ || range.length <= 0) return {};
  QTextCursor cursor(document_);
  cursor.setPosition(std::clamp(range.start, 0, textLength()));
  cursor.setPosition(std::clamp(range.end(), 0, textLength()), QTextCursor::KeepAnchor);
  QString selected = cursor.selectedText();
  selected.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
  return selected.toStdU16String();
}

QTextCharFormat HighlightTextStorage::formatAt(int position) const {
  if (!document_) return {};
  const QTextBlock block = document_->findBlock(position);
  if (!block.isValid() || !block.layout()) return {};
  const int relative = position - block.position();
  QTextCharFormat found;
  for (const QTextLayout::FormatRange& range : block.layout()->formats()) {
    if (relative >= range.start && relative < range.start + range.length) found = range.format;
  }
  return found;
}

TextRange HighlightTextStorage::clamped(TextRange range) const {
  const int length = textLength();
  const int start = std::clamp(range.start, 0, length);
  return {start, std::clamp(range.end(), start, length) - start};
}

void HighlightTextStorage::contentsChanged(int position, int charsRemoved, int charsAdded) {
  followEdit(position, charsRemoved, charsAdded);
  highlightRange(paragraphRange({position, charsAdded}));
}

void HighlightTextStorage::followEdit(int position, int charsRemoved, int charsAdded) {
  const int delta = charsAdded - charsRemoved;
  const int removedEnd = position + charsRemoved;
  // Returns whether the edit touched the range's own characters; such a range grows over the
  // edit.
  auto follow = [&](TextRange& range) {
    if (range.end() <= position) return false;
    if (range.start >= removedEnd) {
      range.start += delta;
      return false;
    }
    const int start = std::min(range.start, position);
    range = {start, std::max(0, std::max(range.end(), removedEnd) + delta - start)};
    return true;
  };

  std::vector<TextRange> pending = std::move(pending_);
  pending_.clear();
  for (TextRange& range : pending) {
    follow(range);
    addPending(range);
  }
  for (TextRange& range : deferredLayouts_) follow(range);
  // A held result whose text the edit touched is stale; the edit asks for its own.
  std::erase_if(held_, [&](HeldResult& held) { return follow(held.range); });
  std::vector<Request> kept;
  for (Request& request : inFlight_) {
    if (follow(request.range)) {
      request.item->cancel();
      addPending(request.range);
    } else {
      kept.push_back(std::move(request));
    }
  }
  inFlight_ = std::move(kept);
}

void HighlightTextStorage::addPending(TextRange range) {
  range = clamped(range);
  if (range.length <= 0) return;
  // Ranges that overlap or touch the new one merge with it.
  auto first = std::find_if(pending_.begin(), pending_.end(),
                            [&](const TextRange& r) { return r.end() >= range.start; });
  auto last = first;
  int start = range.start;
  int end = range.end();
  while (last != pending_.end() && last->start <= end) {
    start = std::min(start, last->start);
    end = std::max(end, last->end());
    ++last;
  }
  first = pending_.erase(first, last);
  pending_.insert(first, TextRange{start, end - start});
}

void HighlightTextStorage::removePending(TextRange range) {
  std::vector<TextRange> kept;
  kept.reserve(pending_.size() + 1);
  for (const TextRange& r : pending_) {
    if (!overlaps(r, range)) {
      kept.push_back(r);
      continue;
    }
    if (r.start < range.start) kept.push_back({r.start, range.start - r.start});
    if (r.end() > range.end()) kept.push_back({range.end(), r.end() - range.end()});
  }
  pending_ = std::move(kept);
}

void HighlightTextStorage::cancelRequestsOver(TextRange range) {
  std::erase_if(inFlight_, [&](const Request& request) {
    if (!overlaps(request.range, range)) return false;
    request.item->cancel();
    addPending(request.range);
    return true;
  });
}

void HighlightTextStorage::highlightRange(TextRange range) {
  if (!document_ || !highlighter_) return;
  range = clamped(range);
  if (range.length <= 0) return;
  cancelRequestsOver(range);
  if (range.length <= kChunkLimit) {
    removePending(range);
    request(range);
  } else {
    addPending(range);
  }
  // What cancelled requests left over, or the large range itself.
  if (!pending_.empty()) schedulePump();
}

void HighlightTextStorage::request(TextRange range) {
  const std::uint64_t id = nextRequestId_++;
  inFlight_.push_back({id, range, nullptr});
  QPointer<HighlightTextStorage> self(this);
  auto item = highlighter_->highlight(text(range), language_, theme_, completionQueue_,
                                      [self, id](std::optional<StyledText> result) {
                                        // A storage deleted meanwhile simply drops its result.
                                        if (self) self->finished(id, std::move(result));
                                      });
  if (!item) item = std::make_shared<WorkItem>();
  // An inline completion may already have taken the request off the list.
  for (Request& request : inFlight_) {
    if (request.id == id) request.item = item;
  }
}

void HighlightTextStorage::finished(std::uint64_t id, std::optional<StyledText> result) {
  auto it = std::find_if(inFlight_.begin(), inFlight_.end(),
                         [id](const Request& request) { return request.id == id; });
  // Not found: an edit cancelled it and asked again.
  if (it == inFlight_.end()) return;
  const TextRange range = it->range;
  inFlight_.erase(it);
  if (result) {
    // Qt lays a paragraph out whole whenever its formats change, so a long line would be laid
    // out again for each of its chunks (and for each paint in between): its results are held
    // until its last chunk is in, and then set at once.
    const TextRange paragraphs = paragraphRange(range);
    if (paragraphs.length > kChunkLimit && stillComing(paragraphs)) {
      held_.push_back({range, std::move(*result)});
      deferLayout(paragraphs);
    } else if (setFormats(*result, range)) {
      notifyApplied(range);
    }
  }
  flushDeferredLayouts();
  pump();
}

void HighlightTextStorage::schedulePump() {
  if (pumpScheduled_) return;
  pumpScheduled_ = true;
  // From the event loop, so that the edits of one turn (a whole-text replacement and the
  // keystroke after it) are settled before any chunk is cut.
  QMetaObject::invokeMethod(
      this,
      [this] {
        pumpScheduled_ = false;
        pump();
      },
      Qt::QueuedConnection);
}

void HighlightTextStorage::pump() {
  if (pumping_ || !document_ || !highlighter_) return;
  pumping_ = true;
  while (static_cast<int>(inFlight_.size()) < kMaxChunksInFlight && !pending_.empty()) {
    const TextRange chunk = nextChunk();
    if (chunk.length <= 0) {
      pending_.clear();  // only out-of-date ranges beyond the text were left
      break;
    }
    const TextRange paragraph = paragraphRange({chunk.start, 0});
    if (paragraph.length > kLongestHighlightedParagraph) {
      removePending(paragraph);
      leavePlain(paragraph);
      continue;
    }
    removePending(chunk);
    request(chunk);
  }
  pumping_ = false;
}

void HighlightTextStorage::leavePlain(TextRange paragraph) {
  QTextLayout* layout = document_->findBlock(paragraph.start).layout();
  if (!layout || layout->formats().isEmpty()) return;
  layout->clearFormats();
  notifyApplied(paragraph);
}

TextRange HighlightTextStorage::nextChunk() const {
  const TextRange visible = visibleRange_ ? clamped(visibleRange_()) : TextRange{};
  if (visible.length > 0) {
    for (const TextRange& range : pending_) {
      if (!overlaps(range, visible)) continue;
      // From the paragraph where the screen starts, unless the pending text starts later.
      const int screenStart = paragraphRange({visible.start, 0}).start;
      return chunkFrom(std::max(range.start, screenStart), range.end());
    }
  }
  // Then downwards from the screen, then from the top.
  for (const TextRange& range : pending_) {
    if (range.start >= visible.end()) return clamped(chunkFrom(range.start, range.end()));
  }
  return pending_.empty() ? TextRange{}
                          : clamped(chunkFrom(pending_.front().start, pending_.front().end()));
}

TextRange HighlightTextStorage::chunkFrom(int start, int end) const {
  end = std::min(end, textLength());
  if (end - start <= kChunkLimit) return {start, std::max(0, end - start)};
  const int limit = start + kChunkLimit;
  // Whole paragraphs: up to the start of the paragraph that the limit falls into.
  const int paragraphEnd = document_->findBlock(limit).position();
  if (paragraphEnd > start) return {start, paragraphEnd - start};
  // One paragraph longer than the limit: cut after a blank or a tag's end in the last half.
  const std::u16string tail = text({start + kChunkLimit / 2, kChunkLimit / 2});
  for (std::size_t i = tail.size(); i > 0; --i) {
    const char16_t c = tail[i - 1];
    if (c == u' ' || c == u'\t' || c == u'>' || c == u';' || c == u',') {
      return {start, kChunkLimit / 2 + static_cast<int>(i)};
    }
  }
  // Never between the halves of a surrogate pair.
  const bool splitsPair = !tail.empty() && QChar::isHighSurrogate(tail.back());
  return {start, kChunkLimit - (splitsPair ? 1 : 0)};
}

bool HighlightTextStorage::applyHighlight(const StyledText& result, TextRange range) {
  if (!setFormats(result, range)) return false;
  notifyApplied(range);
  return true;
}

void HighlightTextStorage::notifyApplied(TextRange range) {
  document_->markContentsDirty(range.start, range.length);
  Q_EMIT highlightApplied(range.start, range.length);
}

bool HighlightTextStorage::stillComing(TextRange range) const {
  auto meets = [range](const TextRange& other) { return overlaps(other, range); };
  return std::any_of(pending_.begin(), pending_.end(), meets) ||
         std::any_of(inFlight_.begin(), inFlight_.end(),
                     [&](const Request& request) { return meets(request.range); });
}

void HighlightTextStorage::deferLayout(TextRange range) {
  for (TextRange& deferred : deferredLayouts_) {
    if (!overlaps(deferred, range)) continue;
    const int start = std::min(deferred.start, range.start);
    deferred = {start, std::max(deferred.end(), range.end()) - start};
    return;
  }
  deferredLayouts_.push_back(range);
}

void HighlightTextStorage::flushDeferredLayouts() {
  std::erase_if(deferredLayouts_, [this](TextRange& paragraphs) {
    paragraphs = clamped(paragraphs);
    if (paragraphs.length > 0 && stillComing(paragraphs)) return false;
    // The held results of these paragraphs, joined where they meet, set in one go each.
    std::vector<HeldResult> mine;
    std::erase_if(held_, [&](HeldResult& held) {
      if (!overlaps(held.range, paragraphs)) return false;
      mine.push_back(std::move(held));
      return true;
    });
    std::sort(mine.begin(), mine.end(), [](const HeldResult& a, const HeldResult& b) {
      return a.range.start < b.range.start;
    });
    bool changed = false;
    for (std::size_t i = 0; i < mine.size();) {
      HeldResult joined = std::move(mine[i]);
      for (++i; i < mine.size() && mine[i].range.start == joined.range.end(); ++i) {
        std::size_t offset = 0;
        for (const StyledRun& run : mine[i].result.runs()) {
          joined.result.append(
              std::u16string_view(mine[i].result.text()).substr(offset, run.length), run.style);
          offset += run.length;
        }
        joined.range.length += mine[i].range.length;
      }
      changed = setFormats(joined.result, joined.range) || changed;
    }
    if (changed) notifyApplied(paragraphs);
    return true;
  });
  if (deferredLayouts_.empty()) held_.clear();
}

bool HighlightTextStorage::setFormats(const StyledText& result, TextRange range) {
  if (!document_ || range.start < 0 || range.length < 0) return false;
  if (range.end() > textLength()) return false;    // the text shrank
  if (text(range) != result.text()) return false;  // edited since; a newer request is in flight

  // The wanted format of each character; paragraph breaks carry no layout format and are left
  // out of the comparison.
  FormatTable table;
  std::vector<int> wanted;
  wanted.reserve(static_cast<std::size_t>(range.length));
  std::vector<QTextCharFormat> runFormats;
  for (const StyledRun& run : result.runs()) {
    runFormats.push_back(toCharFormat(run.style));
    wanted.insert(wanted.end(), run.length, table.indexOf(runFormats.back()));
  }
  if (wanted.size() != static_cast<std::size_t>(range.length)) return false;

  bool equal = true;
  const int none = table.indexOf(QTextCharFormat());
  for (QTextBlock block = document_->findBlock(range.start);
       equal && block.isValid() && block.position() < range.end(); block = block.next()) {
    const int blockStart = block.position();
    const int from = std::max(range.start, blockStart);
    const int to = std::min(range.end(), blockStart + block.length() - 1);
    if (from >= to) continue;
    std::vector<int> shown(static_cast<std::size_t>(to - from), none);
    if (const QTextLayout* layout = block.layout()) {
      for (const QTextLayout::FormatRange& format : layout->formats()) {
        const int start = std::max(format.start + blockStart, from);
        const int end = std::min(format.start + format.length + blockStart, to);
        if (start >= end) continue;
        std::fill(shown.begin() + (start - from), shown.begin() + (end - from),
                  table.indexOf(format.format));
      }
    }
    equal = std::equal(shown.begin(), shown.end(), wanted.begin() + (from - range.start));
  }
  if (equal) return false;

  // Runs in document positions, to be cut along the blocks.
  struct Piece {
    int start;
    int end;
    const QTextCharFormat* format;
  };
  std::vector<Piece> pieces;
  int offset = range.start;
  for (std::size_t i = 0; i < result.runs().size(); ++i) {
    const int length = static_cast<int>(result.runs()[i].length);
    if (!result.runs()[i].style.empty())
      pieces.push_back({offset, offset + length, &runFormats[i]});
    offset += length;
  }

  auto piece = pieces.begin();
  for (QTextBlock block = document_->findBlock(range.start);
       block.isValid() && block.position() < range.end(); block = block.next()) {
    QTextLayout* layout = block.layout();
    if (!layout) continue;
    const int blockStart = block.position();
    const int blockEnd = blockStart + block.length() - 1;
    const int from = std::max(range.start, blockStart);
    const int to = std::min(range.end(), blockEnd);
    if (from >= to) continue;
    // Setting replaces: whatever was shown over the range goes first.
    QList<QTextLayout::FormatRange> formats =
        withoutSpan(layout->formats(), from - blockStart, to - blockStart);
    while (piece != pieces.end() && piece->end <= from) ++piece;
    for (auto it = piece; it != pieces.end() && it->start < to; ++it) {
      const int start = std::max(it->start, from);
      const int end = std::min(it->end, to);
      if (start < end) formats.append({start - blockStart, end - start, *it->format});
    }
    std::sort(formats.begin(), formats.end(),
              [](const auto& a, const auto& b) { return a.start < b.start; });
    layout->setFormats(formats);
  }
  return true;
}

}  // namespace Highlight
