#pragma once

#include <paper/pagecontent.h>

#include <functional>
#include <utility>

class QwtPlot;

/// A page with the map of a machine, as the map is shown: its name above, then its working point.
class MapPage : public PageContent {
public:
  using OnWhite = std::function<void(const std::function<void()> &paint)>;

  /// \param map must outlive the page
  /// \param onWhite has the map look as on paper while it paints
  MapPage(QwtPlot &map, OnWhite onWhite, PageFacts facts)
      : m_map(map)
      , m_onWhite(std::move(onWhite))
      , m_facts(std::move(facts)) {}

  PageText text() const override;
  void layOut(const QSizeF &frame, const PageSetup &setup, Detail detail) override;
  void paint(QPainter &painter) const override;

private:
  QwtPlot &m_map;
  OnWhite m_onWhite;
  PageFacts m_facts;
  QSizeF m_frame;
};
