#include "elementtable/elementtableview.h"

#include "elementtable/elementdelegate.h"
#include "elementtable/elementtablemodel.h"
#include "elementtable/filterheader.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

ElementTableView::ElementTableView(QWidget *parent)
    : QTableView(parent)
    , m_filters(new FilterHeader(this)) {
  constexpr int RowMargin = 6; // px around the text
  setHorizontalHeader(m_filters);
  setItemDelegate(new ElementDelegate(this));
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setAlternatingRowColors(true);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setHorizontalScrollMode(ScrollPerPixel);
  setCornerButtonEnabled(false);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + RowMargin);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setHighlightSections(false);
  setAccessibleName(tr("Table of elements"));
  connect(m_filters, &FilterHeader::entered, this, &ElementTableView::showColumn);
}

void ElementTableView::setTable(ElementTableModel *model) {
  m_model = model;
  setModel(model);
}

/// As wide as the numbers of all rows need, so that the columns stand still while a filter takes rows away.
void ElementTableView::numberRows(std::size_t count) {
  constexpr int Margins = 14; // px
  verticalHeader()->setFixedWidth(fontMetrics().horizontalAdvance(QString::number(count)) + Margins);
}

void ElementTableView::setHint(const QString &hint) {
  m_hint = hint;
  viewport()->update();
}

void ElementTableView::paintEvent(QPaintEvent *event) {
  QTableView::paintEvent(event);
  if (m_model == nullptr)
    return;
  QPainter painter(viewport());
  if (m_model->rowCount() > 0) {
    paintTitles(painter);
    return;
  }
  if (m_hint.isEmpty())
    return;
  constexpr int Margin = 12;
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.drawText(viewport()->rect().adjusted(Margin, Margin, -Margin, -Margin), Qt::AlignCenter | Qt::TextWordWrap,
                   m_hint);
}

/// Those of groups have the whole width of their row, in which nothing else stands, and stay where the row is scrolled.
void ElementTableView::paintTitles(QPainter &painter) const {
  constexpr int Margin = 4; // px
  QFont bold = font();
  bold.setBold(true);
  painter.setFont(bold);
  const QFontMetrics metrics(bold);
  for (int row = std::max(0, rowAt(0)); row < m_model->rowCount(); ++row) {
    const int top = rowViewportPosition(row);
    if (top >= viewport()->height())
      return;
    if (m_model->line(row).what != RowArrangement::Line::Head)
      continue;
    const QModelIndex at = m_model->index(row, 0);
    const int left = std::max(columnViewportPosition(0) + ElementDelegate::ArrowWidth, Margin);
    const QRect place(left, top, viewport()->width() - left - Margin, rowHeight(row));
    painter.setPen(palette().color(selectionModel()->isSelected(at) ? QPalette::HighlightedText : QPalette::ButtonText));
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                     metrics.elidedText(at.data().toString(), Qt::ElideRight, place.width()));
  }
}

void ElementTableView::collapseAll(bool areCollapsed) {
  const int top = m_model->headOf(std::min(std::max(0, rowAt(0)), m_model->rowCount() - 1));
  const Index group = top < 0 ? NoIndex : m_model->line(top).index;
  m_model->collapseAll(areCollapsed);
  for (int row = 0; row < m_model->rowCount(); ++row) {
    if (m_model->line(row).what != RowArrangement::Line::Head || m_model->line(row).index != group)
      continue;
    const QModelIndex head = m_model->index(row, 0);
    selectionModel()->setCurrentIndex(head, QItemSelectionModel::NoUpdate);
    scrollTo(head, PositionAtTop);
    return;
  }
}

bool ElementTableView::isHead(const QModelIndex &at) const {
  return at.isValid() && m_model->line(at.row()).what == RowArrangement::Line::Head;
}

/// False when there is nothing to open or close.
bool ElementTableView::toggle(const QModelIndex &at, bool isCollapsed) {
  const int head = at.isValid() ? m_model->headOf(at.row()) : -1;
  if (head < 0 || m_model->isCollapsed(head) == isCollapsed)
    return false;
  m_model->setCollapsed(head, isCollapsed);
  const QModelIndex index = m_model->index(head, at.column());
  selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
  scrollTo(index);
  return true;
}

void ElementTableView::keyPressEvent(QKeyEvent *event) {
  const QModelIndex at = currentIndex();
  const int key = event->key();
  const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
  const bool isForThePage = event->matches(QKeySequence::Copy) || // of rows; and for sorting
                            (event->modifiers() == Qt::AltModifier && (key == Qt::Key_Up || key == Qt::Key_Down));
  if (isForThePage) {
    event->ignore();
  } else if (event->modifiers() == (Qt::AltModifier | Qt::ShiftModifier) && (key == Qt::Key_Left || key == Qt::Key_Right)) {
    emit columnMoveWanted(at.column(), key == Qt::Key_Left ? -1 : 1);
  } else if (isHead(at) && (isReturn || key == Qt::Key_Space)) {
    toggle(at, !m_model->isCollapsed(at.row()));
  } else if (isHead(at) && (key == Qt::Key_Left || key == Qt::Key_Right) && toggle(at, key == Qt::Key_Left)) {
    event->accept();
  } else if (isReturn && at.isValid()) {
    const QString name = at.data(ElementTableModel::ElementRole).toString();
    if (!selectionModel()->isRowSelected(at.row(), QModelIndex()))
      setCurrentIndex(at); // the cursor had been moved without
    if (!name.isEmpty())
      emit elementActivated(name);
  } else {
    QTableView::keyPressEvent(event);
  }
}

void ElementTableView::mousePressEvent(QMouseEvent *event) {
  const QModelIndex at = indexAt(event->pos());
  const QRect box = visualRect(at);
  if (isHead(at) && at.column() == 0 && event->button() == Qt::LeftButton &&
      event->x() < box.left() + ElementDelegate::ArrowWidth) {
    toggle(at, !m_model->isCollapsed(at.row()));
    event->accept();
    return;
  }
  QTableView::mousePressEvent(event);
}

void ElementTableView::mouseDoubleClickEvent(QMouseEvent *event) {
  const QModelIndex at = indexAt(event->pos());
  if (event->button() != Qt::LeftButton || !at.isValid())
    return;
  const QString name = at.data(ElementTableModel::ElementRole).toString();
  if (isHead(at))
    toggle(at, !m_model->isCollapsed(at.row()));
  else if (!name.isEmpty())
    emit elementActivated(name);
}

/// Home and End go to the first and the last row, as in other tables of whole rows.
QModelIndex ElementTableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  if (action != MoveHome && action != MoveEnd)
    return QTableView::moveCursor(action, modifiers);
  return QTableView::moveCursor(action, modifiers | Qt::ControlModifier).siblingAtColumn(currentIndex().column());
}

void ElementTableView::showColumn(int column) {
  if (m_model != nullptr && m_model->rowCount() > 0)
    scrollTo(m_model->index(std::max(0, rowAt(0)), column));
}

void ElementTableView::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  if (dx != 0)
    m_filters->placeFields();
}
