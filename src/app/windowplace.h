#pragma once

#include <QObject>
#include <QString>

class QWidget;

/// Where a window that stands beside another was left: kept for the person, in "windowplaces.json". The first time it comes
/// into the middle of the other one.
class WindowPlace : public QObject {
  Q_OBJECT
public:
  /// Belongs to the window.
  /// \param name by which its place is kept; windows of one kind share it
  /// \param beside outlives the window
  WindowPlace(QWidget &window, QString name, const QWidget &beside);

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void place();
  void besideOthers();
  void keep() const;

  QWidget &m_window;
  QString m_name;
  const QWidget &m_beside;
};
