// Leveled logging: the Logger interface, the console behind the default logger and the
// per-module loggers that can be tuned through LOGLEVEL_<MODULE>.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>

namespace CoreS {

enum class LogLevel : std::uint8_t { error = 0, warn = 1, log = 2, info = 3, trace = 4 };

// Reads a level as the LOGLEVEL variables spell it; anything unknown is `error`.
LogLevel parseLogLevel(std::string_view text);
std::string_view logLevelName(LogLevel level);

// A value handed to a log call. It is formatted only when the line is written, so a
// filtered call costs no formatting.
class LogValue {
 public:
  template <class T>
  LogValue(const T& value) : object_(&value), write_(&writeValue<T>) {}  // NOLINT(implicit)
  static LogValue nil() { return LogValue(); }
  void appendTo(std::string& out) const;

 private:
  LogValue() = default;
  template <class T>
  static void writeValue(std::string& out, const void* object);

  const void* object_ = nullptr;
  void (*write_)(std::string&, const void*) = nullptr;
};

// A non-owning reference to the callable that produces a log message.
class MessageProducer {
 public:
  template <class F>
    requires std::is_invocable_r_v<std::string, const F&>
  MessageProducer(const F& f)  // NOLINT(implicit)
      : object_(&f), call_([](const void* o) { return std::string((*static_cast<const F*>(o))()); }) {}
  MessageProducer(const char* text)  // NOLINT(implicit)
      : object_(text), call_([](const void* o) { return std::string(static_cast<const char*>(o)); }) {}
  std::string operator()() const { return call_(object_); }

 private:
  const void* object_;
  std::string (*call_)(const void*);
};

class Logger {
 public:
  virtual ~Logger() = default;
  virtual LogLevel logLevel() const = 0;
  virtual void primaryLog(LogLevel level, MessageProducer message,
                          std::span<const LogValue> values) = 0;
  virtual std::string description() const = 0;

  template <class... Ts>
  void error(MessageProducer message, const Ts&... values) { logAt(LogLevel::error, message, values...); }
  template <class... Ts>
  void warn(MessageProducer message, const Ts&... values) { logAt(LogLevel::warn, message, values...); }
  template <class... Ts>
  void log(MessageProducer message, const Ts&... values) { logAt(LogLevel::log, message, values...); }
  // Logs an optional object alone at `log`: its text, or an empty message when absent.
  template <class T>
  void log(const std::optional<T>& object) {
    if (!object) {
      primaryLog(LogLevel::log, "", {});
      return;
    }
    primaryLog(LogLevel::log, [&object] {
      std::string text;
      LogValue(*object).appendTo(text);
      return text;
    }, {});
  }
  template <class... Ts>
  void info(MessageProducer message, const Ts&... values) { logAt(LogLevel::info, message, values...); }
  template <class... Ts>
  void trace(MessageProducer message, const Ts&... values) { logAt(LogLevel::trace, message, values...); }

 private:
  template <class... Ts>
  void logAt(LogLevel level, MessageProducer message, const Ts&... values) {
    if constexpr (sizeof...(Ts) == 0) {
      primaryLog(level, message, {});
    } else {
      const LogValue items[] = {LogValue(values)...};
      primaryLog(level, message, items);
    }
  }
};

// The byte sink a console writes to.
class WritableByteStreamType {
 public:
  enum class Error { WriteFailed, Closed };
  virtual ~WritableByteStreamType() = default;
  // Writes each buffer in order; stops at the first failure.
  virtual std::optional<Error> write(std::initializer_list<std::string_view> buffers) = 0;
};
std::string_view errorName(WritableByteStreamType::Error error);

// Writes to a C stream with one fwrite per non-empty buffer. A null handle is closed.
class FileOutputStream final : public WritableByteStreamType {
 public:
  explicit FileOutputStream(std::FILE* handle) : handle_(handle) {}
  std::optional<Error> write(std::initializer_list<std::string_view> buffers) override;
  void close() { handle_ = nullptr; }

 private:
  std::FILE* handle_;
};

class ConsoleBase : public Logger {
 public:
  ConsoleBase(LogLevel level, LogLevel stderrLevel) : logLevel_(level), stderrLogLevel_(stderrLevel) {}
  LogLevel logLevel() const override { return logLevel_; }
  void setLogLevel(LogLevel level) { logLevel_ = level; }
  LogLevel stderrLogLevel() const { return stderrLogLevel_; }
  std::string description() const override;

 private:
  LogLevel logLevel_;
  const LogLevel stderrLogLevel_;
};

// A console over two streams: lines at or below `stderrLogLevel` go to the second one. A
// failed write loses the line, is announced on standard output, and logging goes on.
class Console2 final : public ConsoleBase {
 public:
  Console2(std::unique_ptr<WritableByteStreamType> out, std::unique_ptr<WritableByteStreamType> err,
           LogLevel level)
      : ConsoleBase(level, LogLevel::error), stdout_(std::move(out)), stderr_(std::move(err)) {}
  void primaryLog(LogLevel level, MessageProducer message, std::span<const LogValue> values) override;

 private:
  std::unique_ptr<WritableByteStreamType> stdout_;
  std::unique_ptr<WritableByteStreamType> stderr_;
};

class ModuleLogger final : public Logger {
 public:
  // Without a level, LOGLEVEL_<NAME> (trimmed, upper-cased) decides, else the parent's level.
  ModuleLogger(Logger& parent, std::string name, std::optional<LogLevel> level = std::nullopt);
  LogLevel logLevel() const override { return logLevel_; }
  const std::string& prefix() const { return prefix_; }
  void primaryLog(LogLevel level, MessageProducer message, std::span<const LogValue> values) override;
  std::string description() const override;

 private:
  Logger& parent_;
  LogLevel logLevel_;
  std::string prefix_;
};

// The process-wide logger: a Console2 over stdout and stderr at the level of LOGLEVEL.
Logger& defaultLogger();
LogLevel defaultLogLevel();
// The module logger registered under `name`, created on first request.
ModuleLogger& moduleLogger(std::string_view name);
// The widest registered module name, in characters: module lines pad their prefix to it.
std::size_t longestModuleNameLength();

// Number of characters a module name occupies in the aligned column.
std::size_t characterCount(std::string_view text);

template <class T>
void LogValue::writeValue(std::string& out, const void* object) {
  const T& value = *static_cast<const T*>(object);
  if constexpr (std::is_convertible_v<const T&, std::string_view>) {
    out += std::string_view(value);
  } else if constexpr (requires { value.has_value(); *value; }) {
    if (!value.has_value()) {
      out += "<nil>";
    } else {
      LogValue(*value).appendTo(out);
    }
  } else if constexpr (std::is_same_v<T, bool>) {
    out += value ? "true" : "false";
  } else if constexpr (std::is_arithmetic_v<T>) {
    std::ostringstream s;
    s << value;
    out += s.str();
  } else if constexpr (requires { value.description(); }) {
    out += value.description();
  } else {
    std::ostringstream s;
    s << value;
    out += s.str();
  }
}

}  // namespace CoreS
