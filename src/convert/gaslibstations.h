#pragma once

#include "gaslibreader.h"

#include <QCoreApplication>
#include <QSet>

#include <vector>

/// Reads of which machines the compressor stations of a public instance (".cs") consist. The data of the machines are read
/// when a network is opened.
class GasLibStations : public GasLibReader {
  Q_DECLARE_TR_FUNCTIONS(GasLibStations)
public:
  using GasLibReader::GasLibReader;

  /// False when the file holds no stations, or not all of it.
  bool read();

  struct Station {
    struct Drive {
      QString name;
      QString kind; ///< "gasTurbine", "gasDrivenMotor", "electricMotor" or "steamTurbine"
    };
    QString name;
    QString compressor; ///< the first one
    std::vector<Drive> drives;
    int line = 0;
  };

  std::vector<Station> stations;

private:
  void readStation();

  QSet<QString> m_stations; ///< folded names of those that were read
};
