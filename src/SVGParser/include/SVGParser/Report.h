// Where the reader's plain report lines go. The caller owns the sink: the CLI sends the lines
// to standard error, the app to standard output, tests collect them.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace SVGParser {

class Report {
 public:
  using Sink = std::function<void(std::string_view line)>;

  Report() = default;  // discards every line
  explicit Report(Sink sink) : sink_(std::move(sink)) {}

  // One line: the items joined by one blank, without the line feed.
  void print(std::initializer_list<std::string_view> items) const;
  bool enabled() const { return static_cast<bool>(sink_); }

 private:
  Sink sink_;
};

}  // namespace SVGParser
