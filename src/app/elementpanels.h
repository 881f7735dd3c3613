#pragma once

#include <tools/nivraeleinfowidget.h>

#include <QObject>
#include <QStringList>

class NetVisControl;
class NivraPropViewer;
class QDockWidget;
class QMainWindow;

/// The panels that tell what is known of one element: the current one, or what the mouse goes over while nothing is
/// selected.
class ElementPanels : public QObject {
  Q_OBJECT
public:
  ElementPanels(QMainWindow &window, NetVisControl &control);

  QDockWidget *info() const { return m_infoDock; }
  QDockWidget *properties() const;
  /// Whether somebody answers whyWanted().
  void setExplains(bool explains);

  void show(const QString &name);
  /// Values, or how they are written, have changed.
  void showAgain() { show(m_shown); }
  /// Another network.
  void reset();
  /// Brings both to the front.
  void bring(const QString &name);
  /// The property viewer, in front, with the first of the elements.
  void bringProperties(const QStringList &names);

signals:
  void characteristicsWanted(const QStringList &names);
  void whyWanted(const QString &element, const QString &property); ///< it has its value

private:
  void showSelection();
  NivraEleInfoWidget::PlotLabel plotLabel(const element &e) const;
  QString marked() const;

  NetVisControl &m_control;
  NivraEleInfoWidget *m_info;
  QDockWidget *m_infoDock;
  NivraPropViewer *m_properties;
  QString m_shown;
};
