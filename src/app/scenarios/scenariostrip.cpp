#include "scenarios/scenariostrip.h"

#include "scenarios/scenariolist.h"

#include <QAction>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>

ScenarioStrip::ScenarioStrip(QAction *previous, QAction *next, QWidget *parent)
    : QToolBar(tr("Scenarios by date"), parent)
    , m_slider(new QSlider(Qt::Horizontal))
    , m_date(new QLabel) {
  constexpr int RestMs = 120; // who drags over hundreds of scenarios wants the one where the hand rests
  constexpr int LongestDate = 22;
  setObjectName(QStringLiteral("scenarioStrip"));
  setToolButtonStyle(Qt::ToolButtonIconOnly);
  addAction(previous);
  addWidget(m_slider);
  addAction(next);
  addWidget(m_date);
  m_slider->setAccessibleName(tr("Date of the scenario"));
  m_slider->setToolTip(tr("Drag, or step with the arrow keys, to show the scenario of another date"));
  m_slider->setFocusPolicy(Qt::StrongFocus);
  m_date->setMinimumWidth(m_date->fontMetrics().averageCharWidth() * LongestDate);
  m_date->setMargin(m_date->fontMetrics().averageCharWidth());
  m_rest.setSingleShot(true);
  m_rest.setInterval(RestMs);
  connect(&m_rest, &QTimer::timeout, this, &ScenarioStrip::want);
  connect(m_slider, &QSlider::valueChanged, this, [this](int position) {
    tell(position);
    m_rest.start();
  });
}

void ScenarioStrip::setList(const ScenarioList &list) {
  constexpr int PageSteps = 20;
  const QSignalBlocker quiet(m_slider);
  m_list = &list;
  const int dated = toQt(list.dated());
  m_slider->setRange(0, dated - 1);
  m_slider->setPageStep(qMax(1, dated / PageSteps));
}

void ScenarioStrip::showCurrent(const QString &name) {
  const Index index = m_list == nullptr ? NoIndex : m_list->indexOf(name);
  if (index == NoIndex || index >= m_list->dated()) {
    m_date->setText(tr("no date"));
    return;
  }
  if (m_rest.isActive()) // a hand is further already
    return;
  const QSignalBlocker quiet(m_slider);
  m_slider->setValue(toQt(index));
  tell(toQt(index));
}

void ScenarioStrip::tell(int position) {
  if (m_list != nullptr && position < toQt(m_list->dated()))
    m_date->setText(ScenarioDate::shown((*m_list)[toIndex(fromQt(position))].date));
}

void ScenarioStrip::want() {
  const int position = m_slider->value();
  if (m_list != nullptr && position < toQt(m_list->dated()))
    emit wanted((*m_list)[toIndex(fromQt(position))].file);
}
