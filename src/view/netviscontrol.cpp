#include <view/drawfunctions.h>
#include <view/netviscontrol.h>
#include <view/plotzoom.h>
#include <view/qwtfastplot.h>

#include <QDir>
#include <QFileInfo>

NetVisControl::NetVisControl(NetData &net, const QString &name, QObject *parent)
    : QObject(parent)
    , m_net(net)
    , m_name(name)
    , m_plot(new NetPlot) {}

NetVisControl::~NetVisControl() {
  // A window that took the plot may have gone with it; one that lives on must not draw a network that goes away.
  if (m_plot != nullptr && m_plot->parent() == nullptr)
    delete m_plot;
  else if (m_plot != nullptr)
    clear();
}

void NetVisControl::clear() {
  m_plot->update().setNetData(nullptr);
  m_plot->plot()->replot();
}

void NetVisControl::showNetData(const QString &plotSettingsPath) {
  m_plot->readMousePattern();          // the workspace may have general settings of its own
  m_plot->setSettings(PlotSettings()); // nothing of the case before
  if (!m_plot->readPlotSettings(plotSettingsPath)) {
    PlotSettings settings = m_plot->settings();
    chooseDefaults(settings, m_net);
    m_plot->setSettings(settings);
  }
  m_plot->update().setNetData(&m_net);
  m_plot->update().setFolder(QFileInfo(plotSettingsPath).path());
  m_plot->showNetwork();
}
