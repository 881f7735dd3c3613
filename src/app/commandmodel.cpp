#include "commandmodel.h"

#include <base/index.h>

#include <QAction>
#include <QPixmap>

CommandModel::CommandModel(QObject *parent)
    : QAbstractTableModel(parent) {
  constexpr int AnySize = 64;
  QPixmap empty(AnySize, AnySize); // so that all texts begin at one edge
  empty.fill(Qt::transparent);
  m_noIcon = QIcon(empty);
}

void CommandModel::setCommands(std::vector<Command> commands, const QStringList &used) {
  m_commands = std::move(commands);
  m_used = used;
  setQuery(QString());
}

void CommandModel::setQuery(const QString &query) {
  beginResetModel();
  m_rows = CommandList::matching(m_commands, query, m_used);
  endResetModel();
}

int CommandModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : toQt(m_rows.size());
}

int CommandModel::columnCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

QVariant CommandModel::data(const QModelIndex &index, int role) const {
  if (!index.isValid())
    return QVariant();
  const Command &shown = command(index.row());
  if (role == Qt::DisplayRole && index.column() == TextColumn)
    return shown.isChecked() ? shown.text + QStringLiteral("  ✓") : shown.text;
  if (role == Qt::DisplayRole)
    return index.column() == MenuColumn ? shown.menu : shown.key;
  if (role == Qt::ToolTipRole && shown.action != nullptr)
    return shown.action->toolTip().toHtmlEscaped();
  if (index.column() != TextColumn || shown.action == nullptr)
    return role == Qt::TextAlignmentRole && index.column() == KeyColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                                                        : QVariant();
  if (role == Qt::DecorationRole)
    return shown.action->icon().isNull() ? m_noIcon : shown.action->icon();
  return QVariant();
}

QVariant CommandModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
    return QVariant();
  return section == TextColumn ? tr("Command") : section == MenuColumn ? tr("Menu") : tr("Key");
}

Qt::ItemFlags CommandModel::flags(const QModelIndex &index) const {
  return index.isValid() && command(index.row()).isEnabled() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}
