#include "SVGConverter/ValueLiterals.h"

#include <algorithm>
#include <initializer_list>
#include <type_traits>
#include <utility>
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

namespace {

char* put(char* cursor, std::string_view text) {
  return std::copy(text.begin(), text.end(), cursor);
}

}  // namespace

bool writePointLiteral(char*& cursor, const CodeGenerationStream& s, CGPoint p, bool preferInit) {
  char* end = put(cursor, preferInit ? ".init(x: " : "CGPoint(x: ");
  if (!s.writeNumberQuickly(end, p.x)) return false;
  end = put(end, ", y: ");
  if (!s.writeNumberQuickly(end, p.y)) return false;
  *end++ = ')';
  cursor = end;
  return true;
}

std::string sizeLiteral(const CodeGenerationStream& s, CGSize size, bool preferInit) {
  std::string text = preferInit ? ".init(width: " : "CGSize(width: ";
  s.appendNumber(text, size.width);
  text += ", height: ";
  s.appendNumber(text, size.height);
  text += ')';
  return text;
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

// Appends "(" label value [", " label value ...] ")", each value through the formatter.
void appendCall(std::string& out, const CodeGenerationStream& s,
                std::initializer_list<std::pair<std::string_view, double>> arguments) {
  out += '(';
  bool first = true;
  for (const auto& [label, value] : arguments) {
    if (!first) out += ", ";
    first = false;
    out += label;
    s.appendNumber(out, value);
  }
  out += ')';
}

void appendMatrixText(std::string& out, const CodeGenerationStream& s, const CGAffineTransform& t,
                      bool preferInit) {
  if (t == CGAffineTransformIdentity) {
    out += preferInit ? ".identity" : "CGAffineTransform.identity";
    return;
  }
  out += preferInit ? ".init" : "CGAffineTransform";
  appendCall(
      out, s,
      {{"a: ", t.a}, {"b: ", t.b}, {"c: ", t.c}, {"d: ", t.d}, {"tx: ", t.tx}, {"ty: ", t.ty}});
}

}  // namespace

void appendFirstStepText(std::string& out, const CodeGenerationStream& s, const Step& step,
                         bool preferInit) {
  const std::string_view base = preferInit ? ".init" : "CGAffineTransform";
  std::visit(
      [&](const auto& v) {
        using T = std::decay_t<decltype(v)>;
        if constexpr (std::is_same_v<T, Step::Translate>) {
          out += base;
          appendCall(out, s, {{"translationX: ", v.dx}, {"y: ", v.dy}});
        } else if constexpr (std::is_same_v<T, Step::Rotate>) {
          out += base;
          appendCall(out, s, {{"rotationAngle: ", v.angle}});
        } else if constexpr (std::is_same_v<T, Step::Scale>) {
          out += base;
          appendCall(out, s, {{"scaleX: ", v.x}, {"y: ", v.y}});
        } else {
          appendMatrixText(out, s, v.transform, preferInit);
        }
      },
      step.value);
}

void appendChainedStepText(std::string& out, const CodeGenerationStream& s, const Step& step) {
  std::visit(
      [&](const auto& v) {
        using T = std::decay_t<decltype(v)>;
        if constexpr (std::is_same_v<T, Step::Translate>) {
          out += ".translatedBy";
          appendCall(out, s, {{"x: ", v.dx}, {"y: ", v.dy}});
        } else if constexpr (std::is_same_v<T, Step::Rotate>) {
          // Existing documents call ".rotatedy(x:)", which the transform type does not have.
          if (s.config().compilableSwift) {
            out += ".rotated";
            appendCall(out, s, {{"by: ", v.angle}});
          } else {
            out += ".rotatedy";
            appendCall(out, s, {{"x: ", v.angle}});
            s.noteDefect(SVGSwiftUIExporter::rotationStep);
          }
        } else if constexpr (std::is_same_v<T, Step::Scale>) {
          out += ".scaledBy";
          appendCall(out, s, {{"x: ", v.x}, {"y: ", v.y}});
        } else {
          out += ".concatenating(";
          appendMatrixText(out, s, v.transform, false);
          out += ')';
        }
      },
      step.value);
}

std::string firstStepText(const CodeGenerationStream& s, const Step& step, bool preferInit) {
  std::string text;
  appendFirstStepText(text, s, step, preferInit);
  return text;
}

std::string chainedStepText(const CodeGenerationStream& s, const Step& step) {
  std::string text;
  appendChainedStepText(text, s, step);
  return text;
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
