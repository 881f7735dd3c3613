#pragma once

#include "unsavededits.h"

#include <model/elementchange.h>
#include <view/netviscontrol.h>

#include <QList>
#include <QObject>
#include <QStringList>

#include <memory>
#include <vector>

class CategoryList;
class NetData;
class NivraWorkspace;
class SubnetWindow;

/// The windows of the subnets: at most one for each subnet, all of them gone before the network is read again.
class SubnetWindows : public QObject {
  Q_OBJECT
public:
  /// \param parent of the windows
  SubnetWindows(NetData &net, std::shared_ptr<CategoryList> categories, QWidget &parent);

  /// Brings the one of the subnet, which is made where there is none.
  /// \param style in which the whole network is drawn where its files do not say so
  void open(const QString &subnet, const NivraWorkspace &workspace, const NetVisControl::OwnStyle &style);
  QList<SubnetWindow *> all() const;
  void closeAll();
  /// What was changed in them and is not saved.
  std::vector<UnsavedEdits::Kind> unsaved() const;
  void takeProperties();
  /// Another scenario is shown.
  void takeCase(const NivraWorkspace &workspace);
  void takeSettings();

signals:
  void elementMarked(const QString &name);
  void characteristicsWanted(const QStringList &names);
  void styleFilesNoted(); ///< those of the case were read or written by one of them
  void elementsChanged(const ElementChange &change);

private:
  NetData &m_net;
  std::shared_ptr<CategoryList> m_categories;
  QWidget &m_parent;
};
