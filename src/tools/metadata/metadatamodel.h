#pragma once

#include <base/index.h>
#include <model/netmetadata.h>
#include <tools/groupmodel.h>

/// The vocabulary of the network model by group: the types, the functions, the properties.
class MetaDataModel final : public GroupModel {
  Q_OBJECT
public:
  enum Columns { ShortNameColumn, LongNameColumn, DescriptionColumn };

  explicit MetaDataModel(QObject *parent = nullptr);

  void set(const NetMetaData &metaData);

protected:
  int groupCount() const final;
  int entryCount(int group) const final;
  QVariant groupData(int group, int column, int role) const final;
  QVariant entryData(int group, int entry, int column, int role) const final;

private:
  struct Entry {
    QString shortName;
    QString longName;
    QString description;
  };
  struct Group {
    QString name;
    std::vector<Entry> entries;
  };

  static std::vector<Entry> types();
  static std::vector<Entry> functions(const NetMetaData &metaData, const QStringList &names);
  static std::vector<Entry> properties(const NetMetaData &metaData, const QString &group);
  const Group &at(int group) const { return m_groups[fromQt(group)]; }

  std::vector<Group> m_groups;
};
