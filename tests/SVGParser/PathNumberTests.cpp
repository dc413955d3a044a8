// Path numbers must convert to exactly the double the general decimal conversion gives, bit for
// bit (sign of zero included), whichever way the reader takes internally.
#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cstdint>
#include <random>
#include <string>

#include "SVGParser/SVG.h"

namespace {

double reference(const std::string& text) {
  double value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

// Reads `text` as the x of a moveto and checks it against the reference conversion.
void expectConvertsLikeTheReference(const std::string& text) {
  const auto result = SVG::Command::parse("M" + text + " 1");
  ASSERT_FALSE(result.error) << text;
  ASSERT_EQ(result.commands.size(), 1u) << text;
  EXPECT_EQ(std::bit_cast<std::uint64_t>(result.commands[0].values[0]),
            std::bit_cast<std::uint64_t>(reference(text)))
      << text;
}

class PathNumberEdges : public testing::TestWithParam<const char*> {};

TEST_P(PathNumberEdges, ConvertLikeTheGeneralConversion) {
  expectConvertsLikeTheReference(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Texts, PathNumberEdges,
                         testing::Values("0", "-0", "-0.0", "5.", ".5", "-.5", "0.1", "0.3",
                                         "123.456", "-511.99", "9007199254740992",
                                         "9007199254740993", "-9007199254740993",
                                         "90071992547409921", "18446744073709551616",
                                         "0.0000000000000000000001", "0.00000000000000000000001",
                                         "1.0000000000000000000000", "4.35", "1234567890123.45678",
                                         "0.000000000000000000000000000001",
                                         "123456789012345678901234567890.5"));

TEST(PathNumberTest, RandomDecimalsOfEveryShapeConvertLikeTheGeneralConversion) {
  std::mt19937_64 random(7);
  for (int i = 0; i < 20000; ++i) {
    const int integerDigits = int(random() % 18);
    const int fractionDigits = int(random() % 26);
    std::string text = random() % 2 ? "-" : "";
    for (int d = 0; d < integerDigits; ++d) text += char('0' + random() % 10);
    if (fractionDigits > 0 || integerDigits == 0) {
      text += '.';
      for (int d = 0; d < fractionDigits; ++d) text += char('0' + random() % 10);
      if (fractionDigits == 0) text += '0';
    }
    expectConvertsLikeTheReference(text);
    if (HasFailure()) return;
  }
}

TEST(PathNumberTest, ImplicitRepetitionsBeyondTheExplicitLettersAllArrive) {
  std::string text = "M0 0";
  for (int i = 1; i <= 500; ++i) text += " " + std::to_string(i) + " " + std::to_string(-i);
  text += "z m1 1 2 2z";
  const auto result = SVG::Command::parse(text);
  ASSERT_FALSE(result.error);
  ASSERT_EQ(result.commands.size(), 505u);
  EXPECT_EQ(result.commands[500].kind, SVG::Command::Kind::L);
  EXPECT_EQ(result.commands[500].values[1], -500.0);
  EXPECT_EQ(result.commands[503].kind, SVG::Command::Kind::l);
}

}  // namespace
