#include "configure/functionrow.h"

#include "ui_functionrow.h"

#include <drawing/drawfunctions.h>
#include <drawing/plotsettings.h>
#include <model/displayformat.h>

#include <QCompleter>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

#include <algorithm>
#include <cmath>

namespace {

constexpr int DescriptionRole = Qt::UserRole;

bool isNumber(const QString &text, QChar sign) {
  bool isOne = false;
  DisplayFormat::typed(text, sign).toDouble(&isOne);
  return isOne || text.trimmed().isEmpty();
}

/// As TypedBounds::OfFunctions has it, whether the function goes by its name or by its property.
QString keyOf(const QString &function) {
  return DrawFunction::propertyName(function.trimmed()).toLower();
}

/// With as many digits as it takes to mean the same again.
template <typename Means>
QString shortest(double number, Means meansTheSame) {
  constexpr int FewestDigits = 10;
  constexpr int MostDigits = 17; // that a number has
  QString text;
  for (int digits = FewestDigits; digits <= MostDigits; ++digits) {
    text = QString::number(number, 'g', digits);
    if (meansTheSame(text.toDouble()))
      break;
  }
  return text;
}

/// Shows in the list what stands behind a short name; the field itself keeps to the name.
class DescribedNames : public QStyledItemDelegate {
public:
  using QStyledItemDelegate::QStyledItemDelegate;

protected:
  void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const QString description = index.data(DescriptionRole).toString();
    if (!description.isEmpty())
      option->text += QStringLiteral("  –  ") + description;
  }
};

} // namespace

FunctionRow::FunctionRow(const QString &title, const QString &absoluteTip, UnitOf unitOf, QWidget *parent)
    : QGroupBox(parent)
    , m_ui(std::make_unique<Ui::FunctionRow>())
    , m_unitOf(std::move(unitOf)) {
  m_ui->setupUi(this);
  setTitle(title);
  m_ui->note->hide();
  m_ui->absolute->setToolTip(absoluteTip);
  m_ui->function->setMinimumContentsLength(10);
  m_ui->function->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  // Completed in place, a name that another one begins with could not be typed.
  m_ui->function->completer()->setCompletionMode(QCompleter::PopupCompletion);
  m_ui->function->setItemDelegate(new DescribedNames(m_ui->function));
  connect(m_ui->resetMinimum, &QPushButton::clicked, this,
          [this] { m_ui->minimum->setText(DisplayFormat::editable(inUnit(m_applied.value(m_function)).minimum)); });
  connect(m_ui->resetMaximum, &QPushButton::clicked, this,
          [this] { m_ui->maximum->setText(DisplayFormat::editable(inUnit(m_applied.value(m_function)).maximum)); });
  connect(m_ui->choose, &QPushButton::clicked, this, &FunctionRow::choiceWanted);
  connect(m_ui->fromData, &QPushButton::clicked, this, &FunctionRow::takeBoundsFromData);
  connect(m_ui->function, &QComboBox::currentTextChanged, this, &FunctionRow::changeFunction);
}

FunctionRow::~FunctionRow() = default;

void FunctionRow::setChoices(const QStringList &names, const QHash<QString, QString> &described) {
  const QSignalBlocker blocker(m_ui->function);
  const QString chosen = m_ui->function->currentText();
  m_ui->function->clear();
  for (const QString &name : names)
    m_ui->function->addItem(name, described.value(name));
  m_ui->function->setCurrentText(chosen);
}

void FunctionRow::chooseFunction(const QString &name) {
  m_ui->function->setCurrentText(name);
}

QStringList FunctionRow::choices() const {
  QStringList names;
  for (int i = 0; i < m_ui->function->count(); ++i)
    names.append(m_ui->function->itemText(i));
  return names;
}

void FunctionRow::setFunction(const PlotSettings::Function &function) {
  const QSignalBlocker blocker(m_ui->function);
  m_ui->function->setCurrentText(function.name);
  m_ui->absolute->setChecked(function.isAbsolute);
  m_ui->logarithmic->setChecked(function.isLogarithmic);
  m_function = keyOf(function.name);
  m_unit = m_unitOf(function.name);
  m_typed = function.typed;
  TypedBounds bounds = inUnit(m_typed.value(m_function));
  bounds = {written(function.minimum, PlotSettings::OpenMinimum, bounds.minimum),
            written(function.maximum, PlotSettings::OpenMaximum, bounds.maximum), m_unit.name};
  show(bounds);
  m_applied = typedBounds();
}

void FunctionRow::changeFunction(const QString &function) {
  m_typed = typedBounds();
  m_function = keyOf(function);
  m_unit = m_unitOf(function.trimmed());
  show(inUnit(m_typed.value(m_function)));
  setNote(QString());
  emit functionChosen();
}

void FunctionRow::changeUnit() {
  m_typed = typedBounds();
  m_unit = m_unitOf(m_ui->function->currentText().trimmed());
  show(inUnit(m_typed.value(m_function)));
}

PlotSettings::Function FunctionRow::function() const {
  return {m_ui->function->currentText().trimmed(),
          m_ui->absolute->isChecked(),
          m_ui->logarithmic->isChecked(),
          stored(shownBounds().minimum, PlotSettings::OpenMinimum),
          stored(shownBounds().maximum, PlotSettings::OpenMaximum),
          typedBounds()};
}

TypedBounds::OfFunctions FunctionRow::typedBounds() const {
  TypedBounds::OfFunctions typed = m_typed;
  const TypedBounds shown = shownBounds();
  if (shown.isOpen())
    typed.remove(m_function);
  else
    typed.insert(m_function, shown);
  return typed;
}

void FunctionRow::takeBoundsFromData() {
  m_ui->minimum->clear();
  m_ui->maximum->clear();
}

void FunctionRow::forgetBounds() {
  takeBoundsFromData();
  m_typed.clear();
}

QString FunctionRow::fault() const {
  for (const QLineEdit *field : {m_ui->minimum, m_ui->maximum}) {
    if (!isNumber(field->text(), m_sign))
      return tr("%1: \"%2\" is no number.").arg(title(), field->text());
  }
  return QString();
}

void FunctionRow::setNote(const QString &text) {
  m_ui->note->setText(text);
  m_ui->note->setVisible(!text.isEmpty());
}

TypedBounds FunctionRow::shownBounds() const {
  return {DisplayFormat::typed(m_ui->minimum->text(), m_sign), DisplayFormat::typed(m_ui->maximum->text(), m_sign),
          m_unit.name};
}

void FunctionRow::show(const TypedBounds &bounds) {
  m_ui->unit->setText(m_unit.name.isEmpty() ? QString() : QLatin1Char('[') + Units::written(m_unit.name) + QLatin1Char(']'));
  m_sign = DisplayFormat::decimalSign();
  m_ui->minimum->setText(DisplayFormat::editable(bounds.minimum));
  m_ui->maximum->setText(DisplayFormat::editable(bounds.maximum));
}

/// What was typed in another unit, as since the table of properties changed, is the same value in this one.
TypedBounds FunctionRow::inUnit(const TypedBounds &typed) const {
  if (typed.unit == m_unit.name || typed.isOpen())
    return typed;
  const auto conversion = Units::conversion(typed.unit, m_unit.name);
  if (!conversion)
    return {};
  const auto converted = [&conversion](const QString &text) {
    bool isOne = false;
    const double number = text.toDouble(&isOne);
    return isOne ? shortest((*conversion)(number), [&](double shown) { return conversion->inverse(shown) == number; })
                 : QString();
  };
  return {converted(typed.minimum), converted(typed.maximum), m_unit.name};
}

/// As it was typed, as long as that is still what the bound says.
QString FunctionRow::written(double bound, double open, const QString &typed) const {
  if (bound == open)
    return QString();
  const double meant = stored(typed, open);
  constexpr double Rounding = 1e-15; // of the conversion between units
  if (meant != open && std::abs(meant - bound) <= Rounding * std::max(std::abs(bound), std::abs(meant)))
    return typed;
  return shortest(m_unit.toDisplay(bound), [&](double shown) { return m_unit.toDisplay.inverse(shown) == bound; });
}

double FunctionRow::stored(const QString &text, double open) const {
  bool isOne = false;
  const double number = text.trimmed().toDouble(&isOne);
  return isOne ? m_unit.toDisplay.inverse(number) : open;
}
