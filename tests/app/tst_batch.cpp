#include "programrun.h"
#include "workspacefixture.h"

#include <base/generalsettings.h>
#include <support/nivratest.h>

#include <QImage>
#include <QTemporaryDir>

#include <cmath>

using ProgramRun::Outcome;

/// Searches, tables, checks and styles on the command line, by the program itself.
class TestBatch : public QObject {
  Q_OBJECT

private slots:
  void searchListsNames_data();
  void searchListsNames();
  void searchListsProperties();
  void tableHasTheWantedColumns();
  void tableOfWhatASearchFinds();
  void tableToAFile();
  void refusals_data();
  void refusals();
  void checkTellsByItsStatus();
  void checkGoesByTheRules();
  void hostileNamesStayLines();
  void styleChangesThePicture();
  void answersOfTheExample();
  void answersOfRealNetworks();

private:
  Outcome run(const QStringList &arguments) const { return ProgramRun::run(arguments, m_data.path()); }
  Outcome search(const QStringList &criteria, const QString &file) const {
    QStringList arguments;
    for (const QString &criterion : criteria)
      arguments << QStringLiteral("--search") << criterion;
    return run(arguments << file);
  }
  static QString example(const QString &scenario) {
    return QStringLiteral(NIVRA_SOURCE_DIR "/example/DE_H2/%1/%1.scen.jsn").arg(scenario);
  }

  WorkspaceFixture m_workspace;
  QTemporaryDir m_data;
};

void TestBatch::searchListsNames_data() {
  QTest::addColumn<QStringList>("criteria");
  QTest::addColumn<QString>("names");
  const auto row = [](const char *criteria, const char *names) {
    QTest::newRow(criteria) << QString::fromLatin1(criteria).split(QLatin1Char(' ')) << QString::fromLatin1(names);
  };
  row("1", "K1 P1");
  row("regex=^.1$ type=^p$", "P1");
  row("type=node", "A B C");
  row("name=.", "");
  row("type=^n value=>=50", "A B C"); // in any property: coordinates too
  row("type=^n value=p@ELE>=50", "A C");
  row("formula=q@ELE>1", "K1 P1");
  row("nothing", "");
}

void TestBatch::searchListsNames() {
  QFETCH(QStringList, criteria);
  QFETCH(QString, names);
  const Outcome outcome = search(criteria, m_workspace.geometry());
  QCOMPARE(outcome.status, 0);
  QCOMPARE(outcome.lines().join(QLatin1Char(' ')), names);
}

void TestBatch::searchListsProperties() {
  const Outcome outcome = search({QStringLiteral("type=^n"), QStringLiteral("prop=^p$")}, m_workspace.geometry());
  QCOMPARE(outcome.status, 0);
  QCOMPARE(outcome.lines(), (QStringList{QStringLiteral("\"name\";\"type\";\"property\";\"value\";\"unit\";"),
                                         QStringLiteral("\"A\";\"n\";\"p\";\"50\";\"bar\";"),
                                         QStringLiteral("\"B\";\"n\";\"p\";\"48\";\"bar\";"),
                                         QStringLiteral("\"C\";\"n\";\"p\";\"60\";\"bar\";")}));
}

void TestBatch::tableHasTheWantedColumns() {
  const Outcome pipes = run({QStringLiteral("--table"), QStringLiteral("q,LENGTH"), QStringLiteral("--type"),
                             QStringLiteral("pipe"), m_workspace.geometry()});
  QCOMPARE(pipes.status, 0);
  QCOMPARE(pipes.lines(), (QStringList{QStringLiteral("\"name\";\"type\";\"q [1000 m3/h]\";\"LENGTH [km]\";"),
                                       QStringLiteral("\"P1\";\"p\";\"5\";\"0,1\";")}));
  const QStringList all = run({QStringLiteral("--table"), QStringLiteral("p,q"), m_workspace.geometry()}).lines();
  QCOMPARE(all.size(), 1 + 5); // nodes have the one, edges the other
  QVERIFY2(all.contains(QStringLiteral("\"K1\";\"c\";\"\";\"5\";")), qPrintable(all.join(QLatin1Char('\n'))));
}

void TestBatch::tableOfWhatASearchFinds() {
  const Outcome outcome = run({QStringLiteral("--search"), QStringLiteral("formula=p@ELE>49"), QStringLiteral("--table"),
                               QStringLiteral("x,p"), m_workspace.geometry()});
  QCOMPARE(outcome.status, 0);
  QCOMPARE(outcome.lines().mid(1),
           (QStringList{QStringLiteral("\"A\";\"n\";\"0\";\"50\";"), QStringLiteral("\"C\";\"n\";\"100\";\"60\";")}));
}

void TestBatch::tableToAFile() {
  const QString path = m_data.filePath(QStringLiteral("table.csv"));
  const Outcome outcome = run({QStringLiteral("--info"), QStringLiteral("--table"), QStringLiteral("p"),
                               QStringLiteral("--output"), path, m_workspace.geometry()});
  QCOMPARE(outcome.status, 0);
  QCOMPARE(outcome.info()[QStringLiteral("nodes")].toInt(), 3);
  QFile file(path);
  QVERIFY(file.open(QIODevice::ReadOnly));
  QCOMPARE(file.readAll().count('\n'), 4);
}

void TestBatch::refusals_data() {
  QTest::addColumn<QStringList>("arguments");
  QTest::addColumn<int>("status");
  QTest::addColumn<QByteArray>("said");
  const QString file = m_workspace.geometry();
  const auto row = [&](const char *arguments, int status, const char *said) {
    QStringList list = QString::fromLatin1(arguments).split(QLatin1Char(' '));
    QTest::newRow(arguments) << (list << file) << status << QByteArray(said);
  };
  row("--table nix", 1, "\"nix\"");
  row("--table ,", 2, "--table");
  row("--type pipe", 2, "--type");
  row("--search typ=p", 2, "\"typ\"");
  row("--search formula=1+", 1, "search stopped");
  row("--search regex=[", 1, "\"[\"");
  row("--search type=((((", 1, "((((");
  row("--search value=*", 1, "\"*\"");
  row("--search a --info", 2, "--output");
  row("--output a.csv", 2, "--output");
  row("--output a.csv --check", 2, "--output");
  row("--style a.ini --info", 2, "--export");
  row("--export a.png --style a.txt", 2, ".ini");
  row("--export a.png --style nowhere.ini", 1, "nowhere.ini");
  row("--export a.png --style nosuch", 1, "nosuch");
  row("--export a.png --style power", 1, "power");
  row("--jobs a.json", 2, "--jobs");
  QTest::newRow("onto what is read") << QStringList{QStringLiteral("--table"), QStringLiteral("p"),
                                                    QStringLiteral("--output"), file, file}
                                     << 1 << QByteArray("cannot be written");
}

void TestBatch::refusals() {
  QFETCH(QStringList, arguments);
  QFETCH(int, status);
  QFETCH(QByteArray, said);
  const Outcome outcome = run(arguments);
  QCOMPARE(outcome.status, status);
  QVERIFY2(outcome.errors.contains(said), outcome.errors.constData());
  QVERIFY(outcome.output.isEmpty());
}

void TestBatch::checkTellsByItsStatus() {
  const WorkspaceFixture workspace;
  workspace.write(QStringLiteral("CASE/S1/S1.gas.jsn"), "{\n\"H\":{\"obj_type\":\"gas\",\"hs\":12.7}\n}\n");
  workspace.writeBalanced(QStringLiteral("S1"), "5");
  const auto check = [&] {
    return run({QStringLiteral("--check"), workspace.scenario()});
  };
  const Outcome sound = check();
  QVERIFY2(sound.status == 0 && sound.output.isEmpty(), sound.output.constData());
  workspace.write(QStringLiteral("CASE/a.formulas"), "not a line\n");
  const Outcome found = check();
  QCOMPARE(found.status, 3);
  QVERIFY2(found.lines().size() == 1 && found.output.contains("a.formulas:1"), found.output.constData());
  workspace.write(QStringLiteral("CASE/b.constraints"), "p(n) in .. 55 \"too high\"\n");
  const Outcome violated = check();
  QCOMPARE(violated.status, 4);
  QVERIFY2(violated.output.contains("C: too high"), violated.output.constData());
  const Outcome beside =
      run({QStringLiteral("--check"), QStringLiteral("--table"), QStringLiteral("p"), workspace.scenario()});
  QCOMPARE(beside.status, 4);
  QVERIFY(beside.errors.contains("too high") && !beside.output.contains("too high"));
  QCOMPARE(run({QStringLiteral("--check"), workspace.path(QStringLiteral("none.geom"))}).status, 1);
}

void TestBatch::checkGoesByTheRules() {
  const WorkspaceFixture workspace;
  const auto check = [&] {
    return run({QStringLiteral("--check"), workspace.scenario()});
  };
  workspace.write(QStringLiteral("CASE/S1/S1.gas.jsn"), "{\n\"H\":{\"obj_type\":\"gas\",\"hs\":12.7}\n}\n");
  workspace.writeBalanced(QStringLiteral("S1"), "5");
  QByteArray twice = WorkspaceFixture::soundGeometry();
  const QByteArray pipe =
      ",\"P1\":{\"obj_type\":\"pipe\",\"node1\":\"A\",\"node2\":\"B\",\"length\":100,\"diameter\":500}\n";
  twice.replace(twice.indexOf(",\"P1\""), twice.indexOf(",\"K1\"") - twice.indexOf(",\"P1\""),
                pipe + QByteArray(pipe).replace("P1", "P2"));
  workspace.writeGeometry(twice);
  const Outcome same = check(); // for information: there are such pipes
  QVERIFY2(same.status == 0 && same.lines().size() == 1, same.output.constData());
  QVERIFY2(same.output.startsWith("duplicate-pipes: P1: "), same.output.constData());
  const QString settings = GeneralSettings::settingsFile(workspace.root()).section(QLatin1Char('/'), -1);
  workspace.write(settings, "rule: duplicate-pipes;network check;list;warning;;\n");
  QCOMPARE(check().status, 3);
  workspace.write(settings, "rule: duplicate-pipes;network check;list;off;;\n");
  QVERIFY(check().output.isEmpty());
  workspace.writeGeometry(QByteArray(twice).replace("\"length\":100", "\"length\":0"));
  const Outcome lengths = check();
  QCOMPARE(lengths.status, 3);
  QCOMPARE(lengths.lines().filter(QStringLiteral("zero-length: ")).size(), 2);
}

void TestBatch::hostileNamesStayLines() {
  const WorkspaceFixture workspace;
  workspace.writeGeometry("{\n\"N\\n\\u001b[2J\":{\"obj_type\":\"node\",\"x\":0,\"y\":0,\"p\":\"=1+1\"}\n}\n");
  const Outcome names = search({QStringLiteral("N")}, workspace.geometry());
  QCOMPARE(names.status, 0);
  QVERIFY2(names.output.count('\n') == 1 && !names.output.contains('\x1b'), names.output.constData());
  const Outcome table = run({QStringLiteral("--table"), QStringLiteral("p"), workspace.geometry()});
  QVERIFY2(table.output.contains("\"'=1+1\""), table.output.constData());
}

void TestBatch::styleChangesThePicture() {
  const QString settings = m_data.filePath(QStringLiteral("dark.ini")); // outside of the workspace
  SmallFiles::write(settings, "[color_options]\nbgrColor=#102030\n");
  const auto picture = [&](const QStringList &style) {
    const QString path = m_data.filePath(QStringLiteral("style.png"));
    const Outcome outcome =
        run(QStringList{QStringLiteral("--export"), path, QStringLiteral("--width"), QStringLiteral("400")} + style +
            QStringList{m_workspace.geometry()});
    return outcome.status == 0 ? QImage(path) : QImage();
  };
  const QImage plain = picture({});
  const QImage dark = picture({QStringLiteral("--style"), settings});
  QVERIFY(!plain.isNull());
  const auto share = [](const QImage &image, QRgb color) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x)
        count += image.pixel(x, y) == color ? 1 : 0;
    }
    return static_cast<double>(count) / (image.width() * image.height());
  };
  QVERIFY(share(plain, qRgb(0x10, 0x20, 0x30)) < 0.01);
  QVERIFY(share(dark, qRgb(0x10, 0x20, 0x30)) > 0.3);
  SmallFiles::write(settings, "[drawing]\nlegend=false\n"); // one key changes one thing: the colours stay
  const QImage bare = picture({QStringLiteral("--style"), settings});
  const QImage pressure =
      picture({QStringLiteral("--style"), settings, QStringLiteral("--style"), QStringLiteral("pressure")});
  QVERIFY(bare != plain && !bare.isNull());
  QCOMPARE(bare, pressure); // by which the case is drawn anyway
  QVERIFY(picture({QStringLiteral("--style"), settings, QStringLiteral("--style"), QStringLiteral("Flow")}) != bare);
  QVERIFY(!picture({QStringLiteral("-style"), QStringLiteral("fusion")}).isNull()); // that of the toolkit
}

// What the plain data of the example say, counted without the program's own search.
void TestBatch::answersOfTheExample() {
  const Outcome fast =
      search({QStringLiteral("type=^p"), QStringLiteral("value=abs(v@ELE)>20")}, example(QStringLiteral("S5")));
  QCOMPARE(fast.status, 0);
  QFile results(QStringLiteral(NIVRA_SOURCE_DIR "/example/DE_H2/S5/S5.res.jsn"));
  QVERIFY(results.open(QIODevice::ReadOnly));
  const QJsonObject values = QJsonDocument::fromJson(results.readAll()).object();
  QStringList expected;
  for (auto it = values.begin(); it != values.end(); ++it) {
    if (it.key().startsWith(QStringLiteral("P_")) && std::abs(it.value()[QStringLiteral("v")].toDouble()) > 20.0)
      expected.append(it.key());
  }
  QStringList found = fast.lines();
  found.sort();
  expected.sort();
  QVERIFY(expected.size() > 5);
  QCOMPARE(found, expected);
  const Outcome check = run({QStringLiteral("--check"), example(QStringLiteral("S5"))});
  QCOMPARE(check.status, 4);
  QCOMPARE(check.lines().filter(QStringLiteral("Bounds: ")).size(), expected.size());
  QCOMPARE(run({QStringLiteral("--check"), example(QStringLiteral("S1"))}).status, 0);
}

void TestBatch::answersOfRealNetworks() {
  const QString file = QStringLiteral(NIVRA_SOURCE_DIR "/../shared/data/GasLib-40/N1/N1.scen.jsn");
  if (!QFile::exists(file))
    QSKIP("the network is not on this machine");
  QCOMPARE(search({QStringLiteral("type=^p$")}, file).lines().size(), 39);
  const Outcome table = run(
      {QStringLiteral("--table"), QStringLiteral("length,diameter"), QStringLiteral("--type"), QStringLiteral("p"), file});
  QCOMPARE(table.lines().size(), 1 + 39);
}

NIVRA_TEST(TestBatch);
#include "tst_batch.moc"
