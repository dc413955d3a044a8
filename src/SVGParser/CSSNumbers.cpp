// The number grammars: a whole-text float, opacity, the call form `name(a, b)` and the
// viewBox rectangle.
#include <locale.h>
#include <array>
#include <charconv>
#include <cstdlib>
#include <limits>
#include <string>

#include "SVGParser/CSS.h"
#include "TextUtilities.h"

namespace {

// The "C" locale, so that a decimal comma in the user's locale never changes what a number
// means. Created once; never freed, as it lives as long as the process.
locale_t cLocale() {
  static const locale_t locale = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
  return locale;
}

// strtod's full grammar (a "+" sign, hexadecimal floats, out-of-range values), which
// std::from_chars leaves out.
std::optional<double> parseWithStrtod(std::string_view text) {
  const locale_t locale = cLocale();
  if (locale == static_cast<locale_t>(nullptr)) return std::nullopt;
  std::array<char, 64> small{};
  std::string large;
  const char* begin = nullptr;
  if (text.size() < small.size()) {
    text.copy(small.data(), text.size());
    begin = small.data();
  } else {
    large.assign(text);
    begin = large.c_str();
  }
  char* end = nullptr;
  const double value = strtod_l(begin, &end, locale);
  if (end != begin + text.size()) return std::nullopt;
  return value;
}

bool isCSpace(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

// strtod's hexadecimal form: an optional sign, then "0x" or "0X".
bool isHexFloat(std::string_view text) {
  if (text.front() == '+' || text.front() == '-') text.remove_prefix(1);
  return text.size() >= 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
}

}  // namespace

std::optional<double> CSS::parseNumber(std::string_view text) {
  // strtod would skip leading blanks, and it stops at a NUL, so such text never reads whole.
  if (text.empty() || isCSpace(text.front())) return std::nullopt;
  if (text.find('\0') != std::string_view::npos) return std::nullopt;

  // from_chars reads the common decimal forms without copying; it agrees with strtod on
  // every text it takes whole. The rest goes to strtod.
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error == std::errc() && end == text.data() + text.size()) return value;
  if (error != std::errc::result_out_of_range && text.front() != '+' && !isHexFloat(text)) {
    return std::nullopt;
  }
  return parseWithStrtod(text);
}

std::optional<double> CSS::parseOpacity(std::optional<std::string_view> text) {
  if (!text || text->empty()) return std::nullopt;
  if (text->back() == '%') return parseNumber(text->substr(0, text->size() - 1));
  const auto number = parseNumber(*text);
  if (!number) return std::nullopt;
  return *number * 100;
}

std::optional<CSS::Value::Function> CSS::parseFunction(std::string_view text) {
  const std::size_t open = text.find('(');
  const std::size_t close = text.rfind(')');
  if (open == std::string_view::npos || close == std::string_view::npos || close < open) {
    return std::nullopt;
  }
  const std::string_view name = SVGParser::text::trim(text.substr(0, open));
  if (name.empty()) return std::nullopt;

  Value::Function function;
  function.name = name;
  const std::string_view argumentText = text.substr(open + 1, close - open - 1);
  if (!argumentText.empty()) {
    for (std::string_view piece :
         SVGParser::text::split(argumentText, ',', std::numeric_limits<std::size_t>::max())) {
      function.arguments.emplace_back(SVGParser::text::trim(piece));
    }
  }
  return function;
}

std::optional<CGRect> CSS::parseRect(std::optional<std::string_view> text,
                                     const SVGParser::Report& report) {
  if (!text || text->empty()) return std::nullopt;
  // Only blanks and commas separate; a tab or line feed stays inside a piece, and the trim
  // takes it off the piece's ends.
  std::array<double, 4> numbers{};
  std::size_t count = 0;
  for (std::string_view piece : SVGParser::text::splitAny(*text, " ,", 10)) {
    const auto number = parseNumber(SVGParser::text::trim(piece));
    if (!number) continue;
    if (count < numbers.size()) numbers[count] = *number;
    ++count;
  }
  if (count == 2) return CGRect{{0, 0}, {numbers[0], numbers[1]}};
  if (count == 4) return CGRect{{numbers[0], numbers[1]}, {numbers[2], numbers[3]}};
  report.print({"Unexpected CGRect value: '" + std::string(*text) + "'"});
  return std::nullopt;
}
