#pragma once

#include <drawing/functionfigures.h>

#include <QAbstractTableModel>
#include <QTimer>

#include <deque>
#include <optional>
#include <vector>

class NetUpdate;

/// The draw functions of a network, a row each, with how many elements have a number and how the numbers are spread. These
/// are found for the rows that somebody looks at, one at a time, while nothing else is to be done.
class FunctionModel final : public QAbstractTableModel {
  Q_OBJECT
public:
  enum Columns { Name, Unit, Elements, Distribution, ColumnCount };
  enum Roles {
    WordsRole = Qt::UserRole, ///< by which a person looks for it
    FunctionRole,             ///< its name, as PlotSettings::Function has it
    BinsRole                  ///< QVector<int>; empty as long as nobody knows, and where there is nothing
  };

  /// \param drawing of the network; it lives longer, and shows the same network as long as this is used
  FunctionModel(const NetUpdate &drawing, const PlotSettings &settings, Aspect aspect, QObject *parent = nullptr);

  void setFunctions(const QStringList &names);
  int rowOf(const QString &function) const;

  int rowCount(const QModelIndex &parent = {}) const override;
  int columnCount(const QModelIndex &parent = {}) const override;
  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
  struct Row {
    QString name;
    DrawFunction function;
    std::optional<FunctionFigures> figures;
    bool isWanted = false;
  };

  const FunctionFigures *figuresOf(int row) const;
  QString textOf(const Row &row) const;
  QString reachOf(const Row &row) const;
  void work();

  const NetUpdate &m_drawing;
  const PlotSettings &m_settings;
  Aspect m_aspect;
  // Looking at a row asks for its figures.
  mutable std::vector<Row> m_rows;
  mutable std::deque<int> m_wanted;
  mutable QTimer m_work;
};
