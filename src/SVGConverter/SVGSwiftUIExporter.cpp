// The whole generated file: import, root view, colour extension, preview provider.
#include "SVGConverter/SVGSwiftUIExporter.h"

#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "CoreS/DoubleText.h"
#include "Emitters.h"
#include "SVGConverter/SVGSwiftUIFigurer.h"

namespace SVGConverter {

namespace {

void appendColorExtension(CodeGenerationStream& s) {
  s.appendBlock("fileprivate extension Color", std::nullopt, [&] {
    s.appendBlock("init(_ rgb: UInt32, opacity: Double = 1.0)", std::nullopt, [&] {
      s.appendLine("self.init(red     : Double((rgb >> 16) & 0xFF) / 255.0,");
      s.appendLine("          green   : Double((rgb >>  8) & 0xFF) / 255.0,");
      s.appendLine("          blue    : Double( rgb        & 0xFF) / 255.0,");
      s.appendLine("          opacity : opacity)");
    });
  });
}

// How many times a small image is enlarged in the preview. A width that is zero, not finite
// or beyond the integer range gets no factor rather than stopping the process.
std::optional<long long> previewFactor(double width) {
  if (!std::isfinite(width)) return std::nullopt;
  const double truncated = std::trunc(width);
  if (truncated < static_cast<double>(std::numeric_limits<long long>::min()) ||
      truncated >= static_cast<double>(std::numeric_limits<long long>::max()) || truncated == 0) {
    return std::nullopt;
  }
  const auto integer = static_cast<long long>(truncated);
  if (integer > 200) return std::nullopt;
  const long long factor = 240 / integer;
  if (factor > 1) return factor;
  return std::nullopt;
}

void appendPreviewFrame(CodeGenerationStream& s, const ContainerViewType& root) {
  const auto& name = root.typeName;
  if (root.intrinsicSize) {
    const auto factor = previewFactor(root.intrinsicSize->width);
    const std::string times = factor ? std::to_string(*factor) + " * " : "";
    s.appendLine(".frame(width  : " + times + name + ".intrinsicSize.width,");
    s.appendLine("       height : " + times + name + ".intrinsicSize.height)");
  } else if (root.viewBox && root.viewBox->size.width < 1024 && root.viewBox->size.height < 1024) {
    s.appendLine(".frame(width  : " + name + ".viewBox.width,");
    s.appendLine("       height : " + name + ".viewBox.height)");
  } else {
    s.appendLine(".frame(width: 128, height: 128)");
  }
}

void appendPreviewProvider(CodeGenerationStream& s, const ContainerViewType& root) {
  const auto& name = root.typeName;
  s.appendBlankLine();
  s.appendBlock("struct " + name + "_Previews: PreviewProvider", std::nullopt, [&] {
    s.appendBlankLine();
    s.appendBlock("static var previews: some View", std::nullopt, [&] {
      s.appendBlock("VStack", std::nullopt, [&] {
        s.appendLine(name + "()");
        s.indented(true, [&] {
          if (root.resizable.width || root.resizable.height) s.appendLine(".resizable()");
          appendPreviewFrame(s, root);
          s.appendLine(".background(Color.clear.border(Color.green))");
          s.appendLine(".padding()");
        });
        using CoreS::swiftDoubleDescription;
        if (root.intrinsicSize) {
          s.appendLine("Text(\"Size: " + swiftDoubleDescription(root.intrinsicSize->width) + "x" +
                       swiftDoubleDescription(root.intrinsicSize->height) + "\").padding(.bottom)");
        }
        if (const auto& box = root.viewBox) {
          s.appendLine("Text(\"ViewBox: " + swiftDoubleDescription(box->origin.x) + "," +
                       swiftDoubleDescription(box->origin.y) + " " +
                       swiftDoubleDescription(box->size.width) + "x" +
                       swiftDoubleDescription(box->size.height) + "\").padding(.bottom)");
        }
      });
    });
  });
}

// Report lines held back until the end, so that the converter's all come before the
// writer's, as when the whole model was made before the first line was written.
class DeferredReport {
 public:
  explicit DeferredReport(const SVGParser::Report& report) {
    if (report.enabled()) {
      sink_ = SVGParser::Report([this](std::string_view line) { lines_.emplace_back(line); });
    }
  }
  DeferredReport(const DeferredReport&) = delete;
  DeferredReport& operator=(const DeferredReport&) = delete;

  const SVGParser::Report& report() const { return sink_; }
  void passOn(const SVGParser::Report& report) const {
    for (const auto& line : lines_) report.print({line});
  }

 private:
  SVGParser::Report sink_;
  std::vector<std::string> lines_;
};

void writeFile(CodeGenerationStream& s, const SVG& root,
               const SVGSwiftUIExporter::ChildSource& nextChild,
               const SVGSwiftUIExporter::Config& config, const SVGParser::Report& report) {
  if (config.generateImport) {
    s.appendLine("import SwiftUI");
    s.appendBlankLine();
  }
  const DeferredReport converterLines(report);
  const DeferredReport writerLines(report);
  SVGSwiftUIFigurer figurer(converterLines.report());
  figurer.pushAttributes(SVGSwiftUIFigurer::defaultAttributes());
  auto container = figurer.beginSVG(root, config.rootViewName);
  s.appendInfoComment("SVG");
  s.appendBlock("struct " + container.typeName + ": View", std::nullopt, [&] {
    appendContainerHead(s, container, writerLines.report());
    ChildCalls calls;
    std::vector<SwiftUIModel::Subview> converted;
    while (const SVG::GroupItem* item = nextChild()) {
      figurer.convertChild(*item, converted);
      for (auto& child : converted) {
        if (calls.empty()) appendNestedViewsComment(s);
        appendNestedType(s, child, writerLines.report());
        calls.add(std::move(child));
      }
      converted.clear();
    }
    figurer.endSVG(root, container);
    appendMembersAndBody(s, container, calls);
  });
  if (config.exportHexColorExtension && s.didUseHexColorInit) {
    s.appendBlankLine();
    appendColorExtension(s);
  }
  if (config.generatePreviewProvider) appendPreviewProvider(s, container);
  converterLines.passOn(report);
  writerLines.passOn(report);
}

SVGSwiftUIExporter::ChildSource childrenOf(const SVG& svg) {
  return [&svg, next = std::size_t{0}]() mutable -> const SVG::GroupItem* {
    return next < svg.children.size() ? &svg.children[next++] : nullptr;
  };
}

}  // namespace

}  // namespace SVGConverter

std::string SVGSwiftUIExporter::generate(const SVG& svg, const Config& config,
                                         const SVGParser::Report& report) {
  std::string text;
  generate(svg, config, report, text);
  return text;
}

void SVGSwiftUIExporter::generate(const SVG& svg, const Config& config,
                                  const SVGParser::Report& report, std::string& text,
                                  Defects* defects) {
  generate(svg, SVGConverter::childrenOf(svg), config, report, text, defects);
}

void SVGSwiftUIExporter::generate(const SVG& root, const ChildSource& children,
                                  const Config& config, const SVGParser::Report& report,
                                  std::string& text, Defects* defects) {
  SVGConverter::CodeGenerationStream s(config, std::move(text));
  SVGConverter::writeFile(s, root, children, config, report);
  text = s.takeText();
  if (defects != nullptr) *defects |= s.defects();
}

void SVGSwiftUIExporter::generate(const SVG& svg, const Config& config,
                                  const SVGParser::Report& report, const TextSink& sink,
                                  Defects* defects) {
  generate(svg, SVGConverter::childrenOf(svg), config, report, sink, defects);
}

void SVGSwiftUIExporter::generate(const SVG& root, const ChildSource& children,
                                  const Config& config, const SVGParser::Report& report,
                                  const TextSink& sink, Defects* defects) {
  SVGConverter::CodeGenerationStream s(config, sink);
  SVGConverter::writeFile(s, root, children, config, report);
  s.flush();
  if (defects != nullptr) *defects |= s.defects();
}

void SVGSwiftUIExporter::reportDefects(const SVGParser::Report& report, Defects defects) {
  if (defects == 0) return;
  static constexpr std::pair<Defect, std::string_view> names[] = {
      {arcTransform, "arc transform"},
      {rotationStep, "rotation step"},
      {unknownColor, "unknown colour name"},
      {headerComment, "comment mark in the SVG header"},
  };
  std::string line = "NOTE: the generated Swift does not compile as written (";
  bool first = true;
  for (const auto& [defect, name] : names) {
    if ((defects & defect) == 0) continue;
    if (!first) line += ", ";
    line += name;
    first = false;
  }
  line += "); turn on compilableSwift (--compilable-swift) to correct it";
  report.print({line});
}
