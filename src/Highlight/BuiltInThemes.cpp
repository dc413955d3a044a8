// The three built-in themes as tables of groups: each group gives one set of properties to a
// list of classes.
#include <initializer_list>

#include "Highlight/HighlightJSTheme.h"

namespace Highlight {

namespace {

using C = HighlightJSClass;

struct Group {
  std::initializer_list<C> classes;
  FontProperties properties;
};

FontProperties color(std::uint32_t rgb) {
  return {RGBColor::fromHex(rgb), {}, {}, {}};
}
FontProperties colorBold(std::uint32_t rgb) {
  return {RGBColor::fromHex(rgb), true, {}, {}};
}
FontProperties colorItalic(std::uint32_t rgb) {
  return {RGBColor::fromHex(rgb), {}, true, {}};
}
FontProperties colorUnderline(std::uint32_t rgb) {
  return {RGBColor::fromHex(rgb), {}, {}, true};
}
FontProperties bold() {
  return {{}, true, {}, {}};
}
FontProperties italic() {
  return {{}, {}, true, {}};
}

std::shared_ptr<const HighlightJSTheme> makeTheme(std::initializer_list<Group> groups) {
  HighlightJSTheme::ClassProperties table;
  for (const Group& group : groups) {
    for (C cls : group.classes) table[static_cast<std::size_t>(cls)] = group.properties;
  }
  return std::make_shared<const HighlightJSTheme>(HighlightJSTheme::defaultFont(), table);
}

}  // namespace

std::shared_ptr<const HighlightJSTheme> HighlightJSTheme::light() {
  static const auto theme = makeTheme({
      {{C::DEFAULT, C::subst}, color(0x444444)},
      {{C::comment}, color(0x888888)},
      {{C::keyword, C::attribute, C::selectorTag, C::metaKeyword, C::doctag, C::name}, bold()},
      {{C::type, C::string, C::number, C::selectorID, C::selectorClass, C::quote, C::templateTag,
        C::deletion},
       color(0x880000)},
      {{C::title, C::section}, colorBold(0x880000)},
      {{C::regexp, C::symbol, C::variable, C::templateVariable, C::link, C::selectorAttr,
        C::selectorPseudo},
       color(0xBC6060)},
      {{C::literal}, color(0x78A960)},
      {{C::meta}, color(0x1F7199)},
      {{C::metaString}, color(0x4D99BF)},
      {{C::emphasis}, italic()},
      {{C::strong}, bold()},
      {{C::builtIn, C::bullet, C::code, C::addition}, color(0x397300)},
  });
  return theme;
}

std::shared_ptr<const HighlightJSTheme> HighlightJSTheme::classic() {
  static const auto theme = makeTheme({
      {{C::section, C::meta}, color(0x643820)},
      {{C::comment, C::quote}, color(0x007400)},
      {{C::tag, C::attribute, C::keyword, C::selectorTag, C::literal, C::name}, color(0xAA0D91)},
      {{C::variable, C::templateVariable}, color(0x3F6E74)},
      {{C::code, C::string, C::metaString}, color(0xC41A16)},
      {{C::regexp, C::link}, color(0x0E0EFF)},
      {{C::title, C::symbol, C::bullet, C::number}, color(0x1C00CF)},
      {{C::type, C::builtIn, C::builtinName, C::params}, color(0x5C2699)},
      {{C::attr}, color(0x836C28)},
      {{C::subst}, color(0x000000)},
      {{C::formula}, colorItalic(0xEEEEEE)},
      {{C::addition}, color(0xBAEEBA)},
      {{C::deletion}, color(0xFFC8BD)},
      {{C::selectorID, C::selectorClass}, color(0x9B703F)},
      {{C::doctag, C::strong}, bold()},
      {{C::emphasis}, italic()},
  });
  return theme;
}

std::shared_ptr<const HighlightJSTheme> HighlightJSTheme::dark() {
  static const auto theme = makeTheme({
      {{C::DEFAULT}, color(0xDCDCDC)},
      {{C::keyword, C::literal, C::symbol, C::name}, color(0x569CD6)},
      {{C::link}, colorUnderline(0x569CD6)},
      {{C::builtIn, C::type}, color(0x4EC9B0)},
      {{C::number, C::class_}, color(0xB8D7A3)},
      {{C::string, C::metaString}, color(0xD69D85)},
      {{C::regexp, C::templateTag}, color(0x9A5334)},
      {{C::subst, C::function, C::title, C::params, C::formula}, color(0xDCDCDC)},
      {{C::comment, C::quote}, colorItalic(0x57A64A)},
      {{C::doctag}, color(0x608B4E)},
      {{C::meta, C::metaKeyword, C::tag}, color(0x9B9B9B)},
      {{C::variable, C::templateVariable}, color(0xBD63C5)},
      {{C::attr, C::attribute, C::builtinName}, color(0x9CDCFE)},
      {{C::section}, color(0xFFD700)},
      {{C::emphasis}, italic()},
      {{C::strong}, bold()},
      {{C::bullet, C::selectorTag, C::selectorID, C::selectorClass, C::selectorAttr,
        C::selectorPseudo},
       color(0xD7BA7D)},
  });
  return theme;
}

}  // namespace Highlight
