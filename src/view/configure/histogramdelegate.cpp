#include "configure/histogramdelegate.h"

#include "configure/functionmodel.h"

#include <QApplication>
#include <QPainter>
#include <QVector>

#include <algorithm>

void HistogramDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const {
  constexpr int Margin = 3;           // px
  constexpr double SmallestBar = 1.5; // px, so that few elements are seen beside many
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
  const auto bins = index.data(FunctionModel::BinsRole).value<QVector<int>>();
  const int most = bins.isEmpty() ? 0 : *std::max_element(bins.begin(), bins.end());
  if (most == 0)
    return;
  const bool isSelected = (option.state & QStyle::State_Selected) != 0;
  const QRectF area = QRectF(option.rect).adjusted(Margin, Margin, -Margin, -Margin);
  const double width = area.width() / bins.size();
  painter->save();
  painter->setPen(Qt::NoPen);
  painter->setBrush(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Highlight));
  for (int i = 0; i < bins.size(); ++i) {
    if (bins[i] == 0)
      continue;
    const double height = std::max(SmallestBar, area.height() * bins[i] / most);
    painter->drawRect(QRectF(area.left() + i * width, area.bottom() - height, std::max(1.0, width - 1.0), height));
  }
  painter->restore();
}

QSize HistogramDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const {
  constexpr int Width = 110;
  return {Width, QStyledItemDelegate::sizeHint(option, index).height()};
}
