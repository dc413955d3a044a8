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

  explicit CodeGenerationStream(Config config, std::string textBefore = {});
  // Hands the text to `sink` in pieces of about `flushSize` bytes; `flush` passes on the rest.
  CodeGenerationStream(Config config, SVGSwiftUIExporter::TextSink sink);
  ~CodeGenerationStream();
  CodeGenerationStream(const CodeGenerationStream&) = delete;
  CodeGenerationStream& operator=(const CodeGenerationStream&) = delete;

  const Config& config() const { return config_; }
  // The text not yet handed to a sink: all of it for a stream without one.
  const std::string& text() const { return swift_; }
  std::string takeText() { return std::move(swift_); }
  void flush();
  int depth() const { return indent_; }

  // Set when a colour was written in the hexadecimal form that needs the colour extension.
  bool didUseHexColorInit = false;

  // Records a defect written into the text; the emitters that write one see the stream as
  // const, hence the mutable record.
  void noteDefect(SVGSwiftUIExporter::Defect defect) const { defects_ |= defect; }
  SVGSwiftUIExporter::Defects defects() const { return defects_; }

  void appendBlankLine();
  // `info` obeys `infoComments`; `comment` is written whatever it says.
  void appendLine(std::string_view text, std::optional<std::string_view> comment = std::nullopt,
                  std::optional<std::string_view> info = std::nullopt);
  void appendCommentedLine(std::string_view text, std::string_view comment);
  void appendInfoComment(std::string_view text);
  // Each line of `text` at the current prefix.
  void appendIndentedText(std::string_view text);
  // Text exactly as given: no prefix, no line end of its own.
  void appendVerbatim(std::string_view text) {
    swift_ += text;
    wrote();
  }

  // The one emitter of a brace pair. A header that holds "{" anywhere keeps its own brace.
  template <class Body>
  void appendBlock(std::string_view header, std::optional<std::string_view> comment, Body&& body) {
    openBlock(header, comment);
    indented(true, std::forward<Body>(body));
    swift_ += prefix_;
    swift_ += "}\n";
    wrote();
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
  // The same text written at `cursor`, which has room for `maximumQuickLength` bytes, where
  // the formatter needs no digit generation for it; false, with nothing written, where only
  // `appendNumber` serves.
  bool writeNumberQuickly(char*& cursor, double value) const;

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

  static constexpr std::size_t flushSize = 64 * 1024;

  void setDepth(int depth);
  void openBlock(std::string_view header, std::optional<std::string_view> comment);
  bool endsLine() const;
  void wrote() {
    if (sink_ && swift_.size() >= flushSize) flush();
  }

  Config config_;
  std::unique_ptr<NumberFormatter> numberFormatter_;
  SVGSwiftUIExporter::TextSink sink_;
  std::string swift_;
  // Whether the text handed to the sink so far ends a line: nothing handed over counts as not.
  bool flushedEndsLine_ = false;
  int indent_ = 0;
  mutable SVGSwiftUIExporter::Defects defects_ = 0;
  // The indentation of every depth reached so far, one after the other; the prefix of the
  // current depth is its start.
  std::string indentRun_;
  std::string_view prefix_;
};

}  // namespace SVGConverter
