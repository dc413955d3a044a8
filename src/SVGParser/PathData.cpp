// The path data reader: one pass over the bytes of a `d` attribute, driven by a small state
// machine. It is more forgiving than the SVG grammar in some places (a "+" or a stray letter
// inside an argument list is dropped) and stricter in others (a tab is no separator, a comma
// right behind a complete argument set is an error, there is no exponent syntax). Those
// choices decide which documents read and which are dropped, so they are kept byte for byte.
#include <charconv>
#include <cstdint>
#include <limits>
#include <string>
#include <system_error>

#include "CoreS/DoubleText.h"
#include "SVGParser/SVG.h"

namespace SVGModel {

namespace {

using Kind = Command::Kind;

// The argument-taking commands in enumeration order; the index of a letter is its Kind.
constexpr std::string_view kCommandLetters = "MmLlHhVvCcSsQqTtAa";
constexpr int kArgumentCounts[] = {2, 2, 2, 2, 1, 1, 1, 1, 6, 6, 4, 4, 4, 4, 2, 2, 7, 7, 0};

// Only these four bytes separate numbers; tab and form feed deliberately do not.
constexpr bool isBlank(unsigned char byte) {
  return byte == 7 || byte == 10 || byte == 13 || byte == 32;
}
constexpr bool isDigit(unsigned char byte) {
  return byte >= '0' && byte <= '9';
}
constexpr bool isClose(unsigned char byte) {
  return byte == 'Z' || byte == 'z';
}

// A lookup from byte to argument-taking command, built at compile time.
struct CommandTable {
  std::array<std::int8_t, 256> kinds{};
  constexpr CommandTable() {
    for (auto& kind : kinds) kind = -1;
    for (std::size_t i = 0; i < kCommandLetters.size(); ++i) {
      kinds[static_cast<unsigned char>(kCommandLetters[i])] = static_cast<std::int8_t>(i);
    }
  }
};
constexpr CommandTable kCommandTable;

constexpr std::optional<Kind> commandForByte(unsigned char byte) {
  const std::int8_t index = kCommandTable.kinds[byte];
  if (index < 0) return std::nullopt;
  return static_cast<Kind>(index);
}

// An implicit repetition of a moveto continues as a lineto of the same kind.
constexpr Kind repetitionOf(Kind kind) {
  if (kind == Kind::M) return Kind::L;
  if (kind == Kind::m) return Kind::l;
  return kind;
}

Command::ParserError makeError(Command::ParserError::Kind kind) {
  Command::ParserError error;
  error.kind = kind;
  return error;
}

Command::ParserError byteError(Command::ParserError::Kind kind, unsigned char byte) {
  Command::ParserError error = makeError(kind);
  error.byte = byte;
  return error;
}

constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                   1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                   1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr std::uint64_t kLargestExactMantissa = std::uint64_t(1) << 53;

// Decimal text to double as strtod does it in the C locale. Only a leading "-", digits and one
// "." ever reach here, all ASCII, so the UTF-8 check of the collected bytes cannot fail.
std::optional<double> convertNumber(std::string_view text) {
  double value = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, ec] = std::from_chars(text.data(), end, value);
  if (stop != end || text.empty()) return std::nullopt;
  if (ec == std::errc()) return value;
  if (ec != std::errc::result_out_of_range) return std::nullopt;
  // strtod saturates instead of failing. Without an exponent the text overflows only when its
  // integer part is non-zero, and underflows to zero otherwise.
  const bool negative = text.front() == '-';
  const std::size_t firstSignificant = text.find_first_of("123456789");
  const std::size_t dot = text.find('.');
  const bool overflow = firstSignificant != std::string_view::npos && firstSignificant < dot;
  const double magnitude = overflow ? std::numeric_limits<double>::infinity() : 0.0;
  return negative ? -magnitude : magnitude;
}

class PathDataParser {
 public:
  explicit PathDataParser(std::string_view text) : text_(text) {
    // Every explicit command letter and close gives one command; only implicit repetitions
    // add more and grow the vector. A guess from the byte count would hold many times the
    // result, a command being much larger than its text.
    std::size_t letters = 0;
    for (const char c : text) {
      const auto byte = static_cast<unsigned char>(c);
      letters += kCommandTable.kinds[byte] >= 0 || isClose(byte) ? 1 : 0;
    }
    commands_.reserve(letters);
  }

  Command::ParseResult run() {
    for (position_ = 0; position_ < text_.size(); ++position_) {
      const auto byte = static_cast<unsigned char>(text_[position_]);
      // A digit inside an open number (only ever open while collecting) just extends it.
      if (numberLength_ > 0 && isDigit(byte)) {
        appendDigit(byte);
        continue;
      }
      const bool ok = collecting_ ? takeArgumentByte(byte) : takeCommandByte(byte);
      if (!ok) return failure();
    }
    if (numberLength_ > 0) {
      if (!storeNumber()) return failure();
    }
    // The last command is emitted with whatever `args_` holds, so a truncated command reuses
    // numbers of the previous one.
    if (collecting_) emit(current_);
    return {std::move(commands_), std::nullopt};
  }

 private:
  // Step for a byte while the arguments of `current_` are being read.
  bool takeArgumentByte(unsigned char byte) {
    if (numberLength_ == 0 && isBlank(byte)) return true;
    // This flush runs even with no number open, and then fails on the empty text.
    if (byte == ',' && argCount_ > 0) return flush(byte);
    if (isDigit(byte)) {
      append();
      return true;
    }
    if (byte == '.' && !seenDot_) {
      seenDot_ = true;
      append();
      return true;
    }
    if (byte == '-') {
      if (numberLength_ > 0) return flush(byte);
      append();
      return true;
    }
    // With no number open, any other byte, a command letter included, is dropped silently.
    if (numberLength_ > 0) return flush(byte);
    return true;
  }

  // Step for a byte between argument sets: a command, a close, or the start of a repetition.
  bool takeCommandByte(unsigned char byte) {
    if (isBlank(byte)) return true;
    if (const auto kind = commandForByte(byte)) {
      current_ = *kind;
      hasCurrent_ = true;
      collecting_ = true;
      return true;
    }
    if (isClose(byte)) {
      close();
      return true;
    }
    if (!hasCurrent_) {
      error_ = byteError(Command::ParserError::Kind::invalidCommandChar, byte);
      return false;
    }
    current_ = repetitionOf(current_);
    collecting_ = true;
    // No number is open here, so a "." or "-" always starts one; other bytes, "," and tab
    // among them, are dropped though the repetition has begun.
    if (isDigit(byte)) {
      append();
    } else {
      startNumber(byte);
    }
    return true;
  }

  // Ends the open number because of `byte`, which then decides how reading goes on.
  bool flush(unsigned char byte) {
    if (!storeNumber()) return false;
    if (argCount_ < Command::argumentCount(current_)) {
      if (isBlank(byte) || byte == ',') return true;
      if (startNumber(byte)) return true;
      error_ = byteError(Command::ParserError::Kind::missingArgument,
                         static_cast<unsigned char>(Command::letter(current_)));
      return false;
    }
    emit(current_);
    argCount_ = 0;
    if (isBlank(byte)) {
      collecting_ = false;
      return true;
    }
    if (byte == '-' || byte == '.') {
      current_ = repetitionOf(current_);
      startNumber(byte);
      return true;
    }
    if (const auto kind = commandForByte(byte)) {
      current_ = *kind;
      return true;
    }
    if (isClose(byte)) {
      close();
      return true;
    }
    // A comma or tab right behind a complete set lands here.
    error_ = byteError(Command::ParserError::Kind::invalidCommandChar, byte);
    return false;
  }

  // Opens a number with a "-" or "."; false for any other byte.
  bool startNumber(unsigned char byte) {
    if (byte == '-') {
      append();
      return true;
    }
    if (byte == '.') {
      seenDot_ = true;
      append();
      return true;
    }
    return false;
  }

  // The collected bytes are always one contiguous run of the text: every byte that is not
  // appended while a number is open ends that number.
  // The value of a short decimal is gathered on the way, sparing a second scan of its bytes.
  void append() {
    if (numberLength_ == 0) {
      numberStart_ = position_;
      mantissa_ = 0;
      digits_ = 0;
      fractionDigits_ = 0;
    }
    const auto byte = static_cast<unsigned char>(text_[position_]);
    if (isDigit(byte)) {
      appendDigit(byte);
    } else {
      ++numberLength_;
    }
  }

  void appendDigit(unsigned char byte) {
    ++numberLength_;
    if (mantissa_ <= kLargestExactMantissa) mantissa_ = mantissa_ * 10 + std::uint64_t(byte - '0');
    ++digits_;
    fractionDigits_ += seenDot_ ? 1 : 0;
  }

  // The collected bytes are always an optional "-", digits and at most one ".". Most path
  // numbers have few digits: an integer mantissa of at most 2^53 and a power of ten of at most
  // 10^22 are both exact doubles, so one division gives the correctly rounded value that
  // `convertNumber` would. Nothing where it must decide (no digit, long mantissas).
  std::optional<double> gatheredValue() const {
    if (digits_ == 0 || mantissa_ > kLargestExactMantissa ||
        fractionDigits_ >= std::size(kPowersOfTen)) {
      return std::nullopt;
    }
    const double magnitude = double(mantissa_) / kPowersOfTen[fractionDigits_];
    return text_[numberStart_] == '-' ? -magnitude : magnitude;
  }

  bool storeNumber() {
    const std::string_view number = text_.substr(numberStart_, numberLength_);
    numberLength_ = 0;
    seenDot_ = false;
    // A flush with no number open finds the figures of the previous number still gathered.
    auto value = number.empty() ? std::nullopt : gatheredValue();
    if (!value) value = convertNumber(number);
    if (!value) {
      error_ = makeError(Command::ParserError::Kind::couldNotParseNumber);
      error_.text = std::string(number);
      return false;
    }
    args_[static_cast<std::size_t>(argCount_)] = *value;
    ++argCount_;
    return true;
  }

  void emit(Kind kind) { commands_.push_back(Command::make(kind, args_.data())); }

  void close() {
    commands_.push_back(Command{});
    hasCurrent_ = false;
    collecting_ = false;
  }

  Command::ParseResult failure() { return {{}, std::move(error_)}; }

  std::string_view text_;
  std::size_t position_ = 0;
  std::vector<Command> commands_;
  // Meaningful only while `hasCurrent_`: after a close no command is current.
  Kind current_ = Kind::Z;
  bool hasCurrent_ = false;
  bool collecting_ = false;
  // Never cleared during a run: a short last command takes the numbers left here.
  std::array<double, 7> args_{};
  int argCount_ = 0;
  std::size_t numberStart_ = 0;
  std::size_t numberLength_ = 0;
  bool seenDot_ = false;
  std::uint64_t mantissa_ = 0;
  std::size_t digits_ = 0;
  std::size_t fractionDigits_ = 0;
  Command::ParserError error_;
};

const char* errorName(Command::ParserError::Kind kind) {
  using ErrorKind = Command::ParserError::Kind;
  switch (kind) {
    case ErrorKind::couldNotParseNumber:
      return "couldNotParseNumber";
    case ErrorKind::unexpectedArgumentCount:
      return "unexpectedArgumentCount";
    case ErrorKind::invalidCommandChar:
      return "invalidCommandChar";
    case ErrorKind::missingArgument:
      return "missingArgument";
    case ErrorKind::unexpectedUTF8Sequence:
      return "unexpectedUTF8Sequence";
  }
  return "unknown";
}

}  // namespace

int Command::argumentCount(Kind kind) {
  const auto index = static_cast<std::size_t>(kind);
  return index < std::size(kArgumentCounts) ? kArgumentCounts[index] : 0;
}

char Command::letter(Kind kind) {
  const auto index = static_cast<std::size_t>(kind);
  return index < kCommandLetters.size() ? kCommandLetters[index] : 'Z';
}

Command Command::make(Kind kind, const double* arguments) {
  Command command;
  command.kind = kind;
  const int count = argumentCount(kind);
  for (int i = 0; i < count; ++i) command.values[i] = arguments[i];
  if (kind == Kind::A || kind == Kind::a) {
    command.values[3] = command.values[3] != 0.0 ? 1.0 : 0.0;
    command.values[4] = command.values[4] != 0.0 ? 1.0 : 0.0;
  }
  return command;
}

Command::ParseResult Command::parse(std::string_view text) {
  return PathDataParser(text).run();
}

std::string Command::description() const {
  std::string out(1, letter(kind));
  const int count = argumentCount(kind);
  if (count == 0) return out;
  const bool arc = kind == Kind::A || kind == Kind::a;
  out += '(';
  for (int i = 0; i < count; ++i) {
    if (i > 0) out += ", ";
    if (arc && (i == 3 || i == 4)) {
      out += values[i] != 0.0 ? "true" : "false";
    } else {
      out += CoreS::swiftDoubleDescription(values[i]);
    }
  }
  out += ')';
  return out;
}

std::string Command::ParserError::description() const {
  std::string out = errorName(kind);
  switch (kind) {
    case Kind::couldNotParseNumber:
      out += "(\"";
      out += text;
      out += "\")";
      break;
    case Kind::unexpectedArgumentCount:
      out += '(' + std::to_string(count) + ')';
      break;
    case Kind::invalidCommandChar:
    case Kind::missingArgument:
      out += '(' + std::to_string(byte) + ')';
      break;
    case Kind::unexpectedUTF8Sequence:
      break;
  }
  return out;
}

}  // namespace SVGModel
