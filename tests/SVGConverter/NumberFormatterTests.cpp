// The fast fixed-point text against ICU's decimal format, which stays the reference. Set
// SVGFIGURER_FULL_DIFFERENTIAL=1 for the long run (ten million values per fraction limit).
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

#include "SVGConverter/FixedDecimalText.h"
#include "SVGConverter/NumberFormatter.h"

namespace {

using SVGConverter::appendFixedDecimal;
using SVGConverter::NumberFormatter;

struct FixedCase {
  double value;
  int fractionDigits;
  const char* text;
};

class FixedDecimalKnownText : public ::testing::TestWithParam<FixedCase> {};

TEST_P(FixedDecimalKnownText, MatchesTheFormatter) {
  const auto& c = GetParam();
  std::string text;
  ASSERT_TRUE(appendFixedDecimal(text, c.value, c.fractionDigits));
  EXPECT_EQ(text, c.text);
  EXPECT_EQ(NumberFormatter(c.fractionDigits, false).formatWithICU(c.value), c.text);
}

INSTANTIATE_TEST_SUITE_P(
    Rounding, FixedDecimalKnownText,
    ::testing::Values(
        // Shortest digits are rounded, not the binary value: 2.675 is 2.67499999... in binary.
        FixedCase{2.675, 2, "2.68"}, FixedCase{1.005, 2, "1"}, FixedCase{0.125, 2, "0.12"},
        FixedCase{0.375, 2, "0.38"}, FixedCase{0.5, 0, "0"}, FixedCase{1.5, 0, "2"},
        FixedCase{2.5, 0, "2"}, FixedCase{-2.5, 0, "-2"}, FixedCase{0.06, 1, "0.1"},
        FixedCase{0.05, 1, "0"}, FixedCase{9.96, 1, "10"}, FixedCase{999.5, 0, "1000"},
        FixedCase{-0.0, 2, "-0"}, FixedCase{-0.001, 2, "-0"}, FixedCase{0.0, 13, "0"},
        FixedCase{1e-7, 13, "0.0000001"}, FixedCase{5e-324, 13, "0"},
        FixedCase{0.1 + 0.2, 13, "0.3"}, FixedCase{1e22, 0, "10000000000000000000000"},
        FixedCase{123456789012345678.0, 2, "123456789012345680"}, FixedCase{1234.5, 3, "1234.5"}));

TEST(FixedDecimal, LeavesOtherValuesAndLimitsToICU) {
  std::string text;
  EXPECT_FALSE(appendFixedDecimal(text, std::numeric_limits<double>::quiet_NaN(), 2));
  EXPECT_FALSE(appendFixedDecimal(text, -std::numeric_limits<double>::infinity(), 2));
  EXPECT_FALSE(appendFixedDecimal(text, 1.5, -1));
  EXPECT_FALSE(appendFixedDecimal(text, 1.5, SVGConverter::largestFastFractionDigits + 1));
  EXPECT_TRUE(text.empty());
  // A limit past the fast range still formats, through ICU.
  EXPECT_EQ(NumberFormatter(20, false).format(0.1), "0.1");
}

// Values from the families where a rounding error would hide: random bits, short decimals,
// exact ties at every digit count and their neighbours, extreme magnitudes, large integers.
class DoubleSource {
 public:
  explicit DoubleSource(std::uint64_t seed) : random_(seed) {}

  double next() {
    const double value = unsigned_();
    return (random_() & 1) ? -value : value;
  }

 private:
  std::uint64_t below(std::uint64_t limit) { return random_() % limit; }

  double unsigned_() {
    switch (below(8)) {
      case 0: {
        const double bits = std::bit_cast<double>(random_());
        return std::isfinite(bits) ? std::fabs(bits) : 1.0;
      }
      case 1:  // few digits, like 12.345
        return static_cast<double>(below(std::uint64_t{1} << (1 + below(30)))) /
               std::pow(10.0, static_cast<double>(below(10)));
      case 2:
        return tie();
      case 3: {  // a few ulps around a tie
        double value = tie();
        const int steps = static_cast<int>(below(7)) - 3;
        for (int i = 0; i < std::abs(steps); ++i) {
          value = std::nextafter(value, steps < 0 ? 0.0 : std::numeric_limits<double>::max());
        }
        return value;
      }
      case 4: {  // tiny and huge magnitudes
        const double mantissa = 1.0 + static_cast<double>(below(1'000'000'000)) / 1e9 * 9.0;
        return mantissa * std::pow(10.0, static_cast<double>(below(628)) - 320.0);
      }
      case 5:  // integers up to 2^53 and beyond
        return static_cast<double>(random_() >> below(64));
      case 6:  // x.5, x.x5, ... at every digit count
        return static_cast<double>(below(1000)) +
               0.5 / std::pow(10.0, static_cast<double>(below(15)));
      default:
        return static_cast<double>(below(2000)) / 8.0;
    }
  }

  // (10k + 5) / 10^j: a decimal tie at the j-th fraction digit.
  double tie() {
    const std::uint64_t k = below(std::uint64_t{1} << below(40));
    return static_cast<double>(k * 10 + 5) / std::pow(10.0, static_cast<double>(1 + below(16)));
  }

  std::mt19937_64 random_;
};

class FixedDecimalDifferential : public ::testing::TestWithParam<int> {};

TEST_P(FixedDecimalDifferential, SameTextAsICU) {
  const int fractionDigits = GetParam();
  const bool full = std::getenv("SVGFIGURER_FULL_DIFFERENTIAL") != nullptr;
  const long count = full ? 10'000'000 : 200'000;
  const NumberFormatter formatter(fractionDigits, false);
  DoubleSource source(0x5eed0000u + static_cast<std::uint64_t>(fractionDigits));
  long mismatches = 0;
  std::string fast;
  for (long i = 0; i < count; ++i) {
    const double value = source.next();
    fast.clear();
    ASSERT_TRUE(appendFixedDecimal(fast, value, fractionDigits));
    const auto reference = formatter.formatWithICU(value);
    ASSERT_TRUE(reference.has_value());
    if (fast != *reference && ++mismatches <= 5) {
      ADD_FAILURE() << "value " << std::hexfloat << value << " digits " << fractionDigits
                    << ": fast \"" << fast << "\", ICU \"" << *reference << '"';
    }
  }
  EXPECT_EQ(mismatches, 0);
}

INSTANTIATE_TEST_SUITE_P(EveryLimit, FixedDecimalDifferential,
                         ::testing::Range(0, SVGConverter::largestFastFractionDigits + 1));

}  // namespace
