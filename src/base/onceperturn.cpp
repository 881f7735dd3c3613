#include <base/onceperturn.h>

#include <QCoreApplication>
#include <QEvent>

namespace {

QEvent::Type workIsDue() {
  static const int Type = QEvent::registerEventType();
  return static_cast<QEvent::Type>(Type);
}

} // namespace

OncePerTurn::OncePerTurn(Stage stage, std::function<void()> work)
    : m_stage(stage)
    , m_work(std::move(work)) {}

// Posted events are sent by their priority, which is what keeps the stages in order.
void OncePerTurn::request() {
  if (m_isRequested)
    return;
  m_isRequested = true;
  QCoreApplication::postEvent(this, new QEvent(workIsDue()),
                              m_stage == Stage::Compute ? Qt::NormalEventPriority : Qt::LowEventPriority);
}

void OncePerTurn::flush() {
  if (!m_isRequested)
    return;
  cancel();
  m_work();
}

void OncePerTurn::cancel() {
  m_isRequested = false;
  QCoreApplication::removePostedEvents(this, workIsDue());
}

bool OncePerTurn::event(QEvent *event) {
  if (event->type() != workIsDue())
    return QObject::event(event);
  flush();
  return true;
}
