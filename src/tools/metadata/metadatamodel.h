#pragma once

#include <model/netmetadata.h>
#include <tools/groupmodel.h>

struct MetaDataGroup {
  struct Entry {
    QString shortName;
    QString longName;
    QString description;
  };
  QString name;
  std::vector<Entry> entries;
};
using MetaDataGroups = NamedGroups<MetaDataGroup, &MetaDataGroup::entries>;

/// The vocabulary of the network model by group: the types, the functions, the properties.
class MetaDataModel final : public MetaDataGroups {
  Q_OBJECT
public:
  enum Columns { ShortNameColumn, LongNameColumn, DescriptionColumn };

  explicit MetaDataModel(QObject *parent = nullptr);

  void set(const NetMetaData &metaData);

protected:
  const std::vector<MetaDataGroup> &groups() const final { return m_groups; }
  QVariant groupData(int group, int column, int role) const final;
  QVariant entryData(int group, int entry, int column, int role) const final;

private:
  using Entry = MetaDataGroup::Entry;

  static std::vector<Entry> types();
  static std::vector<Entry> functions(const NetMetaData &metaData, const QStringList &names);
  static std::vector<Entry> properties(const NetMetaData &metaData, const QString &group);

  std::vector<MetaDataGroup> m_groups;
};
