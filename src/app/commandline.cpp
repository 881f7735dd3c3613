#include <QCommandLineParser>
#include <QCoreApplication>

#include <app/aboutbox.h>
#include <app/commandline.h>

namespace {

QString tr(const char *text) {
  return QCoreApplication::translate("CommandLine", text);
}

CommandLine wrong(const QString &text) {
  CommandLine line;
  line.action = CommandLine::Action::Wrong;
  line.text = text;
  return line;
}

CommandLine print(const QString &text) {
  CommandLine line;
  line.action = CommandLine::Action::Print;
  line.text = text;
  return line;
}

} // namespace

CommandLine CommandLine::parse(const QStringList &arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(tr("Viewer for gas-transport network models."));
  const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, tr("Shows this help."));
  const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")}, tr("Shows the version."));
  const QCommandLineOption info(QStringLiteral("info"), tr("Writes what FILE holds as one JSON object."));
  const QCommandLineOption picture(QStringLiteral("export"), tr("Writes the drawing of FILE; the suffix gives the format."),
                                   QStringLiteral("PICTURE"));
  const QCommandLineOption width(QStringLiteral("width"),
                                 tr("Width of the picture in pixels, %1 by default.").arg(DefaultWidth),
                                 QStringLiteral("PIXELS"));
  parser.addOptions({help, version, info, picture, width});
  parser.addPositionalArgument(QStringLiteral("FILE"), tr("Geometry or scenario file to open."), QStringLiteral("[FILE]"));
  if (!parser.parse(arguments))
    return wrong(parser.errorText());
  if (parser.isSet(help))
    return print(parser.helpText());
  if (parser.isSet(version))
    return print(QStringLiteral("Nivra Reader %1\n").arg(AboutBox::version()));

  CommandLine line;
  line.info = parser.isSet(info);
  line.picture = parser.value(picture);
  const QStringList files = parser.positionalArguments();
  line.file = files.value(0);
  if (parser.isSet(picture) && line.picture.trimmed().isEmpty())
    return wrong(tr("--export needs the name of a picture."));
  if (line.info || parser.isSet(picture)) {
    line.action = Action::Batch;
    if (files.size() != 1)
      return wrong(tr("--info and --export take exactly one FILE."));
  }
  if (parser.isSet(width)) {
    bool isNumber = false;
    line.width = parser.value(width).toInt(&isNumber);
    if (!isNumber || line.width < 1 || !parser.isSet(picture))
      return wrong(tr("--width takes a positive number of pixels and goes with --export."));
    line.width = qMin(line.width, LargestWidth);
  }
  return line;
}
