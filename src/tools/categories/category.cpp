#include <base/fileaccess.h>
#include <base/textdecoding.h>
#include <base/wholefile.h>
#include <tools/category.h>

#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>

namespace {

const QString CheckedMark = QStringLiteral("[x]");

QString written(QString text) {
  static const QRegularExpression mistakable(QStringLiteral("\\$(?=SEMI|BREAK|HASH|BRACKET|DOLLAR)"));
  text.replace(mistakable, QStringLiteral("$DOLLAR$"));
  text.replace(QLatin1Char(';'), QStringLiteral("$SEMI$"));
  return text.remove(QLatin1Char('\r')).replace(QLatin1Char('\n'), QStringLiteral("$BREAK$"));
}

/// A name, which begins its line.
QString writtenFirst(const QString &name) {
  const QString text = written(name);
  if (text.startsWith(QLatin1Char('#')))
    return QStringLiteral("$HASH$") + text.mid(1);
  return text.startsWith(CheckedMark) ? QStringLiteral("$BRACKET$") + text.mid(1) : text;
}

QString meant(const QString &field) {
  static const QRegularExpression word(QStringLiteral("\\$(SEMI|BREAK|HASH|BRACKET|DOLLAR)\\$"));
  static const QMap<QString, QString> meaning{{QStringLiteral("SEMI"), QStringLiteral(";")},
                                              {QStringLiteral("BREAK"), QStringLiteral("\n")},
                                              {QStringLiteral("HASH"), QStringLiteral("#")},
                                              {QStringLiteral("BRACKET"), QStringLiteral("[")},
                                              {QStringLiteral("DOLLAR"), QStringLiteral("$")}};
  const QString text = field.trimmed();
  QString result;
  int end = 0;
  for (auto it = word.globalMatch(text); it.hasNext();) {
    const QRegularExpressionMatch match = it.next();
    result += text.mid(end, match.capturedStart() - end) + meaning.value(match.captured(1));
    end = match.capturedEnd();
  }
  return result + text.mid(end);
}

/// Files written elsewhere may be in the encoding of old.
QString decoded(const QByteArray &content, const QString &path, const Told &told) {
  if (std::optional<QString> text = TextDecoding::fromUtf8(content))
    return *text;
  tell(told, Finding::Severity::Warning, QStringLiteral("%1 is not UTF-8 and is read as Windows-1252 (Latin-1)").arg(path));
  return TextDecoding::fromWindows1252(content);
}

} // namespace

std::vector<Category> CategoryFile::read(const QString &path, const Told &told) {
  constexpr int Fields = 5;
  std::vector<Category> categories;
  if (!QFileInfo::exists(path)) {
    tell(told, Finding::Severity::Information, QStringLiteral("### Categories file %1 not found!").arg(path));
    return categories;
  }
  QString reason;
  const auto content = FileAccess::readWhole(path, FileAccess::Source::Workspace, FileAccess::LargestConfiguration, &reason);
  if (!content) {
    tell(told, Finding::Severity::Warning, reason);
    return categories;
  }
  int number = 0;
  for (const QString &line : decoded(*content, path, told).split(QLatin1Char('\n'))) {
    ++number;
    if (line.trimmed().isEmpty() || line.startsWith(QLatin1Char('#')))
      continue;
    QStringList fields = line.split(QLatin1Char(';'));
    if (fields.size() < Fields) {
      if (told)
        told({Finding::Severity::Warning, path, number, QStringLiteral("Line contains less than 5 entries!")});
      continue;
    }
    const bool isChecked = fields[0].trimmed().startsWith(CheckedMark);
    if (isChecked)
      fields[0] = fields[0].trimmed().mid(CheckedMark.size());
    categories.push_back(
        {meant(fields[0]), meant(fields[1]), meant(fields[2]), meant(fields[3]), meant(fields[4]), isChecked});
  }
  return categories;
}

bool CategoryFile::write(const QString &path, const std::vector<Category> &categories, QString *error) {
  QString text = QStringLiteral("# format (besides comment lines) per LINE:\n# category;name;type;prop;value/formula\n");
  for (const Category &c : categories) {
    const QStringList fields{writtenFirst(c.category), written(c.name), written(c.type), written(c.prop), written(c.value)};
    text += (c.isChecked ? CheckedMark : QString()) + fields.join(QLatin1Char(';')) + QLatin1Char('\n');
  }
  QString reason;
  if (WholeFile::write(path, FileAccess::Source::Workspace, text.toUtf8(), &reason))
    return true;
  *error = tr("Could not open categories file %1!").arg(path) + QLatin1Char('\n') + reason;
  return false;
}

CatMap CategoryFile::toMap(const std::vector<Category> &categories) {
  CatMap map;
  for (const Category &c : categories)
    map.insert(c.category, {c.name, c.type, c.prop, c.isFormula() ? QString() : c.value, c.isFormula() ? c.value : QString(),
                            c.isChecked});
  return map;
}
