#pragma once

#include <base/finding.h>
#include <formulas/formulafile.h>
#include <model/element.h>

#include <map>
#include <set>
#include <tuple>

/// What is to be said of lines of formulas. A line of a template is there for each subnet that was made of it, and told
/// once.
class FormulaRemarks {
public:
  void add(const FormulaDefinition &definition, const QString &text);
  const Findings &findings() const { return m_findings; }

  static Finding warning(const FormulaDefinition &definition, const QString &text);

private:
  std::set<std::tuple<QString, int, QString>> m_told;
  Findings m_findings;
};

/// Elements that lines had no value for, though they have all that it takes: one finding a line.
class FormulaFailures {
public:
  /// The definitions must outlive this.
  void addElements(const FormulaDefinition &definition, std::size_t count) { of(definition).elements += count; }
  void add(const FormulaDefinition &definition, const element &e, const QString &why);
  Findings findings() const;

private:
  struct OfLine {
    const FormulaDefinition *definition = nullptr;
    std::size_t elements = 0;
    std::size_t count = 0;
    QString first; ///< by name
    QString reason;
  };

  OfLine &of(const FormulaDefinition &definition);

  std::vector<OfLine> m_lines;
  std::map<std::tuple<QString, int, QString>, std::size_t> m_index;
};
