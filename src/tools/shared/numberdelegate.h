#pragma once

#include <QStyledItemDelegate>

/// Shows numbers rounded for the eye. The texts of the items stay exact, for copies, filters, sorting and files; where not
/// all of it is seen, a cell's tip is its whole exact text.
class NumberDelegate : public QStyledItemDelegate {
  Q_OBJECT
public:
  /// \param propertyColumn the column that says of which property a row is: names and texts are never rounded
  explicit NumberDelegate(int propertyColumn, QObject *parent = nullptr);

  /// Whether the values of the property are names and texts, even where they look like numbers.
  static bool isOfTexts(const QString &property);

  bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                 const QModelIndex &index) override;

protected:
  void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
  int m_propertyColumn;
};
