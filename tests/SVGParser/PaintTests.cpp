#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "SVGParser/SVG.h"

namespace SVGModel {
void PrintTo(const Paint& paint, std::ostream* out) {
  *out << paint.description();
}
}  // namespace SVGModel

namespace {

using Paint = SVG::Paint;
using Color = CSS::Color;
using Value = CSS::Value;

Paint named(const char* name) {
  return Paint::makeColor(Color::named(name));
}
Paint definition(const char* id) {
  return Paint::makeDefinition(id);
}

struct AttributeRow {
  const char* name;
  std::optional<std::string> text;
  std::optional<Paint> paint;
  std::vector<std::string> reports;
};

void PrintTo(const AttributeRow& row, std::ostream* out) {
  *out << row.name;
}

const AttributeRow kAttributeRows[] = {
    {"Absent", std::nullopt, std::nullopt, {}},
    {"Empty", "", std::nullopt, {}},
    {"None", "none", Paint::none(), {}},
    // "none" is matched before trimming; with a blank it reaches the colour name path.
    {"NoneWithBlank", " none", named("none"), {}},
    {"NamedColor", "Red", named("red"), {}},
    {"HexColor", "#fff", Paint::makeColor(Color::rgb(1, 1, 1)), {}},
    {"RgbCall", "rgb(255,0,0)", Paint::makeColor(Color::rgb(1, 0, 0)), {}},
    {"BadHex",
     "#12345",
     std::nullopt,
     {"ERROR: failed to parse color: #12345", "ERROR: Failed to parse paint: '#12345'"}},
    {"UnknownFunction", "foo(1)", std::nullopt, {"ERROR: Failed to parse paint: 'foo(1)'"}},
    // References.
    {"OneLetterId", "url(#a)", definition("a"), {}},
    {"SingleQuoted", "url('#ab')", definition("ab"), {}},
    {"DoubleQuoted", "url(\"#ab\")", definition("ab"), {}},
    {"MixedQuotes", "url('#ab\")", std::nullopt, {}},
    {"BlanksInsideBrackets", "url( #ab )", definition("ab"), {}},
    {"NoFragment", "url(ab)", std::nullopt, {}},
    {"EmptyQuotes", "url('')", std::nullopt, {}},
    {"FallbackIgnored", "url(#grad) red", definition("grad"), {}},
    {"FirstArgumentOnly", "url(#a, #b)", definition("a"), {}},
    // An argument of one character is left to the colour reader, which refuses the call.
    {"LoneHash", "url(#)", std::nullopt, {"ERROR: Failed to parse paint: 'url(#)'"}},
    {"NoArgument", "url()", std::nullopt, {"ERROR: Failed to parse paint: 'url()'"}},
    {"UpperCaseUrl", "URL(#ab)", std::nullopt, {"ERROR: Failed to parse paint: 'URL(#ab)'"}},
};

class PaintParseTest : public testing::TestWithParam<AttributeRow> {};

TEST_P(PaintParseTest, Parses) {
  const AttributeRow& row = GetParam();
  std::vector<std::string> reports;
  const SVGParser::Report report([&](std::string_view line) { reports.emplace_back(line); });
  EXPECT_EQ(Paint::parse(row.text, report), row.paint);
  EXPECT_EQ(reports, row.reports);
}

INSTANTIATE_TEST_SUITE_P(Rows, PaintParseTest, testing::ValuesIn(kAttributeRows),
                         [](const auto& info) { return std::string(info.param.name); });

struct ValueRow {
  const char* name;
  std::optional<Value> value;
  std::optional<Paint> paint;
};

void PrintTo(const ValueRow& row, std::ostream* out) {
  *out << row.name;
}

const ValueRow kValueRows[] = {
    {"Absent", std::nullopt, std::nullopt},
    // The stylesheet form has no "none": the field stays absent.
    {"ExplicitNone", Value{Value::ExplicitNone{}}, std::nullopt},
    {"OneLetterId", Value{Value::Url{"#a"}}, std::nullopt},
    {"TwoLetterId", Value{Value::Url{"#ab"}}, definition("ab")},
    {"NoFragment", Value{Value::Url{"abc"}}, std::nullopt},
    {"QuotesKept", Value{Value::Url{"'#ab'"}}, std::nullopt},
    {"NamedColor", Value{Value::Id{"Blue"}}, named("blue")},
    {"ShortHexRefused", Value{Value::Id{"#fff"}}, std::nullopt},
    {"BareHex", Value{Value::Id{"ff0000"}}, Paint::makeColor(Color::rgb(1, 0, 0))},
    {"RgbFunction", Value{Value::Function{"rgb", {"0", "255", "0"}}},
     Paint::makeColor(Color::rgb(0, 1, 0))},
    {"Number", Value{Value::Number{3}}, std::nullopt},
};

class PaintFromValueTest : public testing::TestWithParam<ValueRow> {};

TEST_P(PaintFromValueTest, Converts) {
  const ValueRow& row = GetParam();
  EXPECT_EQ(Paint::fromValue(row.value ? &*row.value : nullptr), row.paint);
}

INSTANTIATE_TEST_SUITE_P(Rows, PaintFromValueTest, testing::ValuesIn(kValueRows),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(PaintDescriptionTest, NamesTheCase) {
  EXPECT_EQ(Paint::none().description(), "none");
  EXPECT_EQ(definition("grad").description(), "definition(\"grad\")");
  EXPECT_TRUE(named("red").description().starts_with("color("));
}

}  // namespace
