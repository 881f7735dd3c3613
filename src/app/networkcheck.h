#pragma once

#include <tools/findinglist.h>

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <atomic>
#include <future>
#include <memory>
#include <rules/networkrules.h>
#include <vector>

class NetData;
class QAction;
class QProgressBar;
class QStatusBar;
class QToolButton;

/// The command "Check the network": has the rules look in a thread of their own while the window works. The status bar shows
/// how far they are and offers to cancel.
class NetworkCheck : public QObject {
  Q_OBJECT
public:
  using Groups = std::vector<FindingList::Group>;

  NetworkCheck(const NetData &net, QStatusBar &bar, QObject *parent);
  ~NetworkCheck() override;

  /// For menus.
  QAction *action() const { return m_action; }
  /// By rule, what is wrong with the network.
  static Groups check(const NetData &net);

public slots:
  void start();
  /// Before the elements go; waits for the thread, which is quick to stop. What was found is forgotten.
  void forget();
  /// After settings have changed: looks again where somebody has looked before.
  void again();

signals:
  void found(const std::vector<FindingList::Group> &groups);
  void told(); ///< after found(), when a person asked

private:
  void look(bool isAsked);
  void stop();
  void poll();
  void finish();
  void showProgress();
  void hideProgress();

  const NetData &m_net;
  QStatusBar &m_bar;
  QAction *m_action;
  std::unique_ptr<NetworkFacts> m_facts;
  std::unique_ptr<NetworkRules> m_rules;
  std::future<bool> m_running;
  std::atomic<double> m_fraction = 0.0;
  std::atomic<bool> m_isCancelled = false;
  QTimer m_polling;
  QElapsedTimer m_sinceStart;
  QProgressBar *m_progress = nullptr;
  QToolButton *m_cancel = nullptr;
  bool m_isAsked = false;
  bool m_hasLooked = false;
};
