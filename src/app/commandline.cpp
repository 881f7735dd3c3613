#include "commandline.h"

#include "aboutbox.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QHash>
#include <QVector>

#include <algorithm>
#include <cmath>

namespace {

CommandLine answer(CommandLine::Action action, const QString &text) {
  CommandLine line;
  line.action = action;
  line.text = text;
  return line;
}

/// Options of the toolkit, which the application object takes for itself; it knows them with one or two dashes.
struct ToolkitOptions {
  static bool hasValue(const QString &name) {
    static const QStringList names{QStringLiteral("platform"),        QStringLiteral("platformpluginpath"),
                                   QStringLiteral("platformtheme"),   QStringLiteral("plugin"),
                                   QStringLiteral("qwindowgeometry"), QStringLiteral("geometry"),
                                   QStringLiteral("qwindowtitle"),    QStringLiteral("title"),
                                   QStringLiteral("qwindowicon"),     QStringLiteral("icon"),
                                   QStringLiteral("session"),         QStringLiteral("display"),
                                   QStringLiteral("style"),           QStringLiteral("stylesheet")};
    return names.contains(name);
  }

  static bool isSwitch(const QString &name) {
    static const QStringList names{QStringLiteral("reverse"), QStringLiteral("nograb"), QStringLiteral("dograb"),
                                   QStringLiteral("testability"), QStringLiteral("widgetcount")};
    return names.contains(name) || name.startsWith(QLatin1String("style=")) || name.startsWith(QLatin1String("stylesheet="));
  }

  /// Also notes the style, which the window would replace by its own.
  static QStringList without(const QStringList &arguments, QString &style) {
    QStringList left;
    for (int i = 0; i < arguments.size(); ++i) {
      const QString &argument = arguments[i];
      const QString name = argument.mid(argument.startsWith(QLatin1String("--")) ? 2 : 1);
      if (i == 0 || !argument.startsWith(QLatin1Char('-')) || !(hasValue(name) || isSwitch(name)))
        left.append(argument);
      else if (name.startsWith(QLatin1String("style=")))
        style = name.section(QLatin1Char('='), 1);
      else if (hasValue(name) && ++i < arguments.size() && name == QLatin1String("style"))
        style = arguments[i];
    }
    return left;
  }
};

/// The options that say how large the picture is.
struct SizeOptions {
  Q_DECLARE_TR_FUNCTIONS(CommandLine)
public:
  QCommandLineOption width{QStringLiteral("width"),
                           tr("Width of the picture in pixels, %1 by default.").arg(CommandLine::DefaultWidth),
                           QStringLiteral("PIXELS")};
  QCommandLineOption scale{QStringLiteral("scale"),
                           tr("Size of texts, lines and symbols in the picture against those on the screen, 1 by default."),
                           QStringLiteral("FACTOR")};

  QList<QCommandLineOption> all() const { return {width, scale}; }

  /// Why the options make no sense; empty when they do.
  QString take(const QCommandLineParser &parser, CommandLine &line) const {
    bool isNumber = true;
    if (parser.isSet(width))
      line.width = parser.value(width).toInt(&isNumber);
    if (parser.isSet(width) && (!isNumber || line.width < 1 || line.picture.isEmpty()))
      return tr("--width takes a positive number of pixels and goes with --export.");
    line.width = qMin(line.width, CommandLine::LargestWidth);
    if (parser.isSet(scale))
      line.scale = parser.value(scale).toDouble(&isNumber);
    const bool isInRange = line.scale >= CommandLine::SmallestScale && line.scale <= CommandLine::LargestScale;
    if (parser.isSet(scale) && (!isNumber || !isInRange || line.picture.isEmpty()))
      return tr("--scale takes a number from %1 to %2 and goes with --export.")
          .arg(CommandLine::SmallestScale)
          .arg(CommandLine::LargestScale);
    return QString();
  }
};

/// The options that say what the picture shows.
struct DrawOptions {
  Q_DECLARE_TR_FUNCTIONS(CommandLine)
public:
  PerAspect<QCommandLineOption> functions{
      {QCommandLineOption(QStringLiteral("color-by"), tr("Property by which the edges are coloured."),
                          QStringLiteral("PROPERTY")),
       QCommandLineOption(QStringLiteral("width-by"), tr("Property that gives the edges their width."),
                          QStringLiteral("PROPERTY")),
       QCommandLineOption(QStringLiteral("node-color-by"), tr("Property by which the nodes are coloured."),
                          QStringLiteral("PROPERTY")),
       QCommandLineOption(QStringLiteral("node-size-by"), tr("Property that gives the nodes their size."),
                          QStringLiteral("PROPERTY"))}};
  QCommandLineOption labels{QStringLiteral("labels"), tr("What labels say."), QStringLiteral("none|name|selected")};
  QCommandLineOption extent{QStringLiteral("extent"), tr("Part of the network to show, in its coordinates."),
                            QStringLiteral("x0,y0,x1,y1")};

  QList<QCommandLineOption> all() const {
    QList<QCommandLineOption> options{labels, extent};
    for (const Aspect aspect : AllAspects)
      options.insert(static_cast<int>(aspect), functions[aspect]);
    return options;
  }

  /// Why the options make no sense; empty when they do.
  QString take(const QCommandLineParser &parser, CommandLine &line) const {
    const QList<QCommandLineOption> options = all();
    const bool isAnySet = std::any_of(options.begin(), options.end(),
                                      [&parser](const QCommandLineOption &option) { return parser.isSet(option); });
    if (isAnySet && line.picture.isEmpty())
      return tr("--color-by, --width-by, --node-color-by, --node-size-by, --labels and --extent go with --export.");
    static const QHash<QString, QString> Modes{{QStringLiteral("none"), QStringLiteral("no label")},
                                               {QStringLiteral("name"), QStringLiteral("name only")},
                                               {QStringLiteral("selected"), QStringLiteral("selected properties")}};
    line.labels = Modes.value(parser.value(labels));
    if (parser.isSet(labels) && line.labels.isEmpty())
      return tr("--labels takes none, name or selected.");
    for (const Aspect aspect : AllAspects)
      line.functions[aspect] = parser.value(functions[aspect]);
    return parser.isSet(extent) && !takeExtent(parser.value(extent), line.extent)
               ? tr("--extent takes four numbers, x0,y0,x1,y1, that span an area.")
               : QString();
  }

  static bool takeExtent(const QString &text, QRectF &extent) {
    QVector<double> corners;
    for (const QString &part : text.split(QLatin1Char(','))) {
      bool isNumber = false;
      const double number = part.toDouble(&isNumber);
      if (!isNumber || !(std::abs(number) < 1e20)) // as coordinates of elements
        return false;
      corners.append(number);
    }
    if (corners.size() != 4)
      return false;
    extent = QRectF(QPointF(corners[0], corners[1]), QPointF(corners[2], corners[3])).normalized();
    return extent.width() > 0.0 && extent.height() > 0.0;
  }
};

} // namespace

CommandLine CommandLine::parse(const QStringList &arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(tr("Viewer for gas-transport network models."));
  const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, tr("Shows this help."));
  const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")}, tr("Shows the version."));
  const QCommandLineOption info(QStringLiteral("info"), tr("Writes what FILE holds as one JSON object."));
  const QCommandLineOption picture(QStringLiteral("export"), tr("Writes the drawing of FILE; the suffix gives the format."),
                                   QStringLiteral("PICTURE"));
  const QCommandLineOption clean(QStringLiteral("clean"),
                                 tr("Opens FILE as for the first time: how it was left does not come back, and how "
                                    "it is left now is not kept."));
  const SizeOptions size;
  const DrawOptions drawing;
  parser.addOptions(QList<QCommandLineOption>{help, version, clean, info, picture} + size.all() + drawing.all());
  parser.addPositionalArgument(QStringLiteral("FILE"), tr("Geometry or scenario file to open."), QStringLiteral("[FILE]"));
  QString style;
  if (!parser.parse(ToolkitOptions::without(arguments, style)))
    return answer(Action::Wrong, parser.errorText());
  if (parser.isSet(help))
    return answer(Action::Print, parser.helpText());
  if (parser.isSet(version))
    return answer(Action::Print, QStringLiteral("Nivra Reader %1\n").arg(AboutBox::version()));

  CommandLine line;
  line.style = style;
  line.isClean = parser.isSet(clean);
  line.info = parser.isSet(info);
  line.picture = parser.value(picture);
  const QStringList files = parser.positionalArguments();
  line.file = files.value(0);
  if (parser.isSet(picture) && line.picture.trimmed().isEmpty())
    return answer(Action::Wrong, tr("--export needs the name of a picture."));
  if (line.info || parser.isSet(picture)) {
    line.action = Action::Batch;
    if (files.size() != 1)
      return answer(Action::Wrong, tr("--info and --export take exactly one FILE."));
  }
  const QString wrongSize = size.take(parser, line);
  const QString reason = wrongSize.isEmpty() ? drawing.take(parser, line) : wrongSize;
  return reason.isEmpty() ? line : answer(Action::Wrong, reason);
}
