#include <gtest/gtest.h>

#include <set>

#include "Highlight/HighlightJSTheme.h"
#include "TestSupport.h"

namespace Highlight {
namespace {

using C = HighlightJSClass;

TEST(HighlightJSClassTest, EveryClassTextSelectsItsOwnClass) {
  std::set<std::string_view> texts;
  for (std::size_t i = 0; i < kHighlightJSClassCount; ++i) {
    const auto cls = static_cast<C>(i);
    texts.insert(classText(cls));
    EXPECT_EQ(classForText(classText(cls)), cls) << classText(cls);
  }
  EXPECT_EQ(texts.size(), kHighlightJSClassCount);
}

TEST(HighlightJSClassTest, SpellingsThatAreEasyToGetWrong) {
  EXPECT_EQ(classForText("hljs"), C::DEFAULT);
  EXPECT_EQ(classForText("hljs-built_in"), C::builtIn);
  EXPECT_EQ(classForText("hljs-builtin-name"), C::builtinName);
  EXPECT_EQ(classForText("hljs-selector-id"), C::selectorID);
  EXPECT_EQ(classForText("hljs-meta-string"), C::metaString);
  EXPECT_EQ(classForText("bash"), C::bash);
  EXPECT_EQ(classForText("xml"), C::xml);
  EXPECT_EQ(classForText("javascript"), C::javascript);
  EXPECT_EQ(classForText("hljs-built-in"), std::nullopt);
  EXPECT_EQ(classForText("HLJS-KEYWORD"), std::nullopt);
  EXPECT_EQ(classForText(""), std::nullopt);
}

struct ThemeRow {
  const char* theme;
  C cls;
  std::optional<FontProperties> properties;
};

void PrintTo(const ThemeRow& row, std::ostream* out) {
  *out << row.theme << "/" << classText(row.cls);
}

std::shared_ptr<const HighlightJSTheme> themeNamed(std::string_view name) {
  if (name == "light") return HighlightJSTheme::light();
  if (name == "classic") return HighlightJSTheme::classic();
  return HighlightJSTheme::dark();
}

FontProperties color(std::uint32_t rgb) {
  return {RGBColor::fromHex(rgb), {}, {}, {}};
}

class BuiltInThemeTest : public testing::TestWithParam<ThemeRow> {};

TEST_P(BuiltInThemeTest, GivesTheTableEntry) {
  EXPECT_EQ(themeNamed(GetParam().theme)->properties(GetParam().cls), GetParam().properties);
}

INSTANTIATE_TEST_SUITE_P(
    Tables, BuiltInThemeTest,
    testing::Values(
        ThemeRow{"light", C::DEFAULT, color(0x444444)},
        ThemeRow{"light", C::keyword, FontProperties{{}, true, {}, {}}},
        ThemeRow{"light", C::title, FontProperties{RGBColor::fromHex(0x880000), true, {}, {}}},
        ThemeRow{"light", C::emphasis, FontProperties{{}, {}, true, {}}},
        ThemeRow{"light", C::tag, std::nullopt},
        ThemeRow{"classic", C::formula, FontProperties{RGBColor::fromHex(0xEEEEEE), {}, true, {}}},
        ThemeRow{"classic", C::attr, color(0x836C28)},
        ThemeRow{"classic", C::DEFAULT, std::nullopt},
        ThemeRow{"dark", C::link, FontProperties{RGBColor::fromHex(0x569CD6), {}, {}, true}},
        ThemeRow{"dark", C::class_, color(0xB8D7A3)},
        ThemeRow{"dark", C::comment, FontProperties{RGBColor::fromHex(0x57A64A), {}, true, {}}},
        ThemeRow{"dark", C::xml, std::nullopt}));

TEST(BuiltInThemeTest, EachGroupListsItsClassesOnce) {
  auto count = [](const HighlightJSTheme& theme) {
    return std::count_if(theme.classToProperties().begin(), theme.classToProperties().end(),
                         [](const auto& p) { return p.has_value(); });
  };
  EXPECT_EQ(count(*HighlightJSTheme::light()), 35);
  EXPECT_EQ(count(*HighlightJSTheme::classic()), 35);
  EXPECT_EQ(count(*HighlightJSTheme::dark()), 39);
}

struct MergeRow {
  const char* name;
  std::vector<ClassStackEntry> stack;  // outermost first
  TextStyle expected;
};

void PrintTo(const MergeRow& row, std::ostream* out) {
  *out << row.name;
}

TextStyle lightStyle(std::optional<std::uint32_t> rgb, bool bold = false, bool italic = false) {
  TextStyle s;
  if (rgb) s.foreground = RGBColor::fromHex(*rgb);
  s.font = ThemeFont{"", std::nullopt, bold, italic};
  return s;
}

class MergeTest : public testing::TestWithParam<MergeRow> {};

TEST_P(MergeTest, InnerClassesWinPerProperty) {
  EXPECT_EQ(HighlightJSTheme::light()->style(GetParam().stack), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Light, MergeTest,
    testing::Values(
        MergeRow{"keywordInsideDefaultTakesTheOuterColour",
                 {C::DEFAULT, C::keyword},
                 lightStyle(0x444444, true)},
        MergeRow{"unknownClassAloneHasNoAttributes", {std::nullopt}, TextStyle{}},
        MergeRow{"emptyStackHasNoAttributes", {}, TextStyle{}},
        MergeRow{"unstyledClassAloneHasNoAttributes", {C::tag}, TextStyle{}},
        MergeRow{"unknownEntriesAreSkipped",
                 {C::DEFAULT, std::nullopt, C::comment, std::nullopt},
                 lightStyle(0x888888)},
        MergeRow{"innermostColourWins", {C::DEFAULT, C::string, C::meta}, lightStyle(0x1F7199)},
        MergeRow{"boldAndItalicFromDifferentLevelsShowBold",
                 {C::DEFAULT, C::emphasis, C::strong},
                 lightStyle(0x444444, true)},
        MergeRow{"italicAlone", {C::emphasis}, lightStyle(std::nullopt, false, true)},
        MergeRow{"boldOutsideItalicStillBold",
                 {C::strong, C::emphasis},
                 lightStyle(std::nullopt, true)}));

TEST(MergeTest, UnderlineUsesTheMergedColour) {
  const TextStyle style = HighlightJSTheme::dark()->style({{C::DEFAULT, C::link}});
  EXPECT_TRUE(style.underline);
  EXPECT_EQ(style.underlineColor, RGBColor::fromHex(0x569CD6));
  EXPECT_EQ(style.foreground, RGBColor::fromHex(0x569CD6));
}

TEST(ThemeEqualityTest, DerivingWithTheSameFontKeepsTheObject) {
  const auto light = HighlightJSTheme::light();
  EXPECT_EQ(HighlightJSTheme::derivedWithFont(light, light->baseFont()), light);
  EXPECT_EQ(HighlightJSTheme::light(), light);  // made once
}

TEST(ThemeEqualityTest, AnotherFontMakesAnotherThemeWithTheSameTable) {
  const auto light = HighlightJSTheme::light();
  const ThemeFont font{"DejaVu Sans Mono", 14.0};
  const auto derived = HighlightJSTheme::derivedWithFont(light, font);
  EXPECT_NE(derived, light);
  EXPECT_FALSE(*derived == *light);
  EXPECT_EQ(derived->classToProperties(), light->classToProperties());
  EXPECT_EQ(derived->baseFont(), font);
  EXPECT_TRUE(derived->boldFont().bold);
  EXPECT_EQ(derived->boldFont().family, "DejaVu Sans Mono");
  EXPECT_TRUE(derived->italicFont().italic);
  EXPECT_FALSE(derived->italicFont().bold);
  // Equal by value when font and table agree, though not the same object.
  EXPECT_TRUE(*HighlightJSTheme::derivedWithFont(light, font) == *derived);
  EXPECT_TRUE(sameTheme(HighlightJSTheme::derivedWithFont(derived, light->baseFont()), light));
}

TEST(ThemeEqualityTest, BuiltInThemesDiffer) {
  EXPECT_FALSE(*HighlightJSTheme::light() == *HighlightJSTheme::dark());
  EXPECT_FALSE(*HighlightJSTheme::light() == *HighlightJSTheme::classic());
  EXPECT_TRUE(HighlightJSTheme::dark()->description().starts_with("<HSTheme: "));
}

}  // namespace
}  // namespace Highlight
