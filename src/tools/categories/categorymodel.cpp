#include "categories/categorymodel.h"

#include <base/index.h>

namespace {

/// The field of a category, constant or not, that a column shows.
template <typename AnyCategory>
auto &field(AnyCategory &category, int column) {
  switch (column) {
  case CategoryModel::CategoryColumn:
    return category.category;
  case CategoryModel::NameColumn:
    return category.name;
  case CategoryModel::TypeColumn:
    return category.type;
  case CategoryModel::PropertyColumn:
    return category.prop;
  default:
    return category.value;
  }
}

} // namespace

CategoryModel::CategoryModel(std::shared_ptr<CategoryList> list, QObject *parent)
    : QAbstractTableModel(parent)
    , m_list(std::move(list)) {
  m_search.category = QStringLiteral("fromSearch");
  m_search.prop = QStringLiteral("^name$");
  connect(m_list.get(), &CategoryList::changing, this, &CategoryModel::beginChange);
  connect(m_list.get(), &CategoryList::changed, this, &CategoryModel::endChange);
}

void CategoryModel::setSearch(const Category &search) {
  m_search = search;
  tellRow(SearchRow);
}

const Category &CategoryModel::category(int row) const {
  return row == SearchRow ? m_search : m_list->categories()[fromQt(indexOf(row))];
}

void CategoryModel::beginChange(CategoryList::Change change, int category) {
  const int row = rowOf(category);
  if (change == CategoryList::Change::Added)
    beginInsertRows(QModelIndex(), row, row);
  else if (change == CategoryList::Change::Removed)
    beginRemoveRows(QModelIndex(), row, row);
  else if (change == CategoryList::Change::Read)
    beginResetModel();
}

void CategoryModel::endChange(CategoryList::Change change, int category) {
  if (change == CategoryList::Change::Added)
    endInsertRows();
  else if (change == CategoryList::Change::Removed)
    endRemoveRows();
  else if (change == CategoryList::Change::Read)
    endResetModel();
  else
    tellRow(rowOf(category));
}

int CategoryModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : rowOf(toQt(m_list->categories().size()));
}

int CategoryModel::columnCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

Qt::ItemFlags CategoryModel::flags(const QModelIndex &index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  if (!index.isValid() || index.row() == SearchRow)
    return flags;
  return flags | Qt::ItemIsEditable | (index.column() == CategoryColumn ? Qt::ItemIsUserCheckable : Qt::NoItemFlags);
}

QVariant CategoryModel::data(const QModelIndex &index, int role) const {
  if (!index.isValid())
    return QVariant();
  const Category &shown = category(index.row());
  if (role == Qt::DisplayRole || role == Qt::EditRole)
    return field(shown, index.column());
  if (index.column() != CategoryColumn)
    return QVariant();
  if (role == Qt::CheckStateRole)
    return shown.isChecked ? Qt::Checked : Qt::Unchecked;
  return role == Qt::ToolTipRole ? tr("check for report") : QVariant();
}

bool CategoryModel::setData(const QModelIndex &index, const QVariant &value, int role) {
  if (!index.isValid() || index.row() == SearchRow)
    return false;
  Category edited = category(index.row());
  if (role == Qt::EditRole)
    field(edited, index.column()) = value.toString().trimmed();
  else if (role == Qt::CheckStateRole && index.column() == CategoryColumn)
    edited.isChecked = value.toInt() == Qt::Checked;
  else
    return false;
  m_list->set(fromQt(indexOf(index.row())), edited);
  return true;
}

QVariant CategoryModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
    return QAbstractTableModel::headerData(section, orientation, role);
  return QStringList{tr("category"), tr("name"), tr("type"), tr("property"), tr("value")}.value(section);
}
