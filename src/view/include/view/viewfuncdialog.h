#pragma once

#include <drawing/drawfunctions.h>
#include <drawing/labeltable.h>

#include <QWidget>

#include <memory>

class FunctionsPage;
class LabelTableEditor;
class NetPlot;
class SettingFields;
struct PlotSettings;

namespace Ui {
class viewFuncDialog;
}

/// "Configure Draw": which draw functions colour and size the elements, how the scales look, and how labels do.
class viewFuncDialog : public QWidget {
  Q_OBJECT
public:
  explicit viewFuncDialog(NetPlot &plot, QWidget *parent = nullptr);
  ~viewFuncDialog() override;

  /// Where "Apply and Save" writes to, and "Saved settings" reads from; to be told when a case was opened.
  /// \param read what was found of the label table then: that may be overwritten without a question
  void setFiles(const QString &labelTable, const LabelTableFile::Reading &read, const QString &plotSettings);
  /// Shows how the plot is drawn now.
  void refresh();
  /// Shows units and numbers as they were chosen in the settings since; what was typed and not applied stays.
  void changeUnits();
  /// Something was typed or chosen that is not applied yet.
  bool hasUnapplied() const;
  /// The same without the label table, of which a person may be changing something.
  void showSettings();
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
  bool apply();
  void followPlot();
  void draw(const PlotSettings &before, const LabelTable &labels);
  void offerSavedSettings();
  bool readLabels(const QString &path, FileAccess::Source source, LabelTable &labels);
  bool mayOverwriteLabels() const;
  void limitWidth();
  void fillChoices();
  void bindScale();
  void bindBreaks();
  void showBreaks(const QString &inTable);
  void bindLegend();
  void bindSizes();
  void bindColors();

  NetPlot &m_plot;
  std::unique_ptr<Ui::viewFuncDialog> m_ui;
  std::unique_ptr<SettingFields> m_fields;
  FunctionsPage *m_functions;
  LabelTableEditor *m_labels;
  DrawFunction m_breakFunction; ///< in whose unit the breaks between classes are shown
  QChar m_breakSign;            ///< with which decimals they are
  QString m_labelTablePath;
  LabelTableFile::Reading m_labelsRead; ///< of the file at that path
  QString m_plotSettingsPath;
};
