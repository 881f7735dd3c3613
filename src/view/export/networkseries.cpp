#include "export/networkseries.h"

#include <drawing/colorscale.h>

/// With the bounds and classes that the present drawing has, whether they are fixed or come from its values.
PlotSettings NetworkSeries::fixedSettings() const {
  PlotSettings settings = m_present.drawing().source().settings;
  for (const Aspect aspect : AllAspects) {
    const QwtInterval &range = m_present.drawing().update().values().of(aspect).range;
    if (!(range.width() > 0.0))
      continue;
    settings.functions[aspect].minimum = range.minValue();
    settings.functions[aspect].maximum = range.maxValue();
  }
  if (settings.classMethod == PlotSettings::quantileClasses())
    fixClasses(settings);
  return settings;
}

/// As many values in each class: that would be other classes of another scenario.
void NetworkSeries::fixClasses(PlotSettings &settings) const {
  constexpr int Exact = 17; // digits that tell two numbers apart
  const DrawValues::Column &edges = m_present.drawing().update().values().of(Aspect::EdgeColor);
  const std::vector<double> breaks = ColorScale::breaksOf(m_present.drawing().settings(), edges);
  if (breaks.empty())
    return;
  QStringList texts;
  for (const double value : breaks)
    texts.append(QString::number(edges.function.toTable(value), 'g', Exact));
  settings.classMethod = PlotSettings::ownClasses();
  settings.classBreaks = texts.join(QLatin1Char(';'));
}

bool NetworkSeries::read(const QString &scenario, bool keepsScales, const std::function<bool()> &goOn, QString *reason) {
  m_page.reset();
  m_net = std::make_unique<NetData>();
  m_scenario.clear();
  if (!m_scenarios.read(
          scenario, *m_net, [&goOn](double) { return goOn(); }, reason))
    return false;
  DrawingSource source = m_present.drawing().source();
  source.net = m_net.get();
  source.selection.clear(); // which is one of the present network
  if (keepsScales)
    source.settings = fixedSettings();
  PageFacts facts = m_facts;
  facts.scenario = scenario;
  m_page = std::make_unique<NetworkPage>(std::move(source), std::move(facts));
  m_scenario = scenario;
  return true;
}

PageContent *NetworkSeries::open(const QString &scenario, const View &view, bool keepsScales,
                                 const std::function<bool()> &goOn, QString *reason) {
  NetworkPage *page = &m_present;
  if (!scenario.isEmpty() && scenario != m_facts.scenario) {
    if (scenario != m_scenario && !read(scenario, keepsScales, goOn, reason))
      return nullptr;
    page = m_page.get();
  }
  page->setArea(view.area);
  return page;
}

QString NetworkSeries::nameOf(const QString &scenario, const View &view) {
  return scenario.isEmpty() ? view.name : scenario + QLatin1Char(' ') + view.name;
}

std::vector<PageSeries::Page> NetworkSeries::pages(const Choice &choice, const PageText &text,
                                                   const std::function<bool()> &goOn) {
  std::vector<PageSeries::Page> pages;
  const QStringList scenarios = choice.scenarios.isEmpty() ? QStringList(m_facts.scenario) : choice.scenarios;
  for (const QString &scenario : scenarios) {
    for (const View &view : choice.views) {
      const auto openPage = [this, scenario, view, text, goOn, keeps = choice.keepsScales](PageText &said, QString *reason) {
        PageContent *content = open(scenario, view, keeps, goOn, reason);
        if (content == nullptr)
          return content;
        said = text;
        said.title = text.title.isEmpty() ? view.name : tr("%1 \u2013 %2").arg(text.title, view.name);
        said.facts = content->text().facts;
        return content;
      };
      pages.push_back({nameOf(scenario, view), openPage});
    }
  }
  return pages;
}
