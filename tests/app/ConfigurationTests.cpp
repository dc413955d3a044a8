// The settings record: its defaults, its JSON decoding rules and its mapping onto the
// exporter's settings.
#include <gtest/gtest.h>

#include <functional>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "FigurerUtilities/Transcript.h"
#include "SVGFigurerApp/SVGFigurerConfiguration.h"

using namespace SVGFigurerApp;
using nlohmann::json;

namespace {

TEST(Configuration, FreshRecordHasTheFirstLaunchValues) {
  EXPECT_EQ(toJSON(SVGFigurerConfiguration::fresh()),
            json::parse(R"({"rootViewName":"","indentUsing":" ","indent":2,"initType":"type",
                "positioningType":"padding","maximumFractionDigits":4,"prefixSVG":true,
                "infoComments":true,"previewProvider":true,"imports":true,
                "newlineAfterClosePath":true,"indentEmptyLines":false,"useHexColor":false,
                "compilableSwift":false})"));
}

TEST(Configuration, DecodingFollowsTheKeyRules) {
  Transcript::expect("app/data/configuration-decoding.txt", [](const std::string& input) {
    std::string answer;
    const SVGParser::Report report(
        [&](std::string_view line) { answer += "> " + std::string(line) + "\n"; });
    const auto decoded = decodeConfigurationText(input, report);
    const std::string result = decoded                 ? encodeJSON(*decoded.value)
                               : decoded.error.empty() ? "fails without a reason"
                                                       : "fails";
    return "> " + result + "\n" + answer;
  });
}

TEST(Configuration, EncodingWritesAllFourteenKeysAndRoundTrips) {
  SVGFigurerConfiguration config;
  config.rootViewName = "Badge \"1\"";
  config.indentUsing = IndentType::tabs;
  config.indent = 1;
  config.useHexColor = true;
  config.maximumFractionDigits = 0;
  config.initType = InitType::autoInit;
  config.compilableSwift = true;
  const auto encoded = toJSON(config);
  EXPECT_EQ(encoded.size(), 14u);
  EXPECT_EQ(configurationKeys().size(), 14u);
  EXPECT_EQ(encoded["compilableSwift"], true);
  for (auto key : configurationKeys()) EXPECT_TRUE(encoded.contains(key)) << key;
  EXPECT_EQ(encoded["indentUsing"], "\t");
  EXPECT_EQ(encoded["initType"], "init");
  const auto text = encodeJSON(config);
  EXPECT_EQ(text.find(' '), text.find("Badge") + 5) << "no white space between tokens";
  const auto decoded = decodeConfigurationText(text);
  ASSERT_TRUE(decoded) << decoded.error;
  EXPECT_EQ(*decoded.value, config);
  config.indentUsing = IndentType::spaces;
  EXPECT_EQ(*decodeConfigurationText(encodeJSON(config)).value, config);
}

TEST(Configuration, IndentRepeatsTheIndentCharacterWithinBounds) {
  Transcript::expect("app/data/indent-strings.txt", [](const std::string& input) {
    SVGFigurerConfiguration config;
    config.indentUsing = input.starts_with("tabs") ? IndentType::tabs : IndentType::spaces;
    config.indent = std::stoi(input.substr(input.find(' ') + 1));
    const auto indent = config.exporterConfig().indentString;
    const auto all = [&](char c) { return indent.find_first_not_of(c) == std::string::npos; };
    return "> " + std::to_string(indent.size()) +
           (indent.empty() ? ""
            : all(' ')     ? " spaces"
            : all('\t')    ? " tabs"
                           : " mixed") +
           "\n";
  });
}

TEST(Configuration, MapsOntoTheExporterSettingsAndKeepsTheRest) {
  SVGFigurerConfiguration config;
  config.rootViewName = "Logo";
  config.infoComments = config.previewProvider = config.imports = false;
  config.newlineAfterClosePath = false;
  config.useHexColor = config.indentEmptyLines = config.compilableSwift = true;
  config.initType = InitType::autoInit;
  config.positioningType = PositioningStyle::offset;
  config.maximumFractionDigits = 6;
  auto expected = SVGSwiftUIExporter::Config{};
  expected.rootViewName = "Logo";
  expected.infoComments = expected.generatePreviewProvider = expected.generateImport = false;
  expected.newlineAfterClosePath = expected.positionUsingPadding = false;
  expected.exportHexColorExtension = expected.indentEmptyLines = true;
  expected.preferInitOverType = expected.compilableSwift = true;
  expected.maximumFractionDigits = 6;
  EXPECT_EQ(config.exporterConfig(), expected);
  // The fresh record prefers the type name, unlike the exporter's own default.
  EXPECT_FALSE(SVGFigurerConfiguration::fresh().exporterConfig().preferInitOverType);
}

// Each input is a key and the text for its value, as `config set` takes them: the value as it
// is then stored, or the reason for refusing it.
TEST(Configuration, SettingFromTextParsesOrRefuses) {
  Transcript::expect("app/data/configuration-set.txt", [](const std::string& input) {
    const auto blank = input.find(' ');
    const std::string key = input.substr(0, blank);
    SVGFigurerConfiguration config;
    const auto error = setConfigurationValue(
        config, key,
        blank == std::string::npos ? "" : Transcript::unescape(input.substr(blank + 1)));
    if (!error) return "> " + toJSON(config)[key].dump() + "\n";
    return "> refused: " + *error + (config == SVGFigurerConfiguration{} ? "" : " but changed") +
           "\n";
  });
}

}  // namespace
