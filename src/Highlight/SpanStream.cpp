#include "Highlight/SpanStream.h"

#include <cstdlib>
#include <vector>

#include "HTMLEntities.h"

namespace Highlight {

namespace {

constexpr std::u16string_view kSpanStart = u"span class=\"";
constexpr std::u16string_view kSpanStartClose = u"\">";
constexpr std::u16string_view kSpanEnd = u"/span>";

// A cursor over the text that skips nothing and never moves past the end.
class Scanner {
 public:
  explicit Scanner(std::u16string_view text) : text_(text) {}
  bool atEnd() const { return position_ >= text_.size(); }
  char16_t peek() const { return text_[position_]; }
  void advance(std::size_t count) { position_ = std::min(text_.size(), position_ + count); }
  // The text up to (not including) the next `stop`, or to the end.
  std::u16string_view scanUpTo(std::u16string_view stop) {
    const std::size_t found = text_.find(stop, position_);
    const std::size_t end = found == std::u16string_view::npos ? text_.size() : found;
    const std::u16string_view taken = text_.substr(position_, end - position_);
    position_ = end;
    return taken;
  }

 private:
  std::u16string_view text_;
  std::size_t position_ = 0;
};

bool isAlnum(char16_t c) {
  return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

struct Match {
  std::size_t position;
  std::size_t length;
};

// All matches of "&#?[a-zA-Z0-9]+?;", left to right and not overlapping.
std::vector<Match> findEntities(std::u16string_view text) {
  std::vector<Match> matches;
  std::size_t i = 0;
  while ((i = text.find(u'&', i)) != std::u16string_view::npos) {
    std::size_t j = i + 1;
    if (j < text.size() && text[j] == u'#') ++j;
    const std::size_t digitsStart = j;
    while (j < text.size() && isAlnum(text[j])) ++j;
    if (j > digitsStart && j < text.size() && text[j] == u';') {
      matches.push_back({i, j + 1 - i});
      i = j + 1;
    } else {
      ++i;
    }
  }
  return matches;
}

// The numeric part read the way strtoul reads it: leading blanks and a sign allowed, digits up
// to the first that is not one, overflow saturating.
unsigned long readUnsigned(std::u16string_view digits, int base) {
  std::string ascii;
  ascii.reserve(digits.size());
  for (char16_t c : digits) ascii += c < 0x80 ? static_cast<char>(c) : '\x7F';
  return std::strtoul(ascii.c_str(), nullptr, base);
}

void appendScalar(std::u16string& out, char32_t c) {
  if (c >= 0x10000) {
    c -= 0x10000;
    out += static_cast<char16_t>(0xD800 + (c >> 10));
    out += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
  } else {
    out += static_cast<char16_t>(c);
  }
}

}  // namespace

EntityDecoding decodeHTMLEntity(std::u16string_view entity) {
  std::optional<unsigned long> value;
  if (entity.starts_with(u"&#x") || entity.starts_with(u"&#X")) {
    value = readUnsigned(entity.substr(3), 16);
  } else if (entity.starts_with(u"&#")) {
    value = readUnsigned(entity.substr(2), 10);
  }
  if (value) {
    if (*value > 0x10FFFF || (*value >= 0xD800 && *value <= 0xDFFF)) return InvalidScalar{*value};
    std::u16string out;
    appendScalar(out, static_cast<char32_t>(*value));
    return out;
  }
  std::string ascii;
  for (char16_t c : entity) {
    if (c >= 0x80) return EntityNotDecoded{};
    ascii += static_cast<char>(c);
  }
  const auto codePoint = namedEntityCodePoint(ascii);
  if (!codePoint) return EntityNotDecoded{};
  std::u16string out;
  appendScalar(out, *codePoint);
  return out;
}

std::variant<std::monostate, SpanStreamError> decodeEntities(StyledText& text) {
  const std::vector<Match> matches = findEntities(text.text());
  std::size_t offset = 0;
  for (const Match& match : matches) {
    // The offset assumes one unit per earlier replacement; it never exceeds the position.
    const std::size_t position = match.position - offset;
    if (position >= text.text().size()) break;
    const std::u16string_view found =
        std::u16string_view(text.text()).substr(position, match.length);
    const EntityDecoding decoded = decodeHTMLEntity(found);
    if (const auto* invalid = std::get_if<InvalidScalar>(&decoded)) {
      return SpanStreamError{"invalid character reference in highlight.js output:",
                             toUTF8(found) + " (" + std::to_string(invalid->value) + ")"};
    }
    if (const auto* replacement = std::get_if<std::u16string>(&decoded)) {
      text.replace(position, match.length, *replacement);
      offset += match.length - 1;
    }
  }
  return std::monostate{};
}

SpanStreamResult styledTextFromHTML(std::u16string_view html, const HighlightJSTheme& theme) {
  std::vector<ClassStackEntry> stack{HighlightJSClass::DEFAULT};
  StyledText out;
  Scanner scanner(html);
  while (!scanner.atEnd()) {
    const std::u16string_view text = scanner.scanUpTo(u"<");
    if (!text.empty()) {
      theme.appendStyledRun(out, text, stack);
      if (scanner.atEnd()) break;
    }
    scanner.advance(1);
    if (scanner.atEnd()) {
      // A "<" that ends the text: kept as text, there is nothing after it to lose.
      theme.appendStyledRun(out, u"<", stack);
      break;
    }
    const char16_t next = scanner.peek();
    if (next == u's') {
      scanner.advance(kSpanStart.size());
      const std::u16string_view name = scanner.scanUpTo(kSpanStartClose);
      scanner.advance(kSpanStartClose.size());
      stack.push_back(classForText(name));
    } else if (next == u'/') {
      scanner.advance(kSpanEnd.size());
      if (stack.empty()) {
        return SpanStreamError{"unbalanced span in highlight.js output:",
                               "a closing tag with no open span"};
      }
      stack.pop_back();
    } else {
      // A stray "<": kept, and the character after it is dropped with it.
      theme.appendStyledRun(out, u"<", stack);
      scanner.advance(1);
    }
  }
  if (auto decoded = decodeEntities(out); auto* error = std::get_if<SpanStreamError>(&decoded)) {
    return *error;
  }
  return out;
}

}  // namespace Highlight
