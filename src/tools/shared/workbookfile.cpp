#include "shared/workbookfile.h"

#include "shared/exportedtable.h"
#include "shared/workbookformats.h"

#include <base/fileaccess.h>

#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QTemporaryDir>
#include <QtEndian>

#include <algorithm>
#include <clocale>
#include <memory>
#include <xlsxwriter.h>
#include <zlib.h>

namespace {

/// The library prints numbers as the locale says, which is no matter of taste in a file.
class PlainNumbers {
public:
  PlainNumbers()
      : m_plain(newlocale(LC_NUMERIC_MASK, "C", duplocale(LC_GLOBAL_LOCALE)))
      , m_before(uselocale(m_plain)) {}
  ~PlainNumbers() {
    uselocale(m_before);
    freelocale(m_plain);
  }
  PlainNumbers(const PlainNumbers &) = delete;
  PlainNumbers &operator=(const PlainNumbers &) = delete;

private:
  locale_t m_plain;
  locale_t m_before;
};

struct CloseWorkbook {
  void operator()(lxw_workbook *book) const { lxw_workbook_free(book); }
};

/// What XML cannot hold, and what spreadsheets do not show, is left out.
QByteArray cellText(const QString &text) {
  QString kept;
  kept.reserve(text.size());
  for (const QChar c : text) {
    if (c >= QLatin1Char(' ') || c == QLatin1Char('\n') || c == QLatin1Char('\t'))
      kept += c.unicode() >= 0xfffe ? QChar(QChar::ReplacementCharacter) : c;
  }
  return kept.toUtf8();
}

quint32 number32(const QByteArray &bytes, int at) {
  return at + 4 <= bytes.size() ? qFromLittleEndian<quint32>(bytes.constData() + at) : 0;
}

quint16 number16(const QByteArray &bytes, int at) {
  return at + 2 <= bytes.size() ? qFromLittleEndian<quint16>(bytes.constData() + at) : quint16(0);
}

/// Whether what is packed ends as the document that it begins to be. \param size of what comes out
bool isWholeDocument(const QByteArray &packed, quint32 size) {
  constexpr int Kept = 300; // bytes at either end; names of elements are shorter
  QByteArray head;
  QByteArray tail;
  z_stream stream{};
  if (inflateInit2(&stream, -MAX_WBITS) != Z_OK)
    return false;
  stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(packed.constData()));
  stream.avail_in = static_cast<uInt>(packed.size());
  constexpr int Block = 1 << 16;
  QByteArray block(Block, Qt::Uninitialized);
  int state = Z_OK;
  while (state == Z_OK) {
    stream.next_out = reinterpret_cast<Bytef *>(block.data());
    stream.avail_out = Block;
    state = inflate(&stream, Z_NO_FLUSH);
    const QByteArray out = QByteArray::fromRawData(block.constData(), Block - static_cast<int>(stream.avail_out));
    head += out.left(std::max(0, 2 * Kept - head.size()));
    tail = (tail + out).right(Kept);
  }
  const bool isAll = state == Z_STREAM_END && stream.total_out == size;
  inflateEnd(&stream);
  const int root = head.indexOf('<', head.indexOf("?>") + 1);
  const int rootEnd = static_cast<int>(
      std::find_if(head.begin() + root + 1, head.end(), [](char c) { return c == ' ' || c == '>' || c == '/'; }) -
      head.begin());
  const QByteArray name = head.mid(root + 1, rootEnd - root - 1);
  return isAll && root >= 0 && !name.isEmpty() && tail.trimmed().endsWith("</" + name + '>');
}

} // namespace

bool WorkbookFile::isWhole(const QByteArray &archive) {
  constexpr int EndLength = 22; // of the record at the end, which has no comment
  constexpr int EntryLength = 46;
  constexpr int HeaderLength = 30;
  const int end = archive.size() - EndLength;
  if (end < 0 || number32(archive, end) != 0x06054b50)
    return false;
  int entry = static_cast<int>(number32(archive, end + 16));
  const int count = number16(archive, end + 10);
  for (int i = 0; i < count; ++i) {
    if (number32(archive, entry) != 0x02014b50)
      return false;
    const int header = static_cast<int>(number32(archive, entry + 42));
    const int content = header + HeaderLength + number16(archive, header + 26) + number16(archive, header + 28);
    const int packed = static_cast<int>(number32(archive, entry + 20));
    if (number32(archive, header) != 0x04034b50 || packed < 0 || content > archive.size() - packed ||
        !isWholeDocument(archive.mid(content, packed), number32(archive, entry + 24)))
      return false;
    entry += EntryLength + number16(archive, entry + 28) + number16(archive, entry + 30) + number16(archive, entry + 32);
  }
  return count > 0;
}

QString WorkbookFile::writeRow(lxw_worksheet &sheet, int row, WorkbookFormats &formats) {
  using Weight = WorkbookFormats::Weight;
  const Weight weight = m_table.isEmphasised(row) ? Weight::Bold : Weight::Normal;
  const auto line = static_cast<lxw_row_t>(row + 1);
  for (int i = 0; i < m_table.headers.size(); ++i) {
    const auto column = static_cast<lxw_col_t>(i);
    const QVariant value = m_table.value(row, i);
    lxw_error error = LXW_NO_ERROR;
    if (value.type() == QVariant::Double)
      error = worksheet_write_number(&sheet, line, column, value.toDouble(), formats.ofNumber(value.toDouble(), weight));
    else if (!value.toString().isEmpty())
      error = worksheet_write_string(&sheet, line, column, cellText(value.toString()).constData(), formats.ofText(weight));
    if (error == LXW_ERROR_MAX_STRING_LENGTH_EXCEEDED)
      return tr("the text in row %1, column %2 is longer than a cell can be").arg(row + 1).arg(m_table.headers.at(i));
    if (error != LXW_NO_ERROR)
      return QString::fromUtf8(lxw_strerror(error));
  }
  return QString();
}

/// Why it could not be written; empty when it was.
QString WorkbookFile::fill(const QString &path, const QByteArray &folder) {
  if (m_table.rows >= LXW_ROW_MAX || m_table.headers.size() > LXW_COL_MAX)
    return tr("a sheet holds %1 rows and %2 columns at most").arg(LXW_ROW_MAX - 1).arg(LXW_COL_MAX);
  const PlainNumbers plain;
  QByteArray folderPath = folder;
  lxw_workbook_options options{};
  options.constant_memory = LXW_TRUE;
  options.tmpdir = folderPath.data();
  std::unique_ptr<lxw_workbook, CloseWorkbook> book(workbook_new_opt(QFile::encodeName(path).constData(), &options));
  lxw_worksheet *sheet = book ? workbook_add_worksheet(book.get(), nullptr) : nullptr;
  if (sheet == nullptr)
    return tr("the folder for temporary files, %1, cannot be written").arg(QFile::decodeName(folder));
  WorkbookFormats formats(*book);
  for (std::size_t i = 0; i < m_table.widths.size(); ++i)
    worksheet_set_column(sheet, static_cast<lxw_col_t>(i), static_cast<lxw_col_t>(i), m_table.widths[i], nullptr);
  worksheet_freeze_panes(sheet, 1, 1);
  for (int i = 0; i < m_table.headers.size(); ++i)
    worksheet_write_string(sheet, 0, static_cast<lxw_col_t>(i), cellText(m_table.headers.at(i)).constData(),
                           formats.ofText(WorkbookFormats::Weight::Bold));
  for (int row = 0; row < m_table.rows; ++row) {
    QString fault = writeRow(*sheet, row, formats);
    if (!fault.isEmpty())
      return fault;
  }
  const lxw_error error = workbook_close(book.release()); // frees it, whatever becomes of it
  return error == LXW_NO_ERROR ? QString() : QString::fromUtf8(lxw_strerror(error));
}

bool WorkbookFile::write(QIODevice &device, QString *reason) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("table.xlsx"));
  QString why = folder.isValid() ? fill(path, QFile::encodeName(folder.path())) : folder.errorString();
  QByteArray bytes;
  if (why.isEmpty())
    bytes = FileAccess::readWhole(path, FileAccess::Source::Trusted, FileAccess::AnySize, &why).value_or(QByteArray());
  if (why.isEmpty() && !isWhole(bytes))
    why = tr("the folder for temporary files, %1, is full").arg(QFileInfo(folder.path()).path());
  if (!why.isEmpty() && reason != nullptr)
    *reason = why;
  return why.isEmpty() && device.write(bytes) == bytes.size();
}
