#include "RootTagAttributes.h"

#include <expat.h>

#include <algorithm>
#include <climits>
#include <memory>

namespace FigurerUtilities {

namespace {

struct ParserDeleter {
  void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};
using ParserHandle = std::unique_ptr<std::remove_pointer_t<XML_Parser>, ParserDeleter>;

void XMLCALL startElement(void* userData, const XML_Char* /*name*/, const XML_Char** attributes) {
  auto& list = *static_cast<AttributeList*>(userData);
  list = AttributeList();
  for (const XML_Char** attribute = attributes; attribute[0] && attribute[1]; attribute += 2) {
    list.append(attribute[0], attribute[1]);
  }
}

}  // namespace

bool AttributeList::contains(std::string_view name) const {
  return std::any_of(items_.begin(), items_.end(),
                     [name](const auto& i) { return i.first == name; });
}

std::optional<std::string> AttributeList::remove(std::string_view name) {
  auto it =
      std::find_if(items_.begin(), items_.end(), [name](const auto& i) { return i.first == name; });
  if (it == items_.end()) return std::nullopt;
  std::string value = std::move(it->second);
  items_.erase(it);
  return value;
}

void AttributeList::set(std::string_view name, std::string value) {
  auto it =
      std::find_if(items_.begin(), items_.end(), [name](const auto& i) { return i.first == name; });
  if (it != items_.end()) {
    it->second = std::move(value);
  } else {
    items_.emplace_back(std::string(name), std::move(value));
  }
}

AttributeList parseElementAttributes(std::string_view document) {
  if (document.size() > static_cast<std::size_t>(INT_MAX)) return {};
  // Namespace processing off: a namespace declaration is an attribute like any other.
  ParserHandle parser(XML_ParserCreate(nullptr));
  if (!parser) return {};
  AttributeList attributes;
  XML_SetUserData(parser.get(), &attributes);
  XML_SetStartElementHandler(parser.get(), startElement);
  const XML_Status status =
      XML_Parse(parser.get(), document.data(), static_cast<int>(document.size()), XML_TRUE);
  if (status != XML_STATUS_OK) return {};
  return attributes;
}

}  // namespace FigurerUtilities
