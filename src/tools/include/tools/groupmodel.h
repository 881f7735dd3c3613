#pragma once

#include <base/index.h>

#include <QAbstractItemModel>
#include <QStringList>

#include <vector>

/// A tree of two levels, for models of groups and what is in them.
///
/// 1. The internal id of a group is 0, that of an entry the row of its group and one.
/// 2. Below the first column of a group are its entries; nothing is below an entry.
/// 3. Groups and entries only change between beginResetModel() and endResetModel().
class GroupModel : public QAbstractItemModel {
  Q_OBJECT
public:
  QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const final;
  QModelIndex parent(const QModelIndex &child) const final;
  int rowCount(const QModelIndex &parent = QModelIndex()) const final;
  int columnCount(const QModelIndex &parent = QModelIndex()) const final;
  Qt::ItemFlags flags(const QModelIndex &index) const override;
  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const final;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const final;

protected:
  /// \param titles one for each column
  GroupModel(QStringList titles, QObject *parent);

  virtual int groupCount() const = 0;
  virtual int entryCount(int group) const = 0;
  virtual QVariant groupData(int group, int column, int role) const = 0;
  virtual QVariant entryData(int group, int entry, int column, int role) const = 0;

  /// Of the names of groups, for Qt::FontRole.
  static QVariant boldFont();

private:
  QStringList m_titles;
};

/// Groups that have a name, which is shown in bold letters, and their entries in a vector.
template <typename Group, auto Entries>
class NamedGroups : public GroupModel {
protected:
  using GroupModel::GroupModel;

  virtual const std::vector<Group> &groups() const = 0;
  const Group &at(int group) const { return groups()[fromQt(group)]; }
  const auto &at(int group, int entry) const { return (at(group).*Entries)[fromQt(entry)]; }

  int groupCount() const final { return toQt(groups().size()); }
  int entryCount(int group) const final { return toQt((at(group).*Entries).size()); }
  QVariant groupData(int group, int column, int role) const override {
    if (role == Qt::DisplayRole && column == 0)
      return at(group).name;
    return role == Qt::FontRole ? boldFont() : QVariant();
  }
};
