#include "commandline.h"

#include "aboutbox.h"
#include "language/language.h"
#include "toolkitoptions.h"

#include <tools/elementquery.h>

#include <QCommandLineParser>
#include <QVector>

#include <algorithm>

namespace {

bool isAnySet(const QCommandLineParser &parser, const QList<QCommandLineOption> &options) {
  return std::any_of(options.begin(), options.end(),
                     [&parser](const QCommandLineOption &option) { return parser.isSet(option); });
}

double number(const QString &text) {
  bool isNumber = false;
  const double value = text.toDouble(&isNumber);
  return isNumber ? value : qQNaN();
}

/// The options that make a picture.
struct PictureOptions {
  Q_DECLARE_TR_FUNCTIONS(CommandLine)
public:
  QCommandLineOption picture{QStringLiteral("export"), tr("Writes the drawing of FILE; the suffix gives the format."),
                             QStringLiteral("PICTURE")};
  QCommandLineOption width{QStringLiteral("width"),
                           tr("Width of the picture in pixels, %1 by default.").arg(BatchTask::Picture::DefaultWidth),
                           QStringLiteral("PIXELS")};
  QCommandLineOption scale{QStringLiteral("scale"),
                           tr("Size of texts, lines and symbols in the picture against those on the screen, 1 by default."),
                           QStringLiteral("FACTOR")};
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
  QCommandLineOption style{QStringLiteral("style"),
                           tr("Name of a style, such as velocity, or plot settings (.ini) or a label table (.csv) for the "
                              "picture, laid over those "
                              "of the case; may be given several times."),
                           QStringLiteral("NAME|FILE")};

  QList<QCommandLineOption> details() const {
    QList<QCommandLineOption> options{width, scale};
    for (const Aspect aspect : AllAspects)
      options.append(functions[aspect]);
    return options + QList<QCommandLineOption>{labels, extent, style};
  }

  /// Why the options make no sense; empty when they do.
  QString take(const QCommandLineParser &parser, BatchTask &task) const {
    if (!parser.isSet(picture))
      return isAnySet(parser, details()) ? tr("--width, --scale, --color-by, --width-by, --node-color-by, --node-size-by, "
                                              "--labels, --extent and --style go with --export.")
                                         : QString();
    BatchTask::Picture asked;
    asked.path = parser.value(picture);
    if (asked.path.trimmed().isEmpty())
      return tr("--export needs the name of a picture.");
    for (const Aspect aspect : AllAspects)
      asked.functions[aspect] = parser.value(functions[aspect]);
    QString reason = takeValues(parser, asked);
    task.pictures.push_back(asked);
    return reason;
  }

private:
  QString takeValues(const QCommandLineParser &parser, BatchTask::Picture &asked) const {
    QString reason;
    const auto say = [&reason](const QCommandLineOption &option, const QString &why) {
      if (reason.isEmpty() && !why.isEmpty())
        reason = QStringLiteral("--%1: %2.").arg(option.names().first(), why);
    };
    if (parser.isSet(width))
      say(width, asked.setWidth(number(parser.value(width))));
    if (parser.isSet(scale))
      say(scale, asked.setScale(number(parser.value(scale))));
    if (parser.isSet(labels))
      say(labels, asked.setLabels(parser.value(labels)));
    QVector<double> corners;
    for (const QString &corner : parser.value(extent).split(QLatin1Char(',')))
      corners.append(number(corner));
    if (parser.isSet(extent))
      say(extent, asked.setExtent(corners));
    for (const QString &file : parser.values(style))
      say(style, asked.addStyle(file));
    return reason;
  }
};

/// The options that tell what the network holds.
struct AnswerOptions {
  Q_DECLARE_TR_FUNCTIONS(CommandLine)
public:
  QCommandLineOption info{QStringLiteral("info"), tr("Writes what FILE holds as one JSON object.")};
  QCommandLineOption search{
      QStringLiteral("search"),
      tr("Lists the names of the elements that meet the criterion: a part of the name, or regex=, type=, "
         "prop=, value=, formula= with a pattern or formula. May be given several times. With prop= the "
         "properties that were found are listed as a table."),
      QStringLiteral("CRITERION")};
  QCommandLineOption table{QStringLiteral("table"),
                           tr("Lists properties, separated by commas, of the elements that have them, or of those that "
                              "--search finds, as a table (CSV)."),
                           QStringLiteral("PROPERTIES")};
  QCommandLineOption type{QStringLiteral("type"), tr("Element type of the --table, such as p or pipe."),
                          QStringLiteral("TYPE")};
  QCommandLineOption set{
      QStringLiteral("set"),
      tr("Minimum, maximum, mean, standard deviation and quantiles of properties, separated by commas (or \"all\"), over "
         "the "
         "scenarios of the case, for each element, as a table (CSV). With --export, --search or --table these know the "
         "figures as properties such as p.max instead."),
      QStringLiteral("PROPERTIES")};
  QCommandLineOption scenarios{
      QStringLiteral("scenarios"),
      tr("Scenarios of the --set, all by default: names with wildcards, separated by commas, or dates such as "
         "2015-01-01..2015-03-31."),
      QStringLiteral("PATTERN|DATES")};
  QCommandLineOption check{
      QStringLiteral("check"),
      tr("Lists findings, what the rules for networks find, and violated bounds. Exit status 0: there is "
         "nothing, 3: findings, 4: violated bounds.")};

  QList<QCommandLineOption> all() const { return {info, search, table, type, set, scenarios, check}; }

  /// Why the options make no sense; empty when they do.
  QString take(const QCommandLineParser &parser, const QString &output, BatchTask &task) const {
    task.info.isWanted = parser.isSet(info);
    task.check.isWanted = parser.isSet(check);
    if (parser.isSet(type) && !parser.isSet(table))
      return tr("--type goes with --table.");
    task.set = {parser.value(set).split(QLatin1Char(','), Qt::SkipEmptyParts), parser.value(scenarios)};
    if (parser.isSet(set) && task.set.properties.isEmpty())
      return tr("--set needs the name of a property, or \"all\".");
    if (parser.isSet(scenarios) && !parser.isSet(set))
      return tr("--scenarios goes with --set.");
    if (!parser.isSet(search) && !parser.isSet(table))
      return takeOutput(output, task);
    if (task.info.isWanted && output.isEmpty())
      return twoAnswers();
    BatchTask::List list;
    list.path = output;
    list.type = parser.value(type);
    list.properties = parser.value(table).split(QLatin1Char(','), Qt::SkipEmptyParts);
    if (parser.isSet(table) && list.properties.isEmpty())
      return tr("--table needs the name of a property.");
    QString reason;
    if (parser.isSet(search))
      list.search = ElementQuery::criteria(parser.values(search), &reason);
    task.lists.push_back(list);
    return reason;
  }

private:
  static QString twoAnswers() {
    return tr("--info and a list would both go to the standard output: name a file for the list by --output.");
  }

  /// Without a list.
  static QString takeOutput(const QString &output, BatchTask &task) {
    task.setTable = output;
    if (task.wantsSetTable())
      return task.info.isWanted && output.isEmpty() ? twoAnswers() : QString();
    return output.isEmpty() ? QString() : tr("--output goes with --search, --table, --set and --jobs.");
  }
};

/// All options that the program has.
struct Options {
  Q_DECLARE_TR_FUNCTIONS(CommandLine)
public:
  QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")}, tr("Shows this help.")};
  QCommandLineOption version{{QStringLiteral("v"), QStringLiteral("version")}, tr("Shows the version.")};
  QCommandLineOption clean{QStringLiteral("clean"),
                           tr("Opens FILE as for the first time: how it was left does not come back, "
                              "and how it is left now is not kept.")};
  QCommandLineOption language{
      QStringLiteral("language"),
      tr("Language of the window and of the texts in pictures; the texts on the command line are English."),
      QStringLiteral("en|de")};
  AnswerOptions answers;
  PictureOptions pictures;
  QCommandLineOption jobs{QStringLiteral("jobs"),
                          tr("Does the jobs of a JSON file: pictures, tables, searches and checks of many networks and "
                             "scenarios."),
                          QStringLiteral("JOBS")};
  QCommandLineOption output{QStringLiteral("output"),
                            tr("File for the list of --search, --table or --set, else it goes to the standard output; "
                               "folder for what --jobs write."),
                            QStringLiteral("PATH")};

  void addTo(QCommandLineParser &parser) const {
    parser.setApplicationDescription(
        tr("Viewer for gas-transport network models. Opens a window; --info, --export, --search,\n"
           "--table, --set, --check and --jobs do without one and need no display."));
    parser.addOptions(QList<QCommandLineOption>{help, version, clean, language, pictures.picture} + pictures.details() +
                      answers.all() + QList<QCommandLineOption>{jobs, output});
    parser.addPositionalArgument(QStringLiteral("FILE"), tr("Geometry or scenario file to open."), QStringLiteral("[FILE]"));
  }

  /// Why the options make no sense; empty when they do.
  QString take(const QCommandLineParser &parser, CommandLine &line) const {
    const QStringList files = parser.positionalArguments();
    line.file = files.value(0);
    line.task.file = line.file;
    line.isClean = parser.isSet(clean);
    line.output = parser.value(output);
    line.language = parser.value(language);
    if (parser.isSet(language) && !Language::isKnown(line.language))
      return tr("--language is en or de.");
    if (parser.isSet(jobs))
      return takeJobs(parser, line);
    QString reason = pictures.take(parser, line.task);
    if (reason.isEmpty())
      reason = answers.take(parser, line.output, line.task);
    if (!reason.isEmpty() || line.task.isEmpty())
      return reason;
    line.action = CommandLine::Action::Batch;
    return files.size() == 1 ? QString()
                             : tr("--info, --export, --search, --table, --set and --check take exactly one FILE.");
  }

private:
  QString takeJobs(const QCommandLineParser &parser, CommandLine &line) const {
    line.action = CommandLine::Action::Jobs;
    line.jobs = parser.value(jobs);
    const bool isAlone = line.file.isEmpty() && !parser.isSet(pictures.picture) && !isAnySet(parser, pictures.details()) &&
                         !isAnySet(parser, answers.all());
    return isAlone ? QString() : tr("--jobs takes no FILE and goes with --output alone: what is to be done is in its file.");
  }
};

/// The toolkit's, with the plain name of the program in place of the way to it.
QString helpText(const QCommandLineParser &parser) {
  const QString asCalled = QCoreApplication::arguments().constFirst();
  QString text = parser.helpText();
  const int at = text.indexOf(asCalled);
  return at < 0 ? text : text.replace(at, asCalled.size(), QStringLiteral("NivraViewer"));
}

CommandLine answer(CommandLine::Action action, const QString &text) {
  CommandLine line;
  line.action = action;
  line.text = text;
  return line;
}

} // namespace

CommandLine CommandLine::parse(const QStringList &arguments) {
  const ToolkitOptions split = ToolkitOptions::split(arguments);
  const Options options;
  QCommandLineParser parser;
  options.addTo(parser);
  if (!parser.parse(split.others))
    return answer(Action::Wrong, parser.errorText());
  if (parser.isSet(options.help))
    return answer(Action::Print, helpText(parser));
  if (parser.isSet(options.version))
    return answer(Action::Print, QStringLiteral("Nivra Reader %1\n").arg(AboutBox::version()));
  CommandLine line;
  line.style = split.style;
  line.toolkit = split.toolkit;
  const QString reason = options.take(parser, line);
  return reason.isEmpty() ? line : answer(Action::Wrong, reason);
}
