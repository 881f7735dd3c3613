#include "batch.h"

#include "networkloader.h"
#include "stagetimes.h"

#include <base/generalsettings.h>
#include <base/logfiles.h>
#include <base/nivramsg.h>
#include <drawing/drawfunctions.h>
#include <model/names.h>
#include <view/netplot.h>
#include <view/netviscontrol.h>
#include <view/plotexport.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <cstdio>
#include <sys/resource.h>
#include <unistd.h>

namespace {

bool writeAll(int descriptor, const QByteArray &text) {
  qint64 done = 0;
  while (done < text.size()) {
    const ssize_t written = ::write(descriptor, text.constData() + done, static_cast<std::size_t>(text.size() - done));
    if (written <= 0)
      return false;
    done += written;
  }
  return true;
}

int failed(const QString &reason) {
  NivraMsg::logCritical(reason);
  writeAll(LogFiles::realStandardError(), reason.toUtf8() + '\n');
  return 1;
}

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
    warnings.append(Batch::tr("... and %1 more, see the log").arg(recorder.dropped()));
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

QJsonObject info(NetData &net, const NetworkLoader &loader, StageTimes &times, const NivraMsg::Recorder &recorder) {
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

/// Puts the functions of the command line in place of those of the settings, with open bounds. False with the reason when
/// there is nothing to see of one.
bool applyFunctions(const CommandLine &line, NetVisControl &control, QString &reason) {
  NetPlot &plot = *control.plot();
  PlotSettings settings = plot.settings();
  for (const Aspect aspect : AllAspects) {
    const QString &chosen = line.functions[aspect];
    if (chosen.isEmpty())
      continue;
    if (chosen != PlotSettings::fixedSize() && !DrawFunction::find(chosen, control.net()).isKnown()) {
      reason = Batch::tr("No element has the property \"%1\".").arg(chosen);
      return false;
    }
    PlotSettings::Function &function = settings.functions[aspect];
    function.name = chosen;
    function.minimum = PlotSettings::OpenMinimum;
    function.maximum = PlotSettings::OpenMaximum;
  }
  if (!line.labels.isEmpty())
    settings.label_mode = line.labels;
  if (settings == plot.settings())
    return true;
  plot.setSettings(settings);
  control.redraw();
  return true;
}

/// Ends the process with what the system does anyway: giving back a large network piece by piece takes as long as drawing
/// it.
[[noreturn]] void exitAtOnce(int status) {
  std::fflush(nullptr);
  _exit(status);
}

} // namespace

int Batch::run(const CommandLine &line) {
  const NivraMsg::Recorder recorder;
  GeneralSettings::instance().load(QString(), logFinding);
  NetData net;
  NetVisControl control(net, QString(), logFinding);
  NetworkLoader loader(net);
  StageTimes times;
  if (!loader.resolve(line.file))
    return failed(loader.error());
  GeneralSettings::instance().load(loader.workspace().root(), logFinding);
  loader.readConfiguration();
  times.end(QStringLiteral("configuration"));
  if (!loader.readNetwork({}))
    return failed(loader.error());
  for (const auto &[stage, time] : loader.seconds())
    times.add(stage, time);

  constexpr int ShownWidth = 1200;
  constexpr int ShownHeight = 900;
  control.plot()->resize(ShownWidth, ShownHeight);
  control.setSubnetIcons(loader.templateFolder());
  control.setCaption(loader.workspace().caption());
  control.showNetData(loader.workspace().filePath(QStringLiteral("plotsettings.ini")));
  control.plot()->grab();
  times.end(QStringLiteral("draw"));

  if (!line.picture.isEmpty()) {
    QString reason;
    if (!applyFunctions(line, control, reason))
      return failed(reason);
    if (!line.extent.isNull())
      control.plot()->showArea(line.extent);
    if (!line.labels.isEmpty())
      control.relabelNow();
    const PictureSize size(line.width > 0 ? line.width : CommandLine::DefaultWidth, line.scale);
    if (!exportPlot(*control.plot(), line.picture, size, &reason))
      return failed(reason);
    times.end(QStringLiteral("export"));
  }
  if (line.info) {
    const QByteArray json = QJsonDocument(info(net, loader, times, recorder)).toJson();
    if (!writeAll(LogFiles::realStandardOutput(), json))
      return failed(tr("The answer could not be written to the standard output."));
  }
  exitAtOnce(0);
}

int Batch::outOfMemory() {
  constexpr char Reason[] = "There is not enough memory for this network and picture.\n";
  const ssize_t written = ::write(LogFiles::realStandardError(), Reason, sizeof Reason - 1);
  static_cast<void>(written);
  return 1;
}
