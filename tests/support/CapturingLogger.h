// A logger that keeps its lines, for checking what the highlighter reports.
#pragma once

#include <mutex>
#include <string>
#include <vector>

#include "CoreS/Logger.h"

struct LoggedLine {
  CoreS::LogLevel level;
  std::string text;  // the message and its values, joined by blanks
  bool operator==(const LoggedLine&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const LoggedLine& line) {
  return out << CoreS::logLevelName(line.level) << ": " << line.text;
}

class CapturingLogger final : public CoreS::Logger {
 public:
  CoreS::LogLevel logLevel() const override { return CoreS::LogLevel::trace; }
  void primaryLog(CoreS::LogLevel level, CoreS::MessageProducer message,
                  std::span<const CoreS::LogValue> values) override {
    std::string text = message();
    for (const CoreS::LogValue& value : values) {
      text += ' ';
      value.appendTo(text);
    }
    std::lock_guard lock(mutex_);
    lines_.push_back({level, std::move(text)});
  }
  std::string description() const override { return "<CapturingLogger>"; }

  std::vector<LoggedLine> lines() const {
    std::lock_guard lock(mutex_);
    return lines_;
  }

 private:
  mutable std::mutex mutex_;
  std::vector<LoggedLine> lines_;
};
