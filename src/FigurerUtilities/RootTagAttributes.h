// The attributes of a lone root tag, read with expat.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace FigurerUtilities {

// Attributes in document order, names unique. Setting a new name appends it.
class AttributeList {
 public:
  bool empty() const { return items_.empty(); }
  bool contains(std::string_view name) const;
  std::optional<std::string> remove(std::string_view name);
  void set(std::string_view name, std::string value);
  const std::vector<std::pair<std::string, std::string>>& items() const { return items_; }

  void append(std::string name, std::string value) {
    items_.emplace_back(std::move(name), std::move(value));
  }

 private:
  std::vector<std::pair<std::string, std::string>> items_;
};

// Parses `document` and keeps the attributes of the last element that started. Empty when the
// document is not well-formed.
AttributeList parseElementAttributes(std::string_view document);

}  // namespace FigurerUtilities
