#pragma once

#include <base/filestamp.h>
#include <base/finding.h>
#include <base/onceperturn.h>
#include <drawing/labeltable.h>
#include <model/topology.h>
#include <paper/pagecontent.h>
#include <view/netpicker.h>
#include <view/netplot.h>
#include <view/plotactions.h>
#include <view/scenariosource.h>
#include <view/styleactions.h>
#include <view/viewbookmarks.h>

#include <QObject>
#include <QPointer>

class MeasureTool;
class MouseModes;
class NetData;
class NetworkPaper;
class PlotMenu;
class QMenu;

/// Brings a network and its plot together: the only door to the drawing of a window. What is selected belongs to the
/// network, and its picker alone changes it; what is current in the window and which layers are hidden belong here.
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
  /// What can be done with the drawing; for menus and tool bars of the window.
  PlotActions &actions() const { return *m_actions; }
  /// Named styles, and the way back from changes of how it is drawn.
  StyleActions &styles() const { return *m_styles; }
  /// Greys what cannot be done now and nobody would answer, for a menu that is about to be shown.
  void refreshActions();

  /// Forgets what is drawn; to be called before the network changes.
  void clear();
  /// Where "KIND.svg" is the symbol of a kind of subnet; for the networks shown from now on.
  void setSubnetIcons(const QString &folder) { m_subnetIcons = folder; }
  /// Which case and scenario the network is; the legend says it.
  void setCaption(const QString &caption) { m_plot->setCaption(caption); }
  /// Draws the network with the settings of the file or, where there is none, with settings that suit the network. Beside
  /// the file may stand the label table "vfd.csv" and the folder "symbols" with symbols of the user's own.
  void showNetData(const QString &plotSettingsPath);
  /// How the network is drawn, as texts to keep and to put back: what the files of the case do not say. Empty where it is
  /// drawn as they say.
  struct OwnStyle {
    QByteArray settings;
    QByteArray labels;
    bool isEmpty() const { return settings.isEmpty() && labels.isEmpty(); }
  };
  OwnStyle ownStyle() const;
  void setOwnStyle(const OwnStyle &style);
  /// The files that OwnStyle is compared with, as they were when this window read or wrote them last.
  struct StyleFiles {
    FileStamp settings;
    FileStamp labels;
  };
  const StyleFiles &styleFiles() const { return m_styleFiles; }
  /// The network is drawn as these files say it: they were read or written just now.
  void noteStyleFiles(bool settings, bool labels);
  /// After values have changed: draws at once, with what waits for the end of the turn of the event loop. Which elements
  /// there are and where they lie stays; labels that stand say something else.
  void redraw();
  /// After general settings have changed: takes what the drawing reads of them and draws at once; the view stays.
  void takeSettings();
  /// Layers whose elements are not drawn, by the values of the property; drawn at the end of the turn.
  void setHiddenLayers(const QString &property, const QSet<QString> &layers);
  /// Makes the element the current one of the window; empty for none.
  void setCurrentElement(const QString &name);
  const QString &currentElement() const { return m_currentElement; }
  /// Selects the element, where it is drawn, and makes it the current one.
  void mark(const QString &name);
  /// What showNetData() found of the label table's file; what it told is not kept.
  const LabelTableFile::Reading &labelsRead() const { return m_labelsRead; }
  /// Places labels at once, whatever the settings say.
  void relabelNow();
  /// What labels say; null without a network. Valid until something is drawn anew.
  const LabelContents *labelContents() const;
  /// Brings an element into the middle of the view; false when it is not drawn.
  bool showElement(const QString &name);
  /// In a layer that is not drawn.
  bool isHidden(const QString &name) const;
  /// Selects the elements that the last search marked. \param topoClosure with end nodes and the edges between nodes
  void selectSearchResults(bool topoClosure, bool additive);
  /// Colours what the last search marked instead of the draw functions, from the end of the turn on.
  void setShowsSearchResults(bool shows);
  bool showsSearchResults() const;
  /// After another search.
  void refreshSearchResults();
  /// Selects what lies upstream or downstream of the element along the flow.
  void trace(const QString &name, Topology::Direction direction);
  /// What pages say of the network, and the scenarios that several pages may show.
  void setPageFacts(PageFacts facts, ScenarioSource scenarios = {});
  /// The drawing on a page, in a dialog that shows the page: for the printer, and for a file. The screen's does not change.
  void print();
  void savePage();
  /// Views to come back to, kept with the case.
  ViewBookmarks &bookmarks() { return m_bookmarks; }

signals:
  void selectionChanged();
  void styleChanged();    ///< by setOwnStyle() or styles()
  void styleFilesNoted(); ///< by noteStyleFiles()
  void currentElementChanged(const QString &name);
  void hiddenLayersChanged(const QSet<QString> &layers);
  void elementAction(const QString &name, NetPicker::EleAction action);
  void editPropertiesRequested(const QStringList &names);
  void openCharacteristicsRequested(const QStringList &names);
  void configureDrawRequested();
  void subnetWanted(const QString &name); ///< in a window of its own

private:
  void connectActions();
  PlotActions::Answered answered() const;
  void fillMenu(QMenu &contextMenu);
  void draw();
  NetworkPaper paper();

  NetData &m_net;
  QString m_name;
  ViewBookmarks m_bookmarks;
  LabelTableFile::Reading m_labelsRead;
  QString m_settingsPath;
  PlotSettings m_settingsOfFiles; ///< or what suits the network, where there is no such file
  LabelTable m_labelsOfFiles;
  StyleFiles m_styleFiles;
  QString m_subnetIcons;
  QString m_folder; ///< of the case
  PageFacts m_pageFacts;
  ScenarioSource m_scenarios;
  QString m_currentElement;
  QPointer<NetPlot> m_plot;
  NetPicker *m_picker; ///< belongs to the canvas of the plot
  MouseModes *m_modes; ///< these two belong to the plot
  MeasureTool *m_measure;
  std::unique_ptr<PlotActions> m_actions;
  std::unique_ptr<StyleActions> m_styles;
  std::unique_ptr<PlotMenu> m_menu;
  OncePerTurn m_drawing;
  NetUpdate::Labels m_labels = NetUpdate::Labels::Kept; ///< when it is drawn
};
