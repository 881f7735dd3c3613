#include "residualmodel.h"

#include <QFont>

namespace {

constexpr double Rounding = 1e-9; // below it a residual says nothing about the points

} // namespace

void ResidualModel::setLines(std::vector<FitResiduals::Line> lines, const MapQuantity &quantity, double factor) {
  beginResetModel();
  m_lines = std::move(lines);
  m_quantity = quantity;
  m_factor = factor;
  endResetModel();
}

int ResidualModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_lines.size());
}

int ResidualModel::columnCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : Columns;
}

QString ResidualModel::text(const FitResiduals::Line &line, int column) const {
  const auto number = [this](const std::optional<FitResiduals::Error> &error, double FitResiduals::Error::*which) {
    if (!error)
      return QStringLiteral("–");
    const double value = m_factor * (*error).*which; // a difference: only the factor of the unit counts
    return m_quantity.difference(value < Rounding ? 0.0 : value, 3);
  };
  switch (column) {
  case Speed:
    return line.speed ? MapQuantity(QStringLiteral("1/min")).text(*line.speed) : tr("all");
  case Points:
    return QString::number(line.points);
  case FittedMean:
    return number(line.fitted, &FitResiduals::Error::meanSquare);
  case FittedLargest:
    return number(line.fitted, &FitResiduals::Error::largest);
  case PublishedMean:
    return number(line.published, &FitResiduals::Error::meanSquare);
  default:
    return number(line.published, &FitResiduals::Error::largest);
  }
}

QVariant ResidualModel::data(const QModelIndex &index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid))
    return {};
  const FitResiduals::Line &line = m_lines[static_cast<std::size_t>(index.row())];
  if (role == Qt::DisplayRole)
    return text(line, index.column());
  if (role == Qt::TextAlignmentRole)
    return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
  if (role == Qt::FontRole && !line.speed) {
    QFont bold;
    bold.setBold(true);
    return bold;
  }
  return {};
}

QVariant ResidualModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= Columns)
    return {};
  if (role == Qt::ToolTipRole)
    return section == FittedMean || section == PublishedMean ? tr("Root of the mean of the squared residuals") : QVariant();
  if (role != Qt::DisplayRole)
    return {};
  const auto with = [this](const QString &name) {
    return m_quantity.title(name);
  };
  switch (section) {
  case Speed:
    return tr("line");
  case Points:
    return tr("points");
  case FittedMean:
    return with(tr("fitted:\nmean"));
  case FittedLargest:
    return with(tr("fitted:\nlargest"));
  case PublishedMean:
    return with(tr("published:\nmean"));
  default:
    return with(tr("published:\nlargest"));
  }
}
