#include "why/filesearch.h"

#include <QThread>

FileSearch::FileSearch(QObject *parent)
    : QObject(parent) {}

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
  auto goesOn = std::make_shared<std::atomic<bool>>(true);
  auto places = std::make_shared<std::vector<ValueSource::Place>>();
  m_goesOn = goesOn;
  QThread *thread = QThread::create([files, element, property, goesOn, places] {
    *places = ValueSource::find(files, element, property, [&goesOn] { return goesOn->load(); });
  });
  connect(thread, &QThread::finished, this, [this, goesOn, places] {
    if (!*goesOn)
      return;
    m_goesOn.reset();
    emit found(*places);
  });
  connect(thread, &QThread::finished, thread, &QObject::deleteLater);
  thread->start();
}
