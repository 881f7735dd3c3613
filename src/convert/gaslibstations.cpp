#include "gaslibstations.h"

#include <QSet>

bool GasLibStations::read() {
  if (!start(QStringLiteral("compressorStations"), QStringLiteral("CompressorStations")))
    return false;
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() == QLatin1String("compressorStation"))
      readStation();
    else
      drop(tr("not known"));
  }
  return finish();
}

void GasLibStations::readStation() {
  Station station{attribute("id"), QString(), {}, static_cast<int>(m_xml.lineNumber())};
  if (m_stations.contains(station.name.toLower())) {
    tell(tr("%1 is described again; what follows is left out").arg(station.name));
    drop(tr("named twice or not at all"));
    return;
  }
  m_stations.insert(station.name.toLower());
  QSet<QString> named; // drives and compressors may be named alike
  while (m_xml.readNextStartElement()) {
    const bool areDrives = m_xml.name() == QLatin1String("drives");
    if (!areDrives && m_xml.name() != QLatin1String("compressors")) {
      m_xml.skipCurrentElement(); // the file is copied as it is
      continue;
    }
    while (m_xml.readNextStartElement()) {
      const QString name = attribute("id");
      const QString kind = m_xml.name().toString();
      const QString key = (areDrives ? QLatin1Char('d') : QLatin1Char('c')) + name.toLower();
      if (name.isEmpty() || named.contains(key)) {
        tell(name.isEmpty() ? tr("A %1 without id is left out").arg(kind)
                            : tr("%1 is named again in %2; what follows is left out").arg(name, station.name));
        drop(tr("named twice or not at all"));
        continue;
      }
      named.insert(key);
      report.take(kind);
      if (areDrives)
        station.drives.push_back({name, kind});
      else if (station.compressor.isEmpty())
        station.compressor = name;
      m_xml.skipCurrentElement();
    }
  }
  stations.push_back(std::move(station));
}
