#include <base/textdecoding.h>
#include <base/wholefile.h>
#include <drawing/labeltable.h>
#include <model/elementtypes.h>
#include <model/netdata.h>

#include <QCoreApplication>
#include <QFileInfo>
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

Finding information(const QString &text) {
  return {Finding::Severity::Information, {}, 0, text, {}};
}

Finding warning(const QString &text) {
  return {Finding::Severity::Warning, {}, 0, text, {}};
}

/// The lines of the file; behind its end there is none.
class Lines {
public:
  Lines(QString text, const QString &path)
      : m_text(std::move(text))
      , m_stream(&m_text, QIODevice::ReadOnly)
      , m_path(path) {}

  /// False at the end. A line that is too long for a cell is refused: it becomes a null one.
  bool next(QString &line) {
    line = m_ahead.isEmpty() ? m_stream.readLine() : m_ahead.takeFirst();
    if (line.isNull())
      return false;
    ++m_number;
    if (line.size() > LabelTableFile::LongestCell) {
      m_refused.push_back({Finding::Severity::Warning,
                           m_path,
                           m_number,
                           QCoreApplication::translate("LabelTable", "A cell of %1 characters is left out; it may have %2")
                               .arg(line.size())
                               .arg(LabelTableFile::LongestCell),
                           {}});
      line = QString();
    }
    return true;
  }
  /// A line that is still to come, 0 for the next one; a null line behind the end.
  QString ahead(int index) {
    while (m_ahead.size() <= index)
      m_ahead.append(m_stream.readLine());
    return m_ahead.at(index);
  }
  bool isAtEnd() { return ahead(0).isNull(); }
  const Findings &refused() const { return m_refused; }

private:
  QString m_text;
  QTextStream m_stream;
  QString m_path;
  QStringList m_ahead; ///< read ahead of what was asked for
  int m_number = 0;
  Findings m_refused;
};

bool readCells(Lines &lines, LabelRow &row, int first = 0) {
  for (int column = first; column < LabelRow::Columns; ++column) {
    QString cell;
    if (!lines.next(cell))
      return false;
    if (column != LabelRow::LongName && column != LabelRow::Short && !cell.isNull())
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

/// Reading stops where the file ends before its time.
Finding endedIn(const QString &what, const QString &path) {
  return warning(QCoreApplication::translate("LabelTable", "EOF while reading %1 in file %2! Stopped!").arg(what, path));
}

void readTemplates(Lines &lines, const QString &path, LabelTable &table, LabelTableFile::Reading &reading) {
  constexpr std::size_t MostTemplates =
      100000; // a file of the largest size could hold so many short ones that they fill the memory
  table.templates.clear();
  while (!lines.isAtEnd() && table.templates.size() < MostTemplates) {
    LabelRow row;
    const bool hasCells =
        lines.next(row[LabelRow::LongName]) && lines.next(row[LabelRow::Short]) && readCells(lines, row, LabelRow::Size);
    if (!hasCells && row == LabelRow()) // blank lines at the end
      break;
    if (!hasCells || !lines.next(row.icon)) {
      ++reading.leftOut;
      reading.findings.push_back(endedIn(hasCells ? QCoreApplication::translate("LabelTable", "template icon data")
                                                  : QCoreApplication::translate("LabelTable", "template"),
                                         path));
      return;
    }
    table.templates.push_back(row);
  }
  reading.findings.push_back(information(QStringLiteral("Number of eleSymLabel-templates: %1").arg(table.templates.size())));
  if (lines.isAtEnd())
    return;
  ++reading.leftOut;
  reading.findings.push_back(
      warning(QCoreApplication::translate("LabelTable", "%1: templates beyond the first %2 are left out")
                  .arg(path)
                  .arg(MostTemplates)));
}

/// Reads the rows of the types, then the templates.
void readRows(Lines &lines, bool ignoresMasters, const QString &path, LabelTable &table, LabelTableFile::Reading &reading) {
  if (!skip(lines, LabelRow::Columns)) {
    reading.findings.push_back(endedIn(QCoreApplication::translate("LabelTable", "header"), path));
    return;
  }
  for (LabelRow &type : table.types) {
    if (ignoresMasters && !skipMasters(lines, type))
      continue;
    const bool isThere = !lines.isAtEnd();
    LabelRow row = type; // half a row counts for nothing
    if (!readCells(lines, row)) {
      reading.leftOut += isThere ? 1 : 0;
      reading.findings.push_back(endedIn(QCoreApplication::translate("LabelTable", "type data"), path));
      return;
    }
    type = row;
  }
  readTemplates(lines, path, table, reading);
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
  Reading reading;
  reading.stamp = FileStamp::of(path);
  if (!reading.stamp.isOfAFile()) {
    reading.findings = {information(QStringLiteral("### Settings file ") + path + QStringLiteral(" not found!"))};
    return reading;
  }
  QString reason;
  const std::optional<QByteArray> content = FileAccess::readWhole(path, source, FileAccess::LargestConfiguration, &reason);
  if (!content) {
    reading.findings = {warning(QCoreApplication::translate("LabelTable", "### Could not open settings file %1").arg(path)),
                        warning(reason)};
    return reading;
  }
  const FileStamp stamp = reading.stamp;
  reading = readText(*content, path, table);
  reading.stamp = stamp;
  return reading;
}

LabelTableFile::Reading LabelTableFile::readText(const QByteArray &text, const QString &path, LabelTable &table) {
  Reading reading;
  reading.isOpened = true;
  reading.findings = {information(QStringLiteral("... loading settings file ") + path)};
  const auto told = [&reading](const Finding &finding) {
    reading.findings.push_back(finding);
  };
  Lines lines(TextDecoding::decoded(text, path, told), path);
  QString fileVersion;
  if (!lines.next(fileVersion)) {
    reading.findings.push_back(endedIn(QCoreApplication::translate("LabelTable", "version (first line)"), path));
    return reading;
  }
  const bool ignoresMasters = fileVersion != version();
  if (ignoresMasters)
    reading.findings.push_back(information(
        QCoreApplication::translate("LabelTable", "Version of vfd file: %1, entries for masters are ignored.\nPlease "
                                                  "perform apply and save")
            .arg(fileVersion)));
  readRows(lines, ignoresMasters, path, table, reading);
  reading.leftOut += static_cast<int>(lines.refused().size());
  reading.findings.insert(reading.findings.begin() + 1, lines.refused().begin(), lines.refused().end());
  return reading;
}

QByteArray LabelTableFile::text(const LabelTable &table) {
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
  return text;
}

bool LabelTableFile::write(const QString &path, const LabelTable &table, QString *error) {
  QString reason;
  const bool isDone = WholeFile::write(path, FileAccess::Source::Workspace, text(table), &reason);
  if (!isDone && error != nullptr)
    *error = reason;
  return isDone;
}
