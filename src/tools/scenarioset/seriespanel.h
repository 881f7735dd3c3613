#pragma once

#include "shared/tableexport.h"

#include <base/index.h>

#include <QStringList>
#include <QWidget>

#include <vector>

class ElidedLabel;
class NetMetaData;
class QComboBox;
class QLabel;
class QStackedWidget;
class QToolButton;
class ScenarioSet;
class SeriesChart;

/// The values of one element over the scenarios of a set: a chart, its figures in words, and both as files.
class SeriesPanel : public QWidget {
  Q_OBJECT
public:
  explicit SeriesPanel(QWidget *parent = nullptr);

  /// In place of the chart.
  void showHint(const QString &hint);
  /// The element and its properties, of which the one that was chosen stays where it can.
  void offer(const QString &element, const QStringList &properties);
  QString property() const;
  /// \param numbers by scenario, as stored; NaN for none
  void show(const ScenarioSet &set, Index column, const std::vector<double> &numbers, const NetMetaData &metaData,
            const QString &present);

signals:
  void propertyChosen();
  void scenarioWanted(const QString &name);

private:
  QToolButton *addButton(const QString &text, const QString &tip, void (SeriesPanel::*save)());
  TableExport table() const;
  QString proposedName() const; ///< of files, without suffix
  void askForPicture();
  void askForSeries();

  ElidedLabel *m_title;
  QComboBox *m_property;
  QStackedWidget *m_pages;
  SeriesChart *m_chart;
  QLabel *m_hint;
  QLabel *m_figures;
  std::vector<QToolButton *> m_saving;
  QString m_chosen; ///< by a person
};
