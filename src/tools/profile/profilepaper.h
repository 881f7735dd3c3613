#pragma once

#include "profile/profilechart.h"

#include <paper/pagecontent.h>

/// A page with the profile as it is shown.
class ProfilePaper : public PageContent {
public:
  /// \param chart must outlive the page
  ProfilePaper(ProfileChart &chart, QString title, PageFacts facts)
      : m_chart(chart)
      , m_title(std::move(title))
      , m_facts(std::move(facts)) {}

  PageText text() const override { return {m_title, m_facts.line(), QString()}; }
  void layOut(const QSizeF &frame, const PageSetup &setup, Detail detail) override;
  void paint(QPainter &painter) const override;

private:
  ProfileChart &m_chart;
  QString m_title;
  PageFacts m_facts;
  QSizeF m_frame;
};
