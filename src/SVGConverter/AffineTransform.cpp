#include "SVGConverter/AffineTransform.h"

#include <cmath>

CGAffineTransform CGAffineTransformMake(double a, double b, double c, double d, double tx,
                                        double ty) {
  return {a, b, c, d, tx, ty};
}

CGAffineTransform CGAffineTransformMakeTranslation(double tx, double ty) {
  return {1, 0, 0, 1, tx, ty};
}

CGAffineTransform CGAffineTransformMakeScale(double sx, double sy) {
  return {sx, 0, 0, sy, 0, 0};
}

CGAffineTransform CGAffineTransformMakeRotation(double angle) {
  const double sine = std::sin(angle);
  const double cosine = std::cos(angle);
  return {cosine, sine, -sine, cosine, 0, 0};
}

// Written out in full, without dropping the zero terms, so that infinities and signed zeros
// come out as a full matrix product gives them.
CGAffineTransform CGAffineTransformConcat(const CGAffineTransform& t1,
                                          const CGAffineTransform& t2) {
  return {
      t1.a * t2.a + t1.b * t2.c,           t1.a * t2.b + t1.b * t2.d,
      t1.c * t2.a + t1.d * t2.c,           t1.c * t2.b + t1.d * t2.d,
      t1.tx * t2.a + t1.ty * t2.c + t2.tx, t1.tx * t2.b + t1.ty * t2.d + t2.ty,
  };
}

CGAffineTransform CGAffineTransformTranslate(const CGAffineTransform& t, double tx, double ty) {
  return CGAffineTransformConcat(CGAffineTransformMakeTranslation(tx, ty), t);
}

CGAffineTransform CGAffineTransformScale(const CGAffineTransform& t, double sx, double sy) {
  return CGAffineTransformConcat(CGAffineTransformMakeScale(sx, sy), t);
}

CGAffineTransform CGAffineTransformRotate(const CGAffineTransform& t, double angle) {
  return CGAffineTransformConcat(CGAffineTransformMakeRotation(angle), t);
}

CGPoint CGPointApplyAffineTransform(const CGPoint& point, const CGAffineTransform& t) {
  return {t.a * point.x + t.c * point.y + t.tx, t.b * point.x + t.d * point.y + t.ty};
}
