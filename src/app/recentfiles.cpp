#include "recentfiles.h"

#include <base/fileaccess.h>
#include <base/logfiles.h>
#include <base/nivramsg.h>
#include <base/wholefile.h>

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

namespace {

constexpr int Version = 1;
constexpr int LongestPath = 4096; ///< characters, as the system allows
constexpr qint64 LargestFile = qint64(1) << 20;

bool isNamed(const std::vector<RecentFile> &files, const QString &path) {
  return std::any_of(files.begin(), files.end(), [&path](const RecentFile &file) { return file.path == path; });
}

/// What is no list of files counts as none.
std::vector<RecentFile> parsed(const QByteArray &text) {
  std::vector<RecentFile> files;
  const QJsonObject whole = QJsonDocument::fromJson(text).object();
  if (whole[QStringLiteral("version")].toInt() != Version) {
    NivraMsg::log(RecentFiles::tr("%1 is no list of recent files of this program and is not used").arg(RecentFiles::file()));
    return files;
  }
  const QJsonArray entries = whole[QStringLiteral("files")].toArray();
  for (const QJsonValue &entry : entries) {
    const QString path = entry[QStringLiteral("path")].toString();
    const bool isPath = QFileInfo(path).isAbsolute() && path.size() <= LongestPath && !path.contains(QChar(0));
    if (isPath && !isNamed(files, path) && files.size() < RecentFiles::Most)
      files.push_back({path, QDateTime::fromString(entry[QStringLiteral("opened")].toString(), Qt::ISODate)});
  }
  return files;
}

QByteArray written(const std::vector<RecentFile> &files) {
  QJsonArray entries;
  for (const RecentFile &file : files)
    entries.append(
        QJsonObject{{QStringLiteral("path"), file.path}, {QStringLiteral("opened"), file.opened.toString(Qt::ISODate)}});
  return QJsonDocument(QJsonObject{{QStringLiteral("version"), Version}, {QStringLiteral("files"), entries}}).toJson();
}

QString parentOf(const QString &path) {
  return QFileInfo(path).path();
}

} // namespace

bool RecentFile::isScenario() const {
  return QFileInfo(path).fileName().contains(QLatin1String(".scen"));
}

QString RecentFile::name() const {
  const QString own = QFileInfo(parentOf(path)).fileName(); // of a geometry the case
  return isScenario() ? RecentFiles::tr("%1 – %2").arg(QFileInfo(parentOf(parentOf(path))).fileName(), own) : own;
}

QString RecentFile::folder() const {
  const QString ofCases = parentOf(parentOf(path));
  return QDir::toNativeSeparators(isScenario() ? parentOf(ofCases) : ofCases);
}

QString RecentFiles::file() {
  return LogFiles::directory() + QStringLiteral("/recentfiles.json");
}

QStringList RecentFiles::paths() const {
  QStringList paths;
  for (const RecentFile &file : m_all)
    paths.append(file.path);
  return paths;
}

QStringList RecentFiles::folders() const {
  QStringList folders;
  for (const RecentFile &file : m_all) {
    const QString folder = file.isScenario() ? parentOf(parentOf(file.path)) : parentOf(file.path);
    if (!folders.contains(folder) && QFileInfo(folder).isDir())
      folders.append(folder);
  }
  return folders;
}

void RecentFiles::read() {
  QString reason; // mostly that there is none yet
  const auto text = FileAccess::readWhole(file(), FileAccess::Source::Trusted, LargestFile, &reason);
  std::vector<RecentFile> files = text ? parsed(*text) : std::vector<RecentFile>();
  if (files == m_all)
    return;
  m_all = std::move(files);
  emit changed();
}

void RecentFiles::keep(std::vector<RecentFile> files) {
  if (files.size() > Most)
    files.resize(Most);
  m_all = std::move(files);
  QString reason;
  if (!WholeFile::write(file(), FileAccess::Source::Trusted, written(m_all), &reason))
    NivraMsg::logWarning(reason);
  emit changed();
}

void RecentFiles::add(const QString &path) {
  read();
  std::vector<RecentFile> files{{path, QDateTime::currentDateTime()}};
  std::copy_if(m_all.begin(), m_all.end(), std::back_inserter(files),
               [&path](const RecentFile &known) { return known.path != path; });
  keep(std::move(files));
}

void RecentFiles::remove(const QString &path) {
  read();
  std::vector<RecentFile> files = m_all;
  files.erase(std::remove_if(files.begin(), files.end(), [&path](const RecentFile &known) { return known.path == path; }),
              files.end());
  keep(std::move(files));
}

void RecentFiles::removeMissing() {
  read();
  std::vector<RecentFile> files;
  std::copy_if(m_all.begin(), m_all.end(), std::back_inserter(files),
               [](const RecentFile &known) { return QFileInfo(known.path).isFile(); });
  keep(std::move(files));
}

void RecentFiles::clearAsked() {
  using NivraMsg::Answer;
  const auto agrees = [] {
    return NivraMsg::show({NivraMsg::Kind::Question,
                           tr("Forget all recent files? The files themselves stay as they are."),
                           tr("Clear List"),
                           {Answer::Yes, Answer::No},
                           Answer::No}) == Answer::Yes;
  };
  if (!NivraMsg::showsBoxes() || agrees())
    clear();
}

void RecentFiles::clear() {
  keep({});
}
