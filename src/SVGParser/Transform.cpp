// The transform attribute: a list of function calls read in source order. Arguments are
// separated by commas only, and the skew functions are known by their lower-case names; the
// readings these narrow rules give (for instance `translate(10)` moving both ways) are the
// ones the rest of the system expects.
#include <array>
#include <span>
#include <string>

#include "CoreS/DoubleText.h"
#include "SVGParser/SVG.h"

namespace SVGModel {

namespace {

using Arguments = std::vector<std::string>;

double numberOr(const std::string& text, double fallback) {
  return CSS::parseNumber(text).value_or(fallback);
}

// The arguments as a bracketed list of quoted strings, for the report line.
std::string describeArguments(const Arguments& arguments) {
  std::string out = "[";
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (i > 0) out += ", ";
    out += '"';
    for (char c : arguments[i]) {
      if (c == '"' || c == '\\') out += '\\';
      out += c;
    }
    out += '"';
  }
  out += ']';
  return out;
}

std::string describeCall(std::string_view name, std::span<const double> numbers) {
  std::string out(name);
  out += '(';
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    if (i > 0) out += ", ";
    out += CoreS::swiftDoubleDescription(numbers[i]);
  }
  out += ')';
  return out;
}

Transform matrix(const Arguments& arguments) {
  Transform::Matrix result;
  for (const auto& argument : arguments) {
    if (const auto number = CSS::parseNumber(argument)) result.values.push_back(*number);
  }
  return {result};
}

std::optional<Transform> rotate(const Arguments& arguments) {
  if (arguments.empty()) return std::nullopt;
  const auto degrees = CSS::parseNumber(arguments.front());
  if (!degrees) return std::nullopt;
  if (arguments.size() == 1) return Transform{Transform::Rotate{*degrees, 0, 0}};
  // The centre's y comes from the last argument, however many there are.
  return Transform{
      Transform::Rotate{*degrees, numberOr(arguments[1], 0), numberOr(arguments.back(), 0)}};
}

Transform translate(const Arguments& arguments) {
  const double dx = arguments.empty() ? 0 : numberOr(arguments.front(), 0);
  const double dy = arguments.size() >= 2 ? numberOr(arguments[1], dx) : dx;
  return {Transform::Translate{dx, dy}};
}

Transform scale(const Arguments& arguments) {
  if (arguments.empty()) return {Transform::Scale{0, 0}};
  const double x = numberOr(arguments.front(), 0);
  return {Transform::Scale{x, numberOr(arguments.back(), x)}};
}

std::optional<double> skewAngle(const Arguments& arguments) {
  if (arguments.empty() || arguments.front().empty()) return std::nullopt;
  return numberOr(arguments.front(), 0);
}

}  // namespace

std::optional<Transform> Transform::parse(std::string_view text, const Report& report) {
  const auto function = CSS::parseFunction(text);
  if (!function) {
    report.print({"Unsupported transform value:", text});
    return std::nullopt;
  }
  const std::string& name = function->name;
  const Arguments& arguments = function->arguments;
  if (name == "matrix") return matrix(arguments);
  if (name == "rotate") return rotate(arguments);
  if (name == "translate") return translate(arguments);
  if (name == "scale") return scale(arguments);
  if (name == "skewx") {
    if (const auto angle = skewAngle(arguments)) return Transform{SkewX{*angle}};
    return std::nullopt;
  }
  if (name == "skewy") {
    if (const auto angle = skewAngle(arguments)) return Transform{SkewY{*angle}};
    return std::nullopt;
  }
  report.print({"Unsupported transform function:", name, describeArguments(arguments)});
  return std::nullopt;
}

std::vector<Transform> Transform::parseList(std::optional<std::string_view> text,
                                            const Report& report) {
  std::vector<Transform> transforms;
  if (!text) return transforms;
  std::string_view rest = *text;
  // Each piece runs up to and including the next ")"; separators stay at the front of the
  // following piece, so a comma between two functions becomes part of the second name.
  while (!rest.empty()) {
    const std::size_t close = rest.find(')');
    if (close == std::string_view::npos) break;
    const std::string_view piece = rest.substr(0, close + 1);
    rest.remove_prefix(close + 1);
    if (piece == "identity" || piece == "identity()") continue;
    if (auto transform = parse(piece, report)) transforms.push_back(std::move(*transform));
  }
  return transforms;
}

std::string Transform::description() const {
  struct Describe {
    std::string operator()(const Matrix& m) const { return describeCall("matrix", m.values); }
    std::string operator()(const Rotate& r) const {
      return describeCall("rotate", std::array{r.degrees, r.x, r.y});
    }
    std::string operator()(const Translate& t) const {
      return describeCall("translate", std::array{t.dx, t.dy});
    }
    std::string operator()(const Scale& s) const {
      return describeCall("scale", std::array{s.x, s.y});
    }
    std::string operator()(const SkewX& s) const {
      return describeCall("skewX", std::array{s.degrees});
    }
    std::string operator()(const SkewY& s) const {
      return describeCall("skewY", std::array{s.degrees});
    }
  };
  return std::visit(Describe{}, value);
}

}  // namespace SVGModel
