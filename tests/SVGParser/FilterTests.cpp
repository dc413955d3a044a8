#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "SVGParser/SVG.h"

namespace {

using SVGParser::Attributes;
using Input = SVG::Filter::Input;
using Primitive = SVG::Filter::Primitive;
using Mode = Primitive::Blend::Mode;
using Length = CSS::UnitLength;
using Lines = std::vector<std::string>;

struct ReportLines {
  Lines lines;
  SVGParser::Report report{[this](std::string_view line) { lines.emplace_back(line); }};
};

template <class Row>
std::string rowName(const testing::TestParamInfo<Row>& info) {
  return info.param.name;
}

// Rows print as their name instead of a byte dump.
template <class Row>
requires requires(const Row& row) {
  row.name;
}
void PrintTo(const Row& row, std::ostream* out) {
  *out << row.name;
}

const Input sourceGraphic{Input::Kind::sourceGraphic, {}};
const Input sourceAlpha{Input::Kind::sourceAlpha, {}};
const Input previous{Input::Kind::previous, {}};

// ---- inputs ----------------------------------------------------------------------------

struct InputRow {
  std::string name;
  std::optional<std::string_view> text;
  std::optional<Input> expected;
};

class FilterInputParse : public testing::TestWithParam<InputRow> {};

TEST_P(FilterInputParse, KeywordsOrResultNames) {
  EXPECT_EQ(Input::parse(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, FilterInputParse,
    testing::ValuesIn(std::vector<InputRow>{
        {"Missing", std::nullopt, std::nullopt},
        {"Empty", "", std::nullopt},
        {"SourceGraphic", "SourceGraphic", sourceGraphic},
        {"SourceAlpha", "SourceAlpha", sourceAlpha},
        {"BackgroundImage", "BackgroundImage", Input{Input::Kind::backgroundImage, {}}},
        {"StrokePaint", "StrokePaint", Input{Input::Kind::strokePaint, {}}},
        {"KeywordsAreCaseSensitive", "sourcegraphic", Input::named("sourcegraphic")},
        {"NotTrimmed", " SourceAlpha", Input::named(" SourceAlpha")},
        {"ResultName", "blur1", Input::named("blur1")},
    }),
    rowName<InputRow>);

// ---- blend modes -----------------------------------------------------------------------

struct ModeRow {
  std::string name;
  std::string_view text;
  Mode mode;
};

class BlendModeNames : public testing::TestWithParam<ModeRow> {};

TEST_P(BlendModeNames, ParseAndNameAgree) {
  EXPECT_EQ(SVGModel::parseBlendMode(GetParam().text), GetParam().mode);
  EXPECT_EQ(SVGModel::blendModeName(GetParam().mode), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Rows, BlendModeNames,
                         testing::ValuesIn(std::vector<ModeRow>{
                             {"normal", "normal", Mode::normal},
                             {"multiply", "multiply", Mode::multiply},
                             {"colorDodge", "color-dodge", Mode::colorDodge},
                             {"softLight", "soft-light", Mode::softLight},
                         }),
                         rowName<ModeRow>);

TEST(BlendModeNames, UnknownSpellingsAreRefused) {
  for (std::string_view text : {"plus-lighter", "Multiply", "colorDodge", "", " normal"}) {
    EXPECT_EQ(SVGModel::parseBlendMode(text), std::nullopt) << text;
  }
}

// ---- primitive attributes --------------------------------------------------------------

struct AttributesRow {
  std::string name;
  Attributes attributes;
  Primitive::Attributes expected;
};

class PrimitiveAttributesRead : public testing::TestWithParam<AttributesRow> {};

TEST_P(PrimitiveAttributesRead, PlainNumbersOnly) {
  EXPECT_EQ(Primitive::Attributes::read(GetParam().attributes), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, PrimitiveAttributesRead,
                         testing::ValuesIn(std::vector<AttributesRow>{
                             {"Nothing", {}, {}},
                             {"EmptyResultIsAbsent", {{"result", ""}}, {}},
                             {"Result", {{"result", "shadow"}}, {"shadow", {}, {}, {}, {}}},
                             {"Region",
                              {{"x", "-1"}, {"y", "2.5"}, {"width", "1e2"}, {"height", "40"}},
                              {std::nullopt, -1.0, 2.5, 100.0, 40.0}},
                             {"PercentAndUnitsAreAbsent",
                              {{"x", "10%"}, {"y", "5px"}, {"width", " 5"}, {"height", ""}},
                              {}},
                         }),
                         rowName<AttributesRow>);

// ---- modelled primitives ---------------------------------------------------------------

// The readers of the four primitives with parameters, keyed by element name.
Primitive readPrimitive(std::string_view element, const Attributes& attributes,
                        const Input& defaultInput, const SVGParser::Report& report) {
  if (element == "feGaussianBlur") return {Primitive::Blur::read(attributes, defaultInput)};
  if (element == "feOffset") return {Primitive::Offset::read(attributes, defaultInput)};
  if (element == "feBlend") return {Primitive::Blend::read(attributes, defaultInput)};
  return {Primitive::DropShadow::read(attributes, defaultInput, report)};
}

struct PrimitiveRow {
  std::string name;
  std::string_view element;
  Attributes attributes;
  Input defaultInput;
  Primitive expected;
  Lines lines;
};

Primitive blur(Input input, double deviation, Primitive::Attributes attributes = {}) {
  return {Primitive::Blur{std::move(attributes), std::move(input), deviation}};
}
Primitive offset(Input input, double dx, double dy) {
  return {Primitive::Offset{{}, std::move(input), dx, dy}};
}
Primitive blend(Input input, Input input2, Mode mode) {
  return {Primitive::Blend{{}, std::move(input), std::move(input2), mode}};
}
Primitive shadow(double dx, double dy, double deviation, CSS::Color color,
                 std::optional<double> opacity) {
  return {Primitive::DropShadow{{}, sourceGraphic, dx, dy, deviation, std::move(color), opacity}};
}
const CSS::Color black = CSS::Color::named("black");

class PrimitiveRead : public testing::TestWithParam<PrimitiveRow> {};

TEST_P(PrimitiveRead, ReadsParametersAndDefaults) {
  const PrimitiveRow& row = GetParam();
  ReportLines out;
  const Primitive primitive =
      readPrimitive(row.element, row.attributes, row.defaultInput, out.report);
  EXPECT_EQ(primitive, row.expected) << primitive.description();
  EXPECT_EQ(out.lines, row.lines);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, PrimitiveRead, testing::ValuesIn(std::vector<PrimitiveRow>{
    {"BlurFirstReadsSource", "feGaussianBlur", {}, sourceGraphic, blur(sourceGraphic, 0), {}},
    {"BlurLaterReadsPrevious", "feGaussianBlur", {}, previous, blur(previous, 0), {}},
    {"BlurDeviation", "feGaussianBlur", {{"stdDeviation", "3"}}, previous, blur(previous, 3), {}},
    {"BlurDeviationPairFails", "feGaussianBlur", {{"stdDeviation", "2 3"}}, previous,
     blur(previous, 0), {}},
    {"BlurNamedInput", "feGaussianBlur", {{"in", "SourceAlpha"}, {"result", "b"}, {"x", "1"}},
     previous, blur(sourceAlpha, 0, {"b", 1.0, {}, {}, {}}), {}},
    {"BlurEmptyInputIsDefault", "feGaussianBlur", {{"in", ""}}, previous, blur(previous, 0), {}},
    {"Offset", "feOffset", {{"dx", "4"}, {"dy", "-2.5"}, {"in", "blurred"}}, sourceGraphic,
     offset(Input::named("blurred"), 4, -2.5), {}},
    {"OffsetWithUnitIsZero", "feOffset", {{"dx", "4px"}}, previous, offset(previous, 0, 0), {}},
    {"BlendSecondInputFollowsFirst", "feBlend", {{"in", "SourceAlpha"}}, sourceGraphic,
     blend(sourceAlpha, sourceAlpha, Mode::normal), {}},
    {"BlendDefaultsToChain", "feBlend", {}, previous, blend(previous, previous, Mode::normal), {}},
    {"BlendEmptySecondInput", "feBlend", {{"in2", ""}}, sourceGraphic,
     blend(sourceGraphic, sourceGraphic, Mode::normal), {}},
    {"BlendBothInputsAndMode", "feBlend",
     {{"in", "a"}, {"in2", "BackgroundImage"}, {"mode", "color-dodge"}}, previous,
     blend(Input::named("a"), Input{Input::Kind::backgroundImage, {}}, Mode::colorDodge), {}},
    {"BlendUnknownModeIsNormal", "feBlend", {{"mode", "plus-lighter"}}, sourceGraphic,
     blend(sourceGraphic, sourceGraphic, Mode::normal), {}},
    {"ShadowDefaults", "feDropShadow", {}, sourceGraphic, shadow(0, 0, 2, black, {}), {}},
    {"ShadowAll", "feDropShadow",
     {{"dx", "1"}, {"dy", "2"}, {"stdDeviation", "0"}, {"flood-color", "#ff0000"},
      {"flood-opacity", "0.4"}},
     sourceGraphic, shadow(1, 2, 0, CSS::Color::rgb(1, 0, 0), 0.4), {}},
    {"ShadowBadColorIsBlack", "feDropShadow", {{"flood-color", "#12"}}, sourceGraphic,
     shadow(0, 0, 2, black, {}), {"ERROR: failed to parse color: #12"}},
    {"ShadowOpacityIsAPlainNumber", "feDropShadow",
     {{"flood-opacity", "40%"}, {"stdDeviation", "x"}}, sourceGraphic, shadow(0, 0, 2, black, {}),
     {}},
}), rowName<PrimitiveRow>);
// clang-format on

// ---- filter element --------------------------------------------------------------------

struct FilterRow {
  std::string name;
  Attributes attributes;
  std::optional<Length> x, y, width, height;
  Lines lines;
};

class FilterRead : public testing::TestWithParam<FilterRow> {};

TEST_P(FilterRead, ReadsRegionLengths) {
  const FilterRow& row = GetParam();
  ReportLines out;
  const SVG::Filter filter = SVG::Filter::read(row.attributes, out.report);
  EXPECT_EQ(filter.x, row.x);
  EXPECT_EQ(filter.y, row.y);
  EXPECT_EQ(filter.width, row.width);
  EXPECT_EQ(filter.height, row.height);
  EXPECT_TRUE(filter.primitives.empty());
  EXPECT_EQ(out.lines, row.lines);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, FilterRead, testing::ValuesIn(std::vector<FilterRow>{
    {"Nothing", {}, {}, {}, {}, {}, {}},
    // A percentage is fine for the filter region, unlike a primitive's.
    {"Lengths", {{"x", "10%"}, {"y", "-5"}, {"width", "2in"}, {"height", "3px"}},
     Length::percentage(10), Length::number(-5), Length::inch(2), Length::pixel(3), {}},
    {"NoneAndEmptyAreSilent", {{"x", "none"}, {"y", ""}, {"filterUnits", "userSpaceOnUse"}},
     {}, {}, {}, {}, {}},
    {"BadUnitReported", {{"width", "1em"}}, {}, {}, {}, {}, {"ERROR: unsupported CSS unit: 1em"}},
}), rowName<FilterRow>);
// clang-format on

TEST(FilterRead, KeepsIdentityAndClasses) {
  ReportLines out;
  const SVG::Filter filter = SVG::Filter::read({{"id", "f"}, {"class", "x y"}}, out.report);
  EXPECT_EQ(filter.core.id, "f");
  EXPECT_EQ(filter.style.classes, (std::vector<std::string>{"x", "y"}));
  EXPECT_EQ(filter.style.style, std::nullopt);
}

}  // namespace
