// Paints as attributes and as stylesheet values. The two forms accept different spellings on
// purpose: only the attribute understands "none" and quoted references, and only the
// stylesheet refuses one-letter ids.
#include <string>

#include "SVGParser/SVG.h"
#include "TextUtilities.h"

namespace SVGModel {

namespace {

// The id behind a url() argument of the attribute form: quotes of one kind around it are
// removed. Nothing when the reference is no fragment.
std::optional<Paint> definitionFromArgument(std::string_view argument) {
  if ((argument.front() == '\'' && argument.back() == '\'') ||
      (argument.front() == '"' && argument.back() == '"')) {
    argument = argument.substr(1, argument.size() - 2);
  }
  if (!argument.starts_with('#')) return std::nullopt;
  return Paint::makeDefinition(std::string(argument.substr(1)));
}

}  // namespace

std::optional<Paint> Paint::parse(std::optional<std::string_view> text, const Report& report) {
  if (!text || text->empty()) return std::nullopt;
  if (*text == "none") return Paint::none();
  if (const auto function = CSS::parseFunction(*text)) {
    // An argument of fewer than two characters cannot be a quoted or "#" reference, and is
    // left to the colour reader (which then reports the text).
    if (function->name == "url" && !function->arguments.empty() &&
        SVGParser::text::characterCount(function->arguments.front()) >= 2) {
      return definitionFromArgument(function->arguments.front());
    }
  }
  if (auto color = CSS::Color::parse(text, report)) return Paint::makeColor(std::move(*color));
  report.print({"ERROR: Failed to parse paint: '" + std::string(*text) + "'"});
  return std::nullopt;
}

std::optional<Paint> Paint::fromValue(const CSS::Value* value) {
  if (value == nullptr) return std::nullopt;
  if (const auto* url = std::get_if<CSS::Value::Url>(&value->value)) {
    if (url->text.starts_with('#') && SVGParser::text::characterCount(url->text) > 2) {
      return Paint::makeDefinition(url->text.substr(1));
    }
    return std::nullopt;
  }
  if (auto color = CSS::Color::fromValue(value)) return Paint::makeColor(std::move(*color));
  return std::nullopt;
}

std::string Paint::description() const {
  switch (kind) {
    case Kind::color:
      return "color(" + color.description() + ")";
    case Kind::definition:
      return "definition(\"" + definition + "\")";
    case Kind::none:
      return "none";
  }
  return "none";
}

}  // namespace SVGModel
