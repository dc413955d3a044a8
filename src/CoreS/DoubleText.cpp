#include "CoreS/DoubleText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string_view>

namespace CoreS {

namespace {

// Integers up to 2^53 are all exact in a double, so people expect them written out in full;
// beyond that the exponential form is used.
constexpr double largestPlainMagnitude = 9007199254740992.0;  // 2^53

void appendExponent(std::string& out, int exponent) {
  out += 'e';
  out += exponent < 0 ? '-' : '+';
  const int magnitude = std::abs(exponent);
  if (magnitude < 10) out += '0';
  out += std::to_string(magnitude);
}

}  // namespace

std::string swiftDoubleDescription(double value) {
  if (std::isnan(value)) return "nan";  // sign and payload are not shown
  if (std::isinf(value)) return value < 0 ? "-inf" : "inf";
  if (value == 0) return std::signbit(value) ? "-0.0" : "0.0";

  // Shortest round-trip digits, closest to the value among the shortest: "d.ddde±x".
  std::array<char, 64> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                    std::chars_format::scientific);
  const std::string_view scientific(buffer.data(), result.ptr - buffer.data());
  const std::size_t e = scientific.find('e');
  std::string_view mantissa = scientific.substr(0, e);
  const bool negative = mantissa.front() == '-';
  if (negative) mantissa.remove_prefix(1);
  int exponent = 0;
  const std::string_view exponentText = scientific.substr(e + 1);
  std::from_chars(exponentText.data() + (exponentText.front() == '+' ? 1 : 0),
                  exponentText.data() + exponentText.size(), exponent);

  std::string digits;
  digits.reserve(mantissa.size());
  for (char c : mantissa) {
    if (c != '.') digits += c;
  }

  std::string out;
  if (negative) out += '-';
  if (exponent < -4 || std::fabs(value) > largestPlainMagnitude) {
    out += digits.front();
    if (digits.size() > 1) {
      out += '.';
      out.append(digits, 1);
    }
    appendExponent(out, exponent);
    return out;
  }
  if (exponent < 0) {
    out += "0.";
    out.append(static_cast<std::size_t>(-exponent - 1), '0');
    out += digits;
    return out;
  }
  const auto integerDigits = static_cast<std::size_t>(exponent) + 1;
  if (digits.size() <= integerDigits) {
    out += digits;
    out.append(integerDigits - digits.size(), '0');
    out += ".0";
  } else {
    out.append(digits, 0, integerDigits);
    out += '.';
    out.append(digits, integerDigits);
  }
  return out;
}

}  // namespace CoreS
