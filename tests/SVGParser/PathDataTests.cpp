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
const Command Z = cmd(Kind::Z);

Error invalidChar(unsigned char byte) {
  return {ErrorKind::invalidCommandChar, {}, 0, byte};
}
Error missing(char letter) {
  return {ErrorKind::missingArgument, {}, 0, static_cast<std::uint8_t>(letter)};
}
Error badNumber(std::string text) {
  return {ErrorKind::couldNotParseNumber, std::move(text), 0, 0};
}

struct Row {
  const char* name;
  std::string text;
  std::vector<Command> commands;
  std::optional<Error> error;
};

void PrintTo(const Row& row, std::ostream* out) {
  *out << row.name;
}

const std::string kManyDigits(400, '9');
const std::string kManyZeros(400, '0');

const Row kRows[] = {
    // Empty and blank texts.
    {"Empty", "", {}, {}},
    {"BlanksOnly", " \n\r\a ", {}, {}},
    {"LeadingBlanks", "\a\n M1 2", {cmd(Kind::M, {1, 2})}, {}},
    // Emission and repetition.
    {"LastCommandAtEnd", "M10 20", {cmd(Kind::M, {10, 20})}, {}},
    {"MovetoRepeatsAsLineto", "M1 2 3 4", {cmd(Kind::M, {1, 2}), cmd(Kind::L, {3, 4})}, {}},
    {"RelativeMovetoRepeats", "m1 2 3 4", {cmd(Kind::m, {1, 2}), cmd(Kind::l, {3, 4})}, {}},
    {"CurveRepeats",
     "C1 2 3 4 5 6 7 8 9 10 11 12",
     {cmd(Kind::C, {1, 2, 3, 4, 5, 6}), cmd(Kind::C, {7, 8, 9, 10, 11, 12})},
     {}},
    {"SingleArgumentRepeats",
     "H5 6 v7",
     {cmd(Kind::H, {5}), cmd(Kind::H, {6}), cmd(Kind::v, {7})},
     {}},
    {"EveryCommandKind",
     "M1 2m3 4L5 6l7 8H9h1V2v3C1 2 3 4 5 6c1 2 3 4 5 6S1 2 3 4s1 2 3 4Q1 2 3 4q1 2 3 4T1 2t3 4"
     "A1 2 3 0 1 6 7a1 2 3 1 0 6 7z",
     {cmd(Kind::M, {1, 2}), cmd(Kind::m, {3, 4}), cmd(Kind::L, {5, 6}), cmd(Kind::l, {7, 8}),
      cmd(Kind::H, {9}), cmd(Kind::h, {1}), cmd(Kind::V, {2}), cmd(Kind::v, {3}),
      cmd(Kind::C, {1, 2, 3, 4, 5, 6}), cmd(Kind::c, {1, 2, 3, 4, 5, 6}),
      cmd(Kind::S, {1, 2, 3, 4}), cmd(Kind::s, {1, 2, 3, 4}), cmd(Kind::Q, {1, 2, 3, 4}),
      cmd(Kind::q, {1, 2, 3, 4}), cmd(Kind::T, {1, 2}), cmd(Kind::t, {3, 4}),
      cmd(Kind::A, {1, 2, 3, 0, 1, 6, 7}), cmd(Kind::a, {1, 2, 3, 1, 0, 6, 7}), Z},
     {}},
    {"NoMovetoNeeded", "L1 2", {cmd(Kind::L, {1, 2})}, {}},
    // Numbers.
    {"MinusSeparates", "M1-2", {cmd(Kind::M, {1, -2})}, {}},
    {"SecondDotSeparates", "M1.5.5", {cmd(Kind::M, {1.5, 0.5})}, {}},
    {"DoubleDot", "M1..5", {cmd(Kind::M, {1, 0.5})}, {}},
    {"NegativeFractions", "M-.5-.5", {cmd(Kind::M, {-0.5, -0.5})}, {}},
    {"TrailingDot", "M5. -5.", {cmd(Kind::M, {5, -5})}, {}},
    {"LeadingZeros", "M007 00.25", {cmd(Kind::M, {7, 0.25})}, {}},
    {"MinusAfterCompleteSet", "M1 2-3 4", {cmd(Kind::M, {1, 2}), cmd(Kind::L, {-3, 4})}, {}},
    {"DotAfterCompleteSet", "M1 2.5.5 1", {cmd(Kind::M, {1, 2.5}), cmd(Kind::L, {0.5, 1})}, {}},
    {"PlusDropped", "M+1 2", {cmd(Kind::M, {1, 2})}, {}},
    {"PlusInsideSet", "M1+2", {}, missing('M')},
    {"ExponentInsideSet", "M1e5 2", {}, missing('M')},
    {"ExponentAfterSet", "L1 2e", {}, invalidChar('e')},
    {"LoneMinus", "M-", {}, badNumber("-")},
    {"LoneDot", "M.", {}, badNumber(".")},
    {"MinusDot", "M1 -.", {}, badNumber("-.")},
    {"LoneDotStartsRepetition", "M1 2 .", {}, badNumber(".")},
    // Commas.
    {"CommaBetween", "M1,2", {cmd(Kind::M, {1, 2})}, {}},
    {"CommaAfterCompleteSet", "M1,2,3,4", {}, invalidChar(',')},
    {"CommaAfterSingleArgument", "h1,2", {}, invalidChar(',')},
    {"CommaAfterBlankStartsRepetition",
     "M1 2 ,3 4",
     {cmd(Kind::M, {1, 2}), cmd(Kind::L, {3, 4})},
     {}},
    {"CommaFlushesEmptyNumber", "M1 ,2", {}, badNumber("")},
    {"LeadingCommaDropped", "M,1 2", {cmd(Kind::M, {1, 2})}, {}},
    // Letters while arguments are awaited.
    {"LetterAfterNumberInPartialSet", "M1L2 3", {}, missing('M')},
    {"LetterInPartialSetDropped", "M1 L2 3", {cmd(Kind::M, {1, 2}), cmd(Kind::L, {3, 2})}, {}},
    {"UnknownLetterAwaitingDropped",
     "M1 2 Lx3 4",
     {cmd(Kind::M, {1, 2}), cmd(Kind::L, {3, 4})},
     {}},
    {"LetterAfterCompleteSet", "M1 2L3 4", {cmd(Kind::M, {1, 2}), cmd(Kind::L, {3, 4})}, {}},
    {"CloseInPartialSet", "M1Z", {}, missing('M')},
    {"CloseAfterNumberInCurve", "c1 2 3z", {}, missing('c')},
    // Truncated last commands reuse the left-over arguments.
    {"LoneMoveto", "M", {cmd(Kind::M, {0, 0})}, {}},
    {"ShortLastCommand", "M1 2 L3", {cmd(Kind::M, {1, 2}), cmd(Kind::L, {3, 2})}, {}},
    {"ShortRepetition", "M1 2 3", {cmd(Kind::M, {1, 2}), cmd(Kind::L, {3, 2})}, {}},
    {"EmptyLastCommand", "M1 2 L", {cmd(Kind::M, {1, 2}), cmd(Kind::L, {1, 2})}, {}},
    {"LeftOversAcrossKinds",
     "C1 2 3 4 5 6 s7",
     {cmd(Kind::C, {1, 2, 3, 4, 5, 6}), cmd(Kind::s, {7, 2, 3, 4})},
     {}},
    // Closing.
    {"CloseLowerCase", "M1 2z", {cmd(Kind::M, {1, 2}), Z}, {}},
    {"CloseAlone", "Z", {Z}, {}},
    {"CloseThenBlanks", "M0 0Z \n ", {cmd(Kind::M, {0, 0}), Z}, {}},
    {"CloseEndsRepetition", "M0 0Z 5", {}, invalidChar('5')},
    {"CloseThenMoveto", "M0 0Z m1 1 z", {cmd(Kind::M, {0, 0}), Z, cmd(Kind::m, {1, 1}), Z}, {}},
    // Invalid starts.
    {"NumberFirst", "1 2", {}, invalidChar('1')},
    {"TabFirst", "\tM1 2", {}, invalidChar('\t')},
    {"FormFeedFirst", "\fM1 2", {}, invalidChar('\f')},
    // Tab is not a blank.
    {"TabInsidePartialSet", "M1\t2", {}, missing('M')},
    {"TabAfterCompleteSet", "M1 2\tL3 4", {}, invalidChar('\t')},
    {"TabAfterBlankInPartialSet", "M1 \t2", {cmd(Kind::M, {1, 2})}, {}},
    {"TabStartsRepetition", "M1 2 \t", {cmd(Kind::M, {1, 2}), cmd(Kind::L, {1, 2})}, {}},
    {"TabThenNumbers", "M1 2 \t3 4", {cmd(Kind::M, {1, 2}), cmd(Kind::L, {3, 4})}, {}},
    // Non-ASCII bytes take the other-byte branches.
    {"MultiByteStartsRepetition",
     "M1 2 \xC3\xA9",
     {cmd(Kind::M, {1, 2}), cmd(Kind::L, {1, 2})},
     {}},
    {"MultiByteAwaitingDropped", "M\xC3\xA9", {cmd(Kind::M, {0, 0})}, {}},
    {"MultiByteAfterNumber", "M1\xC3\xA9", {}, missing('M')},
    {"MultiByteFirst", "\xC3\xA9", {}, invalidChar(0xC3)},
    // Arcs.
    {"ArcFlags", "a1 1 0 1 0 5 5", {cmd(Kind::a, {1, 1, 0, 1, 0, 5, 5})}, {}},
    {"ArcFlagsAnyNonZero", "A1 1 0 2 -1 5 5", {cmd(Kind::A, {1, 1, 0, 1, 1, 5, 5})}, {}},
    {"ArcCompactFlagsAreNumbers", "a1 1 0 00.5 0", {cmd(Kind::a, {1, 1, 0, 1, 0, 0, 0})}, {}},
    // Out-of-range numbers saturate as strtod does.
    {"HugeNumber",
     "M" + kManyDigits + " -" + kManyDigits,
     {cmd(Kind::M,
          {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()})},
     {}},
    {"TinyNumber", "M0." + kManyZeros + "1 1", {cmd(Kind::M, {0, 1})}, {}},
};

class PathDataTest : public testing::TestWithParam<Row> {};

TEST_P(PathDataTest, Parses) {
  const Row& row = GetParam();
  const Command::ParseResult result = Command::parse(row.text);
  EXPECT_EQ(result.error, row.error);
  if (!row.error) {
    EXPECT_EQ(result.commands, row.commands);
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, PathDataTest, testing::ValuesIn(kRows),
                         [](const auto& info) { return std::string(info.param.name); });

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

struct DescriptionRow {
  Command command;
  const char* text;
};

class CommandDescriptionTest : public testing::TestWithParam<DescriptionRow> {};

TEST_P(CommandDescriptionTest, Describes) {
  EXPECT_EQ(GetParam().command.description(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Rows, CommandDescriptionTest,
                         testing::Values(DescriptionRow{cmd(Kind::M, {10, 20}), "M(10.0, 20.0)"},
                                         DescriptionRow{cmd(Kind::h, {-0.5}), "h(-0.5)"},
                                         DescriptionRow{cmd(Kind::a, {1, 2, 30, 1, 0, 5, 6}),
                                                        "a(1.0, 2.0, 30.0, true, false, 5.0, 6.0)"},
                                         DescriptionRow{Z, "Z"}));

struct ErrorRow {
  Error error;
  const char* text;
};

class ParserErrorDescriptionTest : public testing::TestWithParam<ErrorRow> {};

TEST_P(ParserErrorDescriptionTest, Describes) {
  EXPECT_EQ(GetParam().error.description(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Rows, ParserErrorDescriptionTest,
                         testing::Values(ErrorRow{invalidChar(','), "invalidCommandChar(44)"},
                                         ErrorRow{badNumber("-"), "couldNotParseNumber(\"-\")"},
                                         ErrorRow{badNumber(""), "couldNotParseNumber(\"\")"},
                                         ErrorRow{missing('M'), "missingArgument(77)"},
                                         ErrorRow{{ErrorKind::unexpectedArgumentCount, {}, 3, 0},
                                                  "unexpectedArgumentCount(3)"},
                                         ErrorRow{{ErrorKind::unexpectedUTF8Sequence, {}, 0, 0},
                                                  "unexpectedUTF8Sequence"}));

}  // namespace
