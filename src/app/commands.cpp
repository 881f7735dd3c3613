#include "commands.h"

#include "commandpalette.h"
#include "mnemonics.h"
#include "panelfocus.h"
#include "svgicon.h"
#include "toolbar.h"

#include <view/netplot.h>
#include <view/netviscontrol.h>
#include <view/plotactions.h>

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

namespace {

using Act = PlotActions::Command;

} // namespace

Commands::Commands(QMainWindow &window, NetVisControl &control, const Form &form)
    : QObject(&window)
    , m_window(window)
    , m_control(control)
    , m_form(form) {
  setIcons();
  fillFileMenu();
  addEditMenu();
  addGoMenu();
  addDrawingMenu();
  fillInfoMenu();
  Mnemonics::assign(m_form.bar->actions());
  m_toolBar = new ToolBar(control, m_form.print, window);
  window.addToolBar(m_toolBar);
  connect(m_toolBar, &ToolBar::elementWanted, this, &Commands::showElement);
  const auto show = [this](const QString &text) {
    m_window.statusBar()->showMessage(text);
  };
  connect(m_toolBar, &ToolBar::told, this, show);
  connect(&control.actions(), &PlotActions::told, this, show);
}

Commands::~Commands() = default;

QAction *Commands::add(QMenu &menu, const QString &text, const QString &key, const QString &tip) {
  QAction *action = menu.addAction(text);
  action->setShortcut(QKeySequence(key));
  action->setToolTip(tip);
  return action;
}

QMenu *Commands::addMenu(const QString &title) {
  auto *menu = new QMenu(title, m_form.bar);
  m_form.bar->insertMenu(m_form.info->menuAction(), menu);
  connect(menu, &QMenu::aboutToShow, &m_control, &NetVisControl::refreshActions);
  return menu;
}

void Commands::fillFileMenu() {
  const PlotActions &actions = m_control.actions();
  m_form.file->insertActions(m_form.savePage, {actions[Act::SavePicture], actions[Act::SavePictureWithWidth]});
}

void Commands::addEditMenu() {
  QMenu *menu = addMenu(tr("Edit"));
  const PlotActions &actions = m_control.actions();
  menu->addActions({actions[Act::SelectAll], actions[Act::SelectNone], actions[Act::Upstream], actions[Act::Downstream]});
  menu->addActions({actions[Act::ProfileOfSelection], actions[Act::ProfileFrom], actions[Act::ProfileTo]});
  menu->addSeparator();
  menu->addActions(
      {actions[Act::ShowInfo], actions[Act::EditProperties], actions[Act::Characteristics], actions[Act::SubnetWindow]});
  menu->addSeparator();
  menu->addAction(actions[Act::CopyPicture]);
  menu->addSeparator();
  connect(add(*menu, tr("Context menu"), QStringLiteral("Shift+F10"), tr("The menu of what has the keyboard")),
          &QAction::triggered, this, &Commands::showMenuOfFocus);
}

void Commands::addGoMenu() {
  QMenu *menu = m_go = addMenu(tr("Go"));
  const PlotActions &actions = m_control.actions();
  QAction *find = add(*menu, tr("Go to element …"), QStringLiteral("Ctrl+G"), tr("Show an element by a part of its name"));
  find->setIcon(svgIcon(QStringLiteral("search")));
  connect(find, &QAction::triggered, this, &Commands::goToElement);
  menu->addSeparator();
  menu->addActions({actions[Act::Back], actions[Act::Forward]});
  menu->addSeparator();
  menu->addActions({actions[Act::WholeNetwork], actions[Act::ToSelection], actions[Act::FarOutside], actions[Act::ZoomIn],
                    actions[Act::ZoomOut]});
  menu->addSeparator();
  QMenu *bookmarks = menu->addMenu(tr("Bookmarks"));
  connect(bookmarks, &QMenu::aboutToShow, this, [this, bookmarks] { fillBookmarks(*bookmarks); });
  menu->addSeparator();
  connect(add(*menu, tr("Next panel"), QStringLiteral("F6"), tr("Give the keyboard to the next panel")), &QAction::triggered,
          this, [this] { goToPanel(1); });
  connect(add(*menu, tr("Panel before"), QStringLiteral("Shift+F6"), tr("Give the keyboard to the panel before")),
          &QAction::triggered, this, [this] { goToPanel(-1); });
}

void Commands::addDrawingMenu() {
  QMenu *menu = addMenu(tr("Drawing"));
  const PlotActions &actions = m_control.actions();
  menu->addActions({actions[Act::DragZooms], actions[Act::DragSelects], actions[Act::DragPans], actions[Act::Measure]});
  menu->addSeparator();
  menu->addActions({actions[Act::Labels], actions[Act::PlaceLabels], actions[Act::UnplacedLabels]});
  menu->addSeparator();
  for (const Aspect aspect : AllAspects)
    menu->addMenu(actions.functionMenu(aspect));
  menu->addSeparator();
  menu->addActions({actions[Act::SearchResults], actions[Act::Configure]});
}

void Commands::fillInfoMenu() {
  m_form.info->addSeparator();
  QAction *all =
      add(*m_form.info, tr("All commands …"), QStringLiteral("Ctrl+Shift+P"), tr("Find a command by parts of its words"));
  all->setIcon(svgIcon(QStringLiteral("commands")));
  connect(all, &QAction::triggered, this, &Commands::showPalette);
}

void Commands::setIcons() {
  const PlotActions &actions = m_control.actions();
  for (const auto &[command, name] :
       {std::pair(Act::Back, "back"), std::pair(Act::Forward, "forward"), std::pair(Act::WholeNetwork, "zoom-all"),
        std::pair(Act::ToSelection, "zoom-selection"), std::pair(Act::DragZooms, "drag-zooms"),
        std::pair(Act::DragSelects, "drag-selects"), std::pair(Act::DragPans, "drag-pans"),
        std::pair(Act::Measure, "measure"), std::pair(Act::Labels, "labels"), std::pair(Act::SavePicture, "save-picture"),
        std::pair(Act::CopyPicture, "copy-picture")})
    actions[command]->setIcon(svgIcon(QLatin1String(name)));
  m_control.plot()->legendAction()->setIcon(svgIcon(QStringLiteral("legend")));
  for (const auto &[aspect, name] :
       {std::pair(Aspect::EdgeColor, "edge-colour"), std::pair(Aspect::NodeColor, "node-colour")})
    actions.functionMenu(aspect)->setIcon(svgIcon(QLatin1String(name)));
}

void Commands::fillBookmarks(QMenu &menu) {
  menu.clear();
  menu.addAction(m_control.actions()[Act::BookmarkView]);
  menu.addSeparator();
  NetPlot *plot = m_control.plot();
  for (const ViewBookmarks::Bookmark &bookmark : m_control.bookmarks().all()) {
    QString name = bookmark.name;
    menu.addAction(name.replace(QLatin1Char('&'), QStringLiteral("&&")), plot,
                   [plot, view = bookmark.view] { plot->showArea(view); });
  }
}

void Commands::showPalette() {
  if (m_palette == nullptr)
    m_palette = new CommandPalette(m_window);
  m_palette->open();
}

void Commands::showElement(const QString &name) {
  emit elementChosen(name);
  if (!m_control.showElement(name)) {
    m_window.statusBar()->showMessage(tr("%1 has no place in the drawing").arg(name));
    return;
  }
  m_control.plot()->setFocus();
  if (m_control.isHidden(name))
    m_window.statusBar()->showMessage(tr("%1 is in a layer that is hidden").arg(name));
}

void Commands::goToElement() {
  m_toolBar->show(); // where it was hidden
  m_toolBar->goToElement();
}

/// The drawing and the panels that are to be seen, one after the other.
void Commands::goToPanel(int step) {
  QList<QWidget *> panels{m_window.centralWidget()};
  for (QDockWidget *dock : m_window.findChildren<QDockWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
    if (!dock->visibleRegion().isEmpty())
      panels.append(dock);
  }
  int current = 0;
  for (int i = 0; i < panels.size(); ++i) {
    if (panels[i]->isAncestorOf(QApplication::focusWidget()))
      current = i;
  }
  QWidget *panel = panels[(current + step + panels.size()) % panels.size()];
  if (panel == m_window.centralWidget())
    panel->setFocus(Qt::TabFocusReason);
  else
    PanelFocus::give(*panel);
}

void Commands::showMenuOfFocus() {
  QWidget *widget = QApplication::focusWidget();
  if (widget == nullptr || !widget->isVisible())
    widget = m_window.focusWidget(); // which it gets back once the list of commands has gone
  if (widget == nullptr)
    return;
  QPoint place = widget->rect().center();
  if (const auto *view = qobject_cast<const QAbstractItemView *>(widget)) {
    const QRect cell = view->visualRect(view->currentIndex());
    if (cell.isValid() && view->viewport()->rect().intersects(cell))
      widget = view->viewport();
    place = cell.isValid() ? cell.center() : place;
  }
  QContextMenuEvent event(QContextMenuEvent::Keyboard, place, widget->mapToGlobal(place));
  QApplication::sendEvent(widget, &event);
}
