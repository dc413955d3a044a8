#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "SVGConverter/AffineTransform.h"
#include "SVGConverter/ModelDescription.h"
#include "SVGConverter/Transforms.h"

using SwiftUIModel::TransformStep;

namespace {

constexpr double pi = 3.141592653589793;

TEST(AffineTransform, ConcatAppliesTheFirstTransformFirst) {
  const auto t = CGAffineTransformConcat(CGAffineTransformMakeScale(2, 3),
                                         CGAffineTransformMakeTranslation(10, 20));
  EXPECT_EQ(CGPointApplyAffineTransform({1, 1}, t), (CGPoint{12, 23}));
}

// The operations on an existing transform put the new step first.
TEST(AffineTransform, TranslateScaleAndRotatePrependTheirStep) {
  const auto translated = CGAffineTransformTranslate(CGAffineTransformMakeScale(2, 3), 10, 20);
  EXPECT_EQ(CGPointApplyAffineTransform({1, 1}, translated), (CGPoint{22, 63}));
  const auto scaled = CGAffineTransformScale(CGAffineTransformMakeTranslation(3, -4), 3, 4);
  EXPECT_EQ(scaled, (CGAffineTransform{3, 0, 0, 4, 3, -4}));
  const auto rotated = CGAffineTransformRotate(CGAffineTransformMakeTranslation(5, 0), pi / 2);
  const auto p = CGPointApplyAffineTransform({1, 0}, rotated);
  EXPECT_NEAR(p.x, 5, 1e-15);
  EXPECT_NEAR(p.y, 1, 1e-15);
}

TEST(AffineTransform, MakeRotationUsesSineAndCosine) {
  const auto r = CGAffineTransformMakeRotation(0.5);
  EXPECT_EQ(r,
            (CGAffineTransform{std::cos(0.5), std::sin(0.5), -std::sin(0.5), std::cos(0.5), 0, 0}));
}

SVG::Transform transform(SVG::Transform::Matrix m) {
  return {m};
}
SVG::Transform transform(SVG::Transform::Rotate r) {
  return {r};
}
SVG::Transform transform(SVG::Transform::Translate t) {
  return {t};
}
SVG::Transform transform(SVG::Transform::Scale s) {
  return {s};
}
SVG::Transform transform(SVG::Transform::SkewX k) {
  return {k};
}
SVG::Transform transform(SVG::Transform::SkewY k) {
  return {k};
}

struct StepRow {
  const char* label;
  SVG::Transform input;
  TransformStep expected;
};

class Steps : public testing::TestWithParam<StepRow> {};

TEST_P(Steps, ConvertToOneStep) {
  const auto step = SVGConverter::transformStep(GetParam().input);
  EXPECT_EQ(step, GetParam().expected) << SVGConverter::describe(step);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Steps,
    testing::Values(
        StepRow{"rotate45", transform(SVG::Transform::Rotate{45, 0, 0}),
                TransformStep::rotate(0.7853981633974483)},
        StepRow{"translate", transform(SVG::Transform::Translate{1, 2}),
                TransformStep::translate(1, 2)},
        StepRow{"scale", transform(SVG::Transform::Scale{2, 3}), TransformStep::scale(2, 3)},
        StepRow{"shortMatrixPadded", transform(SVG::Transform::Matrix{{1, 0, 0, 1}}),
                TransformStep::matrix({1, 0, 0, 1, 0, 0})},
        StepRow{"longMatrixCut", transform(SVG::Transform::Matrix{{1, 2, 3, 4, 5, 6, 7}}),
                TransformStep::matrix({1, 2, 3, 4, 5, 6})},
        StepRow{"emptyMatrix", transform(SVG::Transform::Matrix{{}}),
                TransformStep::matrix({0, 0, 0, 0, 0, 0})},
        StepRow{"skewX", transform(SVG::Transform::SkewX{30}),
                TransformStep::matrix({1, 0, std::tan(30 * pi / 180.0), 1, 0, 0})},
        StepRow{"skewY", transform(SVG::Transform::SkewY{30}),
                TransformStep::matrix({1, std::tan(30 * pi / 180.0), 0, 1, 0, 0})}),
    [](const auto& info) { return std::string(info.param.label); });

// A rotation with a centre is built translate(-x,-y), rotate, translate(x,y) with the
// prepending operations, so it turns about (-x, -y).
TEST(Steps, RotationWithCentreTurnsAboutTheNegatedCentre) {
  const auto step = SVGConverter::transformStep(transform(SVG::Transform::Rotate{90, 10, 20}));
  const auto* matrix = std::get_if<TransformStep::Matrix>(&step.value);
  ASSERT_NE(matrix, nullptr);
  const auto fixed = CGPointApplyAffineTransform({-10, -20}, matrix->transform);
  EXPECT_NEAR(fixed.x, -10, 1e-12);
  EXPECT_NEAR(fixed.y, -20, 1e-12);
  const auto moved = CGPointApplyAffineTransform({10, 20}, matrix->transform);
  EXPECT_GT(std::hypot(moved.x - 10, moved.y - 20), 1);
}

TEST(GradientAffine, StepsApplyInListOrder) {
  const std::vector<SVG::Transform> list{transform(SVG::Transform::Translate{1, 0}),
                                         transform(SVG::Transform::Scale{2, 2})};
  // Translate first, then scale: (0,0) -> (1,0) -> (2,0).
  EXPECT_EQ(CGPointApplyAffineTransform({0, 0}, SVGConverter::affineTransform(list)),
            (CGPoint{2, 0}));
}

TEST(GradientAffine, SingleTransformsUseThePlatformConstructors) {
  EXPECT_EQ(SVGConverter::affineTransform(transform(SVG::Transform::Translate{3, 4})),
            CGAffineTransformMakeTranslation(3, 4));
  EXPECT_EQ(SVGConverter::affineTransform(transform(SVG::Transform::Scale{3, 4})),
            CGAffineTransformMakeScale(3, 4));
  EXPECT_EQ(SVGConverter::affineTransform(transform(SVG::Transform::Rotate{90, 0, 0})),
            CGAffineTransformMakeRotation(90 * pi / 180.0));
}

}  // namespace
