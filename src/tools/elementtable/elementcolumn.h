#pragma once

#include <base/index.h>
#include <model/propertykey.h>
#include <model/units.h>

#include <QString>

#include <optional>
#include <vector>

class DisplayValue;
class ElementList;
class NetMetaData;
class PropertyText;

/// One property of the elements of a list, in one unit: that in which people read it of the type which most elements have.
///
/// 1. A cell is empty, a number or a text. A value of 1e20 and beyond stands for the absence of one and is empty.
/// 2. Names of elements and what belongs to the drawing are texts, whatever they look like.
/// 3. Numbers of all rows are read once, by numbers(); what text() says is read anew each time.
class ElementColumn {
public:
  /// The list and the display outlive the column.
  ElementColumn(PropertyKey key, const ElementList &list, DisplayValue &display, const NetMetaData &metaData);

  PropertyKey key() const { return m_key; }
  /// The name of the property, with the unit behind it in brackets where there is one.
  QString title() const;
  const QString &unit() const { return m_unit; }
  /// What the property is called and what it means.
  const QString &explanation() const { return m_explanation; }

  /// The exact text of the cell: a number that was converted has all of its digits.
  QString text(Index row) const;
  /// By row, NaN where the cell holds no number.
  const std::vector<double> &numbers() const;
  bool hasNumbers() const { return numberCount() > 0; }
  std::size_t numberCount() const; ///< how many rows have one
  /// Whether a row is to stand before another: numbers by size, then texts in natural order, empty ones last either way.
  bool isBefore(Index row, Index other, Qt::SortOrder order) const;
  /// Makes ready what isBefore() compares.
  void prepareOrder() const;

private:
  void findUnit(DisplayValue &display);
  std::optional<double> number(const PropertyText &text, std::size_t type) const;
  void rankTexts() const;

  PropertyKey m_key;
  const ElementList &m_list;
  QString m_unit;
  QString m_explanation;
  bool m_holdsTexts = false;
  std::vector<std::optional<Units::Linear>> m_conversions; ///< by type; nothing for values that are shown as stored
  mutable std::vector<double> m_numbers;
  mutable std::vector<Index> m_ranks; ///< by row, of texts in their order; NoIndex for empty cells, 0 for numbers
  mutable std::size_t m_numberCount = 0;
};
