#include "elementtable/elementdelegate.h"

#include "elementtable/elementtablemodel.h"

#include <model/displayformat.h>

#include <QApplication>
#include <QPainter>

void ElementDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const {
  // NOLINTNEXTLINE(bugprone-parent-virtual-call): here each column is a property, not each row
  QStyledItemDelegate::initStyleOption(option, index);
  if (index.data(ElementTableModel::NumbersRole).toBool())
    option->text = DisplayFormat::shown(option->text, index.data(ElementTableModel::QuantityRole).toBool());
  if (index.data(ElementTableModel::MarkedRole).toBool())
    option->state |= QStyle::State_Selected;
  const int line = index.data(ElementTableModel::LineRole).toInt();
  if (line == RowArrangement::Line::Element)
    return;
  option->backgroundBrush = option->palette.brush(QPalette::Button);
  option->font.setBold(line == RowArrangement::Line::Head);
  option->font.setItalic(line == RowArrangement::Line::Figure);
  option->fontMetrics = QFontMetrics(option->font);
}

void ElementDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const {
  const int line = index.data(ElementTableModel::LineRole).toInt();
  if (index.column() != 0 || line == RowArrangement::Line::Element) {
    NumberDelegate::paint(painter, option, index);
    return;
  }
  QStyleOptionViewItem shown = option;
  initStyleOption(&shown, index);
  const QStyle &style = option.widget != nullptr ? *option.widget->style() : *QApplication::style();
  const QString text = shown.text;
  shown.text.clear();
  style.drawControl(QStyle::CE_ItemViewItem, &shown, painter, option.widget); // the ground
  const bool isSelected = (shown.state & QStyle::State_Selected) != 0;
  const QRect beside = shown.rect.adjusted(ArrowWidth, 0, -2, 0);
  if (line == RowArrangement::Line::Figure) {
    painter->save();
    painter->setFont(shown.font);
    painter->setPen(shown.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(beside, Qt::AlignLeft | Qt::AlignVCenter,
                      shown.fontMetrics.elidedText(text, Qt::ElideRight, beside.width()));
    painter->restore();
    return;
  }
  constexpr int Margin = 4;
  QStyleOption arrow;
  arrow.palette = shown.palette;
  arrow.state = QStyle::State_Enabled;
  arrow.rect = QRect(shown.rect.left() + Margin, shown.rect.top(), ArrowWidth - 2 * Margin, shown.rect.height());
  const auto *model = static_cast<const ElementTableModel *>(index.model());
  style.drawPrimitive(model->isCollapsed(index.row()) ? QStyle::PE_IndicatorArrowRight : QStyle::PE_IndicatorArrowDown,
                      &arrow, painter, option.widget);
}
