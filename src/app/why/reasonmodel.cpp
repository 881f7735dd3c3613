#include "why/reasonmodel.h"

#include <QFont>

ReasonModel::ReasonModel(QObject *parent)
    : QStandardItemModel(0, ColumnCount, parent) {
  setHorizontalHeaderLabels({tr("reason"), tr("value"), tr("where")});
}

void ReasonModel::show(const std::vector<Reason> &reasons) {
  removeRows(0, rowCount());
  add(*invisibleRootItem(), reasons);
}

void ReasonModel::add(QStandardItem &parent, const std::vector<Reason> &reasons) {
  for (const Reason &reason : reasons) {
    QList<QStandardItem *> row;
    for (const QString &text : {reason.text, reason.value, reason.where}) {
      auto *item = new QStandardItem(text);
      item->setEditable(false);
      item->setData(reason.element, ElementRole);
      item->setData(reason.property.isNull() ? QString() : reason.property.name(), PropertyRole);
      row.append(item);
    }
    if (!reason.element.isEmpty()) { // as what can be followed
      QFont font;
      font.setUnderline(true);
      row.first()->setFont(font);
      for (QStandardItem *item : qAsConst(row))
        item->setToolTip(tr("Double click or Return asks why this has its value"));
    }
    add(*row.first(), reason.parts);
    parent.appendRow(row);
  }
}
