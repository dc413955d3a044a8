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

// Known names ignore the opacity; grey is no known name; the hex form needs 24 bits and is
// not used for greys; an opacity wins over the colour's own alpha.
TEST(ColorTextTest, Text) {
  using C = CSS::Color;
  struct Row {
    CSS::Color color;
    std::optional<double> opacity;
    bool preferInit, useHex;
    std::string expected;
    bool setsHexFlag;
  };
  const Row rows[] = {
      {C::named("gray"), 0.5, false, false, "Color.gray", false},
      {C::named("red"), {}, true, false, ".red", false},
      {C::named("grey"), {}, false, false, "Color(white: 0.502)", false},
      {C::named("navy"), 0.25, true, false, ".init(red: 0, green: 0, blue: 0.502, opacity: 0.25)",
       false},
      {C::named("nocolor"), {}, false, false, "Color.nocolor /*unknown*/", false},
      {C::rgb(1, 0.5, 0), {}, false, true, "Color(0xFF7F00)", true},
      {C::rgb(0.5, 0.5, 0.5), {}, false, true, "Color(white: 0.5)", false},
      {C::rgb(2, 0, 0), {}, false, true, "Color(red: 2, green: 0, blue: 0)", false},
      {C::rgba(0, 0, 1, 0.5),
       {},
       true,
       false,
       ".init(red: 0, green: 0, blue: 1, opacity: 0.5)",
       false},
      {C::rgba(0, 0, 1, 0.5), 0.75, true, true, ".init(0x0000FF, opacity: 0.75)", true}};
  for (const auto& row : rows) {
    CodeGenerationStream s{Config{}};
    EXPECT_EQ(SVGConverter::colorText(s, row.color, row.opacity, row.preferInit, row.useHex),
              row.expected);
    EXPECT_EQ(s.didUseHexColorInit, row.setsHexFlag) << row.expected;
  }
}

std::string generate(const std::string& svgText, const Config& config = {},
                     std::vector<std::string>* reports = nullptr) {
  const SVGParser::Report report([reports](std::string_view line) {
    if (reports) reports->emplace_back(line);
  });
  const auto svg = SVGParser::parse(svgText, report);
  if (!svg) return "(no parse)";
  return SVGSwiftUIExporter::generate(*svg, config, report);
}

// The preview scales small drawings up by a whole factor; anything odd is shown as it is.
TEST(ExporterTest, PreviewFrameFactor) {
  const std::pair<std::string, std::string> rows[] = {{"24", "10 * "}, {"120", "2 * "}, {"121", ""},
                                                      {"0", ""},       {"0.5", ""},     {"-5", ""},
                                                      {"1e300", ""}};
  for (const auto& [width, factor] : rows) {
    const auto text = generate("<svg width=\"" + width + "\" height=\"10\"/>");
    EXPECT_NE(text.find(".frame(width  : " + factor + "Group1.intrinsicSize.width,"),
              std::string::npos)
        << text;
  }
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
