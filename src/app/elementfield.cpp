#include "elementfield.h"

#include "elementnames.h"

#include <model/netdata.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QStringListModel>
#include <QTimer>

namespace {

constexpr int MaximumOffered = 50;

} // namespace

ElementField::ElementField(const NetData &net, QWidget *parent)
    : QLineEdit(parent)
    , m_net(net)
    , m_offered(new QStringListModel(this))
    , m_completer(new QCompleter(m_offered, this))
    , m_pause(new QTimer(this)) {
  constexpr int PauseMs = 60;
  constexpr int VisibleNames = 14;
  m_completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion); // the list holds what fits
  m_completer->setCaseSensitivity(Qt::CaseInsensitive);
  m_completer->setMaxVisibleItems(VisibleNames);
  m_completer->setWidget(this);
  m_pause->setSingleShot(true);
  m_pause->setInterval(PauseMs);
  connect(m_pause, &QTimer::timeout, this, &ElementField::offer);
  connect(this, &QLineEdit::textEdited, m_pause, QOverload<>::of(&QTimer::start));
  connect(m_completer, QOverload<const QString &>::of(&QCompleter::activated), this, [this](const QString &name) {
    setText(name);
    go();
  });
}

void ElementField::offer() {
  if (!isEnabled() || !hasFocus())
    return; // another network is being read
  const QString sought = text().trimmed();
  m_offered->setStringList(ElementNames::namesWith(m_net, sought, MaximumOffered));
  if (m_offered->rowCount() == 0)
    m_completer->popup()->hide();
  else
    m_completer->complete();
}

void ElementField::keyPressEvent(QKeyEvent *event) {
  QAbstractItemView *popup = m_completer->popup();
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (popup->isVisible() && popup->currentIndex().isValid())
      setText(popup->currentIndex().data().toString());
    go();
  } else if (event->key() == Qt::Key_Escape) {
    emit left();
  } else if (event->key() == Qt::Key_Down && !popup->isVisible()) {
    offer();
  } else {
    QLineEdit::keyPressEvent(event);
  }
}

void ElementField::go() {
  m_pause->stop();
  m_completer->popup()->hide();
  const QString sought = text().trimmed();
  if (sought.isEmpty())
    return;
  const QString name = ElementNames::namesWith(m_net, sought, 1).value(0);
  if (name.isEmpty()) {
    emit told(tr("No element has \"%1\" in its name").arg(sought));
    selectAll();
    return;
  }
  setText(name);
  selectAll();
  emit elementWanted(name);
}
