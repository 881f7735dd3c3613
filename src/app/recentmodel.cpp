#include "recentmodel.h"

#include "recentfiles.h"

#include <base/index.h>
#include <tools/plaintip.h>

#include <QLocale>

RecentModel::RecentModel(const RecentFiles &files, QObject *parent)
    : QAbstractListModel(parent)
    , m_files(files) {
  connect(&files, &RecentFiles::changed, this, &RecentModel::refresh);
  connect(&m_looks, &RecentLooks::seen, this, [this] { emit dataChanged(index(0), index(rowCount() - 1)); });
  refresh();
}

void RecentModel::refresh() {
  beginResetModel();
  m_count = toQt(m_files.all().size());
  endResetModel();
  m_looks.look(m_files.paths());
}

int RecentModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : m_count;
}

QString RecentModel::description(int row) const {
  const RecentFile &file = m_files.all()[fromQt(row)];
  const QString text = tr("%1, in %2").arg(file.name(), file.folder());
  return m_looks.isThere(file.path) ? text : tr("%1, no longer there").arg(text);
}

QVariant RecentModel::data(const QModelIndex &index, int role) const {
  if (!index.isValid())
    return QVariant();
  const RecentFile &file = m_files.all()[fromQt(index.row())];
  const bool isThere = m_looks.isThere(file.path);
  switch (role) {
  case Qt::DisplayRole:
    return file.name();
  case Qt::AccessibleTextRole:
    return description(index.row());
  case Qt::ToolTipRole:
    return PlainTip::of(isThere ? file.path : tr("%1\nis no longer there. Delete takes it from the list.").arg(file.path));
  case Qt::DecorationRole:
    return m_looks.picture(file.path);
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
