#include "cloudmodel.h"

#include "mapquantity.h"
#include "shownnumber.h"

#include <algorithm>

namespace {

constexpr double Percent = 100.0;

struct Quantities {
  MapQuantity flow{QStringLiteral("m³/s")};
  MapQuantity speed{QStringLiteral("1/min")};
  MapQuantity power{QStringLiteral("kW")};
};

QString numberOf(const WorkingPoint &point, int column) {
  const Quantities quantities;
  const auto number = [](const std::optional<double> &value, const MapQuantity &quantity) {
    return value ? quantity.number(*value) : QString();
  };
  switch (column) {
  case CloudModel::Flow:
    return quantities.flow.number(point.flow);
  case CloudModel::Ratio:
    return shownNumber(point.ratio);
  case CloudModel::Speed:
    return number(point.speed, quantities.speed);
  case CloudModel::Power:
    return number(point.power, quantities.power);
  default:
    return point.margins.surge ? shownNumber(Percent * *point.margins.surge, 3) : QString();
  }
}

} // namespace

void CloudModel::setRows(std::vector<Row> rows) {
  const auto isSame = [](const Row &a, const Row &b) {
    return a.scenario == b.scenario;
  };
  const bool grows = rows.size() >= m_rows.size() && std::equal(m_rows.begin(), m_rows.end(), rows.begin(), isSame);
  if (grows && rows.size() == m_rows.size()) {
    m_rows = std::move(rows);
    if (!m_rows.empty())
      emit dataChanged(index(0, 0), index(rowCount() - 1, Columns - 1));
  } else if (grows) {
    beginInsertRows({}, rowCount(), static_cast<int>(rows.size()) - 1);
    m_rows = std::move(rows);
    endInsertRows();
  } else {
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
  }
}

int CloudModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int CloudModel::columnCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : Columns;
}

QVariant CloudModel::data(const QModelIndex &index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid))
    return {};
  const Row &row = m_rows[static_cast<std::size_t>(index.row())];
  if (role == Qt::TextAlignmentRole && index.column() != Name)
    return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
  if (role == Qt::ToolTipRole && row.point)
    return row.point->remarks.join(QLatin1Char('\n')).toHtmlEscaped();
  if (role != Qt::DisplayRole)
    return {};
  if (index.column() == Name)
    return row.scenario;
  if (row.point)
    return numberOf(*row.point, index.column());
  return index.column() == Flow ? (row.fault.isEmpty() ? tr("does not run") : tr("not read: %1").arg(row.fault)) : QString();
}

QVariant CloudModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= Columns)
    return {};
  const Quantities quantities;
  switch (section) {
  case Name:
    return tr("scenario");
  case Flow:
    return quantities.flow.title(tr("volume flow"));
  case Ratio:
    return tr("pressure ratio");
  case Speed:
    return quantities.speed.title(tr("speed"));
  case Power:
    return quantities.power.title(tr("shaft power"));
  default:
    return tr("distance to surge [%]");
  }
}
