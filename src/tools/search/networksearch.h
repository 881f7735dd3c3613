#pragma once

#include <base/pattern.h>
#include <formulas/formula.h>
#include <model/netdata.h>
#include <model/propertycolumns.h>
#include <tools/displayvalue.h>
#include <tools/searchcriteria.h>
#include <tools/searchparams.h>

#include <atomic>
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
  /// Adds the rows of one element, which is marked or unmarked. Throws FormulaError, which names the element.
  void search(element &candidate, std::vector<SearchRow> &rows);

private:
  struct Part;
  struct Type {
    std::string utf8;
    QString text;
    bool matches = false;
  };

  /// Searches the candidates from the index first up to last, unless a part before them has stopped.
  Part searchPart(const std::vector<element *> &candidates, std::size_t first, std::size_t last,
                  std::atomic<std::size_t> &stoppedAt);
  bool matchesName(const QString &name) const;
  const Type &type(std::string_view utf8);
  bool addRows(const element &candidate, std::vector<SearchRow> &rows);
  QString parseFormula();
  bool satisfiesFormula(const element &candidate);

  NetData &m_net;
  SearchParams m_params;
  Pattern m_name;
  SearchedTypes m_type;
  SearchedProperties m_properties;
  SearchedValues m_value;
  std::optional<Formula> m_formula;
  PropertyColumns m_columns;
  DisplayValue m_display;
  Type m_current; ///< of the element looked at last
};
