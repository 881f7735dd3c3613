#include "search/selectbuttons.h"

#include <QActionGroup>
#include <QMenu>
#include <QToolButton>

SelectButtons::SelectButtons(QToolButton &select, QToolButton &mode, QObject *parent)
    : QObject(parent) {
  auto *selectMenu = new QMenu(&select);
  QAction *plain = selectMenu->addAction(tr("Select"));
  QAction *closure = selectMenu->addAction(tr("Select+Closure"));
  auto *modeMenu = new QMenu(&mode);
  auto *group = new QActionGroup(this);
  m_add = modeMenu->addAction(tr("add"));
  QAction *replace = modeMenu->addAction(tr("replace"));
  for (QAction *action : {m_add, replace}) {
    action->setCheckable(true);
    group->addAction(action);
  }
  replace->setChecked(true);
  const auto setUp = [](QToolButton &button, QMenu *choices, QAction *first) {
    button.setMenu(choices);
    button.setPopupMode(QToolButton::MenuButtonPopup);
    button.setDefaultAction(first);
    connect(choices, &QMenu::triggered, &button, &QToolButton::setDefaultAction);
  };
  setUp(select, selectMenu, plain);
  setUp(mode, modeMenu, replace);
  connect(plain, &QAction::triggered, this, [this] { emit wanted(false, m_add->isChecked()); });
  connect(closure, &QAction::triggered, this, [this] { emit wanted(true, m_add->isChecked()); });
}
