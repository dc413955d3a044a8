#include <gtest/gtest.h>

#include "../../src/SVGParser/TextUtilities.h"

namespace SVGParser::text {
namespace {

TEST(TrimTest, RemovesUnicodeWhitespaceAndNewlinesButNotOtherControls) {
  const std::pair<std::string_view, std::string_view> rows[] = {
      {"  a b  ", "a b"},
      {"\n\r\x0b\x0c"
       "a",
       "a"},
      {"\xc2\xa0"
       "a\xe2\x80\x83",
       "a"},  // no-break space, em space
      {"\xc2\x85"
       "a\xe3\x80\x80",
       "a"},  // next line, ideographic space
      {"\xe2\x80\xa8"
       "a\xe2\x80\xa9",
       "a"},               // line and paragraph separators
      {"\ta\t", "\ta\t"},  // a tab is a control, not category Z
      {"\xe2\x80\x8b"
       "a",
       "\xe2\x80\x8b"
       "a"},  // zero-width space is not category Z
      {"", ""},
      {"   ", ""},
      {"\xff a \xff", "\xff a \xff"},  // malformed bytes are kept
  };
  for (const auto& [input, expected] : rows) EXPECT_EQ(trim(input), expected) << input;
}

TEST(SplitTest, DropsEmptyPiecesAndLeavesTheRestAfterTheLastCut) {
  using Pieces = std::vector<std::string_view>;
  EXPECT_EQ(split("a  b", ' ', 100), (Pieces{"a", "b"}));
  EXPECT_EQ(split(" a b c ", ' ', 1), (Pieces{"a", "b c "}));
  EXPECT_EQ(split("a  b  c", ' ', 1), (Pieces{"a", " b  c"}));
  EXPECT_EQ(split("", ' ', 5), Pieces{});
  EXPECT_EQ(split(";;;", ';', 5), Pieces{});
  EXPECT_EQ(splitAny("0,0 10,,20", " ,", 10), (Pieces{"0", "0", "10", "20"}));
  EXPECT_EQ(splitWhitespace("1,2\n 3,4\xc2\xa0"
                            "5"),
            (Pieces{"1,2", "3,4", "5"}));
}

TEST(SplitTest, AListOfMoreThanAHundredNamesKeepsTheRemainderWhole) {
  std::string classes;
  for (int i = 0; i < 103; ++i) classes += "c" + std::to_string(i) + "  ";
  const auto pieces = split(classes, ' ', 100);
  ASSERT_EQ(pieces.size(), 101u);
  EXPECT_EQ(pieces[99], "c99");
  EXPECT_EQ(pieces[100], " c100  c101  c102  ");
}

TEST(LowercasedTest, MapsEveryLetterByItselfAndKeepsBrokenBytes) {
  const std::pair<std::string_view, std::string_view> rows[] = {
      {"RED Blue", "red blue"},
      {"\u00C0BC", "\u00E0bc"},                      // a letter like any other
      {"\u0130", "i\u0307"},                         // the full mapping, two scalars
      {"\u03A3\u0391\u03A3", "\u03C3\u03B1\u03C3"},  // no final sigma
      {"\u212A", "k"},                               // Kelvin sign
      {"\U00010400", "\U00010428"},                  // outside the BMP
      {"A\xffZ\xc3", "a\xffz\xc3"},
  };
  for (const auto& [input, expected] : rows) EXPECT_EQ(lowercased(input), expected) << input;
}

TEST(IntegerTest, AcceptsOnlyWholeBase10Numbers) {
  const std::pair<std::string_view, std::optional<std::int64_t>> rows[] = {
      {"12", 12},
      {"-12", -12},
      {"+7", 7},
      {"0", 0},
      {"9223372036854775807", INT64_MAX},
      {"-9223372036854775808", INT64_MIN},
      {"9223372036854775808", std::nullopt},
      {"", std::nullopt},
      {"+", std::nullopt},
      {" 1", std::nullopt},
      {"1.0", std::nullopt},
      {"0x10", std::nullopt},
      {"+-1", std::nullopt},
  };
  for (const auto& [input, expected] : rows) EXPECT_EQ(parseInteger(input), expected) << input;
}

TEST(CharacterCountTest, CountsScalarsNotBytes) {
  EXPECT_EQ(characterCount(""), 0u);
  EXPECT_EQ(characterCount("ab"), 2u);
  EXPECT_EQ(characterCount("\xc3\xa9"
                           "t\xc3\xa9"),
            3u);
  EXPECT_EQ(characterCount("\xf0\x9f\x98\x80"), 1u);
}

}  // namespace
}  // namespace SVGParser::text
