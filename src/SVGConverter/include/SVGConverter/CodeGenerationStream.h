// The one writer of the generated text. It owns the text, the indentation and the number
// formatter; the emitters only decide which lines to write. Indentation changes only through
// `indented` (or the `Indent` guard behind it), so every raise has its lowering.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "SVGConverter/SVGSwiftUIExporter.h"

namespace SVGConverter {

class NumberFormatter;

class CodeGenerationStream {
 public:
  using Config = SVGSwiftUIExporter::Config;

  explicit CodeGenerationStream(Config config);
  ~CodeGenerationStream();
  CodeGenerationStream(const CodeGenerationStream&) = delete;
  CodeGenerationStream& operator=(const CodeGenerationStream&) = delete;

  const Config& config() const { return config_; }
  const std::string& text() const { return swift_; }
  std::string takeText() { return std::move(swift_); }
  int depth() const { return indent_; }

  // Set when a colour was written in the hexadecimal form that needs the colour extension.
  bool didUseHexColorInit = false;

  void appendBlankLine();
  // `info` obeys `infoComments`; `comment` is written whatever it says.
  void appendLine(std::string_view text, std::optional<std::string_view> comment = std::nullopt,
                  std::optional<std::string_view> info = std::nullopt);
  void appendCommentedLine(std::string_view text, std::string_view comment);
  void appendInfoComment(std::string_view text);
  // Each line of `text` at the current prefix.
  void appendIndentedText(std::string_view text);
  // Text exactly as given: no prefix, no line end of its own.
  void appendVerbatim(std::string_view text) { swift_ += text; }

  // The one emitter of a brace pair. A header that holds "{" anywhere keeps its own brace.
  template <class Body>
  void appendBlock(std::string_view header, std::optional<std::string_view> comment, Body&& body) {
    openBlock(header, comment);
    indented(true, std::forward<Body>(body));
    swift_ += prefix_;
    swift_ += "}\n";
  }

  template <class Body>
  void indented(bool enabled, Body&& body) {
    Indent guard(*this, enabled);
    std::forward<Body>(body)();
  }

  // Every number of the generated text, through the formatter; plain double text where the
  // formatter has none. NaN and infinities, which no formatter setting turns into a literal
  // of the generated language, print as ".nan", ".infinity" and "-.infinity".
  std::string numberString(double value) const;
  // The same text appended to `out`, for lines built piece by piece.
  void appendNumber(std::string& out, double value) const;

 private:
  class Indent {
   public:
    Indent(CodeGenerationStream& stream, bool enabled) : stream_(stream), enabled_(enabled) {
      if (enabled_) stream_.setDepth(stream_.indent_ + 1);
    }
    ~Indent() {
      if (enabled_) stream_.setDepth(stream_.indent_ - 1);
    }
    Indent(const Indent&) = delete;
    Indent& operator=(const Indent&) = delete;

   private:
    CodeGenerationStream& stream_;
    bool enabled_;
  };

  void setDepth(int depth);
  void openBlock(std::string_view header, std::optional<std::string_view> comment);

  Config config_;
  std::unique_ptr<NumberFormatter> numberFormatter_;
  std::string swift_;
  int indent_ = 0;
  std::string prefix_;
};

}  // namespace SVGConverter
