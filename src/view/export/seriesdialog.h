#pragma once

#include "export/networkseries.h"

#include <QDialog>

namespace Ui {
class SeriesDialog;
}

/// Chooses the views and scenarios of several pages and where they go, and shows how far they are.
class SeriesDialog : public QDialog {
  Q_OBJECT
public:
  /// \param scenarios of the case, \param present the one that is open; empty for none
  /// \param name proposed for the PDF, without suffix
  SeriesDialog(QList<NetworkSeries::View> views, const QStringList &scenarios, const QString &present, const QString &name,
               QWidget *parent = nullptr);
  ~SeriesDialog() override;

  using Run = std::function<PageSeries::Outcome(const NetworkSeries::Choice &choice, const PageSeries::Target &target,
                                                const PageSeries::GoOn &goOn)>;
  void setRun(Run run) { m_run = std::move(run); }

  NetworkSeries::Choice choice() const;
  PageSeries::Target target() const;

public slots:
  /// Cancels what runs; closes the dialog otherwise.
  void reject() override;

private:
  void showChoice();
  void proposeTarget();
  void browse();
  void start();
  bool mayReplace() const;
  bool goOn(int done, const QString &name);
  void tell(const PageSeries::Outcome &outcome);
  int pages() const;

  std::unique_ptr<Ui::SeriesDialog> m_ui;
  QList<NetworkSeries::View> m_views;
  QString m_name;
  Run m_run;
  bool m_isRunning = false;
  bool m_isCancelled = false;
};
