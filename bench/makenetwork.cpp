// nivra-make-network: writes a generated network as a workspace that the viewer opens.

#include "networkgenerator.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("nivra-make-network"));
  QTextStream out(stdout);
  QTextStream err(stderr);

  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("Writes a generated gas network as a workspace case into OUTDIR."));
  parser.addHelpOption();
  const QCommandLineOption elementsOption(QStringLiteral("elements"), QStringLiteral("Number of elements."),
                                          QStringLiteral("N"), QStringLiteral("10000"));
  const QCommandLineOption seedOption(QStringLiteral("seed"), QStringLiteral("Seed of the random numbers."),
                                      QStringLiteral("S"), QStringLiteral("1"));
  parser.addOptions({elementsOption, seedOption});
  parser.addPositionalArgument(QStringLiteral("OUTDIR"), QStringLiteral("The case folder to write."));
  parser.process(application);

  bool elementsOk = false;
  bool seedOk = false;
  const int elements = parser.value(elementsOption).toInt(&elementsOk);
  const quint64 seed = parser.value(seedOption).toULongLong(&seedOk);
  constexpr int Largest = 20000000;
  if (!elementsOk || !seedOk || elements < 1 || elements > Largest || parser.positionalArguments().size() != 1) {
    err << parser.helpText();
    return 2;
  }
  const QString folder = QDir(parser.positionalArguments().first()).absolutePath();
  try {
    const NetworkGenerator::Summary summary = NetworkGenerator::write(folder, elements, seed);
    out << NetworkGenerator::geometryFile(folder) << ": " << summary.nodes << " nodes, " << summary.edges << " edges\n";
  } catch (const std::exception &error) {
    err << QString::fromUtf8(error.what()) << '\n';
    return 1;
  }
  return 0;
}
