#pragma once

#include <QCollatorSortKey>
#include <QString>

#include <optional>

/// The order in which a person looks for names: regardless of case, numbers in them by size (P_2 before P_10). For the GUI
/// thread only.
namespace NaturalOrder {

/// Comparing keys is cheap, making one is not.
QCollatorSortKey key(const QString &text);

/// Orders the cells of a column: numbers by size, then texts in natural order.
class Rank {
public:
  explicit Rank(const QString &text);
  bool operator<(const Rank &other) const;

private:
  double m_number = 0.0;
  std::optional<QCollatorSortKey> m_key; ///< of a text; a number has none
};

} // namespace NaturalOrder
