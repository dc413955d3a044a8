#include <gtest/gtest.h>

#include <cctype>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "CSSPrinters.h"
#include "SVGParser/CSS.h"

namespace {

using Color = CSS::Color;
using Value = CSS::Value;
using Lines = std::vector<std::string>;

TEST(ColorParse, ReadsTheAttributeSpelling) {
  struct Row {
    std::optional<std::string> text;
    std::optional<Color> expected;
    bool reported = false;
  };
  const std::vector<Row> rows = {
      {std::nullopt, std::nullopt},
      {"none", std::nullopt},
      {"  RED\n", Color::named("red")},
      // Unknown words are names too, and "none" is only caught before the trim.
      {"Foo", Color::named("foo")},
      {"\u00C0BC", Color::named("\u00E0bc")},
      {" none", Color::named("none")},
      {"rgb(", Color::named("rgb(")},
      {"#fff", Color::rgb(1, 1, 1)},
      {"#1a2", Color::rgb(0x11 / 255.0, 0xAA / 255.0, 0x22 / 255.0)},
      {"#FF000080", Color::rgba(1, 0, 0, 128 / 255.0)},
      {"#00ff0080", Color::rgb(1, 0, 128 / 255.0)},  // a red of 00 leaves no room for alpha
      {"##abc;", Color::rgb(0xAA / 255.0, 0xBB / 255.0, 0xCC / 255.0)},
      {"#12345", std::nullopt, true},
      {"#GGG", std::nullopt, true},
      {"#ff 00 00", std::nullopt, true},
      {"#fffé", std::nullopt, true},
      {"RGB( 0 ,128, 255 )", Color::rgb(0, 128 / 255.0, 1)},
      {"rgb(300, -5, +3, 9)", Color::rgb(300 / 255.0, -5 / 255.0, 3 / 255.0)},
      {"rgb(50%, 0, 0)", std::nullopt},
      {"rgba(255, 0, 0, 128)", Color::rgba(1, 0, 0, 128 / 255.0)},
      {"rgba(255, 0, 0, 0.5)", Color::rgb(1, 0, 0)},
      {"hsl(0, 0%, 0%)", std::nullopt},
      {"rgb(1, 2)", std::nullopt, true},
      {"rgb(1 2 3)", std::nullopt, true},
      {"RGBA(1, 2, 3)", std::nullopt, true}};
  for (const auto& row : rows) {
    Lines lines;
    const SVGParser::Report report([&lines](std::string_view line) { lines.emplace_back(line); });
    const auto text = row.text ? std::optional<std::string_view>(*row.text) : std::nullopt;
    const std::string label = row.text.value_or("<nothing>");
    EXPECT_EQ(Color::parse(text, report), row.expected) << label;
    std::string lower = label;
    for (char& c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    EXPECT_EQ(lines, row.reported ? Lines{"ERROR: failed to parse color: " + lower} : Lines{})
        << label;
  }
}

TEST(ColorFromValue, ReadsTheStylesheetSpelling) {
  const auto id = [](std::string text) { return Value{Value::Id{std::move(text)}}; };
  const auto call = [](std::string name, std::vector<std::string> arguments) {
    return Value{Value::Function{std::move(name), std::move(arguments)}};
  };
  const std::vector<std::pair<Value, std::optional<Color>>> rows = {
      {id("RED"), Color::named("red")},
      {id("#ff8000"), Color::rgb(1, 128 / 255.0, 0)},
      {id("ff8000;"), Color::rgb(1, 128 / 255.0, 0)},
      // Three and eight digits, and unknown names, are refused here.
      {id("#fff"), std::nullopt},
      {id("foo"), std::nullopt},
      {id("#ggg000"), std::nullopt},
      {call("rgb", {"255", "0", "0"}), Color::rgb(1, 0, 0)},
      {call("rgb", {"255", "0"}), std::nullopt},
      {call("rgba", {"255", "0", "0", "51"}), Color::rgba(1, 0, 0, 0.2)},
      {call("rgba", {"255", "0", "0", "0.5"}), Color::rgb(1, 0, 0)},
      {call("rgba", {"255", "0", "0"}), std::nullopt},
      {call("RGB", {"1", "0", "0"}), std::nullopt},
      {Value{Value::Number{123456}}, std::nullopt},
      {Value{Value::ExplicitNone{}}, std::nullopt}};
  for (const auto& [value, expected] : rows) {
    EXPECT_EQ(Color::fromValue(&value), expected) << value.description();
  }
  EXPECT_EQ(Color::fromValue(nullptr), std::nullopt);
}

TEST(ColorIntegers, PackAndUnpackChannels) {
  EXPECT_EQ(Color::fromInteger(0xFFFFFF), Color::rgb(1, 1, 1));
  EXPECT_EQ(Color::fromInteger(0x1000000), Color::rgba(1 / 255.0, 0, 0, 0));

  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
  struct Row {
    Color color;
    std::optional<std::uint32_t> rgb, rgba;
  };
  const std::vector<Row> rows = {
      {Color::named("yellowgreen"), 0x09ACD3, 0x09ACD3},
      {Color::named("slategray"), std::nullopt, std::nullopt},
      // Truncated, not rounded; a small negative becomes zero.
      {Color::rgb(0.999, 0.5, -0.003), 0xFE7F00, 0xFE7F00},
      {Color::rgba(1, 0, 0, 0.5), 0xFF0000, 0xFF00007F},
      // Unclamped channels spill over; shifted-out bits are lost, but the sum must fit.
      {Color::rgb(300 / 255.0, 0, 0), 0x12C0000, 0x12C0000},
      {Color::rgba(256 / 255.0, 0, 0, 0), 0x1000000, 0x0},
      {Color::rgb(0, 0, 4294967295.0 / 255.0), 0xFFFFFFFF, 0xFFFFFFFF},
      {Color::rgb(1, 0, 4294967295.0 / 255.0), std::nullopt, std::nullopt},
      {Color::rgb(-1 / 255.0, 0, 0), std::nullopt, std::nullopt},
      {Color::rgb(nan, 0, 0), std::nullopt, std::nullopt},
      {Color::rgba(0, 0, 0, nan), 0x0, std::nullopt}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.color.rgbValue(), row.rgb) << row.color.description();
    EXPECT_EQ(row.color.rgbaValue(), row.rgba) << row.color.description();
  }
}

TEST(NamedColors, TableKeepsItsOwnRows) {
  const std::vector<std::pair<std::string_view, std::optional<std::uint32_t>>> rows = {
      {"aliceblue", 0xF0F8FF},
      {"yellowgreen", 0x09ACD3},
      {"currentcolor", 0},
      {"slategrey", 0x708090},
      {"darkslategray", 0x2F4F4F},
      {"lightslategray", 0x778899},
      {"rebeccapurple", std::nullopt},
      {"slategray", std::nullopt},
      {"Red", std::nullopt},
      {"", std::nullopt}};
  for (const auto& [name, value] : rows) EXPECT_EQ(CSS::namedColorValue(name), value) << name;
  EXPECT_EQ(Color::rgba(1, 0, 0, 0.25).description(), ".rgba(1.0, 0.0, 0.0, 0.25)");
}

}  // namespace
