// The affine transform record of the drawing platform and the few operations the converter
// needs. The operations that take a transform prepend their step, as the platform does: the
// result applies the new step to a point first and the old transform after it.
#pragma once

#include "SVGParser/Geometry.h"

// Maps (x, y) to (a x + c y + tx, b x + d y + ty).
struct CGAffineTransform {
  double a = 0, b = 0, c = 0, d = 0, tx = 0, ty = 0;
  bool operator==(const CGAffineTransform&) const = default;
};

inline constexpr CGAffineTransform CGAffineTransformIdentity{1, 0, 0, 1, 0, 0};

CGAffineTransform CGAffineTransformMake(double a, double b, double c, double d, double tx,
                                        double ty);
CGAffineTransform CGAffineTransformMakeTranslation(double tx, double ty);
CGAffineTransform CGAffineTransformMakeScale(double sx, double sy);
CGAffineTransform CGAffineTransformMakeRotation(double angle);

// `t1` applied first, then `t2`.
CGAffineTransform CGAffineTransformConcat(const CGAffineTransform& t1, const CGAffineTransform& t2);
CGAffineTransform CGAffineTransformTranslate(const CGAffineTransform& t, double tx, double ty);
CGAffineTransform CGAffineTransformScale(const CGAffineTransform& t, double sx, double sy);
CGAffineTransform CGAffineTransformRotate(const CGAffineTransform& t, double angle);

CGPoint CGPointApplyAffineTransform(const CGPoint& point, const CGAffineTransform& t);
