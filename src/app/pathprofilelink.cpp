#include "pathprofilelink.h"

#include "casescenarios.h"
#include "pathscenarios.h"

#include <drawing/stationsymbols.h>
#include <io/nivraworkspace.h>
#include <model/elementstate.h>
#include <model/names.h>
#include <view/netviscontrol.h>
#include <view/pathmark.h>

#include <QMainWindow>

PathProfileLink::PathProfileLink(NetVisControl &control, QMainWindow &window)
    : QObject(&window)
    , m_control(control)
    , m_symbols(std::make_shared<StationSymbols>())
    , m_mark(new PathMark(control))
    , m_dock(new PathProfileDock(control.net(), symbols(), &window)) {
  m_dock->setSelected([this] { return selectedNodes(); });
  const PlotActions *actions = &control.actions();
  connect(actions, &PlotActions::profileRequested, m_dock, &PathProfileDock::showPath);
  connect(actions, &PlotActions::profileFromRequested, m_dock, &PathProfileDock::setStart);
  connect(actions, &PlotActions::profileToRequested, m_dock, &PathProfileDock::setEnd);
  connect(control.picker(), &NetPicker::hovered, m_dock, &PathProfileDock::pointAt);
  connect(m_dock, &PathProfileDock::pathShown, this, &PathProfileLink::showPath);
  connect(m_dock, &PathProfileDock::pointed, m_mark, &PathMark::setCursor);
  connect(m_dock, &PathProfileDock::elementWanted, &control, &NetVisControl::showElement);
  connect(m_dock, &PathProfileDock::elementMarked, this, &PathProfileLink::elementMarked);
}

PathProfileLink::~PathProfileLink() = default;

SymbolPainter PathProfileLink::symbols() const {
  return [symbols = m_symbols](QPainter &painter, const element &e, const SymbolPlace &place) {
    const PropertyText *state = e.find(Names::all().state);
    const QString type = e.value(Names::all().type).left(1);
    Index found = NoIndex;
    if (ElementState::isOutOfUse(e))
      found = symbols->find(type, QStringLiteral("_off"));
    else if (ElementState::saysBypass(state))
      found = symbols->find(type, QStringLiteral("_bypass"));
    else
      found = symbols->find(type);
    if (found == NoIndex)
      return false;
    symbols->setGround(place.ground);
    symbols->draw(painter, found, place.center, place.size, place.angle);
    return true;
  };
}

QStringList PathProfileLink::selectedNodes() const {
  QStringList nodes = m_control.net().selection().nodes.values();
  nodes.sort(Qt::CaseInsensitive);
  return nodes;
}

void PathProfileLink::refresh(const NivraWorkspace &workspace, const QString &directory) {
  m_dock->setPageFacts(CaseScenarios::facts(workspace));
  m_dock->setScenarios(PathScenarioFiles::of(workspace));
  m_dock->refresh(directory);
}

void PathProfileLink::showPath(const QStringList &wayPoints, const std::vector<PathLeg> &legs) {
  QStringList edges;
  for (const PathLeg &leg : legs)
    edges.append(leg.edge);
  m_mark->setPath(edges, wayPoints);
}
