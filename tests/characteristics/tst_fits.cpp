#include <support/nivratest.h>
#include <support/smallfiles.h>

#include <QTemporaryDir>

#include <cmath>
#include <machines/machinereader.h>
#include <sys/stat.h>

class TestFits : public QObject {
  Q_OBJECT

private slots:
  void roots();
  void fitsFindTheFunction();
  void poorPointsAreRefused_data();
  void poorPointsAreRefused();
  void publishedStation();
  void coefficientsOnly();
  void textTables();
  void faultyTables_data();
  void faultyTables();
  void faultyXml_data();
  void faultyXml();
  void specialFilesAreRefused();

private:
  static QString shared(const char *name) {
    return QStringLiteral(NIVRA_SOURCE_DIR "/../shared/data/compressors/") + QLatin1String(name);
  }
  MachineReader::Result read(const QByteArray &text) const {
    return MachineReader::read(SmallFiles::write(m_folder.filePath(QStringLiteral("machines")), text));
  }
  static QString texts(const Findings &findings) {
    QStringList list;
    for (const Finding &finding : findings)
      list.append(QString::number(finding.line) + QLatin1Char(' ') + finding.text);
    return list.join(QLatin1Char('\n'));
  }

  QTemporaryDir m_folder;
};

void TestFits::roots() {
  QCOMPARE(Fits::solve({{-6, 1, 1}}, 0.0), (std::vector<double>{-3, 2}));
  QCOMPARE(Fits::solve({{1, 2, 0}}, 5.0), std::vector<double>{2});
  QVERIFY(Fits::solve({{1, 0, 1}}, 0.0).empty());
  QVERIFY(Fits::solve({{3, 0, 0}}, 0.0).empty());
  const std::vector<double> apart = Fits::solve({{1, -1e8, 1}}, 0.0); // where the plain formula loses the small one
  QVERIFY(std::abs(apart.front() - 1e-8) < 1e-15);
}

void TestFits::fitsFindTheFunction() {
  const Biquadratic truth{{3, 2e-3, 1e-7, -4, 1e-4, -2e-8, 0.5, -3e-5, 1e-9}};
  std::vector<FitPoint> points;
  for (int n = 3000; n <= 9000; n += 1500) {
    for (double q = 0.5; q < 3.0; q += 0.5)
      points.push_back({q, double(n), truth(q, n)});
  }
  Biquadratic fitted;
  const Fits::Quality quality = Fits::fit(points, fitted);
  QVERIFY(quality.ok);
  QVERIFY(quality.largestResidual < 1e-9);
  QVERIFY(std::abs(fitted(1.7, 5000) - truth(1.7, 5000)) < 1e-9);
  QCOMPARE(truth.inX(5000)(1.7), truth(1.7, 5000));
  QVERIFY(std::abs(truth.inY(1.7)(5000) - truth(1.7, 5000)) < 1e-12);
}

void TestFits::poorPointsAreRefused_data() {
  QTest::addColumn<int>("speeds");
  QTest::addColumn<int>("flows");
  QTest::newRow("two points") << 1 << 2;
  QTest::newRow("equal speeds") << 1 << 20;
  QTest::newRow("two speeds") << 2 << 20;
  QTest::newRow("equal flows") << 20 << 1;
}

void TestFits::poorPointsAreRefused() {
  QFETCH(int, speeds);
  QFETCH(int, flows);
  std::vector<FitPoint> points;
  for (int i = 0; i < speeds; ++i) {
    for (int k = 0; k < flows; ++k)
      points.push_back({1.0 + k, 3000.0 + 500 * i, 10.0 + k - i});
  }
  Biquadratic fitted;
  const Fits::Quality quality = Fits::fit(points, fitted);
  QVERIFY(!quality.ok);
  QVERIFY(!quality.reason.isEmpty());
}

void TestFits::publishedStation() {
  const QString path = shared("GasLib-135-two-stations.cs");
  if (!QFile::exists(path))
    QSKIP("the machine data are not on this machine");
  const MachineReader::Result result = MachineReader::read(path);
  QVERIFY2(result.ok && result.findings.empty(), qPrintable(texts(result.findings)));
  QCOMPARE(result.data.turbos.size(), std::size_t(2));
  QCOMPARE(result.data.drives.size(), std::size_t(2));
  const TurboCompressor &machine = result.data.turbos.front();
  QCOMPARE(machine.name, QStringLiteral("compressor_1"));
  QCOMPARE(machine.points.size() + machine.surgePoints.size(), std::size_t(81));
  QVERIFY(machine.headQuality.ok && machine.efficiencyQuality.ok && machine.surgeQuality.ok);

  // The coefficients that are published beside the points.
  const Biquadratic head{{0, 0.006036379698308192, 0, 0, 0, 0, -5.073208950952076, 0.000105700661533296, 0}};
  const Biquadratic efficiency{{0.8947892693126072, -2.253341057317449e-05, 1.182214108900868e-09, 0.03138877123712933,
                                3.778377088492774e-05, -2.560258490628826e-09, -0.1717399853222829, 1.266950676067393e-05,
                                -1.727197034470033e-10}};
  double worst = 0.0;
  for (double speed = machine.speedMin; speed <= machine.speedMax; speed += 100) {
    const auto flows = machine.flows(speed);
    QVERIFY(flows.has_value());
    for (int i = 0; i <= 20; ++i) {
      const double flow = flows->first + (flows->second - flows->first) * i / 20;
      worst = std::max(worst, std::abs((*machine.head)(flow, speed) / head(flow, speed) - 1.0));
    }
  }
  std::vector<FitPoint> measured;
  for (const MeasuredPoint &point : machine.points)
    measured.push_back({point.flow, point.speed, point.efficiency});
  const Fits::Quality published = Fits::compare(measured, efficiency);
  qInfo("head: within %.4f %% of the published speed lines", 100 * worst);
  qInfo("efficiency: largest residual %.6f of our fit, %.6f of the published coefficients; condition %.0f",
        machine.efficiencyQuality.largestResidual, published.largestResidual, machine.efficiencyQuality.condition);
  QVERIFY(worst < 1e-3);
  QVERIFY(machine.efficiencyQuality.largestResidual < published.largestResidual);
}

void TestFits::coefficientsOnly() {
  for (const char *name : {"GasLib-11.cs", "GasLib-40.cs"}) {
    if (!QFile::exists(shared(name)))
      QSKIP("the machine data are not on this machine");
    const MachineReader::Result result = MachineReader::read(shared(name));
    QVERIFY2(result.findings.empty(), qPrintable(texts(result.findings)));
    QVERIFY(!result.data.turbos.empty());
    for (const TurboCompressor &machine : result.data.turbos) {
      QVERIFY(machine.isUsable() && !machine.headQuality.ok); // given, not ours
      const auto flows = machine.flows((machine.speedMin + machine.speedMax) / 2);
      QVERIFY(flows && flows->first > 0.0 && flows->second > flows->first);
    }
    for (const Drive &drive : result.data.drives)
      QVERIFY(drive.isUsable());
  }
}

void TestFits::textTables() {
  QByteArray text =
      "[turbo compressor]\nname;drive;speedmin;speedmax\nT 1;D1;4000;8000\n[points]\nname;speed;flow;head;efficiency\n";
  for (int n = 4000; n <= 8000; n += 1000) {
    for (double q = 1; q <= 3; q += 0.5)
      text += "T 1;" + QByteArray::number(n) + ';' + QByteArray::number(q) + ';' + QByteArray::number(1e-6 * n * n - q * q) +
              ";0.8\n";
  }
  text += "[electric motor]\nname;power1;energy2\nD1;5000;1.05\n[piston "
          "compressor]\nname;speedmin;speedmax;displacement;torque;ratio;efficiency\nK;300;900;0.2;40;3;0.85\n";
  const MachineReader::Result result = read(text);
  QVERIFY2(result.findings.empty(), qPrintable(texts(result.findings)));
  const TurboCompressor *machine = result.data.turbo(QStringLiteral("t 1"));
  QVERIFY(machine != nullptr && machine->headQuality.ok);
  QVERIFY(std::abs((*machine->head)(2, 6000) - 32) < 1e-6);
  QCOMPARE((*result.data.drive(QStringLiteral("D1"))->power)(20, 1000), 5000.0);
  QCOMPARE(result.data.piston(QStringLiteral("K"))->displacement, 0.2);
  QVERIFY(result.data.drive(QStringLiteral("none")) == nullptr);
}

void TestFits::faultyTables_data() {
  QTest::addColumn<QByteArray>("rows");
  QTest::addColumn<QString>("message");
  QTest::newRow("two points") << QByteArray("T;4000;1;20;0.8\nT;5000;1;30;0.8\n") << QStringLiteral("2 points are too few");
  QTest::newRow("text") << QByteArray("T;fast;1;20;0.8\n") << QStringLiteral("5 T: \"speed\" is no number: fast");
  QTest::newRow("negative efficiency") << QByteArray("T;4000;1;20;-0.8\n") << QStringLiteral("a point is left out");
  QTest::newRow("other machine") << QByteArray("U;4000;1;20;0.8\n") << QStringLiteral("no machine of this name");
  QTest::newRow("nothing") << QByteArray() << QStringLiteral("neither coefficients nor enough points");
}

void TestFits::faultyTables() {
  QFETCH(QByteArray, rows);
  QFETCH(QString, message);
  const MachineReader::Result result =
      read("[turbo compressor]\nname;speedmin;speedmax\nT;4000;8000\n[points]\n" +
           QByteArray("name;speed;flow;head;efficiency\n").prepend(rows.isEmpty() ? "" : "") + rows);
  QVERIFY(result.ok);
  QVERIFY2(texts(result.findings).contains(message.mid(message.startsWith(QLatin1Char('5')) ? 2 : 0)),
           qPrintable(texts(result.findings)));
  QCOMPARE(result.data.turbos.size(), std::size_t(1)); // the machine stays, without a map
  QVERIFY(!result.data.turbos.front().isUsable());
}

void TestFits::faultyXml_data() {
  QTest::addColumn<QByteArray>("text");
  QTest::addColumn<QString>("message");
  QTest::addColumn<int>("machines");
  const QByteArray head = "<compressorStations xmlns=\"http://gaslib.zib.de/CompressorStations\">";
  const QByteArray machine =
      "<compressorStation><compressors><turboCompressor id=\"a\"><speedMin value=\"1\"/></turboCompressor>";
  QTest::newRow("bomb") << QByteArray("<!DOCTYPE x [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;\">]>") + head + "&b;"
                        << QStringLiteral("document type") << 0;
  QTest::newRow("external entity") << QByteArray("<!DOCTYPE x [<!ENTITY a SYSTEM \"file:///etc/passwd\">]>") + head + "&a;"
                                   << QStringLiteral("document type") << 0;
  QTest::newRow("other namespace") << QByteArray("<compressorStations>") + machine +
                                          "</compressors></compressorStation></compressorStations>"
                                   << QStringLiteral("The namespace is \"\"") << 1;
  QTest::newRow("ends early") << head + machine << QStringLiteral("cannot be read any further") << 1;
  QTest::newRow("other file") << QByteArray("<svg/>") << QStringLiteral("holds svg instead") << 0;
  QTest::newRow("unknown element") << head + machine + "\n<magic/></compressors></compressorStation></compressorStations>"
                                   << QStringLiteral("2 the element magic is not known") << 1;
  QTest::newRow("text for a number")
      << head + "<compressorStation><compressors><turboCompressor id=\"a\"><speedMin value=\"x\"/></turboCompressor>" +
             "</compressors></compressorStation></compressorStations>"
      << QStringLiteral("speedMin is no number: \"x\"") << 1;
  QTest::newRow("text for an efficiency")
      << head + "<compressorStation><compressors><turboCompressor id=\"a\"><characteristicDiagramMeasurements>" +
             "<adiabaticEfficiency value=\"high\"/></characteristicDiagramMeasurements></turboCompressor>" +
             "</compressors></compressorStation></compressorStations>"
      << QStringLiteral("adiabaticEfficiency is no number: \"high\"") << 1;
}

void TestFits::faultyXml() {
  QFETCH(QByteArray, text);
  QFETCH(QString, message);
  QFETCH(int, machines);
  const MachineReader::Result result = read(text);
  QVERIFY2(texts(result.findings).contains(message), qPrintable(texts(result.findings)));
  QCOMPARE(int(result.data.turbos.size()), machines);
}

/// They would never end.
void TestFits::specialFilesAreRefused() {
  const QString pipe = m_folder.filePath(QStringLiteral("pipe"));
  QCOMPARE(::mkfifo(qPrintable(pipe), 0600), 0);
  for (const QString &path : {pipe, QStringLiteral("/dev/zero")}) {
    const MachineReader::Result result = MachineReader::read(path);
    QVERIFY(!result.ok && result.data.isEmpty());
    QVERIFY2(texts(result.findings).contains(path), qPrintable(texts(result.findings)));
  }
}

NIVRA_TEST(TestFits);
#include "tst_fits.moc"
