// The settings record: its defaults, its JSON decoding rules and its mapping onto the
// exporter's settings.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "SVGFigurerApp/SVGFigurerConfiguration.h"

using namespace SVGFigurerApp;

namespace {

constexpr const char* requiredKeys =
    R"("rootViewName":"","indentUsing":" ","indent":2,"initType":"type","positioningType":"padding")";

std::string withRequired(const std::string& more) {
  return std::string("{") + requiredKeys + (more.empty() ? "" : "," + more) + "}";
}

TEST(Configuration, FreshRecordHasTheFirstLaunchValues) {
  const auto fresh = SVGFigurerConfiguration::fresh();
  EXPECT_EQ(fresh.rootViewName, "");
  EXPECT_EQ(fresh.indentUsing, IndentType::spaces);
  EXPECT_EQ(fresh.indent, 2);
  EXPECT_EQ(fresh.initType, InitType::type);
  EXPECT_EQ(fresh.positioningType, PositioningStyle::padding);
  EXPECT_EQ(fresh.maximumFractionDigits, 4);
  EXPECT_TRUE(fresh.prefixSVG && fresh.infoComments && fresh.previewProvider && fresh.imports &&
              fresh.newlineAfterClosePath);
  EXPECT_FALSE(fresh.indentEmptyLines || fresh.useHexColor || fresh.compilableSwift);
}

TEST(Configuration, OnlyTheRequiredKeysDecodeWithProviderDefaults) {
  const auto decoded = decodeConfigurationText(withRequired(""));
  ASSERT_TRUE(decoded) << decoded.error;
  SVGFigurerConfiguration expected;
  expected.maximumFractionDigits = 2;  // the provider's value, not the fresh record's 4
  EXPECT_EQ(*decoded.value, expected);
}

struct DecodeRow {
  const char* name;
  std::string json;
  bool decodes;
  std::function<bool(const SVGFigurerConfiguration&)> check;
  std::size_t printedErrors = 0;
};

class ConfigurationDecoding : public testing::TestWithParam<DecodeRow> {};

TEST_P(ConfigurationDecoding, FollowsTheKeyRules) {
  const auto& row = GetParam();
  std::vector<std::string> lines;
  const SVGParser::Report report([&](std::string_view line) { lines.emplace_back(line); });
  const auto decoded = decodeConfigurationText(row.json, report);
  ASSERT_EQ(decoded.value.has_value(), row.decodes) << decoded.error;
  EXPECT_EQ(decoded.error.empty(), row.decodes);
  if (decoded && row.check) {
    EXPECT_TRUE(row.check(*decoded.value));
  }
  EXPECT_EQ(lines.size(), row.printedErrors);
  for (const auto& line : lines) EXPECT_TRUE(line.starts_with("ERROR: ")) << line;
}

const std::vector<DecodeRow> decodeRows = {
    {"WrongTypeForProviderKeyTakesDefault", withRequired(R"("prefixSVG":"yes","useHexColor":1)"),
     true, [](auto& c) { return c.prefixSVG && !c.useHexColor; }, 2},
    {"NullProviderKeyTakesDefaultSilently", withRequired(R"("maximumFractionDigits":null)"), true,
     [](auto& c) { return c.maximumFractionDigits == 2; }},
    {"ProviderKeysReadWhenPresent",
     withRequired(R"("prefixSVG":false,"maximumFractionDigits":7,"useHexColor":true,)"
                  R"("indentEmptyLines":true,"imports":false,"compilableSwift":true)"),
     true,
     [](auto& c) {
       return !c.prefixSVG && c.maximumFractionDigits == 7 && c.useHexColor && c.indentEmptyLines &&
              !c.imports && c.compilableSwift;
     }},
    {"WrongTypeForCompilableSwiftTakesDefault", withRequired(R"("compilableSwift":"on")"), true,
     [](auto& c) { return !c.compilableSwift; }, 1},
    {"IntegralFloatReadsAsInteger", withRequired(R"("maximumFractionDigits":3.0)"), true,
     [](auto& c) { return c.maximumFractionDigits == 3; }},
    {"FractionalNumberIsWrongType", withRequired(R"("maximumFractionDigits":3.5)"), true,
     [](auto& c) { return c.maximumFractionDigits == 2; }, 1},
    {"TabIndentAndInitType",
     R"({"rootViewName":"Icon","indentUsing":"\t","indent":1,"initType":"init","positioningType":"offset"})",
     true,
     [](auto& c) {
       return c.rootViewName == "Icon" && c.indentUsing == IndentType::tabs &&
              c.initType == InitType::autoInit && c.positioningType == PositioningStyle::offset;
     }},
    {"UnknownIndentTextFails",
     R"({"rootViewName":"","indentUsing":"x","indent":2,"initType":"type","positioningType":"padding"})",
     false, nullptr},
    {"CaseNameIsNotTheValue",
     R"({"rootViewName":"","indentUsing":"spaces","indent":2,"initType":"type","positioningType":"padding"})",
     false, nullptr},
    {"UnknownInitTypeFails",
     R"({"rootViewName":"","indentUsing":" ","indent":2,"initType":"autoInit","positioningType":"padding"})",
     false, nullptr},
    {"MissingRootViewNameFails",
     R"({"indentUsing":" ","indent":2,"initType":"type","positioningType":"padding"})", false,
     nullptr},
    {"NullRequiredKeyFails",
     R"({"rootViewName":null,"indentUsing":" ","indent":2,"initType":"type","positioningType":"padding"})",
     false, nullptr},
    {"MissingPositioningFails",
     R"({"rootViewName":"","indentUsing":" ","indent":2,"initType":"type"})", false, nullptr},
    {"IndentAsTextFails",
     R"({"rootViewName":"","indentUsing":" ","indent":"2","initType":"type","positioningType":"padding"})",
     false, nullptr},
    {"IndentBeyondIntegerRangeFails",
     R"({"rootViewName":"","indentUsing":" ","indent":99999999999,"initType":"type","positioningType":"padding"})",
     false, nullptr},
    {"NegativeIndentPassesUnchecked",
     R"({"rootViewName":"","indentUsing":" ","indent":-3,"initType":"type","positioningType":"padding"})",
     true, [](auto& c) { return c.indent == -3; }},
    {"NotAnObjectFails", "[1,2]", false, nullptr},
    {"NotJSONFails", "{\"rootViewName\":", false, nullptr},
    {"UnknownKeysAreIgnored", withRequired(R"("somethingElse":[1])"), true, nullptr},
};

INSTANTIATE_TEST_SUITE_P(Rows, ConfigurationDecoding, testing::ValuesIn(decodeRows),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(Configuration, EncodingWritesAllFourteenKeysAndRoundTrips) {
  SVGFigurerConfiguration config;
  config.rootViewName = "Badge \"1\"";
  config.indentUsing = IndentType::tabs;
  config.indent = 1;
  config.useHexColor = true;
  config.maximumFractionDigits = 0;
  config.initType = InitType::autoInit;
  config.compilableSwift = true;
  const auto json = toJSON(config);
  EXPECT_EQ(json.size(), 14u);
  EXPECT_EQ(configurationKeys().size(), 14u);
  EXPECT_EQ(json["compilableSwift"], true);
  for (auto key : configurationKeys()) EXPECT_TRUE(json.contains(key)) << key;
  EXPECT_EQ(json["indentUsing"], "\t");
  EXPECT_EQ(json["initType"], "init");
  const auto text = encodeJSON(config);
  EXPECT_EQ(text.find(' '), text.find("Badge") + 5) << "no white space between tokens";
  const auto decoded = decodeConfigurationText(text);
  ASSERT_TRUE(decoded) << decoded.error;
  EXPECT_EQ(*decoded.value, config);
  config.indentUsing = IndentType::spaces;
  EXPECT_EQ(*decodeConfigurationText(encodeJSON(config)).value, config);
}

struct IndentRow {
  IndentType type;
  int indent;
  std::string expected;
};

class IndentMapping : public testing::TestWithParam<IndentRow> {};

TEST_P(IndentMapping, RepeatsTheIndentCharacter) {
  SVGFigurerConfiguration config;
  config.indentUsing = GetParam().type;
  config.indent = GetParam().indent;
  EXPECT_EQ(config.exporterConfig().indentString, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, IndentMapping,
    testing::Values(IndentRow{IndentType::spaces, 3, "   "},
                    IndentRow{IndentType::tabs, 3, "\t\t\t"}, IndentRow{IndentType::spaces, 0, ""},
                    IndentRow{IndentType::tabs, -2, ""},
                    IndentRow{IndentType::spaces, 1000000, std::string(maximumIndentWidth, ' ')}));

TEST(Configuration, MapsOntoTheExporterSettingsAndKeepsTheRest) {
  SVGFigurerConfiguration config;
  config.rootViewName = "Logo";
  config.infoComments = false;
  config.previewProvider = false;
  config.useHexColor = true;
  config.imports = false;
  config.newlineAfterClosePath = false;
  config.indentEmptyLines = true;
  config.initType = InitType::autoInit;
  config.positioningType = PositioningStyle::offset;
  config.maximumFractionDigits = 6;
  config.compilableSwift = true;
  auto expected = SVGSwiftUIExporter::Config{};
  expected.rootViewName = "Logo";
  expected.infoComments = false;
  expected.generatePreviewProvider = false;
  expected.exportHexColorExtension = true;
  expected.generateImport = false;
  expected.newlineAfterClosePath = false;
  expected.indentEmptyLines = true;
  expected.preferInitOverType = true;
  expected.positionUsingPadding = false;
  expected.maximumFractionDigits = 6;
  expected.compilableSwift = true;
  EXPECT_EQ(config.exporterConfig(), expected);
  // The fresh record prefers the type name, unlike the exporter's own default.
  EXPECT_FALSE(SVGFigurerConfiguration::fresh().exporterConfig().preferInitOverType);
}

struct SetRow {
  std::string key;
  std::string value;
  std::function<bool(const SVGFigurerConfiguration&)> check;  // null: must fail
};

class SettingFromText : public testing::TestWithParam<SetRow> {};

TEST_P(SettingFromText, ParsesOrRefuses) {
  SVGFigurerConfiguration config;
  const auto error = setConfigurationValue(config, GetParam().key, GetParam().value);
  if (!GetParam().check) {
    EXPECT_TRUE(error.has_value());
    EXPECT_EQ(config, SVGFigurerConfiguration{}) << "a refused value changes nothing";
    return;
  }
  ASSERT_FALSE(error) << *error;
  EXPECT_TRUE(GetParam().check(config));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SettingFromText,
    testing::Values(
        SetRow{"rootViewName", "Badge", [](auto& c) { return c.rootViewName == "Badge"; }},
        SetRow{"indentUsing", "tabs", [](auto& c) { return c.indentUsing == IndentType::tabs; }},
        SetRow{"indentUsing", "\t", [](auto& c) { return c.indentUsing == IndentType::tabs; }},
        SetRow{"indentUsing", "x", nullptr},
        SetRow{"indent", "4", [](auto& c) { return c.indent == 4; }},
        SetRow{"indent", "4x", nullptr}, SetRow{"indent", "", nullptr},
        SetRow{"maximumFractionDigits", "-1",
               [](auto& c) { return c.maximumFractionDigits == -1; }},
        SetRow{"prefixSVG", "false", [](auto& c) { return !c.prefixSVG; }},
        SetRow{"useHexColor", "yes", nullptr},
        SetRow{"compilableSwift", "true", [](auto& c) { return c.compilableSwift; }},
        SetRow{"initType", "init", [](auto& c) { return c.initType == InitType::autoInit; }},
        SetRow{"positioningType", "offset",
               [](auto& c) { return c.positioningType == PositioningStyle::offset; }},
        SetRow{"positioningType", "Offset", nullptr}, SetRow{"colour", "red", nullptr}));

}  // namespace
