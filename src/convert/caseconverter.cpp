#include "caseconverter.h"

#include "stagedfolder.h"

#include <base/fileaccess.h>
#include <base/wholefile.h>
#include <io/networkfileconverter.h>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(CaseConverter)
};

/// What the case names is read inside of it alone while this lives.
class Confinement {
public:
  explicit Confinement(const QString &folder) { FileAccess::confineTo(folder); }
  ~Confinement() { FileAccess::confineTo(QString()); }
  Confinement(const Confinement &) = delete;
  Confinement &operator=(const Confinement &) = delete;
};

/// Writes the files of a case into a staged folder.
class Conversion {
public:
  Conversion(const QDir &source, const StagedFolder &target)
      : m_source(source)
      , m_target(target) {
    result.ok = true;
  }

  void run() {
    // Pipes, devices and links that lead nowhere or to folders are told of.
    const auto filter = QDir::Files | QDir::AllDirs | QDir::NoDotAndDotDot | QDir::System | QDir::Hidden;
    for (QDirIterator files(m_source.absolutePath(), filter, QDirIterator::Subdirectories); files.hasNext();) {
      const QString path = files.next();
      if (files.fileInfo().isDir() && !files.fileInfo().isSymLink())
        continue;
      const QString name = m_source.relativeFilePath(path);
      const QString why = QFileInfo(path).isFile() ? FileAccess::confinementFault(path) : Texts::tr("is not a regular file");
      if (!why.isEmpty()) {
        result.findings.push_back({Finding::Severity::Warning, path, 0, Texts::tr("%1 is left out: it %2").arg(name, why)});
        result.report.drop(Texts::tr("file"), why);
      } else if (NetworkFileConverter::isNetworkFile(name)) {
        convert(path, NetworkFileConverter::otherForm(name));
      } else {
        copy(path, name);
      }
    }
    if (result.ok && result.files == 0)
      fail(Texts::tr("%1 holds no network file").arg(m_source.path()));
  }

  void fail(const QString &reason) {
    result.ok = false;
    result.findings.push_back({Finding::Severity::Critical, {}, 0, reason});
  }

  CaseConverter::Result result;

private:
  void convert(const QString &path, const QString &name) {
    NetworkFileConverter::Result converted = NetworkFileConverter::convert(path, m_target.path(name));
    result.ok = result.ok && converted.ok;
    result.files += converted.ok ? 1 : 0;
    result.report.add(converted.report);
    result.report.convert(Texts::tr("file"), Texts::tr("to the other form"));
    append(result.findings, std::move(converted.findings));
  }

  void copy(const QString &path, const QString &name) {
    QString reason;
    if (WholeFile::copy(path, m_target.path(name), &reason))
      result.report.take(Texts::tr("file"));
    else
      fail(reason);
  }

  QDir m_source;
  const StagedFolder &m_target;
};

} // namespace

CaseConverter::Result CaseConverter::convert(const QString &from, const QString &to, bool overwrites) {
  const QDir source(from);
  StagedFolder target(to);
  Conversion conversion(source, target);
  QString reason;
  const QString absolute = QDir(to).absolutePath();
  if (absolute.startsWith(source.absolutePath() + QLatin1Char('/')) ||
      QFileInfo(absolute) == QFileInfo(source.absolutePath()))
    conversion.fail(Texts::tr("%1 lies in the folder that is converted").arg(to));
  else if (!source.exists())
    conversion.fail(Texts::tr("%1 is no folder").arg(from));
  else if (!target.open(&reason))
    conversion.fail(reason);
  if (!conversion.result.ok)
    return std::move(conversion.result);
  const Confinement confinement(source.absolutePath());
  conversion.run();
  if (conversion.result.ok && !target.commit(overwrites, {}, &reason))
    conversion.fail(reason);
  return std::move(conversion.result);
}
