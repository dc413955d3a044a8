// Text children: written in place in the parent's body, one expression and its modifiers.
#include <string>
#include <type_traits>
#include <variant>

#include "Emitters.h"
#include "SVGConverter/PaintText.h"
#include "SVGConverter/ValueLiterals.h"

namespace SVGConverter {

namespace {

std::string textExpression(const CodeGenerationStream& s, const SwiftUIModel::Text& text) {
  return (s.config().verbatimTexts ? "Text(verbatim: \"" : "Text(\"") +
         escapedStringLiteralBody(text.text) + "\")";
}

void appendPaint(CodeGenerationStream& s, const SwiftUIModel::Paint& paint,
                 const std::string& expression) {
  using Paint = SwiftUIModel::Paint;
  const auto& config = s.config();
  std::visit(
      [&](const auto& p) {
        using T = std::decay_t<decltype(p)>;
        if constexpr (std::is_same_v<T, Paint::Opacity>) {
          s.appendLine(".opacity(" + s.numberString(p.opacity) + ")");
        } else if constexpr (std::is_same_v<T, Paint::Color>) {
          if (auto color = colorText(s, p.color, p.opacity, config.preferInitOverType,
                                     config.exportHexColorExtension)) {
            s.appendLine(".foregroundColor(" + *color + ")");
          }
        } else {
          // The gradient shows through the glyphs of a second copy of the text.
          s.appendLine(".foregroundColor(.clear)");
          s.appendLine(".background(" + p.id + ".mask(" + expression + "))");
        }
      },
      paint.value);
}

void appendFont(CodeGenerationStream& s, const CSS::Font& font) {
  using System = CSS::Font::System;
  if (const auto* shorthand = std::get_if<CSS::Font::Shorthand>(&font.value)) {
    s.appendLine(".font(" + fontText(s, *shorthand) + ")");
    return;
  }
  switch (std::get<System>(font.value)) {
    case System::caption:
      s.appendLine(".font(.body)", std::nullopt, "caption");
      break;
    case System::icon:
      s.appendLine(".font(.body)", std::nullopt, "icon");
      break;
    case System::menu:
      s.appendLine(".font(.body)", std::nullopt, "menu");
      break;
    case System::messageBox:
      s.appendLine(".font(.body)", std::nullopt, "message-box");
      break;
    case System::smallCaption:
      s.appendLine(".font(.caption)", std::nullopt, "small-caps");
      break;
    case System::statusBar:
      s.appendLine(".font(.body)", std::nullopt, "status-bar");
      break;
  }
}

}  // namespace

void appendText(CodeGenerationStream& s, const SwiftUIModel::Text& text) {
  const std::string expression = textExpression(s, text);
  s.appendLine(expression);
  s.indented(true, [&] {
    if (text.paint) appendPaint(s, *text.paint, expression);
    if (text.font) appendFont(s, *text.font);
    if (text.origin.x != 0) {
      const auto x = s.numberString(text.origin.x);
      s.appendLine(s.config().positionUsingPadding ? ".padding(.leading, " + x + ")"
                                                   : ".offset(x: " + x + ", y: 0)");
    }
    // Every text, so that its baseline stands at the origin's y.
    s.appendLine(".alignmentGuide(.bottom) { $0[.firstTextBaseline] }");
    s.appendLine(".frame(width: .infinity, height: " + s.numberString(text.origin.y) +
                 ", alignment: .bottom)");
  });
}

}  // namespace SVGConverter
