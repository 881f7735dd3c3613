#pragma once

#include <formulas/formulause.h>
#include <io/valuesource.h>
#include <model/netdata.h>

#include <QCoreApplication>
#include <QString>

#include <vector>

class NetworkLoader;

/// A line of an explanation, and what explains it in turn.
struct Reason {
  QString text;
  QString value;
  QString where;   ///< file and line; empty where it stands in none
  QString element; ///< with a property: what a person may ask about next
  PropertyKey property;
  std::vector<Reason> parts;
};

/// Why a property of an element has its value: what computed it, which line of which file gives it, what it is held against,
/// and how it was converted.
class ValueReasons {
  Q_DECLARE_TR_FUNCTIONS(ValueReasons)
public:
  /// Both outlive this.
  ValueReasons(const NetData &net, const NetworkLoader &loader)
      : m_net(net)
      , m_loader(loader) {}

  /// "p of N1 = 53.2 bar (pressure)"
  QString title(const element &e, PropertyKey property) const;
  /// What is known at once: formulas, constraints, units.
  std::vector<Reason> known(const element &e, PropertyKey property) const;
  /// What the files say, of which the last place counts; a line that says so where there is none.
  std::vector<Reason> ofFiles(const element &e, PropertyKey property, const std::vector<ValueSource::Place> &places) const;

private:
  Reason reasonOf(const FormulaUse &use, const element &e, PropertyKey property) const;
  Reason conversionOf(const element &e, PropertyKey property, const ValueSource::Place &place) const;
  void addUnit(const element &e, PropertyKey property, std::vector<Reason> &reasons) const;
  QString shown(const element &e, PropertyKey property) const;
  QString shown(const element &e, PropertyKey property, const PropertyText &text) const;
  QString fileName(const QString &path) const;

  const NetData &m_net;
  const NetworkLoader &m_loader;
};
