#pragma once

#include <model/displayunits.h>

#include <QCoreApplication>
#include <QString>

class NetData;

/// Values as the texts of rules say them, in the units that people chose.
class RuleTexts {
  Q_DECLARE_TR_FUNCTIONS(NetworkRules)
public:
  explicit RuleTexts(const NetData &net);

  QString flow(double value) const { return written(m_flow, value); }         ///< stored unit of "qset"
  QString pressure(double value) const { return written(m_pressure, value); } ///< stored unit of "pset"
  QString length(double value) const { return written(m_length, value); }     ///< m
  QString height(double value) const { return written(m_height, value); }     ///< m
  QString diameter(double value) const { return written(m_diameter, value); } ///< mm
  static QString number(double value);
  /// How many, as text.
  static QString count(double value) { return QString::number(value, 'f', 0); }

private:
  static QString written(const DisplayUnits::Shown &shown, double value);

  DisplayUnits::Shown m_flow;
  DisplayUnits::Shown m_pressure;
  DisplayUnits::Shown m_length;
  DisplayUnits::Shown m_height;
  DisplayUnits::Shown m_diameter;
};
