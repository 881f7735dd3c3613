#include "elementpanels.h"

#include <drawing/labelcontents.h>
#include <model/names.h>
#include <model/netdata.h>
#include <tools/nivrapropviewer.h>
#include <view/netviscontrol.h>

#include <QDockWidget>
#include <QMainWindow>

ElementPanels::ElementPanels(QMainWindow &window, NetVisControl &control)
    : QObject(&window)
    , m_control(control)
    , m_info(new NivraEleInfoWidget([this](const element &e) { return plotLabel(e); }))
    , m_infoDock(new QDockWidget(m_info->windowTitle(), &window))
    , m_properties(new NivraPropViewer(control.net(), &window)) {
  m_infoDock->setWidget(m_info);
  for (const QDockWidget *dock : {m_infoDock, static_cast<QDockWidget *>(m_properties)}) {
    connect(dock, &QDockWidget::visibilityChanged, this, [this](bool isShown) {
      if (isShown)
        show(marked());
    });
  }
  connect(m_properties, &NivraPropViewer::characteristicsWanted, this, &ElementPanels::characteristicsWanted);
  connect(m_properties, &NivraPropViewer::whyWanted, this, &ElementPanels::whyWanted);
  connect(&control, &NetVisControl::currentElementChanged, this, &ElementPanels::show);
  connect(&control, &NetVisControl::editPropertiesRequested, this, &ElementPanels::bringProperties);
  connect(&control, &NetVisControl::selectionChanged, this, &ElementPanels::showSelection);
  connect(control.picker(), &NetPicker::hovered, this, [this](const QString &name) {
    if (!name.isEmpty() && m_control.net().selection().isEmpty()) // what was picked stays until something else is
      show(name);
  });
}

void ElementPanels::setExplains(bool explains) {
  m_properties->setExplains(explains);
}

QDockWidget *ElementPanels::properties() const {
  return m_properties;
}

/// In place of what the mouse went over.
void ElementPanels::showSelection() {
  if (m_control.net().selection().size() == 1)
    show(marked());
}

QString ElementPanels::marked() const {
  const Selection::Names names = m_control.net().selection().names();
  if (names.size() == 1)
    return *names.cbegin();
  return names.contains(m_control.currentElement()) ? m_control.currentElement() : QString();
}

void ElementPanels::show(const QString &name) {
  m_shown = name;
  NetData &net = m_control.net();
  const element *e = net.element(name);
  if (m_properties->isVisible())
    m_properties->showCurrentEleContents(e);
  if (!m_info->isVisible())
    return;
  m_info->reset();
  m_info->showEleLabel(e);
  m_info->showSubLabel(net.assembledSubnets().find(name));
}

void ElementPanels::reset() {
  m_shown.clear();
  m_properties->showCurrentEleContents(nullptr);
  m_info->reset();
}

void ElementPanels::bring(const QString &name) {
  m_infoDock->show();
  m_properties->show();
  m_properties->raise();
  show(name);
}

void ElementPanels::bringProperties(const QStringList &names) {
  if (names.isEmpty())
    return;
  if (names.size() > 1) { // the viewer shows one at a time; the others are told by the selection
    Selection selection;
    for (const QString &name : names)
      Topology::select(m_control.net(), name, selection);
    m_control.picker()->setSelection(selection);
  }
  m_properties->show();
  m_properties->raise();
  show(names.first());
}

NivraEleInfoWidget::PlotLabel ElementPanels::plotLabel(const element &e) const {
  const LabelContents *contents = m_control.labelContents();
  if (contents == nullptr)
    return {};
  const LabelText text = contents->text(e);
  const LabelStyle style =
      contents->style(e, m_control.net().findElement(e.value(Names::all().name), NetData::AllTypes).first);
  QStringList lines;
  for (const QString &line : text.lines)
    lines.append(line.toHtmlEscaped());
  return {text.html.isEmpty() ? lines.join(QStringLiteral("<br />")) : text.html, style.font, style.text, style.background};
}
