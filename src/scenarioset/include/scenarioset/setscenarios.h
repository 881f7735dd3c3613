#pragma once

#include <QCoreApplication>
#include <QDate>
#include <QString>
#include <QStringList>

#include <vector>

class NivraWorkspace;

/// A scenario of a case that a set may take.
struct SetScenario {
  QString name; ///< of its folder
  QString file; ///< path of its scenario file
  QDate date;   ///< that its name tells; invalid where it tells none
};

namespace SetScenarios {

/// All of the case, in the form of the workspace, in the order in which people count.
std::vector<SetScenario> of(const NivraWorkspace &workspace);

/// The date in a name such as "2015-01-31", "day_20150131" or "2015.01.31 cold"; invalid when there is none.
QDate dateIn(const QString &name);
bool areDated(const std::vector<SetScenario> &scenarios);

/// Names of the properties to which they give numbers. A look at some of them must do, as most have the same.
QStringList propertiesIn(const std::vector<SetScenario> &scenarios);

/// Which of them are wanted.
class Choice {
  Q_DECLARE_TR_FUNCTIONS(SetScenarios)
public:
  QString pattern; ///< wildcards, several of them separated by commas; empty for all
  QDate from;      ///< invalid for no bound; with one, scenarios without a date are left out
  QDate to;

  /// Of what is typed in one text: dates "2015-01-01..2015-03-31", of which one may be left out, or a pattern. False with
  /// the reason when dates are none.
  bool take(const QString &text, QString *reason);
  std::vector<SetScenario> of(const std::vector<SetScenario> &scenarios) const;
};

} // namespace SetScenarios
