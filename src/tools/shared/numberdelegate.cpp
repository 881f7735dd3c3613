#include "shared/numberdelegate.h"

#include "shared/namedelement.h"

#include <model/displayformat.h>
#include <model/netmetadata.h>
#include <tools/plaintip.h>

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

namespace {

bool isQuantity(const QString &property) {
  const NetMetaData::Attribute *attribute = NetMetaData::instance().anyAttribute(property);
  return attribute != nullptr && !attribute->storedUnit.isEmpty();
}

} // namespace

NumberDelegate::NumberDelegate(int propertyColumn, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_propertyColumn(propertyColumn) {}

bool NumberDelegate::isOfTexts(const QString &property) {
  const PropertyKey key = PropertyKey::find(property);
  return namesElements(key) || key == Names::all().type || property == QLatin1String("alias") ||
         property.startsWith(QLatin1String("vis.")) || property.endsWith(QLatin1String(".text"));
}

void NumberDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  const QString property = index.sibling(index.row(), m_propertyColumn).data().toString();
  if (!isOfTexts(property))
    option->text = DisplayFormat::shown(option->text, isQuantity(property));
}

bool NumberDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                               const QModelIndex &index) {
  if (event->type() != QEvent::ToolTip)
    return QStyledItemDelegate::helpEvent(event, view, option, index);
  constexpr int Margins = 8; // px around a text in its cell
  const QString exact = index.data().toString();
  QStyleOptionViewItem shown = option;
  initStyleOption(&shown, index);
  const bool isWhole =
      shown.text == exact && shown.fontMetrics.horizontalAdvance(exact) + Margins <= view->visualRect(index).width();
  QToolTip::showText(event->globalPos(), isWhole ? QString() : PlainTip::of(exact), view->viewport(),
                     view->visualRect(index));
  return true;
}
