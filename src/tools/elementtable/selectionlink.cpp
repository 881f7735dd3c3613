#include "elementtable/selectionlink.h"

#include "elementtable/elementtablemodel.h"
#include "elementtable/elementtableview.h"

#include <model/netdata.h>
#include <model/topology.h>

#include <QItemSelectionModel>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

SelectionLink::SelectionLink(NetData &net, ElementTableView &view, ElementTableModel &model)
    : QObject(&view)
    , m_net(net)
    , m_view(view)
    , m_model(model)
    , m_telling(OncePerTurn::Stage::Draw, [this] { tell(); }) {
  connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    if (!m_isMirroring)
      m_telling.request();
  });
  connect(view.selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex &current) {
    if (m_isMirroring || !current.isValid())
      return;
    m_current = current.data(ElementTableModel::ElementRole).toString();
    m_currentColumn = current.column();
    if (!m_current.isEmpty())
      emit currentChanged(m_current);
  });
  connect(&model, &QAbstractItemModel::modelReset, this, &SelectionLink::mirror);
}

std::vector<int> SelectionLink::selectedLines() const {
  std::vector<int> lines;
  const QItemSelection ranges = m_view.selectionModel()->selection();
  for (const QItemSelectionRange &range : ranges) {
    for (int line = range.top(); line <= range.bottom(); ++line)
      lines.push_back(line);
  }
  std::sort(lines.begin(), lines.end());
  lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
  return lines;
}

std::vector<int> SelectionLink::lines() const {
  std::vector<int> lines = selectedLines();
  std::vector<bool> isTaken(fromQt(m_model.rowCount()));
  for (const int line : lines)
    isTaken[fromQt(line)] = true;
  for (int line = 0; line < m_model.rowCount(); ++line) {
    if (!isTaken[fromQt(line)] && m_model.isMarked(line))
      lines.push_back(line);
  }
  std::sort(lines.begin(), lines.end());
  return lines;
}

void SelectionLink::tell() {
  Selection selection;
  for (const int line : selectedLines()) {
    for (const QString &name : m_model.elementsOf(line))
      Topology::select(m_net, name, selection);
  }
  if (selection == m_net.selection())
    return;
  m_told = selection;
  emit selected(selection);
}

bool SelectionLink::show() {
  const Selection selection = m_net.selection();
  m_telling.cancel();
  m_model.mark(selection);
  if (selection == m_told)
    return false;
  m_told = Selection();
  m_current.clear();
  mirror();
  return true;
}

/// After the rows were laid out anew, or others marked.
void SelectionLink::mirror() {
  constexpr std::size_t MostRanges = 500;
  const QScopedValueRollback<bool> guard(m_isMirroring, true);
  std::vector<std::pair<int, int>> ranges;
  for (int line = 0; line < m_model.rowCount(); ++line) {
    if (!m_model.isMarked(line))
      continue;
    if (!ranges.empty() && ranges.back().second == line - 1)
      ranges.back().second = line;
    else
      ranges.emplace_back(line, line);
  }
  QItemSelection selection;
  const int lastColumn = m_model.columnCount() - 1;
  if (ranges.size() <= MostRanges) {
    for (const auto &[first, last] : ranges)
      selection.append(QItemSelectionRange(m_model.index(first, 0), m_model.index(last, lastColumn)));
  }
  m_view.clearSelection();
  m_view.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  const int before = m_current.isEmpty() ? -1 : m_model.lineOf(m_current);
  const int current = before >= 0 ? before : ranges.empty() ? -1 : ranges.front().first;
  if (current < 0)
    return;
  const QModelIndex index = m_model.index(current, std::min(m_currentColumn, lastColumn));
  m_view.setAutoScroll(false);
  m_view.selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
  m_view.setAutoScroll(true);
  if (!m_model.isMarked(current))
    return; // where the cursor merely stood nobody looks for it
  const int across = m_view.horizontalScrollBar()->value();
  m_view.scrollTo(index);
  m_view.horizontalScrollBar()->setValue(across); // where a person types a filter
}
