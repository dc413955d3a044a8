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

void HighlightTextStorage::contentsChanged(int position, int /*charsRemoved*/, int charsAdded) {
  highlightRange(paragraphRange({position, charsAdded}));
}

void HighlightTextStorage::highlightRange(TextRange range) {
  if (!document_ || !highlighter_) return;
  QPointer<HighlightTextStorage> self(this);
  highlighter_->highlight(text(range), language_, theme_, completionQueue_,
                          [self, range](std::optional<StyledText> result) {
                            // A storage deleted meanwhile simply drops its result.
                            if (self && result) self->applyHighlight(*result, range);
                          });
}

bool HighlightTextStorage::applyHighlight(const StyledText& result, TextRange range) {
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
  document_->markContentsDirty(range.start, range.length);
  Q_EMIT highlightApplied(range.start, range.length);
  return true;
}

}  // namespace Highlight
