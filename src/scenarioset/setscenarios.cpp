#include <base/index.h>
#include <io/nivraworkspace.h>
#include <io/scenariofiles.h>
#include <io/scenariovalues.h>

#include <QCollator>
#include <QDir>
#include <QRegularExpression>

#include <algorithm>
#include <scenarioset/setscenarios.h>

std::vector<SetScenario> SetScenarios::of(const NivraWorkspace &workspace) {
  const QDir folder(workspace.caseDirectory());
  const auto form = workspace.isJson() ? ScenarioFiles::Form::Json : ScenarioFiles::Form::Text;
  QStringList names = folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
  QCollator order(QLocale(QLocale::English, QLocale::UnitedStates));
  order.setNumericMode(true);
  std::sort(names.begin(), names.end(), order);
  std::vector<SetScenario> scenarios;
  scenarios.reserve(fromQt(names.size()));
  for (const QString &name : qAsConst(names)) {
    const QString file = ScenarioFiles::in(folder.filePath(name), form);
    if (!file.isEmpty())
      scenarios.push_back({name, file, dateIn(name)});
  }
  return scenarios;
}

QDate SetScenarios::dateIn(const QString &name) {
  static const QRegularExpression pattern(
      QStringLiteral("(?<![0-9])([12][0-9]{3})([-._]?)([01][0-9])\\2([0-3][0-9])(?![0-9])"));
  const QRegularExpressionMatch match = pattern.match(name);
  return match.hasMatch() ? QDate(match.captured(1).toInt(), match.captured(3).toInt(), match.captured(4).toInt()) : QDate();
}

bool SetScenarios::areDated(const std::vector<SetScenario> &scenarios) {
  return !scenarios.empty() &&
         std::all_of(scenarios.begin(), scenarios.end(), [](const SetScenario &one) { return one.date.isValid(); });
}

QStringList SetScenarios::propertiesIn(const std::vector<SetScenario> &scenarios) {
  QStringList names;
  if (scenarios.empty())
    return names;
  for (const std::size_t i : {std::size_t(0), scenarios.size() / 2, scenarios.size() - 1}) {
    for (const QString &name : ScenarioValues::numbersIn(scenarios[i].file)) {
      if (!names.contains(name, Qt::CaseInsensitive))
        names.append(name);
    }
  }
  names.sort(Qt::CaseInsensitive);
  return names;
}

bool SetScenarios::Choice::take(const QString &text, QString *reason) {
  static const QString between = QStringLiteral("..");
  if (!text.contains(between)) {
    pattern = text;
    return true;
  }
  const QString first = text.section(between, 0, 0).trimmed();
  const QString last = text.section(between, 1).trimmed();
  from = QDate::fromString(first, Qt::ISODate);
  to = QDate::fromString(last, Qt::ISODate);
  const bool areDates =
      (first.isEmpty() || from.isValid()) && (last.isEmpty() || to.isValid()) && (from.isValid() || to.isValid());
  if (!areDates)
    *reason = tr("\"%1\" is no range of dates such as 2015-01-01..2015-03-31").arg(text);
  return areDates;
}

std::vector<SetScenario> SetScenarios::Choice::of(const std::vector<SetScenario> &scenarios) const {
  std::vector<QRegularExpression> patterns;
  for (const QString &one : pattern.split(QLatin1Char(','), Qt::SkipEmptyParts))
    patterns.emplace_back(QRegularExpression::wildcardToRegularExpression(one.trimmed()),
                          QRegularExpression::CaseInsensitiveOption);
  const auto isWanted = [&](const SetScenario &scenario) {
    const bool isNamed = patterns.empty() || std::any_of(patterns.begin(), patterns.end(), [&](const auto &one) {
                           return one.match(scenario.name).hasMatch();
                         });
    const bool isBounded = from.isValid() || to.isValid();
    return isNamed && (!isBounded || scenario.date.isValid()) && !(from.isValid() && scenario.date < from) &&
           !(to.isValid() && scenario.date > to);
  };
  std::vector<SetScenario> wanted;
  std::copy_if(scenarios.begin(), scenarios.end(), std::back_inserter(wanted), isWanted);
  return wanted;
}
