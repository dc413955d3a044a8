#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "SVGParser/SVG.h"

namespace SVGModel {
void PrintTo(const Transform& transform, std::ostream* out) {
  *out << transform.description();
}
}  // namespace SVGModel

namespace {

using Transform = SVG::Transform;

Transform matrix(std::vector<double> values) {
  return {Transform::Matrix{std::move(values)}};
}
Transform rotate(double degrees, double x, double y) {
  return {Transform::Rotate{degrees, x, y}};
}
Transform translate(double dx, double dy) {
  return {Transform::Translate{dx, dy}};
}
Transform scale(double x, double y) {
  return {Transform::Scale{x, y}};
}
Transform skewX(double degrees) {
  return {Transform::SkewX{degrees}};
}
Transform skewY(double degrees) {
  return {Transform::SkewY{degrees}};
}

struct Row {
  const char* name;
  std::optional<std::string> text;
  std::vector<Transform> transforms;
  std::vector<std::string> reports;
};

void PrintTo(const Row& row, std::ostream* out) {
  *out << row.name;
}

const Row kRows[] = {
    {"Absent", std::nullopt, {}, {}},
    {"Empty", "", {}, {}},
    // translate: one argument moves both ways.
    {"TranslateOne", "translate(10)", {translate(10, 10)}, {}},
    {"TranslateTwo", "translate(1,2)", {translate(1, 2)}, {}},
    {"TranslateBadSecond", "translate(1, a)", {translate(1, 1)}, {}},
    {"TranslateBadFirst", "translate(a,2)", {translate(0, 2)}, {}},
    {"TranslateNone", "translate()", {translate(0, 0)}, {}},
    {"TranslateThree", "translate(1,2,3)", {translate(1, 2)}, {}},
    // scale: y comes from the last argument.
    {"ScaleOne", "scale(2)", {scale(2, 2)}, {}},
    {"ScaleBlankSeparated", "scale(2 3)", {scale(0, 0)}, {}},
    {"ScaleTwo", "scale(2,3)", {scale(2, 3)}, {}},
    {"ScaleThree", "scale(2,3,4)", {scale(2, 4)}, {}},
    {"ScaleBadLast", "scale(2,x)", {scale(2, 2)}, {}},
    {"ScaleNone", "scale()", {scale(0, 0)}, {}},
    // rotate: a first argument that is no number drops the function silently.
    {"RotateOne", "rotate(45)", {rotate(45, 0, 0)}, {}},
    {"RotateBlankSeparated", "rotate(45 10 10)", {}, {}},
    {"RotateCentre", "rotate(45,10,10)", {rotate(45, 10, 10)}, {}},
    {"RotateBadCentre", "rotate(45,a,b)", {rotate(45, 0, 0)}, {}},
    {"RotateFourArguments", "rotate(45,1,2,3)", {rotate(45, 1, 3)}, {}},
    {"RotateTwoArguments", "rotate(45,7)", {rotate(45, 7, 7)}, {}},
    {"RotateNone", "rotate()", {}, {}},
    {"RotateWithUnit", "rotate(45deg)", {}, {}},
    // matrix keeps the numeric arguments, however many.
    {"Matrix", "matrix(1,2,3,4,5,6)", {matrix({1, 2, 3, 4, 5, 6})}, {}},
    {"MatrixSkipsWords", "matrix(1, a, 3)", {matrix({1, 3})}, {}},
    {"MatrixEmpty", "matrix()", {matrix({})}, {}},
    {"MatrixExponent", "matrix(1e2,-.5)", {matrix({100, -0.5})}, {}},
    // The skews are known by their lower-case names only.
    {"SkewX", "skewx(10)", {skewX(10)}, {}},
    {"SkewY", "skewy(-5)", {skewY(-5)}, {}},
    {"SkewBadNumber", "skewx(a)", {skewX(0)}, {}},
    {"SkewNoArgument", "skewy()", {}, {}},
    {"SkewMixedCase", "skewX(10)", {}, {"Unsupported transform function: skewX [\"10\"]"}},
    // Lists.
    {"BlankSeparatedList", "translate(1,2) rotate(3)", {translate(1, 2), rotate(3, 0, 0)}, {}},
    {"CommaSeparatedList",
     "translate(1,2), rotate(3)",
     {translate(1, 2)},
     {"Unsupported transform function: , rotate [\"3\"]"}},
    {"NewlineSeparatedList", "scale(2)\n skewx(1)", {scale(2, 2), skewX(1)}, {}},
    // Tab is not trimmed from a name.
    {"TabSeparatedList",
     "scale(2)\tskewx(1)",
     {scale(2, 2)},
     {"Unsupported transform function: \tskewx [\"1\"]"}},
    {"Identity", "identity()", {}, {}},
    {"IdentityFirst", "identity() scale(2)", {scale(2, 2)}, {}},
    {"IdentityAfterBlank",
     "scale(2) identity()",
     {scale(2, 2)},
     {"Unsupported transform function: identity []"}},
    {"UnclosedIgnored", "scale(2", {}, {}},
    {"TrailingTextIgnored", "scale(2) junk", {scale(2, 2)}, {}},
    {"NoCallForm", "foo", {}, {}},
    {"StrayCloseBracket", "scale(2))", {scale(2, 2)}, {"Unsupported transform value: )"}},
    {"EmptyName", "(2)", {}, {"Unsupported transform value: (2)"}},
    {"UnknownFunction",
     "perspective(1, 2)",
     {},
     {"Unsupported transform function: perspective [\"1\", \"2\"]"}},
    {"MessagesInOrder",
     "a(1) translate(5) b()",
     {translate(5, 5)},
     {"Unsupported transform function: a [\"1\"]", "Unsupported transform function: b []"}},
};

class TransformListTest : public testing::TestWithParam<Row> {};

TEST_P(TransformListTest, Parses) {
  const Row& row = GetParam();
  std::vector<std::string> reports;
  const SVGParser::Report report([&](std::string_view line) { reports.emplace_back(line); });
  EXPECT_EQ(Transform::parseList(row.text, report), row.transforms);
  EXPECT_EQ(reports, row.reports);
}

INSTANTIATE_TEST_SUITE_P(Rows, TransformListTest, testing::ValuesIn(kRows),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(TransformTest, SingleFunction) {
  const SVGParser::Report silent;
  EXPECT_EQ(Transform::parse("  rotate ( 90 ) ", silent), rotate(90, 0, 0));
  EXPECT_EQ(Transform::parse("skewx()", silent), std::nullopt);
}

struct DescriptionRow {
  Transform transform;
  const char* text;
};

class TransformDescriptionTest : public testing::TestWithParam<DescriptionRow> {};

TEST_P(TransformDescriptionTest, Describes) {
  EXPECT_EQ(GetParam().transform.description(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Rows, TransformDescriptionTest,
                         testing::Values(DescriptionRow{matrix({1, 0.5}), "matrix(1.0, 0.5)"},
                                         DescriptionRow{matrix({}), "matrix()"},
                                         DescriptionRow{rotate(45, 1, 2), "rotate(45.0, 1.0, 2.0)"},
                                         DescriptionRow{translate(-3, 4), "translate(-3.0, 4.0)"},
                                         DescriptionRow{scale(2, 3), "scale(2.0, 3.0)"},
                                         DescriptionRow{skewX(10), "skewX(10.0)"},
                                         DescriptionRow{skewY(0.25), "skewY(0.25)"}));

}  // namespace
