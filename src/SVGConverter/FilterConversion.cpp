// SVG filters to filter modifiers. The SVG form is a flat list wired by `in` and `result`
// names; the model wants a tree. One pass keeps a `current` group that collects primitives
// without names, and a map of the named results.
#include <map>

#include "ConversionSupport.h"
#include "SVGConverter/ModelDescription.h"
#include "SVGConverter/SVGSwiftUIFigurer.h"

using SVGConverter::Overloaded;
using SVGConverter::points;
using SwiftUIModel::FilterModifierType;
using SwiftUIModel::NameCase;
using FilterGroup = FilterModifierType::FilterGroup;
using Primitive = SVG::Filter::Primitive;
using Input = SVG::Filter::Input;

namespace {

FilterGroup freshGroup() {
  return FilterGroup::primitive(FilterGroup::source(), {});
}

// A primitive's own frame: the size needs both extents, and an origin at exactly (0, 0) is
// left out.
FilterModifierType::Primitive framed(const Primitive::Attributes& attributes,
                                     FilterModifierType::Primitive::Operation operation) {
  FilterModifierType::Primitive primitive;
  if (attributes.width && attributes.height) {
    primitive.intrinsicSize = CGSize{*attributes.width, *attributes.height};
  }
  const double x = attributes.x.value_or(0);
  const double y = attributes.y.value_or(0);
  if (!(x == 0 && y == 0)) primitive.origin = CGPoint{x, y};
  primitive.operation = std::move(operation);
  return primitive;
}

FilterModifierType::Primitive::Shadow shadowOf(const Primitive::DropShadow& shadow) {
  FilterModifierType::Primitive::Shadow result;
  // Black and 0.33 are what the generated shadow writes by default, so they are left out.
  if (!(shadow.color == CSS::Color::named("black"))) result.color = shadow.color;
  const double opacity = shadow.opacity.value_or(1.0);
  if (opacity != 0.33) result.opacity = opacity;
  result.radius = shadow.standardDeviation;
  if (!(shadow.dx == 0 && shadow.dy == 0)) result.position = CGPoint{shadow.dx, shadow.dy};
  return result;
}

class FilterGraph {
 public:
  FilterGraph(const SVGParser::Report& report, std::size_t maximumDepth)
      : report_(report), maximumDepth_(maximumDepth) {}

  void add(const Primitive& primitive) {
    std::visit(Overloaded{
                   [&](const Primitive::Merge& merge) { addMerge(primitive, merge); },
                   [&](const Primitive::Blend& blend) { addBlend(primitive, blend); },
                   [&](const Primitive::Blur& blur) {
                     addEffect(primitive, blur.input, blur.attributes,
                               FilterModifierType::Primitive::Blur{blur.standardDeviation});
                   },
                   [&](const Primitive::Offset& offset) {
                     addEffect(primitive, offset.input, offset.attributes,
                               FilterModifierType::Primitive::Offset{{offset.dx, offset.dy}});
                   },
                   [&](const Primitive::DropShadow& shadow) {
                     addEffect(primitive, shadow.input, shadow.attributes, shadowOf(shadow));
                   },
                   [&](const Primitive::Unmodelled&) { addUnsupported(primitive); },
               },
               primitive.value);
  }

  std::optional<FilterGroup> result() const {
    if (current_.isEmpty()) return std::nullopt;
    return current_;
  }

 private:
  std::optional<FilterGroup> resolve(const Input& input) {
    switch (input.kind) {
      case Input::Kind::previous:
        return current_;
      case Input::Kind::sourceGraphic:
        return FilterGroup::source();
      case Input::Kind::sourceAlpha:
        return FilterGroup::sourceAlpha();
      case Input::Kind::result: {
        const auto found = results_.find(input.result);
        if (found != results_.end()) return found->second;
        report_.print({"ERROR: Missing filter merge node:", input.result});
        return std::nullopt;
      }
      case Input::Kind::backgroundImage:
      case Input::Kind::backgroundAlpha:
      case Input::Kind::fillPaint:
      case Input::Kind::strokePaint:
        break;
    }
    report_.print({"WARN: Unsupported merge input:", input.description()});
    return std::nullopt;
  }

  void addMerge(const Primitive& primitive, const Primitive::Merge& merge) {
    std::vector<FilterGroup> inputs;
    for (const auto& input : merge.inputs) {
      auto group = resolve(input);
      if (group && !group->isEmpty()) inputs.push_back(std::move(*group));
    }
    finish(FilterGroup::merge(std::move(inputs)), merge.attributes.result, primitive);
  }

  void addBlend(const Primitive& primitive, const Primitive::Blend& blend) {
    auto a = resolve(blend.input).value_or(FilterGroup::source());
    auto b = resolve(blend.input2).value_or(a);
    finish(FilterGroup::blend(std::move(a), std::move(b), blend.mode), blend.attributes.result,
           primitive);
  }

  // Unnamed chains collect in one group; a merge or blend before is wrapped as its input.
  FilterGroup chainBase() const {
    const auto kind = current_.kind();
    if (kind == FilterGroup::Kind::merge || kind == FilterGroup::Kind::blend) {
      return FilterGroup::primitive(current_, {});
    }
    return current_;
  }

  void addEffect(const Primitive& primitive, const Input& input,
                 const Primitive::Attributes& attributes,
                 FilterModifierType::Primitive::Operation operation) {
    FilterGroup base =
        input.kind == Input::Kind::previous
            ? chainBase()
            : FilterGroup::primitive(resolve(input).value_or(FilterGroup::source()), {});
    if (base.kind() != FilterGroup::Kind::primitive) {
      report_.print({"WARN: expected primitive group, got:", SVGConverter::describe(base)});
      return;
    }
    // An appended effect adds no depth.
    if (!fits(base, primitive)) return;
    // `current` lets go of the chain first, so that the chain grows in place.
    current_ = FilterGroup::source();
    finish(FilterGroup::appending(std::move(base), framed(attributes, std::move(operation))),
           attributes.result, primitive);
  }

  // Passed over, but a merge or blend before it is still wrapped, as for any primitive.
  void addUnsupported(const Primitive& primitive) {
    FilterGroup base = chainBase();
    if (base.kind() != FilterGroup::Kind::primitive) {
      report_.print({"WARN: expected primitive group, got:", SVGConverter::describe(base)});
      return;
    }
    report_.print({"WARN: Unsupported filter primitive:", primitive.description()});
    finish(std::move(base), std::nullopt, primitive);
  }

  bool fits(const FilterGroup& group, const Primitive& primitive) const {
    if (group.depth() > maximumDepth_) {
      report_.print({"WARN: filter graph too deep, dropping primitive:", primitive.description()});
      return false;
    }
    return true;
  }

  void finish(FilterGroup group, const std::optional<std::string>& result,
              const Primitive& primitive) {
    if (!fits(group, primitive)) return;
    if (result) {
      results_.insert_or_assign(*result, std::move(group));
      current_ = freshGroup();
    } else {
      current_ = std::move(group);
    }
  }

  const SVGParser::Report& report_;
  std::size_t maximumDepth_;
  std::map<std::string, FilterGroup> results_;
  FilterGroup current_ = freshGroup();
};

}  // namespace

std::optional<FilterGroup> SVGSwiftUIFigurer::convertFilterGroup(
    const std::vector<Primitive>& primitives) {
  FilterGraph graph(report_, maximumFilterDepth);
  for (const auto& primitive : primitives) graph.add(primitive);
  return graph.result();
}

FilterModifierType SVGSwiftUIFigurer::convert(const SVG::Filter& filter) {
  FilterModifierType modifier;
  modifier.typeName = makeTypeName(filterIDs, filter.core.id, NameCase::type);
  const auto fields = SVGConverter::frameFields(SVGConverter::pairedFrame(
      points(filter.x), points(filter.y), points(filter.width), points(filter.height)));
  modifier.intrinsicSize = fields.intrinsicSize;
  modifier.origin = fields.origin;
  modifier.filterGroup = convertFilterGroup(filter.primitives).value_or(FilterGroup::source());
  return modifier;
}

std::optional<FilterModifierType> SVGSwiftUIFigurer::lookupFilter(
    const SVG::Inheritable<std::string>& filter) const {
  if (filter.kind != SVG::Inheritable<std::string>::Kind::some) return std::nullopt;
  std::string_view key = filter.value;
  if (!key.empty() && key.front() == '#') key.remove_prefix(1);
  const auto* found = lookupDefinition(key);
  if (!found) return std::nullopt;
  if (const auto* modifier = std::get_if<FilterModifierType>(&found->definition.value)) {
    return *modifier;
  }
  return std::nullopt;
}
