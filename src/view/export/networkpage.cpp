#include "export/networkpage.h"

#include "export/networklegend.h"

NetworkPage::NetworkPage(DrawingSource source, PageFacts facts)
    : m_facts(std::move(facts))
    , m_drawing(std::move(source))
    , m_mapScale(MapScale::of(*m_drawing.source().net, m_drawing.update().geometry()))
    , m_area(m_drawing.source().area) {}

PageText NetworkPage::text() const {
  const QString subject = m_facts.subject.isEmpty() ? m_facts.caseName : m_facts.subject;
  return {subject.isEmpty() ? tr("Network") : subject, m_facts.line(), QString()};
}

void NetworkPage::layOut(const QSizeF &frame, const PageSetup &setup, Detail detail) {
  m_frame = frame;
  m_marksSelection = setup.marksSelection;
  const std::optional<QRectF> area = setup.area == PageSetup::Area::Window ? m_area : std::nullopt;
  m_drawing.aim(frame, area);
  const LaidOut wanted{frame, area, setup.hasLabels};
  if (detail == Detail::Draft || (m_laidOut && *m_laidOut == wanted))
    return; // somebody may be typing a title, and labels of a large network take their time
  m_laidOut = wanted;
  m_drawing.setNamesWanted(setup.hasLabels);
  m_drawing.setView(frame, area);
  if (setup.hasLabels)
    m_drawing.placeLabels();
  else
    m_drawing.clearLabels();
}

std::vector<PaperLegendPart> NetworkPage::legend() const {
  return NetworkLegend::blocks(m_drawing);
}

std::optional<PaperScale> NetworkPage::scale() const {
  const NetGeometry &geometry = m_drawing.update().geometry();
  if (!geometry.hasExtent() || m_frame.isEmpty())
    return std::nullopt;
  const QRectF seen = geometry.toOwn(m_drawing.visible());
  const bool isMetres = m_mapScale.coordinates() != MapScale::Coordinates::Plain;
  const double unit = m_mapScale.metresPerUnit(seen.center().y());
  return PaperScale{seen.width() / m_frame.width() * unit, isMetres, m_mapScale.north()};
}

void NetworkPage::paint(QPainter &painter) const {
  m_drawing.paint(painter, m_marksSelection);
}
