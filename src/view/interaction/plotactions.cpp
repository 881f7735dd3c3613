#include "canvas/qwtfastplot.h"
#include "export/onpaper.h"
#include "export/plotsaver.h"
#include "interaction/functionmenu.h"
#include "interaction/measuretool.h"
#include "interaction/mousemodes.h"
#include "interaction/plotzoom.h"

#include <base/nivramsg.h>
#include <model/elementtypes.h>
#include <view/netpicker.h>
#include <view/netplot.h>
#include <view/plotactions.h>
#include <view/viewbookmarks.h>

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QInputDialog>
#include <QListWidget>
#include <QVBoxLayout>

namespace {

QString noLabels() {
  return QStringLiteral("no label");
}

} // namespace

PlotActions::PlotActions(const Subject &subject)
    : m_plot(subject.plot)
    , m_picker(subject.picker)
    , m_net(subject.net)
    , m_bookmarks(subject.bookmarks)
    , m_modes(subject.modes)
    , m_measure(subject.measure) {
  for (const Aspect aspect : AllAspects) {
    m_functions[aspect] = std::make_unique<FunctionMenu>(aspect, m_plot, [this]() -> decltype(auto) { return ofNetwork(); });
    connect(m_functions[aspect].get(), &FunctionMenu::chosen, this, &PlotActions::settingsChosen);
  }
  addView();
  addModes();
  addDrawing();
  addPicture();
  addSelection();
  addProfile();
  connect(m_plot.zoomer(), &PlotZoom::historyChanged, this, &PlotActions::refreshHistory);
  connect(&m_picker, &NetPicker::selectionChanged, this, &PlotActions::refreshSeen);
  connect(&m_plot, &NetPlot::settingsChanged, this, &PlotActions::refreshSeen);
  refreshSeen();
}

PlotActions::~PlotActions() = default;

template <typename Done>
QAction *PlotActions::add(Command command, const QString &text, const QKeySequence &key, const QString &tip,
                          const Done &done) {
  auto *action = new QAction(text, this);
  action->setShortcut(key);
  action->setToolTip(tip);
  connect(action, &QAction::triggered, this, done);
  m_plot.addAction(action); // so that the key holds wherever the drawing is
  m_actions[static_cast<std::size_t>(command)] = action;
  return action;
}

void PlotActions::addView() {
  PlotZoom *zoomer = m_plot.zoomer();
  const auto middle = [this] {
    return m_plot.plot()->visibleRect().center();
  };
  add(Command::Back, tr("Back to the last view"), QKeySequence(Qt::ALT + Qt::Key_Left),
      tr("The view at which you rested before"), [zoomer] { zoomer->goBack(); });
  add(Command::Forward, tr("Forward to the next view"), QKeySequence(Qt::ALT + Qt::Key_Right), tr("The view after this one"),
      [zoomer] { zoomer->goForward(); });
  add(Command::WholeNetwork, tr("Show whole network"), QKeySequence(Qt::CTRL + Qt::Key_0),
      tr("Show the whole network; in the drawing also Home"), [zoomer] { zoomer->fitAll(); });
  add(Command::ToSelection, tr("Show what is selected"), QKeySequence(Qt::CTRL + Qt::Key_J), tr("Zoom to what is selected"),
      [this] { m_plot.zoomToItems(m_plot.selection().items()); });
  add(Command::ZoomIn, tr("Zoom in"), QKeySequence(QKeySequence::ZoomIn), tr("Zoom in about the middle"),
      [zoomer, middle] { zoomer->zoomSteps(1, middle()); });
  add(Command::ZoomOut, tr("Zoom out"), QKeySequence(QKeySequence::ZoomOut), tr("Zoom out about the middle"),
      [zoomer, middle] { zoomer->zoomSteps(-1, middle()); });
  add(Command::FarOutside, tr("Show what lies far outside"), QKeySequence(), tr("Show everything, however far it lies"),
      [this] { m_plot.showStragglers(); });
  add(Command::BookmarkView, tr("Bookmark this view …"), QKeySequence(Qt::CTRL + Qt::Key_B),
      tr("Keep this view with the case, under a name"), [this] { bookmarkView(); });
}

void PlotActions::addModes() {
  using Mode = MouseModes::Mode;
  auto *group = new QActionGroup(this);
  const auto addMode = [this, group](Command command, Mode mode, const QString &text, const QKeySequence &key,
                                     const QString &tip) {
    QAction *action = add(command, text, key, tip, [this, mode] { m_modes.setMode(mode); });
    action->setCheckable(true);
    action->setChecked(m_modes.mode() == mode);
    group->addAction(action);
    connect(&m_modes, &MouseModes::modeChanged, action,
            [this, action, mode] { action->setChecked(m_modes.mode() == mode); });
  };
  addMode(Command::DragZooms, Mode::Zoom, tr("Pick and zoom"), QKeySequence(Qt::CTRL + Qt::Key_1),
          tr("Pick and zoom: a click selects, dragging zooms to the rectangle"));
  addMode(Command::DragSelects, Mode::Area, tr("Select in a rectangle"), QKeySequence(Qt::CTRL + Qt::Key_2),
          tr("Select in a rectangle: dragging selects what lies wholly in it, with Shift in addition"));
  addMode(Command::DragPans, Mode::Pan, tr("Move the view"), QKeySequence(Qt::CTRL + Qt::Key_3),
          tr("Move the view by dragging; the middle button and Space do so in every mode"));
  addMode(Command::Measure, Mode::Measure, tr("Measure distances"), QKeySequence(Qt::CTRL + Qt::Key_M),
          tr("Measure distances along a path of clicks; Esc ends it"));
  connect(&m_modes, &MouseModes::modeChanged, this, [this] { m_measure.setActive(m_modes.mode() == Mode::Measure); });
  connect(&m_measure, &MeasureTool::ended, this, [this] { m_modes.setMode(Mode::Zoom); });
  connect(&m_measure, &MeasureTool::told, this, &PlotActions::told);
}

void PlotActions::addDrawing() {
  QAction *labels = add(Command::Labels, tr("Labels"), QKeySequence(Qt::CTRL + Qt::Key_L), tr("Show labels or hide them"),
                        [this] { setLabelsShown((*this)[Command::Labels]->isChecked()); });
  labels->setCheckable(true);
  add(Command::PlaceLabels, tr("Place labels now"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_L),
      tr("Place labels for this view at once, whatever the settings say"), [this] { m_plot.update().relabelNow(); });
  add(Command::UnplacedLabels, QString(), QKeySequence(), tr("List the elements whose labels found no place"),
      [this] { listUnplacedLabels(); });
  QAction *results = add(Command::SearchResults, tr("Show search results"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_F),
                         tr("Colour nothing but what the search found"),
                         [this] { emit searchResultsRequested((*this)[Command::SearchResults]->isChecked()); });
  results->setCheckable(true);
  add(Command::Configure, tr("Configure drawing …"), QKeySequence(Qt::CTRL + Qt::Key_D),
      tr("What colours and sizes the elements, and how labels look"), [this] { emit configureRequested(); });
}

void PlotActions::addPicture() {
  add(Command::SavePicture, tr("Save picture …"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_S),
      tr("Save the drawing as it is seen"), [this] { PlotSaver(m_plot).savePlot(QString(), QString(), true); });
  add(Command::SavePictureWithWidth, tr("Save picture with width …"), QKeySequence(), tr("Save the drawing in another size"),
      [this] { PlotSaver(m_plot).saveWithWidth(); });
  add(Command::CopyPicture, tr("Copy picture"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_C),
      tr("Copy the drawing as it is seen to the clipboard"), [this] { copyPicture(); });
}

void PlotActions::addSelection() {
  m_actions[static_cast<std::size_t>(Command::SelectAll)] = m_picker.selectAllAction();
  const auto names = [this] {
    QStringList selected = m_net.selection().names().values();
    selected.sort(Qt::CaseInsensitive);
    return selected;
  };
  add(Command::SelectNone, tr("Select nothing"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_A),
      tr("Select nothing; in the drawing also Esc"), [this] { m_picker.clearSelection(); });
  add(Command::ShowInfo, tr("Show info of the selected element"), QKeySequence(Qt::CTRL + Qt::Key_I),
      tr("Show what is known of the selected element"), [this, names] { emit infoRequested(names().value(0)); });
  add(Command::EditProperties, tr("Properties of what is selected"), QKeySequence(Qt::CTRL + Qt::Key_E),
      tr("Show the properties of what is selected"), [this, names] { emit propertiesRequested(names()); });
  add(Command::Characteristics, tr("Open Characteristics"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_M),
      tr("Open the maps of the selected compressors and drives"),
      [this] { emit characteristicsRequested(selectedMachines()); });
  add(Command::SubnetWindow, tr("Open subnet in a window of its own"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_O),
      tr("Open the selected subnet in a window of its own"), [this] {
        for (const QString &subnet : m_net.selection().subnets)
          emit subnetRequested(subnet);
      });
  add(Command::Upstream, tr("Select upstream"), QKeySequence(Qt::CTRL + Qt::Key_U),
      tr("Select where the gas of the selected element comes from"), [this] { trace(Topology::Direction::Upstream); });
  add(Command::Downstream, tr("Select downstream"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_U),
      tr("Select where the gas of the selected element goes to"), [this] { trace(Topology::Direction::Downstream); });
}

void PlotActions::addProfile() {
  const auto node = [this] {
    const Selection::Names &nodes = m_net.selection().nodes;
    return nodes.isEmpty() ? QString() : *nodes.cbegin();
  };
  add(Command::ProfileOfSelection, tr("Path profile from selection"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_K),
      tr("Show pressure, height and more along a way through the selected nodes"),
      [this] { emit profileRequested(m_net.selection().nodes.values()); });
  add(Command::ProfileFrom, tr("Profile from here"), QKeySequence(),
      tr("Let the path of the profile begin at the selected node"), [this, node] { emit profileFromRequested(node()); });
  add(Command::ProfileTo, tr("Profile to here"), QKeySequence(), tr("Let the path of the profile end at the selected node"),
      [this, node] { emit profileToRequested(node()); });
}

const DrawFunction::OfNetwork &PlotActions::ofNetwork() {
  if (!m_ofNetwork)
    m_ofNetwork = DrawFunction::ofNetwork(m_net);
  return *m_ofNetwork;
}

QMenu *PlotActions::functionMenu(Aspect aspect) const {
  return m_functions[aspect].get();
}

QString PlotActions::functionInUse(Aspect aspect) const {
  return m_functions[aspect]->inUse();
}

QStringList PlotActions::selectedMachines() const {
  constexpr int MaximumSelected = 10000; // whoever selects more is not after machines
  constexpr int MaximumMachines = 30;
  const Selection &selection = m_net.selection();
  if (selection.nodes.size() + selection.edges.size() > MaximumSelected)
    return {};
  QStringList machines;
  for (const Selection::Names *kind : {&selection.nodes, &selection.edges}) {
    for (const QString &name : *kind) {
      const element *e = m_net.element(name);
      if (e != nullptr && ElementTypes::hasCharacteristics(e->value(QStringLiteral("type"))))
        machines.append(name);
    }
  }
  machines.sort(Qt::CaseInsensitive);
  return machines.size() > MaximumMachines ? QStringList() : machines;
}

void PlotActions::refreshSeen() {
  const bool hasNetwork = m_plot.update().netData() != nullptr;
  for (QAction *action : m_actions)
    action->setEnabled(hasNetwork);
  for (const Aspect aspect : AllAspects)
    m_functions[aspect]->setEnabled(hasNetwork);
  refreshHistory();
  (*this)[Command::FarOutside]->setVisible(m_plot.hasStragglers());
  (*this)[Command::Labels]->setChecked(m_plot.settings().label_mode != noLabels());
  (*this)[Command::SearchResults]->setChecked(m_plot.update().displayMode() == NetUpdate::DisplayMode::SearchResults);
  refreshSelection();
  emit functionsInUseChanged();
}

/// Asked with every step of a zoom.
void PlotActions::refreshHistory() {
  const bool hasNetwork = m_plot.update().netData() != nullptr;
  (*this)[Command::Back]->setEnabled(hasNetwork && m_plot.zoomer()->canGoBack());
  (*this)[Command::Forward]->setEnabled(hasNetwork && m_plot.zoomer()->canGoForward());
}

void PlotActions::refreshSelection() {
  const Selection &selection = m_net.selection();
  const int count = m_plot.update().netData() == nullptr ? 0 : selection.size();
  for (const Command command : {Command::ToSelection, Command::SelectNone, Command::ShowInfo, Command::EditProperties,
                                Command::Characteristics, Command::SubnetWindow, Command::Upstream, Command::Downstream})
    (*this)[command]->setEnabled(count > 0);
  (*this)[Command::ToSelection]->setEnabled(count > 0 && !m_plot.selection().items().empty());
  (*this)[Command::ShowInfo]->setEnabled(count == 1);
  (*this)[Command::SubnetWindow]->setEnabled(selection.subnets.size() == 1);
  (*this)[Command::Upstream]->setEnabled(count == 1);
  (*this)[Command::Downstream]->setEnabled(count == 1);
  constexpr int MostWayPoints = 50; // whoever selects more does not mean a path
  const int nodes = count == 0 ? 0 : selection.nodes.size();
  (*this)[Command::ProfileOfSelection]->setEnabled(nodes > 1 && nodes <= MostWayPoints);
  (*this)[Command::ProfileFrom]->setEnabled(nodes == 1);
  (*this)[Command::ProfileTo]->setEnabled(nodes == 1);
}

void PlotActions::refresh(const Answered &answered) {
  refreshSeen();
  const auto allow = [this](Command command, bool isAllowed) {
    (*this)[command]->setEnabled((*this)[command]->isEnabled() && isAllowed);
  };
  const QStringList machines = selectedMachines();
  (*this)[Command::Characteristics]->setText(
      machines.isEmpty() ? tr("Open Characteristics")
      : machines.size() == 1
          ? tr("Open Characteristics of %1").arg(QString(machines.first()).replace(QLatin1Char('&'), QStringLiteral("&&")))
          : tr("Open Characteristics of %1 machines").arg(machines.size()));
  allow(Command::Characteristics, answered.hasCharacteristics && !machines.isEmpty());
  allow(Command::ShowInfo, answered.hasInfo);
  allow(Command::EditProperties, answered.hasProperties);
  allow(Command::SubnetWindow, answered.hasSubnetWindows);
  allow(Command::Configure, answered.hasConfiguration);
  const std::size_t unplaced = m_plot.update().unplacedLabels().size();
  QAction *list = (*this)[Command::UnplacedLabels];
  list->setVisible(unplaced > 0);
  list->setText(unplaced == 1 ? tr("1 label found no place …") : tr("%1 labels found no place …").arg(unplaced));
}

void PlotActions::setLabelsShown(bool shown) {
  PlotSettings settings = m_plot.appliedSettings();
  if (!shown)
    m_labelMode = settings.label_mode;
  else if (m_labelMode.isEmpty() || m_labelMode == noLabels())
    m_labelMode = PlotSettings().label_mode;
  settings.label_mode = shown ? m_labelMode : noLabels();
  m_plot.setSettings(settings);
  m_plot.update().updatePlot(NetUpdate::Elements::Kept, NetUpdate::Which::EdgesAndNodes, NetUpdate::Labels::Renewed);
  if (shown)
    m_plot.update().relabelNow(); // whoever asks for labels wants to see some
  emit settingsChosen();
}

void PlotActions::copyPicture() {
  m_plot.selection().setHovered(std::nullopt);
  QImage picture;
  {
    const OnPaper white(m_plot);
    picture = m_plot.grab().toImage();
  }
  QApplication::clipboard()->setImage(picture);
  emit told(tr("Copied the drawing, %1 × %2 pixels").arg(picture.width()).arg(picture.height()));
}

void PlotActions::bookmarkView() {
  bool isAccepted = false;
  const QString name = QInputDialog::getText(&m_plot, tr("Bookmark"), tr("Name of this view:"), QLineEdit::Normal,
                                             tr("View %1").arg(m_bookmarks.all().size() + 1), &isAccepted)
                           .trimmed();
  QString reason;
  if (isAccepted && !name.isEmpty() && !m_bookmarks.add({name, m_plot.visibleArea()}, &reason))
    NivraMsg::message(NivraMsg::Kind::Warning, reason);
}

void PlotActions::listUnplacedLabels() {
  QDialog dialog(&m_plot);
  dialog.setWindowTitle(tr("Labels without a place"));
  auto *list = new QListWidget(&dialog);
  for (const NetGeometry::Item item : m_plot.update().unplacedLabels())
    list->addItem(m_plot.update().geometry().source(item)->value(QStringLiteral("name")));
  auto *layout = new QVBoxLayout(&dialog);
  layout->addWidget(list);
  connect(list, &QListWidget::itemActivated, &dialog, [this, &dialog](const QListWidgetItem *entry) {
    emit showRequested(entry->text());
    dialog.accept();
  });
  dialog.exec();
}

void PlotActions::trace(Topology::Direction direction) {
  const Selection::Names names = m_net.selection().names();
  if (names.size() == 1)
    emit traceRequested(*names.cbegin(), direction);
}
