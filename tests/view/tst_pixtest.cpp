#include <base/generalsettings.h>
#include <drawing/pixtest.h>
#include <support/nivratest.h>

class TestPixtest : public QObject {
  Q_OBJECT

private slots:
  void init();
  void cleanup() { GeneralSettings::instance().reset(); }
  void switchedOff();
  void never();
  void proximity_data();
  void proximity();
  void subassembliesAlwaysHaveLabels();
  void burstGivesOneTest();
  void alwaysIsThrottled();
  void waitKeepsTheRequest();

private:
  static void set(const char *key, const char *value) {
    GeneralSettings::instance().setValue(QString::fromLatin1(key), QString::fromLatin1(value));
  }

  int m_with = 0;
  int m_without = 0;
  Pixtest::View m_view;
  std::unique_ptr<Pixtest> m_pixtest;
};

void TestPixtest::init() {
  m_with = 0;
  m_without = 0;
  m_view = Pixtest::View();
  m_pixtest =
      std::make_unique<Pixtest>([this](Pixtest::Labels labels) { ++(labels == Pixtest::Labels::With ? m_with : m_without); },
                                [this] { return m_view; });
}

void TestPixtest::switchedOff() {
  m_pixtest->setSuspended(true);
  m_pixtest->requestPixtest(-1, true);
  m_pixtest->setSuspended(false);
  set("perform pixtest", "0");
  m_pixtest->requestPixtest(-1, true);
  QCOMPARE(m_with + m_without, 0);
}

void TestPixtest::never() {
  set("perform label placement", "never");
  m_pixtest->requestPixtest(50, true);
  QCOMPARE(m_without, 1);
  QVERIFY(!m_pixtest->isPending());
}

void TestPixtest::proximity_data() {
  QTest::addColumn<double>("ratio");
  QTest::addColumn<bool>("labels");
  QTest::newRow("near") << 0.4 << true;
  QTest::newRow("far") << 0.41 << false;
}

void TestPixtest::proximity() {
  QFETCH(double, ratio);
  QFETCH(bool, labels);
  m_view.ratio = ratio;
  m_pixtest->requestPixtest(-1, true);
  QCOMPARE(m_with, int(labels));
  QCOMPARE(m_without, int(!labels));
  m_pixtest->requestPixtest(1, true); // a quick pass, then the one that was asked for
  QVERIFY(m_pixtest->isPending());
  QTRY_COMPARE(m_with, labels ? 2 : 0);
  QTRY_COMPARE(m_without, labels ? 1 : 3);
}

void TestPixtest::subassembliesAlwaysHaveLabels() {
  m_view = {1.0, true};
  m_pixtest->requestPixtest(-1, true);
  QCOMPARE(m_with, 1);
}

void TestPixtest::burstGivesOneTest() {
  for (int i = 0; i < 20; ++i)
    m_pixtest->requestPixtest(5, true);
  QCOMPARE(m_without, 1);
  QTRY_COMPARE(m_with, 1);
  QVERIFY(!m_pixtest->isPending());
  m_pixtest->requestPixtest(5, false); // without the quick pass
  QCOMPARE(m_without, 1);
  QTRY_COMPARE(m_with, 2);
}

void TestPixtest::alwaysIsThrottled() {
  set("perform label placement", "always");
  set("perform label placement msec", "60000");
  m_view.ratio = 1.0; // does not matter
  for (int i = 0; i < 3; ++i)
    m_pixtest->requestPixtest(-1, true);
  QCOMPARE(m_with, 1);
}

void TestPixtest::waitKeepsTheRequest() {
  set("perform label placement", "wait");
  set("perform label placement msec", "7"); // raised to 100
  m_pixtest->requestPixtest(-1, true);
  m_pixtest->requestPixtest(-1, true);
  QCOMPARE(m_with, 1);
  QVERIFY(m_pixtest->isPending());
  QTRY_COMPARE(m_with, 2);
}

NIVRA_TEST(TestPixtest);
#include "tst_pixtest.moc"
