#include "why/filesearch.h"

#include <thread>

FileSearch::FileSearch(QObject *parent)
    : QObject(parent)
    , m_mailbox(*this) {}

FileSearch::~FileSearch() {
  cancel();
}

void FileSearch::cancel() {
  if (m_goesOn)
    *m_goesOn = false;
  m_goesOn.reset();
}

void FileSearch::start(const QStringList &files, const QString &element, const QString &property) {
  cancel();
  m_goesOn = std::make_shared<std::atomic<bool>>(true);
  std::thread([this, address = m_mailbox.address(), files, element, property, goesOn = m_goesOn] {
    const std::vector<ValueSource::Place> places =
        ValueSource::find(files, element, property, [&goesOn] { return goesOn->load(); });
    address.send([this, goesOn, places] {
      if (*goesOn)
        emit found(places);
    });
  }).detach();
}
