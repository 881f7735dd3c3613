#include <io/scenariofiles.h>

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

QString ScenarioFiles::in(const QString &folder, Form form) {
  QStringList patterns;
  if (form != Form::Text)
    patterns << QStringLiteral("*.scen.jsn") << QStringLiteral("*.scen.json");
  if (form != Form::Json)
    patterns << QStringLiteral("*.scen");
  const QDir directory(folder);
  const QStringList names = directory.entryList(patterns, QDir::Files, QDir::Name);
  if (names.isEmpty())
    return QString();
  const QString own = directory.dirName() + QStringLiteral(".scen");
  const auto isOwn = [&own](const QString &name) {
    return name == own || name.startsWith(own + QLatin1Char('.'));
  };
  const auto found = std::find_if(names.begin(), names.end(), isOwn);
  return directory.filePath(found == names.end() ? names.first() : *found);
}

QString ScenarioFiles::base(const QString &file) {
  static const QRegularExpression suffix(QStringLiteral("\\.scen(\\.jso?n)?$"));
  const QString kind = suffix.match(file).captured();
  const QFileInfo info(file);
  const QString folder = info.path() + QLatin1Char('/');
  const QString shortest = info.fileName().section(QLatin1Char('.'), 0, 0);
  return folder + (QFileInfo::exists(folder + shortest + kind) ? shortest : info.fileName().chopped(kind.size()));
}

std::vector<ScenarioFiles::Scenario> ScenarioFiles::ofCase(const QString &caseFolder, Form form) {
  const QDir folder(caseFolder);
  const QStringList names = folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::LocaleAware);
  std::vector<Scenario> found;
  found.reserve(static_cast<std::size_t>(names.size()));
  for (const QString &name : names) {
    const QString file = in(folder.filePath(name), form);
    if (!file.isEmpty())
      found.push_back({name, file});
  }
  return found;
}
