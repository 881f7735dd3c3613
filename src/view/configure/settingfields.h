#pragma once

#include <drawing/plotsettings.h>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class ColorButton;
class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLineEdit;
class QSpinBox;

/// Ties the fields of a form to the plot settings behind them.
///
/// What holds: a setting changes only when its field says something else than when it was shown, for a field shows fewer
/// digits, and has narrower limits, than the setting may have.
class SettingFields {
public:
  void bind(QSpinBox &field, int PlotSettings::*setting);
  void bind(QDoubleSpinBox &field, double PlotSettings::*setting);
  void bind(QCheckBox &field, bool PlotSettings::*setting);
  void bind(QLineEdit &field, QString PlotSettings::*setting);
  void bind(QComboBox &field, QString PlotSettings::*setting); ///< by the data of its entries; another text is the first
  void bind(ColorButton &field, QColor PlotSettings::*setting);
  /// Any other field. \param read nothing when the field has nothing to say of the setting
  template <typename T>
  void bind(T PlotSettings::*setting, std::function<void(const PlotSettings &)> show,
            std::function<std::optional<T>()> read) {
    m_fields.push_back(std::make_unique<FieldOf<T>>(setting, std::move(show), std::move(read)));
  }

  void show(const PlotSettings &settings);
  /// Changes the settings whose fields were touched since they were shown.
  void readTouched(PlotSettings &settings) const;

private:
  class Field {
  public:
    explicit Field(std::function<void(const PlotSettings &)> showIn)
        : show(std::move(showIn)) {}
    virtual ~Field() = default;
    virtual void remember() = 0; ///< what the field says
    virtual void readTouched(PlotSettings &settings) const = 0;

    std::function<void(const PlotSettings &)> show;
  };

  template <typename T>
  class FieldOf final : public Field {
  public:
    FieldOf(T PlotSettings::*setting, std::function<void(const PlotSettings &)> showIn,
            std::function<std::optional<T>()> readFrom)
        : Field(std::move(showIn))
        , m_setting(setting)
        , m_read(std::move(readFrom)) {}

    void remember() final { m_shown = m_read(); }
    void readTouched(PlotSettings &settings) const final {
      if (const std::optional<T> typed = m_read(); typed && typed != m_shown)
        settings.*m_setting = *typed;
    }

  private:
    T PlotSettings::*m_setting;
    std::function<std::optional<T>()> m_read;
    std::optional<T> m_shown;
  };

  std::vector<std::unique_ptr<Field>> m_fields;
};
