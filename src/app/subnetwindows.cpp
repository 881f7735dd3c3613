#include "subnetwindows.h"

#include "subnetwindow.h"

#include <tools/categorylist.h>

#include <utility>

SubnetWindows::SubnetWindows(NetData &net, std::shared_ptr<CategoryList> categories, QWidget &parent)
    : QObject(&parent)
    , m_net(net)
    , m_categories(std::move(categories))
    , m_parent(parent) {}

void SubnetWindows::open(const QString &subnet, const NivraWorkspace &workspace, const NetVisControl::OwnStyle &style) {
  for (SubnetWindow *window : all()) {
    if (window->subnet() != subnet)
      continue;
    window->raise();
    window->activateWindow();
    return;
  }
  auto *window = new SubnetWindow(m_net, subnet, workspace, m_categories, &m_parent);
  connect(window, &SubnetWindow::elementMarked, this, &SubnetWindows::elementMarked);
  connect(window, &SubnetWindow::elementsChanged, this, &SubnetWindows::elementsChanged);
  connect(window->visControl(), &NetVisControl::styleFilesNoted, this, &SubnetWindows::styleFilesNoted);
  connect(window->visControl(), &NetVisControl::openCharacteristicsRequested, this, &SubnetWindows::characteristicsWanted);
  window->visControl()->setOwnStyle(style);
  window->show();
}

QList<SubnetWindow *> SubnetWindows::all() const {
  return m_parent.findChildren<SubnetWindow *>(QString(), Qt::FindDirectChildrenOnly);
}

void SubnetWindows::closeAll() {
  qDeleteAll(all());
}

std::vector<UnsavedEdits::Kind> SubnetWindows::unsaved() const {
  std::vector<UnsavedEdits::Kind> kinds;
  for (SubnetWindow *window : all()) {
    for (UnsavedEdits::Kind &kind : window->unsaved())
      kinds.push_back(std::move(kind));
  }
  return kinds;
}

void SubnetWindows::takeProperties() {
  for (SubnetWindow *window : all())
    window->takeProperties();
}

void SubnetWindows::takeCase(const NivraWorkspace &workspace) {
  for (SubnetWindow *window : all())
    window->takeCase(workspace);
}

void SubnetWindows::takeSettings() {
  for (SubnetWindow *window : all())
    window->takeSettings();
}
