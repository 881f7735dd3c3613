#include "interaction/functionmenu.h"

#include "configure/functionchooser.h"

#include <drawing/functionchange.h>
#include <view/netplot.h>

#include <QActionGroup>

#include <algorithm>

namespace {

QString titleOf(Aspect aspect) {
  switch (aspect) {
  case Aspect::EdgeColor:
    return FunctionMenu::tr("Edge colour");
  case Aspect::EdgeWidth:
    return FunctionMenu::tr("Edge width");
  case Aspect::NodeColor:
    return FunctionMenu::tr("Node colour");
  case Aspect::NodeSize:
    return FunctionMenu::tr("Node size");
  }
  return QString();
}

bool isSame(const QString &a, const QString &b) {
  return DrawFunction::propertyName(a).compare(DrawFunction::propertyName(b), Qt::CaseInsensitive) == 0;
}

/// Judged by the first elements: what they do not have would colour next to nothing.
bool hasValues(const elements &collection, PropertyKey property) {
  constexpr int MostAsked = 5000;
  int asked = 0;
  for (const elements::Entry &entry : collection) {
    if (++asked > MostAsked)
      break;
    if (NetData::number(entry.value.find(property)) != NetData::NoValue)
      return true;
  }
  return false;
}

bool isToBeSeen(const DrawFunction &function, const NetData &net) {
  if (function.isOfGraph() || function.isOfBounds())
    return true;
  const auto isThere = [&net](PropertyKey property) {
    return !property.isNull() && (hasValues(net.nodes(), property) || hasValues(net.edges(), property));
  };
  return isThere(function.property) || isThere(function.ofEnds);
}

} // namespace

FunctionMenu::FunctionMenu(Aspect aspect, NetPlot &plot, std::function<const DrawFunction::OfNetwork &()> ofNetwork)
    : QMenu(titleOf(aspect))
    , m_aspect(aspect)
    , m_plot(plot)
    , m_ofNetwork(std::move(ofNetwork)) {
  connect(this, &QMenu::aboutToShow, this, &FunctionMenu::fill);
}

QString FunctionMenu::inUse() const {
  const NetData *net = m_plot.update().netData();
  const QString name = m_plot.settings().functions[m_aspect].name;
  if (net == nullptr || name.isEmpty())
    return QString();
  return name == PlotSettings::fixedSize() ? tr("fixed")
                                           : DrawFunction::find(name, *net).title.section(QStringLiteral(" ["), 0, 0);
}

/// Names that every network may have where this one has something to show for them, then properties of its own.
QStringList FunctionMenu::offered() const {
  QStringList functions;
  const NetData &net = *m_plot.update().netData();
  const DrawFunction::OfNetwork &own = m_ofNetwork();
  for (const QString &name : DrawFunction::fixedNames()) {
    if (isToBeSeen(DrawFunction::find(name, net), net))
      functions.append(name);
  }
  functions += isOfEdges(m_aspect) ? own.ofEdges : own.ofNodes;
  const QString &now = m_plot.settings().functions[m_aspect].name;
  const bool isThere =
      std::any_of(functions.begin(), functions.end(), [&](const QString &name) { return isSame(name, now); });
  if (!isThere && !now.isEmpty() && now != PlotSettings::fixedSize())
    functions.append(now);
  return functions;
}

void FunctionMenu::fill() {
  clear();
  const NetData *net = m_plot.update().netData();
  if (net == nullptr)
    return;
  const QString now = m_plot.settings().functions[m_aspect].name;
  auto *group = new QActionGroup(this);
  const auto add = [&](const QString &function, QString text) {
    QAction *entry =
        addAction(text.replace(QLatin1Char('&'), QStringLiteral("&&")), this, [this, function] { choose(function); });
    entry->setCheckable(true);
    entry->setChecked(isSame(function, now));
    group->addAction(entry);
  };
  if (m_aspect == Aspect::NodeSize)
    add(PlotSettings::fixedSize(), tr("all of one size"));
  for (const QString &function : offered())
    add(function, DrawFunction::find(function, *net).title);
  addSeparator();
  addAction(tr("All functions …"), this, &FunctionMenu::chooseAmongAll)
      ->setToolTip(tr("All functions of this network, with units, numbers of elements and histograms"));
}

void FunctionMenu::chooseAmongAll() {
  if (m_plot.update().netData() == nullptr)
    return;
  QStringList functions = offered();
  if (m_aspect == Aspect::NodeSize)
    functions.prepend(PlotSettings::fixedSize());
  FunctionChooser chooser(titleOf(m_aspect), m_plot.update(), m_plot.settings(), m_aspect, &m_plot);
  chooser.setFunctions(functions, m_plot.appliedSettings().functions[m_aspect].name);
  if (chooser.exec() == QDialog::Accepted)
    choose(chooser.chosen());
}

void FunctionMenu::choose(const QString &function) {
  const NetData *net = m_plot.update().netData();
  if (net == nullptr)
    return;
  PlotSettings settings = m_plot.appliedSettings();
  changeFunction(settings, m_aspect, function, *net);
  m_plot.setSettings(settings);
  m_plot.update().updatePlot(NetUpdate::Elements::Kept, NetUpdate::Which::EdgesAndNodes, NetUpdate::Labels::Renewed);
  m_plot.update().requestPixtest(-1);
  emit chosen();
}
