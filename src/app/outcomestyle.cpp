#include "outcomestyle.h"

#include "theme/themepalette.h"

#include <base/nivramsg.h>
#include <base/settings.h>

#include <QColor>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QStatusBar>
#include <QStringList>

#include <algorithm>

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

/// The usual backgrounds are light; a dark window has them dark, in their hue. Another one is somebody's choice.
QString onScreen(const QString &declarations, const Setting<QString> &setting) {
  static const QRegularExpression usual(QStringLiteral("^background: *(#?\\w+)$"));
  const QRegularExpressionMatch match = usual.match(declarations);
  const auto builtIn = GeneralSettings::instance().valueIn(GeneralSettings::Layer::BuiltIn, setting.key());
  if (!ThemePalette::isDark(QGuiApplication::palette()) || !match.hasMatch() || declarations != builtIn)
    return declarations;
  constexpr double Saturation = 0.45;
  constexpr double Lightness = 0.22;
  const QColor ground = QColor::fromHslF(std::max(QColor(match.captured(1)).hslHueF(), 0.0), Saturation, Lightness);
  return QStringLiteral("color: white; background: %1").arg(ground.name());
}

constexpr const char *ShownOutcome = "outcome";

} // namespace

void OutcomeStyle::show(QStatusBar &bar, Outcome outcome) {
  bar.setProperty(ShownOutcome, static_cast<int>(outcome));
  bar.setStyleSheet(sheet(outcome));
}

void OutcomeStyle::clear(QStatusBar &bar) {
  bar.setProperty(ShownOutcome, QVariant());
  bar.setStyleSheet(QString());
}

void OutcomeStyle::refresh(QStatusBar &bar) {
  if (const QVariant shown = bar.property(ShownOutcome); shown.isValid())
    bar.setStyleSheet(sheet(static_cast<Outcome>(shown.toInt())));
}

QString OutcomeStyle::sheet(Outcome outcome) {
  QStringList taken{QStringLiteral("color: black")}; // the usual backgrounds are light, whatever the desktop's colours
  for (const QString &declaration : onScreen(setting(outcome).value(), setting(outcome)).split(QLatin1Char(';'))) {
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
