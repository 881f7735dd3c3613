#pragma once

#include <QStyledItemDelegate>

/// Paints a workspace that was opened as a card: its picture, name, folder and date.
class RecentCards final : public QStyledItemDelegate {
  Q_OBJECT
public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const final;
  QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const final;
};
