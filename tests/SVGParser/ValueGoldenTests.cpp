// The value readers against recorded results. Each line of values.txt is
//   <reader> <input> => <result>
// where the input is a quoted text with C escapes (\xHH, \n, \t, \r, \\, \") or, for the
// readers of an attribute that may be absent, nil. The test works out every result again and
// compares the whole file; report lines follow the result after " | ". UPDATE_GOLDEN=1
// rewrites the results.
#include <gtest/gtest.h>

#include <functional>
#include <iomanip>
#include <map>
#include <optional>
#include <sstream>
#include <string>

#include "../../src/SVGParser/TextUtilities.h"
#include "CoreS/DoubleText.h"
#include "SVGParser/SVG.h"
#include "support/GoldenFiles.h"

namespace {

using Input = std::optional<std::string_view>;
using Sink = const SVGParser::Report&;
using Reader = std::function<std::string(Input, Sink)>;

std::string escaped(std::string_view text) {
  std::string out = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      out += {'\\', c};
    } else if (byte < 0x20 || byte >= 0x7F) {
      static constexpr char digits[] = "0123456789ABCDEF";
      out += {'\\', 'x', digits[byte >> 4], digits[byte & 15]};
    } else {
      out += c;
    }
  }
  return out + '"';
}

// The input token at the start of `line`: nil, or a quoted text. Sets `length` to its size.
std::optional<std::string> unescaped(std::string_view line, std::size_t& length) {
  if (line.starts_with("nil")) return length = 3, std::nullopt;
  std::string text;
  std::size_t i = 1;
  for (; i < line.size() && line[i] != '"'; ++i) {
    if (line[i] != '\\') {
      text += line[i];
    } else if (const char e = line[++i]; e == 'x') {
      text += static_cast<char>(std::stoi(std::string(line.substr(i + 1, 2)), nullptr, 16));
      i += 2;
    } else {
      text += e == 'n' ? '\n' : e == 't' ? '\t' : e == 'r' ? '\r' : e;
    }
  }
  length = i + 1;
  return text;
}

template <class T, class Describe>
std::string orNil(const std::optional<T>& value, Describe describe) {
  return value ? std::string(std::invoke(describe, *value)) : "nil";
}
std::string number(std::optional<double> value) {
  return orNil(value, CoreS::swiftDoubleDescription);
}
std::string declarations(const CSS::Declarations& properties) {
  std::string out = "[";
  for (const auto& [name, value] : properties) {
    out += (out.size() > 1 ? ", " : "") + escaped(name) + ": " + value.description();
  }
  return out + "]";
}
std::string selector(const CSS::Selector& selector) {
  static constexpr const char* kinds[] = {"id", "class", "unsupported"};
  return kinds[static_cast<int>(selector.kind)] + (" " + escaped(selector.text));
}

const std::map<std::string, Reader, std::less<>> readers = {
    {"number", [](Input text, Sink) { return number(CSS::parseNumber(*text)); }},
    {"opacity", [](Input text, Sink) { return number(CSS::parseOpacity(text)); }},
    {"function",
     [](Input text, Sink) {
       return orNil(CSS::parseFunction(*text), [](const CSS::Value::Function& f) {
         std::string out = f.name + "(";
         for (const auto& argument : f.arguments) out += escaped(argument) + ",";
         return out + ")";
       });
     }},
    {"rect",
     [](Input text, Sink report) {
       return orNil(CSS::parseRect(text, report), [](const CGRect& r) {
         return number(r.origin.x) + " " + number(r.origin.y) + " " + number(r.size.width) + " " +
                number(r.size.height);
       });
     }},
    {"length",
     [](Input text, Sink report) {
       return orNil(CSS::UnitLength::parse(text, report), &CSS::UnitLength::description);
     }},
    {"lengthOrNone",
     [](Input text, Sink report) {
       return orNil(CSS::UnitLength::parseOrNone(text, report), &CSS::UnitLength::description);
     }},
    {"lengthFromValue",
     [](Input text, Sink report) {
       const auto value = CSS::Value::parse(*text);
       return orNil(CSS::UnitLength::fromValue(&value, report), &CSS::UnitLength::description);
     }},
    {"value", [](Input text, Sink) { return CSS::Value::parse(*text).description(); }},
    {"comments", [](Input text, Sink) { return escaped(CSS::stripComments(*text)); }},
    {"declarations", [](Input text, Sink) { return declarations(CSS::parseDeclarations(text)); }},
    {"selector", [](Input text, Sink) { return orNil(CSS::Selector::parse(*text), selector); }},
    {"rules",
     [](Input text, Sink) {
       std::string out;
       for (const auto& [rule, properties] : CSS::parseRules(text)) {
         out += (out.empty() ? "" : "; ") + orNil(rule, selector) + " " + declarations(properties);
       }
       return out.empty() ? "none" : out;
     }},
    {"trim", [](Input text, Sink) { return escaped(SVGParser::text::trim(*text)); }},
    {"lowercased", [](Input text, Sink) { return escaped(SVGParser::text::lowercased(*text)); }},
    {"integer",
     [](Input text, Sink) {
       return orNil(SVGParser::text::parseInteger(*text),
                    [](std::int64_t value) { return std::to_string(value); });
     }},
    {"characters",
     [](Input text, Sink) { return std::to_string(SVGParser::text::characterCount(*text)); }},
    {"namedColor",
     [](Input text, Sink) {
       return orNil(CSS::namedColorValue(*text), [](std::uint32_t value) {
         std::ostringstream out;
         out << "0x" << std::hex << std::uppercase << std::setw(6) << std::setfill('0') << value;
         return out.str();
       });
     }},
    {"keyword",
     [](Input text, Sink) {
       static constexpr const char* caps[] = {"butt", "round", "square"};
       static constexpr const char* joins[] = {"miter", "round", "bevel"};
       const auto fill = SVGModel::parseFillRule(text);
       const auto kind = fill == decltype(fill)::none()          ? "none"
                         : fill == decltype(fill)::inherit()     ? "inherit"
                         : fill.value == CGPathFillRule::evenOdd ? "evenOdd"
                                                                 : "winding";
       return "cap " +
              orNil(SVGModel::parseLineCap(text),
                    [](CGLineCap c) { return std::string(caps[static_cast<int>(c)]); }) +
              ", join " +
              orNil(SVGModel::parseLineJoin(text),
                    [](CGLineJoin j) { return std::string(joins[static_cast<int>(j)]); }) +
              ", fill rule " + kind;
     }},
};

TEST(ValueGolden, EveryReaderGivesTheRecordedResult) {
  const auto path = golden::directory("SVGParser") / "values.txt";
  std::istringstream recorded(golden::read(path));
  std::string actual;
  for (std::string line; std::getline(recorded, line); actual += line + "\n") {
    if (line.empty() || line[0] == '#') continue;
    const auto space = line.find(' ');
    const auto reader = readers.find(std::string_view(line).substr(0, space));
    ASSERT_NE(reader, readers.end()) << line;
    std::size_t length = 0;
    const auto input = unescaped(std::string_view(line).substr(space + 1), length);
    std::string lines;
    const SVGParser::Report report([&](std::string_view l) { lines.append(" | ").append(l); });
    const auto result = reader->second(input ? Input(*input) : std::nullopt, report);
    line = line.substr(0, space + 1 + length) + " => " + result + lines;
  }
  golden::expectRecorded(path, actual);
}

}  // namespace
