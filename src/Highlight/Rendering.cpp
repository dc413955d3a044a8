#include "Highlight/Rendering.h"

#include <nlohmann/json.hpp>
#include <string_view>

namespace Highlight {

namespace {

bool isBold(const TextStyle& style) {
  return style.font && style.font->bold;
}
// A theme never makes bold-italic; bold wins, as in the editors.
bool isItalic(const TextStyle& style) {
  return style.font && style.font->italic && !isBold(style);
}

template <class F>
void forEachRun(const StyledText& text, F&& f) {
  std::size_t offset = 0;
  for (const StyledRun& run : text.runs()) {
    f(std::u16string_view(text.text()).substr(offset, run.length), run.style);
    offset += run.length;
  }
}

std::string sgrStart(const TextStyle& style) {
  std::string codes;
  auto add = [&codes](const std::string& code) {
    if (!codes.empty()) codes += ';';
    codes += code;
  };
  if (isBold(style)) add("1");
  if (isItalic(style)) add("3");
  if (style.underline) add("4");
  if (style.foreground) {
    add("38;2;" + std::to_string(style.foreground->red) + ";" +
        std::to_string(style.foreground->green) + ";" + std::to_string(style.foreground->blue));
  }
  return codes.empty() ? std::string() : "\x1b[" + codes + "m";
}

void appendEscapedHTML(std::string& out, std::string_view text) {
  for (char c : text) {
    switch (c) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += "&quot;";
        break;
      default:
        out += c;
    }
  }
}

}  // namespace

std::string renderPlain(const StyledText& text) {
  return toUTF8(text.text());
}

std::string renderANSI(const StyledText& text) {
  std::string out;
  forEachRun(text, [&out](std::u16string_view part, const TextStyle& style) {
    const std::string start = sgrStart(style);
    const std::string utf8 = toUTF8(part);
    if (start.empty()) {
      out += utf8;
      return;
    }
    std::size_t lineStart = 0;
    while (lineStart <= utf8.size()) {
      const std::size_t newline = utf8.find('\n', lineStart);
      const std::size_t lineEnd = newline == std::string::npos ? utf8.size() : newline;
      if (lineEnd > lineStart) {
        out += start;
        out.append(utf8, lineStart, lineEnd - lineStart);
        out += "\x1b[0m";
      }
      if (newline == std::string::npos) break;
      out += '\n';
      lineStart = newline + 1;
    }
  });
  return out;
}

std::string renderHTML(const StyledText& text, std::optional<RGBColor> background) {
  std::string out = "<pre style=\"font-family: monospace;";
  if (background) out += " background-color: " + background->hex() + ";";
  out += "\">";
  forEachRun(text, [&out](std::u16string_view part, const TextStyle& style) {
    std::string css;
    if (style.foreground) css += "color: " + style.foreground->hex() + ";";
    if (isBold(style)) css += " font-weight: bold;";
    if (isItalic(style)) css += " font-style: italic;";
    if (style.underline) css += " text-decoration: underline;";
    if (!css.empty() && css.front() == ' ') css.erase(0, 1);
    if (css.empty()) {
      appendEscapedHTML(out, toUTF8(part));
    } else {
      out += "<span style=\"" + css + "\">";
      appendEscapedHTML(out, toUTF8(part));
      out += "</span>";
    }
  });
  out += "</pre>\n";
  return out;
}

std::string renderRunsJSON(const StyledText& text) {
  // Keys in the order a reader expects them, not sorted.
  nlohmann::ordered_json runs = nlohmann::ordered_json::array();
  forEachRun(text, [&runs](std::u16string_view part, const TextStyle& style) {
    runs.push_back({
        {"text", toUTF8(part)},
        {"color", style.foreground ? nlohmann::ordered_json(style.foreground->hex())
                                   : nlohmann::ordered_json()},
        {"bold", isBold(style)},
        {"italic", isItalic(style)},
        {"underline", style.underline},
    });
  });
  return runs.dump(2) + "\n";
}

}  // namespace Highlight
