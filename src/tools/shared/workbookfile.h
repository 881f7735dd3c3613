#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

struct lxw_worksheet;
class QIODevice;
class WorkbookFormats;
struct ExportedTable;

/// Writes a table as a workbook (".xlsx") with one sheet: the header bold and, with the first column, always in sight.
///
/// The library writes into files of its own in the folder for temporary files. What a full disk cuts off of them it does not
/// notice, so the workbook is looked through before it is handed on.
class WorkbookFile {
  Q_DECLARE_TR_FUNCTIONS(WorkbookFile)
public:
  explicit WorkbookFile(const ExportedTable &table)
      : m_table(table) {}

  /// False with the reason.
  bool write(QIODevice &device, QString *reason);

  /// Whether every part of an archive is there as a whole document.
  static bool isWhole(const QByteArray &archive);

private:
  QString fill(const QString &path, const QByteArray &folder);
  QString writeRow(lxw_worksheet &sheet, int row, WorkbookFormats &formats);

  const ExportedTable &m_table;
};
