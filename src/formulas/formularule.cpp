#include "formularule.h"

#include <algorithm>
#include <boost/graph/adjacency_list.hpp>
#include <boost/graph/strong_components.hpp>

std::vector<const Formula *> FormulaRule::formulas() const {
  std::vector<const Formula *> found;
  for (const Formula *formula : {value.get(), lower.get(), upper.get()}) {
    if (formula != nullptr)
      found.push_back(formula);
  }
  return found;
}

FormulaProducers::FormulaProducers(std::vector<FormulaRule> &rules) {
  std::map<PropertyKey, int> makers;
  std::set<PropertyKey> asked;
  for (const FormulaRule &rule : rules) {
    if (!rule.definition.isConstraint)
      ++makers[rule.target];
    for (const Formula *formula : rule.formulas()) {
      for (const FormulaReference &reference : formula->references()) {
        asked.insert(reference.property);
        asked.insert(reference.path.begin(), reference.path.end());
      }
    }
  }
  // A property that one formula makes and none reads needs no table of its elements.
  for (Index i = 0; i < rules.size(); ++i) {
    const FormulaRule &rule = rules[i];
    if (rule.definition.isConstraint || (makers[rule.target] == 1 && asked.count(rule.target) == 0))
      continue;
    ByElement &byElement = m_rules[rule.target];
    byElement.reserve(byElement.size() + toQt(rule.elements.size()));
    for (const element *e : rule.elements)
      byElement.insert(e, i);
  }
  for (Index i = 0; i < rules.size(); ++i) {
    FormulaRule &rule = rules[i];
    if (rule.definition.isConstraint || makers[rule.target] == 1)
      continue;
    const ByElement &byElement = m_rules[rule.target];
    const auto isAnothers = [&](const element *e) {
      return byElement.value(e) != i;
    };
    rule.elements.erase(std::remove_if(rule.elements.begin(), rule.elements.end(), isAnothers), rule.elements.end());
  }
}

std::vector<std::vector<Index>> FormulaProducers::dependencies(const std::vector<FormulaRule> &rules,
                                                               const NetData &net) const {
  std::vector<std::vector<Index>> needed(rules.size());
  for (std::size_t i = 0; i < rules.size(); ++i) {
    std::set<Index> found;
    const auto note = [&](const element *e, PropertyKey property) {
      const auto makers = m_rules.find(property);
      const Index maker = makers == m_rules.end() ? NoIndex : makers->second.value(e, NoIndex);
      if (maker != NoIndex)
        found.insert(maker);
      return false;
    };
    for (const Formula *formula : rules[i].formulas()) {
      for (const FormulaReference &reference : formula->references()) {
        bool isMade = m_rules.count(reference.property) > 0;
        for (const PropertyKey step : reference.path)
          isMade = isMade || m_rules.count(step) > 0;
        if (!isMade)
          continue;
        for (const element *e : rules[i].elements) {
          walk(reference, net, e, rules[i].names(), note);
          if (!reference.elementName.isEmpty())
            break; // the same for all
        }
      }
    }
    needed[i].assign(found.begin(), found.end());
  }
  return needed;
}

FormulaOrder::FormulaOrder(const std::vector<std::vector<Index>> &dependencies) {
  using Graph = boost::adjacency_list<boost::vecS, boost::vecS, boost::directedS>;
  Graph graph(dependencies.size());
  for (std::size_t i = 0; i < dependencies.size(); ++i) {
    for (const Index needed : dependencies[i])
      boost::add_edge(i, needed, graph);
  }
  std::vector<Index> component(dependencies.size());
  const Index count = dependencies.empty()
                          ? 0
                          : boost::strong_components(graph, boost::make_iterator_property_map(
                                                                component.begin(), boost::get(boost::vertex_index, graph)));
  // A component is numbered after those that can be reached from it, which is what it depends on.
  std::vector<std::vector<Index>> members(count);
  for (Index i = 0; i < component.size(); ++i)
    members[component[i]].push_back(i);
  for (std::vector<Index> &together : members) {
    const std::vector<Index> &own = dependencies[together.front()];
    if (together.size() > 1 || std::find(own.begin(), own.end(), together.front()) != own.end())
      cycles.push_back(std::move(together));
    else
      order.push_back(together.front());
  }
}
