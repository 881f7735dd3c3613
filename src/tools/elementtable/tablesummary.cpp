#include "elementtable/tablesummary.h"

#include "elementtable/elementtablemodel.h"
#include "elementtable/elementtableview.h"

#include <model/displayformat.h>

TableSummary::TableSummary(const ElementTableView &view, const ElementTableModel &model)
    : m_view(view)
    , m_model(model) {
  setObjectName(QStringLiteral("tableSummary"));
  setTextFormat(Qt::PlainText);
}

/// That of the cursor when it holds numbers, else the sorted one, else the one that holds most.
int TableSummary::column() const {
  for (const int column : {m_view.currentIndex().column(), m_model.sortedColumn()}) {
    if (column >= 0 && column < m_model.columnCount() && m_model.column(column).hasNumbers())
      return column;
  }
  int fullest = -1;
  std::size_t most = 0;
  for (int column = 0; column < m_model.columnCount(); ++column) {
    const std::size_t count = m_model.column(column).numberCount();
    if (count <= most)
      continue;
    most = count;
    fullest = column;
  }
  return fullest;
}

QString TableSummary::figuresOf(int column) const {
  const std::vector<Index> marked = m_model.markedRows();
  const bool isOfMarked = marked.size() > 1; // one row is what was clicked last
  const std::vector<double> &numbers = m_model.column(column).numbers();
  ColumnFigures figures;
  for (const Index row : isOfMarked ? marked : m_model.arrangement().passing())
    figures.add(numbers[row]);
  QStringList parts;
  for (const ColumnFigures::Kind kind : ColumnFigures::kinds()) {
    const double value = figures.value(kind);
    parts.append(ColumnFigures::title(kind) + QLatin1Char(' ') +
                 (std::isnan(value) ? QStringLiteral("–") : DisplayFormat::number(value)));
  }
  const QString title = m_model.column(column).title();
  const QString text = parts.join(QStringLiteral(" · "));
  return isOfMarked ? tr("%1 of the selected: %2").arg(title, text) : tr("%1: %2").arg(title, text);
}

void TableSummary::tell() {
  const auto shown = static_cast<qulonglong>(m_model.arrangement().passing().size());
  const auto all = static_cast<qulonglong>(m_model.elementCount());
  const auto marked = static_cast<qulonglong>(m_model.markedRows().size());
  QString text = shown == all ? tr("%1 elements").arg(all) : tr("%1 of %2 elements").arg(shown).arg(all);
  if (marked > 0)
    text += tr(", %1 selected").arg(marked);
  const int of = column();
  if (of >= 0)
    text += QStringLiteral(" · ") + figuresOf(of);
  setText(text);
}
