// The outcome of reading a value that may fail: the value, or the reason it could not be read.
#pragma once

#include <optional>
#include <string>
#include <utility>

namespace SVGFigurerApp {

template <class T>
struct Decoded {
  std::optional<T> value;
  std::string error;  // set exactly when there is no value

  static Decoded success(T v) { return Decoded{std::move(v), {}}; }
  static Decoded failure(std::string reason) { return Decoded{std::nullopt, std::move(reason)}; }
  explicit operator bool() const { return value.has_value(); }
  bool operator==(const Decoded&) const = default;
};

}  // namespace SVGFigurerApp
