#include "canvas/qwtfastplot.h"
#include "interaction/plotzoom.h"

#include <base/index.h>
#include <base/settings.h>
#include <drawing/drawfunctions.h>
#include <drawing/labelcontents.h>
#include <model/displayunits.h>
#include <model/elementtypes.h>
#include <model/netmetadata.h>
#include <model/titles.h>
#include <model/topology.h>
#include <view/netpicker.h>

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <qwt_picker_machine.h>

#include <cmath>

namespace {

constexpr double Tolerance = 8.0; // px beside an element at which a click still means it

/// The set of the selection in which elements of the kind are named; of a constant one too.
template <typename Chosen>
auto &namesOf(Chosen &selection, NetData::EleType kind) {
  switch (kind) {
  case NetData::Node:
    return selection.nodes;
  case NetData::Edge:
    return selection.edges;
  case NetData::AssembledSubnet:
    return selection.subnets;
  default:
    return selection.others;
  }
}

bool selectsWithShift() {
  return Settings::SelectionModifiers.value() == QLatin1String("ShiftSelect");
}

} // namespace

NetPicker::NetPicker(NetPlot &plot, NetData &net)
    : QwtPlotPicker(plot.plot()->canvas())
    , m_plot(plot)
    , m_net(net)
    , m_selectAll(new QAction(tr("Select All (Ctrl+A)"), this)) {
  setStateMachine(new QwtPickerDragRectMachine);
  setRubberBand(RectRubberBand);
  setRubberBandPen(QPen(QColor(200, 40, 40), 1.0, Qt::DashLine));
  setTrackerMode(AlwaysOff);
  setMousePattern(MouseSelect1, Qt::NoButton);
  connect(m_selectAll, &QAction::triggered, this, &NetPicker::selectAll);
}

NetPicker::Mode NetPicker::modeFor(Qt::MouseButton button, Qt::KeyboardModifiers keys) const {
  if (button != Qt::LeftButton && button != Qt::RightButton)
    return Mode::None;
  keys &= Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  if (m_selectsArea && button == Qt::LeftButton && (keys == Qt::NoModifier || keys == Qt::ShiftModifier))
    return keys == Qt::NoModifier ? Mode::Rectangle : Mode::RectangleMore;
  if (keys == Qt::NoModifier || keys == Qt::AltModifier)
    return Mode::Pick;
  if (keys == Qt::ControlModifier)
    return Mode::PickMore;
  if (!selectsWithShift() || button != Qt::LeftButton)
    return Mode::None;
  if (keys == Qt::ShiftModifier)
    return Mode::Rectangle;
  return keys == (Qt::ShiftModifier | Qt::ControlModifier) ? Mode::RectangleMore : Mode::None;
}

void NetPicker::widgetMousePressEvent(QMouseEvent *event) {
  m_mode = m_zoomsRectangle ? Mode::None : modeFor(event->button(), event->modifiers());
  m_pressed = event->pos();
  m_hits = hitsAt(m_pressed); // for the press, the release and the menu
  setMousePattern(MouseSelect1, isRectangle() ? Qt::LeftButton : Qt::NoButton, event->modifiers());
  // What may become a movement of the view, or a rectangle to zoom to, selects only as a click.
  m_picksOnRelease = m_selectsArea || Settings::PickOnRelease.value() ||
                     m_plot.pansWith(event->button(), event->modifiers()) ||
                     (event->button() == Qt::LeftButton && m_hits.empty());
  if (!m_picksOnRelease)
    pick(event->button());
  QwtPlotPicker::widgetMousePressEvent(event);
}

void NetPicker::widgetMouseReleaseEvent(QMouseEvent *event) {
  QwtPlotPicker::widgetMouseReleaseEvent(event);
  const QPoint way = event->pos() - m_pressed;
  if (m_picksOnRelease && way.manhattanLength() < QApplication::startDragDistance()) {
    if (m_selectsArea && isRectangle()) // a click draws none
      m_mode = m_mode == Mode::Rectangle ? Mode::Pick : Mode::PickMore;
    pick(event->button());
  }
  m_mode = Mode::None;
  if (event->button() != Qt::RightButton)
    m_hits.clear();
  if (m_zoomsRectangle && event->button() == Qt::LeftButton)
    endRectangleZoom();
}

void NetPicker::widgetMouseDoubleClickEvent(QMouseEvent *event) {
  const std::vector<Hit> hits = hitsAt(event->pos());
  if (event->button() == Qt::LeftButton && !hits.empty())
    emit activated(nameOf(hits.front().item));
  QwtPlotPicker::widgetMouseDoubleClickEvent(event);
}

void NetPicker::widgetMouseMoveEvent(QMouseEvent *event) {
  if (event->buttons() == Qt::NoButton)
    hover(event->pos());
  QwtPlotPicker::widgetMouseMoveEvent(event);
}

void NetPicker::widgetLeaveEvent(QEvent *event) {
  if (m_plot.selection().setHovered(std::nullopt))
    m_plot.plot()->updateOverlay();
  QwtPlotPicker::widgetLeaveEvent(event);
}

void NetPicker::hover(const QPoint &position) {
  const std::vector<Hit> hits = hitsAt(position);
  const auto item = hits.empty() ? std::nullopt : std::make_optional(hits.front().item);
  if (!m_plot.selection().setHovered(item))
    return;
  m_plot.plot()->updateOverlay();
  emit hovered(item ? nameOf(*item) : QString());
}

bool NetPicker::eventFilter(QObject *watched, QEvent *event) {
  if (watched == canvas() && event->type() == QEvent::ToolTip) {
    const auto *help = static_cast<QHelpEvent *>(event);
    const std::vector<Hit> hits = hitsAt(help->pos());
    if (hits.empty())
      QToolTip::hideText();
    else
      QToolTip::showText(help->globalPos(), toolTipFor(hits.front().item), canvas());
    return true;
  }
  if (watched == canvas() && event->type() == QEvent::ContextMenu &&
      static_cast<QContextMenuEvent *>(event)->reason() == QContextMenuEvent::Keyboard)
    m_hits = hitsAt(m_plot.keyboardPlace());
  if (watched == canvas() && event->type() == QEvent::WindowBlocked) { // the release goes to the dialog
    m_mode = Mode::None;
    m_picksOnRelease = false;
    QwtPlotPicker::reset();
  }
  return QwtPlotPicker::eventFilter(watched, event);
}

QString NetPicker::toolTipFor(NetGeometry::Item item) const {
  const element &source = *m_plot.update().geometry().source(item);
  const QString code = source.value(QStringLiteral("type"));
  const ElementType *type = ElementTypes::byCode(code);
  QString text =
      QStringLiteral("<b>%1</b> <i>%2</i>").arg(nameOf(item).toHtmlEscaped(), type == nullptr ? code : Titles::of(*type));
  QStringList functions;
  for (const Aspect aspect : {Aspect::EdgeColor, Aspect::EdgeWidth, Aspect::NodeColor})
    functions.append(m_plot.settings().functions[aspect].name);
  functions.removeDuplicates();
  for (const QString &function : functions) {
    const QString property = DrawFunction::propertyName(function);
    const PropertyText *value = source.find(property);
    const NetMetaData::Attribute *attribute = m_net.metaData()->attribute(code, property);
    const double number = NetData::number(value);
    if (number == NetData::NoValue)
      continue;
    const DisplayUnits::Shown display = DisplayUnits::of(attribute);
    text += QStringLiteral("<br />%1: %2")
                .arg((attribute == nullptr ? property : Titles::of(*attribute)).toHtmlEscaped(),
                     LabelContents::formatted(display.toDisplay(number), display.unit));
  }
  return text;
}

std::vector<Hit> NetPicker::hitsAt(const QPoint &position) const {
  return m_plot.update().elementsAt(position, Tolerance);
}

std::vector<NetGeometry::Item> NetPicker::pressedItems() const {
  std::vector<NetGeometry::Item> items;
  for (const Hit &hit : m_hits)
    items.push_back(hit.item);
  return items;
}

void NetPicker::reset() {
  m_hits.clear();
  m_mode = Mode::None;
  QwtPlotPicker::reset();
}

QString NetPicker::nameOf(NetGeometry::Item item) const {
  return m_plot.update().geometry().source(item)->value(QStringLiteral("name"));
}

std::optional<NetGeometry::Item> NetPicker::target(Qt::MouseButton button) const {
  if (m_hits.empty())
    return std::nullopt;
  const Hit &first = m_hits.front();
  if (button == Qt::RightButton) { // of what stands behind one symbol, that which was chosen before
    for (const Hit &hit : m_hits) {
      if (!first.comesBefore(hit) && isSelected(hit.item))
        return hit.item;
    }
  }
  return first.item;
}

void NetPicker::pick(Qt::MouseButton button) {
  if (m_mode != Mode::Pick && m_mode != Mode::PickMore)
    return;
  const bool isMenu = button == Qt::RightButton;
  const std::optional<NetGeometry::Item> item = target(button);
  if (item) {
    setSelection(selectionWith(*item, isMenu));
    if (isSelected(*item))
      emit picked(nameOf(*item));
  } else if (m_mode == Mode::Pick && !isMenu) {
    setSelection(Selection());
  }
  if (Settings::PerformPixtestOnClick.value())
    m_plot.update().requestPixtest(0);
}

Selection NetPicker::selectionWith(NetGeometry::Item item, bool isMenu) const {
  Selection selection = m_net.selection();
  if (isMenu && isSelected(item))
    return selection; // the menu is for all of it
  if (m_mode == Mode::Pick)
    selection.clear();
  if (m_mode == Mode::PickMore && isSelected(item))
    deselect(item, selection);
  else
    namesOf(selection, item.kind).insert(nameOf(item));
  return selection;
}

bool NetPicker::isSelected(NetGeometry::Item item) const {
  return namesOf(m_net.selection(), item.kind).contains(nameOf(item));
}

void NetPicker::deselect(NetGeometry::Item item, Selection &selection) const {
  namesOf(selection, item.kind).remove(nameOf(item));
  const bool takesNodes = Settings::SubnetDeselectionToItsNodes.value();
  if (item.kind != NetData::AssembledSubnet || !takesNodes)
    return;
  const element &subnet = *m_plot.update().geometry().source(item);
  for (const PropertyKey list : {PropertyKey::find("pins"), PropertyKey::find("elements")}) {
    for (const QString &name : Topology::listed(subnet, list)) {
      if (const element *node = m_net.nodes().find(name))
        selection.nodes.remove(node->value(QStringLiteral("name")));
    }
  }
}

bool NetPicker::end(bool ok) {
  if (!QwtPlotPicker::end(ok))
    return false;
  const QPolygon corners = selection();
  const bool isClick = m_selectsArea && corners.size() >= 2 &&
                       (corners.last() - corners.first()).manhattanLength() < QApplication::startDragDistance();
  if (corners.size() >= 2 && !isClick)
    pickRectangle(QRectF(m_plot.plot()->toPlot(corners.first()), m_plot.plot()->toPlot(corners.last())).normalized());
  return true;
}

void NetPicker::pickRectangle(const QRectF &area) {
  tell(m_plot.told(), Finding::Severity::Debug, QStringLiteral("selection mode = %1").arg(static_cast<int>(m_mode)));
  select(m_plot.update().elementsIn(area), m_mode == Mode::RectangleMore);
  m_plot.update().requestPixtest(0);
}

void NetPicker::select(const std::vector<NetGeometry::Item> &items, bool more) {
  if (!more)
    m_net.selection().clear();
  for (const NetGeometry::Item item : items)
    namesOf(m_net.selection(), item.kind).insert(nameOf(item));
  showSelection();
  emit selectionChanged();
}

void NetPicker::selectAll() {
  static const PropertyKey name = PropertyKey::intern("name");
  Selection all; // also what has no coordinates to be drawn at
  for (const auto &[kind, collection] : m_net.typeMap()) {
    Selection::Names &names = namesOf(all, kind);
    names.reserve(toQt(collection->size()));
    for (const elements::Entry &entry : *collection)
      names.insert(entry.value.value(name));
  }
  setSelection(all);
  m_plot.update().requestPixtest(0);
}

bool NetPicker::markElement(const QString &name) {
  tell(m_plot.told(), Finding::Severity::Debug, QStringLiteral("NetPicker::markElement: ") + name);
  const std::optional<NetGeometry::Item> item = m_plot.update().geometry().find(m_net, name);
  if (!item)
    return false;
  select({*item}, false);
  return true;
}

void NetPicker::choose(NetGeometry::Item item) {
  select({item}, false);
  emit picked(nameOf(item));
}

void NetPicker::clearSelection() {
  select({}, false);
}

void NetPicker::setSelection(const Selection &selection) {
  if (selection == m_net.selection())
    return;
  m_net.selection() = selection;
  showSelection();
  emit selectionChanged();
}

void NetPicker::showSelection() {
  const NetGeometry &geometry = m_plot.update().geometry();
  std::vector<NetGeometry::Item> items;
  const Selection &selection = m_net.selection();
  items.reserve(fromQt(selection.size()));
  const auto append = [&](const Selection::Names &names, int kinds) {
    for (const QString &name : names) {
      if (const std::optional<NetGeometry::Item> item = geometry.find(m_net, name, kinds))
        items.push_back(*item);
    }
  };
  append(selection.nodes, NetData::Node);
  append(selection.edges, NetData::Edge);
  append(selection.subnets, NetData::AssembledSubnet);
  append(selection.others, NetData::TextBox);
  m_plot.selection().setItems(std::move(items));
  m_plot.plot()->updateOverlay();
}

void NetPicker::widgetKeyPressEvent(QKeyEvent *event) {
  if (event->matches(QKeySequence::SelectAll))
    selectAll();
  else if (event->key() == Qt::Key_Escape && !isActive() && !m_net.selection().isEmpty())
    clearSelection();
  else if (event->key() == Settings::UserKeyRectZoom.value())
    startRectangleZoom(event->key());
  else if (isActive() && event->key() == Qt::Key_Escape)
    QwtPlotPicker::widgetKeyPressEvent(event); // gives up the rectangle
}

void NetPicker::widgetKeyReleaseEvent(QKeyEvent *event) {
  const bool isDragging = QApplication::mouseButtons() != Qt::NoButton;
  if (m_zoomsRectangle && !isDragging && event->key() == Settings::UserKeyRectZoom.value() && !event->isAutoRepeat())
    endRectangleZoom();
  QwtPlotPicker::widgetKeyReleaseEvent(event);
}

void NetPicker::startRectangleZoom(int key) {
  Qt::KeyboardModifiers keys = Qt::NoModifier;
  if (key == Qt::Key_Shift)
    keys = Qt::ShiftModifier;
  else if (key == Qt::Key_Control)
    keys = Qt::ControlModifier;
  else if (key == Qt::Key_Alt)
    keys = Qt::AltModifier;
  if (keys == Qt::ShiftModifier && (m_selectsArea || selectsWithShift()))
    return; // Shift draws the rectangle of the selection
  if (!m_zoomsRectangle)
    m_cursor = canvas()->cursor();
  m_zoomsRectangle = true;
  m_plot.zoomer()->setRectangleKeys(keys);
  canvas()->setCursor(Qt::CrossCursor);
}

void NetPicker::endRectangleZoom() {
  m_zoomsRectangle = false;
  m_plot.zoomer()->setRectangleKeys(Qt::NoModifier);
  canvas()->setCursor(m_cursor);
}
