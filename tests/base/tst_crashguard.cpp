#include <callstack/callstack.h>
#include <support/nivratest.h>

#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <ctime>

namespace {

int run(const QString &how, const QString &dataHome) {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("XDG_DATA_HOME"), dataHome);
  environment.insert(QStringLiteral("NIVRA_BATCH"), QStringLiteral("1"));
  environment.insert(QStringLiteral("ASAN_OPTIONS"),
                     QStringLiteral("handle_segv=0:handle_sigfpe=0:use_sigaltstack=0:detect_leaks=0"));
  process.setProcessEnvironment(environment);
  process.start(QStringLiteral(NIVRA_CRASHDUMMY), {how});
  process.waitForFinished();
  return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

QByteArray contents(const QString &folder, const QString &name) {
  QDirIterator files(folder, {name}, QDir::Files, QDirIterator::Subdirectories);
  if (!files.hasNext())
    return {};
  QFile file(files.next());
  return file.open(QIODevice::ReadOnly) ? file.readAll() + '\n' : QByteArray();
}

} // namespace

/// Crash handling, by really crashing a process.
class TestCrashGuard : public QObject {
  Q_OBJECT

private slots:
  void crashes_data();
  void crashes();
  void oldCrashLogStays();
  void unwritableLogDoesNotStopTheProgram();
  void preparingReadsNoDebugInformation();
};

void TestCrashGuard::crashes_data() {
  QTest::addColumn<QString>("how");
  QTest::addColumn<int>("status");
  QTest::addColumn<QByteArray>("reason");
  QTest::addColumn<QByteArray>("function");
  QTest::newRow("bad access") << QStringLiteral("access") << 11 << QByteArray("signalHandler detected signal 11\n")
                              << QByteArray("crashByBadAccess");
  QTest::newRow("arithmetic") << QStringLiteral("arithmetic") << 8 << QByteArray("signalHandler detected signal 8\n")
                              << QByteArray("crashByArithmetic");
  QTest::newRow("exception") << QStringLiteral("exception") << -1 << QByteArray("terminate called\n")
                             << QByteArray("crashByException");
  QTest::newRow("stack overflow") << QStringLiteral("recursion") << 11 << QByteArray("signalHandler detected signal 11\n")
                                  << QByteArray("crashByEndlessRecursion");
}

void TestCrashGuard::crashes() {
  QFETCH(QString, how);
  QFETCH(int, status);
  QFETCH(QByteArray, reason);
  QFETCH(QByteArray, function);
  const QTemporaryDir data;
  QCOMPARE(run(how, data.path()), status);
  QVERIFY(!contents(data.path(), QStringLiteral("crash")).isEmpty());

  QCOMPARE(run(QString(), data.path()), 0); // the next start
  QVERIFY(contents(data.path(), QStringLiteral("crash")).isEmpty());
  const QByteArray log = contents(data.path(), QStringLiteral("NivraViewerCrash.log"));
  QVERIFY2(log.contains("started\n"), log.constData());
  QVERIFY2(log.contains(reason), log.constData());
  QVERIFY2(log.contains(function), log.left(4000).constData());
  QVERIFY2(log.contains("crashdummy.cpp:"), log.left(4000).constData());

  QCOMPARE(run(QString(), data.path()), 0); // and the one after
  QVERIFY(!contents(data.path(), QStringLiteral("NivraViewer.log")).contains("crashed last time"));
}

void TestCrashGuard::oldCrashLogStays() {
  const QTemporaryDir data;
  run(QStringLiteral("access"), data.path());
  run(QStringLiteral("exception"), data.path());
  run(QString(), data.path());
  QVERIFY(contents(data.path(), QStringLiteral("NivraViewerCrash.log")).contains("detected signal 11"));
  QVERIFY(contents(data.path(), QStringLiteral("NivraViewer.log")).contains("started"));
}

void TestCrashGuard::unwritableLogDoesNotStopTheProgram() {
  const QTemporaryDir data;
  QFile file(data.filePath(QStringLiteral("not-a-folder")));
  QVERIFY(file.open(QIODevice::WriteOnly));
  QCOMPARE(run(QString(), file.fileName()), 0);
}

// Every start prepares, hardly any crashes: the reading belongs to the crash. Times of the processor, so that a busy machine
// does not matter.
void TestCrashGuard::preparingReadsNoDebugInformation() {
  QFile nowhere(QStringLiteral("/dev/null"));
  QVERIFY(nowhere.open(QIODevice::WriteOnly));
  const std::clock_t start = std::clock();
  CallStack::prepare();
  const std::clock_t prepared = std::clock();
  CallStack::write(nowhere.handle());
  const std::clock_t written = std::clock();
  QVERIFY2((prepared - start) * 5 < written - prepared,
           qPrintable(QStringLiteral("%1 and %2").arg(prepared - start).arg(written - prepared)));
}

NIVRA_TEST(TestCrashGuard);
#include "tst_crashguard.moc"
