// The table of named character references.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace Highlight {

// `entity` is the whole reference with ampersand and semicolon; case-sensitive.
std::optional<char32_t> namedEntityCodePoint(std::string_view entity);
std::size_t namedEntityCount();

}  // namespace Highlight
