#include "opendialog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QUrl>

namespace {

QString text(const char *source) {
  return QCoreApplication::translate("NivraViewer", source);
}

} // namespace

QString OpenDialog::ask(QWidget *parent, const QString &start, const QStringList &folders) {
  constexpr int MostFolders = 12;
  QFileDialog dialog(
      parent, text(QT_TRANSLATE_NOOP("NivraViewer", "Select Geometry or Scenario File")),
      QFileInfo(start).isDir() ? start : QFileInfo(start).path(),
      text(QT_TRANSLATE_NOOP("NivraViewer", "Scenario Files (*.scen *.scen.jsn);;Geom Files (*.geom *.geom.jsn)")));
  dialog.setOption(QFileDialog::DontUseNativeDialog); // those of desktops take no side bar
  dialog.setFileMode(QFileDialog::ExistingFile);
  if (QFileInfo(start).isFile())
    dialog.selectFile(QFileInfo(start).fileName());
  QList<QUrl> places{QUrl(QStringLiteral("file:")), QUrl::fromLocalFile(QDir::homePath())};
  for (const QString &folder : folders.mid(0, MostFolders))
    places.append(QUrl::fromLocalFile(folder));
  dialog.setSidebarUrls(places);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
