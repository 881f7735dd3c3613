#pragma once

#include <QObject>

class QMenu;
class QWidget;

/// The menu of languages, and what a choice leads to: it is kept in the user's settings and, as the texts of a window are
/// made once, takes effect with the next start, which is offered at once.
class LanguageChoice : public QObject {
  Q_OBJECT
public:
  /// Once the general settings are loaded.
  explicit LanguageChoice(QWidget &window);
  ~LanguageChoice() override;

  /// Adds the submenu at the end.
  void addTo(QMenu &menu);
  /// Asks whether to restart when the settings have another language than before that is not the one spoken.
  void offerRestart();

signals:
  void chosen(); ///< the settings hold another language
  void restartWanted();

private:
  void fill();
  void choose(const QString &code);

  QWidget &m_window;
  QMenu *m_menu = nullptr; ///< made when it is first asked for
  QString m_setting;       ///< as last seen
};
