#pragma once

#include "shared/numberdelegate.h"

/// Cells of the element table: numbers rounded for the eye, rows marked that are selected in the drawing, heads and figures
/// of groups set apart. The titles of groups are left to the view, as they need more than a cell.
class ElementDelegate : public NumberDelegate {
  Q_OBJECT
public:
  static constexpr int ArrowWidth = 18; ///< px, at the left of the head of a group

  explicit ElementDelegate(QObject *parent = nullptr)
      : NumberDelegate(-1, parent) {}

  void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
  void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};
