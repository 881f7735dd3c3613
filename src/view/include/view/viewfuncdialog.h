#pragma once

#include <view/functionrow.h>

#include <QWidget>

#include <drawing/drawvalues.h>
#include <drawing/plotsettings.h>
#include <memory>

class LabelTableEditor;
class NetPlot;
class QPushButton;

namespace Ui {
class viewFuncDialog;
}

/// "Configure Draw": which draw functions colour and size the elements, how the scales look, and how labels do.
class viewFuncDialog : public QWidget {
  Q_OBJECT
public:
  explicit viewFuncDialog(NetPlot &plot, QWidget *parent = nullptr);
  ~viewFuncDialog() override;

  /// Where "Apply and Save" writes to, and "Saved settings" reads from.
  void setFiles(const QString &labelTable, const QString &plotSettings);
  /// Shows how the plot is drawn now.
  void refresh();
  /// Takes all bounds of the draw functions from the data.
  void resetMinMaxColorFuncValues();

public slots:
  void on_apply_clicked();
  void on_applyAndSave_clicked();
  void on_load_clicked();
  void on_savedSettings_clicked();
  void on_resetMinMax_clicked() { resetMinMaxColorFuncValues(); }
  void on_addTemplate_clicked();
  void on_applyTemplate_clicked();
  void on_deleteRow_clicked();

protected:
  void showEvent(QShowEvent *event) override;

private:
  struct ColorButton {
    QPushButton *button;
    QColor PlotSettings::*color;
    QColor chosen{};

    void show(const QColor &shown);
  };

  bool apply();
  void draw(const PlotSettings &before, const LabelTable &labels);
  void offerSavedSettings();
  bool checkBounds(PlotSettings &form) const;
  PlotSettings form() const;
  void readSizes(PlotSettings &form) const;
  void showForm(const PlotSettings &settings);
  FunctionRow::Unit unitOf(const QString &function) const;
  static QString noteOn(const DrawValues::Column &values, const PlotSettings::Function &function);
  void showNotes(const PlotSettings &settings);
  void offerFunctions();
  void fillChoices();
  void setUpColors();

  NetPlot &m_plot;
  std::unique_ptr<Ui::viewFuncDialog> m_ui;
  PerAspect<FunctionRow *> m_rows{};
  std::vector<ColorButton> m_colors;
  PlotSettings m_shown; ///< what the fields said before anybody touched them
  LabelTableEditor *m_labels;
  QString m_labelTablePath;
  QString m_plotSettingsPath;
};
