#include "outputfolder.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace {

bool isInside(const QString &path, const QString &folder) {
  return path == folder || path.startsWith(folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/'));
}

} // namespace

bool OutputFolder::open(const QString &path, QString *reason) {
  if (!QDir().mkpath(path) || !QFileInfo(path).isDir()) {
    *reason = tr("The folder %1 for what is written cannot be made.").arg(path);
    return false;
  }
  m_folder = QFileInfo(path).canonicalFilePath();
  return true;
}

bool OutputFolder::openBelow(const QString &folder, const QString &name, QString *reason) {
  if (!open(folder, reason) || name.isEmpty())
    return reason->isEmpty();
  QString why = fault(name, {});
  const QString inside = why.isEmpty() ? enter(name.split(QLatin1Char('/')), &why) : QString();
  if (!why.isEmpty())
    *reason = tr("The folder \"%1\" for what is written %2.").arg(name, why);
  m_folder = inside;
  return why.isEmpty();
}

void OutputFolder::protect(const QString &path) {
  const QString canonical = QFileInfo(path).canonicalFilePath();
  if (!canonical.isEmpty() && !m_protected.contains(canonical))
    m_protected.append(canonical);
}

bool OutputFolder::isProtected(const QString &path) const {
  return std::any_of(m_protected.begin(), m_protected.end(), [&](const QString &kept) { return isInside(path, kept); });
}

/// Of the name alone.
QString OutputFolder::fault(const QString &name, const QStringList &suffixes) const {
  static const QRegularExpression network(QStringLiteral("\\.(geom|scen|res|sub|fix|gas|gaspar|cfg)\\.[^.]*$|config\\.jsn$"),
                                          QRegularExpression::CaseInsensitiveOption);
  const QStringList parts = name.split(QLatin1Char('/'));
  const auto isHidden = [](const QString &part) {
    return part.isEmpty() || part.startsWith(QLatin1Char('.'));
  };
  const auto isControl = [](QChar c) {
    return c.category() == QChar::Other_Control;
  };
  if (std::any_of(parts.begin(), parts.end(), isHidden) || std::any_of(name.begin(), name.end(), isControl) ||
      name.contains(QLatin1Char('\\')))
    return tr("is no name in the folder for what is written (no \"..\", no hidden file, no absolute path)");
  if (network.match(name).hasMatch())
    return tr("is the name of a network file");
  const QString suffix = name.section(QLatin1Char('.'), -1).toLower();
  return suffixes.isEmpty() || (parts.last().contains(QLatin1Char('.')) && suffixes.contains(suffix))
             ? QString()
             : tr("ends in none of: %1").arg(suffixes.join(QStringLiteral(", ")));
}

/// The folder at the end of the way, which is made as far as it is missing; empty with the reason. Links on the way are
/// followed before anything is made behind them.
QString OutputFolder::enter(const QStringList &parts, QString *why) const {
  QString folder = m_folder;
  for (const QString &part : parts) {
    const QString next = folder + QLatin1Char('/') + part;
    if (isProtected(next))
      *why = tr("is or lies in what the jobs read, which is never written");
    else if (!QFileInfo::exists(next) && !QDir(folder).mkdir(part))
      *why = tr("is in a folder that cannot be made");
    folder = QFileInfo(next).canonicalFilePath();
    if (why->isEmpty() && (!QFileInfo(folder).isDir() || !isInside(folder, m_folder)))
      *why = tr("leads out of the folder for what is written");
    if (!why->isEmpty())
      return QString();
  }
  return folder;
}

QString OutputFolder::file(const QString &name, const QStringList &suffixes, QString *reason) {
  QString why = fault(name, suffixes);
  QStringList parts = name.split(QLatin1Char('/'));
  const QString last = parts.takeLast();
  const QString folder = why.isEmpty() ? enter(parts, &why) : QString();
  QString path = folder + QLatin1Char('/') + last;
  const QFileInfo present(path);
  if (why.isEmpty() && (present.isSymLink() || (present.exists() && !present.isFile())))
    why = tr("is there and is no file");
  else if (why.isEmpty() && isProtected(path))
    why = tr("is or lies in what the jobs read, which is never written");
  else if (why.isEmpty() && m_given.contains(path))
    why = tr("is written by another result already; {case} and {scenario} in a name tell them apart");
  if (!why.isEmpty()) {
    *reason = QStringLiteral("\"%1\" %2").arg(name, why);
    return QString();
  }
  m_given.insert(path);
  return path;
}
