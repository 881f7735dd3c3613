#pragma once

#include <io/scenariosummary.h>
#include <tools/groupmodel.h>

struct SettingGroup {
  QString name; ///< of the section
  std::vector<ScenarioSummary::Row> rows;
};
using SettingGroups = NamedGroups<SettingGroup, &SettingGroup::rows>;

/// What case and scenario carry beside the network: sections, below each its settings with value, source and comment.
class ScenarioModel final : public SettingGroups {
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
  const std::vector<SettingGroup> &groups() const final { return m_sections; }
  QVariant entryData(int group, int entry, int column, int role) const final;

private:
  QString text(const ScenarioSummary::Row &row, int column) const;

  std::vector<SettingGroup> m_sections;
  QString m_root; ///< of the workspace
};
