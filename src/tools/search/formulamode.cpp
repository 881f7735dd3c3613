#include "search/formulamode.h"

#include <tools/paletteicon.h>

#include <QAction>
#include <QEvent>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPalette>
#include <QToolButton>

FormulaMode::FormulaMode(QLineEdit &field, QToolButton &button, QObject *parent)
    : QObject(parent)
    , m_field(field)
    , m_action(new QAction(tr("Formula Search"), this)) {
  m_action->setCheckable(true);
  m_action->setIcon(paletteIcon(QStringLiteral(":/iconsToolBar/crystal_project_icons/32x32/actions/funct.png")));
  m_action->setToolTip(tr("Formula Search\nUse ELE to refer to current element, e.g. p@ELE>0.1"));
  button.setDefaultAction(m_action);
  m_field.installEventFilter(this);
  connect(m_action, &QAction::toggled, this, &FormulaMode::show);
}

bool FormulaMode::isOn() const {
  return m_action->isChecked();
}

void FormulaMode::setOn(bool on) {
  m_action->setChecked(on);
}

bool FormulaMode::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::ApplicationPaletteChange)
    color();
  return QObject::eventFilter(watched, event);
}

/// Green, with the letters of the palette on it.
void FormulaMode::color() {
  constexpr int Middle = 128;
  QPalette palette;
  if (isOn()) {
    const bool isDark = QGuiApplication::palette().color(QPalette::Base).lightness() < Middle;
    palette.setColor(QPalette::Base, isDark ? QColor(22, 82, 38) : QColor(173, 255, 173));
  }
  m_field.setPalette(palette);
}

void FormulaMode::show(bool on) {
  color();
  m_field.setPlaceholderText(on ? tr("Formula") : QString());
  if (!on)
    emit ended();
}
