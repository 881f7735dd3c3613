#include "interaction/plotmenu.h"

#include "canvas/canvaslegend.h"

#include <base/index.h>
#include <base/nivramsg.h>
#include <model/elementstate.h>
#include <model/elementtypes.h>
#include <model/titles.h>
#include <model/topology.h>

#include <QMenu>

#include <algorithm>

namespace {

constexpr int MaximumEntries = 30; // a menu longer than the screen helps nobody

/// In a menu an ampersand would mark a key.
QString menuText(QString text) {
  return text.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

QStringList sorted(const Selection::Names &names) {
  QStringList list = names.values();
  list.sort(Qt::CaseInsensitive);
  return list;
}

/// The first names of what is selected, which may be a whole network: not all of it is sorted for a few entries.
QStringList firstOf(const Selection &selection, int count) {
  std::vector<QString> names;
  names.reserve(fromQt(selection.size()));
  for (const Selection::Names *kind : {&selection.nodes, &selection.edges, &selection.subnets, &selection.others})
    names.insert(names.end(), kind->begin(), kind->end());
  const auto end = names.begin() + std::min<std::ptrdiff_t>(count, static_cast<std::ptrdiff_t>(names.size()));
  std::partial_sort(names.begin(), end, names.end(),
                    [](const QString &a, const QString &b) { return QString::compare(a, b, Qt::CaseInsensitive) < 0; });
  return QStringList(names.begin(), end);
}

/// The element's name and what it is.
QString withType(const element &e) {
  const ElementType *type = ElementTypes::byCode(e.value(QStringLiteral("type")));
  return menuText(e.value(QStringLiteral("name")) + QLatin1Char('\t') + (type == nullptr ? QString() : Titles::of(*type)));
}

/// Types whose elements a subnet offers by name: machines, regulators and whatever a network calls "m".
bool isOfStation(const QString &type) {
  return ElementTypes::hasCharacteristics(type) || type == QLatin1String("r") || type == QLatin1String("m");
}

/// An entry that only tells something.
void addNote(QMenu &entries, const QString &text) {
  entries.addAction(text)->setEnabled(false);
}

/// How many of so many names found no room.
void addRest(QMenu &entries, int count) {
  if (count > MaximumEntries)
    addNote(entries, PlotMenu::tr("… and %1 more").arg(count - MaximumEntries));
}

} // namespace

PlotMenu::PlotMenu(NetPlot &plot, NetPicker &picker, const NetData &net, PlotActions &actions)
    : m_plot(plot)
    , m_picker(picker)
    , m_net(net)
    , m_actions(actions) {}

void PlotMenu::fill(QMenu &contextMenu, const State &state) {
  using Command = PlotActions::Command;
  m_actions.refresh(state);
  addCrowd(contextMenu);
  addSelection(contextMenu, state);
  addSubnet(contextMenu, state);
  addMachines(contextMenu, state);
  addUsable(contextMenu, {Command::Upstream, Command::Downstream});
  addUsable(contextMenu, {Command::ProfileOfSelection, Command::ProfileFrom, Command::ProfileTo});
  contextMenu.addAction(m_actions[Command::SelectAll]);
  contextMenu.addSeparator();
  contextMenu.addActions({m_actions[Command::WholeNetwork], m_actions[Command::Back], m_actions[Command::Forward],
                          m_actions[Command::FarOutside]});
  addBookmarks(contextMenu, state.bookmarks);
  contextMenu.addActions({m_actions[Command::PlaceLabels], m_actions[Command::UnplacedLabels]});
  m_plot.canvasLegend().fillMenu(*contextMenu.addMenu(tr("Legend and colours")));
  contextMenu.addSeparator();
  contextMenu.addActions({m_actions[Command::Configure], m_actions[Command::SearchResults], m_actions[Command::SavePicture],
                          m_actions[Command::SavePictureWithWidth], m_actions[Command::CopyPicture]});
  contextMenu.addAction(tr("Print or save a page …"), this, &PlotMenu::pageRequested);
}

void PlotMenu::addUsable(QMenu &contextMenu, std::initializer_list<PlotActions::Command> commands) {
  for (const PlotActions::Command command : commands) {
    if (m_actions[command]->isEnabled())
      contextMenu.addAction(m_actions[command]);
  }
}

void PlotMenu::addCrowd(QMenu &contextMenu) {
  const std::vector<NetGeometry::Item> items = m_picker.pressedItems();
  if (items.size() < 2)
    return;
  QMenu *crowd = contextMenu.addMenu(tr("Select here (%1)").arg(items.size()));
  const NetGeometry &geometry = m_plot.update().geometry();
  int count = 0;
  for (const NetGeometry::Item item : items) {
    if (++count > MaximumEntries)
      break;
    NetPicker *picker = &m_picker;
    QObject::connect(crowd->addAction(withType(*geometry.source(item))), &QAction::triggered, picker,
                     [picker, item] { picker->choose(item); });
  }
  addRest(*crowd, toQt(items.size()));
}

void PlotMenu::addSelection(QMenu &contextMenu, const State &state) {
  const QStringList names = firstOf(m_net.selection(), MaximumEntries);
  QMenu *show = contextMenu.addMenu(tr("Show"));
  QMenu *info = contextMenu.addMenu(tr("Show Info"));
  QMenu *edit = contextMenu.addMenu(tr("Edit Properties of"));
  show->setEnabled(!names.isEmpty());
  edit->setEnabled(!names.isEmpty() && state.hasProperties);
  info->setEnabled(!names.isEmpty() && state.hasInfo);
  for (const QString &name : names) {
    QObject::connect(show->addAction(menuText(name)), &QAction::triggered, this, [this, name] { emit showRequested(name); });
    QObject::connect(info->addAction(menuText(name)), &QAction::triggered, this, [this, name] { emit infoRequested(name); });
    QObject::connect(edit->addAction(menuText(name)), &QAction::triggered, this,
                     [this, name] { emit editPropertiesRequested({name}); });
  }
  for (QMenu *entries : {show, info, edit})
    addRest(*entries, m_net.selection().size());
}

/// Those where the mouse was pressed, whatever is selected and whatever covers them.
QStringList PlotMenu::machinesHere() const {
  QStringList machines;
  for (const NetGeometry::Item item : m_picker.pressedItems()) {
    const element &source = *m_plot.update().geometry().source(item);
    if (ElementTypes::hasCharacteristics(source.value(QStringLiteral("type"))))
      machines.append(source.value(QStringLiteral("name")));
  }
  return machines;
}

/// One entry for the machine that is meant; where there are several, one for each of them and one for all that are selected.
void PlotMenu::addMachines(QMenu &contextMenu, const State &state) {
  const QStringList selected = m_actions.selectedMachines();
  QStringList machines = selected + machinesHere();
  machines.removeDuplicates();
  QAction *ofSelected = m_actions[PlotActions::Command::Characteristics];
  if (machines == selected && machines.size() == 1)
    return addUsable(contextMenu, {PlotActions::Command::Characteristics});
  if (machines.isEmpty())
    return;
  QMenu *entries = contextMenu.addMenu(tr("Open Characteristics of"));
  entries->setEnabled(state.hasCharacteristics);
  for (const QString &name : machines.mid(0, MaximumEntries)) {
    const element *e = m_net.element(name);
    QObject::connect(entries->addAction(e == nullptr ? menuText(name) : withType(*e)), &QAction::triggered, this,
                     [this, name] { emit openCharacteristicsRequested({name}); });
  }
  addRest(*entries, machines.size());
  if (selected.size() < 2)
    return;
  entries->addSeparator();
  entries->addAction(ofSelected);
}

void PlotMenu::addSubnet(QMenu &contextMenu, const State &state) {
  const QStringList subnets = sorted(m_net.selection().subnets);
  if (subnets.isEmpty())
    return;
  tell(m_plot.told(), Finding::Severity::Debug, QStringLiteral("sel has sub"));
  QMenu *menu = contextMenu.addMenu(tr("Subnet"));
  if (subnets.size() == 1)
    return addSubnetEntries(*menu, subnets.first(), state);
  for (const QString &name : subnets.mid(0, MaximumEntries))
    addSubnetEntries(*menu->addMenu(menuText(name)), name, state);
  addRest(*menu, subnets.size());
}

void PlotMenu::addSubnetEntries(QMenu &parent, const QString &name, const State &state) {
  parent.addAction(tr("Open in a window of its own"), this, [this, name] { emit subnetRequested(name); })
      ->setEnabled(state.hasSubnetWindows);
  QMenu *edit = parent.addMenu(tr("Edit Properties of"));
  QMenu *open = parent.addMenu(tr("Open Characteristics of"));
  const element *subnet = m_net.assembledSubnets().find(name);
  if (subnet == nullptr) {
    for (QMenu *entries : {edit, open})
      addNote(*entries, tr("<Could not find subnet>!"));
    return;
  }
  edit->setEnabled(state.hasProperties);
  open->setEnabled(state.hasCharacteristics);
  addOffer(*edit, offerOf(*subnet, isOfStation), &PlotMenu::editPropertiesRequested, tr("<empty element list>!"));
  addOffer(*open, offerOf(*subnet, ElementTypes::hasCharacteristics), &PlotMenu::openCharacteristicsRequested,
           tr("<empty characteristics list>!"));
}

PlotMenu::Offer PlotMenu::offerOf(const element &subnet, bool (*isOffered)(const QString &type)) const {
  Offer offer;
  for (const QString &name : Topology::listed(subnet, PropertyKey::find("elements"))) {
    const element *e = m_net.element(name);
    const QString type = e == nullptr ? QString() : e->value(QStringLiteral("type"));
    if (e == nullptr || !isOffered(type))
      continue;
    offer.names.append(name);
    Offer::Kind &kind = offer.kinds[type];
    kind.all.append(name);
    if (!ElementState::isOutOfUse(*e))
      kind.active.append(name);
  }
  return offer;
}

void PlotMenu::addOffer(QMenu &entries, const Offer &offer, NamesSignal signal, const QString &otherwise) {
  const auto add = [this, &entries, signal](const QString &text, const QStringList &names) {
    QAction *entry = entries.addAction(menuText(text), this, [this, signal, names] { emit(this->*signal)(names); });
    entry->setEnabled(!names.isEmpty());
  };
  if (offer.names.isEmpty())
    return addNote(entries, otherwise);
  for (const auto &[type, kind] : offer.kinds) {
    const ElementType *known = ElementTypes::byCode(type);
    const QString plural = known == nullptr ? type : Titles::ofSeveral(*known);
    add(tr("ALL of %1").arg(plural), kind.all);
    add(tr("ALL active of %1").arg(plural), kind.active);
  }
  entries.addSeparator();
  for (const QString &name : offer.names.mid(0, MaximumEntries))
    add(name, {name});
  addRest(entries, offer.names.size());
}

void PlotMenu::addBookmarks(QMenu &contextMenu, ViewBookmarks &bookmarks) {
  NetPlot *plot = &m_plot;
  const std::vector<ViewBookmarks::Bookmark> &known = bookmarks.all();
  QMenu *menu = contextMenu.addMenu(tr("Bookmarks"));
  if (!bookmarks.fault().isEmpty())
    addNote(*menu, menuText(bookmarks.fault()));
  for (const ViewBookmarks::Bookmark &bookmark : known)
    menu->addAction(menuText(bookmark.name), plot, [plot, view = bookmark.view] { plot->showArea(view); });
  if (!known.empty())
    menu->addSeparator();
  menu->addAction(m_actions[PlotActions::Command::BookmarkView]);
  QMenu *forget = menu->addMenu(tr("Forget"));
  forget->setEnabled(!known.empty());
  for (const ViewBookmarks::Bookmark &bookmark : known)
    forget->addAction(menuText(bookmark.name), plot, [&bookmarks, name = bookmark.name] {
      QString reason;
      if (!bookmarks.forget(name, &reason))
        NivraMsg::message(NivraMsg::Kind::Warning, reason);
    });
}
