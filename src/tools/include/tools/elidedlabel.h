#pragma once

#include <QLabel>

/// One line whose text is cut with "…" where there is no room for it, so that no name widens the panel; its tip is the
/// whole text. Of markup only the words are shown.
class ElidedLabel : public QLabel {
  Q_OBJECT
public:
  explicit ElidedLabel(QWidget *parent = nullptr);

  QString plainText() const;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

protected:
  bool event(QEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
};
