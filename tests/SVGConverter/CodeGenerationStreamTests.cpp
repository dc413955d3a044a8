// The generation stream's line and block rules, number text and value literals.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <string>

#include "SVGConverter/CodeGenerationStream.h"
#include "SVGConverter/ValueLiterals.h"

namespace {

using SVGConverter::CodeGenerationStream;
using Config = SVGSwiftUIExporter::Config;

Config withDigits(int digits) {
  Config config;
  config.maximumFractionDigits = digits;
  return config;
}

struct NumberRow {
  int digits;
  double value;
  std::string expected;
};

class NumberStringTest : public testing::TestWithParam<NumberRow> {};

TEST_P(NumberStringTest, FormatsLikeTheStyleLessFormatter) {
  const CodeGenerationStream s(withDigits(GetParam().digits));
  EXPECT_EQ(s.numberString(GetParam().value), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, NumberStringTest,
    testing::Values(NumberRow{4, 24, "24"}, NumberRow{4, 24.5, "24.5"},
                    NumberRow{4, 1.23456, "1.2346"}, NumberRow{4, 215.0 / 255.0, "0.8431"},
                    NumberRow{4, 0.00015, "0.0002"}, NumberRow{4, -0.00001, "-0"},
                    NumberRow{4, 0, "0"}, NumberRow{4, 0.5, "0.5"}, NumberRow{4, -0.5, "-0.5"},
                    NumberRow{4, 1234.5, "1234.5"}, NumberRow{4, 1e16, "10000000000000000"},
                    NumberRow{0, 2.5, "2"}, NumberRow{0, 3.5, "4"}, NumberRow{2, 0.125, "0.12"},
                    NumberRow{2, 0.135, "0.14"}, NumberRow{-3, 1.5, "2"},
                    NumberRow{4, std::numeric_limits<double>::quiet_NaN(), ".nan"},
                    NumberRow{4, std::numeric_limits<double>::infinity(), ".infinity"},
                    NumberRow{4, -std::numeric_limits<double>::infinity(), "-.infinity"}));

TEST(NumberStringTest, HugeLimitIsClampedNotRefused) {
  const CodeGenerationStream s(withDigits(1'000'000));
  EXPECT_EQ(s.numberString(0.5), "0.5");
}

struct StreamRow {
  std::string name;
  Config config;
  std::function<void(CodeGenerationStream&)> write;
  std::string expected;
};

Config configWith(std::function<void(Config&)> change) {
  Config config;
  change(config);
  return config;
}

class StreamTest : public testing::TestWithParam<StreamRow> {};

TEST_P(StreamTest, WritesExactText) {
  CodeGenerationStream s(GetParam().config);
  GetParam().write(s);
  EXPECT_EQ(s.text(), GetParam().expected);
  EXPECT_EQ(s.depth(), 0);
}

const Config noInfo = configWith([](Config& c) { c.infoComments = false; });
const Config emptyLinesIndented = configWith([](Config& c) { c.indentEmptyLines = true; });
const Config tabs = configWith([](Config& c) { c.indentString = "\t"; });

INSTANTIATE_TEST_SUITE_P(
    Rows, StreamTest,
    testing::Values(
        StreamRow{"BlankLineAtTopIsEmpty", emptyLinesIndented, [](auto& s) { s.appendBlankLine(); },
                  "\n"},
        StreamRow{"BlankLineAtDepthTwoCarriesPrefix", emptyLinesIndented,
                  [](auto& s) {
                    s.indented(true, [&] { s.indented(true, [&] { s.appendBlankLine(); }); });
                  },
                  "    \n"},
        StreamRow{"BlankLineIsEmptyByDefault", Config{},
                  [](auto& s) { s.indented(true, [&] { s.appendBlankLine(); }); }, "\n"},
        StreamRow{"IndentStringRepeatedAsItStands", tabs,
                  [](auto& s) {
                    s.indented(true, [&] { s.indented(true, [&] { s.appendLine("x"); }); });
                  },
                  "\t\tx\n"},
        StreamRow{"DisabledIndentKeepsDepth", Config{},
                  [](auto& s) { s.indented(false, [&] { s.appendLine("x"); }); }, "x\n"},
        StreamRow{"CommentAndInfo", Config{}, [](auto& s) { s.appendLine("a", "c", "i"); },
                  "a // c, Info:i\n"},
        StreamRow{"InfoAlone", Config{}, [](auto& s) { s.appendLine("a", std::nullopt, "i"); },
                  "a // i\n"},
        StreamRow{"CommentWithoutInfoComments", noInfo,
                  [](auto& s) { s.appendLine("a", "c", "i"); }, "a // c\n"},
        StreamRow{"InfoDroppedWithoutInfoComments", noInfo,
                  [](auto& s) { s.appendLine("a", std::nullopt, "i"); }, "a\n"},
        StreamRow{"InfoCommentLine", Config{}, [](auto& s) { s.appendInfoComment("SVG"); },
                  "// SVG\n"},
        StreamRow{"InfoCommentSilenced", noInfo, [](auto& s) { s.appendInfoComment("SVG"); }, ""},
        StreamRow{"CommentedLineIgnoresFlag", noInfo,
                  [](auto& s) { s.appendCommentedLine(".fill()", "Could not generate color"); },
                  ".fill() // Could not generate color\n"},
        StreamRow{"IndentedText", Config{},
                  [](auto& s) { s.indented(true, [&] { s.appendIndentedText("a\nb\n"); }); },
                  "  a\n  b\n"},
        StreamRow{
            "BlockAddsBrace", Config{},
            [](auto& s) { s.appendBlock("VStack", std::nullopt, [&] { s.appendLine("x"); }); },
            "VStack {\n  x\n}\n"},
        StreamRow{"BlockKeepsOwnBrace", Config{},
                  [](auto& s) { s.appendBlock("Path { path in", "c", [&] { s.appendLine("x"); }); },
                  "Path { path in // c\n  x\n}\n"},
        StreamRow{
            "BlockBraceAnywhereInHeader", Config{},
            [](auto& s) { s.appendBlock("struct A: View { // SVGPath", std::nullopt, [] {}); },
            "struct A: View { // SVGPath\n}\n"},
        StreamRow{"EmptyBlockCommentWritesNothing", Config{},
                  [](auto& s) { s.appendBlock("ZStack", "", [] {}); }, "ZStack {\n}\n"},
        StreamRow{"BlockCommentObeysInfoComments", noInfo,
                  [](auto& s) { s.appendBlock("ZStack", "feMerge", [] {}); }, "ZStack {\n}\n"}),
    [](const testing::TestParamInfo<StreamRow>& info) { return info.param.name; });

struct LiteralRow {
  std::string name;
  std::function<std::string(const CodeGenerationStream&)> make;
  std::string expected;
};

class LiteralTest : public testing::TestWithParam<LiteralRow> {};

TEST_P(LiteralTest, Text) {
  const CodeGenerationStream s{Config{}};
  EXPECT_EQ(GetParam().make(s), GetParam().expected);
}

using SwiftUIModel::TransformStep;
using namespace SVGConverter;

INSTANTIATE_TEST_SUITE_P(
    Rows, LiteralTest,
    testing::Values(LiteralRow{"UnitPoint",
                               [](auto& s) {
                                 return unitPointLiteral(s, {0.2, 1}, false);
                               },
                               "UnitPoint(x: 0.2, y: 1)"},
                    LiteralRow{"EscapesBackslashFirst",
                               [](auto&) { return escapedStringLiteralBody("a\\\"b\nc\td"); },
                               "a\\\\\\\"b\\nc\td"},
                    LiteralRow{"IdentityMatrixWithInit",
                               [](auto& s) {
                                 return firstStepText(
                                     s, TransformStep::matrix(CGAffineTransformIdentity), true);
                               },
                               ".identity"},
                    LiteralRow{"IdentityMatrixChained",
                               [](auto& s) {
                                 return chainedStepText(
                                     s, TransformStep::matrix(CGAffineTransformIdentity));
                               },
                               ".concatenating(CGAffineTransform.identity)"}),
    [](const testing::TestParamInfo<LiteralRow>& info) { return info.param.name; });

}  // namespace
