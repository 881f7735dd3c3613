#include "theme/desktoptheme.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QFileInfo>
#include <QPointer>
#include <QThreadPool>

namespace {

QString group() {
  return QStringLiteral("org.freedesktop.appearance");
}

QString key() {
  return QStringLiteral("color-scheme");
}

QString service() {
  return QStringLiteral("org.freedesktop.portal.Desktop");
}

QString path() {
  return QStringLiteral("/org/freedesktop/portal/desktop");
}

QString interface() {
  return QStringLiteral("org.freedesktop.portal.Settings");
}

/// Without one the toolkit would start a bus of its own.
bool hasBus() {
  return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
         QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

/// Older portals wrap the value twice.
QVariant unwrapped(QVariant value) {
  while (value.userType() == qMetaTypeId<QDBusVariant>())
    value = value.value<QDBusVariant>().variant();
  return value;
}

} // namespace

void DesktopTheme::ask() {
  if (!hasBus())
    return;
  QThreadPool::globalInstance()->start([self = QPointer<DesktopTheme>(this)] {
    constexpr int PatienceMs = 2000;
    QDBusConnection bus = QDBusConnection::sessionBus();
    QDBusMessage question = QDBusMessage::createMethodCall(service(), path(), interface(), QStringLiteral("Read"));
    question.setArguments({group(), key()});
    const QDBusMessage answer = bus.call(question, QDBus::Block, PatienceMs);
    const bool isAnswer = answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty();
    const QVariant scheme = isAnswer ? unwrapped(answer.arguments().constFirst()) : QVariant();
    QMetaObject::invokeMethod(
        qApp,
        [self, scheme, isAnswer] {
          if (self == nullptr)
            return;
          if (isAnswer) // else nobody is there to tell of changes
            QDBusConnection::sessionBus().connect(service(), path(), interface(), QStringLiteral("SettingChanged"), self,
                                                  SLOT(takeChange(QString, QString, QDBusVariant)));
          self->take(scheme);
        },
        Qt::QueuedConnection);
  });
}

void DesktopTheme::takeChange(const QString &changedGroup, const QString &changedKey, const QDBusVariant &value) {
  if (changedGroup == group() && changedKey == key())
    take(unwrapped(value.variant()));
}

void DesktopTheme::take(const QVariant &scheme) {
  enum Scheme { NoPreference, PrefersDark, PrefersLight };
  bool isNumber = false;
  const uint number = scheme.toUInt(&isNumber);
  std::optional<bool> isDark;
  if (isNumber && (number == PrefersDark || number == PrefersLight))
    isDark = number == PrefersDark;
  if (isDark == m_isDark)
    return;
  m_isDark = isDark;
  emit changed();
}
