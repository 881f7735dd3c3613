#pragma once

#include <view/netpicker.h>
#include <view/plotactions.h>
#include <view/viewbookmarks.h>

#include <map>

class QMenu;

/// The entries of the context menu of the plot: what can be done with the selection, with what lies under the cursor, and
/// with the view.
class PlotMenu : public QObject {
  Q_OBJECT
public:
  /// What the entries say besides the network; those that nobody would answer are greyed.
  struct State : PlotActions::Answered {
    ViewBookmarks &bookmarks; ///< of the case
  };

  PlotMenu(NetPlot &plot, NetPicker &picker, const NetData &net, PlotActions &actions);

  void fill(QMenu &contextMenu, const State &state);

signals:
  void showRequested(const QString &name);
  void infoRequested(const QString &name);
  void editPropertiesRequested(const QStringList &names);
  void openCharacteristicsRequested(const QStringList &names);
  void subnetRequested(const QString &name); ///< in a window of its own
  void pageRequested();

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
  using NamesSignal = void (PlotMenu::*)(const QStringList &names);

  void addCrowd(QMenu &contextMenu);
  void addSelection(QMenu &contextMenu, const State &state);
  void addSubnet(QMenu &contextMenu, const State &state);
  void addMachines(QMenu &contextMenu, const State &state);
  QStringList machinesHere() const;
  void addSubnetEntries(QMenu &parent, const QString &subnet, const State &state);
  Offer offerOf(const element &subnet, bool (*isOffered)(const QString &type)) const;
  /// One by one and all of a kind; \param otherwise says that there is nothing
  void addOffer(QMenu &entries, const Offer &offer, NamesSignal signal, const QString &otherwise);
  /// Those of the commands that are not greyed.
  void addUsable(QMenu &contextMenu, std::initializer_list<PlotActions::Command> commands);
  void addBookmarks(QMenu &contextMenu, ViewBookmarks &bookmarks);

  NetPlot &m_plot;
  NetPicker &m_picker;
  const NetData &m_net;
  PlotActions &m_actions;
};
