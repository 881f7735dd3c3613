#include <tools/elidedlabel.h>
#include <tools/plaintip.h>

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QTextDocumentFragment>
#include <QToolTip>

ElidedLabel::ElidedLabel(QWidget *parent)
    : QLabel(parent) {
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QString ElidedLabel::plainText() const {
  const QString plain = textFormat() == Qt::RichText ? QTextDocumentFragment::fromHtml(text()).toPlainText() : text();
  return plain.simplified();
}

QSize ElidedLabel::sizeHint() const {
  return minimumSizeHint();
}

QSize ElidedLabel::minimumSizeHint() const {
  return {0, fontMetrics().height()};
}

bool ElidedLabel::event(QEvent *event) {
  if (event->type() != QEvent::ToolTip)
    return QLabel::event(event);
  QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), PlainTip::of(plainText()), this);
  return true;
}

void ElidedLabel::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  const QString shown = fontMetrics().elidedText(plainText(), Qt::ElideRight, width());
  style()->drawItemText(&painter, rect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), shown, foregroundRole());
}
