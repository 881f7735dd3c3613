#include "ui_functionrow.h"

#include <view/drawfunctions.h>
#include <view/functionrow.h>
#include <view/plotsettings.h>

namespace {

bool isNumber(const QString &text) {
  bool isOne = false;
  text.trimmed().toDouble(&isOne);
  return isOne || text.trimmed().isEmpty();
}

} // namespace

FunctionRow::FunctionRow(const QString &title, const QString &absoluteTip, const QStringList &functions, QWidget *parent)
    : QGroupBox(parent)
    , m_ui(std::make_unique<Ui::FunctionRow>()) {
  m_ui->setupUi(this);
  setTitle(title);
  m_ui->function->addItems(functions);
  m_ui->absolute->setToolTip(absoluteTip);
  m_ui->function->setMinimumContentsLength(10);
  m_ui->function->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  connect(m_ui->resetMinimum, &QPushButton::clicked, this,
          [this] { m_ui->minimum->setText(shown(m_stored.minimum, PlotSettings::OpenMinimum)); });
  connect(m_ui->resetMaximum, &QPushButton::clicked, this,
          [this] { m_ui->maximum->setText(shown(m_stored.maximum, PlotSettings::OpenMaximum)); });
  connect(m_ui->fromData, &QPushButton::clicked, this, &FunctionRow::takeBoundsFromData);
  connect(m_ui->function, &QComboBox::currentTextChanged, this, &FunctionRow::functionChanged);
}

FunctionRow::~FunctionRow() = default;

void FunctionRow::setValues(const Values &values) {
  m_stored = values;
  m_ui->function->setCurrentText(values.function);
  m_ui->absolute->setChecked(values.absolute);
  m_ui->logarithmic->setChecked(values.logarithmic);
  showBounds();
}

FunctionRow::Values FunctionRow::values() const {
  return {m_ui->function->currentText().trimmed(), stored(m_ui->minimum->text(), PlotSettings::OpenMinimum),
          stored(m_ui->maximum->text(), PlotSettings::OpenMaximum), m_ui->absolute->isChecked(),
          m_ui->logarithmic->isChecked()};
}

void FunctionRow::takeBoundsFromData() {
  m_ui->minimum->clear();
  m_ui->maximum->clear();
}

void FunctionRow::setUnit(const QString &unit, const Units::Linear &toDisplay) {
  const bool isOther = toDisplay.factor != m_toDisplay.factor || toDisplay.offset != m_toDisplay.offset;
  m_toDisplay = toDisplay;
  m_ui->unit->setText(unit);
  if (isOther)
    showBounds();
}

QString FunctionRow::fault() const {
  for (const QLineEdit *field : {m_ui->minimum, m_ui->maximum}) {
    if (!isNumber(field->text()))
      return tr("%1: \"%2\" is no number.").arg(title(), field->text());
  }
  return QString();
}

QString FunctionRow::shown(double bound, double open) const {
  constexpr int Digits = 10;
  return bound == open ? QString() : QString::number(m_toDisplay(bound), 'g', Digits);
}

double FunctionRow::stored(const QString &text, double open) const {
  bool isOne = false;
  const double number = text.trimmed().toDouble(&isOne);
  return isOne ? (number - m_toDisplay.offset) / m_toDisplay.factor : open;
}

void FunctionRow::showBounds() {
  m_ui->minimum->setText(shown(m_stored.minimum, PlotSettings::OpenMinimum));
  m_ui->maximum->setText(shown(m_stored.maximum, PlotSettings::OpenMaximum));
}
