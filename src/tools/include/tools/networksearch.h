#pragma once

#include <formulas/formula.h>
#include <model/netdata.h>
#include <tools/displayvalue.h>
#include <tools/searchparams.h>

#include <QRegularExpression>

#include <memory>
#include <optional>
#include <vector>

/// A property that a search has found.
struct SearchRow {
  QString name;
  QString type;
  QString property;
  QString value; ///< in the display unit
  QString unit;
};

/// The search for properties of elements, without a window. Elements with a row are marked by "isSearchResult".
class NetworkSearch {
public:
  struct Result {
    std::vector<SearchRow> rows;
    bool isStopped = false; ///< by a formula that cannot be evaluated; the rows before it are there
    QString error;          ///< why
  };

  /// The patterns are compiled; an invalid one matches nothing, one that would not end gives up and does not match.
  NetworkSearch(NetData &net, SearchParams params);

  Result run();
  /// The rows of one element, which is marked or unmarked. Throws FormulaError.
  std::vector<SearchRow> search(element &candidate);

  /// Properties that are never searched; "type", which stands among them, is all the same.
  static const QStringList &neverSearched();

private:
  class Pattern {
  public:
    explicit Pattern(const QString &text);
    bool matches(const QString &text) const;
    bool matchesAll() const { return m_matchesAll; }

  private:
    QRegularExpression m_expression;
    bool m_matchesAll;
  };

  bool matchesName(const QString &name) const;
  bool matchesType(const QString &type);
  bool matchesProperty(PropertyKey key);
  bool satisfiesFormula(const element &candidate);

  NetData &m_net;
  SearchParams m_params;
  Pattern m_name;
  Pattern m_type;
  Pattern m_property;
  Pattern m_value;
  std::optional<Formula> m_formula;
  DisplayValue m_display;
  QHash<QString, bool> m_types;          ///< type -> whether it matches
  std::vector<signed char> m_properties; ///< by number of the spelling: -1 unknown, else whether it matches
};
