#pragma once

#include <QDBusVariant>
#include <QObject>

#include <optional>

/// Whether the desktop wants dark windows, as its portal says it (org.freedesktop.appearance, "color-scheme"), which works
/// also where the toolkit knows nothing of the desktop. Asked in a thread of its own, so that nobody waits for a bus.
class DesktopTheme : public QObject {
  Q_OBJECT
public:
  using QObject::QObject;

  /// The answer comes with changed(); none where there is no bus, no portal or no preference.
  void ask();
  /// Nothing as long as the desktop has not said which.
  std::optional<bool> isDark() const { return m_isDark; }

signals:
  void changed();

private slots:
  void takeChange(const QString &group, const QString &key, const QDBusVariant &value);

private:
  void take(const QVariant &scheme);

  std::optional<bool> m_isDark;
};
