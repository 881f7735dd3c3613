#include <base/wholefile.h>
#include <drawing/labeltable.h>
#include <model/elementtypes.h>
#include <model/netdata.h>

#include <QFile>
#include <QTextStream>

#include <algorithm>

namespace {

QString contentsOf(const ElementType &type) {
  switch (type.kind) {
  case NetData::Node:
    return type.code == QLatin1String("d") ? QStringLiteral("@name") : QStringLiteral("@name<br />@p");
  case NetData::Edge:
    return QStringLiteral("@name<br />@q");
  case NetData::AssembledSubnet:
    return QStringLiteral("@name<br />@main_element @substate");
  default:
    return QString(); // a text box is its own label
  }
}

} // namespace

LabelTable::LabelTable() {
  for (const ElementType &type : ElementTypes::all()) {
    if (type.word.isEmpty())
      continue; // another spelling of a type
    LabelRow row;
    row[LabelRow::LongName] = type.longName;
    row[LabelRow::Short] = type.code;
    row[LabelRow::Show] = QStringLiteral("on");
    row[LabelRow::Contents] = contentsOf(type);
    row[LabelRow::BgrAlpha] = QStringLiteral("200");
    row[LabelRow::BordAlpha] = QStringLiteral("0");
    types.push_back(row);
  }
}

const LabelRow *LabelTable::ofType(const QString &code) const {
  const auto found = std::find_if(types.begin(), types.end(), [&code](const LabelRow &row) {
    return row[LabelRow::Short].compare(code, Qt::CaseInsensitive) == 0; // a type may be written in capitals
  });
  return found == types.end() ? nullptr : &*found;
}

const QStringList &LabelTable::headers() {
  static const QStringList texts{QStringLiteral("long name"),  QStringLiteral("short"),     QStringLiteral("size"),
                                 QStringLiteral("show"),       QStringLiteral("contents"),  QStringLiteral("color"),
                                 QStringLiteral("bgr-color"),  QStringLiteral("bgr-alpha"), QStringLiteral("bord-color"),
                                 QStringLiteral("bord-alpha"), QStringLiteral("font")};
  return texts;
}

namespace {

/// The lines of the file; a null line behind its end.
class Lines {
public:
  explicit Lines(const QByteArray &text)
      : m_stream(text) {
    m_stream.setCodec("UTF-8");
  }
  bool next(QString &line) {
    line = m_ahead.isEmpty() ? read() : m_ahead.takeFirst();
    return !line.isNull();
  }
  /// A line that is still to come, 0 for the next one.
  QString ahead(int index) {
    while (m_ahead.size() <= index)
      m_ahead.append(read());
    return m_ahead.at(index);
  }

private:
  QString read() {
    constexpr qint64 LongestLine = 1 << 16;
    return m_stream.readLine(LongestLine);
  }

  QTextStream m_stream;
  QStringList m_ahead; ///< read ahead of what was asked for
};

bool readCells(Lines &lines, LabelRow &row, int first = 0) {
  for (int column = first; column < LabelRow::Columns; ++column) {
    QString cell;
    if (!lines.next(cell))
      return false;
    if (column != LabelRow::LongName && column != LabelRow::Short)
      row.cells[static_cast<std::size_t>(column)] = cell;
  }
  return true;
}

bool skip(Lines &lines, int count) {
  QString line;
  for (int i = 0; i < count; ++i) {
    if (!lines.next(line))
      return false;
  }
  return true;
}

/// Whether a row that is still to come stands for the type. \param firstLine of it, among the lines to come
bool isOfType(Lines &lines, int firstLine, const LabelRow &type) {
  return lines.ahead(firstLine + LabelRow::Short).compare(type[LabelRow::Short], Qt::CaseInsensitive) == 0;
}

/// Passes over the rows of masters in front of a type's row. False when a master stands where that row should: it has the
/// type's code, and the row itself does not follow.
bool skipMasters(Lines &lines, const LabelRow &type) {
  while (lines.ahead(LabelRow::LongName).startsWith(QLatin1String("master"))) {
    const bool isInPlace = isOfType(lines, 0, type);
    const bool isBeside =
        isOfType(lines, LabelRow::Columns, type) && lines.ahead(LabelRow::Columns) == type[LabelRow::LongName];
    skip(lines, LabelRow::Columns);
    if (isInPlace && !isBeside)
      return false;
  }
  return true;
}

Finding information(const QString &text) {
  return {Finding::Severity::Information, {}, 0, text, {}};
}

Finding warning(const QString &text) {
  return {Finding::Severity::Warning, {}, 0, text, {}};
}

/// Reading stops where the file ends before its time.
Finding endedIn(const QString &what, const QString &path) {
  return warning(QStringLiteral("EOF while reading %1 in file ").arg(what) + path + QStringLiteral("! Stopped!"));
}

Finding readTemplates(Lines &lines, const QString &path, LabelTable &table) {
  constexpr std::size_t MostTemplates = 1000;
  table.templates.clear();
  QString first;
  while (table.templates.size() < MostTemplates && lines.next(first)) {
    LabelRow row;
    row[LabelRow::LongName] = first;
    QString shortName;
    if (!lines.next(shortName) || !readCells(lines, row, LabelRow::Size))
      return endedIn(QStringLiteral("template"), path);
    row[LabelRow::Short] = shortName;
    if (!lines.next(row.icon))
      return endedIn(QStringLiteral("template icon data"), path);
    table.templates.push_back(row);
  }
  return information(QStringLiteral("Number of eleSymLabel-templates: %1").arg(table.templates.size()));
}

/// Reads the rows of the types, then the templates. Returns how it ended.
Finding readRows(Lines &lines, bool ignoresMasters, const QString &path, LabelTable &table) {
  if (!skip(lines, LabelRow::Columns))
    return endedIn(QStringLiteral("header"), path);
  for (LabelRow &type : table.types) {
    if (ignoresMasters && !skipMasters(lines, type))
      continue;
    LabelRow row = type; // half a row counts for nothing
    if (!readCells(lines, row))
      return endedIn(QStringLiteral("type data"), path);
    type = row;
  }
  return readTemplates(lines, path, table);
}

/// A cell is a line: what would end it becomes a blank.
QString asLine(QString text) {
  return text.replace(QLatin1Char('\n'), QLatin1Char(' ')).replace(QLatin1Char('\r'), QLatin1Char(' '));
}

} // namespace

QString LabelTableFile::version() {
  return QStringLiteral("vfd 1");
}

LabelTableFile::Reading LabelTableFile::read(const QString &path, LabelTable &table, FileAccess::Source source) {
  if (!QFile::exists(path))
    return {false, {information(QStringLiteral("### Settings file ") + path + QStringLiteral(" not found!"))}};
  QString reason;
  const std::optional<QByteArray> text = FileAccess::readWhole(path, source, FileAccess::LargestConfiguration, &reason);
  if (!text)
    return {false, {warning(QStringLiteral("### Could not open settings file ") + path), warning(reason)}};
  Reading reading{true, {information(QStringLiteral("... loading settings file ") + path)}};
  Lines lines(*text);
  QString fileVersion;
  if (!lines.next(fileVersion)) {
    reading.findings.push_back(endedIn(QStringLiteral("version (first line)"), path));
    return reading;
  }
  const bool ignoresMasters = fileVersion != version();
  if (ignoresMasters)
    reading.findings.push_back(
        information(QStringLiteral("Version of vfd file: ") + fileVersion +
                    QStringLiteral(", entries for masters are ignored.\nPlease perform apply and save")));
  reading.findings.push_back(readRows(lines, ignoresMasters, path, table));
  return reading;
}

bool LabelTableFile::write(const QString &path, const LabelTable &table, QString *error) {
  QByteArray text;
  QTextStream stream(&text);
  stream.setCodec("UTF-8");
  stream << version() << '\n';
  for (const QString &header : LabelTable::headers())
    stream << header << '\n';
  for (const std::vector<LabelRow> *rows : {&table.types, &table.templates}) {
    for (const LabelRow &row : *rows) {
      for (const QString &cell : row.cells)
        stream << asLine(cell) << '\n';
      if (rows == &table.templates)
        stream << asLine(row.icon) << '\n';
    }
  }
  stream.flush();
  QString reason;
  const bool isDone = WholeFile::write(path, FileAccess::Source::Workspace, text, &reason);
  if (!isDone && error != nullptr)
    *error = reason;
  return isDone;
}
