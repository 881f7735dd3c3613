#include "configure/classmodel.h"

#include <base/index.h>
#include <model/displayformat.h>

#include <algorithm>
#include <cmath>

void ClassModel::setClasses(std::vector<Class> classes) {
  beginResetModel();
  m_classes = std::move(classes);
  if (m_classes.empty())
    m_classes.emplace_back();
  endResetModel();
}

void ClassModel::setBreaks(const std::vector<double> &breaks) {
  beginResetModel();
  m_classes.resize(breaks.size() + 1);
  for (std::size_t i = 0; i < breaks.size(); ++i)
    m_classes[i + 1].from = breaks[i];
  endResetModel();
}

void ClassModel::split(int row, double least, double most) {
  const std::size_t at = fromQt(row);
  if (row < 0 || at >= m_classes.size() || m_classes.size() >= MostClasses)
    return;
  const bool isLast = at + 1 == m_classes.size();
  const double end = isLast ? most : m_classes[at + 1].from;
  const double begin = at == 0 ? std::min(least, end) : m_classes[at].from;
  const double middle = end > begin ? begin * 0.5 + end * 0.5 : begin + std::max(1.0, std::abs(begin));
  beginInsertRows({}, row + 1, row + 1);
  m_classes.insert(m_classes.begin() + row + 1, {middle, QColor(), QString()});
  endInsertRows();
  emit dataChanged(index(0, ColorColumn), index(rowCount() - 1, ColorColumn)); // the ramp is spread anew
}

void ClassModel::remove(int row) {
  if (row < 0 || fromQt(row) >= m_classes.size() || m_classes.size() < 2)
    return;
  beginRemoveRows({}, row, row);
  m_classes.erase(m_classes.begin() + row);
  endRemoveRows();
  emit dataChanged(index(0, ColorColumn), index(rowCount() - 1, FromColumn));
}

QColor ClassModel::colorAt(int row) const {
  const Class &shown = m_classes[fromQt(row)];
  if (shown.color.isValid() || m_ramp.empty())
    return shown.color;
  const double share = m_classes.size() < 2 ? 0.0 : static_cast<double>(row) / static_cast<double>(m_classes.size() - 1);
  return m_ramp[static_cast<std::size_t>(std::lround(share * static_cast<double>(m_ramp.size() - 1)))];
}

int ClassModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : toQt(m_classes.size());
}

int ClassModel::columnCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

QVariant ClassModel::data(const QModelIndex &index, int role) const {
  if (!index.isValid())
    return QVariant();
  const Class &shown = m_classes[fromQt(index.row())];
  const bool isText = role == Qt::DisplayRole || role == Qt::EditRole;
  if (index.column() == ColorColumn) {
    if (role == Qt::DecorationRole) // seen on a selected row too
      return colorAt(index.row());
    return role == Qt::ToolTipRole || role == Qt::AccessibleTextRole ? colorAt(index.row()).name() : QVariant();
  }
  if (isText && index.column() == LabelColumn)
    return shown.label;
  if (isText && index.row() > 0)
    return DisplayFormat::editable(QString::number(shown.from, 'g', 12));
  return role == Qt::DisplayRole ? tr("lowest") : QVariant();
}

bool ClassModel::setFrom(int row, const QString &text) {
  bool isNumber = false;
  const double from = DisplayFormat::typed(text, DisplayFormat::decimalSign()).toDouble(&isNumber);
  const std::size_t at = fromQt(row);
  const bool isAbove = at < 2 || from > m_classes[at - 1].from;
  const bool isBelow = at + 1 >= m_classes.size() || from < m_classes[at + 1].from;
  if (!isNumber || !std::isfinite(from)) {
    emit refused(tr("\"%1\" is no number.").arg(text));
    return false;
  }
  if (!isAbove || !isBelow) {
    emit refused(tr("A class begins between the beginnings of those beside it."));
    return false;
  }
  m_classes[at].from = from;
  return true;
}

bool ClassModel::setData(const QModelIndex &index, const QVariant &value, int role) {
  constexpr int LongestLabel = 60; // characters
  if (!index.isValid() || role != Qt::EditRole)
    return false;
  Class &changed = m_classes[fromQt(index.row())];
  switch (index.column()) {
  case ColorColumn:
    changed.color = value.value<QColor>();
    break;
  case LabelColumn:
    changed.label = value.toString().trimmed().left(LongestLabel);
    break;
  default:
    if (index.row() == 0 || !setFrom(index.row(), value.toString()))
      return false;
  }
  emit dataChanged(index, index);
  return true;
}

QVariant ClassModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
    return QVariant();
  return section == ColorColumn ? tr("Colour") : section == FromColumn ? tr("From") : tr("Name in the legend");
}

Qt::ItemFlags ClassModel::flags(const QModelIndex &index) const {
  if (!index.isValid())
    return Qt::NoItemFlags;
  const bool isTyped = index.column() == LabelColumn || (index.column() == FromColumn && index.row() > 0);
  const Qt::ItemFlags plain = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  return isTyped ? plain | Qt::ItemIsEditable : plain;
}
