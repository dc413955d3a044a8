// The generation stream's line and block rules, number text and value literals.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <tuple>

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

TEST(NumberStringTest, FormatsLikeTheStyleLessFormatter) {
  constexpr double inf = std::numeric_limits<double>::infinity();
  const std::tuple<int, double, std::string> rows[] = {
      {4, 24, "24"},
      {4, 24.5, "24.5"},
      {4, 1.23456, "1.2346"},
      {4, 215.0 / 255.0, "0.8431"},
      {4, 0.00015, "0.0002"},
      {4, -0.00001, "-0"},
      {4, 0, "0"},
      {4, 0.5, "0.5"},
      {4, -0.5, "-0.5"},
      {4, 1234.5, "1234.5"},
      {4, 1e16, "10000000000000000"},
      {0, 2.5, "2"},
      {0, 3.5, "4"},
      {2, 0.125, "0.12"},
      {2, 0.135, "0.14"},
      {-3, 1.5, "2"},
      {4, std::nan(""), ".nan"},
      {4, inf, ".infinity"},
      {4, -inf, "-.infinity"},
      {1'000'000, 0.5, "0.5"}};  // a huge limit is clamped, not refused
  for (const auto& [digits, value, expected] : rows) {
    EXPECT_EQ(CodeGenerationStream(withDigits(digits)).numberString(value), expected) << value;
  }
}

Config configWith(std::function<void(Config&)> change) {
  Config config;
  change(config);
  return config;
}

TEST(StreamTest, WritesExactText) {
  const Config noInfo = configWith([](Config& c) { c.infoComments = false; });
  const Config emptyLinesIndented = configWith([](Config& c) { c.indentEmptyLines = true; });
  const Config tabs = configWith([](Config& c) { c.indentString = "\t"; });
  const std::tuple<Config, std::function<void(CodeGenerationStream&)>, std::string> rows[] = {
      {emptyLinesIndented, [](auto& s) { s.appendBlankLine(); }, "\n"},
      {emptyLinesIndented,
       [](auto& s) { s.indented(true, [&] { s.indented(true, [&] { s.appendBlankLine(); }); }); },
       "    \n"},
      {Config{}, [](auto& s) { s.indented(true, [&] { s.appendBlankLine(); }); }, "\n"},
      {tabs,
       [](auto& s) { s.indented(true, [&] { s.indented(true, [&] { s.appendLine("x"); }); }); },
       "\t\tx\n"},
      {Config{}, [](auto& s) { s.indented(false, [&] { s.appendLine("x"); }); }, "x\n"},
      {Config{}, [](auto& s) { s.appendLine("a", "c", "i"); }, "a // c, Info:i\n"},
      {Config{}, [](auto& s) { s.appendLine("a", std::nullopt, "i"); }, "a // i\n"},
      {noInfo, [](auto& s) { s.appendLine("a", "c", "i"); }, "a // c\n"},
      {noInfo, [](auto& s) { s.appendLine("a", std::nullopt, "i"); }, "a\n"},
      {Config{}, [](auto& s) { s.appendInfoComment("SVG"); }, "// SVG\n"},
      {noInfo, [](auto& s) { s.appendInfoComment("SVG"); }, ""},
      {noInfo, [](auto& s) { s.appendCommentedLine(".fill()", "Could not generate color"); },
       ".fill() // Could not generate color\n"},
      {Config{}, [](auto& s) { s.indented(true, [&] { s.appendIndentedText("a\nb\n"); }); },
       "  a\n  b\n"},
      {Config{}, [](auto& s) { s.appendBlock("VStack", std::nullopt, [&] { s.appendLine("x"); }); },
       "VStack {\n  x\n}\n"},
      {Config{}, [](auto& s) { s.appendBlock("Path { path in", "c", [&] { s.appendLine("x"); }); },
       "Path { path in // c\n  x\n}\n"},
      {Config{}, [](auto& s) { s.appendBlock("struct A: View { // SVGPath", std::nullopt, [] {}); },
       "struct A: View { // SVGPath\n}\n"},
      {Config{}, [](auto& s) { s.appendBlock("ZStack", "", [] {}); }, "ZStack {\n}\n"},
      {noInfo, [](auto& s) { s.appendBlock("ZStack", "feMerge", [] {}); }, "ZStack {\n}\n"}};
  for (const auto& [config, write, expected] : rows) {
    CodeGenerationStream s(config);
    write(s);
    EXPECT_EQ(s.text(), expected);
    EXPECT_EQ(s.depth(), 0);
  }
}

TEST(LiteralTest, Texts) {
  using SwiftUIModel::TransformStep;
  const CodeGenerationStream s{Config{}};
  EXPECT_EQ(SVGConverter::unitPointLiteral(s, {0.2, 1}, false), "UnitPoint(x: 0.2, y: 1)");
  EXPECT_EQ(SVGConverter::escapedStringLiteralBody("a\\\"b\nc\td"), "a\\\\\\\"b\\nc\td");
  const auto identity = TransformStep::matrix(CGAffineTransformIdentity);
  EXPECT_EQ(SVGConverter::firstStepText(s, identity, true), ".identity");
  EXPECT_EQ(SVGConverter::chainedStepText(s, identity),
            ".concatenating(CGAffineTransform.identity)");
}

}  // namespace
