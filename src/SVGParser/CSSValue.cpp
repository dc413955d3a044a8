// The generic CSS value of a declaration, and its readable form.
#include <string>

#include "CoreS/DoubleText.h"
#include "SVGParser/CSS.h"
#include "TextUtilities.h"

namespace CSSModel {

namespace {

namespace text = SVGParser::text;

constexpr std::string_view importantFlag = "!important";

template <class... Ts>
struct Overloaded : Ts... {
  using Ts::operator()...;
};
template <class... Ts>
Overloaded(Ts...) -> Overloaded<Ts...>;

}  // namespace

Value Value::parse(std::string_view source) {
  // The flag is read and forgotten: a later declaration wins whatever it says.
  if (source.ends_with(importantFlag)) {
    source = text::trim(source.substr(0, source.size() - importantFlag.size()));
  }
  if (source.empty() || source == "auto") return {Auto{}};
  if (source == "none") return {ExplicitNone{}};
  if (source == "clear") return {Clear{}};
  if (source.starts_with("url(")) {
    std::string_view inner = source.substr(4);
    // The last character goes, whatever it is, and all of its UTF-8 bytes with it.
    while (!inner.empty() && (static_cast<unsigned char>(inner.back()) & 0xC0) == 0x80) {
      inner.remove_suffix(1);
    }
    if (!inner.empty()) inner.remove_suffix(1);
    return {Url{std::string(text::trim(inner))}};
  }
  if (const auto number = CSS::parseNumber(source)) return {Number{*number}};
  if (source.ends_with('%')) {
    if (const auto number = CSS::parseNumber(source.substr(0, source.size() - 1))) {
      return {PercentValue{*number}};
    }
  }
  if (source.ends_with("px")) {
    if (const auto number = CSS::parseNumber(source.substr(0, source.size() - 2))) {
      return {Pixel{*number}};
    }
  }
  if (source.find('(') != std::string_view::npos) {
    if (auto function = CSS::parseFunction(source)) return {std::move(*function)};
  }
  return {Id{std::string(source)}};
}

std::string Value::description() const {
  std::string out;
  std::visit(Overloaded{
                 [&](const Id& id) {
                   out = ".id(";
                   text::appendQuoted(out, id.text);
                   out += ')';
                 },
                 [&](const Number& number) {
                   out = ".number(" + CoreS::swiftDoubleDescription(number.value) + ")";
                 },
                 [&](const Pixel& pixel) {
                   out = ".pixel(" + CoreS::swiftDoubleDescription(pixel.value) + ")";
                 },
                 [&](const PercentValue& percent) {
                   out = ".percentValue(" + CoreS::swiftDoubleDescription(percent.value) + ")";
                 },
                 [&](const Url& url) {
                   out = ".url(";
                   text::appendQuoted(out, url.text);
                   out += ')';
                 },
                 [&](const Function& function) {
                   out = ".function(name: ";
                   text::appendQuoted(out, function.name);
                   out += ", arguments: [";
                   bool first = true;
                   for (const std::string& argument : function.arguments) {
                     if (!first) out += ", ";
                     text::appendQuoted(out, argument);
                     first = false;
                   }
                   out += "])";
                 },
                 [&](const ExplicitNone&) { out = ".explicitNone"; },
                 [&](const Auto&) { out = ".auto"; },
                 [&](const Clear&) { out = ".clear"; },
             },
             value);
  return out;
}

}  // namespace CSSModel
