#include "search/formulamode.h"

#include <QAction>
#include <QLineEdit>
#include <QToolButton>

FormulaMode::FormulaMode(QLineEdit &field, QToolButton &button, QObject *parent)
    : QObject(parent)
    , m_field(field)
    , m_action(new QAction(tr("Formula Search"), this))
    , m_plainPalette(field.palette()) {
  m_action->setCheckable(true);
  m_action->setIcon(QIcon(QStringLiteral(":/iconsToolBar/crystal_project_icons/32x32/actions/funct.png")));
  m_action->setToolTip(tr("Formula Search\nUse ELE to refer to current element, e.g. p@ELE>0.1"));
  button.setDefaultAction(m_action);
  connect(m_action, &QAction::toggled, this, &FormulaMode::show);
}

bool FormulaMode::isOn() const {
  return m_action->isChecked();
}

void FormulaMode::setOn(bool on) {
  m_action->setChecked(on);
}

void FormulaMode::show(bool on) {
  QPalette palette = m_plainPalette;
  if (on)
    palette.setColor(QPalette::Base, QColor(173, 255, 173));
  m_field.setPalette(palette);
  m_field.setPlaceholderText(on ? tr("Formula") : QString());
  if (!on)
    emit ended();
}
