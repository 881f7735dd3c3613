#pragma once

#include <model/netdata.h>
#include <model/netmetadata.h>

#include <QTreeWidget>

/// The window "MetaData": the vocabulary of the network model, to be looked at.
class MetaDataTable : public QTreeWidget {
  Q_OBJECT
public:
  explicit MetaDataTable(const NetData &net, QWidget *parent = nullptr);
  ~MetaDataTable() override;

  void fill();

private:
  struct Entry {
    QString shortName;
    QString longName;
    QString description;
  };

  void addGroup(const QString &name, const std::vector<Entry> &entries);
  std::vector<Entry> types() const;
  std::vector<Entry> functions(const QStringList &properties) const;
  std::vector<Entry> properties(const QString &group) const;

  const NetData &m_net;
};
