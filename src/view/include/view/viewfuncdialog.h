#pragma once

#include <drawing/drawfunctions.h>
#include <drawing/drawnstyle.h>
#include <drawing/labeltable.h>

#include <QWidget>

#include <memory>

class FunctionsPage;
class QMenu;
class StylePreview;
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
  /// \param settingsRead of the file of settings then, likewise
  void setFiles(const QString &labelTable, const LabelTableFile::Reading &read, const QString &plotSettings,
                const FileStamp &settingsRead);
  /// Shows how the plot is drawn now, in place of what was typed.
  void refresh();
  /// The same without the pages on which something was typed that is not applied yet.
  void refreshUntouched();
  /// Shows units and numbers as they were chosen in the settings since; what was typed and not applied stays.
  void changeUnits();
  /// Something was typed or chosen that is not applied yet.
  bool hasUnapplied() const;
  /// Named styles to choose from, which draw at once.
  void setStyleMenu(QMenu *menu);
  /// Takes all bounds of the draw functions from the data.
  void resetMinMaxColorFuncValues();

public slots:
  void on_apply_clicked();
  void on_applyAndSave_clicked();
  void on_cancel_clicked();
  void on_editClasses_clicked();
  void on_preview_toggled(bool isWanted);
  void on_load_clicked();
  void on_savedSettings_clicked();
  void on_resetMinMax_clicked() { resetMinMaxColorFuncValues(); }
  void on_addTemplate_clicked();
  void on_applyTemplate_clicked();
  void on_deleteRow_clicked();

signals:
  /// The network is drawn as these files of the case say it: they were written or read.
  void filesTaken(bool settings, bool labels);
  void applied(); ///< the network is drawn otherwise than before

protected:
  void showEvent(QShowEvent *event) override;
  void hideEvent(QHideEvent *event) override;

private:
  bool apply();
  void followPlot();
  bool isNetworkShown() const;
  bool isAnyFieldTouched() const;
  std::optional<DrawnStyle> typed() const;
  void draw(const DrawnStyle &style);
  void offerSavedSettings();
  bool readLabels(const QString &path, FileAccess::Source source, LabelTable &labels);
  bool mayOverwriteSettings() const;
  bool mayOverwriteLabels() const;
  void limitWidth();
  void setUpPreview();
  void bindBreaks();
  void bindClassLooks();
  void showBreaks(const QString &inTable);

  NetPlot &m_plot;
  std::unique_ptr<Ui::viewFuncDialog> m_ui;
  std::unique_ptr<SettingFields> m_fields;
  FunctionsPage *m_functions;
  LabelTableEditor *m_labels;
  QString m_classColors; ///< as they were chosen, as are the labels
  QString m_classLabels;
  StylePreview *m_preview;
  DrawFunction m_breakFunction; ///< in whose unit the breaks between classes are shown
  QChar m_breakSign;            ///< with which decimals they are
  QString m_labelTablePath;
  LabelTableFile::Reading m_labelsRead; ///< of the file at that path
  LabelTable m_labelsShown;             ///< before a person changed any of it
  QString m_plotSettingsPath;
  FileStamp m_settingsRead; ///< of the file at that path
};
