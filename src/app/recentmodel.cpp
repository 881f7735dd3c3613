#include "recentmodel.h"

#include "recentfiles.h"
#include "thumbnails.h"

#include <base/index.h>
#include <tools/plaintip.h>

#include <QFileInfo>
#include <QLocale>

RecentModel::RecentModel(const RecentFiles &files, QObject *parent)
    : QAbstractListModel(parent)
    , m_files(files) {
  connect(&files, &RecentFiles::changed, this, &RecentModel::refresh);
  refresh();
}

void RecentModel::refresh() {
  beginResetModel();
  m_isThere.clear();
  for (const RecentFile &file : m_files.all())
    m_isThere.push_back(QFileInfo(file.path).isFile());
  endResetModel();
}

int RecentModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : toQt(m_isThere.size());
}

QString RecentModel::description(int row) const {
  const RecentFile &file = m_files.all()[fromQt(row)];
  const QString text = tr("%1, in %2").arg(file.name(), file.folder());
  return m_isThere[fromQt(row)] ? text : tr("%1, no longer there").arg(text);
}

QVariant RecentModel::data(const QModelIndex &index, int role) const {
  if (!index.isValid())
    return QVariant();
  const RecentFile &file = m_files.all()[fromQt(index.row())];
  const bool isThere = m_isThere[fromQt(index.row())];
  switch (role) {
  case Qt::DisplayRole:
    return file.name();
  case Qt::AccessibleTextRole:
    return description(index.row());
  case Qt::ToolTipRole:
    return PlainTip::of(isThere ? file.path : tr("%1\nis no longer there. Delete takes it from the list.").arg(file.path));
  case Qt::DecorationRole:
    if (!m_pictures.contains(file.path))
      m_pictures.insert(file.path, Thumbnails::read(file.path));
    return m_pictures.value(file.path);
  case PathRole:
    return file.path;
  case FolderRole:
    return file.folder();
  case DateRole:
    return QLocale::system().toString(file.opened, QLocale::ShortFormat); // as people are used to, whatever the numbers
  case IsThereRole:
    return isThere;
  default:
    return QVariant();
  }
}
