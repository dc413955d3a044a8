#include "SVGConverter/ValueLiterals.h"

#include <type_traits>
#include <variant>

#include "CoreS/DoubleText.h"

namespace SVGConverter {

std::string pointLiteral(const CodeGenerationStream& s, CGPoint p, bool preferInit) {
  std::string text;
  appendPointLiteral(text, s, p, preferInit);
  return text;
}

void appendPointLiteral(std::string& out, const CodeGenerationStream& s, CGPoint p,
                        bool preferInit) {
  // Every path point passes here, so the literal is built in place.
  out += preferInit ? ".init(x: " : "CGPoint(x: ";
  s.appendNumber(out, p.x);
  out += ", y: ";
  s.appendNumber(out, p.y);
  out += ')';
}

std::string sizeLiteral(const CodeGenerationStream& s, CGSize size, bool preferInit) {
  return std::string(preferInit ? ".init" : "CGSize") + "(width: " + s.numberString(size.width) +
         ", height: " + s.numberString(size.height) + ")";
}

std::string rectLiteral(const CodeGenerationStream& s, const CGRect& r, bool preferInit) {
  return std::string(preferInit ? ".init" : "CGRect") +
         "(x: " + CoreS::swiftDoubleDescription(r.origin.x) +
         ", y: " + CoreS::swiftDoubleDescription(r.origin.y) +
         ", width: " + s.numberString(r.size.width) + ", height: " + s.numberString(r.size.height) +
         ")";
}

std::string unitPointLiteral(const CodeGenerationStream& s, CGPoint p, bool preferInit) {
  return std::string(preferInit ? ".init" : "UnitPoint") + "(x: " + s.numberString(p.x) +
         ", y: " + s.numberString(p.y) + ")";
}

std::string escapedStringLiteralBody(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  // The three passes touch disjoint characters once the backslashes are doubled first, so
  // one pass over the text gives the same result.
  for (char c : text) {
    switch (c) {
      case '\\':
        out += "\\\\";
        break;
      case '\n':
        out += "\\n";
        break;
      case '"':
        out += "\\\"";
        break;
      default:
        out += c;
    }
  }
  return out;
}

namespace {

using Step = SwiftUIModel::TransformStep;

std::string matrixText(const CodeGenerationStream& s, const CGAffineTransform& t, bool preferInit) {
  if (t == CGAffineTransformIdentity) {
    return preferInit ? ".identity" : "CGAffineTransform.identity";
  }
  return std::string(preferInit ? ".init" : "CGAffineTransform") + "(a: " + s.numberString(t.a) +
         ", b: " + s.numberString(t.b) + ", c: " + s.numberString(t.c) +
         ", d: " + s.numberString(t.d) + ", tx: " + s.numberString(t.tx) +
         ", ty: " + s.numberString(t.ty) + ")";
}

}  // namespace

std::string firstStepText(const CodeGenerationStream& s, const Step& step, bool preferInit) {
  const std::string base = preferInit ? ".init" : "CGAffineTransform";
  return std::visit(
      [&](const auto& v) -> std::string {
        using T = std::decay_t<decltype(v)>;
        if constexpr (std::is_same_v<T, Step::Translate>) {
          return base + "(translationX: " + s.numberString(v.dx) + ", y: " + s.numberString(v.dy) +
                 ")";
        } else if constexpr (std::is_same_v<T, Step::Rotate>) {
          return base + "(rotationAngle: " + s.numberString(v.angle) + ")";
        } else if constexpr (std::is_same_v<T, Step::Scale>) {
          return base + "(scaleX: " + s.numberString(v.x) + ", y: " + s.numberString(v.y) + ")";
        } else {
          return matrixText(s, v.transform, preferInit);
        }
      },
      step.value);
}

std::string chainedStepText(const CodeGenerationStream& s, const Step& step) {
  return std::visit(
      [&](const auto& v) -> std::string {
        using T = std::decay_t<decltype(v)>;
        if constexpr (std::is_same_v<T, Step::Translate>) {
          return ".translatedBy(x: " + s.numberString(v.dx) + ", y: " + s.numberString(v.dy) + ")";
        } else if constexpr (std::is_same_v<T, Step::Rotate>) {
          // Spelled as the generated files have always had it.
          return ".rotatedy(x: " + s.numberString(v.angle) + ")";
        } else if constexpr (std::is_same_v<T, Step::Scale>) {
          return ".scaledBy(x: " + s.numberString(v.x) + ", y: " + s.numberString(v.y) + ")";
        } else {
          return ".concatenating(" + matrixText(s, v.transform, false) + ")";
        }
      },
      step.value);
}

std::vector<std::string> transformStepTexts(const CodeGenerationStream& s,
                                            const std::vector<Step>& steps, bool preferInit) {
  std::vector<std::string> texts;
  texts.reserve(steps.size());
  for (std::size_t i = 0; i < steps.size(); ++i) {
    texts.push_back(i == 0 ? firstStepText(s, steps[i], preferInit) : chainedStepText(s, steps[i]));
  }
  return texts;
}

}  // namespace SVGConverter
