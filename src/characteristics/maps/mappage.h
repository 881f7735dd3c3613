#pragma once

#include <paper/pagecontent.h>

class QwtPlot;

/// A page with the map of a machine, as the map is shown: its name above, then its working point.
class MapPage : public PageContent {
public:
  /// \param map must outlive the page; it is not changed
  MapPage(const QwtPlot &map, PageFacts facts)
      : m_map(map)
      , m_facts(std::move(facts)) {}

  PageText text() const override;
  void layOut(const QSizeF &frame, const PageSetup &setup, Detail detail) override;
  void paint(QPainter &painter) const override;

private:
  const QwtPlot &m_map;
  PageFacts m_facts;
  QSizeF m_frame;
};
