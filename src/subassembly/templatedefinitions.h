#pragma once

#include <base/finding.h>
#include <formulas/formulafile.h>
#include <subassembly/subassemblycache.h>

/// The constraints and formulas of a template, ready to become those of its subnets: which of the template's elements each
/// is for is found out once.
class TemplateDefinitions {
public:
  explicit TemplateDefinitions(std::shared_ptr<const TemplatePlan> plan)
      : m_plan(std::move(plan)) {}

  /// \param path empty where the template has no such file
  void read(const QString &path, TemplateCache<FormulaFile::Contents> &cache, Findings &findings, const Told &told);
  /// Adds those of one subnet. \param pins what the network calls those of the template
  /// \param names of the created elements, as the plan orders them
  void addFor(const QString &subnet, const QStringList &pins, const std::vector<PropertyText> &names,
              std::vector<FormulaDefinition> &definitions) const;

private:
  struct Planned {
    FormulaDefinition definition;   ///< without a pattern for names
    std::vector<std::size_t> parts; ///< of the plan, for which it is
    bool isForSubnet = false;       ///< itself
  };

  std::shared_ptr<const TemplatePlan> m_plan;
  std::vector<Planned> m_planned;
};
