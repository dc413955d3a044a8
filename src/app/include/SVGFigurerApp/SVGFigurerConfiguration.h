// The fourteen settings a user controls, their JSON form and their mapping onto the exporter's
// larger settings record.
#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "SVGConverter/SVGSwiftUIExporter.h"
#include "SVGFigurerApp/Decoded.h"
#include "SVGParser/Report.h"

namespace SVGFigurerApp {

// The text value of each case is its JSON form; for IndentType it is the indent character.
enum class IndentType { tabs, spaces };
enum class InitType { autoInit, type };
enum class PositioningStyle { offset, padding };

std::string_view textValue(IndentType value);
std::string_view textValue(InitType value);
std::string_view textValue(PositioningStyle value);
std::optional<IndentType> indentTypeFromText(std::string_view text);
std::optional<InitType> initTypeFromText(std::string_view text);
std::optional<PositioningStyle> positioningStyleFromText(std::string_view text);

// All cases in declaration order, for pickers.
std::span<const IndentType> allIndentTypes();
std::span<const InitType> allInitTypes();
std::span<const PositioningStyle> allPositioningStyles();

// Defaults for keys that may be missing from the JSON. Nothing changes them, so they are
// constants rather than the mutable class variables a settings framework would offer.
struct True {
  using Value = bool;
  static constexpr bool defaultValue = true;
};
struct False {
  using Value = bool;
  static constexpr bool defaultValue = false;
};
struct DefaultInt2 {
  using Value = int;
  static constexpr int defaultValue = 2;
};

template <class P>
concept DefaultValueProvider = requires {
  typename P::Value;
  { P::defaultValue } -> std::convertible_to<typename P::Value>;
};

// A value that decodes to its provider's default when its key is absent, null or of the wrong
// JSON type, and encodes as the bare value.
template <DefaultValueProvider Provider>
struct DefaultDecodableValue {
  typename Provider::Value wrappedValue = Provider::defaultValue;
  bool operator==(const DefaultDecodableValue&) const = default;
};

struct SVGFigurerConfiguration {
  std::string rootViewName;  // empty: the exporter names the root view itself
  IndentType indentUsing = IndentType::spaces;
  int indent = 2;
  bool indentEmptyLines = false;
  bool prefixSVG = true;
  bool infoComments = true;
  bool previewProvider = true;
  bool imports = true;
  bool newlineAfterClosePath = true;
  InitType initType = InitType::type;
  PositioningStyle positioningType = PositioningStyle::padding;
  // A fresh record has 4; a JSON record without the key has 2 (DefaultInt2).
  int maximumFractionDigits = 4;
  bool useHexColor = false;
  // Off, the text is exactly what existing documents hold, defects included; on, it is
  // corrected so that it builds. Off when the key is missing, so older records decode as before.
  bool compilableSwift = false;

  bool operator==(const SVGFigurerConfiguration&) const = default;

  // The record of a first launch.
  static SVGFigurerConfiguration fresh() { return {}; }

  SVGSwiftUIExporter::Config exporterConfig() const;
};

// An indent beyond this many characters per level is cut to it: the steppers stop at 9, and a
// value read from a file must not be able to make every generated line gigabytes long.
inline constexpr int maximumIndentWidth = 64;

// All fourteen keys, always.
nlohmann::json toJSON(const SVGFigurerConfiguration& config);
// Compact JSON text, as the document file and the defaults store hold it.
std::string encodeJSON(const SVGFigurerConfiguration& config);

// Reads the keys in order. A missing or mistyped key without a default, or an enumeration text
// that names no case, fails the record. A mistyped key with a default prints
// "ERROR: <reason>" to `report` and takes the default.
Decoded<SVGFigurerConfiguration> decodeConfiguration(const nlohmann::json& json,
                                                     const SVGParser::Report& report = {});
// The same from JSON text.
Decoded<SVGFigurerConfiguration> decodeConfigurationText(std::string_view jsonText,
                                                         const SVGParser::Report& report = {});

// The fourteen key names in record order.
std::span<const std::string_view> configurationKeys();

// Sets one key from command-line text: booleans as "true"/"false", integers in decimal,
// `indentUsing` as "spaces"/"tabs" or the character itself, `initType` as "init"/"type"
// (or "autoInit"), `positioningType` as "offset"/"padding". Gives the reason on failure.
std::optional<std::string> setConfigurationValue(SVGFigurerConfiguration& config,
                                                 std::string_view key, std::string_view value);

}  // namespace SVGFigurerApp
