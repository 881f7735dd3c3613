#pragma once

#include <QAbstractTableModel>
#include <QColor>

#include <vector>

/// Classes between breaks, a row each, from the lowest on: its colour, where it begins, and what the legend calls it.
class ClassModel final : public QAbstractTableModel {
  Q_OBJECT
public:
  enum Columns { ColorColumn, FromColumn, LabelColumn, ColumnCount };
  static constexpr int MostClasses = 50;

  struct Class {
    double from = 0.0; ///< as a person reads it; of no meaning in the lowest
    QColor color;      ///< invalid for that of the ramp
    QString label;
  };

  using QAbstractTableModel::QAbstractTableModel;

  void setClasses(std::vector<Class> classes);
  const std::vector<Class> &classes() const { return m_classes; }
  /// What classes have that say no colour, at equal steps from the lowest on.
  void setRamp(std::vector<QColor> colors) { m_ramp = std::move(colors); }
  /// Other breaks; colours and labels stay where they are.
  void setBreaks(const std::vector<double> &breaks);
  /// Halves the class; the upper half is the new one. \param most where the highest ends
  void split(int row, double least, double most);
  void remove(int row);
  QColor colorAt(int row) const;

  int rowCount(const QModelIndex &parent = {}) const override;
  int columnCount(const QModelIndex &parent = {}) const override;
  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
  /// False for what is no number, and for a beginning that is not between those beside it.
  bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
  Qt::ItemFlags flags(const QModelIndex &index) const override;

signals:
  void refused(const QString &reason);

private:
  bool setFrom(int row, const QString &text);

  std::vector<Class> m_classes;
  std::vector<QColor> m_ramp; ///< as many as one likes; the nearest is taken
};
