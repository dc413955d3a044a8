#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "FigurerUtilities/Transcript.h"
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

std::shared_ptr<const HighlightJSTheme> themeNamed(std::string_view name) {
  if (name == "light") return HighlightJSTheme::light();
  if (name == "classic") return HighlightJSTheme::classic();
  return HighlightJSTheme::dark();
}

std::string describe(const FontProperties& p) {
  std::string text = p.color ? " " + p.color->hex() : "";
  for (const auto& [name, value] : {std::pair{"bold", p.bold}, std::pair{"italic", p.italic},
                                    std::pair{"underline", p.underline}}) {
    if (value) text += std::string(*value ? " " : " not-") + name;
  }
  return text;
}

// "class TEXT": the class a class text selects. "table THEME": every class the theme styles,
// with its properties. "style THEME CLASS...": the style of a stack of classes, outermost first
// ("?" for a class the theme does not know).
TEST(BuiltInThemeTest, ClassTextsTablesAndMergedStyles) {
  Transcript::expect("Highlight/data/themes.txt", [](const std::string& input) {
    std::istringstream words(input);
    std::string command, theme;
    words >> command >> theme;
    std::string answer;
    if (command == "class") {
      const auto cls = classForText(theme);
      return "> " + (cls ? std::string(classText(*cls)) : "unknown") + "\n";
    }
    if (command == "table") {
      for (std::size_t i = 0; i < kHighlightJSClassCount; ++i) {
        const auto cls = static_cast<C>(i);
        if (const auto properties = themeNamed(theme)->properties(cls)) {
          answer += "> " + std::string(classText(cls)) + ":" + describe(*properties) + "\n";
        }
      }
      return answer;
    }
    std::vector<ClassStackEntry> stack;
    for (std::string word; words >> word;) {
      stack.push_back(word == "?" ? std::nullopt : classForText(word));
    }
    std::ostringstream style;
    PrintTo(themeNamed(theme)->style(stack), &style);
    return "> " + style.str() + "\n";
  });
}

TEST(ThemeEqualityTest, AnotherFontMakesAnotherThemeWithTheSameTable) {
  const auto light = HighlightJSTheme::light();
  EXPECT_EQ(HighlightJSTheme::derivedWithFont(light, light->baseFont()), light);
  EXPECT_EQ(HighlightJSTheme::light(), light);  // made once
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
  EXPECT_FALSE(*light == *HighlightJSTheme::dark());
  EXPECT_FALSE(*light == *HighlightJSTheme::classic());
  EXPECT_EQ(light->description(), "<HSTheme: font=<fixed-pitch> classes=35>");
  EXPECT_EQ(derived->description(), "<HSTheme: font=DejaVu Sans Mono 14.000000pt classes=35>");
}

}  // namespace
}  // namespace Highlight
