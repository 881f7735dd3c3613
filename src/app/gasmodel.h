#pragma once

#include <io/scenariosummary.h>
#include <model/netmetadata.h>

#include <QAbstractTableModel>
#include <QStringList>

/// The gases of a scenario beside one another: a row a property with its unit, a column a gas. Values are shown in the
/// display unit of the property.
class GasModel : public QAbstractTableModel {
  Q_OBJECT
public:
  enum Columns { PropertyColumn, UnitColumn, FirstGasColumn };
  enum Roles { FilterRole = Qt::UserRole }; ///< every text of the row, its long name and the names of the gases

  explicit GasModel(QObject *parent = nullptr);

  void set(const GasTable &gases, const NetMetaData &metaData);

  int rowCount(const QModelIndex &parent = QModelIndex()) const final;
  int columnCount(const QModelIndex &parent = QModelIndex()) const final;
  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const final;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const final;

private:
  struct Row {
    QString longName;
    QStringList texts; ///< by column
  };

  QStringList m_gases;
  std::vector<Row> m_rows;
};
