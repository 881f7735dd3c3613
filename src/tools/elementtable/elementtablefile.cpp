#include "elementtable/elementtablefile.h"

#include "elementtable/elementtablemodel.h"
#include "elementtable/elementtableview.h"
#include "shared/tablefiledialog.h"

#include <base/index.h>

#include <QApplication>

#include <algorithm>
#include <numeric>

using Format = TableExport::Format;

TableExport ElementTableFile::of(const std::vector<int> &lines) const {
  constexpr int PixelsPerCharacter = 7;
  constexpr int NarrowestCharacters = 8;
  TableExport table;
  for (int column = 0; column < m_model.columnCount(); ++column) {
    table.headers.append(m_model.column(column).title());
    table.widths.push_back(std::max(NarrowestCharacters, m_view.columnWidth(column) / PixelsPerCharacter));
  }
  table.rows = toQt(lines.size());
  table.value = [this, lines](int row, int column) {
    return m_model.index(lines[fromQt(row)], column).data(ElementTableModel::ValueRole);
  };
  table.isEmphasised = [this, lines](int row) {
    return m_model.line(lines[fromQt(row)]).what == RowArrangement::Line::Head;
  };
  return table;
}

bool ElementTableFile::save(const QString &path, Format format, QString *reason) const {
  std::vector<int> lines(fromQt(m_model.rowCount()));
  std::iota(lines.begin(), lines.end(), 0);
  QApplication::setOverrideCursor(Qt::WaitCursor);
  const bool isSaved = of(lines).save(path, format, reason);
  QApplication::restoreOverrideCursor();
  return isSaved;
}

void ElementTableFile::askAndSave(QWidget *parent, const QString &proposed) const {
  TableFileDialog::askAndSave(
      parent, proposed, [this](const QString &path, Format format, QString *reason) { return save(path, format, reason); });
}
