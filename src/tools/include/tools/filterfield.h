#pragma once

#include <QLineEdit>

/// A field with a button that clears it. The button comes when the field is shown: it fades in, which nobody would see
/// before and which outlives a field that goes at once.
class FilterField : public QLineEdit {
  Q_OBJECT
public:
  using QLineEdit::QLineEdit;

protected:
  void showEvent(QShowEvent *event) override;
};
