#include "properties/plotlabelview.h"

#include <markup/closeddocument.h>

#include <QAbstractTextDocumentLayout>
#include <QPainter>

PlotLabelView::PlotLabelView(QWidget *parent)
    : QFrame(parent)
    , m_document(std::make_unique<ClosedDocument>()) {
  m_document->setDocumentMargin(0.0);
  QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

PlotLabelView::~PlotLabelView() = default;

void PlotLabelView::setLabel(const QString &html, const QFont &font, const QColor &color, const QColor &background) {
  m_document->setDefaultFont(font);
  m_document->setHtml(html);
  m_color = color;
  m_background = background;
  updateGeometry();
  update();
}

void PlotLabelView::clear() {
  setLabel(QString(), font(), palette().color(QPalette::WindowText));
}

QString PlotLabelView::plainText() const {
  return m_document->toPlainText();
}

QSize PlotLabelView::sizeHint() const {
  return {0, heightForWidth(width())};
}

int PlotLabelView::heightForWidth(int width) const {
  if (m_document->isEmpty())
    return 0;
  m_document->setTextWidth(width);
  return static_cast<int>(m_document->size().height() + 1.0);
}

void PlotLabelView::paintEvent(QPaintEvent *) {
  if (m_document->isEmpty())
    return;
  QPainter painter(this);
  if (m_background.isValid())
    painter.fillRect(rect(), m_background);
  m_document->setTextWidth(width());
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette.setColor(QPalette::Text, m_color);
  m_document->documentLayout()->draw(&painter, context);
}
