#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "SVGParser/SVG.h"

namespace {

using SVGParser::Attributes;
using Length = CSS::UnitLength;
using Lines = std::vector<std::string>;

struct ReportLines {
  Lines lines;
  SVGParser::Report report{[this](std::string_view line) { lines.emplace_back(line); }};
};

CSS::Value id(std::string text) {
  return {CSS::Value::Id{std::move(text)}};
}
CSS::Value number(double value) {
  return {CSS::Value::Number{value}};
}
CSS::Value percent(double value) {
  return {CSS::Value::PercentValue{value}};
}

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

// ---- linearGradient --------------------------------------------------------------------

struct LinearRow {
  std::string name;
  Attributes attributes;
  SVG::LinearGradient expected;
  Lines lines;
};

SVG::LinearGradient linear(Length x1, Length x2, Length y1, Length y2) {
  SVG::LinearGradient gradient;
  gradient.x1 = x1;
  gradient.x2 = x2;
  gradient.y1 = y1;
  gradient.y2 = y2;
  return gradient;
}

const SVG::LinearGradient defaultLinear = linear(Length::percentage(0), Length::percentage(100),
                                                 Length::percentage(0), Length::percentage(0));

SVG::LinearGradient withID(SVG::LinearGradient gradient, std::string id) {
  gradient.core.id = std::move(id);
  return gradient;
}

SVG::LinearGradient withTemplate(SVG::LinearGradient gradient, std::string reference) {
  gradient.templateGradientID = std::move(reference);
  return gradient;
}

SVG::LinearGradient withTransform(SVG::LinearGradient gradient,
                                  std::vector<SVG::Transform> transform) {
  gradient.gradientTransform = std::move(transform);
  return gradient;
}

class LinearGradientRead : public testing::TestWithParam<LinearRow> {};

TEST_P(LinearGradientRead, FillsGeometryWithDefaults) {
  const LinearRow& row = GetParam();
  ReportLines out;
  EXPECT_EQ(SVG::LinearGradient::read(row.attributes, out.report), row.expected);
  EXPECT_EQ(out.lines, row.lines);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LinearGradientRead,
    testing::ValuesIn(std::vector<LinearRow>{
        {"NoAttributes", {}, defaultLinear, {}},
        {"AllUnits",
         {{"id", "g"}, {"x1", "10"}, {"x2", "50%"}, {"y1", "1cm"}, {"y2", "5mm"}},
         withID(linear(Length::number(10), Length::percentage(50), Length::centimeter(1),
                       Length::millimeter(5)),
                "g"),
         {}},
        {"UnknownUnitKeepsDefault",
         {{"x1", "1em"}, {"y2", "3pt"}},
         linear(Length::percentage(0), Length::percentage(100), Length::percentage(0),
                Length::point(3)),
         {"ERROR: unsupported CSS unit: 1em"}},
        // Unlike the radial geometry, the linear one has no "none" shortcut.
        {"NoneIsAnUnknownUnit",
         {{"x2", "none"}},
         defaultLinear,
         {"ERROR: unsupported CSS unit: none"}},
        {"EmptyIsSilent", {{"x1", ""}}, defaultLinear, {}},
        {"XLinkReferenceKeepsHash",
         {{"xlink:href", "#base"}},
         withTemplate(defaultLinear, "#base"),
         {}},
        {"PlainHrefIsNotRead", {{"href", "#base"}}, defaultLinear, {}},
        {"GradientTransform",
         {{"gradientTransform", "translate(1,2)"}},
         withTransform(defaultLinear, {SVG::Transform{SVG::Transform::Translate{1, 2}}}),
         {}},
        {"EmptyIDIsKept", {{"id", ""}}, withID(defaultLinear, ""), {}},
    }),
    rowName<LinearRow>);

// ---- radialGradient --------------------------------------------------------------------

struct RadialRow {
  std::string name;
  Attributes attributes;
  SVG::RadialGradient expected;
  Lines lines;
};

SVG::RadialGradient radial(Length r, Length cx, Length cy, Length fr,
                           std::optional<Length> fx = std::nullopt,
                           std::optional<Length> fy = std::nullopt) {
  SVG::RadialGradient gradient;
  gradient.r = r;
  gradient.cx = cx;
  gradient.cy = cy;
  gradient.fr = fr;
  gradient.fx = fx;
  gradient.fy = fy;
  return gradient;
}

const SVG::RadialGradient defaultRadial = radial(Length::percentage(50), Length::percentage(50),
                                                 Length::percentage(50), Length::percentage(0));

class RadialGradientRead : public testing::TestWithParam<RadialRow> {};

TEST_P(RadialGradientRead, FillsGeometryWithDefaults) {
  const RadialRow& row = GetParam();
  ReportLines out;
  EXPECT_EQ(SVG::RadialGradient::read(row.attributes, out.report), row.expected);
  EXPECT_EQ(out.lines, row.lines);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RadialGradientRead,
    testing::ValuesIn(std::vector<RadialRow>{
        {"NoAttributes", {}, defaultRadial, {}},
        {"AllSet",
         {{"r", "10"}, {"cx", "20px"}, {"cy", "1in"}, {"fr", "5%"}, {"fx", "1"}, {"fy", "2pt"}},
         radial(Length::number(10), Length::pixel(20), Length::inch(1), Length::percentage(5),
                Length::number(1), Length::point(2)),
         {}},
        {"NoneKeepsDefaultSilently",
         {{"r", "none"}, {"cx", "none"}, {"cy", "none"}, {"fr", "none"}},
         defaultRadial,
         {}},
        {"FocusNoneIsAnUnknownUnit",
         {{"fx", "none"}, {"fy", "30%"}},
         radial(Length::percentage(50), Length::percentage(50), Length::percentage(50),
                Length::percentage(0), std::nullopt, Length::percentage(30)),
         {"ERROR: unsupported CSS unit: none"}},
        {"BadRadiusReportsAndKeepsDefault",
         {{"r", "2pc"}, {"fr", "1ex"}},
         defaultRadial,
         {"ERROR: unsupported CSS unit: 2pc", "ERROR: unsupported CSS unit: 1ex"}},
    }),
    rowName<RadialRow>);

TEST(RadialGradientRead, KeepsReferenceAndTransformWithoutStops) {
  ReportLines out;
  const auto gradient = SVG::RadialGradient::read(
      {{"id", "r1"}, {"xlink:href", "#lin"}, {"gradientTransform", "scale(2)"}}, out.report);
  EXPECT_EQ(gradient.core.id, "r1");
  EXPECT_EQ(gradient.templateGradientID, "#lin");
  EXPECT_TRUE(gradient.stops.empty());
  EXPECT_EQ(gradient.gradientTransform,
            (std::vector<SVG::Transform>{SVG::Transform{SVG::Transform::Scale{2, 2}}}));
  EXPECT_TRUE(out.lines.empty());
}

// ---- stop ------------------------------------------------------------------------------

struct StopRow {
  std::string name;
  Attributes attributes;
  CSS::Declarations styles;
  std::optional<CSS::Color> color;
  std::optional<double> opacity;
  std::optional<Length> offset;
  Lines lines;
};

class GradientStopRead : public testing::TestWithParam<StopRow> {};

TEST_P(GradientStopRead, ReadsColorOpacityAndOffset) {
  const StopRow& row = GetParam();
  ReportLines out;
  const auto stop = SVG::GradientStop::read(row.attributes, CSS::Style{row.styles}, out.report);
  EXPECT_EQ(stop.color, row.color);
  EXPECT_EQ(stop.opacity, row.opacity);
  EXPECT_EQ(stop.offset, row.offset);
  EXPECT_EQ(out.lines, row.lines);
}

const auto red = CSS::Color::named("red");
const auto blue = CSS::Color::named("blue");

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, GradientStopRead, testing::ValuesIn(std::vector<StopRow>{
    {"Nothing", {}, {}, {}, {}, {}, {}},
    {"StopColorAttributeBeatsStyle", {{"stop-color", "red"}}, {{"stop-color", id("blue")}}, red,
     {}, {}, {}},
    {"ColorBeatsStopColor", {{"color", "red"}, {"stop-color", "blue"}}, {}, red, {}, {}, {}},
    {"BadColorAttributeFallsThrough", {{"color", "#12"}, {"stop-color", "blue"}}, {}, blue, {}, {},
     {"ERROR: failed to parse color: #12"}},
    {"StyleStopColor", {}, {{"stop-color", id("Blue")}}, blue, {}, {}, {}},
    // The stylesheet form refuses the three-digit spelling without a word.
    {"StyleShortHexRefused", {}, {{"stop-color", id("#fff")}}, {}, {}, {}, {}},
    {"StylesheetColorPropertyIgnored", {}, {{"color", id("red")}}, {}, {}, {}, {}},
    {"OpacityBeatsStopOpacity", {{"opacity", "0.5"}, {"stop-opacity", "1"}}, {}, {}, 50.0, {}, {}},
    {"StopOpacityPercent", {{"stop-opacity", "25%"}}, {}, {}, 25.0, {}, {}},
    {"BadOpacityFallsThrough", {{"opacity", "x"}, {"stop-opacity", "0.2"}}, {}, {}, 20.0, {}, {}},
    {"StyleOpacityNumber", {}, {{"stop-opacity", number(0.25)}}, {}, 25.0, {}, {}},
    {"StyleOpacityPercent", {}, {{"stop-opacity", percent(40)}}, {}, 40.0, {}, {}},
    {"StyleOpacityWord", {}, {{"stop-opacity", id("half")}}, {}, {}, {}, {}},
    {"AttributeOpacityBeatsStyle", {{"stop-opacity", "1"}}, {{"stop-opacity", number(0.5)}}, {},
     100.0, {}, {}},
    {"OffsetNumber", {{"offset", "0.5"}}, {}, {}, {}, Length::number(0.5), {}},
    {"OffsetNotClamped", {{"offset", "120%"}}, {}, {}, {}, Length::percentage(120), {}},
    {"OffsetBadUnit", {{"offset", "1em"}}, {}, {}, {}, {}, {"ERROR: unsupported CSS unit: 1em"}},
}), rowName<StopRow>);
// clang-format on

TEST(GradientStopRead, KeepsIdentityAndClasses) {
  ReportLines out;
  const auto stop = SVG::GradientStop::read({{"id", ""}, {"class", "a  b"}, {"style", "x:y"}},
                                            CSS::Style{}, out.report);
  EXPECT_EQ(stop.core.id, "");
  EXPECT_EQ(stop.style.classes, (std::vector<std::string>{"a", "b"}));
  EXPECT_EQ(stop.style.style, "x:y");
}

// ---- definitions -----------------------------------------------------------------------

TEST(DefinitionID, IsTheHeldRecordsID) {
  SVG::LinearGradient linearGradient;
  linearGradient.core.id = "lin";
  SVG::RadialGradient radialGradient;
  radialGradient.core.id = "rad";
  SVG::Filter filter;
  filter.core.id = "";
  EXPECT_EQ(SVG::Definition{linearGradient}.id(), "lin");
  EXPECT_EQ(SVG::Definition{radialGradient}.id(), "rad");
  EXPECT_EQ(SVG::Definition{filter}.id(), "");
  EXPECT_EQ(SVG::Definition{SVG::Filter{}}.id(), std::nullopt);
}

}  // namespace
