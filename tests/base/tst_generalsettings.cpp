#include <base/settings.h>
#include <base/settingsfile.h>
#include <support/fulldisk.h>
#include <support/nivratest.h>
#include <support/smallfiles.h>

#include <QDir>
#include <QRegularExpression>
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
  void typedValues();
  void userIsALayerUnderTheWorkspace();
  void strictNumbers();
  void fileKeepsWhatItDoesNotChange();
  void fileThatCannotBeReadIsLeftAlone();
  void guideTellsWhatHasNoEffect();

private:
  static constexpr auto Trusted = FileAccess::Source::Trusted;
  QTemporaryDir m_folder;
  QString write(const QByteArray &text) {
    return SmallFiles::write(m_folder.filePath(QStringLiteral("generalsettings.csv")), text);
  }
};

void TestGeneralSettings::builtInTable() {
  GeneralSettings settings;
  QCOMPARE(settings.loadFile(m_folder.filePath(QStringLiteral("none.csv")), Trusted, {}), 0);
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
  QCOMPARE(settings.loadFile(write(line + '\n'), Trusted, {}), taken);
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
  QCOMPARE(settings.loadFile(write(text), Trusted, {}), taken);
  Findings told;
  const auto hear = [&told](const Finding &finding) {
    told.push_back(finding);
  };
  QCOMPARE(settings.loadFile(m_folder.path(), Trusted, hear), 0); // a folder in the place of the file
  QCOMPARE(told.back().severity, Finding::Severity::Warning);
  QVERIFY(told.back().text.startsWith(QStringLiteral("Cannot open General settings file")));
  told.clear();
  settings.loadFile(write("smooth zoom;zooming;bool;0;\n"), Trusted, hear);
  QVERIFY(told.front().text.startsWith(QStringLiteral("Trying to (re)load general settings file ")));
  QVERIFY(told.at(1).text.startsWith(QStringLiteral("Line contains less than 6 entries!")));
  QCOMPARE(told.back().text, QStringLiteral("Loaded 0 settings from general settings file."));
}

void TestGeneralSettings::workspaceFileHasTheUsersName() {
  const QByteArray before = qgetenv("USERNAME");
  qputenv("USERNAME", "anna");
  QCOMPARE(GeneralSettings::settingsFile(QStringLiteral("/w")), QStringLiteral("/w/generalsettings_anna.csv"));
  before.isNull() ? qunsetenv("USERNAME") : qputenv("USERNAME", before);
}

void TestGeneralSettings::typedValues() {
  GeneralSettings &settings = GeneralSettings::instance();
  QVERIFY(Settings::UseComma.value() && !Settings::PelkaMode.value());
  QCOMPARE(Settings::PixtestDelay.value(), 100);
  QCOMPARE(Settings::LabelPlacementRatio.value(), 0.4);
  QCOMPARE(Settings::SubnetSelection.brushStyle.value(), 5);
  QVERIFY(settings.setValue(Settings::PelkaMode.key(), QStringLiteral("on")));
  QVERIFY(settings.setValue(Settings::MousePatternPanning.key(), QStringLiteral("MidButton")));
  QVERIFY(Settings::PelkaMode.value());
  QCOMPARE(Settings::MousePatternPanning.value(), QStringLiteral("MidButton"));
  settings.reset();
}

void TestGeneralSettings::userIsALayerUnderTheWorkspace() {
  using Layer = GeneralSettings::Layer;
  const QString smooth = QStringLiteral("smooth zoom");
  const QString delay = QStringLiteral("pixtest delay");
  const QString pelka = QStringLiteral("PELKA mode");
  QDir().mkpath(GeneralSettings::userDirectory());
  SmallFiles::write(GeneralSettings::settingsFile(QString()),
                    "smooth zoom;zooming;bool;0;;\npixtest delay;zooming;string;200;;\n");
  const QTemporaryDir workspace;
  SmallFiles::write(GeneralSettings::settingsFile(workspace.path()),
                    "pixtest delay;zooming;string;300;;\nPELKA mode;special;list;perhaps;;\n");
  GeneralSettings settings;
  const unsigned before = settings.revision();
  QCOMPARE(settings.load(workspace.path(), {}), 1);
  QVERIFY(settings.revision() != before);
  QCOMPARE(settings.value(smooth), QStringLiteral("0"));
  QCOMPARE(settings.entries().at(smooth).layer, Layer::User);
  QCOMPARE(settings.value(delay), QStringLiteral("300"));
  QCOMPARE(settings.entries().at(delay).layer, Layer::Workspace);
  QCOMPARE(settings.valueIn(Layer::User, delay), std::make_optional(QStringLiteral("200")));
  QCOMPARE(settings.valueIn(Layer::BuiltIn, delay), std::make_optional(QStringLiteral("100")));
  QCOMPARE(settings.entries().at(pelka).layer, Layer::BuiltIn); // refused
  QVERIFY(!settings.valueIn(Layer::Workspace, pelka));
  settings.setValue(pelka, QStringLiteral("on"));
  QCOMPARE(settings.entries().at(pelka).layer, Layer::Run);
  settings.load(QString(), {}); // without the workspace
  QCOMPARE(settings.value(delay), QStringLiteral("200"));
  QVERIFY(QFile::remove(GeneralSettings::settingsFile(QString())));
}

void TestGeneralSettings::strictNumbers() {
  const auto suits = [](const char *key, const char *value) {
    return GeneralSettings::suits(QString::fromLatin1(key), QString::fromLatin1(value));
  };
  QVERIFY(suits("number digits on screen", "15") && !suits("number digits on screen", "16"));
  QVERIFY(!suits("number digits on screen", "0") && !suits("number digits on screen", "2.5"));
  QVERIFY(suits("unit: pressure", "") && suits("unit: pressure", "MPa") && !suits("unit: pressure", "m"));
  QVERIFY(suits("smooth zoom duration", "-1")); // files were always free to say so, and who acts on it bounds it
  QVERIFY(suits("of my own", "anything"));
}

void TestGeneralSettings::fileKeepsWhatItDoesNotChange() {
  const QByteArray text = "\xEF\xBB\xBF# mine\r\nsmooth zoom;zooming;bool;1;;why;more\r\nstrange;general;x;y;;\r\n"
                          "short;line\r\n\r\n smooth zoom ;zooming;bool;0;;last counts\r\nmy key;user keys;string;\xE4;;";
  const QString path = write(text);
  SettingsFile file;
  QVERIFY(file.read(path, nullptr));
  file.set(QStringLiteral("smooth zoom"), QStringLiteral("1"));
  file.set(QStringLiteral("status bar style sheet failed"), QStringLiteral("color: red; x\ny"));
  QVERIFY(file.write(path, nullptr));
  QByteArray expected = text;
  expected.replace("bool;0;;last", "bool;1;;last");
  expected += "\r\nstatus bar style sheet failed;status bar;string;color: red$SEMI$ x y;;\r\n";
  const auto written = [&path] {
    QFile device(path);
    device.open(QIODevice::ReadOnly);
    return device.readAll();
  };
  QCOMPARE(written(), expected);
  GeneralSettings settings;
  QCOMPARE(settings.loadFile(path, Trusted, {}), 4);
  QCOMPARE(settings.value(QStringLiteral("status bar style sheet failed")), QStringLiteral("color: red; x y"));
  file.remove(QStringLiteral("smooth zoom"));
  QVERIFY(file.write(path, nullptr));
  QVERIFY(!written().contains("smooth zoom") && written().contains("# mine\r\nstrange;general;x;y;;\r\nshort;line\r\n"));
}

void TestGeneralSettings::fileThatCannotBeReadIsLeftAlone() {
  SettingsFile file;
  QString reason;
  QVERIFY(!file.read(m_folder.path(), &reason)); // a folder in its place
  QVERIFY(!reason.isEmpty());
  QVERIFY(file.read(m_folder.filePath(QStringLiteral("none/yet.csv")), nullptr));
  file.set(QStringLiteral("smooth zoom"), QStringLiteral("0"));
  QVERIFY(file.write(m_folder.filePath(QStringLiteral("none/yet.csv")), nullptr)); // the folder comes along
  const FullDisk disk;
  if (!disk.isMounted())
    QSKIP("No disk of its own can be mounted here.");
  const QString path = SmallFiles::write(disk.path(QStringLiteral("settings.csv")), "# mine\n");
  disk.fill();
  QVERIFY(!file.write(path, &reason));
  QFile device(path);
  QVERIFY(device.open(QIODevice::ReadOnly));
  QCOMPARE(device.readAll(), QByteArray("# mine\n"));
}

void TestGeneralSettings::guideTellsWhatHasNoEffect() {
  QFile guide(QStringLiteral(NIVRA_SOURCE_DIR "/docs/file-formats.md"));
  QVERIFY(guide.open(QIODevice::ReadOnly));
  const QString text = QString::fromUtf8(guide.readAll()).simplified();
  const QString kept =
      text.section(QStringLiteral("without effect here:"), 1).section(QStringLiteral("Lines that begin"), 0, 0);
  static const QRegularExpression quoted(QStringLiteral("`([^`]+)`"));
  int named = 0;
  for (auto matches = quoted.globalMatch(kept); matches.hasNext(); ++named) {
    const QByteArray key = matches.next().captured(1).toLatin1();
    QVERIFY2(SettingsTable::row(key.constData()).effect == SettingsTable::Kept, key.constData());
  }
  QVERIFY(named > 0);
  const QString beginning = text.section(QStringLiteral("## General settings"), 1).section(QStringLiteral("Kept for"), 0, 0);
  for (const char *key : {"ask for include lists", "pick on Release", "start with last scenario"}) {
    QVERIFY(beginning.contains(QLatin1String(key)));
    QCOMPARE(SettingsTable::row(key).effect, SettingsTable::Acts);
  }
}

NIVRA_TEST(TestGeneralSettings);
#include "tst_generalsettings.moc"
