#pragma once

#include <QWidget>

#include <machines/machinedata.h>

class MapCanvas;
class QComboBox;
class ResidualModel;
class ResidualPlot;

/// Residuals of a machine as a diagram and as a table by speeds.
class ResidualView : public QWidget {
  Q_OBJECT
public:
  explicit ResidualView(QWidget *parent = nullptr);

  void show(const TurboCompressor &machine);
  MapCanvas *canvas() const;

private:
  void showFunction();

  QComboBox *m_function;
  ResidualPlot *m_plot;
  ResidualModel *m_model;
  TurboCompressor m_machine;
};
