#include <gtest/gtest.h>

#include <cmath>
#include <limits>
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

TEST(PathDataTest, LeftOversCarryThroughLongPaths) {
  // The last command of a long text still sees the arguments of the one before it.
  std::string text = "M0 0";
  for (int i = 1; i <= 10000; ++i) text += " L" + std::to_string(i) + " " + std::to_string(-i);
  text += " L7";
  const auto result = Command::parse(text);
  ASSERT_FALSE(result.error);
  ASSERT_EQ(result.commands.size(), 10002u);
  EXPECT_EQ(result.commands[10000], cmd(Kind::L, {10000, -10000}));
  EXPECT_EQ(result.commands.back(), cmd(Kind::L, {7, -10000}));
}

struct ErrorRow {
  Error error;
  const char* text;
};

class ParserErrorDescriptionTest : public testing::TestWithParam<ErrorRow> {};

TEST_P(ParserErrorDescriptionTest, Describes) {
  EXPECT_EQ(GetParam().error.description(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Rows, ParserErrorDescriptionTest,
                         testing::Values(ErrorRow{{ErrorKind::unexpectedArgumentCount, {}, 3, 0},
                                                  "unexpectedArgumentCount(3)"},
                                         ErrorRow{{ErrorKind::unexpectedUTF8Sequence, {}, 0, 0},
                                                  "unexpectedUTF8Sequence"}));

}  // namespace
