#pragma once

#include <QStyledItemDelegate>

/// Paints how numbers are spread, as FunctionModel::BinsRole has it, in bars.
class HistogramDelegate : public QStyledItemDelegate {
  Q_OBJECT
public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
  QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
