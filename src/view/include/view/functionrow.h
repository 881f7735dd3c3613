#pragma once

#include <model/units.h>

#include <QGroupBox>

#include <memory>

namespace Ui {
class FunctionRow;
}

/// One draw function in the dialog: which one, its bounds in the display unit, absolute values and logarithmic scale.
class FunctionRow : public QGroupBox {
  Q_OBJECT
public:
  /// Bounds in the stored unit; PlotSettings::OpenMinimum and OpenMaximum for those of the data.
  struct Values {
    QString function;
    double minimum = 0.0;
    double maximum = 0.0;
    bool absolute = false;
    bool logarithmic = false;
  };

  FunctionRow(const QString &title, const QString &absoluteTip, const QStringList &functions, QWidget *parent = nullptr);
  ~FunctionRow() override;

  /// Shows the values; the "Reset" buttons come back to them.
  void setValues(const Values &values);
  Values values() const;
  void takeBoundsFromData();
  /// The unit in which the bounds are shown; what is typed stays the same number.
  void setUnit(const QString &unit, const Units::Linear &toDisplay);
  /// Says what is wrong with the bounds as they stand, empty when nothing is: a text that is no number.
  QString fault() const;

signals:
  void functionChanged(const QString &function);

private:
  QString shown(double bound, double open) const;
  double stored(const QString &text, double open) const;
  void showBounds();

  std::unique_ptr<Ui::FunctionRow> m_ui;
  Values m_stored;
  Units::Linear m_toDisplay;
};
