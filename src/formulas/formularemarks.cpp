#include "formularemarks.h"

#include <model/names.h>

#include <QCoreApplication>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(NetworkFormulas)
};

} // namespace

Finding FormulaRemarks::warning(const FormulaDefinition &definition, const QString &text) {
  return {Finding::Severity::Warning, definition.file, definition.line, text, QString()};
}

void FormulaRemarks::add(const FormulaDefinition &definition, const QString &text) {
  if (m_told.emplace(definition.file, definition.line, text).second)
    m_findings.push_back(warning(definition, text));
}

FormulaFailures::OfLine &FormulaFailures::of(const FormulaDefinition &definition) {
  const auto known = m_index.try_emplace({definition.file, definition.line, definition.property}, m_lines.size());
  if (known.second)
    m_lines.push_back({&definition, 0, 0, QString(), QString()});
  return m_lines[known.first->second];
}

void FormulaFailures::add(const FormulaDefinition &definition, const element &e, const QString &why) {
  OfLine &line = of(definition);
  const QString name = e.value(Names::all().name);
  if (line.count++ == 0 || name < line.first) {
    line.first = name;
    line.reason = why;
  }
}

Findings FormulaFailures::findings() const {
  Findings found;
  for (const auto &[origin, number] : m_index) { // as they stand in the files
    const OfLine &line = m_lines[number];
    if (line.count == 0)
      continue;
    Finding finding = FormulaRemarks::warning(
        *line.definition, Texts::tr("%1 could not be computed for %2 of %3 elements, the first is %4: %5")
                              .arg(line.definition->property)
                              .arg(line.count)
                              .arg(line.elements)
                              .arg(line.first, line.reason));
    finding.element = line.first;
    found.push_back(std::move(finding));
  }
  return found;
}
