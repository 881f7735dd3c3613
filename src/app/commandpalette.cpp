#include "commandpalette.h"

#include "commandmodel.h"
#include "panelfocus.h"

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// A panel that is there without the keyboard is asked for to be used, not to be closed.
bool giveKeyboard(const QAction &action) {
  auto *panel = qobject_cast<QDockWidget *>(action.parent());
  const QWidget *focus = QApplication::focusWidget();
  if (panel == nullptr || &action != panel->toggleViewAction() || !panel->isVisible() ||
      (focus != nullptr && panel->isAncestorOf(focus)))
    return false;
  panel->raise();
  PanelFocus::give(*panel);
  return true;
}

} // namespace

CommandPalette::CommandPalette(QWidget &window)
    : QDialog(&window, Qt::Dialog | Qt::FramelessWindowHint)
    , m_window(window)
    , m_model(new CommandModel(this))
    , m_query(new QLineEdit(this))
    , m_list(new QTreeView(this))
    , m_nothing(new QLabel(tr("No command has these words."), this)) {
  constexpr int Margin = 6;
  setWindowTitle(tr("Commands"));
  setObjectName(QStringLiteral("commandPalette"));
  m_query->setPlaceholderText(tr("Type parts of a command's words"));
  m_query->setAccessibleName(tr("Words of the command"));
  m_query->setClearButtonEnabled(true);
  m_query->installEventFilter(this);
  m_list->setModel(m_model);
  m_list->setAccessibleName(tr("Commands"));
  m_list->setRootIsDecorated(false);
  m_list->setUniformRowHeights(true);
  m_list->setHeaderHidden(true);
  m_list->setAllColumnsShowFocus(true);
  m_list->setFocusPolicy(Qt::NoFocus); // the field keeps the keys
  m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  QHeaderView *header = m_list->header();
  header->setStretchLastSection(false);
  header->setSectionResizeMode(CommandModel::TextColumn, QHeaderView::Stretch);
  header->setSectionResizeMode(CommandModel::MenuColumn, QHeaderView::ResizeToContents);
  header->setSectionResizeMode(CommandModel::KeyColumn, QHeaderView::ResizeToContents);
  m_nothing->setAlignment(Qt::AlignCenter);
  m_nothing->setEnabled(false);
  auto *frame = new QFrame(this); // the edge of a window without a title
  frame->setFrameStyle(QFrame::Box | QFrame::Plain);
  auto *edge = new QVBoxLayout(this);
  edge->setContentsMargins(0, 0, 0, 0);
  edge->addWidget(frame);
  auto *layout = new QVBoxLayout(frame);
  layout->setContentsMargins(Margin, Margin, Margin, Margin);
  layout->addWidget(m_query);
  layout->addWidget(m_nothing, 1);
  layout->addWidget(m_list, 1);
  connect(m_query, &QLineEdit::textChanged, this, &CommandPalette::find);
  connect(m_list, &QTreeView::clicked, this, [this](const QModelIndex &index) { run(index.row()); });
}

void CommandPalette::open() {
  auto *bar = m_window.findChild<QMenuBar *>(QString(), Qt::FindDirectChildrenOnly);
  m_model->setCommands(CommandList::of(bar == nullptr ? QList<QAction *>() : bar->actions(), m_window),
                       CommandList::lastUsed());
  m_query->clear();
  find(QString());
  place();
  show();
  raise();
  activateWindow();
  m_query->setFocus();
}

/// In the upper part of the window, within it.
void CommandPalette::place() {
  constexpr QSize Wanted(640, 440);
  constexpr int Inset = 24;
  const QSize size = Wanted.boundedTo(m_window.size() - QSize(Inset, Inset) * 2);
  const QPoint corner = m_window.mapToGlobal({(m_window.width() - size.width()) / 2, Inset * 2});
  setGeometry(QRect(corner, size));
}

void CommandPalette::find(const QString &query) {
  m_model->setQuery(query);
  const bool hasAny = m_model->rowCount() > 0;
  m_list->setVisible(hasAny);
  m_nothing->setVisible(!hasAny);
  if (hasAny)
    m_list->setCurrentIndex(m_model->index(0, 0));
}

void CommandPalette::move(int rows) {
  const int last = m_model->rowCount() - 1;
  if (last >= 0)
    m_list->setCurrentIndex(m_model->index(std::clamp(m_list->currentIndex().row() + rows, 0, last), 0));
}

void CommandPalette::run(int row) {
  if (row < 0 || row >= m_model->rowCount() || !m_model->command(row).isEnabled())
    return;
  const Command chosen = m_model->command(row);
  CommandList::remember(chosen.id());
  reject();
  // When the window has the keyboard again: many commands ask who has it.
  QTimer::singleShot(0, &m_window, [action = chosen.action] {
    if (action != nullptr && !giveKeyboard(*action))
      action->trigger();
  });
}

/// The window behind is to have the keyboard again, whoever manages the windows.
void CommandPalette::reject() {
  QDialog::reject();
  m_window.activateWindow();
}

bool CommandPalette::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() != QEvent::KeyPress)
    return QDialog::eventFilter(watched, event);
  constexpr int Page = 10;
  switch (static_cast<QKeyEvent *>(event)->key()) {
  case Qt::Key_Down:
    move(1);
    return true;
  case Qt::Key_Up:
    move(-1);
    return true;
  case Qt::Key_PageDown:
    move(Page);
    return true;
  case Qt::Key_PageUp:
    move(-Page);
    return true;
  case Qt::Key_Return:
  case Qt::Key_Enter:
    run(m_list->currentIndex().row());
    return true;
  default:
    return QDialog::eventFilter(watched, event);
  }
}

bool CommandPalette::event(QEvent *event) {
  if (event->type() == QEvent::WindowDeactivate && isVisible())
    hide();
  return QDialog::event(event);
}
