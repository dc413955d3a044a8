#include "SVGConverter/FixedDecimalText.h"

#include <charconv>
#include <cmath>

namespace SVGConverter {

namespace {

// The shortest digits of a finite, non-negative value: value = 0.d1d2...dn * 10^pointPosition.
struct ShortestDigits {
  char digits[20];
  int count = 0;
  int pointPosition = 0;
};

ShortestDigits shortestDigits(double magnitude) {
  char text[32];
  const auto result =
      std::to_chars(text, text + sizeof text, magnitude, std::chars_format::scientific);
  // The form is "d[.ddd]e(+|-)xx[x]".
  ShortestDigits shortest;
  const char* cursor = text;
  for (; cursor < result.ptr && *cursor != 'e'; ++cursor) {
    if (*cursor != '.') shortest.digits[shortest.count++] = *cursor;
  }
  int exponent = 0;
  std::from_chars(cursor + (cursor[1] == '+' ? 2 : 1), result.ptr, exponent);
  shortest.pointPosition = exponent + 1;
  return shortest;
}

}  // namespace

bool appendFixedDecimal(std::string& out, double value, int maximumFractionDigits) {
  if (!std::isfinite(value) || maximumFractionDigits < 0 ||
      maximumFractionDigits > largestFastFractionDigits) {
    return false;
  }
  ShortestDigits d = shortestDigits(std::fabs(value));
  // Digits at index `keep` and beyond lie past the last allowed fraction digit.
  const int keep = d.pointPosition + maximumFractionDigits;
  if (keep < 0) {
    d.count = 0;
  } else if (keep < d.count) {
    const char next = d.digits[keep];
    bool restNonZero = false;
    for (int i = keep + 1; i < d.count; ++i) restNonZero |= d.digits[i] != '0';
    const bool lastKeptOdd = keep > 0 && (d.digits[keep - 1] - '0') % 2 == 1;
    const bool roundUp = next > '5' || (next == '5' && (restNonZero || lastKeptOdd));
    d.count = keep;
    if (roundUp) {
      int i = keep - 1;
      for (; i >= 0 && d.digits[i] == '9'; --i) d.digits[i] = '0';
      if (i >= 0) {
        ++d.digits[i];
      } else {
        // Carried past the first digit: a new leading "1", one place further left.
        for (int j = d.count; j > 0; --j) d.digits[j] = d.digits[j - 1];
        d.digits[0] = '1';
        ++d.count;
        ++d.pointPosition;
      }
    }
  }
  // Trailing zeros of the fraction go; those of the integer part are digits.
  while (d.count > 0 && d.count > d.pointPosition && d.digits[d.count - 1] == '0') --d.count;

  if (std::signbit(value)) out += '-';
  if (d.pointPosition <= 0 || d.count == 0) {
    out += '0';
  } else {
    const int integerDigits = std::min(d.count, d.pointPosition);
    out.append(d.digits, static_cast<std::size_t>(integerDigits));
    out.append(static_cast<std::size_t>(d.pointPosition - integerDigits), '0');
  }
  if (d.count > 0 && d.count > d.pointPosition) {
    out += '.';
    int first = d.pointPosition;
    if (first < 0) {
      out.append(static_cast<std::size_t>(-first), '0');
      first = 0;
    }
    out.append(d.digits + first, static_cast<std::size_t>(d.count - first));
  }
  return true;
}

}  // namespace SVGConverter
