#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <string>
#include <vector>

#include "CSSPrinters.h"
#include "SVGParser/CSS.h"

namespace {

using Value = CSS::Value;
using Declarations = CSS::Declarations;
using Selector = CSS::Selector;
using Lines = std::vector<std::string>;

Value id(std::string text) {
  return Value{Value::Id{std::move(text)}};
}
const Value autoValue{Value::Auto{}};
Selector cls(std::string name) {
  return {Selector::Kind::cssClass, std::move(name)};
}

TEST(StripComments, RemovesCommentsWithoutNesting) {
  const std::vector<std::pair<std::string, std::string>> rows = {
      {"a/*x*/b/*y*/c", "abc"}, {"a/* /* */b*/", "ab*/"}, {"a/*/b", "a"}, {"a/*x", "a"},
      {"\"/*\" x */y", "\"y"},  {"a//*x*/*b*/c", "ac"},
  };
  for (const auto& [input, expected] : rows)
    EXPECT_EQ(CSS::stripComments(input), expected) << input;
}

// Removing the first comment and searching again from the front can join a "/" and a "*"
// across the removed text; the single pass must give the same text for every arrangement.
TEST(StripComments, AgreesWithRepeatedFirstRemoval) {
  const auto reference = [](std::string text) {
    for (std::size_t open; (open = text.find("/*")) != std::string::npos;) {
      const std::size_t close = text.find("*/", open + 2);
      if (close == std::string::npos) return text.substr(0, open);
      text.erase(open, close + 2 - open);
    }
    return text;
  };
  std::mt19937 random(12345);
  for (int round = 0; round < 20000; ++round) {
    std::string text(random() % 12, ' ');
    for (char& c : text) c = "/*a"[random() % 3];
    ASSERT_EQ(CSS::stripComments(text), reference(text)) << text;
  }
}

TEST(ParseDeclarations, BuildsThePropertyMap) {
  const std::vector<std::pair<std::optional<std::string>, Declarations>> rows = {
      {std::nullopt, {}},
      {"/* x */", {}},
      {" fill : red ; ; stroke-width: 2px",
       {{"fill", id("red")}, {"stroke-width", Value{Value::Pixel{2}}}, {"", autoValue}}},
      {"fill", {{"fill", autoValue}}},
      {":red", {{"red", autoValue}}},
      {"::fill:a:b", {{"fill", id("a:b")}}},
      {"fill: red !important; fill: blue; ", {{"fill", id("blue")}, {"", autoValue}}},
      {"fill: url(data:a;b)", {{"fill", Value{Value::Url{"data:"}}}, {"b)", autoValue}}},
      {"opacity: /* half */ 0.5", {{"opacity", Value{Value::Number{0.5}}}}}};
  for (const auto& [text, expected] : rows) {
    const auto view = text ? std::optional<std::string_view>(*text) : std::nullopt;
    EXPECT_EQ(CSS::parseDeclarations(view), expected) << text.value_or("<nothing>");
  }
  std::string many;
  for (int i = 0; i < 1002; ++i) many += "p" + std::to_string(i) + ":1;";
  const auto declarations = CSS::parseDeclarations(many);
  EXPECT_EQ(declarations.size(), 1001u);
  EXPECT_EQ(declarations.at("p1000"), id("1;p1001:1;"));  // the rest after the last cut
}

TEST(SelectorParse, LooksOnlyAtTheFirstCharacter) {
  const std::vector<std::pair<std::string, std::optional<Selector>>> rows = {
      {"", std::nullopt},
      {"#a b", Selector{Selector::Kind::id, "a b"}},
      {".a.b", cls("a.b")},
      {".a, .b", cls("a, .b")},
      {"rect", Selector{Selector::Kind::unsupported, "rect"}}};
  for (const auto& [text, expected] : rows) EXPECT_EQ(Selector::parse(text), expected) << text;
}

TEST(ParseRules, CutsBlocksAtTheFirstClosingBrace) {
  using Rules = std::vector<CSS::Rule>;
  const auto unsupported = [](std::string text) {
    return Selector{Selector::Kind::unsupported, std::move(text)};
  };
  const std::vector<std::pair<std::string, Rules>> rows = {
      {"/*x*/.a/*y*/{ fill: red }\n#b{stroke:blue}",
       {{cls("a"), {{"fill", id("red")}}},
        {Selector{Selector::Kind::id, "b"}, {{"stroke", id("blue")}}}}},
      {"{fill: red}", {{std::nullopt, {{"fill", id("red")}}}}},
      {".a{}.b{ }", {{cls("b"), {}}}},  // "{}" is skipped, "{ }" is long enough
      // Unclosed at the end: read to the end, unless only "{" and one character are left.
      {".a { fill: red", {{cls("a"), {{"fill", id("red")}}}}},
      {".a {xy", {{cls("a"), {{"xy", autoValue}}}}},
      {".a {", {}},
      {".a{\r\n", {}},
      {".a{fill:red} trailing", {{cls("a"), {{"fill", id("red")}}}}},
      {"@media print { .a { fill: red } }",
       {{unsupported("@media print"), {{".a { fill", id("red")}}}}}};
  for (const auto& [text, expected] : rows) EXPECT_EQ(CSS::parseRules(text), expected) << text;
}

TEST(Stylesheet, MergesRulesAndReportsDroppedOnes) {
  Lines lines;
  const CSS css(
      ".a { fill: red; stroke: blue }  #i { fill: green }  .a { fill: yellow; opacity: 1 }"
      "{ fill: black }  rect { fill: gray }  .b{}  .c{ }",
      SVGParser::Report([&lines](std::string_view line) { lines.emplace_back(line); }));
  EXPECT_EQ(
      css.classToStyles.at("a").properties,
      (Declarations{
          {"fill", id("yellow")}, {"stroke", id("blue")}, {"opacity", Value{Value::Number{1}}}}));
  EXPECT_EQ(css.idToStyles.at("i").properties, (Declarations{{"fill", id("green")}}));
  EXPECT_EQ(css.classToStyles.count("b"), 0u);
  EXPECT_TRUE(css.classToStyles.at("c").isEmpty());
  EXPECT_EQ(lines, (Lines{"Unsupported global CSS: [\"fill\": .id(\"black\")]",
                          "Unsupported CSS selector: rect style: [\"fill\": .id(\"gray\")]"}));
}

TEST(Stylesheet, ResolverFoldsClassesThenIdThenStyle) {
  const CSS css(
      ".a { fill: red; stroke: red } .b { fill: blue } #i { fill: green; opacity: 1 }"
      ".c { fill: white !important }",
      SVGParser::Report());
  const Value one{Value::Number{1}};
  const std::vector<std::pair<SVGParser::Attributes, Declarations>> rows = {
      {{}, {}},
      {{{"class", "a  b"}}, {{"fill", id("blue")}, {"stroke", id("red")}}},
      {{{"class", "b a"}}, {{"fill", id("red")}, {"stroke", id("red")}}},
      {{{"class", "c b"}}, {{"fill", id("blue")}}},
      {{{"id", "i"}, {"class", "b"}}, {{"fill", id("green")}, {"opacity", one}}},
      {{{"class", "b"}, {"id", "i"}, {"style", "fill: black"}},
       {{"fill", id("black")}, {"opacity", one}}},
      {{{"class", "a\tb"}}, {}}};
  for (const auto& [attributes, expected] : rows) {
    EXPECT_EQ(css.resolver(attributes).properties, expected) << attributes.description();
  }
}

}  // namespace
