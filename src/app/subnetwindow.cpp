#include <model/netmetadata.h>
#include <view/netplot.h>
#include <view/netviscontrol.h>

#include <app/subnetwindow.h>

SubnetWindow::SubnetWindow(const NetData &net, const QString &subnet, const QString &plotSettingsPath, QWidget *parent)
    : QMainWindow(parent)
    , m_net(part(net, subnet))
    , m_control(std::make_unique<NetVisControl>(m_net, subnet)) {
  constexpr QSize Size(800, 600);
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(tr("Subassembly %1").arg(subnet)); // by which labels know that they are wanted at once
  setCentralWidget(m_control->plot());
  resize(Size);
  m_control->showNetData(plotSettingsPath);
}

SubnetWindow::~SubnetWindow() = default;

NetData SubnetWindow::part(const NetData &net, const QString &subnet) {
  NetData part;
  part.setMetaData(std::make_shared<const NetMetaData>(*net.metaData()));
  const element *source = net.assembledSubnets().find(subnet);
  if (source == nullptr)
    return part;
  QStringList names = source->value(QStringLiteral("pins")).split(QLatin1Char(';'), Qt::SkipEmptyParts);
  names += source->value(QStringLiteral("elements")).split(QLatin1Char(';'), Qt::SkipEmptyParts);
  for (const QString &name : qAsConst(names)) {
    if (const element *e = net.nodes().find(name))
      part.addElement(*e);
  }
  // Also edges of the network itself that run between what is shown.
  for (const elements::Entry &entry : net.edges()) {
    const PropertyText *node1 = entry.value.find(QStringLiteral("node1"));
    const PropertyText *node2 = entry.value.find(QStringLiteral("node2"));
    if (node1 != nullptr && node2 != nullptr && part.nodes().find(*node1) != nullptr && part.nodes().find(*node2) != nullptr)
      part.addElement(entry.value);
  }
  return part;
}
