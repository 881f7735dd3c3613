#include <base/nivramsg.h>
#include <io/networkfileconverter.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

#include <convert/caseconverter.h>
#include <convert/gaslibimport.h>
#include <cstdio>

namespace {

void tell(const Findings &findings) {
  for (const Finding &finding : findings)
    std::fprintf(stderr, "%s\n", finding.logText().toLocal8Bit().constData());
}

} // namespace

int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  NivraMsg::setInteractive(false);
  QCommandLineParser parser;
  parser.setApplicationDescription(
      QStringLiteral("Converts network files between their two forms, JSON (.jsn) and text.\n"
                     "IN and OUT are network files (.geom, .scen, .gas, .fix, .res, .gaspar, .res.sub, with or\n"
                     "without .jsn), or case folders, all network files of which are written in the other form.\n"
                     "A public network instance in XML (.net) becomes the case folder OUT."));
  parser.addHelpOption();
  parser.addPositionalArgument(QStringLiteral("IN"), QStringLiteral("file or folder"));
  parser.addPositionalArgument(QStringLiteral("OUT"), QStringLiteral("file or folder to be written"));
  const QCommandLineOption scenario(QStringLiteral("scenario"),
                                    QStringLiteral("nomination of a .net, else the .scn beside it"), QStringLiteral("FILE"));
  const QCommandLineOption compressors(QStringLiteral("compressors"),
                                       QStringLiteral("compressor stations of a .net, else the .cs beside it"),
                                       QStringLiteral("FILE"));
  parser.addOptions({scenario, compressors});
  parser.process(application);
  const QStringList names = parser.positionalArguments();
  constexpr int Usage = 2;
  if (names.size() != 2) {
    std::fprintf(stderr, "%s", parser.helpText().toLocal8Bit().constData());
    return Usage;
  }
  if (names[0].endsWith(QStringLiteral(".net"))) {
    const GasLibImport::Result result =
        GasLibImport::import(names[0], parser.value(scenario), parser.value(compressors), names[1]);
    tell(result.findings);
    if (result.ok)
      std::printf("%d nodes, %d drives, %d edges, %d set points written\n", result.nodes, result.drives, result.edges,
                  result.setPoints);
    return result.ok ? 0 : 1;
  }
  if (QFileInfo(names[0]).isDir()) {
    const CaseConverter::Result result = CaseConverter::convert(names[0], names[1]);
    tell(result.findings);
    std::printf("%d network files written\n", result.files);
    return result.ok ? 0 : 1;
  }
  const NetworkFileConverter::Result result = NetworkFileConverter::convert(names[0], names[1]);
  tell(result.findings);
  if (result.ok)
    std::printf("%d records written\n", result.records);
  return result.ok ? 0 : 1;
}
