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

template <class T>
SVG::Transform transform(T step) {
  return {step};
}

// A short matrix is padded with zeros, a long one cut; skews become matrices.
TEST(Steps, ConvertToOneStep) {
  using T = SVG::Transform;
  const double skew = std::tan(30 * pi / 180.0);
  const std::pair<SVG::Transform, TransformStep> rows[] = {
      {transform(T::Rotate{45, 0, 0}), TransformStep::rotate(0.7853981633974483)},
      {transform(T::Translate{1, 2}), TransformStep::translate(1, 2)},
      {transform(T::Scale{2, 3}), TransformStep::scale(2, 3)},
      {transform(T::Matrix{{1, 0, 0, 1}}), TransformStep::matrix({1, 0, 0, 1, 0, 0})},
      {transform(T::Matrix{{1, 2, 3, 4, 5, 6, 7}}), TransformStep::matrix({1, 2, 3, 4, 5, 6})},
      {transform(T::Matrix{{}}), TransformStep::matrix({0, 0, 0, 0, 0, 0})},
      {transform(T::SkewX{30}), TransformStep::matrix({1, 0, skew, 1, 0, 0})},
      {transform(T::SkewY{30}), TransformStep::matrix({1, skew, 0, 1, 0, 0})}};
  for (const auto& [input, expected] : rows) {
    const auto step = SVGConverter::transformStep(input);
    EXPECT_EQ(step, expected) << SVGConverter::describe(step);
  }
}

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
