// An element's attributes as the XML parser delivered them: names as written (with any
// prefix), values with entities resolved. Lookups are by exact name.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace SVGParser {

class Attributes {
 public:
  using Item = std::pair<std::string_view, std::string_view>;

  Attributes() = default;
  // The views must outlive this object; tests pass string literals.
  Attributes(std::initializer_list<Item> items) : items_(items) {}
  explicit Attributes(std::vector<Item> items) : items_(std::move(items)) {}

  std::optional<std::string_view> operator[](std::string_view name) const {
    for (const auto& [key, value] : items_) {
      if (key == name) return value;
    }
    return std::nullopt;
  }
  const std::vector<Item>& items() const { return items_; }
  bool empty() const { return items_.empty(); }

  // A readable form for report lines: ["name": "value", ...].
  std::string description() const;

 private:
  std::vector<Item> items_;
};

}  // namespace SVGParser
