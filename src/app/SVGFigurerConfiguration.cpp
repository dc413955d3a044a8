#include "SVGFigurerApp/SVGFigurerConfiguration.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace SVGFigurerApp {

namespace {

constexpr std::array<IndentType, 2> indentTypes{IndentType::tabs, IndentType::spaces};
constexpr std::array<InitType, 2> initTypes{InitType::autoInit, InitType::type};
constexpr std::array<PositioningStyle, 2> positioningStyles{PositioningStyle::offset,
                                                            PositioningStyle::padding};

constexpr std::array<std::string_view, 14> keys{
    "rootViewName",    "indentUsing",           "indent",      "indentEmptyLines",      "prefixSVG",
    "infoComments",    "previewProvider",       "imports",     "newlineAfterClosePath", "initType",
    "positioningType", "maximumFractionDigits", "useHexColor", "compilableSwift"};

template <class E, std::size_t N>
std::optional<E> caseFromText(const std::array<E, N>& cases, std::string_view text) {
  for (E value : cases) {
    if (textValue(value) == text) return value;
  }
  return std::nullopt;
}

std::string typeName(const nlohmann::json& value) {
  return value.type_name();
}

// The JSON reading of one value type; gives the reason when the JSON holds something else.
struct ValueReader {
  static std::optional<std::string> read(const nlohmann::json& json, bool& out) {
    if (!json.is_boolean()) return "expected a boolean, found " + typeName(json);
    out = json.get<bool>();
    return std::nullopt;
  }
  static std::optional<std::string> read(const nlohmann::json& json, int& out) {
    constexpr auto low = std::numeric_limits<int>::min();
    constexpr auto high = std::numeric_limits<int>::max();
    if (json.is_number_integer() && !json.is_number_unsigned()) {
      const auto value = json.get<std::int64_t>();
      if (value >= low && value <= high) {
        out = static_cast<int>(value);
        return std::nullopt;
      }
      return "number " + json.dump() + " does not fit in an integer";
    }
    if (json.is_number_unsigned()) {
      const auto value = json.get<std::uint64_t>();
      if (value <= static_cast<std::uint64_t>(high)) {
        out = static_cast<int>(value);
        return std::nullopt;
      }
      return "number " + json.dump() + " does not fit in an integer";
    }
    if (json.is_number_float()) {
      // An integral number written with a fraction ("2.0") still reads as the integer.
      const double value = json.get<double>();
      if (std::isfinite(value) && std::trunc(value) == value && value >= low && value <= high) {
        out = static_cast<int>(value);
        return std::nullopt;
      }
      return "number " + json.dump() + " does not fit in an integer";
    }
    return "expected an integer, found " + typeName(json);
  }
  static std::optional<std::string> read(const nlohmann::json& json, std::string& out) {
    if (!json.is_string()) return "expected a string, found " + typeName(json);
    out = json.get<std::string>();
    return std::nullopt;
  }
  template <class E>
  requires std::is_enum_v<E>
  static std::optional<std::string> read(const nlohmann::json& json, E& out) {
    std::string text;
    if (auto error = read(json, text)) return error;
    std::optional<E> value;
    if constexpr (std::is_same_v<E, IndentType>) value = indentTypeFromText(text);
    if constexpr (std::is_same_v<E, InitType>) value = initTypeFromText(text);
    if constexpr (std::is_same_v<E, PositioningStyle>) value = positioningStyleFromText(text);
    if (!value) return "no case has the value " + nlohmann::json(text).dump();
    out = *value;
    return std::nullopt;
  }
};

// Reads a key that has no default: absent, null or mistyped fails the record.
template <class T>
std::optional<std::string> readRequired(const nlohmann::json& object, std::string_view key,
                                        T& out) {
  const auto found = object.find(key);
  if (found == object.end() || found->is_null()) {
    return "missing key \"" + std::string(key) + "\"";
  }
  if (auto error = ValueReader::read(*found, out)) {
    return "key \"" + std::string(key) + "\": " + *error;
  }
  return std::nullopt;
}

template <DefaultValueProvider Provider>
typename Provider::Value readWrapped(const nlohmann::json& object, std::string_view key,
                                     const SVGParser::Report& report) {
  DefaultDecodableValue<Provider> wrapped;
  const auto found = object.find(key);
  if (found == object.end() || found->is_null()) return wrapped.wrappedValue;
  typename Provider::Value value{};
  if (auto error = ValueReader::read(*found, value)) {
    const std::string message = "key \"" + std::string(key) + "\": " + *error;
    report.print({"ERROR:", message});
    return wrapped.wrappedValue;
  }
  wrapped.wrappedValue = value;
  return wrapped.wrappedValue;
}

std::optional<bool> parseBool(std::string_view text) {
  if (text == "true") return true;
  if (text == "false") return false;
  return std::nullopt;
}

std::optional<int> parseInt(std::string_view text) {
  int value = 0;
  const char* end = text.data() + text.size();
  auto [ptr, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc() || ptr != end || text.empty()) return std::nullopt;
  return value;
}

}  // namespace

std::string_view textValue(IndentType value) {
  return value == IndentType::tabs ? "\t" : " ";
}
std::string_view textValue(InitType value) {
  return value == InitType::autoInit ? "init" : "type";
}
std::string_view textValue(PositioningStyle value) {
  return value == PositioningStyle::offset ? "offset" : "padding";
}
std::optional<IndentType> indentTypeFromText(std::string_view text) {
  return caseFromText(indentTypes, text);
}
std::optional<InitType> initTypeFromText(std::string_view text) {
  return caseFromText(initTypes, text);
}
std::optional<PositioningStyle> positioningStyleFromText(std::string_view text) {
  return caseFromText(positioningStyles, text);
}

std::span<const IndentType> allIndentTypes() {
  return indentTypes;
}
std::span<const InitType> allInitTypes() {
  return initTypes;
}
std::span<const PositioningStyle> allPositioningStyles() {
  return positioningStyles;
}
std::span<const std::string_view> configurationKeys() {
  return keys;
}

SVGSwiftUIExporter::Config SVGFigurerConfiguration::exporterConfig() const {
  SVGSwiftUIExporter::Config config;
  config.rootViewName = rootViewName;
  const int width = indent < 0 ? 0 : (indent > maximumIndentWidth ? maximumIndentWidth : indent);
  config.indentString.clear();
  for (int i = 0; i < width; ++i) config.indentString += textValue(indentUsing);
  config.infoComments = infoComments;
  config.generatePreviewProvider = previewProvider;
  config.exportHexColorExtension = useHexColor;
  config.generateImport = imports;
  config.newlineAfterClosePath = newlineAfterClosePath;
  config.indentEmptyLines = indentEmptyLines;
  config.preferInitOverType = initType == InitType::autoInit;
  config.positionUsingPadding = positioningType == PositioningStyle::padding;
  config.maximumFractionDigits = maximumFractionDigits;
  config.compilableSwift = compilableSwift;
  return config;
}

nlohmann::json toJSON(const SVGFigurerConfiguration& config) {
  return nlohmann::json{
      {"rootViewName", config.rootViewName},
      {"indentUsing", textValue(config.indentUsing)},
      {"indent", config.indent},
      {"indentEmptyLines", config.indentEmptyLines},
      {"prefixSVG", config.prefixSVG},
      {"infoComments", config.infoComments},
      {"previewProvider", config.previewProvider},
      {"imports", config.imports},
      {"newlineAfterClosePath", config.newlineAfterClosePath},
      {"initType", textValue(config.initType)},
      {"positioningType", textValue(config.positioningType)},
      {"maximumFractionDigits", config.maximumFractionDigits},
      {"useHexColor", config.useHexColor},
      {"compilableSwift", config.compilableSwift},
  };
}

std::string encodeJSON(const SVGFigurerConfiguration& config) {
  // Invalid UTF-8 in the view name is replaced rather than thrown over: encoding never fails.
  return toJSON(config).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

Decoded<SVGFigurerConfiguration> decodeConfiguration(const nlohmann::json& json,
                                                     const SVGParser::Report& report) {
  using Result = Decoded<SVGFigurerConfiguration>;
  if (!json.is_object()) return Result::failure("expected an object, found " + typeName(json));
  SVGFigurerConfiguration c;
  if (auto e = readRequired(json, "rootViewName", c.rootViewName)) return Result::failure(*e);
  if (auto e = readRequired(json, "indentUsing", c.indentUsing)) return Result::failure(*e);
  if (auto e = readRequired(json, "indent", c.indent)) return Result::failure(*e);
  c.indentEmptyLines = readWrapped<False>(json, "indentEmptyLines", report);
  c.prefixSVG = readWrapped<True>(json, "prefixSVG", report);
  c.infoComments = readWrapped<True>(json, "infoComments", report);
  c.previewProvider = readWrapped<True>(json, "previewProvider", report);
  c.imports = readWrapped<True>(json, "imports", report);
  c.newlineAfterClosePath = readWrapped<True>(json, "newlineAfterClosePath", report);
  if (auto e = readRequired(json, "initType", c.initType)) return Result::failure(*e);
  if (auto e = readRequired(json, "positioningType", c.positioningType)) {
    return Result::failure(*e);
  }
  c.maximumFractionDigits = readWrapped<DefaultInt2>(json, "maximumFractionDigits", report);
  c.useHexColor = readWrapped<False>(json, "useHexColor", report);
  c.compilableSwift = readWrapped<False>(json, "compilableSwift", report);
  return Result::success(std::move(c));
}

Decoded<SVGFigurerConfiguration> decodeConfigurationText(std::string_view jsonText,
                                                         const SVGParser::Report& report) {
  const auto json = nlohmann::json::parse(jsonText, nullptr, false);
  if (json.is_discarded()) {
    return Decoded<SVGFigurerConfiguration>::failure("the data is not valid JSON");
  }
  return decodeConfiguration(json, report);
}

std::optional<std::string> setConfigurationValue(SVGFigurerConfiguration& config,
                                                 std::string_view key, std::string_view value) {
  const std::string quoted = "\"" + std::string(value) + "\"";
  auto setBool = [&](bool& field) -> std::optional<std::string> {
    const auto parsed = parseBool(value);
    if (!parsed) return "expected true or false, found " + quoted;
    field = *parsed;
    return std::nullopt;
  };
  auto setInt = [&](int& field) -> std::optional<std::string> {
    const auto parsed = parseInt(value);
    if (!parsed) return "expected an integer, found " + quoted;
    field = *parsed;
    return std::nullopt;
  };
  if (key == "rootViewName") {
    config.rootViewName = std::string(value);
    return std::nullopt;
  }
  if (key == "indentUsing") {
    if (value == "spaces" || value == " ") {
      config.indentUsing = IndentType::spaces;
    } else if (value == "tabs" || value == "\t") {
      config.indentUsing = IndentType::tabs;
    } else {
      return "expected spaces or tabs, found " + quoted;
    }
    return std::nullopt;
  }
  if (key == "initType") {
    if (value == "init" || value == "autoInit") {
      config.initType = InitType::autoInit;
    } else if (value == "type") {
      config.initType = InitType::type;
    } else {
      return "expected init or type, found " + quoted;
    }
    return std::nullopt;
  }
  if (key == "positioningType") {
    const auto parsed = positioningStyleFromText(value);
    if (!parsed) return "expected offset or padding, found " + quoted;
    config.positioningType = *parsed;
    return std::nullopt;
  }
  if (key == "indent") return setInt(config.indent);
  if (key == "maximumFractionDigits") return setInt(config.maximumFractionDigits);
  if (key == "indentEmptyLines") return setBool(config.indentEmptyLines);
  if (key == "prefixSVG") return setBool(config.prefixSVG);
  if (key == "infoComments") return setBool(config.infoComments);
  if (key == "previewProvider") return setBool(config.previewProvider);
  if (key == "imports") return setBool(config.imports);
  if (key == "newlineAfterClosePath") return setBool(config.newlineAfterClosePath);
  if (key == "useHexColor") return setBool(config.useHexColor);
  if (key == "compilableSwift") return setBool(config.compilableSwift);
  return "unknown key \"" + std::string(key) + "\"";
}

}  // namespace SVGFigurerApp
