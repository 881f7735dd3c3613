#include <model/displayformat.h>
#include <support/nivratest.h>

#include <limits>

class TestDisplayFormat : public QObject {
  Q_OBJECT

private slots:
  void numbersForTheEye_data();
  void numbersForTheEye();
  void columnsReadAlike();
};

void TestDisplayFormat::numbersForTheEye_data() {
  QTest::addColumn<double>("value");
  QTest::addColumn<QString>("text");
  const auto row = [](double value, const char *text) {
    QTest::newRow(text) << value << QString::fromLatin1(text);
  };
  row(83.84299999999999, "83.843");
  row(0.033697930194084, "0.0336979");
  row(0.0003, "0.0003");
  row(0.0123456, "0.0123456");
  row(-12.5, "-12.5");
  row(0.0, "0");
  row(-0.0, "0");
  row(99999.96, "100000");
  row(9.9999999, "10");
  row(1234567.25, "1234567");
  row(70, "70");
  row(1e-7, "1e-07");
  row(-3e22, "-3e+22");
  row(std::numeric_limits<double>::infinity(), "inf");
}

void TestDisplayFormat::numbersForTheEye() {
  QFETCH(double, value);
  QFETCH(QString, text);
  QCOMPARE(DisplayFormat::number(value), text);
}

void TestDisplayFormat::columnsReadAlike() {
  const int decimals = DisplayFormat::decimals(79.84, 4);
  QCOMPARE(DisplayFormat::fixed(79.7, decimals), QStringLiteral("79.70"));
  QCOMPARE(DisplayFormat::fixed(79.84, decimals), QStringLiteral("79.84"));
  QCOMPARE(DisplayFormat::fixed(0.0003, decimals), QStringLiteral("0.0003"));
  QCOMPARE(DisplayFormat::fixed(-0.001, decimals), QStringLiteral("-0.001"));
  QCOMPARE(DisplayFormat::fixed(0, decimals), QStringLiteral("0.00"));
  QCOMPARE(DisplayFormat::decimals(123456789.0, 4), 0);
  QCOMPARE(DisplayFormat::decimals(0.0, 4), 0);
  QCOMPARE(DisplayFormat::decimals(9.9996, 4), 2); // reads 10.00
}

NIVRA_TEST(TestDisplayFormat);
#include "tst_displayformat.moc"
