#pragma once

#include <view/netpicker.h>

#include <map>

class NetVisControl;
class QMenu;

/// The entries of the context menu of the plot: what can be done with the selection, with what lies under the cursor, and
/// with the view.
class PlotMenu {
public:
  explicit PlotMenu(NetVisControl &control);

  void fill(QMenu &contextMenu) const;

private:
  /// Elements of a subnet that something can be done with.
  struct Offer {
    struct Kind {
      QStringList all;
      QStringList active;
    };
    QStringList names;             ///< in the order of the subnet
    std::map<QString, Kind> kinds; ///< by type code
  };
  using NamesSignal = void (NetVisControl::*)(const QStringList &names);

  void addCrowd(QMenu &contextMenu) const;
  void addSelection(QMenu &contextMenu) const;
  void addSubnet(QMenu &contextMenu) const;
  void addCharacteristics(QMenu &contextMenu) const;
  void addMachinesHere(QMenu &contextMenu) const;
  bool isMachine(const QString &name) const;
  void addTrace(QMenu &contextMenu) const;
  void addSubnetEntries(QMenu &parent, const QString &subnet) const;
  Offer offerOf(const element &subnet, bool (*isOffered)(const QString &type)) const;
  /// One by one and all of a kind; \param otherwise says that there is nothing
  void addOffer(QMenu &entries, const Offer &offer, NamesSignal signal, const QString &otherwise) const;
  void addView(QMenu &contextMenu) const;
  void addBookmarks(QMenu &contextMenu) const;
  void addLabels(QMenu &contextMenu) const;

  NetVisControl &m_control;
};
