#include <base/generalsettings.h>
#include <base/nivramsg.h>
#include <support/nivratest.h>

#include <QTemporaryDir>

class TestGeneralSettings : public QObject {
  Q_OBJECT

private slots:
  void builtInTable();
  void lines_data();
  void lines();
  void oddFiles_data();
  void oddFiles();
  void workspaceFileHasTheUsersName();

private:
  QTemporaryDir m_folder;
  QString write(const QByteArray &text) {
    QFile file(m_folder.filePath(QStringLiteral("generalsettings.csv")));
    file.open(QIODevice::WriteOnly);
    file.write(text);
    return file.fileName();
  }
};

void TestGeneralSettings::builtInTable() {
  GeneralSettings settings;
  QCOMPARE(settings.loadFile(m_folder.filePath(QStringLiteral("none.csv"))), 0);
  QCOMPARE(settings.value(QStringLiteral("perform label placement")), QStringLiteral("proximity"));
  QCOMPARE(settings.value(QStringLiteral("SelectionModifiers")), QStringLiteral("DirectSelect"));
  QCOMPARE(settings.value(QStringLiteral("PELKA MODE")), QString()); // keys are exact
  QVERIFY(settings.isOn(QStringLiteral("use comma")) && !settings.isOn(QStringLiteral("PELKA mode")));
  for (const auto &[key, entry] : settings.entries()) {
    if (entry.type == QLatin1String("list"))
      QVERIFY2(entry.options.split(QLatin1Char(',')).contains(entry.value), qPrintable(key));
    if (entry.type == QLatin1String("bool"))
      QVERIFY2(entry.value == QLatin1String("0") || entry.value == QLatin1String("1"), qPrintable(key));
  }
}

void TestGeneralSettings::lines_data() {
  QTest::addColumn<QByteArray>("line");
  QTest::addColumn<int>("taken");
  QTest::addColumn<QString>("key");
  QTest::addColumn<QString>("value");
  const QString pattern = QStringLiteral("properties to be ignored while checking net");
  QTest::newRow("comment") << QByteArray("#smooth zoom;zooming;bool;0;;") << 0 << QStringLiteral("smooth zoom")
                           << QStringLiteral("1");
  QTest::newRow("five fields") << QByteArray("smooth zoom;zooming;bool;0;") << 0 << QStringLiteral("smooth zoom")
                               << QStringLiteral("1");
  QTest::newRow("trimmed") << QByteArray(" smooth zoom ; zooming ; bool ; 0 ;; ") << 1 << QStringLiteral("smooth zoom")
                           << QStringLiteral("0");
  QTest::newRow("semicolon") << QByteArray("properties to be ignored while checking net;general;string;a$SEMI$b;;") << 1
                             << pattern << QStringLiteral("a;b");
  QTest::newRow("unknown user key") << QByteArray("my key;user keys;string;5;;") << 1 << QStringLiteral("my key")
                                    << QStringLiteral("5");
  QTest::newRow("unknown key") << QByteArray("my key;general;string;5;;") << 0 << QStringLiteral("my key") << QString();
  QTest::newRow("other category") << QByteArray("smooth zoom;garden;bool;0;;") << 1 << QStringLiteral("smooth zoom")
                                  << QStringLiteral("0");
  QTest::newRow("no option") << QByteArray("PELKA mode;special;list;perhaps;on,off;") << 0 << QStringLiteral("PELKA mode")
                             << QStringLiteral("off");
  QTest::newRow("no number") << QByteArray("pixtest delay;zooming;string;soon;;") << 0 << QStringLiteral("pixtest delay")
                             << QStringLiteral("100");
  QTest::newRow("no steps") << QByteArray("smooth zoom steps;zooming;string;0;;") << 0 << QStringLiteral("smooth zoom steps")
                            << QStringLiteral("10");
}

void TestGeneralSettings::lines() {
  QFETCH(QByteArray, line);
  QFETCH(int, taken);
  QFETCH(QString, key);
  QFETCH(QString, value);
  GeneralSettings settings;
  QCOMPARE(settings.loadFile(write(line + '\n')), taken);
  QCOMPARE(settings.value(key), value);
  if (settings.entries().count(QStringLiteral("smooth zoom")) != 0)
    QCOMPARE(settings.entries().at(QStringLiteral("smooth zoom")).category, QStringLiteral("zooming"));
}

void TestGeneralSettings::oddFiles_data() {
  QTest::addColumn<QByteArray>("text");
  QTest::addColumn<int>("taken");
  const QByteArray good = "smooth zoom;zooming;bool;0;;";
  QTest::newRow("empty") << QByteArray() << 0;
  QTest::newRow("byte-order mark") << "\xEF\xBB\xBF" + good << 1;
  QTest::newRow("carriage returns") << good + "\r\n" + good + "\r\n" << 2;
  QTest::newRow("binary") << QByteArray("\x00\xff\x00;;;;;;\n\xfe", 12) << 0;
  QTest::newRow("endless line") << QByteArray(3000000, ';') + "\n" + good << 1;
}

void TestGeneralSettings::oddFiles() {
  QFETCH(QByteArray, text);
  QFETCH(int, taken);
  GeneralSettings settings;
  QCOMPARE(settings.loadFile(write(text)), taken);
  NivraMsg::Recorder recorder;
  QCOMPARE(settings.loadFile(m_folder.path()), 0); // a folder in the place of the file
  QVERIFY(recorder.lines().value(0).startsWith(QStringLiteral("Cannot open General settings file")));
}

void TestGeneralSettings::workspaceFileHasTheUsersName() {
  const QByteArray before = qgetenv("USERNAME");
  qputenv("USERNAME", "anna");
  QCOMPARE(GeneralSettings::settingsFile(QStringLiteral("/w")), QStringLiteral("/w/generalsettings_anna.csv"));
  before.isNull() ? qunsetenv("USERNAME") : qputenv("USERNAME", before);
}

NIVRA_TEST(TestGeneralSettings);
#include "tst_generalsettings.moc"
