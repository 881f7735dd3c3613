#pragma once

#include <io/scenariosummary.h>

#include <QAbstractItemModel>

/// What case and scenario carry beside the network: sections, below each its settings with value, source and comment.
class ScenarioModel : public QAbstractItemModel {
  Q_OBJECT
public:
  enum Columns { NameColumn, ValueColumn, SourceColumn, CommentColumn, ColumnCount };
  enum Roles { FilterRole = Qt::UserRole }; ///< of a setting: every text of its row and its section; of a section: nothing

  explicit ScenarioModel(QObject *parent = nullptr);

  void set(const ScenarioSummary &summary);

  /// A text as a cell shows it: a view measures every letter, which takes seconds for a text of megabytes.
  static QString shown(const QString &text);

  QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const final;
  QModelIndex parent(const QModelIndex &child) const final;
  int rowCount(const QModelIndex &parent = QModelIndex()) const final;
  int columnCount(const QModelIndex &parent = QModelIndex()) const final;
  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const final;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const final;

private:
  struct Section {
    QString name;
    std::vector<ScenarioSummary::Row> rows;
  };

  const ScenarioSummary::Row *rowAt(const QModelIndex &index) const;
  QString text(const ScenarioSummary::Row &row, int column) const;

  std::vector<Section> m_sections;
  QString m_root; ///< of the workspace
};
