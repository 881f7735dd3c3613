#pragma once

#include <base/finding.h>
#include <model/topology.h>
#include <view/netpicker.h>
#include <view/netplot.h>
#include <view/viewbookmarks.h>

#include <QObject>
#include <QPointer>

class NetData;
class PlotMenu;
class QMenu;

/// Brings a network and its plot together.
class NetVisControl : public QObject {
  Q_OBJECT
public:
  /// \param name of the view; empty for the main one
  /// \param told what drawing does and what it found on the way
  NetVisControl(NetData &net, const QString &name, Told told = {}, QObject *parent = nullptr);
  ~NetVisControl() override;

  const QString &name() const { return m_name; }
  NetData &net() const { return m_net; }
  /// Owned by this object until a window takes it as its child.
  NetPlot *plot() const { return m_plot; }
  NetPicker *picker() const { return m_picker; }

  /// Forgets what is drawn; to be called before the network changes.
  void clear();
  /// Where "KIND.svg" is the symbol of a kind of subnet; for the networks shown from now on.
  void setSubnetIcons(const QString &folder) { m_subnetIcons = folder; }
  /// Draws the network with the settings of the file or, where there is none, with settings that suit the network. Beside
  /// the file may stand the label table "vfd.csv" and the folder "symbols" with symbols of the user's own.
  void showNetData(const QString &plotSettingsPath);
  /// Draws values that have changed; elements, places and labels stay as they are.
  void redraw();
  /// Layers whose elements are not drawn, by the values of the property; shown with the next redrawLayers().
  void setHiddenLayers(const QString &property, const QSet<QString> &layers);
  const QSet<QString> &hiddenLayers() const;
  /// Draws other layers than before, with the labels that belong to them.
  void redrawLayers();
  /// Places labels at once, whatever the settings say.
  void relabelNow();
  /// What labels say; null without a network. Valid until something is drawn anew.
  const LabelContents *labelContents() const;
  /// Brings an element into the middle of the view; false when it is not drawn.
  bool showElement(const QString &name);
  /// Selects the elements that the last search marked. \param topoClosure with end nodes and the edges between nodes
  void selectSearchResults(bool topoClosure, bool additive);
  /// Colours what the last search marked instead of the draw functions.
  void setShowsSearchResults(bool shows);
  bool showsSearchResults() const;
  /// After another search.
  void refreshSearchResults();
  /// Selects what lies upstream or downstream of the element along the flow.
  void trace(const QString &name, Topology::Direction direction);
  /// Views to come back to, kept with the case.
  ViewBookmarks &bookmarks() { return m_bookmarks; }

signals:
  void selectionChanged();
  void elementAction(const QString &name, NetPicker::EleAction action);
  void editPropertiesRequested(const QStringList &names);
  void openCharacteristicsRequested(const QStringList &names);
  void configureDrawRequested();
  void subnetWanted(const QString &name); ///< in a window of its own

private:
  void fillMenu(QMenu &contextMenu);

  NetData &m_net;
  QString m_name;
  ViewBookmarks m_bookmarks;
  QString m_subnetIcons;
  QPointer<NetPlot> m_plot;
  NetPicker *m_picker; ///< belongs to the canvas of the plot
  std::unique_ptr<PlotMenu> m_menu;
};
