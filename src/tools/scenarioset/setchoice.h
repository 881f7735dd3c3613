#pragma once

#include <QWidget>

#include <scenarioset/setscenarios.h>
#include <scenarioset/setstatistic.h>
#include <vector>

class FilterField;
class NetMetaData;
class QDateEdit;
class QLabel;
class QListView;
class QProgressBar;
class QPushButton;
class QStandardItemModel;

/// What goes into a set: scenarios by name and date, properties, and the figures that become properties; the button that
/// begins, and how far it has come.
class SetChoice : public QWidget {
  Q_OBJECT
public:
  explicit SetChoice(QWidget *parent = nullptr);

  /// What there is to be chosen from; what was chosen by name stays.
  void offer(const std::vector<SetScenario> &scenarios, const QStringList &properties, const NetMetaData &metaData);

  std::vector<SetScenario> scenarios() const; ///< that are chosen
  QStringList properties() const;
  std::vector<SetStatistic::Kind> figures() const;

  void showRunning(bool isRunning);
  void showProgress(double fraction);
  void say(const QString &text);

signals:
  void runWanted();
  void stopWanted();

private:
  QWidget *makeDates();
  QListView *makeList(QStandardItemModel &model, const QString &name);
  void showCount();

  std::vector<SetScenario> m_all;
  FilterField *m_pattern;
  QWidget *m_dates;
  QDateEdit *m_from;
  QDateEdit *m_to;
  QLabel *m_count;
  QStandardItemModel *m_properties;
  QStandardItemModel *m_figures;
  QPushButton *m_run;
  QPushButton *m_stop;
  QProgressBar *m_progress;
  QLabel *m_said;
};
