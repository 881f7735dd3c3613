#include "opendialog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QSplitter>
#include <QUrl>

namespace {

QString text(const char *source) {
  return QCoreApplication::translate("NivraViewer", source);
}

/// By default names of folders are cut.
void giveRoom(QFileDialog &dialog) {
  constexpr QSize Size(900, 560); // px
  constexpr int SideBar = 200;
  dialog.resize(Size);
  if (auto *parts = dialog.findChild<QSplitter *>(QStringLiteral("splitter")))
    parts->setSizes({SideBar, Size.width() - SideBar});
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
  giveRoom(dialog);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
