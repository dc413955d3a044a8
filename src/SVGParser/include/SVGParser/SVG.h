// The SVG object tree: what the text said, nearly as it said it. Lengths keep their units,
// paints keep references by name, nothing is inherited or resolved. Every record is a plain
// value with member-wise equality. The records live in `SVGModel` and are named through the
// root record, as `SVG::Group`, `SVG::Path` and so on.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "SVGParser/Attributes.h"
#include "SVGParser/CSS.h"
#include "SVGParser/Geometry.h"
#include "SVGParser/Report.h"

struct SVG;

namespace SVGModel {

using SVGParser::Attributes;
using SVGParser::Report;

struct CoreAttributes {
  std::optional<std::string> id;
  bool operator==(const CoreAttributes&) const = default;
  static CoreAttributes read(const Attributes& attributes);
};

struct StylingAttributes {
  std::vector<std::string> classes;
  std::optional<std::string> style;
  bool operator==(const StylingAttributes&) const = default;
  static StylingAttributes read(const Attributes& attributes);
};

template <class T>
struct Inheritable {
  enum class Kind : std::uint8_t { some, none, inherit };
  Kind kind = Kind::none;
  T value{};  // meaningful for `some` only
  bool operator==(const Inheritable&) const = default;
  static Inheritable some(T v) { return {Kind::some, std::move(v)}; }
  static Inheritable none() { return {}; }
  static Inheritable inherit() { return {Kind::inherit, T{}}; }
};
// The unconnected reader of "evenodd", "nonzero" and "inherit".
Inheritable<CGPathFillRule> parseFillRule(std::optional<std::string_view> text);

struct Paint {
  enum class Kind : std::uint8_t { color, definition, none };
  Kind kind = Kind::none;
  CSS::Color color;        // for `color`
  std::string definition;  // for `definition`: an id without its "#"
  bool operator==(const Paint&) const = default;

  static Paint makeColor(CSS::Color c) { return {Kind::color, std::move(c), {}}; }
  static Paint makeDefinition(std::string id) { return {Kind::definition, {}, std::move(id)}; }
  static Paint none() { return {}; }

  // Attribute form; reports "ERROR: Failed to parse paint: '...'".
  static std::optional<Paint> parse(std::optional<std::string_view> text, const Report& report);
  // Stylesheet form; "none" is not understood here.
  static std::optional<Paint> fromValue(const CSS::Value* value);
  std::string description() const;
};

struct Transform {
  struct Matrix {
    std::vector<double> values;
    bool operator==(const Matrix&) const = default;
  };
  struct Rotate {
    double degrees = 0, x = 0, y = 0;
    bool operator==(const Rotate&) const = default;
  };
  struct Translate {
    double dx = 0, dy = 0;
    bool operator==(const Translate&) const = default;
  };
  struct Scale {
    double x = 0, y = 0;
    bool operator==(const Scale&) const = default;
  };
  struct SkewX {
    double degrees = 0;
    bool operator==(const SkewX&) const = default;
  };
  struct SkewY {
    double degrees = 0;
    bool operator==(const SkewY&) const = default;
  };
  std::variant<Matrix, Rotate, Translate, Scale, SkewX, SkewY> value;
  bool operator==(const Transform&) const = default;

  // One function text such as "rotate(45)"; reports unsupported values and functions.
  static std::optional<Transform> parse(std::string_view text, const Report& report);
  static std::vector<Transform> parseList(std::optional<std::string_view> text, const Report& report);
  std::string description() const;
};

std::optional<CGLineCap> parseLineCap(std::optional<std::string_view> text);
std::optional<CGLineCap> lineCapFromValue(const CSS::Value* value);
std::optional<CGLineJoin> parseLineJoin(std::optional<std::string_view> text);
std::optional<CGLineJoin> lineJoinFromValue(const CSS::Value* value);

struct PresentationAttributes {
  std::optional<double> opacity;        // 0 to 100
  std::optional<double> fillOpacity;    // 0 to 100
  std::optional<double> strokeOpacity;  // 0 to 100
  std::optional<CSS::UnitLength> strokeWidth;
  std::optional<Paint> fill;
  std::optional<CSS::UnitLength> strokeMiterLimit = CSS::UnitLength::point(4);
  std::optional<Paint> stroke;
  Inheritable<CGPathFillRule> fillRule;
  Inheritable<CGPathFillRule> clipRule;
  std::optional<CGLineCap> strokeLineCap = CGLineCap::butt;
  std::optional<CGLineJoin> strokeLineJoin = CGLineJoin::miter;
  Inheritable<std::string> filter;
  std::vector<Transform> transform;
  bool operator==(const PresentationAttributes&) const = default;

  static PresentationAttributes read(const Attributes& attributes, const CSS::Style& resolver,
                                     const Report& report);
};

struct Command {
  enum class Kind : std::uint8_t { M, m, L, l, H, h, V, v, C, c, S, s, Q, q, T, t, A, a, Z };
  Kind kind = Kind::Z;
  // The numbers in payload order: x,y for M; x1,y1,x2,y2,x,y for C; for arcs rx, ry, angle,
  // large (1 or 0), sweep (1 or 0), x, y. Slots a command does not use are 0.
  std::array<double, 7> values{};
  bool operator==(const Command&) const = default;

  bool large() const { return values[3] != 0.0; }
  bool sweep() const { return values[4] != 0.0; }
  // Count of numeric arguments a complete command takes.
  static int argumentCount(Kind kind);
  static char letter(Kind kind);
  // Builds a command from the first argumentCount(kind) numbers; arc flags become 1 or 0.
  static Command make(Kind kind, const double* arguments);

  struct ParserError {
    enum class Kind : std::uint8_t {
      couldNotParseNumber, unexpectedArgumentCount, invalidCommandChar, missingArgument,
      unexpectedUTF8Sequence
    };
    Kind kind = Kind::couldNotParseNumber;
    std::string text;          // couldNotParseNumber
    std::int64_t count = 0;    // unexpectedArgumentCount
    std::uint8_t byte = 0;     // invalidCommandChar, missingArgument
    bool operator==(const ParserError&) const = default;
    // The case name and its payload, e.g. "invalidCommandChar(44)".
    std::string description() const;
  };
  struct ParseResult {
    std::vector<Command> commands;
    std::optional<ParserError> error;  // when set, commands is unspecified
  };
  // The path data grammar of a `d` attribute.
  static ParseResult parse(std::string_view text);
  std::string description() const;
};

struct UnitPoint {
  CSS::UnitLength x, y;
  bool operator==(const UnitPoint&) const = default;
  std::optional<CGPoint> points() const;
  // Each coordinate a styled length; both absent gives nothing, one absent becomes .point(0).
  static std::optional<UnitPoint> readPair(const Attributes& attributes, const CSS::Style& resolver,
                                           std::string_view xName, std::string_view yName,
                                           const Report& report);
  // The "points" attribute of polygon and polyline.
  static std::vector<UnitPoint> parseList(std::optional<std::string_view> text, const Report& report);
};
struct UnitSize {
  CSS::UnitLength width, height;
  bool operator==(const UnitSize&) const = default;
  std::optional<CGSize> points() const;
};
struct UnitRect {
  UnitPoint origin;
  UnitSize size;
  bool operator==(const UnitRect&) const = default;
  std::optional<CGRect> points() const;
};

struct GroupItem;
struct NamedDefinition;

// The fields shared by every drawable element and group.
struct ElementAttributes {
  CoreAttributes core;
  StylingAttributes style;
  PresentationAttributes presentation;
  bool operator==(const ElementAttributes&) const = default;
  static ElementAttributes read(const Attributes& attributes, const CSS::Style& resolver,
                                const Report& report);
};

struct Group : ElementAttributes {
  std::vector<GroupItem> children;
  bool operator==(const Group&) const;
  static Group read(const Attributes& attributes, const CSS::Style& resolver, const Report& report);
};

struct Path : ElementAttributes {
  std::vector<Command> commands;
  std::optional<CSS::UnitLength> pathLength;
  bool operator==(const Path&) const = default;
  // Nothing, with `error` set, when the path data does not parse.
  static std::optional<Path> read(const Attributes& attributes, const CSS::Style& resolver,
                                  const Report& report, Command::ParserError* error = nullptr);
};

struct Circle : ElementAttributes {
  CSS::UnitLength cx, cy, r;
  std::optional<CSS::UnitLength> pathLength;
  bool operator==(const Circle&) const = default;
  static Circle read(const Attributes& attributes, const CSS::Style& resolver, const Report& report);
};

struct Ellipse : ElementAttributes {
  CSS::UnitLength cx, cy, rx, ry;
  std::optional<CSS::UnitLength> pathLength;
  bool operator==(const Ellipse&) const = default;
  static Ellipse read(const Attributes& attributes, const CSS::Style& resolver, const Report& report);
};

struct Rect : ElementAttributes {
  std::optional<CSS::UnitLength> x, y, width, height, pathLength, rx, ry;
  bool operator==(const Rect&) const = default;
  static Rect read(const Attributes& attributes, const CSS::Style& resolver, const Report& report);
};

struct Line : ElementAttributes {
  std::optional<UnitPoint> startPoint, endPoint;
  std::optional<CSS::UnitLength> pathLength;
  bool operator==(const Line&) const = default;
  static Line read(const Attributes& attributes, const CSS::Style& resolver, const Report& report);
};

struct Polygon : ElementAttributes {
  std::vector<UnitPoint> points;
  std::optional<CSS::UnitLength> pathLength;
  bool operator==(const Polygon&) const = default;
  static Polygon read(const Attributes& attributes, const CSS::Style& resolver, const Report& report);
};

struct Polyline : ElementAttributes {
  std::vector<UnitPoint> points;
  std::optional<CSS::UnitLength> pathLength;
  bool operator==(const Polyline&) const = default;
  static Polyline read(const Attributes& attributes, const CSS::Style& resolver, const Report& report);
};

struct Image : ElementAttributes {
  std::optional<CSS::UnitLength> x, y, width, height;
  std::vector<Transform> transform;
  bool operator==(const Image&) const = default;
  static Image read(const Attributes& attributes, const CSS::Style& resolver, const Report& report);
};

struct Text : ElementAttributes {
  CSS::UnitLength x = CSS::UnitLength::number(0);
  CSS::UnitLength y = CSS::UnitLength::number(0);
  std::optional<CSS::UnitLength> dx, dy, textLength;
  std::optional<CSS::Font> font;
  std::string text;
  bool operator==(const Text&) const = default;
  static Text read(const Attributes& attributes, const CSS::Style& resolver, const Report& report);
};

struct GradientStop {
  CoreAttributes core;
  StylingAttributes style;
  std::optional<CSS::Color> color;
  std::optional<double> opacity;  // 0 to 100
  std::optional<CSS::UnitLength> offset;
  bool operator==(const GradientStop&) const = default;
  static GradientStop read(const Attributes& attributes, const CSS::Style& resolver,
                           const Report& report);
};

struct LinearGradient {
  CoreAttributes core;
  std::vector<GradientStop> stops;
  std::optional<std::string> templateGradientID;  // "xlink:href" verbatim, with its "#"
  CSS::UnitLength x1 = CSS::UnitLength::percentage(0);
  CSS::UnitLength x2 = CSS::UnitLength::percentage(100);
  CSS::UnitLength y1 = CSS::UnitLength::percentage(0);
  CSS::UnitLength y2 = CSS::UnitLength::percentage(0);
  std::vector<Transform> gradientTransform;
  bool operator==(const LinearGradient&) const = default;
  static LinearGradient read(const Attributes& attributes, const Report& report);
};

struct RadialGradient {
  CoreAttributes core;
  std::vector<GradientStop> stops;
  std::optional<std::string> templateGradientID;
  CSS::UnitLength r = CSS::UnitLength::percentage(50);
  CSS::UnitLength cx = CSS::UnitLength::percentage(50);
  CSS::UnitLength cy = CSS::UnitLength::percentage(50);
  CSS::UnitLength fr = CSS::UnitLength::percentage(0);
  std::optional<CSS::UnitLength> fx, fy;
  std::vector<Transform> gradientTransform;
  bool operator==(const RadialGradient&) const = default;
  static RadialGradient read(const Attributes& attributes, const Report& report);
};

struct Filter {
  struct Input {
    enum class Kind : std::uint8_t {
      result, previous, sourceGraphic, sourceAlpha, backgroundImage, backgroundAlpha, fillPaint,
      strokePaint
    };
    Kind kind = Kind::previous;
    std::string result;  // for `result`
    bool operator==(const Input&) const = default;
    static Input named(std::string name) { return {Kind::result, std::move(name)}; }
    static std::optional<Input> parse(std::optional<std::string_view> text);
    std::string description() const;
  };

  struct Primitive {
    struct Attributes {
      std::optional<std::string> result;
      std::optional<double> x, y, width, height;
      bool operator==(const Attributes&) const = default;
      static Attributes read(const SVGParser::Attributes& attributes);
    };
    struct Merge {
      Attributes attributes;
      std::vector<Input> inputs;
      bool operator==(const Merge&) const = default;
    };
    struct Blur {
      Attributes attributes;
      Input input;
      double standardDeviation = 0;
      bool operator==(const Blur&) const = default;
      static Blur read(const SVGParser::Attributes& attributes, const Input& defaultInput);
    };
    struct Blend {
      enum class Mode : std::uint8_t {
        normal, multiply, screen, overlay, darken, lighten, difference, exclusion, hue, saturation,
        color, luminosity, colorDodge, colorBurn, hardLight, softLight
      };
      Attributes attributes;
      Input input;
      Input input2;
      Mode mode = Mode::normal;
      bool operator==(const Blend&) const = default;
      static Blend read(const SVGParser::Attributes& attributes, const Input& defaultInput);
    };
    struct Offset {
      Attributes attributes;
      Input input;
      double dx = 0, dy = 0;
      bool operator==(const Offset&) const = default;
      static Offset read(const SVGParser::Attributes& attributes, const Input& defaultInput);
    };
    struct DropShadow {
      Attributes attributes;
      Input input;
      double dx = 0, dy = 0, standardDeviation = 2;
      CSS::Color color = CSS::Color::named("black");
      std::optional<double> opacity;  // 0 to 1
      bool operator==(const DropShadow&) const = default;
      static DropShadow read(const SVGParser::Attributes& attributes, const Input& defaultInput,
                             const Report& report);
    };
    // The primitives that are recorded by kind only.
    struct Unmodelled {
      enum class Kind : std::uint8_t {
        colorMatrix, componentTransfer, composite, convolveMatrix, diffuseLighting,
        displacementMap, flood, image, morphology, specularLighting, tile, turbulence
      };
      Kind kind = Kind::colorMatrix;
      bool operator==(const Unmodelled&) const = default;
    };

    std::variant<Merge, Blur, Blend, Offset, DropShadow, Unmodelled> value;
    bool operator==(const Primitive&) const = default;
    std::string description() const;
  };

  CoreAttributes core;
  StylingAttributes style;
  std::vector<Primitive> primitives;
  std::optional<CSS::UnitLength> x, y, width, height;
  bool operator==(const Filter&) const = default;
  static Filter read(const Attributes& attributes, const Report& report);
};
std::string_view blendModeName(Filter::Primitive::Blend::Mode mode);
std::optional<Filter::Primitive::Blend::Mode> parseBlendMode(std::string_view text);

struct Definition {
  std::variant<LinearGradient, RadialGradient, Filter> value;
  bool operator==(const Definition&) const = default;
  const std::optional<std::string>& id() const;
};

struct NamedDefinition {
  std::string id;
  Definition definition;
  bool operator==(const NamedDefinition&) const = default;
};

}  // namespace SVGModel

struct SVG : SVGModel::ElementAttributes {
  using CoreAttributes = SVGModel::CoreAttributes;
  using StylingAttributes = SVGModel::StylingAttributes;
  template <class T>
  using Inheritable = SVGModel::Inheritable<T>;
  using Paint = SVGModel::Paint;
  using Transform = SVGModel::Transform;
  using PresentationAttributes = SVGModel::PresentationAttributes;
  using Command = SVGModel::Command;
  using UnitPoint = SVGModel::UnitPoint;
  using UnitSize = SVGModel::UnitSize;
  using UnitRect = SVGModel::UnitRect;
  using Group = SVGModel::Group;
  using Path = SVGModel::Path;
  using Circle = SVGModel::Circle;
  using Ellipse = SVGModel::Ellipse;
  using Rect = SVGModel::Rect;
  using Line = SVGModel::Line;
  using Polygon = SVGModel::Polygon;
  using Polyline = SVGModel::Polyline;
  using Image = SVGModel::Image;
  using Text = SVGModel::Text;
  using GradientStop = SVGModel::GradientStop;
  using LinearGradient = SVGModel::LinearGradient;
  using RadialGradient = SVGModel::RadialGradient;
  using Filter = SVGModel::Filter;
  using Definition = SVGModel::Definition;
  using NamedDefinition = SVGModel::NamedDefinition;
  using GroupItem = SVGModel::GroupItem;
  enum class WindingRule : std::uint8_t { nonZero, evenOdd };

  std::optional<CSS::UnitLength> x;
  std::optional<CSS::UnitLength> y;
  std::optional<CSS::UnitLength> width;
  std::optional<CSS::UnitLength> height;
  std::optional<CGRect> viewBox;
  std::vector<GroupItem> children;
  std::vector<NamedDefinition> definitions;  // order of first appearance, one per id
  bool operator==(const SVG&) const;

  static SVG read(const SVGParser::Attributes& attributes, const CSS::Style& resolver,
                  const SVGParser::Report& report);
};

namespace SVGModel {

struct GroupItem {
  std::variant<SVG, Group, Path, Circle, Ellipse, Rect, Polygon, Polyline, Line, Image, Text> value;
  // Defined out of line: the recursive comparison is kept out of every includer.
  bool operator==(const GroupItem&) const;
};

}  // namespace SVGModel
