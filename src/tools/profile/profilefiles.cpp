#include "profile/profilefiles.h"

#include "profile/profilechart.h"
#include "profile/profilepaper.h"
#include "profile/profiletable.h"

#include <base/lastfolder.h>
#include <base/nivramsg.h>
#include <base/settings.h>
#include <paper/chartfile.h>
#include <paper/pagedialog.h>

#include <QAction>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>

namespace {

/// As high as the panels need.
QSize pointsOf(const ProfileChart &chart) {
  constexpr int Width = 720;
  constexpr int Axis = 80;
  constexpr int Panel = 130;
  return {Width, Axis + Panel * toQt(chart.panels().size())};
}

} // namespace

ProfileFiles::ProfileFiles(ProfileChart &chart)
    : QObject(&chart)
    , m_chart(chart) {
  const auto add = [this](const QString &text, const auto &done) {
    auto *action = new QAction(text, this);
    connect(action, &QAction::triggered, this, done);
    m_actions.append(action);
  };
  add(tr("Save table …"), [this] {
    askAndSave(tr("Save table"), QStringLiteral("profile.csv"),
               tr("CSV (*.csv);;Workbook (*.xlsx);;Text with tabulators (*.txt)"));
  });
  add(tr("Copy table"), [this] { copyTable(); });
  add(tr("Save picture …"),
      [this] { askAndSave(tr("Save picture"), QStringLiteral("profile.png"), tr("Pictures (*.png *.jpg *.pdf *.svg)")); });
  add(tr("Copy picture\tCtrl+C"), [this] { copyPicture(); });
  add(tr("Print or save a page …\tCtrl+P"), [this] { print(); });
  refresh();
}

void ProfileFiles::refresh() {
  for (QAction *action : qAsConst(m_actions))
    action->setEnabled(!m_chart.isEmpty());
}

bool ProfileFiles::save(const QString &path, QString *reason) {
  using Format = TableExport::Format;
  const QString suffix = QFileInfo(path).suffix().toLower();
  const std::pair<QString, Format> tables[] = {
      {QStringLiteral("csv"), Settings::UseComma.value() ? Format::CommaCsv : Format::PointCsv},
      {QStringLiteral("xlsx"), Format::Workbook},
      {QStringLiteral("txt"), Format::Tabulators}};
  for (const auto &[known, format] : tables) {
    if (suffix == known)
      return profileTable(*m_chart.content().profile, m_chart.content().quantities).save(path, format, reason);
  }
  return ChartFile::save(
      path, pointsOf(m_chart), [this](QPainter &painter, const QRectF &area) { m_chart.paintOnWhite(painter, area); },
      reason);
}

void ProfileFiles::askAndSave(const QString &title, const QString &proposed, const QString &filter) {
  LastFolder &folder = LastFolder::ofSaving();
  const QString path = QFileDialog::getSaveFileName(&m_chart, title, folder.with(proposed), filter);
  folder.remember(path);
  QString reason;
  if (!path.isEmpty() && !save(path, &reason))
    NivraMsg::message(NivraMsg::Kind::Warning, reason);
}

void ProfileFiles::copyTable() {
  QGuiApplication::clipboard()->setText(profileTable(*m_chart.content().profile, m_chart.content().quantities).tabbed(true));
}

void ProfileFiles::copyPicture() {
  if (m_chart.isEmpty())
    return;
  QGuiApplication::clipboard()->setImage(ChartFile::picture(
      pointsOf(m_chart), [this](QPainter &painter, const QRectF &area) { m_chart.paintOnWhite(painter, area); }));
}

void ProfileFiles::print() {
  if (m_chart.isEmpty())
    return;
  ProfilePaper page(m_chart, m_title, m_facts);
  PageDialog(page, PageDialog::Purpose::Print, &m_chart).exec();
}
