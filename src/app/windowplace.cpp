#include "windowplace.h"

#include <base/fileaccess.h>
#include <base/logfiles.h>
#include <base/nivramsg.h>
#include <base/wholefile.h>

#include <QApplication>
#include <QEvent>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace {

QString file() {
  return LogFiles::directory() + QStringLiteral("/windowplaces.json");
}

QJsonObject known() {
  QString reason; // mostly that there are none yet
  const auto text = FileAccess::readWhole(file(), FileAccess::Source::Trusted, FileAccess::LargestConfiguration, &reason);
  return text ? QJsonDocument::fromJson(*text).object() : QJsonObject();
}

} // namespace

WindowPlace::WindowPlace(QWidget &window, QString name, const QWidget &beside)
    : QObject(&window)
    , m_window(window)
    , m_name(std::move(name))
    , m_beside(beside) {
  window.installEventFilter(this);
}

/// Before the window system hears of the window, which would place it itself.
void WindowPlace::place() {
  const QByteArray kept = QByteArray::fromBase64(known()[m_name].toString().toLatin1());
  if (!kept.isEmpty() && m_window.restoreGeometry(kept))
    return besideOthers();
  QRect area(QPoint(), m_window.size());
  area.moveCenter(m_beside.geometry().center());
  const QScreen *screen = m_beside.screen();
  const QRect room = screen == nullptr ? area : screen->availableGeometry();
  area.moveRight(std::min(area.right(), room.right()));
  area.moveBottom(std::min(area.bottom(), room.bottom()));
  area.moveLeft(std::max(area.left(), room.left()));
  area.moveTop(std::max(area.top(), room.top()));
  m_window.move(area.topLeft());
  besideOthers();
}

/// Windows that share a place would hide one another.
void WindowPlace::besideOthers() {
  constexpr QPoint Step(28, 28); // px, of a title bar
  const QWidgetList all = QApplication::topLevelWidgets();
  const auto isTaken = [&all, this](const QPoint &corner) {
    return std::any_of(all.begin(), all.end(), [&](const QWidget *other) {
      return other != &m_window && other->isVisible() && other->pos() == corner;
    });
  };
  constexpr int MostSteps = 20; // also where the window does not move
  for (int i = 0; i < MostSteps && isTaken(m_window.pos()); ++i)
    m_window.move(m_window.pos() + Step);
}

void WindowPlace::keep() const {
  const QJsonObject before = known();
  QJsonObject places = before;
  places[m_name] = QString::fromLatin1(m_window.saveGeometry().toBase64());
  QString reason;
  if (places != before && !WholeFile::write(file(), FileAccess::Source::Trusted, QJsonDocument(places).toJson(), &reason))
    NivraMsg::logWarning(reason);
}

bool WindowPlace::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::Show && !event->spontaneous())
    place();
  else if (event->type() == QEvent::Hide && !event->spontaneous())
    keep();
  return QObject::eventFilter(watched, event);
}
