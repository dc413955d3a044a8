#include "SVGConverter/CodeGenerationStream.h"

#include <cmath>

#include "CoreS/DoubleText.h"
#include "SVGConverter/NumberFormatter.h"

namespace SVGConverter {

CodeGenerationStream::CodeGenerationStream(Config config)
    : config_(std::move(config)),
      numberFormatter_(std::make_unique<NumberFormatter>(config_.maximumFractionDigits,
                                                         config_.useThousandsSeparator)) {}

CodeGenerationStream::~CodeGenerationStream() = default;

void CodeGenerationStream::setDepth(int depth) {
  indent_ = depth;
  prefix_.clear();
  for (int level = 0; level < indent_; ++level) prefix_ += config_.indentString;
}

void CodeGenerationStream::appendBlankLine() {
  if (config_.indentEmptyLines) swift_ += prefix_;
  swift_ += '\n';
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
}

void CodeGenerationStream::appendCommentedLine(std::string_view text, std::string_view comment) {
  swift_ += prefix_;
  swift_ += text;
  swift_ += " // ";
  swift_ += comment;
  swift_ += '\n';
}

void CodeGenerationStream::appendInfoComment(std::string_view text) {
  if (!config_.infoComments) return;
  swift_ += prefix_;
  swift_ += "// ";
  swift_ += text;
  swift_ += '\n';
}

void CodeGenerationStream::appendIndentedText(std::string_view text) {
  while (!text.empty()) {
    const auto end = text.find('\n');
    swift_ += prefix_;
    swift_ += text.substr(0, end);
    swift_ += '\n';
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
  if (swift_.empty() || swift_.back() != '\n') swift_ += '\n';
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

}  // namespace SVGConverter
