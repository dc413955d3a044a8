// Printing and building styled text in tests, and a highlighter that answers when told.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "Highlight/HighlightJS.h"
#include "Highlight/StyledText.h"

namespace Highlight {

inline void PrintTo(const TextStyle& style, std::ostream* out) {
  *out << "{";
  if (style.foreground) *out << "fg " << style.foreground->hex();
  if (style.underline) *out << " underline";
  if (style.underlineColor) *out << " ul " << style.underlineColor->hex();
  if (style.font) {
    *out << " font '" << style.font->family << "'";
    if (style.font->pointSize) *out << " " << *style.font->pointSize << "pt";
    *out << (style.font->bold ? " bold" : "") << (style.font->italic ? " italic" : "");
  }
  *out << "}";
}

inline void PrintTo(const StyledText& text, std::ostream* out) {
  std::size_t offset = 0;
  *out << "[";
  for (const StyledRun& run : text.runs()) {
    *out << "\"" << toUTF8(std::u16string_view(text.text()).substr(offset, run.length)) << "\" ";
    PrintTo(run.style, out);
    *out << "; ";
    offset += run.length;
  }
  *out << "]";
}

inline StyledText styled(std::vector<std::pair<std::u16string, TextStyle>> runs) {
  StyledText out;
  for (const auto& [text, style] : runs) out.append(text, style);
  return out;
}

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

}  // namespace Highlight
