#include "sessionkeeper.h"

#include "layerkeeper.h"
#include "sessionstore.h"
#include "tooldocks.h"

#include <base/nivramsg.h>
#include <io/nivraworkspace.h>
#include <view/netplot.h>
#include <view/netviscontrol.h>
#include <view/styleactions.h>

#include <QEvent>
#include <QMainWindow>

#include <utility>

SessionKeeper::SessionKeeper(QMainWindow &window, NetVisControl &control, ToolDocks &tools, LayerKeeper &layers)
    : QObject(&window)
    , m_window(window)
    , m_control(control)
    , m_tools(tools)
    , m_layers(layers) {
  constexpr int KeptAfterMs = 2000; // a program that is killed loses no more
  m_changed.setSingleShot(true);
  m_changed.setInterval(KeptAfterMs);
  connect(&m_changed, &QTimer::timeout, this, &SessionKeeper::keep);
  connect(control.plot(), &NetPlot::viewChanged, this, &SessionKeeper::touch);
  connect(&control.plot()->update(), &NetUpdate::legendChanged, this, &SessionKeeper::touch);
  connect(&control.styles(), &StyleActions::inUseChanged, this, &SessionKeeper::touch);
  connect(&control, &NetVisControl::selectionChanged, this, &SessionKeeper::touch);
  connect(&control, &NetVisControl::currentElementChanged, this, &SessionKeeper::touch);
  connect(&control, &NetVisControl::hiddenLayersChanged, this, &SessionKeeper::touch);
  connect(&layers, &LayerKeeper::edited, this, &SessionKeeper::touch);
  window.installEventFilter(this);
}

bool SessionKeeper::eventFilter(QObject *watched, QEvent *event) {
  const QEvent::Type type = event->type();
  if (type == QEvent::Resize || type == QEvent::Move || type == QEvent::WindowStateChange || type == QEvent::LayoutRequest)
    touch(); // docks that come and go lay out the window
  return QObject::eventFilter(watched, event);
}

void SessionKeeper::touch() {
  if (!m_case.isEmpty() && !m_changed.isActive())
    m_changed.start();
}

void SessionKeeper::enter(const NivraWorkspace &workspace) {
  m_aside.reset();
  m_case = workspace.caseDirectory();
  m_kept.clear();
  std::optional<Session> session = SessionStore::read(m_case);
  if (!session)
    return;
  putBackWindow(*session);
  dropOutdatedStyle(*session);
  m_layers.putBack(session->layerEdits);
  putBack(*session);
  m_control.styles().nameBeginning(session->styleName);
}

void SessionKeeper::leave() {
  if (m_aside) // which is not coming back
    m_control.styles().release();
  m_changed.stop();
  m_case.clear();
  m_aside.reset();
}

void SessionKeeper::takeAside() {
  if (m_aside)
    return;
  m_aside = gathered();
  m_control.styles().hold();
}

void SessionKeeper::comeBack() {
  const std::optional<Session> before = std::exchange(m_aside, std::nullopt);
  if (!before)
    return;
  putBack(*before);
  m_control.styles().release();
}

void SessionKeeper::keep() {
  m_changed.stop();
  if (m_case.isEmpty())
    return;
  const QByteArray text = gathered().toJson(SessionStore::caseName(m_case));
  if (text == m_kept)
    return;
  if (text.size() > Session::LargestText) {
    NivraMsg::logWarning(tr("There is too much to keep of this case; the session before stays."));
    return;
  }
  m_kept = text;
  SessionStore::write(m_case, text);
}

Session SessionKeeper::gathered() const {
  if (m_aside) {
    Session session = *m_aside;
    session.layerEdits = m_layers.unsaved(); // which may have been saved or discarded since
    return session;
  }
  Session session;
  const NetPlot &plot = *m_control.plot();
  session.geometry = m_window.saveGeometry();
  session.docks = m_window.saveState();
  if (!plot.showsAll())
    session.view = plot.visibleArea();
  session.selection = m_control.net().selection();
  session.current = m_control.currentElement();
  const LayerFilter &layers = m_control.plot()->update().layers();
  session.layerProperty = layers.property();
  session.hiddenLayers = layers.hidden();
  session.style = m_control.ownStyle();
  session.styleName = m_control.styles().inUse();
  session.settingsFile = m_control.styleFiles().settings;
  session.labelsFile = m_control.styleFiles().labels;
  session.layerEdits = m_layers.unsaved();
  return session;
}

void SessionKeeper::putBackWindow(const Session &session) {
  if (!session.geometry.isEmpty())
    m_window.restoreGeometry(session.geometry);
  if (!session.docks.isEmpty())
    m_window.restoreState(session.docks);
}

void SessionKeeper::putBack(const Session &session) {
  m_control.setOwnStyle(session.style);
  if (!session.layerProperty.isEmpty())
    m_tools.setHiddenLayers(session.layerProperty, session.hiddenLayers);
  putBackView(session);
}

/// The later of the two counts: files that somebody wrote since are newer than what was tried beside those before.
void SessionKeeper::dropOutdatedStyle(Session &session) const {
  const auto drop = [](QByteArray &text, bool isOutdated, const QString &name) {
    if (text.isEmpty() || !isOutdated)
      return;
    text.clear();
    NivraMsg::log(tr("%1 was written since this case was open here, so it decides how the network is drawn.").arg(name));
  };
  const NetVisControl::StyleFiles &files = m_control.styleFiles();
  drop(session.style.settings, files.settings != session.settingsFile, QStringLiteral("plotsettings.ini"));
  drop(session.style.labels, files.labels != session.labelsFile, QStringLiteral("vfd.csv"));
  if (files.settings != session.settingsFile)
    session.styleName.clear();
}

void SessionKeeper::putBackView(const Session &session) {
  const NetData &net = m_control.net();
  Selection selection;
  for (const auto ofKind : {&Selection::nodes, &Selection::edges, &Selection::subnets, &Selection::others}) {
    for (const QString &name : session.selection.*ofKind) {
      if (net.element(name) != nullptr)
        (selection.*ofKind).insert(name);
    }
  }
  m_control.picker()->setSelection(selection);
  if (net.element(session.current) != nullptr)
    m_control.setCurrentElement(session.current);
  NetPlot &plot = *m_control.plot();
  const NetGeometry &geometry = plot.update().geometry();
  if (!session.view.isNull() && geometry.hasExtent() && geometry.toOwn(geometry.extent()).intersects(session.view))
    plot.showArea(session.view);
}
