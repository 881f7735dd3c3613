#include "styles/stylestore.h"

#include "styles/builtinstyles.h"

#include <base/fileaccess.h>
#include <base/logfiles.h>
#include <base/wholefile.h>

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

constexpr int Version = 1;
constexpr std::size_t MostStyles = 500;
constexpr qint64 LargestFile = qint64(16) << 20;

QString nameKey() {
  return QStringLiteral("name");
}

QString settingsKey() {
  return QStringLiteral("settings");
}

template <typename Styles>
auto placeOf(Styles &styles, const QString &name) {
  return std::find_if(styles.begin(), styles.end(), [&name](const StyleStore::Style &style) {
    return style.name.compare(name, Qt::CaseInsensitive) == 0;
  });
}

} // namespace

QString StyleStore::file() {
  return LogFiles::directory() + QStringLiteral("/styles.json");
}

const std::vector<StyleStore::Style> &StyleStore::all() {
  const FileStamp stamp = FileStamp::of(file());
  if (m_stamp == stamp)
    return m_styles;
  m_stamp = stamp;
  m_fault.clear();
  m_styles = read(&m_fault).value_or(std::vector<Style>());
  return m_styles;
}

const StyleStore::Style *StyleStore::find(const QString &name) {
  const auto found = placeOf(all(), name.trimmed());
  return found == m_styles.end() ? nullptr : &*found;
}

QString StyleStore::faultOf(const QString &name) {
  const QString text = name.trimmed();
  if (text.isEmpty())
    return tr("A style needs a name.");
  if (text.size() > LongestName)
    return tr("The name of a style has at most %1 characters.").arg(LongestName);
  if (std::any_of(text.begin(), text.end(), [](QChar letter) { return letter.category() == QChar::Other_Control; }))
    return tr("The name of a style is one line of text.");
  if (BuiltInStyles::find(text) != nullptr)
    return tr("\"%1\" is a style of the program. Please choose another name.").arg(text);
  const auto endsWith = [&text](const char *suffix) {
    return text.endsWith(QLatin1String(suffix), Qt::CaseInsensitive);
  };
  return endsWith(".ini") || endsWith(".csv") ? tr("The name of a style does not end like that of a file.") : QString();
}

bool StyleStore::put(const Style &style, QString *reason) {
  *reason = faultOf(style.name);
  if (reason->isEmpty() && style.settings.size() > LargestStyle)
    *reason = tr("This is too much for a style.");
  return reason->isEmpty() && change(reason, [&](std::vector<Style> &styles) {
           const auto present = placeOf(styles, style.name.trimmed());
           if (present != styles.end())
             styles.erase(present);
           else if (styles.size() >= MostStyles)
             return tr("There are %1 styles already; please delete some.").arg(MostStyles);
           styles.push_back({style.name.trimmed(), style.settings});
           return QString();
         });
}

bool StyleStore::rename(const QString &from, const QString &to, QString *reason) {
  const QString name = to.trimmed();
  *reason = faultOf(name);
  return reason->isEmpty() && change(reason, [&](std::vector<Style> &styles) {
           const auto renamed = placeOf(styles, from);
           const auto taken = placeOf(styles, name);
           if (renamed == styles.end())
             return tr("There is no style \"%1\" any more.").arg(from);
           if (taken != styles.end() && taken != renamed)
             return tr("There is a style \"%1\" already.").arg(taken->name);
           renamed->name = name;
           return QString();
         });
}

bool StyleStore::remove(const QString &name, QString *reason) {
  return change(reason, [&](std::vector<Style> &styles) {
    const auto found = placeOf(styles, name);
    if (found != styles.end())
      styles.erase(found);
    return QString();
  });
}

bool StyleStore::change(QString *reason, const std::function<QString(std::vector<Style> &)> &fault) {
  m_stamp.reset(); // all() is to see the change, however soon
  std::optional<std::vector<Style>> styles = read(reason);
  if (!styles)
    return false;
  *reason = fault(*styles);
  return reason->isEmpty() && write(*styles, reason);
}

std::optional<std::vector<StyleStore::Style>> StyleStore::read(QString *reason) {
  std::vector<Style> styles;
  if (!QFileInfo::exists(file()))
    return styles;
  const auto text = FileAccess::readWhole(file(), FileAccess::Source::Trusted, LargestFile, reason);
  if (!text)
    return std::nullopt;
  const QJsonObject whole = QJsonDocument::fromJson(*text).object();
  if (whole[QStringLiteral("version")].toInt() != Version || !whole[QStringLiteral("styles")].isArray()) {
    *reason = tr("%1 is no list of styles of this program.").arg(file());
    return std::nullopt;
  }
  const QJsonArray entries = whole[QStringLiteral("styles")].toArray();
  for (const QJsonValue &entry : entries) {
    const Style style{entry[nameKey()].toString().trimmed(), entry[settingsKey()].toString().toUtf8()};
    if (faultOf(style.name).isEmpty() && style.settings.size() <= LargestStyle &&
        placeOf(styles, style.name) == styles.end() && styles.size() < MostStyles)
      styles.push_back(style);
  }
  return styles;
}

bool StyleStore::write(const std::vector<Style> &styles, QString *reason) {
  std::vector<Style> sorted = styles;
  std::sort(sorted.begin(), sorted.end(),
            [](const Style &a, const Style &b) { return QString::localeAwareCompare(a.name, b.name) < 0; });
  QJsonArray entries;
  for (const Style &style : sorted)
    entries.append(QJsonObject{{nameKey(), style.name}, {settingsKey(), QString::fromUtf8(style.settings)}});
  const QJsonObject whole{{QStringLiteral("version"), Version}, {QStringLiteral("styles"), entries}};
  return WholeFile::write(file(), FileAccess::Source::Trusted, QJsonDocument(whole).toJson(), reason);
}
