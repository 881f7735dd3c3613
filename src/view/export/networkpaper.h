#pragma once

#include "export/pagedrawing.h"

#include <paper/pagedialog.h>
#include <view/scenariosource.h>
#include <view/viewbookmarks.h>

class NetworkPage;

/// Printing and saving pages of a network as a person does it.
class NetworkPaper {
  Q_DECLARE_TR_FUNCTIONS(NetworkPaper)
public:
  NetworkPaper(QWidget &window, DrawingSource source, PageFacts facts, ScenarioSource scenarios)
      : m_window(window)
      , m_source(std::move(source))
      , m_facts(std::move(facts))
      , m_scenarios(std::move(scenarios)) {}

  /// \param bookmarks views of the case that a series may show
  void show(PageDialog::Purpose purpose, const std::vector<ViewBookmarks::Bookmark> &bookmarks);

private:
  void runSeries(NetworkPage &page, PageDialog &dialog, const std::vector<ViewBookmarks::Bookmark> &bookmarks) const;

  QWidget &m_window;
  DrawingSource m_source;
  PageFacts m_facts;
  ScenarioSource m_scenarios;
};
