#include "SVGConverter/Transforms.h"

#include <cmath>

#include "ConversionSupport.h"

namespace SVGConverter {

using SwiftUIModel::TransformStep;

namespace {

constexpr double pi = 3.141592653589793;

double radians(double degrees) {
  return degrees * pi / 180.0;
}

// The first six numbers, padded with zeros.
CGAffineTransform matrixOf(const std::vector<double>& values) {
  double six[6] = {0, 0, 0, 0, 0, 0};
  for (std::size_t i = 0; i < values.size() && i < 6; ++i) six[i] = values[i];
  return {six[0], six[1], six[2], six[3], six[4], six[5]};
}

// Prepending order, so the result turns about (-x, -y) rather than (x, y); kept because the
// generated source of existing documents depends on it.
CGAffineTransform rotationAbout(const SVG::Transform::Rotate& rotate) {
  auto t = CGAffineTransformMakeTranslation(-rotate.x, -rotate.y);
  t = CGAffineTransformRotate(t, radians(rotate.degrees));
  return CGAffineTransformTranslate(t, rotate.x, rotate.y);
}

}  // namespace

TransformStep transformStep(const SVG::Transform& transform) {
  using T = SVG::Transform;
  return std::visit(
      Overloaded{
          [](const T::Matrix& m) { return TransformStep::matrix(matrixOf(m.values)); },
          [](const T::Rotate& r) {
            if (r.x == 0 && r.y == 0) return TransformStep::rotate(radians(r.degrees));
            return TransformStep::matrix(rotationAbout(r));
          },
          [](const T::Translate& t) { return TransformStep::translate(t.dx, t.dy); },
          [](const T::Scale& s) { return TransformStep::scale(s.x, s.y); },
          [](const T::SkewX& k) {
            return TransformStep::matrix({1, 0, std::tan(radians(k.degrees)), 1, 0, 0});
          },
          [](const T::SkewY& k) {
            return TransformStep::matrix({1, std::tan(radians(k.degrees)), 0, 1, 0, 0});
          },
      },
      transform.value);
}

std::vector<TransformStep> transformSteps(const std::vector<SVG::Transform>& list) {
  std::vector<TransformStep> steps;
  steps.reserve(list.size());
  for (const auto& transform : list) steps.push_back(transformStep(transform));
  return steps;
}

CGAffineTransform affineTransform(const SVG::Transform& transform) {
  using T = SVG::Transform;
  return std::visit(
      Overloaded{
          [](const T::Matrix& m) { return matrixOf(m.values); },
          [](const T::Rotate& r) {
            if (r.x == 0 && r.y == 0) return CGAffineTransformMakeRotation(radians(r.degrees));
            return rotationAbout(r);
          },
          [](const T::Translate& t) { return CGAffineTransformMakeTranslation(t.dx, t.dy); },
          [](const T::Scale& s) { return CGAffineTransformMakeScale(s.x, s.y); },
          [](const T::SkewX& k) {
            return CGAffineTransform{1, 0, std::tan(radians(k.degrees)), 1, 0, 0};
          },
          [](const T::SkewY& k) {
            return CGAffineTransform{1, std::tan(radians(k.degrees)), 0, 1, 0, 0};
          },
      },
      transform.value);
}

CGAffineTransform affineTransform(const std::vector<SVG::Transform>& list) {
  auto accumulated = CGAffineTransformIdentity;
  for (const auto& transform : list) {
    accumulated = CGAffineTransformConcat(accumulated, affineTransform(transform));
  }
  return accumulated;
}

}  // namespace SVGConverter
