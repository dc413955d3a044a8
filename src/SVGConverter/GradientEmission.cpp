// Gradient definitions of a container, written as static constants.
#include <array>
#include <string_view>
#include <utility>

#include "Emitters.h"
#include "SVGConverter/PaintText.h"
#include "SVGConverter/ValueLiterals.h"

namespace SVGConverter {

namespace {

using SwiftUIModel::GradientStop;

std::string unitPointName(const CodeGenerationStream& s, CGPoint p) {
  if (p == CGPoint{0, 0}) return ".topLeading";
  if (p == CGPoint{0, 1}) return ".bottomLeading";
  if (p == CGPoint{1, 0}) return ".topTrailing";
  if (p == CGPoint{1, 1}) return ".bottomTrailing";
  return unitPointLiteral(s, p, s.config().preferInitOverType);
}

// A start and end along one side read as that side's two edges.
std::pair<std::string, std::string> simplified(std::string start, std::string end) {
  struct Row {
    std::string_view start, end, newStart, newEnd;
  };
  static constexpr std::array<Row, 8> rows{{
      {".topLeading", ".bottomLeading", ".top", ".bottom"},
      {".topTrailing", ".bottomTrailing", ".top", ".bottom"},
      {".topLeading", ".topTrailing", ".leading", ".trailing"},
      {".bottomLeading", ".bottomTrailing", ".leading", ".trailing"},
      {".bottomLeading", ".topLeading", ".bottom", ".top"},
      {".bottomTrailing", ".topTrailing", ".bottom", ".top"},
      {".topTrailing", ".topLeading", ".trailing", ".leading"},
      {".bottomTrailing", ".bottomLeading", ".trailing", ".leading"},
  }};
  for (const auto& row : rows) {
    if (row.start == start && row.end == end)
      return {std::string(row.newStart), std::string(row.newEnd)};
  }
  return {std::move(start), std::move(end)};
}

// Evenly spread stops from 0 need no locations. The comparison is exact on purpose: stops
// that a file gives as rounded thirds are written with their locations.
bool evenlySpread(const std::vector<GradientStop>& stops) {
  const std::size_t n = stops.size();
  if (n < 2) return true;
  const double step = 1.0 / static_cast<double>(n - 1);
  if (stops.front().offset != 0) return false;
  double sum = 0;
  for (std::size_t i = 1; i < n; ++i) {
    sum += step;
    if (stops[i].offset != sum) return false;
  }
  return true;
}

void appendGradientArguments(CodeGenerationStream& s, const std::vector<GradientStop>& stops) {
  const auto& config = s.config();
  const bool colors = evenlySpread(stops);
  const std::string type = config.preferInitOverType ? ".init" : "Gradient";
  s.appendLine("gradient: " + type + "(" + (colors ? "colors" : "stops") + ": [");

  std::vector<std::string> items;
  items.reserve(stops.size());
  for (const auto& stop : stops) {
    std::string color = colorText(s, stop.color, std::nullopt, config.preferInitOverType,
                                  config.exportHexColorExtension)
                            .value_or(".black");
    if (stop.opacity) color += ".opacity(" + s.numberString(*stop.opacity) + ")";
    if (colors) {
      items.push_back(std::move(color));
    } else {
      items.push_back((config.preferInitOverType ? ".init" : "Gradient.Stop") +
                      std::string("(color: ") + color +
                      ", location: " + s.numberString(stop.offset) + ")");
    }
  }

  s.indented(true, [&] {
    if (items.empty()) {
      s.appendInfoComment("No gradient stops defined/detected.");
      return;
    }
    if (items.size() == 1) s.appendInfoComment("A gradient w/ just a single stop?");
    std::string joined;
    for (std::size_t i = 0; i < items.size(); ++i) {
      if (i > 0) joined += ", ";
      joined += items[i];
    }
    if (!config.preferMultilineConstants && joined.size() <= 79) {
      s.appendLine(joined);
      return;
    }
    for (std::size_t i = 0; i < items.size(); ++i) {
      s.appendLine(i + 1 < items.size() ? items[i] + "," : items[i]);
    }
  });
  s.appendLine("]),");
}

}  // namespace

void appendLinearGradient(CodeGenerationStream& s,
                          const SwiftUIModel::LinearGradientProperty& gradient) {
  // Named members rather than a structured binding: lambdas may not capture bindings in C++20.
  const auto points =
      simplified(unitPointName(s, gradient.startPoint), unitPointName(s, gradient.endPoint));
  s.appendLine("static let " + gradient.propertyID + " = LinearGradient(");
  s.indented(true, [&] {
    appendGradientArguments(s, gradient.stops);
    s.appendLine("startPoint: " + points.first + ", endPoint: " + points.second);
  });
  s.appendLine(")");
}

void appendRadialGradient(CodeGenerationStream& s,
                          const SwiftUIModel::RadialGradientProperty& gradient) {
  s.appendLine("static let " + gradient.propertyID + " = RadialGradient(");
  s.indented(true, [&] {
    appendGradientArguments(s, gradient.stops);
    s.appendLine("center: " + unitPointName(s, gradient.center) +
                 ", startRadius: " + s.numberString(gradient.startRadius) +
                 ", endRadius: " + s.numberString(gradient.endRadius));
  });
  s.appendLine(")");
}

}  // namespace SVGConverter
