#include <support/nivratest.h>
#include <support/smallfiles.h>

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cmath>
#include <machines/machinereader.h>

/// Reads drives in the shapes in which they are published.
class TestMachineXml : public QObject {
  Q_OBJECT

private slots:
  void turbinesByTemperature();
  void engines();
  void faultyMeasurements();
  void hostileFiles_data();
  void hostileFiles();

private:
  MachineReader::Result read(const QByteArray &drives) const {
    return MachineReader::read(SmallFiles::write(
        m_folder.filePath(QStringLiteral("m.cs")),
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<compressorStations "
        "xmlns=\"http://gaslib.zib.de/CompressorStations\"><compressorStation id=\"S\"><compressors/>\n<drives>" +
            drives + "</drives></compressorStation></compressorStations>"));
  }
  static QString texts(const Findings &findings) {
    QString all;
    for (const Finding &finding : findings)
      all += finding.logText() + QLatin1Char('\n');
    return all;
  }
  static QByteArray value(const char *name, double number, const char *unit) {
    return QByteArray("<") + name + " value=\"" + QByteArray::number(number, 'g', 12) + "\" unit=\"" + unit + "\"/>";
  }
  static QByteArray point(double speed, double power) {
    return "<measurement>" + value("speed", speed, "per_min") + value("maximalPower", power, "kW") + "</measurement>";
  }
  static QByteArray consumption(double power, double rate) {
    return "<measurement>" + value("compressorPower", power, "kW") + value("fuelConsumption", rate, "kW") + "</measurement>";
  }

  QTemporaryDir m_folder;
};

/// Four temperatures at four speeds each, as a whole network's file has them.
void TestMachineXml::turbinesByTemperature() {
  const auto power = [](double temperature, double speed) {
    return 2000 + 1.9 * speed - 1e-4 * speed * speed - 40 * temperature;
  };
  QByteArray temperatures;
  for (const double temperature : {-5.0, 5.0, 15.0, 25.0}) {
    const bool isInKelvin = temperature > 20.0;
    temperatures += "\n<ambientTemperature value=\"" + QByteArray::number(temperature + (isInKelvin ? 273.15 : 0.0)) +
                    "\" unit=\"" + (isInKelvin ? "K" : "Celsius") + "\">";
    for (const double speed : {4778.0, 5460.0, 6143.0, 6825.0})
      temperatures += point(speed, power(temperature, speed));
    temperatures += "</ambientTemperature>";
  }
  for (const char *kind : {"gasTurbine", "steamTurbine"}) {
    const MachineReader::Result result =
        read(QByteArray("<") + kind + " id=\"G\"><specificEnergyConsumptionMeasurements>" + consumption(9000, 43470) +
             consumption(7500, 40725) + consumption(6000, 37980) + consumption(3000, 32490) +
             "</specificEnergyConsumptionMeasurements><maximalPowerMeasurements>" + temperatures +
             "</maximalPowerMeasurements></" + kind + ">");
    QVERIFY2(result.findings.empty(), qPrintable(texts(result.findings)));
    const Drive *drive = result.data.drive(QStringLiteral("G"));
    QVERIFY(drive != nullptr);
    QCOMPARE(drive->powerPoints.size(), std::size_t(16));
    QCOMPARE(drive->kind, qstrcmp(kind, "gasTurbine") == 0 ? Drive::Kind::GasTurbine : Drive::Kind::SteamTurbine);
    for (const Drive::PowerPoint &measured : drive->powerPoints)
      QVERIFY(std::abs(measured.power - power(measured.temperature, measured.speed)) < 1e-6);
    QVERIFY(std::abs((*drive->power)(0.0, 6000.0) - power(0.0, 6000.0)) < 1.0); // between what was measured
    QVERIFY(std::abs((*drive->energy)(9000.0) - 43470.0) < 1.0);
  }
}

/// Their power depends on the speed alone: three points and three coefficients are enough.
void TestMachineXml::engines() {
  const QByteArray points = point(165, 4375) + point(250, 6600) + point(330, 8750);
  for (const char *kind : {"gasDrivenMotor", "electricMotor"}) {
    const MachineReader::Result result =
        read(QByteArray("<") + kind +
             " id=\"M\"><power_fun_coeff_1 value=\"230.515\"/><power_fun_coeff_2 value=\"24.4196\"/><power_fun_coeff_3 "
             "value=\"0.00423351\"/><specificEnergyConsumptionMeasurements>" +
             consumption(5250, 15997) + consumption(7000, 20621) + consumption(8750, 25329) +
             "</specificEnergyConsumptionMeasurements><maximalPowerMeasurements>" + points +
             "</maximalPowerMeasurements></" + kind + ">");
    QVERIFY2(result.findings.empty(), qPrintable(texts(result.findings)));
    const Drive *drive = result.data.drive(QStringLiteral("M"));
    QCOMPARE(drive->powerPoints.size(), std::size_t(3));
    for (const double temperature : {-10.0, 12.0, 30.0})
      QVERIFY(std::abs((*drive->power)(temperature, 250.0) - 6600.0) < 1.0);
  }
}

void TestMachineXml::faultyMeasurements() {
  const MachineReader::Result result =
      read("<gasDrivenMotor id=\"M\"><maximalPowerMeasurements>\n" + point(165, 4375) + point(250, 6600) + point(330, 8750) +
           "\n<measurement>" + value("speed", 300, "per_min") + "</measurement>\n<measurement>" +
           value("speed", 300, "per_year") + value("maximalPower", 1, "kW") +
           "</measurement>\n<well/></maximalPowerMeasurements></gasDrivenMotor>");
  QCOMPARE(result.data.drives.front().powerPoints.size(), std::size_t(3)); // none is invented
  const QString told = texts(result.findings);
  QVERIFY2(told.contains(QStringLiteral("M: a measurement needs its speed and its power; it is left out (")) &&
               told.contains(QStringLiteral(":5)")) && told.contains(QStringLiteral("the unit \"per_year\" of speed")) &&
               told.contains(QStringLiteral("the element well is not known")),
           qPrintable(told));
}

void TestMachineXml::hostileFiles_data() {
  QTest::addColumn<QByteArray>("inside");
  QTest::addColumn<QString>("message");
  QByteArray attributes;
  for (int i = 0; i < 190000; ++i)
    attributes += " a" + QByteArray::number(i) + "=\"1\"";
  QTest::newRow("attributes") << "\n<gasTurbine" + attributes + "/>" << QStringLiteral("An element has 190000 attributes");
  QTest::newRow("nesting") << QByteArray("<gasTurbine>").repeated(100000) << QStringLiteral("nested more than");
}

void TestMachineXml::hostileFiles() {
  QFETCH(QByteArray, inside);
  QFETCH(QString, message);
  QElapsedTimer timer;
  timer.start();
  const MachineReader::Result result = read(inside);
  QVERIFY2(texts(result.findings).contains(message), qPrintable(texts(result.findings)));
  QVERIFY(timer.elapsed() < 2000);
  QVERIFY(result.data.isEmpty());
}

NIVRA_TEST(TestMachineXml);
#include "tst_machinexml.moc"
