#pragma once

#include "configure/classmodel.h"

#include <drawing/drawvalues.h>
#include <drawing/plotsettings.h>

#include <QDialog>

class QPushButton;
class QTableView;

/// "Classes": breaks, colours and names of the classes of edge colours, a row each, and ways to find breaks in the values.
class ClassDialog : public QDialog {
  Q_OBJECT
public:
  /// \param values that are to be classified
  ClassDialog(const PlotSettings &settings, DrawValues::Column values, QWidget *parent = nullptr);

  /// The settings with the classes as they are now.
  PlotSettings settings() const;

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void arrange();
  void fill();
  void takeBreaks(const QString &method);
  void addClass();
  void removeClass();
  void chooseColor();
  void showButtons();
  double shown(double stored) const { return m_values.function.toDisplay(stored); }

  PlotSettings m_settings;
  DrawValues::Column m_values;
  ClassModel m_model;
  QTableView *m_table;
  QPushButton *m_add = nullptr;
  QPushButton *m_remove = nullptr;
};
