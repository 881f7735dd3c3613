#pragma once

#include <drawing/aspect.h>
#include <drawing/drawfunctions.h>

#include <QMenu>

#include <functional>

class NetPlot;

/// The draw functions that this network has for an aspect, the one in use checked. Choosing one draws it at once.
class FunctionMenu : public QMenu {
  Q_OBJECT
public:
  /// \param ofNetwork what this network has, asked when the menu is about to be shown
  FunctionMenu(Aspect aspect, NetPlot &plot, std::function<const DrawFunction::OfNetwork &()> ofNetwork);

  /// What the function in use shows, without its unit; empty when there is none.
  QString inUse() const;

signals:
  void chosen();

private:
  void fill();
  QStringList offered() const;
  void chooseAmongAll();
  void choose(const QString &function);

  Aspect m_aspect;
  NetPlot &m_plot;
  std::function<const DrawFunction::OfNetwork &()> m_ofNetwork;
};
