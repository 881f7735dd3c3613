#include <tools/filterfield.h>

void FilterField::showEvent(QShowEvent *event) {
  setClearButtonEnabled(true);
  QLineEdit::showEvent(event);
}
