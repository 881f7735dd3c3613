#include <model/propertycolumns.h>

#include <algorithm>

namespace {

PropertyKey keyAt(const element &source, std::size_t index) {
  return index < source.size() ? source.begin()[static_cast<std::ptrdiff_t>(index)].key : PropertyKey();
}

} // namespace

PropertyColumns::PropertyColumns(std::vector<PropertyKey> keys) {
  m_columns.resize(keys.size());
  for (std::size_t i = 0; i < keys.size(); ++i)
    m_columns[i].key = keys[i];
}

void PropertyColumns::read(const element &source) {
  for (Column &column : m_columns) {
    // The same neighbours at the same index mean the same answer; a key that is there needs no neighbour.
    const bool isAsBefore =
        keyAt(source, column.index).isSameSpelling(column.at) &&
        (column.isThere || (column.index <= source.size() &&
                            (column.index == 0 || keyAt(source, column.index - 1).isSameSpelling(column.before))));
    if (!isAsBefore)
      search(column, source);
    column.found = column.isThere ? &source.begin()[static_cast<std::ptrdiff_t>(column.index)].value : nullptr;
  }
}

void PropertyColumns::fetch(const element &source) const {
  if (source.isEmpty())
    return;
  for (const Column &column : m_columns)
    __builtin_prefetch(&*source.begin() + column.index);
}

void PropertyColumns::search(Column &column, const element &source) {
  const auto found = std::lower_bound(source.begin(), source.end(), column.key,
                                      [](const Property &property, PropertyKey key) { return property.key < key; });
  column.index = static_cast<std::size_t>(found - source.begin());
  column.before = column.index == 0 ? PropertyKey() : keyAt(source, column.index - 1);
  column.at = keyAt(source, column.index);
  column.isThere = !column.at.isNull() && column.at == column.key;
}
