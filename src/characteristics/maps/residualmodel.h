#pragma once

#include "mapquantity.h"

#include <QAbstractTableModel>

#include <machines/fitresiduals.h>
#include <vector>

/// How well fits and published coefficients meet the measured points: a row for each speed, and one for all.
class ResidualModel : public QAbstractTableModel {
  Q_OBJECT
public:
  enum Column { Speed, Points, FittedMean, FittedLargest, PublishedMean, PublishedLargest, Columns };

  using QAbstractTableModel::QAbstractTableModel;

  /// \param unit of the residuals, \param factor to it
  void setLines(std::vector<FitResiduals::Line> lines, const MapQuantity &quantity, double factor);

  int rowCount(const QModelIndex &parent = QModelIndex()) const override;
  int columnCount(const QModelIndex &parent = QModelIndex()) const override;
  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
  QString text(const FitResiduals::Line &line, int column) const;

  std::vector<FitResiduals::Line> m_lines;
  MapQuantity m_quantity;
  double m_factor = 1.0;
};
