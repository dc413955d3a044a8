// Colour text, preview sizing and the exporter's guards against inputs that would stop the
// process or grow the text without bound.
#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "SVGConverter/CodeGenerationStream.h"
#include "SVGConverter/PaintText.h"
#include "SVGConverter/SVGSwiftUIExporter.h"
#include "SVGParser/SVGParser.h"

namespace {

using SVGConverter::CodeGenerationStream;
using Config = SVGSwiftUIExporter::Config;

struct ColorRow {
  std::string name;
  CSS::Color color;
  std::optional<double> opacity;
  bool preferInit, useHex;
  std::string expected;
  bool setsHexFlag;
};

class ColorTextTest : public testing::TestWithParam<ColorRow> {};

TEST_P(ColorTextTest, Text) {
  CodeGenerationStream s{Config{}};
  const auto& row = GetParam();
  EXPECT_EQ(SVGConverter::colorText(s, row.color, row.opacity, row.preferInit, row.useHex),
            row.expected);
  EXPECT_EQ(s.didUseHexColorInit, row.setsHexFlag);
}

using C = CSS::Color;

// clang-format off
INSTANTIATE_TEST_SUITE_P(
    Rows, ColorTextTest,
    testing::Values(
        ColorRow{"KnownNameIgnoresOpacity", C::named("gray"), 0.5, false, false, "Color.gray", false},
        ColorRow{"KnownNameInit", C::named("red"), {}, true, false, ".red", false},
        ColorRow{"GreyIsNoKnownName", C::named("grey"), {}, false, false, "Color(white: 0.502)", false},
        ColorRow{"TableName", C::named("navy"), 0.25, true, false,
                 ".init(red: 0, green: 0, blue: 0.502, opacity: 0.25)", false},
        ColorRow{"UnknownName", C::named("nocolor"), {}, false, false, "Color.nocolor /*unknown*/", false},
        ColorRow{"Hex", C::rgb(1, 0.5, 0), {}, false, true, "Color(0xFF7F00)", true},
        ColorRow{"HexGreyStaysWhite", C::rgb(0.5, 0.5, 0.5), {}, false, true, "Color(white: 0.5)", false},
        ColorRow{"HexNeeds24Bits", C::rgb(2, 0, 0), {}, false, true, "Color(red: 2, green: 0, blue: 0)", false},
        ColorRow{"OwnAlphaWhenNoOpacity", C::rgba(0, 0, 1, 0.5), {}, true, false,
                 ".init(red: 0, green: 0, blue: 1, opacity: 0.5)", false},
        ColorRow{"OpacityWinsOverAlpha", C::rgba(0, 0, 1, 0.5), 0.75, true, true,
                 ".init(0x0000FF, opacity: 0.75)", true}),
    [](const testing::TestParamInfo<ColorRow>& info) { return info.param.name; });
// clang-format on

std::string generate(const std::string& svgText, const Config& config = {},
                     std::vector<std::string>* reports = nullptr) {
  const SVGParser::Report report([reports](std::string_view line) {
    if (reports) reports->emplace_back(line);
  });
  const auto svg = SVGParser::parse(svgText, report);
  if (!svg) return "(no parse)";
  return SVGSwiftUIExporter::generate(*svg, config, report);
}

struct PreviewRow {
  std::string width;
  std::string expectedFrame;
};

class PreviewFrameTest : public testing::TestWithParam<PreviewRow> {};

TEST_P(PreviewFrameTest, Factor) {
  const auto text = generate("<svg width=\"" + GetParam().width + "\" height=\"10\"/>");
  EXPECT_NE(text.find(GetParam().expectedFrame), std::string::npos) << text;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PreviewFrameTest,
    testing::Values(PreviewRow{"24", ".frame(width  : 10 * Group1.intrinsicSize.width,"},
                    PreviewRow{"120", ".frame(width  : 2 * Group1.intrinsicSize.width,"},
                    PreviewRow{"121", ".frame(width  : Group1.intrinsicSize.width,"},
                    PreviewRow{"0", ".frame(width  : Group1.intrinsicSize.width,"},
                    PreviewRow{"0.5", ".frame(width  : Group1.intrinsicSize.width,"},
                    PreviewRow{"-5", ".frame(width  : Group1.intrinsicSize.width,"},
                    PreviewRow{"1e300", ".frame(width  : Group1.intrinsicSize.width,"}));

TEST(ExporterTest, EmptyDocumentStillGivesAFile) {
  Config config;
  config.rootViewName = "Empty";
  const auto text = generate("<svg/>", config);
  EXPECT_NE(text.find("EmptyView() // Group w/o content"), std::string::npos);
  EXPECT_NE(text.find(".frame(width: 128, height: 128)"), std::string::npos);
  EXPECT_EQ(text.back(), '\n');
}

TEST(ExporterTest, HexExtensionOnlyWhenUsed) {
  Config config;
  config.exportHexColorExtension = true;
  EXPECT_EQ(generate("<svg><rect width='1' height='1' fill='gray'/></svg>", config)
                .find("fileprivate extension Color"),
            std::string::npos);
  EXPECT_NE(generate("<svg><rect width='1' height='1' fill='#123456'/></svg>", config)
                .find("fileprivate extension Color"),
            std::string::npos);
}

TEST(ExporterTest, ChainedBlendsThatReuseTheirInputStayBounded) {
  // Fourteen links: within what the conversion keeps, but 2^15 groups once written out.
  std::string svg = "<svg><defs><filter id='f'><feOffset dx='1' result='r0'/>";
  for (int i = 1; i <= 14; ++i) {
    const auto previous = "r" + std::to_string(i - 1);
    // The last blend names no result, so that it is the filter's output.
    const auto result = i < 14 ? " result='r" + std::to_string(i) + "'" : std::string();
    svg += "<feBlend in='" + previous + "' in2='" + previous + "'" + result + "/>";
  }
  svg += "</filter></defs><rect width='1' height='1' filter='url(#f)'/></svg>";
  std::vector<std::string> reports;
  const auto start = std::chrono::steady_clock::now();
  const auto text = generate(svg, {}, &reports);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
  EXPECT_LT(text.size(), 1'000'000u);
  EXPECT_NE(text.find("// Filter too large to write out: drawn unfiltered"), std::string::npos);
  bool reported = false;
  for (const auto& line : reports) reported |= line.starts_with("Filter too large to write");
  EXPECT_TRUE(reported);
}

TEST(ExporterTest, ShortBlendChainIsWrittenInFull) {
  const auto text = generate(
      "<svg><filter id='f'><feOffset dx='1' result='a'/><feBlend in='a' in2='a' result='b'/>"
      "<feBlend in='b' in2='b'/></filter><rect width='1' height='1' filter='url(#f)'/></svg>");
  EXPECT_EQ(text.find("too large"), std::string::npos);
  std::size_t blends = 0;
  for (auto at = text.find("// feBlend"); at != std::string::npos;
       at = text.find("// feBlend", at + 1)) {
    ++blends;
  }
  EXPECT_EQ(blends, 3u);  // the inner blend is written once for each use
}

}  // namespace
