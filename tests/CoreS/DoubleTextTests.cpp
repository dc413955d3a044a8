#include "CoreS/DoubleText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

namespace {

struct Row {
  double value;
  const char* text;
};

class SwiftDoubleDescription : public ::testing::TestWithParam<Row> {};

TEST_P(SwiftDoubleDescription, MatchesSwiftText) {
  const std::string text = CoreS::swiftDoubleDescription(GetParam().value);
  EXPECT_EQ(text, GetParam().text);
  // Whatever the layout, a finite text reads back as the same double.
  if (std::isfinite(GetParam().value)) {
    EXPECT_EQ(std::strtod(text.c_str(), nullptr), GetParam().value);
  }
}

constexpr double inf = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(
    Rows, SwiftDoubleDescription,
    ::testing::Values(Row{0.0, "0.0"}, Row{-0.0, "-0.0"}, Row{24, "24.0"}, Row{-3, "-3.0"},
                      Row{1e15, "1000000000000000.0"}, Row{0.5, "0.5"},
                      Row{1.0 / 3, "0.3333333333333333"}, Row{0.1 + 0.2, "0.30000000000000004"},
                      Row{123456.789, "123456.789"},
                      // Below 1e-4 the exponent form starts, with a sign and two digits at least.
                      Row{0.0001, "0.0001"}, Row{0.00012, "0.00012"}, Row{0.00001, "1e-05"},
                      Row{-2.5e-7, "-2.5e-07"}, Row{1e-100, "1e-100"}, Row{5e-324, "5e-324"},
                      // Above 2^53 as well.
                      Row{9007199254740992.0, "9007199254740992.0"},
                      Row{9007199254740994.0, "9.007199254740994e+15"}, Row{1e16, "1e+16"},
                      Row{-1.5e20, "-1.5e+20"},
                      Row{1.7976931348623157e308, "1.7976931348623157e+308"}, Row{inf, "inf"},
                      Row{-inf, "-inf"}, Row{std::numeric_limits<double>::quiet_NaN(), "nan"},
                      Row{-std::numeric_limits<double>::quiet_NaN(), "nan"}));

}  // namespace
