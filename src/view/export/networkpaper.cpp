#include "export/networkpaper.h"

#include "export/seriesdialog.h"

#include <QGuiApplication>

void NetworkPaper::show(PageDialog::Purpose purpose, const std::vector<ViewBookmarks::Bookmark> &bookmarks) {
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  NetworkPage page(m_source, m_facts);
  QGuiApplication::restoreOverrideCursor();
  PageDialog dialog(page, purpose, &m_window);
  dialog.setSeries([&] { runSeries(page, dialog, bookmarks); });
  dialog.exec();
}

void NetworkPaper::runSeries(NetworkPage &page, PageDialog &dialog,
                             const std::vector<ViewBookmarks::Bookmark> &bookmarks) const {
  QList<NetworkSeries::View> views{{tr("Whole network"), std::nullopt}, {tr("Window"), m_source.area}};
  for (const ViewBookmarks::Bookmark &bookmark : bookmarks)
    views.append({bookmark.name, bookmark.view});
  const QStringList scenarios = m_scenarios.names ? m_scenarios.names() : QStringList();
  SeriesDialog choices(views, scenarios, m_facts.scenario, dialog.proposedName(), &dialog);
  NetworkSeries series(page, m_facts, m_scenarios);
  choices.setRun([&](const NetworkSeries::Choice &choice, const PageSeries::Target &target, const PageSeries::GoOn &goOn) {
    PageSetup setup = dialog.setup();
    setup.area = PageSetup::Area::Window; // each page has its own
    int done = 0;
    QString name;
    const auto pages = series.pages(choice, dialog.text(), [&] { return goOn(done, name); });
    return PageSeries::run(pages, setup, target, [&](int number, const QString &of) {
      done = number;
      name = of;
      return goOn(number, of);
    });
  });
  choices.exec();
  page.setArea(m_source.area);
}
