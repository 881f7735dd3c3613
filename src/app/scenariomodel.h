#pragma once

#include <base/index.h>
#include <io/scenariosummary.h>
#include <tools/groupmodel.h>

/// What case and scenario carry beside the network: sections, below each its settings with value, source and comment.
class ScenarioModel final : public GroupModel {
  Q_OBJECT
public:
  enum Columns { NameColumn, ValueColumn, SourceColumn, CommentColumn };
  enum Roles { FilterRole = Qt::UserRole }; ///< of a setting: every text of its row and its section; of a section: nothing

  explicit ScenarioModel(QObject *parent = nullptr);

  void set(const ScenarioSummary &summary);

  /// A text as a cell shows it, cut where it is very long: a view measures every letter, which takes seconds for a text of
  /// megabytes.
  static QString shortened(const QString &text);

protected:
  int groupCount() const final;
  int entryCount(int group) const final;
  QVariant groupData(int group, int column, int role) const final;
  QVariant entryData(int group, int entry, int column, int role) const final;

private:
  struct Section {
    QString name;
    std::vector<ScenarioSummary::Row> rows;
  };

  const Section &at(int group) const { return m_sections[fromQt(group)]; }
  QString text(const ScenarioSummary::Row &row, int column) const;

  std::vector<Section> m_sections;
  QString m_root; ///< of the workspace
};
