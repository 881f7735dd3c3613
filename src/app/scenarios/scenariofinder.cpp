#include "scenarios/scenariofinder.h"

#include <mutex>
#include <thread>

/// Whom the threads tell. They may outlive it, for nothing ends one that waits for a disk.
struct ScenarioFinder::Receiver {
  std::mutex mutex;
  ScenarioFinder *finder;
};

ScenarioFinder::ScenarioFinder(QObject *parent)
    : QObject(parent)
    , m_receiver(std::make_shared<Receiver>()) {
  m_receiver->finder = this;
}

ScenarioFinder::~ScenarioFinder() {
  const std::lock_guard<std::mutex> lock(m_receiver->mutex);
  m_receiver->finder = nullptr;
}

void ScenarioFinder::look(const QString &caseFolder, bool isJson) {
  std::thread([receiver = m_receiver, caseFolder, isJson, number = ++m_look] {
    const ScenarioList list = ScenarioList::ofCase(caseFolder, isJson);
    const std::lock_guard<std::mutex> lock(receiver->mutex);
    ScenarioFinder *finder = receiver->finder;
    if (finder != nullptr)
      QMetaObject::invokeMethod(
          finder, [finder, number, list] { finder->take(number, list); }, Qt::QueuedConnection);
  }).detach();
}

void ScenarioFinder::take(int look, const ScenarioList &list) {
  if (look == m_look)
    emit found(list);
}
