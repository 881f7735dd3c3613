#include "shared/texttablemodel.h"

#include "shared/naturalorder.h"

#include <algorithm>
#include <numeric>

QVariant TextTableModel::data(const QModelIndex &index, int role) const {
  return index.isValid() && role == Qt::DisplayRole ? QVariant(text(index.row(), index.column())) : QVariant();
}

QVariant TextTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical)
    return QAbstractTableModel::headerData(section, orientation, role); // numbers
  if (section < 0 || section >= columnCount())
    return QVariant();
  if (role == Qt::DisplayRole)
    return title(section);
  const auto mark = m_marks.find({section, role});
  return mark == m_marks.end() ? QVariant() : mark->second;
}

bool TextTableModel::setHeaderData(int section, Qt::Orientation orientation, const QVariant &value, int role) {
  if (orientation == Qt::Vertical || section < 0 || section >= columnCount() ||
      (role != Qt::DecorationRole && role != Qt::ToolTipRole))
    return false;
  m_marks[{section, role}] = value;
  emit headerDataChanged(orientation, section, section);
  return true;
}

void TextTableModel::sort(int column, Qt::SortOrder order) {
  if (column < 0 || column >= columnCount())
    return;
  m_sortedColumn = column;
  m_order = order;
  emit layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
  const std::vector<int> rows = sortedRows();
  reorder(rows);
  std::vector<int> rowOf(rows.size()); // of each one before
  for (std::size_t i = 0; i < rows.size(); ++i)
    rowOf[fromQt(rows[i])] = toQt(i);
  const QModelIndexList before = persistentIndexList();
  QModelIndexList after;
  after.reserve(before.size());
  for (const QModelIndex &cell : before)
    after.append(index(rowOf[fromQt(cell.row())], cell.column()));
  changePersistentIndexList(before, after);
  emit layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

std::vector<int> TextTableModel::sortedRows() const {
  std::vector<NaturalOrder::Rank> ranks;
  ranks.reserve(fromQt(rowCount()));
  const QString *before = nullptr;
  for (int row = 0; row < rowCount(); ++row) {
    const QString &cell = text(row, m_sortedColumn);
    if (before != nullptr && *before == cell)
      ranks.push_back(ranks.back()); // making one is dear
    else
      ranks.emplace_back(cell);
    before = &cell;
  }
  std::vector<int> rows(ranks.size());
  std::iota(rows.begin(), rows.end(), 0);
  const auto isBefore = [&ranks](int a, int b) {
    return ranks[fromQt(a)] < ranks[fromQt(b)];
  };
  if (m_order == Qt::AscendingOrder)
    std::stable_sort(rows.begin(), rows.end(), isBefore);
  else
    std::stable_sort(rows.begin(), rows.end(), [&isBefore](int a, int b) { return isBefore(b, a); });
  return rows;
}

int TextTableModel::rowFor(const QString &text) const {
  const NaturalOrder::Rank rank(text);
  int first = 0;
  for (int count = rowCount(); count > 0;) {
    const int middle = first + count / 2;
    const NaturalOrder::Rank there(this->text(middle, m_sortedColumn));
    if (m_order == Qt::AscendingOrder ? rank < there : there < rank) {
      count /= 2;
    } else {
      first = middle + 1;
      count -= count / 2 + 1;
    }
  }
  return first;
}
