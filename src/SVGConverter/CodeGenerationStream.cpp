#include "SVGConverter/CodeGenerationStream.h"

#include <cmath>

#include "CoreS/DoubleText.h"
#include "SVGConverter/FixedDecimalText.h"
#include "SVGConverter/NumberFormatter.h"

namespace SVGConverter {

CodeGenerationStream::CodeGenerationStream(Config config, std::string textBefore)
    : config_(std::move(config)),
      numberFormatter_(std::make_unique<NumberFormatter>(config_.maximumFractionDigits,
                                                         config_.useThousandsSeparator)),
      swift_(std::move(textBefore)) {}

CodeGenerationStream::CodeGenerationStream(Config config, SVGSwiftUIExporter::TextSink sink)
    : CodeGenerationStream(std::move(config)) {
  sink_ = std::move(sink);
  swift_.reserve(flushSize + flushSize / 4);
}

CodeGenerationStream::~CodeGenerationStream() = default;

void CodeGenerationStream::flush() {
  if (!sink_ || swift_.empty()) return;
  sink_(swift_);
  flushedEndsLine_ = swift_.back() == '\n';
  swift_.clear();
}

bool CodeGenerationStream::endsLine() const {
  return swift_.empty() ? flushedEndsLine_ : swift_.back() == '\n';
}

void CodeGenerationStream::setDepth(int depth) {
  indent_ = depth;
  const std::size_t length = static_cast<std::size_t>(depth) * config_.indentString.size();
  while (indentRun_.size() < length) indentRun_ += config_.indentString;
  prefix_ = std::string_view(indentRun_).substr(0, length);
}

void CodeGenerationStream::appendBlankLine() {
  if (config_.indentEmptyLines) swift_ += prefix_;
  swift_ += '\n';
  wrote();
}

void CodeGenerationStream::appendLine(std::string_view text,
                                      std::optional<std::string_view> comment,
                                      std::optional<std::string_view> info) {
  swift_ += prefix_;
  swift_ += text;
  const bool withInfo = info && config_.infoComments;
  if (comment) {
    swift_ += " // ";
    swift_ += *comment;
    if (withInfo) {
      swift_ += ", Info:";
      swift_ += *info;
    }
  } else if (withInfo) {
    swift_ += " // ";
    swift_ += *info;
  }
  swift_ += '\n';
  wrote();
}

void CodeGenerationStream::appendCommentedLine(std::string_view text, std::string_view comment) {
  swift_ += prefix_;
  swift_ += text;
  swift_ += " // ";
  swift_ += comment;
  swift_ += '\n';
  wrote();
}

void CodeGenerationStream::appendInfoComment(std::string_view text) {
  if (!config_.infoComments) return;
  swift_ += prefix_;
  swift_ += "// ";
  swift_ += text;
  swift_ += '\n';
  wrote();
}

void CodeGenerationStream::appendIndentedText(std::string_view text) {
  while (!text.empty()) {
    const auto end = text.find('\n');
    swift_ += prefix_;
    swift_ += text.substr(0, end);
    swift_ += '\n';
    wrote();
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
}

void CodeGenerationStream::openBlock(std::string_view header,
                                     std::optional<std::string_view> comment) {
  swift_ += prefix_;
  swift_ += header;
  if (header.find('{') == std::string_view::npos) swift_ += " {";
  if (comment && !comment->empty() && config_.infoComments) {
    swift_ += " // ";
    swift_ += *comment;
  }
  if (!endsLine()) swift_ += '\n';
  wrote();
}

std::string CodeGenerationStream::numberString(double value) const {
  std::string text;
  appendNumber(text, value);
  return text;
}

void CodeGenerationStream::appendNumber(std::string& out, double value) const {
  if (std::isnan(value)) {
    out += ".nan";
  } else if (std::isinf(value)) {
    out += value < 0 ? "-.infinity" : ".infinity";
  } else if (!numberFormatter_->appendTo(out, value)) {
    out += CoreS::swiftDoubleDescription(value);
  }
}

bool CodeGenerationStream::writeNumberQuickly(char*& cursor, double value) const {
  char* end = writeFixedDecimalQuickly(cursor, value, config_.maximumFractionDigits);
  if (end == nullptr) return false;
  cursor = end;
  return true;
}

}  // namespace SVGConverter
