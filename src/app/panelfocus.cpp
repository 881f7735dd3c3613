#include "panelfocus.h"

#include <QAbstractItemView>
#include <QHeaderView>

namespace {

bool takesKeys(const QWidget &widget) {
  return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0;
}

/// The first child, in the order of Tab, that takes the keyboard and is what was asked for.
template <typename IsIt>
QWidget *first(QWidget &panel, const IsIt &isIt) {
  QWidget *child = &panel;
  do {
    if (child != &panel && panel.isAncestorOf(child) && takesKeys(*child) && isIt(*child))
      return child;
    child = child->nextInFocusChain();
  } while (child != &panel);
  return nullptr;
}

bool isFilledList(const QWidget &widget) {
  const auto *list = qobject_cast<const QAbstractItemView *>(&widget);
  return list != nullptr && qobject_cast<const QHeaderView *>(list) == nullptr && list->model() != nullptr &&
         list->model()->rowCount() > 0;
}

} // namespace

void PanelFocus::give(QWidget &panel) {
  QWidget *field = first(panel, isFilledList);
  if (field == nullptr)
    field = first(panel, [](const QWidget &) { return true; });
  if (field != nullptr)
    field->setFocus(Qt::TabFocusReason);
}
