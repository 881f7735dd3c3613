#include "unitspage.h"

#include "settingsmodel.h"

#include <base/settings.h>
#include <model/displayformat.h>
#include <model/displayunits.h>
#include <model/quantities.h>

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace {

/// Of the quantities, for people.
constexpr std::array Titles{QT_TRANSLATE_NOOP("UnitsPage", "Pressure"),
                            QT_TRANSLATE_NOOP("UnitsPage", "Pressure difference"),
                            QT_TRANSLATE_NOOP("UnitsPage", "Norm volume flow"),
                            QT_TRANSLATE_NOOP("UnitsPage", "Mass flow"),
                            QT_TRANSLATE_NOOP("UnitsPage", "Energy flow"),
                            QT_TRANSLATE_NOOP("UnitsPage", "Power"),
                            QT_TRANSLATE_NOOP("UnitsPage", "Temperature"),
                            QT_TRANSLATE_NOOP("UnitsPage", "Temperature difference"),
                            QT_TRANSLATE_NOOP("UnitsPage", "Length"),
                            QT_TRANSLATE_NOOP("UnitsPage", "Height"),
                            QT_TRANSLATE_NOOP("UnitsPage", "Diameter"),
                            QT_TRANSLATE_NOOP("UnitsPage", "Wall and roughness"),
                            QT_TRANSLATE_NOOP("UnitsPage", "Velocity"),
                            QT_TRANSLATE_NOOP("UnitsPage", "Volume flow in the machine"),
                            QT_TRANSLATE_NOOP("UnitsPage", "Head"),
                            QT_TRANSLATE_NOOP("UnitsPage", "Speed"),
                            QT_TRANSLATE_NOOP("UnitsPage", "Density"),
                            QT_TRANSLATE_NOOP("UnitsPage", "Calorific value"),
                            QT_TRANSLATE_NOOP("UnitsPage", "Gas volume")};

struct Sample {
  const char *unit; ///< of the property table
  double value;
};

/// What the property table shows unless somebody chose another unit, with a value as networks have it.
const QHash<QString, Sample> &samples() {
  static const QHash<QString, Sample> all{{QStringLiteral("pressure"), {"bar", 65.25}},
                                          {QStringLiteral("pressure difference"), {"bar", 1.5}},
                                          {QStringLiteral("norm volume flow"), {"1000 m3/h", 125.5}},
                                          {QStringLiteral("mass flow"), {"kg/s", 28.4}},
                                          {QStringLiteral("energy flow"), {"MW", 1420.0}},
                                          {QStringLiteral("power"), {"MW", 12.5}},
                                          {QStringLiteral("temperature"), {"degC", 15.0}},
                                          {QStringLiteral("temperature difference"), {"K", 10.0}},
                                          {QStringLiteral("length"), {"km", 42.195}},
                                          {QStringLiteral("height"), {"m", 120.0}},
                                          {QStringLiteral("diameter"), {"mm", 900.0}},
                                          {QStringLiteral("wall and roughness"), {"mm", 0.012}},
                                          {QStringLiteral("velocity"), {"m/s", 8.0}},
                                          {QStringLiteral("volume flow in the machine"), {"m3/s", 2.5}},
                                          {QStringLiteral("head"), {"kJ/kg", 45.0}},
                                          {QStringLiteral("speed"), {"1/min", 6600.0}},
                                          {QStringLiteral("density"), {"kg/m3", 52.3}},
                                          {QStringLiteral("calorific value"), {"kWh/m3", 11.4}},
                                          {QStringLiteral("gas volume"), {"1000 m3", 250.0}}};
  return all;
}

QScrollArea *scrolled(QWidget *content) {
  auto *area = new QScrollArea;
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidget(content);
  area->setFocusPolicy(Qt::NoFocus); // the fields inside take the keys
  return area;
}

QString withUnit(const QString &number, const QString &unit) {
  const QString written = Units::written(unit);
  const bool isOfMany = written.at(0).isDigit() && written.contains(QLatin1Char(' ')); // 125.5 · 1000 m³/h
  return number + (isOfMany ? QStringLiteral(" · ") : QStringLiteral(" ")) + written;
}

} // namespace

UnitsPage::UnitsPage(SettingsModel &model, Content content, QWidget *parent)
    : QWidget(parent)
    , m_model(model) {
  auto *fields = new QWidget;
  auto *form = new QFormLayout(fields);
  content == Content::Units ? addUnits(*form) : addNumbers(*form);
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(scrolled(fields));
  connect(&m_model, &SettingsModel::edited, this, &UnitsPage::refresh);
  refresh();
}

void UnitsPage::addUnits(QFormLayout &form) {
  for (const Quantities::Quantity &quantity : Quantities::all()) {
    const auto title = std::find_if(Titles.begin(), Titles.end(), [&quantity](const char *text) {
      return quantity.name.compare(QLatin1String(text), Qt::CaseInsensitive) == 0;
    });
    addChoice(form, quantity.setting, title == Titles.end() ? quantity.name : tr(*title));
  }
}

void UnitsPage::addNumbers(QFormLayout &form) {
  const auto heading = [&form](const QString &text) {
    auto *label = new QLabel(text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    form.addRow(label);
  };
  heading(tr("On the screen"));
  addChoice(form, Settings::NumberForm.key(), tr("Count"));
  addDigits(form, Settings::NumberDigits.key(), tr("Digits"));
  addDigits(form, Settings::NumberDigitsInLabels.key(), tr("Digits in labels"));
  addChoice(form, Settings::DecimalSign.key(), tr("Decimal sign"));
  addChoice(form, Settings::Thousands.key(), tr("Between thousands"));
  m_onScreen = addSample(form, tr("Sample"));
  m_inLabels = addSample(form, tr("In labels"));
  heading(tr("In saved tables"));
  addDigits(form, Settings::NumberDigitsInFiles.key(), tr("Digits"), tr("all"));
  addChoice(form, Settings::UseComma.key(), tr("Decimal sign"));
  addChoice(form, Settings::ThousandsInFiles.key(), tr("Between thousands"));
  m_inFiles = addSample(form, tr("Sample"));
}

QLabel *UnitsPage::addRow(QFormLayout &form, const QString &title, QWidget *field, const QString &key) {
  auto *row = new QHBoxLayout;
  auto *note = new QLabel;
  note->setObjectName(QStringLiteral("sample of ") + key);
  note->setTextFormat(Qt::PlainText);
  field->setObjectName(key);
  field->setAccessibleName(title);
  field->setMinimumWidth(field->fontMetrics().averageCharWidth() * 20);
  row->addWidget(field);
  row->addWidget(note, 1);
  auto *label = new QLabel(title);
  label->setBuddy(field);
  form.addRow(label, row);
  m_notes.insert(key, note);
  return note;
}

QLabel *UnitsPage::addSample(QFormLayout &form, const QString &title) {
  auto *sample = new QLabel;
  sample->setTextFormat(Qt::PlainText);
  sample->setTextInteractionFlags(Qt::TextSelectableByMouse);
  form.addRow(title, sample);
  return sample;
}

void UnitsPage::addChoice(QFormLayout &form, const QString &key, const QString &title) {
  const SettingDescription *setting = m_model.at(m_model.find(key));
  auto *box = new QComboBox;
  for (int i = 0; i < setting->options.size(); ++i)
    box->addItem(key == Settings::UseComma.key() ? (i == 0 ? tr("point") : tr("comma")) : setting->titles.at(i),
                 setting->options.at(i));
  box->setToolTip(setting->text);
  addRow(form, title, box, key);
  m_choices.insert(key, box);
  connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this,
          [this, box, key] { m_model.set(key, box->currentData().toString()); });
}

void UnitsPage::addDigits(QFormLayout &form, const QString &key, const QString &title, const QString &ofZero) {
  const SettingDescription *setting = m_model.at(m_model.find(key));
  auto *box = new QSpinBox;
  box->setRange(static_cast<int>(setting->bounds->minimum), static_cast<int>(setting->bounds->maximum));
  box->setSpecialValueText(ofZero);
  box->setToolTip(setting->text);
  addRow(form, title, box, key);
  m_digits.insert(key, box);
  connect(box, qOverload<int>(&QSpinBox::valueChanged), this,
          [this, key](int value) { m_model.set(key, QString::number(value)); });
}

QString UnitsPage::overridden(const QString &key) const {
  const SettingDescription *setting = m_model.at(m_model.find(key));
  return m_model.draft().isOverridden(key) ? tr("the workspace says %1").arg(setting->shown(m_model.draft().value(key)))
                                           : QString();
}

void UnitsPage::refresh() {
  for (auto it = m_choices.cbegin(); it != m_choices.cend(); ++it) {
    const QSignalBlocker blocker(*it);
    (*it)->setCurrentIndex((*it)->findData(m_model.draft().own(it.key())));
  }
  for (auto it = m_digits.cbegin(); it != m_digits.cend(); ++it) {
    const QSignalBlocker blocker(*it);
    (*it)->setValue(m_model.draft().own(it.key()).toInt());
  }
  for (auto it = m_notes.cbegin(); it != m_notes.cend(); ++it)
    (*it)->setText(overridden(it.key()));
  for (const Quantities::Quantity &quantity : Quantities::all()) {
    if (QLabel *note = m_notes.value(quantity.setting))
      refreshUnitSample(quantity.name, *note);
  }
  if (m_onScreen != nullptr)
    refreshNumberSamples();
}

void UnitsPage::refreshNumberSamples() const {
  const auto valueOf = [this](const QString &key) {
    return m_model.draft().value(key);
  };
  constexpr double Many = 1234567.891;
  constexpr double Few = -0.0123456;
  const QString between = QStringLiteral("    ");
  m_onScreen->setText(DisplayFormat::sampleOnScreen(Many, valueOf) + between + DisplayFormat::sampleOnScreen(Few, valueOf));
  m_inLabels->setText(DisplayFormat::sampleInLabels(Many, valueOf) + between + DisplayFormat::sampleInLabels(Few, valueOf));
  m_inFiles->setText(DisplayFormat::sampleInFiles(QStringLiteral("1234567.891"), valueOf) + between +
                     DisplayFormat::sampleInFiles(QStringLiteral("-0.0123456"), valueOf));
}

void UnitsPage::refreshUnitSample(const QString &quantity, QLabel &note) const {
  const QString key = QStringLiteral("unit: ") + quantity;
  const auto sample = samples().constFind(quantity);
  if (sample == samples().constEnd())
    return;
  const QString wanted = m_model.draft().value(key);
  const QString from = QString::fromLatin1(sample->unit);
  const auto valueOf = [this](const QString &asked) {
    return m_model.draft().value(asked);
  };
  const DisplayUnits::Shown shown = DisplayUnits::between(quantity, from, wanted.isEmpty() ? from : wanted);
  QString text = withUnit(DisplayFormat::sampleOnScreen(shown.toDisplay(sample->value), valueOf), shown.unit);
  if (shown.unit != from)
    text = withUnit(DisplayFormat::sampleOnScreen(sample->value, valueOf), from) + QStringLiteral(" = ") + text;
  if (const QString why = overridden(key); !why.isEmpty())
    text = why + QStringLiteral(": ") + text;
  note.setText(text);
}
