#pragma once

#include <QObject>

class DesktopTheme;
class QMenu;

/// Light and dark: as the desktop has it, or as the user chose. A choice is a general setting of the user's; it takes effect
/// at once in every window, which all follow the palette.
class Appearance : public QObject {
  Q_OBJECT
public:
  enum class Mode { Desktop, Light, Dark };

  explicit Appearance(QObject *parent);

  /// What the settings say now; for when they were read.
  void refresh();
  Mode mode() const { return m_mode; }
  /// Keeps the choice in the user's file of general settings.
  void choose(Mode mode);
  /// Asks the desktop, and follows it from then on.
  void followDesktop();
  /// The choices, for a menu bar.
  QMenu &menu() const { return *m_menu; }

signals:
  void changed(); ///< between light and dark

private:
  void fillMenu();
  void apply();

  Mode m_mode = Mode::Desktop;
  DesktopTheme *m_desktop;
  QMenu *m_menu;
};
