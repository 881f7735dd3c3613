#include "scenarios/scenariofinder.h"

#include <thread>

ScenarioFinder::ScenarioFinder(QObject *parent)
    : QObject(parent)
    , m_mailbox(*this) {}

void ScenarioFinder::look(const QString &caseFolder, bool isJson) {
  std::thread([this, address = m_mailbox.address(), caseFolder, isJson, number = ++m_look] {
    const ScenarioList list = ScenarioList::ofCase(caseFolder, isJson);
    address.send([this, number, list] { take(number, list); });
  }).detach();
}

void ScenarioFinder::take(int look, const ScenarioList &list) {
  if (look == m_look)
    emit found(list);
}
