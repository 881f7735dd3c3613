#include "networkinfo.h"

#include <model/names.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QSet>

#include <sys/resource.h>

namespace {

double peakMemoryMB() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  constexpr double KilobytesPerMegabyte = 1024.0;
  return static_cast<double>(usage.ru_maxrss) / KilobytesPerMegabyte;
}

struct Counts {
  QJsonObject types;
  double properties = 0;
};

Counts count(NetData &net) {
  std::map<std::string, int> types;
  Counts counts;
  net.forEach(NetData::AllTypes, [&](element &e) {
    counts.properties += static_cast<double>(e.size());
    const PropertyText *type = e.find(Names::all().type);
    ++types[type == nullptr ? std::string() : std::string(type->utf8())];
  });
  for (const auto &[code, number] : types)
    counts.types.insert(QString::fromStdString(code), number);
  return counts;
}

/// Everything that was noticed, then the warnings that say something else.
void addMessages(QJsonObject &object, const NetworkLoader &loader, const NivraMsg::Recorder &recorder) {
  QStringList findings;
  QSet<QString> known;
  FindingList list;
  list.set(loader.noticed());
  for (const FindingList::Group &group : list.groups()) {
    for (const Finding &finding : group.findings) {
      findings.append(finding.logText());
      known << finding.logText() << finding.text;
    }
  }
  QStringList warnings;
  for (const QString &message : recorder.lines()) {
    for (const QString &line : message.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
      if (!known.contains(line))
        warnings.append(line);
    }
  }
  if (recorder.dropped() > 0)
    warnings.append(QCoreApplication::translate("Batch", "... and %1 more, see the log").arg(recorder.dropped()));
  object.insert(QStringLiteral("findings"), QJsonArray::fromStringList(findings));
  object.insert(QStringLiteral("warnings"), QJsonArray::fromStringList(warnings));
}

/// The settings by section, in the order in which the window shows them, and the gases; all as the files write them.
QJsonObject settings(const ScenarioSummary &summary) {
  const auto sourceOf = [](const QString &file) {
    return file.isEmpty() ? QStringLiteral("default") : file;
  };
  QJsonArray sections;
  QJsonArray rows;
  for (std::size_t i = 0; i < summary.rows.size(); ++i) {
    const ScenarioSummary::Row &row = summary.rows[i];
    QJsonObject entry{{QStringLiteral("name"), row.name},
                      {QStringLiteral("value"), row.value},
                      {QStringLiteral("source"), sourceOf(row.source)}};
    if (!row.comment.isEmpty())
      entry.insert(QStringLiteral("comment"), row.comment);
    rows.append(entry);
    if (i + 1 < summary.rows.size() && summary.rows[i + 1].section == row.section)
      continue;
    sections.append(QJsonObject{{QStringLiteral("name"), row.section}, {QStringLiteral("rows"), rows}});
    rows = QJsonArray();
  }
  QJsonObject gases;
  for (const auto &[name, gas] : summary.gases) {
    QJsonObject properties;
    for (const Property &property : gas)
      properties.insert(property.key.name(), property.value.toString());
    gases.insert(name, properties);
  }
  return {{QStringLiteral("sections"), sections},
          {QStringLiteral("gases"), gases},
          {QStringLiteral("gasFile"), summary.gasFile}};
}

} // namespace

QJsonObject NetworkInfo::of(NetData &net, const NetworkLoader &loader, StageTimes &times,
                            const NivraMsg::Recorder &recorder) {
  const NivraWorkspace &workspace = loader.workspace();
  QJsonObject object;
  object.insert(QStringLiteral("workspace"), workspace.root());
  object.insert(QStringLiteral("case"), workspace.currentCase()->name);
  object.insert(QStringLiteral("scenario"), workspace.hasScenario() ? workspace.currentScenario()->workDir : QString());
  object.insert(QStringLiteral("scenarioSettings"), settings(loader.scenarioSummary()));
  object.insert(QStringLiteral("nodes"), static_cast<double>(net.nodes().size()));
  object.insert(QStringLiteral("edges"), static_cast<double>(net.edges().size()));
  object.insert(QStringLiteral("assembledSubnets"), static_cast<double>(net.assembledSubnets().size()));
  object.insert(QStringLiteral("tBoxes"), static_cast<double>(net.textBoxes().size()));
  const Counts counts = count(net);
  object.insert(QStringLiteral("types"), counts.types);
  object.insert(QStringLiteral("properties"), counts.properties);
  object.insert(QStringLiteral("removed"), QJsonObject{{QStringLiteral("nodes"), loader.removed().nodes},
                                                       {QStringLiteral("edges"), loader.removed().edges}});
  addMessages(object, loader, recorder);
  times.end(QStringLiteral("count"));
  object.insert(QStringLiteral("seconds"), times.seconds());
  object.insert(QStringLiteral("peakMemoryMB"), peakMemoryMB());
  return object;
}
