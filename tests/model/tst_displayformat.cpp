#include <base/settings.h>
#include <model/displayformat.h>
#include <support/nivratest.h>

#include <limits>

class TestDisplayFormat : public QObject {
  Q_OBJECT

private slots:
  void cleanup() { GeneralSettings::instance().reset(); }
  void numbersForTheEye_data();
  void numbersForTheEye();
  void columnsReadAlike();
  void chosenDigitsAndSigns();
  void textsOfTables();
  void numbersInFiles_data();
  void numbersInFiles();
  void typedNumbers();

private:
  static void choose(const QString &key, const char *value) {
    QVERIFY(GeneralSettings::suits(key, QString::fromLatin1(value)));
    GeneralSettings::instance().setValue(key, QString::fromLatin1(value));
  }
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

void TestDisplayFormat::chosenDigitsAndSigns() {
  choose(Settings::NumberDigits.key(), "3");
  QCOMPARE(DisplayFormat::number(83.843), QStringLiteral("83.8"));
  choose(Settings::NumberForm.key(), "decimals");
  QCOMPARE(DisplayFormat::number(83.8), QStringLiteral("83.800"));
  QCOMPARE(DisplayFormat::number(0.00012), QStringLiteral("0.00012")); // it is not 0
  choose(Settings::DecimalSign.key(), "comma");
  choose(Settings::Thousands.key(), "other sign");
  QCOMPARE(DisplayFormat::number(-1234567.5), QStringLiteral("-1.234.567,500"));
  QCOMPARE(DisplayFormat::number(-123.0), QStringLiteral("-123,000"));
  QCOMPARE(DisplayFormat::number(1e-9), QStringLiteral("1e-09"));
  choose(Settings::Thousands.key(), "apostrophe");
  QCOMPARE(DisplayFormat::fixed(12345.678, 1), QStringLiteral("12'345,7"));
  QCOMPARE(DisplayFormat::inLabel(12345.0), QStringLiteral("12'345"));
  choose(Settings::Thousands.key(), "none");
  choose(Settings::NumberDigitsInLabels.key(), "6");
  QCOMPARE(DisplayFormat::inLabel(1234.5678), QStringLiteral("1234,57"));
  QCOMPARE(DisplayFormat::inLabel(std::numeric_limits<double>::infinity(), 2), QStringLiteral("inf"));
  GeneralSettings::instance().reset();
  QCOMPARE(DisplayFormat::inLabel(12345.0), QStringLiteral("12\u2009345"));
  QCOMPARE(DisplayFormat::number(12345.0), QStringLiteral("12345"));
}

void TestDisplayFormat::textsOfTables() {
  choose(Settings::DecimalSign.key(), "comma");
  choose(Settings::Thousands.key(), "space");
  QCOMPARE(DisplayFormat::shown(QStringLiteral("83.84299999999999"), true), QStringLiteral("83,843"));
  QCOMPARE(DisplayFormat::shown(QStringLiteral("10.50"), true), QStringLiteral("10,50")); // short enough as it stands
  QCOMPARE(DisplayFormat::shown(QStringLiteral("12500"), true), QStringLiteral("12\u2009500"));
  for (const char *text : {"1998", "DN 1.200", "1.2.3", "", "abc", "1,5", "(a;b;)"}) // years, names, versions
    QCOMPARE(DisplayFormat::shown(QString::fromLatin1(text), false), QString::fromLatin1(text));
  choose(Settings::NumberForm.key(), "decimals");
  choose(Settings::NumberDigits.key(), "2");
  QCOMPARE(DisplayFormat::shown(QStringLiteral("5"), true), QStringLiteral("5,00"));
  QCOMPARE(DisplayFormat::shown(QStringLiteral("5"), false), QStringLiteral("5"));
}

void TestDisplayFormat::numbersInFiles_data() {
  QTest::addColumn<QByteArray>("thousands");
  QTest::addColumn<QByteArray>("digits");
  QTest::addColumn<bool>("comma");
  QTest::addColumn<QString>("exact");
  QTest::addColumn<QString>("written");
  const auto row = [](const char *thousands, const char *digits, bool comma, const char *exact, const char *written) {
    QTest::addRow("%s %s %d %s", thousands, digits, int(comma), exact)
        << QByteArray(thousands) << QByteArray(digits) << comma << QString::fromLatin1(exact)
        << QString::fromLatin1(written);
  };
  row("none", "0", false, "83.84299999999999", "83.84299999999999");
  row("none", "0", true, "83.84299999999999", "83,84299999999999");
  row("none", "0", true, "v1.2 of 3.4", "v1,2 of 3,4"); // as every point of a value always was
  row("none", "4", false, "83.84299999999999", "83.84");
  row("none", "4", false, "1234567", "1234567");
  row("other sign", "0", true, "-1234567.25", "-1.234.567,25");
  row("other sign", "0", false, "1234567.25", "1,234,567.25");
  row("space", "0", false, "12500", "12 500");
  row("apostrophe", "0", true, "1e-12", "1e-12");
}

void TestDisplayFormat::numbersInFiles() {
  QFETCH(QByteArray, thousands);
  QFETCH(QByteArray, digits);
  QFETCH(bool, comma);
  QFETCH(QString, exact);
  QFETCH(QString, written);
  choose(Settings::DecimalSign.key(), "comma"); // that of the screen is another
  choose(Settings::NumberDigits.key(), "2");
  choose(Settings::ThousandsInFiles.key(), thousands.constData());
  choose(Settings::NumberDigitsInFiles.key(), digits.constData());
  QCOMPARE(DisplayFormat::inFile(exact, comma), written);
}

void TestDisplayFormat::typedNumbers() {
  QCOMPARE(DisplayFormat::typed(QStringLiteral(" 5.25 ")), QStringLiteral("5.25"));
  QCOMPARE(DisplayFormat::typed(QStringLiteral("5,25")), QStringLiteral("5,25")); // no number where the sign is a point
  QCOMPARE(DisplayFormat::typed(QStringLiteral("1,234,567.5")), QStringLiteral("1234567.5"));
  QCOMPARE(DisplayFormat::typed(QStringLiteral("1,234,56")), QStringLiteral("1,234,56"));
  QCOMPARE(DisplayFormat::typed(QStringLiteral("5,25"), QLatin1Char(',')), QStringLiteral("5.25")); // shown before
  choose(Settings::DecimalSign.key(), "comma");
  QCOMPARE(DisplayFormat::typed(QStringLiteral("5,25")), QStringLiteral("5.25"));
  QCOMPARE(DisplayFormat::typed(QStringLiteral("12 345,5")), QStringLiteral("12345.5"));
  QCOMPARE(DisplayFormat::typed(QStringLiteral("1.234.567,5")), QStringLiteral("1234567.5"));
  QCOMPARE(DisplayFormat::typed(QStringLiteral("5.25")), QStringLiteral("5.25")); // a point is always one
  QCOMPARE(DisplayFormat::typed(QStringLiteral("five")), QStringLiteral("five"));
  QCOMPARE(DisplayFormat::editable(QStringLiteral("-5.25e3")), QStringLiteral("-5,25e3"));
  QCOMPARE(DisplayFormat::typed(DisplayFormat::editable(QStringLiteral("-5.25e3"))), QStringLiteral("-5.25e3"));
  QCOMPARE(DisplayFormat::editable(QStringLiteral("a.b")), QStringLiteral("a.b"));
}

NIVRA_TEST(TestDisplayFormat);
#include "tst_displayformat.moc"
