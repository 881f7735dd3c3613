#pragma once

#include "shared/exportedtable.h"

#include <QCoreApplication>

class QIODevice;
class QTextStream;

/// Brings tables into files and onto the clipboard. Whatever stands in a cell, no spreadsheet takes it for a formula.
class TableExport : public ExportedTable {
  Q_DECLARE_TR_FUNCTIONS(TableExport)
public:
  enum class Format {
    Workbook,   ///< ".xlsx": numbers as numbers with all of their digits, shown with those that were chosen for files
    PointCsv,   ///< decimal point, columns parted by commas
    CommaCsv,   ///< decimal comma, columns parted by semicolons
    Tabulators, ///< decimal point, columns parted by tabulators
    Quoted      ///< every cell in quotes, with a semicolon behind it; the decimal sign as the general settings say
  };
  enum class Header { Left, Written };

  /// The file whole, or what is there stays; false with the reason. \param path one that the user chose
  bool save(const QString &path, Format format, QString *reason) const;
  /// Lines of text; any format but the workbook.
  void writeRows(QTextStream &stream, Format format, Header header) const;
  /// For the clipboard, as a spreadsheet takes it.
  QString tabbed(bool withHeader) const;

private:
  bool writeText(QIODevice &device, Format format) const;
};
