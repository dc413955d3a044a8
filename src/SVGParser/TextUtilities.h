// Small text helpers shared by the grammars. All work on UTF-8 bytes.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace SVGParser::text {

// Removes whitespace and newlines from both ends: Unicode category Z, U+000A to U+000D and
// U+0085.
std::string_view trim(std::string_view text);
// True for an ASCII blank (space, tab is not included) or any other whitespace or newline.
bool isWhitespaceOrNewline(char32_t c);

// Cuts at each occurrence of `separator`, at most `maxCuts` cuts (the rest stays one piece);
// empty pieces are dropped.
std::vector<std::string_view> split(std::string_view text, char separator, std::size_t maxCuts);
// The same, cutting at any character of `separators`.
std::vector<std::string_view> splitAny(std::string_view text, std::string_view separators,
                                       std::size_t maxCuts);
// Cuts at every run of whitespace and newlines, dropping empty pieces.
std::vector<std::string_view> splitWhitespace(std::string_view text);

// Lower-cases every letter by its full Unicode mapping, one scalar at a time; bytes that are
// no UTF-8 are kept.
std::string lowercased(std::string_view text);
std::string uppercased(std::string_view text);

// A base-10 integer with an optional sign, all of the text; nothing on overflow.
std::optional<std::int64_t> parseInteger(std::string_view text);

// Number of characters (Unicode scalars) in UTF-8 text.
std::size_t characterCount(std::string_view text);

// Removes from both ends every ASCII character that is neither a letter nor a digit. Bytes
// outside ASCII count as alphanumeric and stop the stripping.
std::string_view trimNonAlphanumerics(std::string_view text);
// The value of a text made only of hexadecimal digits, at most 8 of them; nothing otherwise.
std::optional<std::uint32_t> parseHex32(std::string_view text);
// Appends the text in double quotes, with quotes, backslashes and control characters escaped.
void appendQuoted(std::string& out, std::string_view text);

bool startsWith(std::string_view text, std::string_view prefix);
bool endsWith(std::string_view text, std::string_view suffix);

}  // namespace SVGParser::text
