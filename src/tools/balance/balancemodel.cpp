#include "balance/balancemodel.h"

#include <model/displayformat.h>
#include <tools/plaintip.h>

#include <QFont>

#include <cmath>

namespace {

using Figure = Balance::Figure;

Figure figureOf(int column) {
  switch (column) {
  case BalanceModel::EntryNodesColumn:
  case BalanceModel::EntriesColumn:
    return Figure::Entries;
  case BalanceModel::ExitNodesColumn:
  case BalanceModel::ExitsColumn:
    return Figure::Exits;
  case BalanceModel::FuelColumn:
    return Figure::Fuel;
  case BalanceModel::UnknownNodesColumn:
  case BalanceModel::UnknownColumn:
    return Figure::Unknown;
  case BalanceModel::OthersColumn:
    return Figure::FromOthers;
  case BalanceModel::ImbalanceColumn:
    return Figure::Imbalance;
  default:
    return Figure::Nodes;
  }
}

std::optional<Index> countOf(const Balance::Sums &sums, int column) {
  switch (column) {
  case BalanceModel::NodesColumn:
    return sums.nodes;
  case BalanceModel::EntryNodesColumn:
    return sums.entryCount;
  case BalanceModel::ExitNodesColumn:
    return sums.exitCount;
  case BalanceModel::UnknownNodesColumn:
    return sums.unknownCount;
  default:
    return std::nullopt;
  }
}

bool isCount(int column) {
  return countOf(Balance::Sums(), column).has_value();
}

QString tipOf(int column) {
  switch (column) {
  case BalanceModel::EntryNodesColumn:
    return BalanceModel::tr("Nodes that supply");
  case BalanceModel::EntriesColumn:
    return BalanceModel::tr("Set flows into the network");
  case BalanceModel::ExitNodesColumn:
    return BalanceModel::tr("Nodes that take");
  case BalanceModel::ExitsColumn:
    return BalanceModel::tr("Set flows out of the network, without the fuel that they count");
  case BalanceModel::FuelColumn:
    return BalanceModel::tr("What drives of compressors burn, by the results, at the node that feeds them");
  case BalanceModel::UnknownNodesColumn:
    return BalanceModel::tr("Sources, sinks and nodes of held pressure whose flow nobody states");
  case BalanceModel::UnknownColumn:
    return BalanceModel::tr("What comes in there, by the results");
  case BalanceModel::OthersColumn:
    return BalanceModel::tr("What comes from other groups less what goes there, by the results");
  case BalanceModel::ImbalanceColumn:
    return BalanceModel::tr("Entries - exits - fuel + unknown + from others");
  default:
    return QString();
  }
}

} // namespace

void BalanceModel::set(Balance balance, const DisplayUnits::Shown &flow) {
  beginResetModel();
  m_balance = std::move(balance);
  m_flow = flow;
  endResetModel();
}

void BalanceModel::clear() {
  beginResetModel();
  m_balance.reset();
  endResetModel();
}

QStringList BalanceModel::elements(const QModelIndex &cell) const {
  if (!m_balance || !cell.isValid())
    return {};
  return m_balance->elements(groupOf(cell.row()), figureOf(cell.column()));
}

int BalanceModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() || !m_balance ? 0 : toQt(m_balance->groups().size() + 1);
}

int BalanceModel::columnCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

const Balance::Sums &BalanceModel::sums(int row) const {
  return isSum(row) ? m_balance->total() : m_balance->groups()[groupOf(row)].sums;
}

/// What remains of rounding is no imbalance.
double BalanceModel::flow(const Balance::Sums &of, int column) const {
  constexpr double Rounding = 1e-6; // share of what flows
  const Balance::Sums &all = m_balance->total();
  const double flowing = all.entries + all.exits + std::abs(all.unknown);
  const auto rounded = [flowing](double value) {
    return std::abs(value) < Rounding * flowing ? 0.0 : value;
  };
  switch (column) {
  case EntriesColumn:
    return of.entries;
  case ExitsColumn:
    return of.exits;
  case FuelColumn:
    return of.fuel;
  case UnknownColumn:
    return rounded(of.unknown);
  case OthersColumn:
    return rounded(of.fromOthers);
  default:
    return rounded(of.imbalance());
  }
}

QVariant BalanceModel::value(int row, int column) const {
  if (column == GroupColumn)
    return isSum(row) ? tr("Sum") : m_balance->groups()[groupOf(row)].name;
  const Balance::Sums &of = sums(row);
  if (const std::optional<Index> count = countOf(of, column))
    return static_cast<double>(*count);
  const double stored = flow(of, column);
  return NetworkFacts::isKnown(stored) ? QVariant(m_flow.toDisplay(stored)) : QVariant();
}

QVariant BalanceModel::data(const QModelIndex &index, int role) const {
  if (!index.isValid() || !m_balance)
    return QVariant();
  switch (role) {
  case ValueRole:
    return value(index.row(), index.column());
  case Qt::DisplayRole: {
    QVariant shown = value(index.row(), index.column());
    if (shown.type() != QVariant::Double)
      return shown;
    return isCount(index.column()) ? QString::number(shown.toDouble(), 'f', 0) : DisplayFormat::number(shown.toDouble());
  }
  case Qt::TextAlignmentRole:
    return QVariant(Qt::AlignVCenter | (index.column() == GroupColumn ? Qt::AlignLeft : Qt::AlignRight));
  case Qt::FontRole: {
    QFont font;
    font.setBold(isSum(index.row()));
    return font;
  }
  case Qt::ToolTipRole:
    return PlainTip::of(index.column() == GroupColumn ? data(index, Qt::DisplayRole).toString() : tipOf(index.column()));
  default:
    return QVariant();
  }
}

QVariant BalanceModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
    return QVariant();
  if (role == Qt::ToolTipRole)
    return PlainTip::of(tipOf(section));
  static const char *const Titles[] = {QT_TR_NOOP("group"),       QT_TR_NOOP("nodes"),         QT_TR_NOOP("entry nodes"),
                                       QT_TR_NOOP("entries"),     QT_TR_NOOP("exit nodes"),    QT_TR_NOOP("exits"),
                                       QT_TR_NOOP("fuel"),        QT_TR_NOOP("unknown nodes"), QT_TR_NOOP("unknown"),
                                       QT_TR_NOOP("from others"), QT_TR_NOOP("imbalance")};
  const QString title = tr(Titles[section]);
  if (section == GroupColumn || isCount(section) || m_flow.unit.isEmpty())
    return title;
  return QStringLiteral("%1\n[%2]").arg(title, Units::written(m_flow.unit));
}
