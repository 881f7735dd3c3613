#include <base/nivramsg.h>
#include <io/networkfileconverter.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

#include <convert/caseconverter.h>
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
                     "without .jsn), or case folders, all network files of which are written in the other form."));
  parser.addHelpOption();
  parser.addPositionalArgument(QStringLiteral("IN"), QStringLiteral("file or folder"));
  parser.addPositionalArgument(QStringLiteral("OUT"), QStringLiteral("file or folder to be written"));
  parser.process(application);
  const QStringList names = parser.positionalArguments();
  constexpr int Usage = 2;
  if (names.size() != 2) {
    std::fprintf(stderr, "%s", parser.helpText().toLocal8Bit().constData());
    return Usage;
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
