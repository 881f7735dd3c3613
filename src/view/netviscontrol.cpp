#include "canvas/canvaslegend.h"
#include "canvas/qwtfastplot.h"
#include "configure/plotsettingsfile.h"
#include "export/networkpaper.h"
#include "interaction/measuretool.h"
#include "interaction/mousemodes.h"
#include "interaction/plotmenu.h"

#include <drawing/drawfunctions.h>
#include <view/netviscontrol.h>

#include <QFileInfo>
#include <QMenu>
#include <QMetaMethod>

#include <algorithm>
#include <utility>

NetVisControl::NetVisControl(NetData &net, const QString &name, Told told, QObject *parent)
    : QObject(parent)
    , m_net(net)
    , m_name(name)
    , m_plot(new NetPlot(nullptr, std::move(told)))
    , m_picker(new NetPicker(*m_plot, net))
    , m_modes(new MouseModes(*m_plot, *m_picker, m_plot))
    , m_measure(new MeasureTool(*m_plot, m_plot))
    , m_actions(
          std::make_unique<PlotActions>(PlotActions::Subject{*m_plot, *m_picker, net, m_bookmarks, *m_modes, *m_measure}))
    , m_styles(std::make_unique<StyleActions>(*m_plot, [this]() -> decltype(auto) { return m_actions->ofNetwork(); }))
    , m_menu(std::make_unique<PlotMenu>(*m_plot, *m_picker, net, *m_actions))
    , m_drawing(OncePerTurn::Stage::Draw, [this] { draw(); }) {
  m_plot->setShowsSubnet(!name.isEmpty());
  connect(m_picker, &NetPicker::selectionChanged, this, &NetVisControl::selectionChanged);
  connect(m_picker, &NetPicker::picked, this,
          [this](const QString &picked) { emit elementAction(picked, NetPicker::EleAction::Mark); });
  connect(m_picker, &NetPicker::activated, this,
          [this](const QString &activated) { emit elementAction(activated, NetPicker::EleAction::ShowInfo); });
  connect(m_plot, &NetPlot::contextMenuRequested, this, [this](QMenu *contextMenu) { fillMenu(*contextMenu); });
  connect(m_menu.get(), &PlotMenu::showRequested, this, &NetVisControl::showElement);
  connect(m_menu.get(), &PlotMenu::infoRequested, this,
          [this](const QString &wanted) { emit elementAction(wanted, NetPicker::EleAction::ShowInfo); });
  connect(m_menu.get(), &PlotMenu::editPropertiesRequested, this, &NetVisControl::editPropertiesRequested);
  connect(m_menu.get(), &PlotMenu::openCharacteristicsRequested, this, &NetVisControl::openCharacteristicsRequested);
  connect(m_menu.get(), &PlotMenu::subnetRequested, this, &NetVisControl::subnetWanted);
  connect(m_menu.get(), &PlotMenu::pageRequested, this, &NetVisControl::savePage);
  connectActions();
  connect(m_plot, &NetPlot::drawConfigurationRequested, this, &NetVisControl::configureDrawRequested);
}

void NetVisControl::connectActions() {
  const PlotActions *actions = m_actions.get();
  connect(actions, &PlotActions::settingsChosen, m_styles.get(), &StyleActions::record);
  connect(m_styles.get(), &StyleActions::changed, this, &NetVisControl::styleChanged);
  connect(actions, &PlotActions::showRequested, this, &NetVisControl::showElement);
  connect(actions, &PlotActions::infoRequested, this,
          [this](const QString &wanted) { emit elementAction(wanted, NetPicker::EleAction::ShowInfo); });
  connect(actions, &PlotActions::propertiesRequested, this, &NetVisControl::editPropertiesRequested);
  connect(actions, &PlotActions::characteristicsRequested, this, &NetVisControl::openCharacteristicsRequested);
  connect(actions, &PlotActions::subnetRequested, this, &NetVisControl::subnetWanted);
  connect(actions, &PlotActions::traceRequested, this, &NetVisControl::trace);
  connect(actions, &PlotActions::configureRequested, this, &NetVisControl::configureDrawRequested);
  connect(actions, &PlotActions::searchResultsRequested, this, &NetVisControl::setShowsSearchResults);
}

PlotActions::Answered NetVisControl::answered() const {
  const auto isAnswered = [this](auto signal) {
    return isSignalConnected(QMetaMethod::fromSignal(signal));
  };
  return {isAnswered(&NetVisControl::elementAction), isAnswered(&NetVisControl::editPropertiesRequested),
          isAnswered(&NetVisControl::openCharacteristicsRequested), isAnswered(&NetVisControl::subnetWanted),
          isAnswered(&NetVisControl::configureDrawRequested)};
}

void NetVisControl::refreshActions() {
  m_actions->refresh(answered());
}

void NetVisControl::fillMenu(QMenu &contextMenu) {
  m_menu->fill(contextMenu, {answered(), m_bookmarks});
}

NetVisControl::~NetVisControl() {
  // A window that took the plot may have gone with it; one that lives on must not draw a network that goes away.
  if (m_plot != nullptr && m_plot->parent() == nullptr)
    delete m_plot;
  else if (m_plot != nullptr)
    clear();
}

void NetVisControl::clear() {
  m_drawing.cancel();
  m_plot->endPreview();
  m_currentElement.clear();
  m_picker->reset();
  m_plot->selection().setGeometry(nullptr);
  m_plot->update().setNetData(nullptr);
  m_plot->canvasLegend().refresh();
  m_measure->clear();
  m_modes->setMode(MouseModes::Mode::Zoom);
  m_plot->plot()->replot();
  m_actions->forgetFunctions();
  m_actions->refreshSeen();
}

void NetVisControl::showNetData(const QString &plotSettingsPath) {
  m_drawing.cancel();                  // all of it is drawn below
  m_plot->readMousePattern();          // the workspace may have general settings of its own
  m_plot->setSettings(PlotSettings()); // nothing of the case before
  m_settingsPath = plotSettingsPath;
  m_styleFiles.settings = FileStamp::of(plotSettingsPath);
  if (!m_plot->readPlotSettings(plotSettingsPath)) {
    PlotSettings settings = m_plot->settings();
    chooseDefaults(settings, m_net);
    m_plot->setSettings(settings);
  }
  m_settingsOfFiles = m_plot->settings();
  const QString folder = QFileInfo(plotSettingsPath).path();
  m_folder = folder;
  m_bookmarks = ViewBookmarks(folder + QStringLiteral("/viewbookmarks.csv"));
  LabelTable labels;
  m_labelsRead = LabelTableFile::read(folder + QStringLiteral("/vfd.csv"), labels);
  if (m_plot->told())
    std::for_each(m_labelsRead.findings.begin(), m_labelsRead.findings.end(), m_plot->told());
  m_labelsRead.findings.clear();
  m_labelsOfFiles = labels;
  m_styleFiles.labels = m_labelsRead.stamp;
  m_picker->reset();
  m_plot->update().setNetData(&m_net);
  m_plot->update().setDisplayMode(NetUpdate::DisplayMode::Functions); // nothing was searched for in it
  m_plot->update().setFolder(folder, m_subnetIcons);
  m_plot->update().setLabelTable(labels);
  m_plot->showNetwork();
  m_styles->reset();
  m_actions->refreshSeen();
}

NetVisControl::OwnStyle NetVisControl::ownStyle() const {
  OwnStyle style;
  const DrawnStyle drawn = m_plot->appliedStyle();
  if (drawn.settings != m_settingsOfFiles)
    style.settings = PlotSettingsFile::text(drawn.settings).value_or(QByteArray());
  if (drawn.labels != m_labelsOfFiles)
    style.labels = LabelTableFile::text(drawn.labels);
  return style;
}

void NetVisControl::noteStyleFiles(bool settings, bool labels) {
  if (settings) {
    m_settingsOfFiles = m_plot->appliedSettings();
    m_styleFiles.settings = FileStamp::of(m_settingsPath);
  }
  if (labels) {
    m_labelsOfFiles = m_plot->appliedStyle().labels;
    m_styleFiles.labels = FileStamp::of(QFileInfo(m_settingsPath).path() + QStringLiteral("/vfd.csv"));
  }
  emit styleFilesNoted();
}

void NetVisControl::setOwnStyle(const OwnStyle &style) {
  if (style.isEmpty())
    return;
  DrawnStyle drawn = m_plot->appliedStyle();
  if (!style.settings.isEmpty())
    PlotSettingsFile::readText(style.settings, m_settingsPath, drawn.settings, m_plot->told());
  if (!style.labels.isEmpty()) {
    drawn.labels = LabelTable();
    LabelTableFile::readText(style.labels, m_settingsPath, drawn.labels);
  }
  m_plot->setStyle(drawn);
  m_styles->reset();
  emit styleChanged();
}

void NetVisControl::draw() {
  m_plot->update().updatePlot(NetUpdate::Elements::Reread, NetUpdate::Which::EdgesAndNodes,
                              std::exchange(m_labels, NetUpdate::Labels::Kept));
}

void NetVisControl::redraw() {
  m_labels = NetUpdate::Labels::Renewed;
  m_actions->forgetFunctions();
  m_drawing.request();
  m_drawing.flush();
}

void NetVisControl::takeSettings() {
  m_drawing.cancel();
  m_plot->takeSettings();
}

void NetVisControl::setHiddenLayers(const QString &property, const QSet<QString> &layers) {
  if (!m_plot->update().setHiddenLayers(property, layers))
    return;
  emit hiddenLayersChanged(layers);
  m_labels = NetUpdate::Labels::Renewed;
  m_drawing.request();
}

void NetVisControl::setCurrentElement(const QString &name) {
  if (name == m_currentElement)
    return;
  m_currentElement = name;
  emit currentElementChanged(name);
}

void NetVisControl::mark(const QString &name) {
  m_picker->markElement(name);
  setCurrentElement(name);
}

void NetVisControl::relabelNow() {
  m_plot->update().relabelNow();
}

void NetVisControl::setPageFacts(PageFacts facts, ScenarioSource scenarios) {
  m_pageFacts = std::move(facts);
  m_scenarios = std::move(scenarios);
}

NetworkPaper NetVisControl::paper() {
  m_drawing.flush();
  const NetUpdate &update = m_plot->update();
  return {*m_plot,
          {&m_net, m_plot->settings(), update.labelTable(), m_folder, m_subnetIcons, update.layers(), update.displayMode(),
           m_plot->selection().items(), m_plot->showsAll() ? QRectF() : m_plot->visibleArea()},
          m_pageFacts,
          m_scenarios};
}

void NetVisControl::print() {
  paper().show(PageDialog::Purpose::Print, m_bookmarks.all());
}

void NetVisControl::savePage() {
  paper().show(PageDialog::Purpose::Save, m_bookmarks.all());
}

const LabelContents *NetVisControl::labelContents() const {
  return m_plot->update().labelContents();
}

bool NetVisControl::showElement(const QString &name) {
  const std::optional<NetGeometry::Item> item = m_plot->update().geometry().find(m_net, name);
  if (!item)
    return false;
  m_plot->zoomToElement(*item);
  return true;
}

bool NetVisControl::isHidden(const QString &name) const {
  const NetUpdate &update = m_plot->update();
  const std::optional<NetGeometry::Item> item = update.geometry().find(m_net, name);
  return item && update.layers().isHidden(*item);
}

void NetVisControl::selectSearchResults(bool topoClosure, bool additive) {
  static const PropertyKey mark = PropertyKey::intern("isSearchResult");
  static const PropertyKey name = PropertyKey::intern("name");
  Selection found = additive ? m_net.selection() : Selection();
  m_net.forEach(NetData::AllTypes, [&](element &e) {
    const PropertyText *text = e.find(mark);
    if (text != nullptr && text->isOn())
      Topology::select(m_net, e.value(name), found);
  });
  if (topoClosure)
    Topology::close(m_net, found);
  m_picker->setSelection(found);
}

void NetVisControl::setShowsSearchResults(bool shows) {
  using Mode = NetUpdate::DisplayMode;
  m_plot->update().setDisplayMode(shows ? Mode::SearchResults : Mode::Functions);
  m_drawing.request();
  m_actions->refreshSeen();
}

bool NetVisControl::showsSearchResults() const {
  return m_plot->update().displayMode() == NetUpdate::DisplayMode::SearchResults;
}

void NetVisControl::refreshSearchResults() {
  if (showsSearchResults())
    setShowsSearchResults(true);
}

void NetVisControl::trace(const QString &name, Topology::Direction direction) {
  m_picker->setSelection(Topology::trace(m_net, name, direction, m_plot->settings().edgeShowFlow));
}
