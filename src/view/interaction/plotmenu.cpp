#include "interaction/plotmenu.h"

#include "export/plotsaver.h"
#include "interaction/plotzoom.h"

#include <base/index.h>
#include <base/nivramsg.h>
#include <model/elementstate.h>
#include <model/elementtypes.h>
#include <model/topology.h>

#include <QDialog>
#include <QInputDialog>
#include <QListWidget>
#include <QMenu>
#include <QVBoxLayout>

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
  return menuText(e.value(QStringLiteral("name")) + QLatin1Char('\t') + (type == nullptr ? QString() : type->longName));
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

PlotMenu::PlotMenu(NetPlot &plot, NetPicker &picker, const NetData &net)
    : m_plot(plot)
    , m_picker(picker)
    , m_net(net) {}

void PlotMenu::fill(QMenu &contextMenu, const State &state) {
  addCrowd(contextMenu);
  addSelection(contextMenu, state);
  addSubnet(contextMenu, state);
  addCharacteristics(contextMenu, state);
  addMachinesHere(contextMenu, state);
  addTrace(contextMenu);
  contextMenu.addAction(m_picker.selectAllAction());
  contextMenu.addSeparator();
  addView(contextMenu);
  addBookmarks(contextMenu, state.bookmarks);
  addLabels(contextMenu);
  contextMenu.addSeparator();
  contextMenu.addAction(tr("Configure drawing …"), this, &PlotMenu::configureDrawRequested)
      ->setEnabled(state.hasConfiguration);
  QAction *results = contextMenu.addAction(tr("Show search results"), this, &PlotMenu::searchResultsRequested);
  results->setCheckable(true);
  results->setChecked(state.showsSearchResults);
  NetPlot *plot = &m_plot;
  contextMenu.addAction(tr("Save picture …"), plot, [plot] { PlotSaver(*plot).savePlot(QString(), QString(), true); });
  contextMenu.addAction(tr("Save picture with width …"), plot, [plot] { PlotSaver(*plot).saveWithWidth(); });
  contextMenu.addAction(tr("Print or save a page …"), this, &PlotMenu::pageRequested);
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

void PlotMenu::addCharacteristics(QMenu &contextMenu, const State &state) {
  constexpr int MaximumSelected = 10000; // whoever selects more is not after machines
  const Selection &selection = m_net.selection();
  if (selection.nodes.size() + selection.edges.size() > MaximumSelected)
    return;
  Selection::Names machines;
  for (const Selection::Names *kind : {&selection.nodes, &selection.edges}) {
    for (const QString &name : *kind) {
      if (isMachine(name))
        machines.insert(name);
    }
  }
  const QStringList names = sorted(machines);
  if (names.isEmpty() || names.size() > MaximumEntries)
    return;
  contextMenu
      .addAction(names.size() == 1 ? tr("Open Characteristics") : tr("Open Characteristics (%1)").arg(names.size()), this,
                 [this, names] { emit openCharacteristicsRequested(names); })
      ->setEnabled(state.hasCharacteristics);
}

bool PlotMenu::isMachine(const QString &name) const {
  const element *e = m_net.element(name);
  return e != nullptr && ElementTypes::hasCharacteristics(e->value(QStringLiteral("type")));
}

/// Whatever is selected, and whatever covers them.
void PlotMenu::addMachinesHere(QMenu &contextMenu, const State &state) {
  const NetGeometry &geometry = m_plot.update().geometry();
  QMenu *machines = nullptr;
  int count = 0;
  for (const NetGeometry::Item item : m_picker.pressedItems()) {
    const element &source = *geometry.source(item);
    const QString name = source.value(QStringLiteral("name"));
    if (!isMachine(name) || ++count > MaximumEntries)
      continue;
    if (machines == nullptr)
      machines = contextMenu.addMenu(tr("Open Characteristics of"));
    QObject::connect(machines->addAction(withType(source)), &QAction::triggered, this,
                     [this, name] { emit openCharacteristicsRequested({name}); });
  }
  if (machines == nullptr)
    return;
  addRest(*machines, count);
  machines->setEnabled(state.hasCharacteristics);
}

void PlotMenu::addTrace(QMenu &contextMenu) {
  if (m_net.selection().size() != 1)
    return;
  const QStringList names = firstOf(m_net.selection(), 1);
  using Direction = Topology::Direction;
  contextMenu.addAction(tr("Select upstream"), this,
                        [this, name = names.first()] { emit traceRequested(name, Direction::Upstream); });
  contextMenu.addAction(tr("Select downstream"), this,
                        [this, name = names.first()] { emit traceRequested(name, Direction::Downstream); });
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
    const QString plural = known == nullptr ? type : known->plural;
    add(tr("ALL of") + QLatin1Char(' ') + plural, kind.all);
    add(tr("ALL active of") + QLatin1Char(' ') + plural, kind.active);
  }
  entries.addSeparator();
  for (const QString &name : offer.names.mid(0, MaximumEntries))
    add(name, {name});
  addRest(entries, offer.names.size());
}

void PlotMenu::addView(QMenu &contextMenu) {
  NetPlot *plot = &m_plot;
  PlotZoom *zoomer = plot->zoomer();
  // The canvas takes the keys; the entries name them.
  contextMenu.addAction(tr("Show whole network\tHome"), zoomer, &PlotZoom::fitAll);
  contextMenu.addAction(tr("Back to the last view\tAlt+Left"), zoomer, &PlotZoom::goBack)->setEnabled(zoomer->canGoBack());
  contextMenu.addAction(tr("Forward to the next view\tAlt+Right"), zoomer, &PlotZoom::goForward)
      ->setEnabled(zoomer->canGoForward());
  if (plot->hasStragglers())
    contextMenu.addAction(tr("Show what lies far outside"), plot, &NetPlot::showStragglers);
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
  menu->addAction(tr("Bookmark this view …"), plot, [&bookmarks, plot, count = known.size()] {
    bool isAccepted = false;
    const QString name = QInputDialog::getText(plot, tr("Bookmark"), tr("Name of this view:"), QLineEdit::Normal,
                                               tr("View %1").arg(count + 1), &isAccepted)
                             .trimmed();
    QString reason;
    if (isAccepted && !name.isEmpty() && !bookmarks.add({name, plot->visibleArea()}, &reason))
      NivraMsg::message(NivraMsg::Kind::Warning, reason);
  });
  QMenu *forget = menu->addMenu(tr("Forget"));
  forget->setEnabled(!known.empty());
  for (const ViewBookmarks::Bookmark &bookmark : known)
    forget->addAction(menuText(bookmark.name), plot, [&bookmarks, name = bookmark.name] {
      QString reason;
      if (!bookmarks.forget(name, &reason))
        NivraMsg::message(NivraMsg::Kind::Warning, reason);
    });
}

void PlotMenu::addLabels(QMenu &contextMenu) {
  NetPlot *plot = &m_plot;
  NetUpdate &update = plot->update();
  contextMenu.addAction(tr("Place labels now"), plot, [&update] { update.relabelNow(); });
  const std::vector<NetGeometry::Item> &unplaced = update.unplacedLabels();
  if (unplaced.empty())
    return;
  contextMenu.addAction(
      unplaced.size() == 1 ? tr("1 label found no place …") : tr("%1 labels found no place …").arg(unplaced.size()), plot,
      [this, plot, unplaced] {
        QDialog dialog(plot);
        dialog.setWindowTitle(tr("Labels without a place"));
        auto *list = new QListWidget(&dialog);
        for (const NetGeometry::Item item : unplaced)
          list->addItem(plot->update().geometry().source(item)->value(QStringLiteral("name")));
        auto *layout = new QVBoxLayout(&dialog);
        layout->addWidget(list);
        QObject::connect(list, &QListWidget::itemActivated, &dialog, [this, &dialog](const QListWidgetItem *entry) {
          emit showRequested(entry->text());
          dialog.accept();
        });
        dialog.exec();
      });
}
