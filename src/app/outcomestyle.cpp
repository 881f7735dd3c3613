#include "outcomestyle.h"

#include <base/nivramsg.h>
#include <base/settings.h>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

namespace {

const Setting<QString> &setting(OutcomeStyle::Outcome outcome) {
  switch (outcome) {
  case OutcomeStyle::Outcome::Failed:
    return Settings::StatusBarFailed;
  case OutcomeStyle::Outcome::Stopped:
    return Settings::StatusBarStopped;
  case OutcomeStyle::Outcome::Acceptable:
    return Settings::StatusBarAcceptable;
  case OutcomeStyle::Outcome::Successful:
    break;
  }
  return Settings::StatusBarSuccessful;
}

/// A name that colours letters or their background, and words, numbers and colours as its value.
bool isHarmless(const QString &declaration) {
  static const QRegularExpression form(
      QStringLiteral("^\\s*(background|background-color|color|font-weight|font-style|text-decoration)\\s*:"
                     "[\\w\\s#%.,()-]+$"),
      QRegularExpression::CaseInsensitiveOption);
  return form.match(declaration).hasMatch() && !declaration.contains(QLatin1String("url"), Qt::CaseInsensitive);
}

} // namespace

QString OutcomeStyle::sheet(Outcome outcome) {
  QStringList taken{QStringLiteral("color: black")}; // the usual backgrounds are light, whatever the desktop's colours
  for (const QString &declaration : setting(outcome).value().split(QLatin1Char(';'))) {
    if (isHarmless(declaration))
      taken.append(declaration.trimmed());
    else if (!declaration.trimmed().isEmpty())
      NivraMsg::logWarning(
          QCoreApplication::translate("OutcomeStyle", "\"%1\" of the setting \"%2\" is left out: it is no colour or weight.")
              .arg(declaration.trimmed(), setting(outcome).key()));
  }
  if (taken.size() == 1)
    return QString();
  return QStringLiteral("QStatusBar, QStatusBar > QToolButton { %1 }").arg(taken.join(QStringLiteral("; ")));
}
