#pragma once

#include <QCollatorSortKey>

/// The order in which a person looks for names: regardless of case, numbers in them by size (P_2 before P_10).
namespace NaturalOrder {

/// Comparing keys is cheap, making one is not. For the GUI thread only.
QCollatorSortKey key(const QString &text);

} // namespace NaturalOrder
