#pragma once

#include <QStringList>
#include <QVariant>
#include <QVector>

#include <functional>
#include <vector>

/// What is shown of a table, as it leaves the program.
struct ExportedTable {
  QStringList headers;
  int rows = 0;
  /// A number (double) or a text of the cell.
  std::function<QVariant(int row, int column)> value;
  QVector<int> valueColumns; ///< whose texts are values, which get the digits and the decimal sign of files
  /// Rows that sum up others stand out where the format can show it.
  std::function<bool(int row)> isEmphasised = [](int) {
    return false;
  };
  std::vector<int> widths; ///< of the columns, in characters; empty for usual ones
};
