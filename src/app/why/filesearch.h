#pragma once

#include <base/mailbox.h>
#include <io/valuesource.h>

#include <QObject>
#include <QStringList>

#include <atomic>
#include <memory>
#include <vector>

/// Looks into the files of a network for a value beside the window, one question at a time: a new one ends that before.
class FileSearch : public QObject {
  Q_OBJECT
public:
  explicit FileSearch(QObject *parent = nullptr);
  ~FileSearch() override;

  void start(const QStringList &files, const QString &element, const QString &property);
  void cancel();

signals:
  void found(const std::vector<ValueSource::Place> &places);

private:
  Mailbox m_mailbox;
  std::shared_ptr<std::atomic<bool>> m_goesOn; ///< of the search that was asked for last; null without one
};
