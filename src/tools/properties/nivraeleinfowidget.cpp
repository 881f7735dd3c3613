#include "ui_nivraeleinfowidget.h"

#include <model/element.h>
#include <model/names.h>
#include <tools/nivraeleinfowidget.h>

NivraEleInfoWidget::NivraEleInfoWidget(LabelOf labelOf, QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::NivraEleInfoWidget>())
    , m_labelOf(std::move(labelOf)) {
  m_ui->setupUi(this);
  m_ui->labelContents->setLabel(tr("(Element Label shown here)"), font(), palette().color(QPalette::WindowText));
}

NivraEleInfoWidget::~NivraEleInfoWidget() = default;

void NivraEleInfoWidget::reset() {
  m_ui->labelElement->setText(tr("   No element marked!   "));
  m_ui->labelSubnet->setText(tr("   No subnet marked!   "));
  m_ui->labelContents->clear();
  m_ui->labelBounds->clear();
}

QString NivraEleInfoWidget::bounds(const QString &info) {
  QString text = info;
  if (text.startsWith(QLatin1Char('(')))
    text.remove(0, 1);
  if (text.endsWith(QLatin1Char(')')))
    text.chop(1);
  text = text.trimmed();
  if (text.endsWith(QLatin1Char(';')))
    text.chop(1);
  QStringList lines = text.split(QLatin1Char(';'));
  for (QString &line : lines)
    line = line.toHtmlEscaped(); // "p = 45 < 48 bar" is no markup
  return lines.join(QStringLiteral("<br/>"));
}

void NivraEleInfoWidget::showEleLabel(const element *e) {
  m_ui->labelContents->clear();
  m_ui->labelBounds->clear();
  if (e == nullptr)
    return;
  m_ui->labelElement->setText(tr("   <b>Element: %1</b>   ").arg(e->value(Names::all().name).toHtmlEscaped()));
  const PlotLabel label = m_labelOf ? m_labelOf(*e) : PlotLabel();
  if (!label.text.isEmpty())
    m_ui->labelContents->setLabel(label.text, label.font, label.color,
                                  label.background == QColor(Qt::black) ? QColor() : label.background);
  m_ui->labelBounds->setText(bounds(e->value(Names::all().violations)));
}

void NivraEleInfoWidget::showSubLabel(const element *e) {
  if (e != nullptr)
    m_ui->labelSubnet->setText(tr("   <b>Subnet: %1</b>   ").arg(e->value(Names::all().name).toHtmlEscaped()));
}
