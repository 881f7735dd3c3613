#pragma once

#include "gaslibunits.h"

#include <io/conversionreport.h>
#include <io/gaslibxml.h>
#include <io/networkrecord.h>

#include <QCoreApplication>

/// What the importers of public network instances have in common: numbers in our units, and account of every element.
class GasLibReader : public GasLibXml {
  Q_DECLARE_TR_FUNCTIONS(GasLibReader)
public:
  explicit GasLibReader(const QString &path)
      : GasLibXml(path, FileAccess::Source::Trusted) {}

  ConversionReport report; ///< by the names of elements and attributes

protected:
  using Record = NetworkRecord;

  /// The number of the current element in a unit of ours; passes over the element. Nothing, and a finding, when it has none.
  /// \param isNegated for values that count the other way round
  std::optional<GasLibUnits::Number> number(const char *unit, const Units::Gas &gas = {}, bool isNegated = false);
  /// Passes over the current element with all that it holds.
  void drop(const QString &why);

  static void add(Record &record, const char *property, const QString &text);
  static void add(Record &record, const char *property, const GasLibUnits::Number &number);
};
