#include <base/generalsettings.h>
#include <base/settingstable.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

enum Field { Key, Category, Type, Value, Options, Description, FieldCount };

constexpr qint64 LongestLine = 1 << 20; // what is longer is no settings line; the rest of the file is still read

QString withSemicolons(QString field) {
  return field.replace(QStringLiteral("$SEMI$"), QStringLiteral(";"));
}

bool isNumber(const QString &text) {
  bool ok = false;
  text.toDouble(&ok);
  return ok;
}

/// What a person reads.
QString translated(const char *text) {
  return QCoreApplication::translate("GeneralSettings", text);
}

/// Null for a key that is not in the table.
const SettingsTable::Row *builtInRow(const QString &key) {
  for (const SettingsTable::Row &row : SettingsTable::Rows) {
    if (key == QLatin1String(row.key))
      return &row;
  }
  return nullptr;
}

} // namespace

GeneralSettings &GeneralSettings::instance() {
  static GeneralSettings settings;
  return settings;
}

GeneralSettings::GeneralSettings() {
  reset();
}

void GeneralSettings::reset() {
  m_entries.clear();
  m_layers.clear();
  ++m_revision;
  for (const SettingsTable::Row &row : SettingsTable::Rows)
    m_entries[QString::fromLatin1(row.key)] = {QString::fromLatin1(row.value),
                                               QString::fromLatin1(row.type),
                                               QString::fromLatin1(row.category),
                                               QString::fromLatin1(row.options),
                                               QString(),
                                               Layer::BuiltIn};
}

QString GeneralSettings::value(const QString &key) const {
  const auto found = m_entries.find(key);
  return found == m_entries.end() ? QString() : found->second.value;
}

bool GeneralSettings::isOn(const QString &key) const {
  const QString text = value(key).toLower();
  return text == QLatin1String("1") || text == QLatin1String("on") || text == QLatin1String("true");
}

bool GeneralSettings::setValue(const QString &key, const QString &value) {
  const auto found = m_entries.find(key);
  if (found == m_entries.end())
    return false;
  found->second.value = value;
  found->second.layer = Layer::Run;
  ++m_revision;
  return true;
}

std::optional<QString> GeneralSettings::valueIn(Layer layer, const QString &key) const {
  if (layer == Layer::BuiltIn) {
    const SettingsTable::Row *row = builtInRow(key);
    return row == nullptr ? std::nullopt : std::make_optional(QString::fromLatin1(row->value));
  }
  const auto values = m_layers.find(layer);
  if (values == m_layers.end())
    return std::nullopt;
  const auto found = values->second.find(key);
  return found == values->second.end() ? std::nullopt : std::make_optional(found->second);
}

QString GeneralSettings::userDirectory() {
  return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
}

QString GeneralSettings::userName() {
  const QString name = qEnvironmentVariable("USERNAME");
  return name.isEmpty() ? qEnvironmentVariable("USER") : name;
}

QString GeneralSettings::settingsFile(const QString &workspaceDir) {
  if (workspaceDir.isEmpty())
    return userDirectory() + QStringLiteral("/generalsettings.csv");
  return workspaceDir + QStringLiteral("/generalsettings_") + userName() + QStringLiteral(".csv");
}

bool GeneralSettings::suits(const QString &key, const QString &value) {
  const SettingsTable::Row *row = builtInRow(key);
  if (row == nullptr)
    return true; // of the user's own
  const QLatin1String type(row->type);
  if (type == QLatin1String("bool"))
    return value == QLatin1String("0") || value == QLatin1String("1");
  if (type == QLatin1String("list"))
    return QString::fromLatin1(row->options).split(QLatin1Char(',')).contains(value);
  const SettingsTable::NumberBounds *bounds = SettingsTable::numberBounds(row->key);
  // Whoever acts on the other numbers bounds them by itself, as files have always been free to say any.
  const bool isStrict =
      key == QLatin1String("smooth zoom steps") || QLatin1String(row->category) == QLatin1String("units and numbers");
  if (bounds == nullptr || !isStrict)
    return !isNumber(QString::fromLatin1(row->value)) || isNumber(value);
  bool isWhole = false;
  const int number = value.toInt(&isWhole);
  return isWhole && number >= bounds->minimum && number <= bounds->maximum;
}

int GeneralSettings::load(const QString &workspaceDir, const Told &told) {
  reset();
  const int taken = overlay(settingsFile(QString()), FileAccess::Source::Trusted, told);
  return workspaceDir.isEmpty() ? taken : overlay(settingsFile(workspaceDir), FileAccess::Source::Workspace, told);
}

int GeneralSettings::loadFile(const QString &path, FileAccess::Source source, const Told &told) {
  reset();
  return overlay(path, source, told);
}

int GeneralSettings::overlay(const QString &path, FileAccess::Source source, const Told &told) {
  const auto log = [&told](const QString &text) {
    tell(told, Finding::Severity::Information, text);
  };
  log(QStringLiteral("Trying to (re)load general settings file ") + path + QStringLiteral(" ..."));
  if (!QFileInfo::exists(path)) {
    log(QStringLiteral("General settings file ") + path + QStringLiteral(" not found!"));
    return 0;
  }
  QString reason;
  std::optional<QByteArray> content = FileAccess::readWhole(path, source, FileAccess::LargestConfiguration, &reason);
  if (!content) {
    tell(told, Finding::Severity::Warning,
         translated(QT_TRANSLATE_NOOP("GeneralSettings", "Cannot open General settings file %1")).arg(reason));
    return 0;
  }
  const int taken =
      takeLines(std::move(*content), path, source == FileAccess::Source::Workspace ? Layer::Workspace : Layer::User, told);
  log(QStringLiteral("Loaded %1 settings from general settings file.").arg(taken));
  return taken;
}

int GeneralSettings::takeLines(QByteArray content, const QString &path, Layer layer, const Told &told) {
  QBuffer file(&content);
  file.open(QIODevice::ReadOnly | QIODevice::Text);
  int taken = 0;
  bool continued = false; // the line before was cut at LongestLine
  for (int number = 1; !file.atEnd();) {
    const QByteArray bytes = file.readLine(LongestLine);
    const bool cut = bytes.size() >= LongestLine - 1 && !bytes.endsWith('\n');
    QString line = continued || cut ? QString() : QString::fromUtf8(bytes).trimmed();
    if (number == 1 && line.startsWith(QChar(QChar::ByteOrderMark)))
      line.remove(0, 1);
    const QString where = QStringLiteral(" (%1:%2)").arg(path).arg(number);
    if (cut && !continued)
      tell(told, Finding::Severity::Warning, translated(QT_TRANSLATE_NOOP("GeneralSettings", "Line is too long!")) + where);
    if (!line.isEmpty() && !line.startsWith(QLatin1Char('#')) && takeLine(line, where, layer, told))
      ++taken;
    continued = cut;
    if (!cut)
      ++number;
  }
  ++m_revision;
  return taken;
}

bool GeneralSettings::takeLine(const QString &line, const QString &where, Layer layer, const Told &told) {
  QStringList fields = line.split(QLatin1Char(';'));
  if (fields.size() < FieldCount) {
    tell(told, Finding::Severity::Warning,
         translated(QT_TRANSLATE_NOOP("GeneralSettings", "Line contains less than 6 entries!")) + where);
    return false;
  }
  for (QString &field : fields)
    field = field.trimmed();
  Entry entry{withSemicolons(fields[Value]),       fields[Type], fields[Category], withSemicolons(fields[Options]),
              withSemicolons(fields[Description]), layer};
  const QString &key = fields[Key];
  if (entry.category == QLatin1String("user keys")) {
    m_layers[layer][key] = entry.value;
    m_entries[key] = entry;
    return true;
  }
  const auto known = m_entries.find(key);
  if (known == m_entries.end()) {
    tell(told, Finding::Severity::Debug, QStringLiteral("nivraGeneralProps: WARNING skipping unknown property ") + key);
    return false;
  }
  const Entry &builtIn = known->second;
  if (entry.category != builtIn.category) {
    tell(told, Finding::Severity::Debug,
         QStringLiteral("nivraGeneralProps: using new default category ") + builtIn.category + QStringLiteral(" for ") +
             key);
    entry.category = builtIn.category;
  }
  // Type and options say what the program understands, so a file cannot change them.
  entry.type = builtIn.type;
  entry.options = builtIn.options;
  if (!suits(key, entry.value)) {
    tell(told, Finding::Severity::Warning,
         translated(QT_TRANSLATE_NOOP("GeneralSettings", "Value \"%1\" does not suit the setting \"%2\"; \"%3\" stays."))
                 .arg(entry.value, key, builtIn.value) +
             where);
    return false;
  }
  m_layers[layer][key] = entry.value;
  known->second = entry;
  return true;
}
