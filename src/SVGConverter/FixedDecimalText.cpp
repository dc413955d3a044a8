#include "SVGConverter/FixedDecimalText.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <iterator>

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

constexpr double powersOfTen[] = {1e0, 1e1, 1e2, 1e3,  1e4,  1e5,  1e6,
                                  1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13};
static_assert(std::size(powersOfTen) == largestFastFractionDigits + 1);

constexpr std::uint64_t integerPowersOfTen[] = {1,
                                                10,
                                                100,
                                                1'000,
                                                10'000,
                                                100'000,
                                                1'000'000,
                                                10'000'000,
                                                100'000'000,
                                                1'000'000'000,
                                                10'000'000'000,
                                                100'000'000'000,
                                                1'000'000'000'000,
                                                10'000'000'000'000};

}  // namespace

// Most numbers written lie far from a rounding tie at the last kept digit. Then rounding the
// shortest digits gives the same integer as rounding the scaled binary value: the two differ
// by less than one part in 2^52 of the scaled value, so the result can only change when the
// scaled value's fraction is that close to one half. Such values, and magnitudes whose scaled
// value may not be held exactly, take the digit-by-digit road instead.
char* writeFixedDecimalQuickly(char* out, double value, int maximumFractionDigits) {
  if (maximumFractionDigits < 0 || maximumFractionDigits > largestFastFractionDigits) {
    return nullptr;
  }
  const double scaled = std::fabs(value) * powersOfTen[maximumFractionDigits];
  // Also false for NaN.
  if (!(scaled < 0x1p50)) return nullptr;
  const auto whole = static_cast<std::uint64_t>(scaled);
  const double fraction = scaled - static_cast<double>(whole);
  if (std::fabs(fraction - 0.5) <= scaled * 0x1p-50 + 0x1p-60) return nullptr;
  const std::uint64_t rounded = whole + (fraction > 0.5 ? 1 : 0);

  char* end = out;
  if (std::signbit(value)) *end++ = '-';
  const std::uint64_t unit = integerPowersOfTen[maximumFractionDigits];
  std::uint64_t integer = rounded / unit;
  std::uint64_t fractionDigits = rounded - integer * unit;
  char digits[20];
  int count = 0;
  do {
    digits[count++] = static_cast<char>('0' + integer % 10);
    integer /= 10;
  } while (integer != 0);
  while (count > 0) *end++ = digits[--count];
  if (fractionDigits != 0) {
    int places = maximumFractionDigits;
    while (fractionDigits % 10 == 0) {
      fractionDigits /= 10;
      --places;
    }
    *end++ = '.';
    for (int i = places - 1; i >= 0; --i) {
      end[i] = static_cast<char>('0' + fractionDigits % 10);
      fractionDigits /= 10;
    }
    end += places;
  }
  return end;
}

bool appendFixedDecimal(std::string& out, double value, int maximumFractionDigits) {
  if (!std::isfinite(value) || maximumFractionDigits < 0 ||
      maximumFractionDigits > largestFastFractionDigits) {
    return false;
  }
  char quick[maximumQuickLength];
  if (char* end = writeFixedDecimalQuickly(quick, value, maximumFractionDigits)) {
    out.append(quick, end);
    return true;
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
