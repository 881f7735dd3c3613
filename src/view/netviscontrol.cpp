#include <base/nivramsg.h>
#include <view/drawfunctions.h>
#include <view/netviscontrol.h>
#include <view/plotmenu.h>
#include <view/plotzoom.h>
#include <view/qwtfastplot.h>

#include <QFileInfo>
#include <QMenu>

NetVisControl::NetVisControl(NetData &net, const QString &name, QObject *parent)
    : QObject(parent)
    , m_net(net)
    , m_name(name)
    , m_plot(new NetPlot)
    , m_picker(new NetPicker(*m_plot, net))
    , m_menu(std::make_unique<PlotMenu>(*this)) {
  connect(m_picker, &NetPicker::selectionChanged, this, &NetVisControl::selectionChanged);
  connect(m_picker, &NetPicker::picked, this,
          [this](const QString &picked) { emit elementAction(picked, NetPicker::EleAction::Mark); });
  connect(m_picker, &NetPicker::activated, this,
          [this](const QString &activated) { emit elementAction(activated, NetPicker::EleAction::ShowInfo); });
  connect(m_plot, &NetPlot::contextMenuRequested, this, [this](QMenu *contextMenu) { m_menu->fill(*contextMenu); });
  connect(m_plot, &NetPlot::drawConfigurationRequested, this, &NetVisControl::configureDrawRequested);
}

NetVisControl::~NetVisControl() {
  // A window that took the plot may have gone with it; one that lives on must not draw a network that goes away.
  if (m_plot != nullptr && m_plot->parent() == nullptr)
    delete m_plot;
  else if (m_plot != nullptr)
    clear();
}

void NetVisControl::clear() {
  m_plot->selection().setGeometry(nullptr);
  m_plot->update().setNetData(nullptr);
  m_plot->plot()->replot();
}

void NetVisControl::showNetData(const QString &plotSettingsPath) {
  m_settingsPath = plotSettingsPath;
  m_plot->readMousePattern();          // the workspace may have general settings of its own
  m_plot->setSettings(PlotSettings()); // nothing of the case before
  if (!m_plot->readPlotSettings(plotSettingsPath)) {
    PlotSettings settings = m_plot->settings();
    chooseDefaults(settings, m_net);
    m_plot->setSettings(settings);
  }
  const QString folder = QFileInfo(plotSettingsPath).path();
  LabelTable labels;
  LabelTableFile::read(folder + QStringLiteral("/vfd.csv"), labels);
  m_plot->update().setNetData(&m_net);
  m_plot->update().setFolder(folder);
  m_plot->update().setLabelTable(labels);
  m_plot->showNetwork();
}

bool NetVisControl::showElement(const QString &name) {
  const std::optional<NetGeometry::Item> item = m_plot->update().geometry().find(m_net, name);
  if (!item)
    return false;
  m_plot->zoomToElement(*item);
  return true;
}

void NetVisControl::setBookmarks(const QString &bookmarks) {
  PlotSettings settings = m_plot->settings();
  settings.bookmarks = bookmarks;
  m_plot->setSettings(settings);
  QString error;
  if (!m_plot->writePlotSettings(m_settingsPath, &error))
    NivraMsg::message(NivraMsg::Kind::Warning, error);
}
