#include "helppages.h"
#include "programrun.h"

#include <support/nivratest.h>

#include <QDir>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>

using ProgramRun::Outcome;

/// What `cmake --install` puts into a folder, and what it says of itself.
class TestInstalled : public QObject {
  Q_OBJECT

private slots:
  void initTestCase();
  void programFindsItsFiles();
  void guideHasItsPictures();
  void iconsAreSquare();
  void manPagesKnowEveryOption_data();
  void manPagesKnowEveryOption();
  void fileTypesKnowTheFilesOfTheExample();
  void desktopFileFits();

private:
  QString path(const QString &name) const { return m_prefix.filePath(name); }
  QByteArray content(const QString &name) const {
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  QTemporaryDir m_prefix;
  QTemporaryDir m_data;
};

void TestInstalled::initTestCase() {
  QProcess cmake;
  cmake.setProcessChannelMode(QProcess::MergedChannels);
  cmake.start(QStringLiteral(NIVRA_CMAKE),
              {QStringLiteral("--install"), QStringLiteral(NIVRA_BUILD_DIR), QStringLiteral("--prefix"), m_prefix.path()});
  QVERIFY(cmake.waitForFinished(120000));
  QVERIFY2(cmake.exitCode() == 0, cmake.readAll().constData());
}

void TestInstalled::programFindsItsFiles() {
  const Outcome outcome = ProgramRun::runProgram(
      path(QStringLiteral("bin/NivraViewer")),
      {QStringLiteral("--info"), path(QStringLiteral("libexec/nivra-reader/example/DE_H2/S5/S5.scen.jsn"))}, m_data.path());
  QVERIFY2(outcome.status == 0, outcome.errors.constData());
  QCOMPARE(outcome.info()[QStringLiteral("assembledSubnets")].toInt(), 6);
  QVERIFY2(!outcome.output.contains("net_subassemblies"), "the templates of subnets are not found");
  const Outcome convert =
      ProgramRun::runProgram(path(QStringLiteral("bin/nivra-convert")), {QStringLiteral("--version")}, m_data.path());
  QCOMPARE(convert.output.left(14), QByteArray("nivra-convert "));
  for (const char *file : {"share/doc/nivra-reader/CHANGELOG.md", "share/doc/nivra-reader/LICENSE",
                           "share/metainfo/org.nivra.NivraReader.metainfo.xml"})
    QVERIFY2(QFile::exists(path(QLatin1String(file))), file);
}

void TestInstalled::guideHasItsPictures() {
  static const QRegularExpression picture(QStringLiteral("!\\[[^\\]]*\\]\\(([^)]+)\\)"));
  const HelpPages help;
  int pictures = 0;
  for (const HelpPages::Page &page : help.pages()) {
    for (auto it = picture.globalMatch(page.markdown); it.hasNext(); ++pictures) {
      const QString target = it.next().captured(1);
      // Where the help looks for them: beside the program, links followed.
      QVERIFY2(!QImage(path(QStringLiteral("libexec/nivra-reader/docs/") + target)).isNull(), qPrintable(target));
    }
  }
  QVERIFY(pictures > 10);
}

void TestInstalled::iconsAreSquare() {
  const QDir icons(path(QStringLiteral("share/icons/hicolor")));
  for (const QString &size : icons.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    if (size == QLatin1String("scalable"))
      continue;
    const QImage icon(icons.filePath(size + QStringLiteral("/apps/org.nivra.NivraReader.png")));
    const int side = size.section(QLatin1Char('x'), 0, 0).toInt();
    QCOMPARE(icon.size(), QSize(side, side));
  }
  QVERIFY(icons.exists(QStringLiteral("scalable/apps/org.nivra.NivraReader.svg")));
  QVERIFY(icons.exists(QStringLiteral("48x48")));
}

void TestInstalled::manPagesKnowEveryOption_data() {
  QTest::addColumn<QString>("program");
  QTest::newRow("viewer") << QStringLiteral("NivraViewer");
  QTest::newRow("convert") << QStringLiteral("nivra-convert");
}

// Every option of --help has a paragraph of its own, and the page tells of no other.
void TestInstalled::manPagesKnowEveryOption() {
  QFETCH(QString, program);
  const QString help = QString::fromUtf8(
      ProgramRun::runProgram(path(QStringLiteral("bin/") + program), {QStringLiteral("--help")}, m_data.path()).output);
  static const QRegularExpression helped(QStringLiteral("^  (?:-., )?--([a-z-]+)"), QRegularExpression::MultilineOption);
  static const QRegularExpression headed(QStringLiteral("^\\.TP\\n\\.B[RI]? [^\\n]*?--([a-z-]+)"),
                                         QRegularExpression::MultilineOption);
  const auto all = [](const QRegularExpression &expression, const QString &text) {
    QStringList options;
    for (auto it = expression.globalMatch(text); it.hasNext();)
      options.append(it.next().captured(1));
    options.sort();
    return options;
  };
  const QString page = QString::fromUtf8(content(QStringLiteral("share/man/man1/%1.1").arg(program)))
                           .replace(QStringLiteral("\\-"), QStringLiteral("-"));
  QVERIFY(all(helped, help).contains(QStringLiteral("help")));
  QCOMPARE(all(headed, page), all(helped, help));
}

void TestInstalled::fileTypesKnowTheFilesOfTheExample() {
  const QString types = QString::fromUtf8(content(QStringLiteral("share/mime/packages/org.nivra.NivraReader.xml")));
  static const QRegularExpression pattern(QStringLiteral("glob pattern=\"([^\"]+)\""));
  QStringList globs;
  for (auto it = pattern.globalMatch(types); it.hasNext();)
    globs.append(it.next().captured(1));
  const QStringList others{QStringLiteral("machines.txt"), QStringLiteral("plotsettings.ini")};
  const QDir example(QStringLiteral(NIVRA_SOURCE_DIR "/example/DE_H2"));
  for (const QString &folder : {QStringLiteral("."), QStringLiteral("S5")}) {
    for (const QString &name : QDir(example.filePath(folder)).entryList(QDir::Files))
      QVERIFY2(QDir::match(globs, name) || others.contains(name), qPrintable(name));
  }
}

void TestInstalled::desktopFileFits() {
  const QByteArray desktop = content(QStringLiteral("share/applications/org.nivra.NivraReader.desktop"));
  const QByteArray types = content(QStringLiteral("share/mime/packages/org.nivra.NivraReader.xml"));
  static const QRegularExpression list(QStringLiteral("^MimeType=(.*)$"), QRegularExpression::MultilineOption);
  const QStringList opened = list.match(QString::fromUtf8(desktop)).captured(1).split(QLatin1Char(';'), Qt::SkipEmptyParts);
  QCOMPARE(opened.size(), 4);
  for (const QString &type : opened)
    QVERIFY2(types.contains("type=\"" + type.toUtf8() + '"'), qPrintable(type));
  QVERIFY(desktop.contains("Exec=NivraViewer %f\n"));
}

NIVRA_TEST(TestInstalled);
#include "tst_installed.moc"
