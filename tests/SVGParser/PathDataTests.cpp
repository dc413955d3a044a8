// Path data beyond what the trees/paths case holds: control characters, long texts, and
// numbers, which must convert to exactly the double the general decimal conversion gives, bit
// for bit (sign of zero included), whichever way the reader takes internally.
#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "SVGParser/SVG.h"

namespace SVGModel {
// Readable failures: commands and errors print as the parser's own descriptions.
void PrintTo(const Command& command, std::ostream* out) {
  *out << command.description();
}
void PrintTo(const Command::ParserError& error, std::ostream* out) {
  *out << error.description();
}
}  // namespace SVGModel

namespace {

using Command = SVG::Command;
using Kind = Command::Kind;
using Error = Command::ParserError;
using ErrorKind = Error::Kind;

// Built by hand rather than with Command::make, so the rows also pin down that unused slots
// are 0 and arc flags are stored as 1 or 0.
Command cmd(Kind kind, std::array<double, 7> values = {}) {
  return Command{kind, values};
}

Error invalidChar(unsigned char byte) {
  return {ErrorKind::invalidCommandChar, {}, 0, byte};
}

// The rows the trees/paths case cannot hold: control characters that XML refuses.
TEST(PathDataTest, ControlCharactersBlankOrStop) {
  EXPECT_EQ(Command::parse(" \n\r\a ").commands, std::vector<Command>{});
  const auto leading = Command::parse("\a\n M1 2");
  EXPECT_FALSE(leading.error);
  EXPECT_EQ(leading.commands, std::vector<Command>{cmd(Kind::M, {1, 2})});
  EXPECT_EQ(Command::parse("\fM1 2").error, invalidChar('\f'));
}

// The last command of a long text still sees the arguments of the one before it, and implicit
// repetitions beyond the explicit letters all arrive.
TEST(PathDataTest, LeftOversCarryThroughLongPaths) {
  std::string text = "M0 0";
  for (int i = 1; i <= 500; ++i) text += " " + std::to_string(i) + " " + std::to_string(-i);
  text += "z m1 1 2 2z M0 0";
  for (int i = 1; i <= 10000; ++i) text += " L" + std::to_string(i) + " " + std::to_string(-i);
  const auto result = Command::parse(text + " L7");
  ASSERT_FALSE(result.error);
  ASSERT_EQ(result.commands.size(), 10507u);
  EXPECT_EQ(result.commands[500], cmd(Kind::L, {500, -500}));
  EXPECT_EQ(result.commands[503], cmd(Kind::l, {2, 2}));
  EXPECT_EQ(result.commands[10505], cmd(Kind::L, {10000, -10000}));
  EXPECT_EQ(result.commands.back(), cmd(Kind::L, {7, -10000}));
}

TEST(PathDataTest, ParserErrorsDescribeThemselves) {
  EXPECT_EQ((Error{ErrorKind::unexpectedArgumentCount, {}, 3, 0}).description(),
            "unexpectedArgumentCount(3)");
  EXPECT_EQ((Error{ErrorKind::unexpectedUTF8Sequence, {}, 0, 0}).description(),
            "unexpectedUTF8Sequence");
}

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

}  // namespace
