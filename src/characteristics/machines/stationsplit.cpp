#include "stationsplit.h"

#include <model/displayformat.h>

#include <cmath>

double StationSplit::largestFlow(const StationConfiguration::Unit &unit) const {
  if (const TurboCompressor *turbo = m_data.turbo(unit.compressor)) {
    const auto flows = turbo->flows(unit.nominalSpeed > 0.0 ? unit.nominalSpeed : turbo->speedMax);
    return flows ? flows->second : 0.0;
  }
  const PistonCompressor *piston = m_data.piston(unit.compressor);
  return piston == nullptr ? 0.0 : piston->flow(unit.nominalSpeed > 0.0 ? unit.nominalSpeed : piston->speedMax);
}

double StationSplit::share(const StationConfiguration::Stage &stage, std::size_t unit) const {
  const double alike = 1.0 / static_cast<double>(stage.size());
  double sum = 0.0;
  for (const StationConfiguration::Unit &one : stage) {
    const double flow = largestFlow(one);
    if (!(flow > 0.0))
      return alike;
    sum += flow;
  }
  return largestFlow(stage[unit]) / sum;
}

std::optional<StationSplit::Part> StationSplit::part(const QString &compressor, const Compression &station) const {
  const auto count = static_cast<double>(m_configuration.stages.size());
  for (std::size_t stage = 0; stage < m_configuration.stages.size(); ++stage) {
    const StationConfiguration::Stage &units = m_configuration.stages[stage];
    for (std::size_t i = 0; i < units.size(); ++i) {
      if (units[i].compressor.compare(compressor, Qt::CaseInsensitive) != 0)
        continue;
      Part part{station, stage, share(units, i)};
      part.compression.massFlow *= part.share;
      if (m_configuration.stages.size() > 1) {
        const double ratio = std::pow(station.ratio(), 1.0 / count);
        part.compression.inletPressure *= std::pow(ratio, static_cast<double>(stage));
        part.compression.outletPressure = part.compression.inletPressure * ratio;
      }
      if (stage > 0)
        part.compression.inletDensity = 0.0; // the network states it at the inlet of the station only
      return part;
    }
  }
  return std::nullopt;
}

QString StationSplit::text(const QString &compressor, const std::optional<Part> &part) const {
  QStringList counts;
  for (const StationConfiguration::Stage &stage : m_configuration.stages)
    counts.append(QString::number(stage.size()));
  const QString stages = m_configuration.stages.size() == 1 ? tr("%1 machines side by side").arg(counts.first())
                                                            : tr("%1 stages one behind the other with %2 machines")
                                                                  .arg(m_configuration.stages.size())
                                                                  .arg(counts.join(QStringLiteral(" + ")));
  if (!part)
    return tr("%1. %2 does not run in it.").arg(stages, compressor);
  QString text =
      tr("%1. %2 carries %3 % of the flow").arg(stages, compressor, DisplayFormat::number(100.0 * part->share, 3));
  if (m_configuration.stages.size() > 1)
    text +=
        tr(" in stage %1; the stages share the pressure ratio alike, the gas is cooled between them").arg(part->stage + 1);
  return text + QLatin1Char('.');
}
