#include "language.h"

#include <base/generalsettings.h>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

bool Language::isKnown(const QString &code) {
  return code == QLatin1String(English) || code == QLatin1String(German);
}

QString Language::firstKnown(const QStringList &codes) {
  for (const QString &code : codes) {
    QString language = code.section(QLatin1Char('-'), 0, 0).section(QLatin1Char('_'), 0, 0).toLower();
    if (isKnown(language))
      return language;
  }
  return QLatin1String(English);
}

QString Language::toStartWith(const QString &asked) {
  if (isKnown(asked))
    return asked;
  GeneralSettings settings; // the window is not there yet, and reads its own
  settings.load(QString(), {});
  const QString chosen = settings.value(QStringLiteral("language"));
  return isKnown(chosen) ? chosen : firstKnown(QLocale::system().uiLanguages());
}

QString Language::spoken() {
  return QCoreApplication::translate("Language", "en", "code of the language of these texts");
}

Language::Language(const QString &code) {
  if (code == QLatin1String(English) || !isKnown(code))
    return;
  Q_INIT_RESOURCE(translations); // a static library loses its resources without it
  install(QStringLiteral("qtbase_") + code, QLibraryInfo::location(QLibraryInfo::TranslationsPath));
  install(QStringLiteral("nivra_") + code, QStringLiteral(":/translations"));
}

Language::~Language() = default; // a translator that goes is no longer asked

void Language::install(const QString &file, const QString &folder) {
  auto translator = std::make_unique<QTranslator>();
  if (translator->load(file, folder) && QCoreApplication::installTranslator(translator.get()))
    m_translators.push_back(std::move(translator));
}
