#pragma once

#include "export/networkpage.h"

#include <paper/pageseries.h>
#include <view/scenariosource.h>

#include <memory>

/// Pages of several views of a network in several scenarios. One scenario at a time is in memory besides the present one.
class NetworkSeries {
  Q_DECLARE_TR_FUNCTIONS(NetworkSeries)
public:
  struct View {
    QString name;
    std::optional<QRectF> area; ///< in the network's coordinates; nothing for the whole network
  };
  struct Choice {
    QList<View> views;
    QStringList scenarios;   ///< empty for the present one
    bool keepsScales = true; ///< colours and widths mean the same on all pages: what they mean now
  };

  /// \param present the page of the present network, which must outlive this; what it shows changes
  NetworkSeries(NetworkPage &present, PageFacts facts, ScenarioSource scenarios)
      : m_present(present)
      , m_facts(std::move(facts))
      , m_scenarios(std::move(scenarios)) {}

  static QString nameOf(const QString &scenario, const View &view);
  /// Scenario by scenario; they must not outlive this.
  /// \param text of the page whose kind they are
  /// \param goOn asked while a scenario is read; false ends it
  std::vector<PageSeries::Page> pages(const Choice &choice, const PageText &text, const std::function<bool()> &goOn);

private:
  PageContent *open(const QString &scenario, const View &view, bool keepsScales, const std::function<bool()> &goOn,
                    QString *reason);
  bool read(const QString &scenario, bool keepsScales, const std::function<bool()> &goOn, QString *reason);
  PlotSettings fixedSettings() const;
  void fixClasses(PlotSettings &settings) const;

  NetworkPage &m_present;
  PageFacts m_facts;
  ScenarioSource m_scenarios;
  std::unique_ptr<NetData> m_net;      ///< of m_page
  std::unique_ptr<NetworkPage> m_page; ///< of another scenario
  QString m_scenario;                  ///< of m_page
};
