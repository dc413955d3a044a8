// Unique names for the types and properties of the generated source.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace SwiftUIModel {

struct IDPool {
  std::string prefix;
  // The names taken besides the numbered ones: every prefix-and-number name up to `counter`
  // has been tried and is taken, so those are not stored (a document of 200,000 shapes would
  // otherwise hold 200,000 names).
  std::unordered_set<std::string> usedIDs;
  std::int64_t counter = 0;  // the number last tried

  IDPool() = default;
  explicit IDPool(std::string prefix) : prefix(std::move(prefix)) {}
  bool operator==(const IDPool&) const = default;

  // The wanted name if it is still free, otherwise the prefix with the next free number.
  // Once the numbers pass 999 and a candidate is taken, a random UUID text is handed out
  // (and not recorded).
  std::string uniqueID(const std::optional<std::string>& wanted);
  bool isTaken(std::string_view name) const;
};

enum class NameCase : std::uint8_t { type, property };

// The name pipeline around a pool: a unique name for `id`, "-" made "_", a "z" in front of a
// name that does not begin with a letter, and the first character upper-cased for a type or
// lower-cased for a property. The empty text stays empty.
std::string makeTypeName(IDPool& pool, const std::optional<std::string>& id, NameCase nameCase);

// The steps of the pipeline after the pool, for one name.
std::string identifierFromName(std::string name, NameCase nameCase);

}  // namespace SwiftUIModel
