#include "templatedefinitions.h"

#include "templateplan.h" // IWYU pragma: keep, for what lies behind a pointer

#include <base/pattern.h>
#include <base/textdecoding.h>

void TemplateDefinitions::read(const QString &path, TemplateCache<FormulaFile::Contents> &cache, Findings &findings,
                               const Told &told) {
  if (path.isEmpty())
    return;
  const auto readFile = [](const QString &file) {
    return FormulaFile::read(file, QStringLiteral("geometry"), FileAccess::Source::Trusted); // of the program
  };
  const FormulaFile::Contents &contents = cache.get(path, readFile, told);
  append(findings, contents.findings);
  for (const FormulaDefinition &definition : contents.definitions) {
    Planned planned{definition, {}, definition.types.contains(QStringLiteral("sub"))};
    const Pattern pattern(definition.namePattern);
    for (std::size_t i = 0; i < m_plan->parts().size(); ++i) {
      if (pattern.matches(m_plan->parts()[i]))
        planned.parts.push_back(i);
    }
    planned.definition.namePattern.clear();
    if (!planned.parts.empty() || planned.isForSubnet)
      m_planned.push_back(std::move(planned));
  }
}

void TemplateDefinitions::addFor(const QString &subnet, const QStringList &pins, const std::vector<PropertyText> &names,
                                 std::vector<FormulaDefinition> &definitions) const {
  if (m_planned.empty())
    return;
  const auto meant = std::make_shared<FormulaNames>(); // names of the template to those of the network
  for (int i = 0; i < pins.size(); ++i)
    meant->add(m_plan->pinNames().at(i), pins.at(i));
  for (std::size_t i = 0; i < names.size(); ++i)
    meant->add(TextDecoding::decoded(m_plan->parts()[i]), names[i].toString());
  for (const Planned &planned : m_planned) {
    FormulaDefinition own = planned.definition;
    own.names = meant;
    for (const std::size_t part : planned.parts)
      own.elements.append(names[part].toString());
    if (planned.isForSubnet)
      own.elements.append(subnet);
    definitions.push_back(std::move(own));
  }
}
