#include "stagedfolder.h"

#include <base/fileaccess.h>

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace {

QString within(const QString &folder, const QString &name) {
  return folder + QLatin1Char('/') + name;
}

bool isSame(const QString &one, const QString &other) {
  QFile first(one);
  QFile second(other);
  for (QFile *file : {&first, &second}) {
    if (!FileAccess::openForReading(*file, FileAccess::Source::Trusted, FileAccess::AnySize, nullptr))
      return false;
  }
  if (first.size() != second.size())
    return false;
  constexpr qint64 Block = qint64(1) << 20;
  for (qint64 left = first.size(); left > 0; left -= Block) {
    const QByteArray block = first.read(Block);
    if (block.isEmpty() || block != second.read(Block))
      return false;
  }
  return true;
}

} // namespace

StagedFolder::StagedFolder(const QString &target)
    : m_target(QDir(target).absolutePath()) {
  if (QFileInfo::exists(m_target))
    m_target = QFileInfo(m_target).canonicalFilePath();
}

bool StagedFolder::open(QString *reason) {
  if (QFileInfo::exists(m_target) && !QFileInfo(m_target).isDir()) {
    *reason = tr("%1 is no folder").arg(m_target);
    return false;
  }
  // In the target itself, or in the nearest folder above that is there: what is renamed must stay on its disk.
  QString folder = m_target;
  while (!QFileInfo::exists(folder) && folder != QFileInfo(folder).path())
    folder = QFileInfo(folder).path();
  m_room = std::make_unique<QTemporaryDir>(within(folder, QStringLiteral(".nivra-convert-XXXXXX")));
  if (m_room->isValid() && QDir(m_room->path()).mkdir(QStringLiteral("new")) &&
      QDir(m_room->path()).mkdir(QStringLiteral("old")))
    return true;
  *reason = tr("Cannot write into %1: %2").arg(folder, m_room->errorString());
  return false;
}

QString StagedFolder::path(const QString &name) const {
  QString path = within(m_room->filePath(QStringLiteral("new")), name);
  QDir().mkpath(QFileInfo(path).path());
  return path;
}

bool StagedFolder::isThere(const QString &name) const {
  const QFileInfo target(within(m_target, name));
  return target.exists() || target.isSymLink(); // one that leads nowhere is somebody's too
}

QStringList StagedFolder::files() const {
  const QDir staged(m_room->filePath(QStringLiteral("new")));
  QStringList names;
  for (QDirIterator files(staged.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); files.hasNext();)
    names.append(staged.relativeFilePath(files.next()));
  names.sort();
  return names;
}

bool StagedFolder::commit(bool overwrites, const QStringList &kept, QString *reason) {
  if (!QFileInfo::exists(m_target))
    return moveWhole(reason);
  QStringList moved;
  QStringList refused;
  for (const QString &name : files()) {
    if (!isThere(name)) {
      moved.append(name);
    } else if (!kept.contains(name) && !isSame(path(name), within(m_target, name))) {
      moved.append(name);
      refused.append(name);
    }
  }
  if (!overwrites && !refused.isEmpty()) {
    *reason = tr("%1 holds other files of these names, which would be replaced: %2")
                  .arg(m_target, refused.join(QStringLiteral(", ")));
    return false;
  }
  return moveAll(moved, reason);
}

bool StagedFolder::moveWhole(QString *reason) const {
  const QString parent = QFileInfo(m_target).path();
  QString made = parent; // the uppermost folder that has to be made
  while (!QFileInfo::exists(QFileInfo(made).path()))
    made = QFileInfo(made).path();
  const bool isParentMade = !QFileInfo::exists(parent);
  if (QDir().mkpath(parent) && QDir().rename(m_room->filePath(QStringLiteral("new")), m_target))
    return true;
  *reason = tr("Cannot make the folder %1").arg(m_target);
  if (isParentMade)
    QDir(made).removeRecursively();
  return false;
}

bool StagedFolder::moveAll(const QStringList &names, QString *reason) const {
  QList<Move> done;
  for (const QString &name : names) {
    const QString target = within(m_target, name);
    const QString old = within(m_room->filePath(QStringLiteral("old")), name);
    Move move{name, isThere(name)};
    const bool isPlace = QDir().mkpath(QFileInfo(target).path()) && QDir().mkpath(QFileInfo(old).path());
    const bool isFree = isPlace && (!move.replaces || QFile::rename(target, old));
    if (isFree && QFile::rename(path(name), target)) {
      done.append(move);
      continue;
    }
    *reason = tr("Cannot write %1").arg(target);
    if (isFree && move.replaces)
      putBack(name, reason);
    takeBack(done, reason);
    return false;
  }
  return true;
}

/// What cannot be put back must not go with the room.
void StagedFolder::putBack(const QString &name, QString *reason) const {
  const QString old = within(m_room->filePath(QStringLiteral("old")), name);
  if (QFile::rename(old, within(m_target, name)))
    return;
  m_room->setAutoRemove(false);
  *reason += tr("; the former %1 is kept as %2").arg(name, old);
}

void StagedFolder::takeBack(const QList<Move> &moves, QString *reason) const {
  for (const Move &move : moves) {
    const QString target = within(m_target, move.name);
    QFile::remove(target);
    if (move.replaces)
      putBack(move.name, reason);
    else
      QDir().rmdir(QFileInfo(target).path()); // which succeeds where nothing else is in it
  }
}
