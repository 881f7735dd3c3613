#include "workspacememory.h"

#include "sessionkeeper.h"
#include "thumbnails.h"

#include <io/nivraworkspace.h>
#include <view/netplot.h>
#include <view/netviscontrol.h>

#include <QMainWindow>

WorkspaceMemory::WorkspaceMemory(QMainWindow &window, NetVisControl &control, ToolDocks &tools, LayerKeeper &layers)
    : QObject(&window)
    , m_control(control)
    , m_session(new SessionKeeper(window, control, tools, layers)) {
  constexpr int IdleMs = 2000;
  m_idle.setSingleShot(true);
  m_idle.setInterval(IdleMs);
  connect(&m_idle, &QTimer::timeout, this, &WorkspaceMemory::note);
}

void WorkspaceMemory::setPause(int ms) {
  m_idle.setInterval(ms);
  m_session->setPause(ms);
}

void WorkspaceMemory::enter(const NivraWorkspace &workspace) {
  if (m_keeps == Keeps::Nothing)
    return;
  m_path = workspace.chosenPath();
  m_isNoted = false;
  if (keepsSessions())
    m_session->enter(workspace);
  m_idle.start();
}

void WorkspaceMemory::follow(const NivraWorkspace &workspace) {
  if (m_path.isEmpty())
    return;
  m_path = workspace.chosenPath();
  m_isNoted = false; // and so when the case is left: who steps through scenarios does not mean each of them
}

void WorkspaceMemory::takeAside() {
  keep();
  m_session->takeAside();
  m_isAside = true;
}

void WorkspaceMemory::comeBack() {
  m_isAside = false;
  m_session->comeBack();
  if (!m_path.isEmpty())
    m_idle.start();
}

void WorkspaceMemory::keep() {
  note();
  m_session->keep();
}

void WorkspaceMemory::leave() {
  m_idle.stop();
  m_isAside = false;
  m_path.clear();
  m_session->leave();
}

void WorkspaceMemory::note() {
  m_idle.stop();
  if (!m_path.isEmpty() && !m_isNoted)
    m_recent.add(m_path);
  m_isNoted = true;
  takePicture();
}

/// A part of the network is a picture only as long as there is none of all of it.
void WorkspaceMemory::takePicture() {
  const NetPlot &plot = *m_control.plot();
  if (m_path.isEmpty() || m_isAside || !plot.isVisible() || (!plot.showsAll() && !Thumbnails::read(m_path).isNull()))
    return;
  Thumbnails::write(m_path, plot.picture(Thumbnails::Size));
  Thumbnails::keepOnly(m_recent.paths());
}
