#include "shared/numberdelegate.h"

#include "shared/namedelement.h"

#include <model/displayformat.h>
#include <tools/plaintip.h>

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

#include <cmath>

namespace {

/// Digits of a number as it is written, without the zeros before the first other one. None when it is no plain number.
int significantDigits(const QString &text) {
  int digits = 0;
  for (const QChar c : text) {
    if (c == QLatin1Char('e') || c == QLatin1Char('E'))
      break;
    if (c >= QLatin1Char('0') && c <= QLatin1Char('9'))
      digits += digits > 0 || c != QLatin1Char('0') ? 1 : 0;
    else if (c != QLatin1Char('.') && c != QLatin1Char('-') && c != QLatin1Char('+'))
      return 0;
  }
  return digits;
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

QString NumberDelegate::forTheEye(const QString &text) {
  if (text.size() <= DisplayFormat::Digits || significantDigits(text) <= DisplayFormat::Digits)
    return text;
  bool isNumber = false;
  const double number = text.toDouble(&isNumber);
  const bool hasFraction = text.contains(QLatin1Char('.')) || text.contains(QLatin1Char('e'), Qt::CaseInsensitive);
  return isNumber && hasFraction && std::isfinite(number) ? DisplayFormat::number(number) : text;
}

void NumberDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  const QString shown = forTheEye(option->text);
  if (shown != option->text && !isOfTexts(index.sibling(index.row(), m_propertyColumn).data().toString()))
    option->text = shown;
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
