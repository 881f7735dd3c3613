#include "settingdescription.h"

#include "settingtexts.h"

#include <model/units.h>

#include <QColor>
#include <QCoreApplication>
#include <QHash>

#include <algorithm>

namespace {

QString translated(const char *text) {
  return QCoreApplication::translate("SettingDescription", text);
}

bool isNumber(const QString &text) {
  bool isOne = false;
  text.toDouble(&isOne);
  return isOne;
}

const QString &keyOfRectangle() {
  static const QString key = QStringLiteral("UserKey_RectZoom");
  return key;
}

SettingDescription::Kind kindOf(const SettingsTable::Row &row) {
  using Kind = SettingDescription::Kind;
  const QString key = QString::fromLatin1(row.key);
  const QString type = QString::fromLatin1(row.type);
  if (type == QLatin1String("bool") || QLatin1String(row.options) == QLatin1String("on,off"))
    return Kind::Switch;
  if (type == QLatin1String("list") || key == keyOfRectangle())
    return Kind::Choice;
  if (key.contains(QLatin1String(" color")))
    return Kind::Colour;
  if (key.endsWith(QLatin1String(" file")))
    return Kind::Path;
  return isNumber(QString::fromLatin1(row.value)) ? Kind::Number : Kind::Text;
}

QString groupOf(const SettingsTable::Row &row) {
  static const QHash<QString, const char *> titles{
      {QStringLiteral("general"), QT_TRANSLATE_NOOP("SettingDescription", "General")},
      {QStringLiteral("zooming"), QT_TRANSLATE_NOOP("SettingDescription", "Zooming and labels")},
      {QStringLiteral("selection"), QT_TRANSLATE_NOOP("SettingDescription", "Selection")},
      {QStringLiteral("subnets"), QT_TRANSLATE_NOOP("SettingDescription", "Subnets")},
      {QStringLiteral("mouse and keys"), QT_TRANSLATE_NOOP("SettingDescription", "Mouse and keys")},
      {QStringLiteral("status bar"), QT_TRANSLATE_NOOP("SettingDescription", "Status bar")},
      {QStringLiteral("special"), QT_TRANSLATE_NOOP("SettingDescription", "Special")},
      {QStringLiteral("units and numbers"), QT_TRANSLATE_NOOP("SettingDescription", "Units and numbers")},
      {QStringLiteral("network check"), QT_TRANSLATE_NOOP("SettingDescription", "Check of the network")}};
  if (row.effect == SettingsTable::Kept)
    return translated(QT_TRANSLATE_NOOP("SettingDescription", "For other tools, without effect here"));
  const QString category = QString::fromLatin1(row.category);
  const char *title = titles.value(category);
  return title == nullptr ? category : translated(title);
}

SettingDescription::Takes effectOf(const SettingsTable::Row &row) {
  using Takes = SettingDescription::Takes;
  static const QStringList whileOpening{
      QStringLiteral("start with last scenario"),          QStringLiteral("ask for include lists"),
      QStringLiteral("tiny conversion tolerance"),         QStringLiteral("PELKA mode"),
      QStringLiteral("status bar style sheet failed"),     QStringLiteral("status bar style sheet stopped"),
      QStringLiteral("status bar style sheet acceptable"), QStringLiteral("status bar style sheet successful")};
  if (row.effect == SettingsTable::Kept)
    return Takes::Never;
  if (QLatin1String(row.key) == QLatin1String("language"))
    return Takes::AtNextStart;
  return whileOpening.contains(QString::fromLatin1(row.key)) ? Takes::AtNextOpening : Takes::AtOnce;
}

/// As the toolkit calls the key.
QString ofKey(const char *name) {
  return QCoreApplication::translate("QShortcut", name);
}

QString languageTitle(const QString &code) {
  if (code == QLatin1String("en"))
    return QStringLiteral("English"); // each in its own language
  return code == QLatin1String("de") ? QStringLiteral("Deutsch")
                                     : translated(QT_TRANSLATE_NOOP("SettingDescription", "like the desktop"));
}

/// How numbers are written, in words; other choices are words of the settings files.
QString formTitle(const QString &option) {
  for (const char *known :
       {QT_TRANSLATE_NOOP("SettingDescription", "significant digits"), QT_TRANSLATE_NOOP("SettingDescription", "decimals"),
        QT_TRANSLATE_NOOP("SettingDescription", "point"), QT_TRANSLATE_NOOP("SettingDescription", "comma"),
        QT_TRANSLATE_NOOP("SettingDescription", "labels only"), QT_TRANSLATE_NOOP("SettingDescription", "none"),
        QT_TRANSLATE_NOOP("SettingDescription", "space"), QT_TRANSLATE_NOOP("SettingDescription", "apostrophe"),
        QT_TRANSLATE_NOOP("SettingDescription", "other sign"), QT_TRANSLATE_NOOP("SettingDescription", "warning"),
        QT_TRANSLATE_NOOP("SettingDescription", "information"), QT_TRANSLATE_NOOP("SettingDescription", "off")}) {
    if (option == QLatin1String(known))
      return translated(known);
  }
  return option;
}

QString titleOf(const QString &key, const QString &option) {
  if (key == QLatin1String("language"))
    return languageTitle(option);
  if (key.startsWith(QLatin1String("unit: ")))
    return option.isEmpty() ? translated(QT_TRANSLATE_NOOP("SettingDescription", "as in the property table"))
                            : Units::written(option);
  if (option.isEmpty())
    return translated(QT_TRANSLATE_NOOP("SettingDescription", "none"));
  if (!key.endsWith(QLatin1String("brush style"))) {
    const QLatin1String category(SettingsTable::row(key.toLatin1().constData()).category);
    const bool hasWords = category == QLatin1String("units and numbers") || category == QLatin1String("network check");
    return hasWords ? formTitle(option) : option;
  }
  static const char *const Patterns[] = {
      QT_TRANSLATE_NOOP("SettingDescription", "not filled"), QT_TRANSLATE_NOOP("SettingDescription", "filled"),
      QT_TRANSLATE_NOOP("SettingDescription", "dots, 94 %"), QT_TRANSLATE_NOOP("SettingDescription", "dots, 88 %"),
      QT_TRANSLATE_NOOP("SettingDescription", "dots, 63 %"), QT_TRANSLATE_NOOP("SettingDescription", "dots, 50 %"),
      QT_TRANSLATE_NOOP("SettingDescription", "dots, 37 %"), QT_TRANSLATE_NOOP("SettingDescription", "dots, 12 %")};
  const int number = option.toInt();
  return number >= 0 && number < int(std::size(Patterns)) ? translated(Patterns[number]) : option;
}

void addOptions(const SettingsTable::Row &row, SettingDescription &setting) {
  if (setting.kind == SettingDescription::Kind::Switch) {
    const bool isBool = QLatin1String(row.type) == QLatin1String("bool");
    setting.options = isBool ? QStringList{QStringLiteral("0"), QStringLiteral("1")}
                             : QStringList{QStringLiteral("off"), QStringLiteral("on")};
    setting.titles = QStringList{translated(QT_TRANSLATE_NOOP("SettingDescription", "off")),
                                 translated(QT_TRANSLATE_NOOP("SettingDescription", "on"))};
  } else if (setting.key == keyOfRectangle()) {
    for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta, Qt::Key_Z})
      setting.options.append(QString::number(key));
    setting.titles = QStringList{ofKey("Shift"), ofKey("Ctrl"), ofKey("Alt"), ofKey("Meta"), QStringLiteral("Z")};
  } else if (setting.kind == SettingDescription::Kind::Choice) {
    setting.options = QString::fromLatin1(row.options).split(QLatin1Char(','));
    for (const QString &option : qAsConst(setting.options))
      setting.titles.append(titleOf(setting.key, option));
  }
}

} // namespace

std::vector<SettingDescription> SettingDescription::all() {
  std::vector<SettingDescription> found;
  QStringList groups;
  for (const SettingsTable::Row &row : SettingsTable::Rows) {
    SettingDescription setting;
    setting.key = QString::fromLatin1(row.key);
    setting.group = groupOf(row);
    setting.text = SettingTexts::of(setting.key);
    setting.kind = kindOf(row);
    setting.takes = effectOf(row);
    setting.bounds = SettingsTable::numberBounds(row.key);
    addOptions(row, setting);
    if (!groups.contains(setting.group))
      groups.append(setting.group);
    found.push_back(std::move(setting));
  }
  const QString last = groupOf(SettingsTable::row("molar gas constant"));
  groups.removeAll(last);
  groups.append(last);
  std::stable_sort(found.begin(), found.end(), [&groups](const SettingDescription &a, const SettingDescription &b) {
    return groups.indexOf(a.group) < groups.indexOf(b.group);
  });
  return found;
}

QString SettingDescription::shown(const QString &value) const {
  const int option = options.indexOf(value);
  if (option >= 0)
    return titles.at(option);
  return bounds == nullptr || *bounds->unit == '\0' ? value : value + QLatin1Char(' ') + QLatin1String(bounds->unit);
}

bool SettingDescription::allows(const QString &value) const {
  switch (kind) {
  case Kind::Switch:
  case Kind::Choice:
    return options.contains(value);
  case Kind::Colour:
    return QColor::isValidColor(value);
  case Kind::Number: {
    bool isWhole = false;
    const bool isInBounds =
        bounds == nullptr || (value.toDouble() >= bounds->minimum && value.toDouble() <= bounds->maximum);
    value.toInt(&isWhole);
    return isNumber(value) && isInBounds && (bounds == nullptr || !bounds->isWhole || isWhole);
  }
  case Kind::Path:
  case Kind::Text:
    break;
  }
  return true;
}

QString SettingDescription::whenItTakes() const {
  switch (takes) {
  case Takes::AtNextOpening:
    return translated(QT_TRANSLATE_NOOP("SettingDescription", "Takes effect with the next opening."));
  case Takes::AtNextStart:
    return translated(QT_TRANSLATE_NOOP("SettingDescription", "Takes effect with the next start of the program."));
  case Takes::Never:
    return translated(
        QT_TRANSLATE_NOOP("SettingDescription", "Kept for other tools on the same workspaces, without effect here."));
  case Takes::AtOnce:
    break;
  }
  return translated(QT_TRANSLATE_NOOP("SettingDescription", "Takes effect at once."));
}

QString SettingDescription::boundsText() const {
  if (bounds == nullptr)
    return QString();
  QString said = translated(QT_TRANSLATE_NOOP("SettingDescription", "%1 to %2")).arg(bounds->minimum).arg(bounds->maximum);
  return *bounds->unit == '\0' ? said : said + QLatin1Char(' ') + QLatin1String(bounds->unit);
}
