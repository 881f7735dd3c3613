#pragma once

#include "why/valuereasons.h"

#include <QStandardItemModel>

/// The lines of an explanation as a tree.
class ReasonModel : public QStandardItemModel {
  Q_OBJECT
public:
  enum Columns { TextColumn, ValueColumn, WhereColumn, ColumnCount };
  enum Roles { ElementRole = Qt::UserRole, PropertyRole };

  explicit ReasonModel(QObject *parent = nullptr);
  void show(const std::vector<Reason> &reasons);
  /// Whether a person may ask on about this line.
  static bool leadsOn(const QModelIndex &line) { return !line.data(ElementRole).toString().isEmpty(); }

private:
  static void add(QStandardItem &parent, const std::vector<Reason> &reasons);
};
