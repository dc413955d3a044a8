// Walks one SVG tree into one container of the view model. An instance serves one conversion:
// it owns the scoped state of the walk (merged attributes, sizes, definition scopes), the name
// pools and the running text position.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "SVGConverter/IDPool.h"
#include "SVGConverter/SwiftUIModel.h"
#include "SVGParser/Report.h"
#include "SVGParser/SVG.h"

class SVGSwiftUIFigurer {
 public:
  using ContainerViewType = SwiftUIModel::ContainerViewType;

  // Containers nested deeper than this are dropped with a report, so that neither this walk
  // nor anything that walks the model later can run out of stack.
  static constexpr std::size_t maximumNesting = 256;
  // Filter graphs deeper than this drop the primitive that would make them deeper.
  static constexpr std::size_t maximumFilterDepth = 256;

  // A frame of optional numbers, for elements whose frame is partly known.
  struct PointFrame {
    std::optional<double> x, y, w, h;
    bool operator==(const PointFrame&) const = default;
  };
  static constexpr PointFrame noFrame{};

  struct NamedNode {
    std::string typeName;
    // Valid while the converted tree lives; a child handed over alone lives only for its own
    // conversion.
    const SVG::GroupItem* node = nullptr;
  };
  struct ScopedDefinition {
    std::string id;  // qualified: "Owner.property"
    SwiftUIModel::Definition definition;
  };
  using DefinitionScope = std::map<std::string, ScopedDefinition, std::less<>>;

  explicit SVGSwiftUIFigurer(SVGParser::Report report = {});

  // The whole conversion: a fresh figurer, the default attributes, then `convert`. An empty
  // `name` lets the root take a name from the group pool like any nested `svg`.
  static ContainerViewType makeModel(const SVG& svg, std::string_view name,
                                     const SVGParser::Report& report);

  // Black fill and nothing else: what an element gets when no ancestor says otherwise.
  static const SVG::PresentationAttributes& defaultAttributes();

  void pushAttributes(const SVG::PresentationAttributes& own);
  void popAttributes();
  // The merged attributes of the innermost element being converted.
  const SVG::PresentationAttributes& currentAttributes() const;

  ContainerViewType convert(const SVG& svg, std::string_view name);
  // The same in steps, for children handed over one at a time: the container without its
  // children (the element's state stays in force), `convertChild` for each child, then the
  // rest of the container.
  ContainerViewType beginSVG(const SVG& svg, std::string_view name);
  void endSVG(const SVG& svg, ContainerViewType& container);
  // One child's view, if it has one, appended to `into`.
  void convertChild(const SVG::GroupItem& child, std::vector<SwiftUIModel::Subview>& into);
  ContainerViewType convert(const SVG::Group& group);
  SwiftUIModel::PathViewType convert(const SVG::Path& path);
  SwiftUIModel::PathViewType convert(const SVG::Line& line);
  SwiftUIModel::PathViewType convert(const SVG::Polygon& polygon);
  SwiftUIModel::PathViewType convert(const SVG::Polyline& polyline);
  SwiftUIModel::CircleViewType convert(const SVG::Circle& circle);
  SwiftUIModel::EllipseViewType convert(const SVG::Ellipse& ellipse);
  SwiftUIModel::RectangleViewType convert(const SVG::Rect& rect);
  SwiftUIModel::Text convert(const SVG::Text& text);

  // The gradients and filters of an `svg` element, each with its SVG id.
  std::vector<std::pair<std::string, SwiftUIModel::Definition>> convertDefinitions(
      const std::vector<SVG::NamedDefinition>& definitions);
  SwiftUIModel::LinearGradientProperty convert(const SVG::LinearGradient& gradient);
  SwiftUIModel::RadialGradientProperty convert(const SVG::RadialGradient& gradient);
  SwiftUIModel::FilterModifierType convert(const SVG::Filter& filter);
  std::optional<SwiftUIModel::FilterModifierType::FilterGroup> convertFilterGroup(
      const std::vector<SVG::Filter::Primitive>& primitives);

  // The paint of a shape or text: a colour, a definition found in the current scope, or only
  // an opacity. `opacity` is on the tree's scale of 0 to 100.
  std::optional<SwiftUIModel::Paint> convertPaint(const std::optional<SVG::Paint>& paint,
                                                  std::optional<double> opacity) const;
  // The entry for an SVG id in the innermost scope that has one.
  const ScopedDefinition* lookupDefinition(std::string_view id) const;
  // The filter a merged `filter` attribute refers to, if it names one in scope.
  std::optional<SwiftUIModel::FilterModifierType> lookupFilter(
      const SVG::Inheritable<std::string>& filter) const;

  // Fields in the order of the walk's state; readable for tests.
  std::map<std::string, NamedNode, std::less<>> svgID2Node;
  std::vector<SVG::PresentationAttributes> attributeStack;
  SwiftUIModel::IDPool groupIDs{"Group"};
  SwiftUIModel::IDPool pathIDs{"path"};
  SwiftUIModel::IDPool pathViewIDs{"PathView"};
  SwiftUIModel::IDPool circleViewIDs{"Circle"};
  SwiftUIModel::IDPool ellipseViewIDs{"Ellipse"};
  SwiftUIModel::IDPool rectangleViewIDs{"Reactangle"};  // spelled as the generated code has it
  SwiftUIModel::IDPool pathShapeIDs{"PathShape"};
  SwiftUIModel::IDPool linearGradientIDs{"linearGradient"};
  SwiftUIModel::IDPool radialGradientIDs{"radialGradient"};
  SwiftUIModel::IDPool filterIDs{"Filter"};
  CGPoint lastTextPosition{0, 0};
  std::vector<CGSize> svgPointSizeStack;
  // One scope per enclosing `svg`, innermost last, each with that element's own definitions.
  std::vector<DefinitionScope> svgDefsStack;

 private:
  std::vector<SwiftUIModel::Subview> convertChildren(const std::vector<SVG::GroupItem>& children);
  SwiftUIModel::ShapeDrawing makeDrawing(bool transformInDrawing) const;
  SwiftUIModel::PathViewType makePathView(const std::optional<std::string>& id,
                                          std::vector<SwiftUIModel::PathCommand> path);

  SVGParser::Report report_;
  std::size_t nesting_ = 0;
};
