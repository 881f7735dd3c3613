#include "profile/profilefiles.h"

#include "profile/profilechart.h"
#include "profile/profilepaper.h"
#include "profile/profiletable.h"
#include "shared/tablefiledialog.h"

#include <base/nivramsg.h>
#include <paper/chartfile.h>
#include <paper/pagedialog.h>

#include <QAction>
#include <QClipboard>
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
    TableFileDialog::askAndSave(&m_chart, QStringLiteral("profile"),
                                [this](const QString &path, TableExport::Format format, QString *reason) {
                                  return saveTable(path, format, reason);
                                });
  });
  add(tr("Copy table"), [this] { copyTable(); });
  add(tr("Save picture …"), [this] { askForPicture(); });
  add(tr("Copy picture\tCtrl+C"), [this] { copyPicture(); });
  add(tr("Print or save a page …\tCtrl+P"), [this] { print(); });
  refresh();
}

void ProfileFiles::refresh() {
  for (QAction *action : qAsConst(m_actions))
    action->setEnabled(!m_chart.isEmpty());
}

bool ProfileFiles::saveTable(const QString &path, TableExport::Format format, QString *reason) const {
  return profileTable(*m_chart.content().profile, m_chart.content().quantities).save(path, format, reason);
}

bool ProfileFiles::savePicture(const QString &path, QString *reason) {
  return ChartFile::save(
      path, pointsOf(m_chart), [this](QPainter &painter, const QRectF &area) { m_chart.paintOnWhite(painter, area); },
      reason);
}

void ProfileFiles::askForPicture() {
  const QString path = ChartFile::askForPath(&m_chart, QStringLiteral("profile.png"));
  QString reason;
  if (!path.isEmpty() && !savePicture(path, &reason))
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
