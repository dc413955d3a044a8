// The view model between the SVG tree and the generated source: shapes, containers, paints,
// filters and text. Every length is a resolved number, every reference a generated name, and
// every name unique in its pool. Records are plain values with member-wise equality.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "SVGConverter/AffineTransform.h"
#include "SVGParser/CSS.h"
#include "SVGParser/Geometry.h"
#include "SVGParser/SVG.h"

namespace SwiftUIModel {

// Angles are radians.
struct TransformStep {
  struct Translate {
    double dx = 0, dy = 0;
    bool operator==(const Translate&) const = default;
  };
  struct Rotate {
    double angle = 0;
    bool operator==(const Rotate&) const = default;
  };
  struct Scale {
    double x = 0, y = 0;
    bool operator==(const Scale&) const = default;
  };
  struct Matrix {
    CGAffineTransform transform;
    bool operator==(const Matrix&) const = default;
  };
  std::variant<Translate, Rotate, Scale, Matrix> value;
  bool operator==(const TransformStep&) const = default;

  static TransformStep translate(double dx, double dy) { return {Translate{dx, dy}}; }
  static TransformStep rotate(double angle) { return {Rotate{angle}}; }
  static TransformStep scale(double x, double y) { return {Scale{x, y}}; }
  static TransformStep matrix(const CGAffineTransform& t) { return {Matrix{t}}; }
};

// All points are absolute.
struct PathCommand {
  struct MoveTo {
    CGPoint point;
    bool operator==(const MoveTo&) const = default;
  };
  struct AddLineTo {
    CGPoint point;
    bool operator==(const AddLineTo&) const = default;
  };
  struct AddCurveTo {
    CGPoint point, control1, control2;
    bool operator==(const AddCurveTo&) const = default;
  };
  struct AddQuadCurveTo {
    CGPoint point, control;
    bool operator==(const AddQuadCurveTo&) const = default;
  };
  // An arc of the circle around `center`, carried into place by `transform`.
  struct AddRelativeArc {
    CGPoint center;
    double radius = 0, startAngle = 0, delta = 0;
    std::vector<TransformStep> transform;
    bool operator==(const AddRelativeArc&) const = default;
  };
  struct AddLines {
    std::vector<CGPoint> points;
    bool operator==(const AddLines&) const = default;
  };
  struct CloseSubpath {
    bool operator==(const CloseSubpath&) const = default;
  };
  std::variant<MoveTo, AddLineTo, AddCurveTo, AddQuadCurveTo, AddRelativeArc, AddLines,
               CloseSubpath>
      value;
  bool operator==(const PathCommand&) const = default;

  static PathCommand moveTo(CGPoint p) { return {MoveTo{p}}; }
  static PathCommand addLineTo(CGPoint p) { return {AddLineTo{p}}; }
  static PathCommand addCurveTo(CGPoint p, CGPoint control1, CGPoint control2) {
    return {AddCurveTo{p, control1, control2}};
  }
  static PathCommand addQuadCurveTo(CGPoint p, CGPoint control) {
    return {AddQuadCurveTo{p, control}};
  }
  static PathCommand addRelativeArc(CGPoint center, double radius, double startAngle, double delta,
                                    std::vector<TransformStep> transform) {
    return {AddRelativeArc{center, radius, startAngle, delta, std::move(transform)}};
  }
  static PathCommand addLines(std::vector<CGPoint> points) { return {AddLines{std::move(points)}}; }
  static PathCommand closeSubpath() { return {CloseSubpath{}}; }
};

struct Paint {
  // No paint of its own, only an opacity for the inherited or default one.
  struct Opacity {
    double opacity = 0;
    bool operator==(const Opacity&) const = default;
  };
  struct Color {
    CSS::Color color;
    std::optional<double> opacity;
    bool operator==(const Color&) const = default;
  };
  // A definition by its qualified name, "Owner.property".
  struct Property {
    std::string id;
    bool operator==(const Property&) const = default;
  };
  std::variant<Opacity, Color, Property> value;
  bool operator==(const Paint&) const = default;

  static Paint opacity(double o) { return {Opacity{o}}; }
  static Paint color(CSS::Color c, std::optional<double> o = std::nullopt) {
    return {Color{std::move(c), o}};
  }
  static Paint property(std::string id) { return {Property{std::move(id)}}; }
};

struct StrokeStyle {
  std::optional<double> lineWidth;
  CGLineCap lineCap = CGLineCap::butt;
  CGLineJoin lineJoin = CGLineJoin::miter;
  bool operator==(const StrokeStyle&) const = default;
};

struct FilterModifierType {
  struct Primitive {
    // No member initialisers in the three operations: the enclosing records are incomplete
    // where the variant asks whether they can be default-constructed.
    struct Blur {
      double radius;
      bool operator==(const Blur&) const = default;
    };
    struct Offset {
      CGPoint offset;
      bool operator==(const Offset&) const = default;
    };
    struct Shadow {
      std::optional<CSS::Color> color;
      std::optional<double> opacity;
      double radius;
      std::optional<CGPoint> position;
      bool operator==(const Shadow&) const = default;
    };
    using Operation = std::variant<Blur, Offset, Shadow>;

    std::optional<CGSize> intrinsicSize;
    std::optional<CGPoint> origin;
    Operation operation;
    bool operator==(const Primitive&) const = default;
  };

  // The tree of effects. Groups are immutable and share their inputs, as an indirect
  // enumeration does: a filter that feeds one result into many places stays linear in size.
  class FilterGroup {
   public:
    enum class Kind : std::uint8_t { merge, blend, primitive, source, sourceAlpha };
    using BlendMode = SVG::Filter::Primitive::Blend::Mode;

    FilterGroup() = default;  // `source`
    static FilterGroup merge(std::vector<FilterGroup> inputs);
    static FilterGroup blend(FilterGroup input, FilterGroup input2, BlendMode mode);
    static FilterGroup primitive(FilterGroup input, std::vector<Primitive> primitives);
    static FilterGroup source() { return {}; }
    static FilterGroup sourceAlpha();
    // A `primitive` group with one more effect at the end (any other kind becomes the input of
    // a new one). A group that no other copy shares grows in place, so a long chain of effects
    // is built in linear time.
    static FilterGroup appending(FilterGroup group, Primitive primitive);

    Kind kind() const { return kind_; }
    // merge: every input; blend: input and input2; primitive: its input; otherwise empty.
    const std::vector<FilterGroup>& inputs() const;
    // The first input of a blend or primitive group; `source` for the other kinds.
    const FilterGroup& input() const;
    // The second input of a blend; `source` for the other kinds.
    const FilterGroup& input2() const;
    // The effects of a primitive group; empty for the other kinds.
    const std::vector<Primitive>& primitives() const;
    BlendMode mode() const;
    // A merge of nothing, or a primitive group without effects over an empty input.
    bool isEmpty() const;
    // Levels of groups, 1 for a group without inputs.
    std::size_t depth() const;

    bool operator==(const FilterGroup& other) const;

   private:
    struct Node;
    Kind kind_ = Kind::source;
    std::shared_ptr<const Node> node_;
  };

  std::string typeName;
  std::optional<CGSize> intrinsicSize;
  std::optional<CGPoint> origin;
  FilterGroup filterGroup;
  bool operator==(const FilterModifierType&) const = default;
};

struct ShapeDrawing {
  std::optional<StrokeStyle> strokeStyle;  // absent: no stroke
  std::optional<Paint> stroke;
  std::optional<Paint> fill;
  std::optional<FilterModifierType> filterModifier;
  std::vector<TransformStep> transform;
  bool operator==(const ShapeDrawing&) const = default;
};

struct ShapeType {
  bool insettable = false;
  std::string typeName;
  std::vector<PathCommand> path;
  std::vector<TransformStep> transform;
  bool operator==(const ShapeType&) const = default;
};

struct PathViewType {
  std::string typeName;
  ShapeType shapeType;
  std::optional<CGSize> intrinsicSize;
  std::optional<CGPoint> origin;
  ShapeDrawing drawing;
  bool operator==(const PathViewType&) const = default;
};

struct CircleViewType {
  std::string typeName;
  std::optional<CGSize> intrinsicSize;
  std::optional<CGPoint> origin;
  ShapeDrawing drawing;
  bool operator==(const CircleViewType&) const = default;
};

struct EllipseViewType {
  std::string typeName;
  std::optional<CGSize> intrinsicSize;
  std::optional<CGPoint> origin;
  ShapeDrawing drawing;
  bool operator==(const EllipseViewType&) const = default;
};

struct RectangleViewType {
  std::string typeName;
  std::optional<CGSize> intrinsicSize;
  std::optional<CGPoint> origin;
  std::optional<double> cornerRadius;
  ShapeDrawing drawing;
  bool operator==(const RectangleViewType&) const = default;
};

struct Text {
  CGPoint origin;
  std::optional<CSS::Font> font;
  std::optional<Paint> paint;
  std::string text;
  bool operator==(const Text&) const = default;
};

struct GradientStop {
  CSS::Color color;
  std::optional<double> opacity;
  double offset = 0;
  bool operator==(const GradientStop&) const = default;
};

struct LinearGradientProperty {
  std::string propertyID;
  CGPoint startPoint, endPoint;
  std::vector<GradientStop> stops;
  bool operator==(const LinearGradientProperty&) const = default;
};

struct RadialGradientProperty {
  std::string propertyID;
  CGPoint center;
  double startRadius = 0, endRadius = 0;
  std::vector<GradientStop> stops;
  bool operator==(const RadialGradientProperty&) const = default;
};

struct Definition {
  std::variant<LinearGradientProperty, RadialGradientProperty, FilterModifierType> value;
  bool operator==(const Definition&) const = default;
  // The generated name: `propertyID` of a gradient, `typeName` of a filter.
  const std::string& name() const;
};

// What an element fixes of its size, each axis on its own.
struct Resizable {
  std::optional<double> width, height;
  bool operator==(const Resizable&) const = default;
};

struct Subview;

// A `g` element, or a nested or outermost `svg` element.
struct ContainerViewType {
  std::string typeName;
  std::optional<CGPoint> origin;        // always absent for a group
  std::optional<CGSize> intrinsicSize;  // always absent for a group
  std::optional<CGRect> viewBox;        // absent when it says nothing beyond intrinsicSize
  Resizable resizable;
  std::vector<Subview> childTypes;
  std::vector<Definition> definitions;  // always empty for a group
  std::optional<FilterModifierType> filterModifier;
  std::vector<TransformStep> transform;
  bool operator==(const ContainerViewType&) const;
};

// One child of a container. `group` and `svg` both hold a container; `kind` tells them apart.
struct Subview {
  enum class Kind : std::uint8_t { path, circle, ellipse, rectangle, text, group, svg };
  Kind kind = Kind::group;
  std::variant<PathViewType, CircleViewType, EllipseViewType, RectangleViewType, Text,
               ContainerViewType>
      value;
  // Defined out of line: the recursive comparison is kept out of every includer.
  bool operator==(const Subview&) const;

  static Subview path(PathViewType v) { return {Kind::path, std::move(v)}; }
  static Subview circle(CircleViewType v) { return {Kind::circle, std::move(v)}; }
  static Subview ellipse(EllipseViewType v) { return {Kind::ellipse, std::move(v)}; }
  static Subview rectangle(RectangleViewType v) { return {Kind::rectangle, std::move(v)}; }
  static Subview text(Text v) { return {Kind::text, std::move(v)}; }
  static Subview group(ContainerViewType v) { return {Kind::group, std::move(v)}; }
  static Subview svg(ContainerViewType v) { return {Kind::svg, std::move(v)}; }

  // The view's type name; empty for text, which has none.
  const std::string& typeName() const;
};

}  // namespace SwiftUIModel
