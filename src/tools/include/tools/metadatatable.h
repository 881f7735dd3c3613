#pragma once

#include <model/netdata.h>

#include <QTreeView>

class MetaDataModel;

/// The window "MetaData": the vocabulary of the network model, to be looked at.
class MetaDataTable : public QTreeView {
  Q_OBJECT
public:
  explicit MetaDataTable(const NetData &net, QWidget *parent = nullptr);
  ~MetaDataTable() override;

  void fill();

private:
  const NetData &m_net;
  MetaDataModel *m_model;
};
