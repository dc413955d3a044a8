#include "FigurerUtilities/SVGPreview.h"

#include "RootTagAttributes.h"

namespace FigurerUtilities {

std::string previewPage(std::string_view svg, CoreS::Logger& logger) {
  std::string page =
      "<html><head>\n<style>\n  div { width: 100%; height: 100%; }\n</style>\n</head><body><div>";
  page += rewriteSVGSize(svg, logger);
  page += "</div></body></html>";
  return page;
}

std::string rewriteSVGSize(std::string_view svg, CoreS::Logger& logger) {
  // A plain text search: a ">" inside an attribute value ends the tag early, and comments
  // before the root are not skipped. The page shows the text as it is when this goes wrong.
  const std::size_t tagStart = svg.find("<svg");
  if (tagStart == std::string_view::npos) return std::string(svg);
  const std::size_t tagEnd = svg.find('>', tagStart + 4);
  if (tagEnd == std::string_view::npos) return std::string(svg);
  const std::string_view oldTag = svg.substr(tagStart, tagEnd + 1 - tagStart);

  // A self-closed root fails here: the appended end tag then closes nothing.
  AttributeList attributes = parseElementAttributes(std::string(oldTag) + "</svg>");
  if (attributes.empty()) return std::string(svg);

  if (!attributes.contains("viewBox") &&
      (attributes.contains("width") || attributes.contains("height"))) {
    const std::string width = attributes.remove("width").value_or("100%");
    const std::string height = attributes.remove("height").value_or("100%");
    const std::string x = attributes.remove("x").value_or("0");
    const std::string y = attributes.remove("y").value_or("0");
    attributes.set("viewBox", x + " " + y + " " + width + " " + height);
  }
  attributes.remove("x");
  attributes.remove("y");
  attributes.set("width", "100%");
  attributes.set("height", "100%");

  std::string newTag = "<svg";
  for (const auto& [name, value] : attributes.items()) {
    newTag += " " + name + "=\"" + escapeForAttribute(value) + "\"";
  }
  newTag += ">";

  if (newTag == oldTag) {
    logger.log("didn't rewrite SVG size");
    return std::string(svg);
  }
  logger.trace("Rewrote SVG tag to:", newTag);
  std::string out(svg.substr(0, tagStart));
  out += newTag;
  out += svg.substr(tagEnd + 1);
  return out;
}

std::string escapeForAttribute(std::string_view text) {
  std::string out;
  out.reserve(text.size());
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
      case '\'':
        out += "&apos;";
        break;
      case '"':
        out += "&quot;";
        break;
      default:
        out += c;
    }
  }
  return out;
}

}  // namespace FigurerUtilities
