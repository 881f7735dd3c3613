#include "caseconverter.h"
#include "gaslibimport.h"

#include <base/nivramsg.h>
#include <io/networkfileconverter.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

#include <cstdio>

namespace {

constexpr int Done = 0;
constexpr int Failed = 1;
constexpr int Usage = 2;

/// What was noticed to standard error, what was done to standard output.
int tell(bool ok, const Findings &findings, const QString &done, const ConversionReport &report) {
  for (const Finding &finding : findings)
    std::fprintf(stderr, "%s\n", finding.logText().toLocal8Bit().constData());
  if (!ok)
    return Failed;
  std::printf("%s\n%s", done.toLocal8Bit().constData(), report.text().toLocal8Bit().constData());
  return std::fflush(stdout) == 0 ? Done : Failed;
}

int importNetwork(const GasLibImport::Request &request) {
  const GasLibImport::Result result = GasLibImport::import(request);
  return tell(result.ok, result.findings,
              QStringLiteral("%1 nodes, %2 drives, %3 edges, %4 set points, %5 written: %6")
                  .arg(result.nodes)
                  .arg(result.drives)
                  .arg(result.edges)
                  .arg(result.setPoints)
                  .arg(result.scenarios.size() == 1 ? QStringLiteral("1 scenario")
                                                    : QStringLiteral("%1 scenarios").arg(result.scenarios.size()))
                  .arg(result.scenarios.join(QStringLiteral(", "))),
              result.report);
}

int convertCase(const QString &from, const QString &to, bool overwrites) {
  const CaseConverter::Result result = CaseConverter::convert(from, to, overwrites);
  return tell(result.ok, result.findings, QStringLiteral("%1 network files written").arg(result.files), result.report);
}

int convertFile(const QString &from, const QString &to) {
  const NetworkFileConverter::Result result = NetworkFileConverter::convert(from, to);
  return tell(result.ok, result.findings, QStringLiteral("%1 records written").arg(result.records), result.report);
}

struct Options {
  QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("shows this help")};
  QCommandLineOption version{{QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("shows the version")};
  QCommandLineOption scenario{
      QStringLiteral("scenario"),
      QStringLiteral("nomination of a .net, or a folder of them, else the .scn beside it; may be given several times"),
      QStringLiteral("FILE")};
  QCommandLineOption compressors{QStringLiteral("compressors"),
                                 QStringLiteral("compressor stations of a .net, else the .cs beside it"),
                                 QStringLiteral("FILE")};
  QCommandLineOption overwrite{
      QStringLiteral("overwrite"),
      QStringLiteral("replace other files of the same names that are in the folder OUT; its solverconfig.jsn stay")};

  void addTo(QCommandLineParser &parser) const {
    parser.setApplicationDescription(
        QStringLiteral("Converts network files between their two forms, JSON (.jsn) and text.\n"
                       "IN and OUT are network files (.geom, .scen, .gas, .fix, .res, .gaspar, .res.sub, with or\n"
                       "without .jsn), or case folders, all network files of which are written in the other form.\n"
                       "A public network instance in XML (.net) becomes the case folder OUT, each nomination (.scn) a\n"
                       "scenario of its name. A conversion that fails leaves nothing behind (exit status 1)."));
    parser.addPositionalArgument(QStringLiteral("IN"), QStringLiteral("file or folder"));
    parser.addPositionalArgument(QStringLiteral("OUT"), QStringLiteral("file or folder to be written"));
    parser.addPositionalArgument(QStringLiteral("SCN"), QStringLiteral("further nominations of a .net"),
                                 QStringLiteral("[SCN...]"));
    parser.addOptions({help, version, scenario, compressors, overwrite});
  }
};

int print(const QString &text) {
  std::fputs(qPrintable(text), stdout);
  return std::fflush(stdout) == 0 ? Done : Failed;
}

int wrongUsage(const QString &text) {
  std::fputs(qPrintable(text), stderr);
  return Usage;
}

} // namespace

int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  NivraMsg::setInteractive(false);
  const Options options;
  QCommandLineParser parser;
  options.addTo(parser);
  if (!parser.parse(QCoreApplication::arguments()))
    return wrongUsage(parser.errorText() + QLatin1Char('\n'));
  if (parser.isSet(options.help))
    return print(parser.helpText());
  if (parser.isSet(options.version))
    return print(QStringLiteral("nivra-convert %1\n").arg(QStringLiteral(NIVRA_VERSION)));
  const QStringList names = parser.positionalArguments();
  const bool isImport = !names.isEmpty() && GasLibImport::isNetwork(names[0]);
  const bool isOfImport = names.size() > 2 || parser.isSet(options.scenario) || parser.isSet(options.compressors);
  if (names.size() < 2 || (isOfImport && !isImport))
    return wrongUsage(parser.helpText());
  const bool overwrites = parser.isSet(options.overwrite);
  if (isImport)
    return importNetwork(
        {names[0], parser.values(options.scenario) + names.mid(2), parser.value(options.compressors), names[1], overwrites});
  if (QFileInfo(names[0]).isDir())
    return convertCase(names[0], names[1], overwrites);
  return convertFile(names[0], names[1]);
}
