#pragma once

#include <view/netpicker.h>

class NetVisControl;
class QMenu;

/// The entries of the context menu of the plot: what can be done with the selection, with what lies under the cursor, and
/// with the view.
class PlotMenu {
public:
  explicit PlotMenu(NetVisControl &control);

  void fill(QMenu &contextMenu) const;

private:
  void addCrowd(QMenu &contextMenu) const;
  void addSelection(QMenu &contextMenu) const;
  void addSubnet(QMenu &contextMenu) const;
  void addCharacteristics(QMenu &contextMenu) const;
  void addMachinesHere(QMenu &contextMenu) const;
  bool isMachine(const QString &name) const;
  void addTrace(QMenu &contextMenu) const;
  void addSubnetEntries(QMenu &parent, const QString &subnet) const;
  void addView(QMenu &contextMenu) const;
  void addBookmarks(QMenu &contextMenu) const;
  void addLabels(QMenu &contextMenu) const;

  NetVisControl &m_control;
};
