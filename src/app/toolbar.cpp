#include "toolbar.h"

#include "elementfield.h"
#include "mnemonics.h"
#include "svgicon.h"

#include <view/netplot.h>
#include <view/netviscontrol.h>
#include <view/plotactions.h>

#include <QAction>
#include <QActionEvent>
#include <QHelpEvent>
#include <QMainWindow>
#include <QMenu>
#include <QToolButton>
#include <QToolTip>

ToolBar::ToolBar(NetVisControl &control, QAction *print, QMainWindow &window)
    : QToolBar(tr("Main tools"), &window)
    , m_control(control) {
  using Act = PlotActions::Command;
  constexpr QSize IconSize(20, 20);
  setObjectName(QStringLiteral("mainToolBar"));
  setIconSize(IconSize);
  setAllowedAreas(Qt::TopToolBarArea | Qt::BottomToolBarArea); // upright, the field would make it broad
  const PlotActions &actions = control.actions();
  addActions({actions[Act::Back], actions[Act::Forward], actions[Act::WholeNetwork], actions[Act::ToSelection]});
  addSeparator();
  addActions({actions[Act::DragZooms], actions[Act::DragSelects], actions[Act::DragPans], actions[Act::Measure]});
  addSeparator();
  addField();
  addSeparator();
  addAction(actions[Act::Labels]);
  addStyleChooser();
  addChooser(Aspect::EdgeColor, tr("Edge colour"));
  addChooser(Aspect::NodeColor, tr("Node colour"));
  addSeparator();
  addActions({actions[Act::SavePicture], actions[Act::CopyPicture], print});
  connect(&actions, &PlotActions::functionsInUseChanged, this, &ToolBar::showFunctions);
  connect(&control.styles(), &StyleActions::inUseChanged, this, &ToolBar::showStyle);
  showFunctions();
}

void ToolBar::addOpening(QAction *open, QMenu *recent, QAction *reload) {
  QAction *first = actions().constFirst();
  insertActions(first, {open, reload});
  insertSeparator(first);
  auto *button = qobject_cast<QToolButton *>(widgetForAction(open));
  button->setMenu(recent);
  button->setPopupMode(QToolButton::MenuButtonPopup);
}

void ToolBar::addField() {
  constexpr int Narrowest = 80;
  constexpr int Widest = 190;
  m_field = new ElementField(m_control.net(), this);
  m_field->setMinimumWidth(Narrowest);
  m_field->setMaximumWidth(Widest);
  m_field->setPlaceholderText(tr("Go to element"));
  m_field->setAccessibleName(tr("Name of an element to go to"));
  m_field->setToolTip(tr("Show an element by a part of its name (%1)")
                          .arg(QKeySequence(Qt::CTRL + Qt::Key_G).toString(QKeySequence::NativeText)));
  m_field->addAction(svgIcon(QStringLiteral("search")), QLineEdit::LeadingPosition);
  QAction *place = addWidget(m_field);
  place->setText(tr("Go to element"));
  connect(m_field, &ElementField::elementWanted, this, &ToolBar::elementWanted);
  connect(m_field, &ElementField::told, this, &ToolBar::told);
  connect(m_field, &ElementField::left, m_control.plot(), QOverload<>::of(&QWidget::setFocus));
}

void ToolBar::addChooser(Aspect aspect, const QString &title) {
  QMenu *menu = m_control.actions().functionMenu(aspect);
  auto *chooser = new QToolButton(this);
  chooser->setIcon(menu->icon());
  chooser->setIconSize(iconSize());
  chooser->setAutoRaise(true);
  chooser->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  chooser->setPopupMode(QToolButton::InstantPopup);
  chooser->setFocusPolicy(Qt::TabFocus);
  chooser->setMenu(menu);
  chooser->setAccessibleName(title);
  addWidget(chooser)->setText(title);
  m_choosers[aspect] = chooser;
}

void ToolBar::addStyleChooser() {
  m_styles = new QToolButton(this);
  m_styles->setIconSize(iconSize());
  m_styles->setAutoRaise(true);
  m_styles->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  m_styles->setPopupMode(QToolButton::InstantPopup);
  m_styles->setFocusPolicy(Qt::TabFocus);
  m_styles->setMenu(m_control.styles().menu());
  m_styles->setAccessibleName(tr("Style"));
  addWidget(m_styles)->setText(tr("Style"));
}

void ToolBar::showStyle() {
  constexpr int Letters = 8;
  const QString style = m_control.styles().inUse();
  const int width = m_styles->fontMetrics().averageCharWidth() * Letters;
  m_styles->setEnabled(m_control.plot()->update().netData() != nullptr);
  m_styles->setIcon(m_control.styles().swatch());
  m_styles->setText(
      m_styles->fontMetrics().elidedText(style.isEmpty() ? m_styles->accessibleName() : style, Qt::ElideRight, width));
  m_styles->setToolTip(style.isEmpty() ? m_control.styles().menu()->toolTip() : tr("Style: %1").arg(style.toHtmlEscaped()));
}

void ToolBar::showFunctions() {
  showStyle();
  constexpr int Letters = 9; // of more the end is cut, so that the bar keeps its width
  m_field->setEnabled(m_control.plot()->update().netData() != nullptr);
  for (const Aspect aspect : {Aspect::EdgeColor, Aspect::NodeColor}) {
    QToolButton *chooser = m_choosers[aspect];
    const QString function = m_control.actions().functionInUse(aspect);
    chooser->setEnabled(m_control.plot()->update().netData() != nullptr);
    const int width = chooser->fontMetrics().averageCharWidth() * Letters;
    chooser->setText(function.isEmpty() ? chooser->accessibleName()
                                        : chooser->fontMetrics().elidedText(function, Qt::ElideRight, width));
    chooser->setToolTip(function.isEmpty() ? chooser->accessibleName()
                                           : tr("%1: %2").arg(chooser->accessibleName(), function.toHtmlEscaped()));
  }
}

void ToolBar::goToElement() {
  m_field->setFocus(Qt::ShortcutFocusReason);
  m_field->selectAll();
}

void ToolBar::actionEvent(QActionEvent *event) {
  QToolBar::actionEvent(event);
  if (event->type() != QEvent::ActionAdded)
    return;
  if (QWidget *button = widgetForAction(event->action()))
    button->installEventFilter(this);
}

/// Tips name the key, which the toolkit leaves out.
bool ToolBar::eventFilter(QObject *watched, QEvent *event) {
  const auto *button = qobject_cast<const QToolButton *>(watched);
  if (event->type() != QEvent::ToolTip || button == nullptr || button->defaultAction() == nullptr)
    return QToolBar::eventFilter(watched, event);
  const QAction &action = *button->defaultAction();
  const QString key = action.shortcut().toString(QKeySequence::NativeText);
  QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                     key.isEmpty() ? action.toolTip() : tr("%1 (%2)").arg(action.toolTip(), key));
  return true;
}
