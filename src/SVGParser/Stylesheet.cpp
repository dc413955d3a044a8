// Stylesheets: comments, declarations, rules with their selectors, and the per-element fold
// of class rules, id rules and the style attribute.
#include <array>
#include <string>

#include "SVGParser/CSS.h"
#include "TextUtilities.h"

namespace {

namespace text = SVGParser::text;

void merge(CSS::Declarations& into, const CSS::Declarations& from) {
  for (const auto& [name, value] : from) into.insert_or_assign(name, value);
}

// The properties that some element reader asks the resolver for. A rule may hold any number
// of others; copying them into the style of every element it matches would make a document
// cost its stylesheet's size times its element count.
// clang-format off
constexpr std::array<std::string_view, 25> readProperties{
    "opacity", "fill-opacity", "stroke-opacity", "stroke-width", "fill", "stroke",
    "stroke-linecap", "stroke-linejoin", "stroke-miterlimit", "filter",  // presentation
    "x", "y", "width", "height", "x1", "y1", "x2", "y2",                 // geometry
    "stop-color", "stop-opacity",                                        // gradient stops
    "font", "font-style", "font-weight", "font-family", "font-size"};    // text
// clang-format on

void mergeReadProperties(CSS::Declarations& into, const CSS::Declarations& from) {
  if (from.size() <= readProperties.size()) return merge(into, from);
  for (const std::string_view name : readProperties) {
    if (const auto it = from.find(name); it != from.end()) {
      into.insert_or_assign(it->first, it->second);
    }
  }
}

// ["name": value, ...] for the report lines about dropped rules.
std::string describe(const CSS::Declarations& declarations) {
  if (declarations.empty()) return "[:]";
  std::string out = "[";
  bool first = true;
  for (const auto& [name, value] : declarations) {
    if (!first) out += ", ";
    text::appendQuoted(out, name);
    out += ": ";
    out += value.description();
    first = false;
  }
  out += ']';
  return out;
}

// A block of at most two characters, its braces included, carries nothing: "{}", or an
// unclosed "{" at the end of the text followed by at most one character (a CR LF pair is
// one character).
bool isEmptyBlock(std::string_view block, bool closed) {
  if (closed) return block.size() <= 2;
  const std::string_view rest = block.substr(1);
  return rest == "\r\n" || text::characterCount(rest) <= 1;
}

}  // namespace

std::string CSS::stripComments(std::string_view source) {
  std::string out;
  out.reserve(source.size());
  std::size_t i = 0;
  bool removedComment = false;
  while (i <= source.size()) {
    std::size_t searchFrom = 0;
    // Removing a comment can join a "/" before it and a "*" behind it into a new opener.
    if (removedComment && !out.empty() && out.back() == '/' && i < source.size() &&
        source[i] == '*') {
      out.pop_back();
      searchFrom = i + 1;
    } else {
      const std::size_t open = source.find("/*", i);
      if (open == std::string_view::npos) {
        out.append(source.substr(i));
        break;
      }
      out.append(source.substr(i, open - i));
      searchFrom = open + 2;
    }
    const std::size_t close = source.find("*/", searchFrom);
    if (close == std::string_view::npos) break;  // an unclosed comment runs to the end
    i = close + 2;
    removedComment = true;
  }
  return out;
}

CSS::Declarations CSS::parseDeclarations(std::optional<std::string_view> source) {
  Declarations declarations;
  if (!source) return declarations;
  const std::string stripped = stripComments(*source);
  if (stripped.empty()) return declarations;

  // A ";" inside a value, as in a data URL, ends the declaration there.
  for (std::string_view piece : text::split(stripped, ';', 1000)) {
    const std::size_t start = piece.find_first_not_of(':');
    if (start == std::string_view::npos) continue;
    const auto parts = text::split(piece.substr(start), ':', 1);
    const std::string_view name = text::trim(parts[0]);
    const std::string_view value = parts.size() > 1 ? text::trim(parts[1]) : "auto";
    declarations.insert_or_assign(std::string(name), Value::parse(value));
  }
  return declarations;
}

std::vector<CSS::Rule> CSS::parseRules(std::optional<std::string_view> source) {
  std::vector<Rule> rules;
  if (!source) return rules;
  const std::string stripped = stripComments(*source);
  std::string_view rest = stripped;
  // Blocks do not nest: the first "}" ends a block, whatever opened inside it.
  while (true) {
    const std::size_t open = rest.find('{');
    if (open == std::string_view::npos) break;
    const std::string_view selectorText = text::trim(rest.substr(0, open));
    std::string_view block = rest.substr(open);
    const std::size_t close = block.find('}');
    const bool closed = close != std::string_view::npos;
    if (closed) {
      block = block.substr(0, close + 1);
      rest = rest.substr(open + close + 1);
    } else {
      rest = {};
    }
    if (isEmptyBlock(block, closed)) continue;
    std::string_view body = block.substr(1);
    if (closed) body.remove_suffix(1);
    rules.emplace_back(Selector::parse(selectorText), parseDeclarations(text::trim(body)));
  }
  return rules;
}

std::optional<CSSModel::Selector> CSSModel::Selector::parse(std::string_view source) {
  if (source.empty()) return std::nullopt;
  // Only the first character is looked at: "#a b" is an id selector for the id "a b".
  if (source.front() == '#') return Selector{Kind::id, std::string(source.substr(1))};
  if (source.front() == '.') return Selector{Kind::cssClass, std::string(source.substr(1))};
  return Selector{Kind::unsupported, std::string(source)};
}

CSS::CSS(std::optional<std::string_view> source, const SVGParser::Report& report) {
  for (const auto& [selector, declarations] : parseRules(source)) {
    if (!selector) {
      report.print({"Unsupported global CSS:", describe(declarations)});
      continue;
    }
    switch (selector->kind) {
      case Selector::Kind::id:
        merge(idToStyles[selector->text].properties, declarations);
        break;
      case Selector::Kind::cssClass:
        merge(classToStyles[selector->text].properties, declarations);
        break;
      case Selector::Kind::unsupported:
        report.print(
            {"Unsupported CSS selector:", selector->text, "style:", describe(declarations)});
        break;
    }
  }
}

CSS::Style CSS::resolver(const SVGParser::Attributes& attributes) const {
  // Later classes beat earlier ones, the id beats the classes, the style attribute beats all.
  Style style;
  for (std::string_view name : text::split(attributes["class"].value_or(""), ' ', 100)) {
    if (const auto it = classToStyles.find(name); it != classToStyles.end()) {
      mergeReadProperties(style.properties, it->second.properties);
    }
  }
  if (const auto id = attributes["id"]) {
    if (const auto it = idToStyles.find(*id); it != idToStyles.end()) {
      mergeReadProperties(style.properties, it->second.properties);
    }
  }
  merge(style.properties, parseDeclarations(attributes["style"]));
  return style;
}
