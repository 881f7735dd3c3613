#pragma once

#include "settingdescription.h"
#include "settingsdraft.h"

#include <tools/groupmodel.h>

/// The general settings by group over a draft: name, value, and where the value in force comes from.
class SettingsModel : public GroupModel {
  Q_OBJECT
public:
  enum Column { NameColumn, ValueColumn, OriginColumn, ColumnCount };
  enum Role {
    KeyRole = Qt::UserRole,
    WordsRole,  ///< what a search looks at
    ChangedRole ///< the user or the workspace says another value than the program
  };

  /// \param draft must outlive the model
  explicit SettingsModel(SettingsDraft &draft, QObject *parent = nullptr);

  Qt::ItemFlags flags(const QModelIndex &index) const override;
  bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
  QModelIndex find(const QString &key, int column = ValueColumn) const;
  /// Null for a group.
  const SettingDescription *at(const QModelIndex &index) const;

  const SettingsDraft &draft() const { return m_draft; }
  /// The user's own value. False when it does not suit.
  bool set(const QString &key, const QString &value);
  void reset(const QString &key);
  void resetAll();
  /// All that is to be said of a setting in some lines of plain text.
  QString about(const QModelIndex &index) const;

signals:
  void edited();

protected:
  int groupCount() const override { return toQt(m_groups.size()); }
  int entryCount(int group) const override { return toQt(m_groups[fromQt(group)].settings.size()); }
  QVariant groupData(int group, int column, int role) const override;
  QVariant entryData(int group, int entry, int column, int role) const override;

private:
  struct Group {
    QString name;
    std::vector<SettingDescription> settings;
  };

  QVariant valueData(const SettingDescription &setting, int role) const;
  QString origin(const SettingDescription &setting) const;
  void tellChange(const QModelIndex &value);

  SettingsDraft &m_draft;
  std::vector<Group> m_groups;
};
