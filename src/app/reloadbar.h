#pragma once

#include <QStringList>
#include <QToolBar>

class ElidedLabel;
class QPushButton;

/// The bar above the drawing that offers to read changed files again. It takes no keys away from the drawing.
class ReloadBar : public QToolBar {
  Q_OBJECT
public:
  explicit ReloadBar(QWidget *parent = nullptr);

  /// Nothing to say hides the bar.
  /// \param gone files that are no longer there
  void tell(const QStringList &changed, const QStringList &gone);
  /// Why reading again is not possible now.
  void tellFault(const QString &text);

signals:
  void reloadWanted();
  void ignored();

private:
  ElidedLabel *m_text;
  QPushButton *m_reload;
};
