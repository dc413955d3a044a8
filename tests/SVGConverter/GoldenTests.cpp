// Whole generated files against recorded ones: every tests/golden/<case>.svg is converted with
// the settings of <case>.config.json (a flat object of Config fields; absent means default)
// and compared with <case>.swift. The report lines of reading and conversion must equal
// <case>.report.txt, where an absent file stands for none.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>

#include "SVGConverter/SVGSwiftUIExporter.h"
#include "SVGParser/SVGParser.h"
#include "support/GoldenFiles.h"

// Absent keys keep the default; the two optional comments are read by hand below.
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(
    SVGSwiftUIExporter::Config, rootViewName, indentString, shapeTypePrefix, pathMethodPrefix,
    infoComments, generatePreviewProvider, exportHexColorExtension, generateImport,
    newlineAfterClosePath, frameAsProperty, assumeDefaultStrokeStyle, indentEmptyLines,
    preferInitOverType, positionUsingPadding, preferMultilineConstants,
    modifiersForInlinableFilters, inlineFiltersIfPossible, useThousandsSeparator,
    maximumFractionDigits, verbatimTexts, compilableSwift)

namespace {

SVGSwiftUIExporter::Config configFrom(const nlohmann::json& json) {
  auto config = json.get<SVGSwiftUIExporter::Config>();
  for (auto [key, field] :
       {std::pair{"modifierSectionComment", &config.modifierSectionComment},
        std::pair{"nestedViewsSectionComment", &config.nestedViewsSectionComment}}) {
    if (!json.contains(key)) continue;
    *field = json.at(key).is_null() ? std::nullopt : std::optional(json.at(key).get<std::string>());
  }
  return config;
}

class GoldenTest : public testing::TestWithParam<std::string> {};

TEST_P(GoldenTest, GeneratedTextAndReportMatchRecording) {
  const auto directory = golden::directory("golden");
  const auto configPath = directory / (GetParam() + ".config.json");
  const auto config = golden::fs::exists(configPath)
                          ? configFrom(nlohmann::json::parse(golden::read(configPath)))
                          : SVGSwiftUIExporter::Config{};
  std::string lines;
  const SVGParser::Report report([&](std::string_view line) { lines.append(line) += '\n'; });
  const auto text = golden::read(directory / (GetParam() + ".svg"));
  const auto svg = SVGParser::parse(text, report);
  ASSERT_TRUE(svg.has_value()) << "the case's SVG does not parse";
  const auto swift = SVGSwiftUIExporter::generate(*svg, config, report);
  golden::expectRecorded(directory / (GetParam() + ".report.txt"), lines, true);
  golden::expectRecorded(directory / (GetParam() + ".swift"), swift);

  // The same text and lines when each child of the root is read, converted and written before
  // the next is read.
  std::string inOrderLines, inOrderSwift;
  const SVGParser::Report inOrderReport(
      [&](std::string_view line) { inOrderLines.append(line) += '\n'; });
  auto document = SVGParser::InOrderReader::open(text, {}, inOrderReport);
  ASSERT_TRUE(document.has_value());
  SVGSwiftUIExporter::generate(
      document->root(), [&] { return document->next(); }, config, inOrderReport, inOrderSwift);
  EXPECT_EQ(lines, inOrderLines);
  EXPECT_EQ(swift, inOrderSwift);
}

INSTANTIATE_TEST_SUITE_P(Cases, GoldenTest,
                         testing::ValuesIn(golden::cases(golden::directory("golden"))),
                         [](const testing::TestParamInfo<std::string>& info) {
                           return info.param;
                         });
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(GoldenTest);

}  // namespace
