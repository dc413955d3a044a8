#include "SVGConverter/SwiftUIModel.h"

#include <algorithm>

namespace SwiftUIModel {

using FilterGroup = FilterModifierType::FilterGroup;

struct FilterGroup::Node {
  std::vector<FilterGroup> inputs;
  std::vector<Primitive> primitives;
  BlendMode mode = BlendMode::normal;
  bool empty = false;
  std::size_t depth = 1;
};

namespace {

const FilterGroup& sourceGroup() {
  static const FilterGroup group;
  return group;
}

std::size_t deepestInput(const std::vector<FilterGroup>& inputs) {
  std::size_t deepest = 0;
  for (const auto& input : inputs) deepest = std::max(deepest, input.depth());
  return deepest;
}

}  // namespace

FilterGroup FilterGroup::merge(std::vector<FilterGroup> inputs) {
  auto node = std::make_shared<Node>();
  node->empty = inputs.empty();
  node->depth = deepestInput(inputs) + 1;
  node->inputs = std::move(inputs);
  FilterGroup group;
  group.kind_ = Kind::merge;
  group.node_ = std::move(node);
  return group;
}

FilterGroup FilterGroup::blend(FilterGroup input, FilterGroup input2, BlendMode mode) {
  auto node = std::make_shared<Node>();
  node->inputs = {std::move(input), std::move(input2)};
  node->mode = mode;
  node->depth = deepestInput(node->inputs) + 1;
  FilterGroup group;
  group.kind_ = Kind::blend;
  group.node_ = std::move(node);
  return group;
}

FilterGroup FilterGroup::primitive(FilterGroup input, std::vector<Primitive> primitives) {
  auto node = std::make_shared<Node>();
  node->empty = primitives.empty() && input.isEmpty();
  node->depth = input.depth() + 1;
  node->inputs = {std::move(input)};
  node->primitives = std::move(primitives);
  FilterGroup group;
  group.kind_ = Kind::primitive;
  group.node_ = std::move(node);
  return group;
}

FilterGroup FilterGroup::appending(FilterGroup group, Primitive primitive) {
  if (group.kind_ != Kind::primitive || !group.node_) {
    return FilterGroup::primitive(std::move(group), {std::move(primitive)});
  }
  if (group.node_.use_count() != 1) {
    auto copy = std::make_shared<Node>(*group.node_);
    group.node_ = std::move(copy);
  }
  // Every node is made non-const by make_shared, and this copy is the only one that sees it.
  auto& node = const_cast<Node&>(*group.node_);
  node.primitives.push_back(std::move(primitive));
  node.empty = false;
  return group;
}

FilterGroup FilterGroup::sourceAlpha() {
  FilterGroup group;
  group.kind_ = Kind::sourceAlpha;
  return group;
}

const std::vector<FilterGroup>& FilterGroup::inputs() const {
  static const std::vector<FilterGroup> none;
  return node_ ? node_->inputs : none;
}

const FilterGroup& FilterGroup::input() const {
  const auto& all = inputs();
  return (kind_ == Kind::blend || kind_ == Kind::primitive) && !all.empty() ? all[0]
                                                                            : sourceGroup();
}

const FilterGroup& FilterGroup::input2() const {
  const auto& all = inputs();
  return kind_ == Kind::blend && all.size() > 1 ? all[1] : sourceGroup();
}

const std::vector<FilterModifierType::Primitive>& FilterGroup::primitives() const {
  static const std::vector<Primitive> none;
  return node_ ? node_->primitives : none;
}

FilterGroup::BlendMode FilterGroup::mode() const {
  return node_ ? node_->mode : BlendMode::normal;
}

bool FilterGroup::isEmpty() const {
  return node_ && node_->empty;
}

std::size_t FilterGroup::depth() const {
  return node_ ? node_->depth : 1;
}

// Shared inputs compare by identity first, so comparing a group with its own copy costs
// nothing however often the filter reuses a result.
bool FilterGroup::operator==(const FilterGroup& other) const {
  if (kind_ != other.kind_) return false;
  if (node_ == other.node_) return true;
  if (!node_ || !other.node_) return false;
  return node_->mode == other.node_->mode && node_->primitives == other.node_->primitives &&
         node_->inputs == other.node_->inputs;
}

const std::string& Definition::name() const {
  return std::visit(
      [](const auto& definition) -> const std::string& {
        using T = std::decay_t<decltype(definition)>;
        if constexpr (std::is_same_v<T, FilterModifierType>) {
          return definition.typeName;
        } else {
          return definition.propertyID;
        }
      },
      value);
}

const std::string& Subview::typeName() const {
  static const std::string none;
  return std::visit(
      [](const auto& view) -> const std::string& {
        using T = std::decay_t<decltype(view)>;
        if constexpr (std::is_same_v<T, Text>) {
          return none;
        } else {
          return view.typeName;
        }
      },
      value);
}

bool Subview::operator==(const Subview& other) const {
  return kind == other.kind && value == other.value;
}

bool ContainerViewType::operator==(const ContainerViewType& other) const {
  return typeName == other.typeName && origin == other.origin &&
         intrinsicSize == other.intrinsicSize && viewBox == other.viewBox &&
         resizable == other.resizable && childTypes == other.childTypes &&
         definitions == other.definitions && filterModifier == other.filterModifier &&
         transform == other.transform;
}

}  // namespace SwiftUIModel
