#include "configure/settingfields.h"

#include "configure/colorbutton.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>

#include <algorithm>

void SettingFields::bind(QSpinBox &field, int PlotSettings::*setting) {
  bind<int>(
      setting, [&field, setting](const PlotSettings &settings) { field.setValue(settings.*setting); },
      [&field] { return field.value(); });
}

void SettingFields::bind(QDoubleSpinBox &field, double PlotSettings::*setting) {
  bind<double>(
      setting, [&field, setting](const PlotSettings &settings) { field.setValue(settings.*setting); },
      [&field] { return field.value(); });
}

void SettingFields::bind(QCheckBox &field, bool PlotSettings::*setting) {
  bind<bool>(
      setting, [&field, setting](const PlotSettings &settings) { field.setChecked(settings.*setting); },
      [&field] { return field.isChecked(); });
}

void SettingFields::bind(QLineEdit &field, QString PlotSettings::*setting) {
  bind<QString>(
      setting, [&field, setting](const PlotSettings &settings) { field.setText(settings.*setting); },
      [&field] { return field.text().trimmed(); });
}

void SettingFields::bind(QComboBox &field, QString PlotSettings::*setting) {
  bind<QString>(
      setting,
      [&field, setting](const PlotSettings &settings) {
        field.setCurrentIndex(std::max(0, field.findData(settings.*setting)));
      },
      [&field] { return field.currentData().toString(); });
}

void SettingFields::bind(ColorButton &field, QColor PlotSettings::*setting) {
  bind<QColor>(
      setting, [&field, setting](const PlotSettings &settings) { field.setColor(settings.*setting); },
      [&field] { return field.color(); });
}

void SettingFields::show(const PlotSettings &settings) {
  for (const std::unique_ptr<Field> &field : m_fields)
    field->show(settings);
  for (const std::unique_ptr<Field> &field : m_fields)
    field->remember();
}

void SettingFields::readTouched(PlotSettings &settings) const {
  for (const std::unique_ptr<Field> &field : m_fields)
    field->readTouched(settings);
}
