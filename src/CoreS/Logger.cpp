#include "CoreS/Logger.h"

#include <cstdio>
#include <cstdlib>
#include <map>
#include <mutex>

namespace CoreS {

namespace {

std::string lowercased(std::string_view text) {
  std::string out(text);
  for (char& c : out) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return out;
}

std::string_view trimmed(std::string_view text) {
  auto isSpace = [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); };
  while (!text.empty() && isSpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && isSpace(text.back())) text.remove_suffix(1);
  return text;
}

// Prefix buffers are made once and shared by every console.
std::string_view prefix(LogLevel level) {
  static constexpr std::string_view prefixes[] = {"ERROR: ", "WARN:  ", "", "INFO:  ", "Trace: "};
  return prefixes[static_cast<int>(level)];
}

constexpr std::string_view separator = " ";
constexpr std::string_view endOfLine = "\n";

struct ModuleRegistry {
  std::mutex lock;
  std::map<std::string, std::unique_ptr<ModuleLogger>, std::less<>> loggers;
  std::size_t longestName = 0;
};

ModuleRegistry& registry() {
  static ModuleRegistry instance;
  return instance;
}

}  // namespace

LogLevel parseLogLevel(std::string_view text) {
  const std::string value = lowercased(text);
  if (value == "error") return LogLevel::error;
  if (value.starts_with("warn")) return LogLevel::warn;
  if (value.starts_with("info")) return LogLevel::info;
  if (value == "trace") return LogLevel::trace;
  if (value == "log") return LogLevel::log;
  return LogLevel::error;
}

std::string_view logLevelName(LogLevel level) {
  static constexpr std::string_view names[] = {"error", "warn", "log", "info", "trace"};
  return names[static_cast<int>(level)];
}

void LogValue::appendTo(std::string& out) const {
  if (write_ == nullptr) {
    out += "<nil>";
  } else {
    write_(out, object_);
  }
}

std::string_view errorName(WritableByteStreamType::Error error) {
  return error == WritableByteStreamType::Error::Closed ? "Closed" : "WriteFailed";
}

std::optional<WritableByteStreamType::Error> FileOutputStream::write(
    std::initializer_list<std::string_view> buffers) {
  if (handle_ == nullptr) return Error::Closed;
  for (std::string_view buffer : buffers) {
    if (buffer.empty()) continue;
    if (std::fwrite(buffer.data(), 1, buffer.size(), handle_) != buffer.size()) {
      return Error::WriteFailed;
    }
  }
  return std::nullopt;
}

std::string ConsoleBase::description() const {
  std::string out = "<ConsoleLog: ";
  out += logLevelName(logLevel());
  if (logLevel() != stderrLogLevel_) {
    out += ' ';
    out += logLevelName(stderrLogLevel_);
  }
  out += '>';
  return out;
}

void Console2::primaryLog(LogLevel level, MessageProducer message, std::span<const LogValue> values) {
  if (logLevel() < level) return;
  const std::string text = message();
  WritableByteStreamType& stream = level <= stderrLogLevel() ? *stderr_ : *stdout_;

  std::optional<WritableByteStreamType::Error> failure = stream.write({prefix(level), text});
  std::string valueText;
  for (const LogValue& value : values) {
    if (failure) break;
    valueText.clear();
    value.appendTo(valueText);
    failure = stream.write({separator, valueText});
  }
  if (!failure) failure = stream.write({endOfLine});
  if (failure) {
    std::printf("ERROR LOG WRITE FAILED: %s\n", std::string(errorName(*failure)).c_str());
  }
}

ModuleLogger::ModuleLogger(Logger& parent, std::string name, std::optional<LogLevel> level)
    : parent_(parent), logLevel_(parent.logLevel()), prefix_(std::move(name)) {
  if (level) {
    logLevel_ = *level;
    return;
  }
  std::string variable = "LOGLEVEL_";
  for (char c : trimmed(prefix_)) {
    variable += (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
  }
  if (const char* value = std::getenv(variable.c_str()); value != nullptr && *value != '\0') {
    logLevel_ = parseLogLevel(value);
  }
}

void ModuleLogger::primaryLog(LogLevel level, MessageProducer message,
                              std::span<const LogValue> values) {
  if (level > logLevel_ || level > parent_.logLevel()) return;
  const std::size_t longest = longestModuleNameLength();
  const std::size_t own = characterCount(prefix_);
  std::string line = prefix_;
  line += ": ";
  if (longest > own) line.append(longest - own, ' ');
  line += message();
  // Module lines always travel at `log`, whatever level they were asked at.
  parent_.primaryLog(LogLevel::log, [&line] { return line; }, values);
}

std::string ModuleLogger::description() const {
  std::string out = "<ModLog[";
  out += prefix_;
  out += "]: ";
  out += logLevelName(logLevel_);
  out += " parent";
  out += parent_.description();
  out += '>';
  return out;
}

LogLevel defaultLogLevel() {
  static const LogLevel level = [] {
    const char* value = std::getenv("LOGLEVEL");
    return parseLogLevel(value == nullptr ? "" : value);
  }();
  return level;
}

Logger& defaultLogger() {
  static Console2 console(std::make_unique<FileOutputStream>(stdout),
                          std::make_unique<FileOutputStream>(stderr), defaultLogLevel());
  return console;
}

ModuleLogger& moduleLogger(std::string_view name) {
  ModuleRegistry& r = registry();
  {
    std::lock_guard guard(r.lock);
    if (auto it = r.loggers.find(name); it != r.loggers.end()) return *it->second;
  }
  auto created = std::make_unique<ModuleLogger>(defaultLogger(), std::string(name));
  std::lock_guard guard(r.lock);
  if (auto it = r.loggers.find(name); it != r.loggers.end()) return *it->second;
  const std::size_t count = characterCount(name);
  if (count > r.longestName) r.longestName = count;
  ModuleLogger& result = *created;
  r.loggers.emplace(std::string(name), std::move(created));
  return result;
}

std::size_t longestModuleNameLength() {
  std::lock_guard guard(registry().lock);
  return registry().longestName;
}

std::size_t characterCount(std::string_view text) {
  std::size_t count = 0;
  for (char c : text) {
    if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) ++count;
  }
  return count;
}

}  // namespace CoreS
