#include <base/fileaccess.h>
#include <base/index.h>
#include <base/textdecoding.h>
#include <base/wholefile.h>
#include <tools/category.h>

#include <QCoreApplication>
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

constexpr int Fields = 5;

bool isComment(const QString &line) {
  return line.trimmed().isEmpty() || line.startsWith(QLatin1Char('#'));
}

/// Nothing when the line has too few fields.
std::optional<Category> parsed(const QString &line) {
  QStringList fields = line.split(QLatin1Char(';'));
  if (fields.size() < Fields)
    return std::nullopt;
  const bool isChecked = fields[0].trimmed().startsWith(CheckedMark);
  if (isChecked)
    fields[0] = fields[0].trimmed().mid(CheckedMark.size());
  return Category{meant(fields[0]), meant(fields[1]), meant(fields[2]), meant(fields[3]), meant(fields[4]), isChecked};
}

QString writtenLine(const Category &c) {
  const QStringList fields{writtenFirst(c.category), written(c.name), written(c.type), written(c.prop), written(c.value)};
  return (c.isChecked ? CheckedMark : QString()) + fields.join(QLatin1Char(';'));
}

struct Line {
  QString text; ///< without what ends it
  bool isComment = false;
  std::optional<Category> category;
};

std::vector<Line> linesOf(const QString &text) {
  QStringList texts = text.split(QLatin1Char('\n'));
  if (texts.last().isEmpty())
    texts.removeLast();
  std::vector<Line> lines;
  lines.reserve(fromQt(texts.size()));
  for (QString &line : texts) {
    if (line.endsWith(QLatin1Char('\r')))
      line.chop(1);
    const bool isNone = isComment(line);
    lines.push_back({line, isNone, isNone ? std::nullopt : parsed(line)});
  }
  return lines;
}

/// What a file holds that is no category: lines, which stay behind as many categories as before, and fields behind those of
/// a category, which stay with its name.
class Remainder {
public:
  explicit Remainder(const QString &text) {
    int before = 0; // categories
    for (const Line &line : linesOf(text)) {
      if (line.category) {
        ++before;
        m_fields[line.category->category].append(line.text.section(QLatin1Char(';'), Fields));
      } else {
        m_lines[before].append(line.text);
      }
    }
  }

  QStringList takeLines(int before) { return m_lines.take(before); }
  QString takeFields(const QString &category) {
    QStringList &ofName = m_fields[category]; // several categories may share it
    const QString fields = ofName.isEmpty() ? QString() : ofName.takeFirst();
    return fields.isEmpty() ? fields : QLatin1Char(';') + fields;
  }
  QStringList rest() const {
    QStringList all;
    for (const QStringList &lines : m_lines)
      all += lines;
    return all;
  }

private:
  QMap<int, QStringList> m_lines; ///< by the number of categories in front of them
  QMap<QString, QStringList> m_fields;
};

} // namespace

std::vector<Category> CategoryFile::read(const QString &path, const Told &told) {
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
  for (const Line &line : linesOf(TextDecoding::decoded(*content, path, told))) {
    ++number;
    if (line.category)
      categories.push_back(*line.category);
    else if (!line.isComment && told)
      told({Finding::Severity::Warning, path, number,
            QCoreApplication::translate("CategoryFile", "Line contains less than 5 entries!")});
  }
  return categories;
}

bool CategoryFile::write(const QString &path, const std::vector<Category> &categories, QString *error) {
  QString reason;
  std::optional<QByteArray> present = QByteArray();
  if (QFileInfo::exists(path))
    present = FileAccess::readWhole(path, FileAccess::Source::Workspace, FileAccess::LargestConfiguration, &reason);
  if (present) {
    Remainder remainder(TextDecoding::decoded(*present, path, {}));
    QStringList lines;
    const QString format = QStringLiteral("# category;name;type;prop;value/formula");
    if (!remainder.rest().contains(format))
      lines << QStringLiteral("# format (besides comment lines) per LINE:") << format;
    int before = 0;
    for (const Category &category : categories) {
      lines += remainder.takeLines(before++);
      lines += writtenLine(category) + remainder.takeFields(category.category);
    }
    lines += remainder.rest();
    const QByteArray text = (lines.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8();
    if (WholeFile::write(path, FileAccess::Source::Workspace, text, &reason))
      return true;
  }
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
