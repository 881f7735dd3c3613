#include <base/fileaccess.h>
#include <base/wholefile.h>
#include <support/fulldisk.h>
#include <support/nivratest.h>
#include <support/smallfiles.h>

#include <sys/stat.h>

class TestFiles : public QObject {
  Q_OBJECT

private slots:
  void init();
  void cleanup() { FileAccess::confineTo(QString()); }
  void specialFilesAreRefused();
  void linksInACircle();
  void largeFilesAreRefused();
  void nothingLeadsOutOfTheWorkspace_data();
  void nothingLeadsOutOfTheWorkspace();
  void whatTheUserChoseMayLieAnywhere();
  void fullDisksLeaveTheOldFile();
  void nearlyFullDisksAreNamed();
  void writersNeedNotCheckWhatTheyWrite_data();
  void writersNeedNotCheckWhatTheyWrite();
  void failedWritersLeaveTheOldFile();
  void specialFilesAreNotReplaced();

private:
  QString inside(const QString &name) const { return m_folder->filePath(QStringLiteral("workspace/") + name); }
  QString outside(const QString &name) const { return m_folder->filePath(name); }

  std::unique_ptr<QTemporaryDir> m_folder;
};

void TestFiles::init() {
  m_folder = std::make_unique<QTemporaryDir>();
  QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("workspace/case")));
  QString reason;
  QVERIFY(WholeFile::write(outside(QStringLiteral("secret")), FileAccess::Source::Trusted, QByteArray("secret"), &reason));
  QVERIFY(WholeFile::write(inside(QStringLiteral("own")), FileAccess::Source::Trusted, QByteArray("own"), &reason));
}

/// They lead nowhere, which the message says.
void TestFiles::linksInACircle() {
  const QString link = m_folder->filePath(QStringLiteral("circle"));
  QVERIFY(QFile::link(link, link));
  FileAccess::confineTo(m_folder->path());
  const QString told = FileAccess::confinementFault(link);
  QVERIFY2(told.contains(QStringLiteral("circle of links")), qPrintable(told));
}

void TestFiles::specialFilesAreRefused() {
  const QString pipe = inside(QStringLiteral("pipe"));
  QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  for (const QString &path :
       {pipe, QStringLiteral("/dev/zero"), inside(QStringLiteral("case")), inside(QStringLiteral("none"))}) {
    QString reason;
    QVERIFY(!FileAccess::readWhole(path, FileAccess::Source::Trusted, FileAccess::AnySize, &reason));
    QVERIFY2(reason.startsWith(path + QStringLiteral(": ")) && reason.size() > path.size() + 2, qPrintable(reason));
  }
}

void TestFiles::largeFilesAreRefused() {
  QFile large(inside(QStringLiteral("large")));
  QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(qint64(1) << 40)); // sparse: takes no room
  QString reason;
  QVERIFY(
      !FileAccess::readWhole(large.fileName(), FileAccess::Source::Workspace, FileAccess::LargestConfiguration, &reason));
  QVERIFY2(reason.startsWith(large.fileName() + QStringLiteral(": is larger")), qPrintable(reason));
}

void TestFiles::nothingLeadsOutOfTheWorkspace_data() {
  QTest::addColumn<QString>("path");
  QTest::newRow("link to a file") << QStringLiteral("link");
  QTest::newRow("link to a folder") << QStringLiteral("folder/../../secret");
  QTest::newRow("dots") << QStringLiteral("../secret");
  QTest::newRow("dots behind a link") << QStringLiteral("folder/../new");
  QTest::newRow("link to nothing yet") << QStringLiteral("dangling");
  QTest::newRow("a chain of links to nothing yet") << QStringLiteral("chain");
  QTest::newRow("a folder whose name begins alike") << QStringLiteral("../workspace2/file");
}

void TestFiles::nothingLeadsOutOfTheWorkspace() {
  QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("workspace2/deep")));
  QFile::link(outside(QStringLiteral("secret")), inside(QStringLiteral("link")));
  QFile::link(outside(QStringLiteral("workspace2/deep")), inside(QStringLiteral("folder")));
  QFile::link(outside(QStringLiteral("made")), inside(QStringLiteral("dangling")));
  QFile::link(inside(QStringLiteral("dangling")), inside(QStringLiteral("chain")));
  FileAccess::confineTo(m_folder->filePath(QStringLiteral("workspace")));
  QFETCH(QString, path);
  QString reason;
  QVERIFY(!FileAccess::readWhole(inside(path), FileAccess::Source::Workspace, FileAccess::AnySize, &reason));
  QVERIFY(!WholeFile::write(inside(path), FileAccess::Source::Workspace, QByteArray("overwritten"), &reason));
  QVERIFY2(reason.contains(QLatin1String("out of the workspace")), qPrintable(reason));
  QCOMPARE(SmallFiles::contents(outside(QStringLiteral("secret"))), QByteArray("secret"));
  QVERIFY(!QFile::exists(outside(QStringLiteral("made"))));
}

void TestFiles::whatTheUserChoseMayLieAnywhere() {
  FileAccess::confineTo(m_folder->filePath(QStringLiteral("workspace")));
  QFile::link(inside(QStringLiteral("own")), inside(QStringLiteral("inner")));
  QString reason;
  QCOMPARE(FileAccess::readWhole(inside(QStringLiteral("inner")), FileAccess::Source::Workspace, 10, &reason).value_or("?"),
           QByteArray("own"));
  QVERIFY(WholeFile::write(inside(QStringLiteral("case/new")), FileAccess::Source::Workspace, QByteArray("n"), &reason));
  QCOMPARE(FileAccess::readWhole(outside(QStringLiteral("secret")), FileAccess::Source::Trusted, 10, &reason).value_or("?"),
           QByteArray("secret"));
}

void TestFiles::fullDisksLeaveTheOldFile() {
  const FullDisk disk;
  if (!disk.isMounted())
    QSKIP("a small disk cannot be mounted without root");
  const QString path = disk.path(QStringLiteral("file"));
  QString reason;
  QVERIFY(WholeFile::write(path, FileAccess::Source::Trusted, QByteArray("old"), &reason));
  disk.fill();
  for (const int size : {1, 1000, 16384, 16385, 200000}) {
    reason.clear();
    QVERIFY2(!WholeFile::write(path, FileAccess::Source::Trusted, QByteArray(size, 'x'), &reason), QByteArray::number(size));
    QVERIFY2(reason.contains(QLatin1String("Could not write ")) && reason.contains(QLatin1String("space")),
             qPrintable(reason));
    QCOMPARE(SmallFiles::contents(path), QByteArray("old"));
  }
  disk.free();
  QVERIFY(WholeFile::write(path, FileAccess::Source::Trusted, QByteArray("new"), &reason));
  QCOMPARE(QDir(QFileInfo(path).path()).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("file")});
}

// The system takes a part of a large block and names no error.
void TestFiles::nearlyFullDisksAreNamed() {
  const FullDisk disk;
  if (!disk.isMounted())
    QSKIP("a small disk cannot be mounted here");
  const QString target = disk.path(QStringLiteral("large"));
  QString reason;
  QVERIFY(!WholeFile::write(target, FileAccess::Source::Trusted, QByteArray(1 << 20, 'x'), &reason));
  QVERIFY2(reason.contains(QLatin1String("disk full")) || reason.contains(QLatin1String("No space")), qPrintable(reason));
  QVERIFY(!QFile::exists(target));
}

// As makers of documents do. The last block fits into the buffer, whatever became of those before.
void TestFiles::writersNeedNotCheckWhatTheyWrite_data() {
  QTest::addColumn<int>("block");
  QTest::addColumn<bool>("seeks");
  for (const int size : {1000, 16384, 20000, 100000}) {
    QTest::addRow("%d", size) << size << false;
    QTest::addRow("%d, a header at the end", size) << size << true;
  }
}

void TestFiles::writersNeedNotCheckWhatTheyWrite() {
  QFETCH(int, block);
  QFETCH(bool, seeks);
  const FullDisk disk;
  if (!disk.isMounted())
    QSKIP("a small disk cannot be mounted here");
  const QString path = disk.path(QStringLiteral("document"));
  QString reason;
  QVERIFY(WholeFile::write(path, FileAccess::Source::Trusted, QByteArray("old"), &reason));
  const auto careless = [&](QIODevice &device, QString *) {
    for (int written = 0; written < 100000; written += block)
      device.write(QByteArray(block, 'x'));
    if (seeks)
      device.seek(0);
    device.write("end");
    return true;
  };
  QVERIFY(!WholeFile::write(path, FileAccess::Source::Trusted, careless, &reason));
  QVERIFY2(reason.contains(QLatin1String("disk full")) || reason.contains(QLatin1String("No space")), qPrintable(reason));
  QCOMPARE(SmallFiles::contents(path), QByteArray("old"));
}

void TestFiles::failedWritersLeaveTheOldFile() {
  const QString path = inside(QStringLiteral("own"));
  QString reason;
  const auto fails = [](QIODevice &device, QString *why) {
    device.write("half");
    *why = QStringLiteral("no more");
    return false;
  };
  QVERIFY(!WholeFile::write(path, FileAccess::Source::Trusted, fails, &reason));
  QCOMPARE(reason, QStringLiteral("Could not write %1: no more").arg(path));
  QCOMPARE(SmallFiles::contents(path), QByteArray("own"));
}

void TestFiles::specialFilesAreNotReplaced() {
  const QString pipe = inside(QStringLiteral("pipe"));
  QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  QString reason;
  QVERIFY(!WholeFile::write(pipe, FileAccess::Source::Trusted, QByteArray("x"), &reason));
  QVERIFY2(reason.contains(QLatin1String("regular")), qPrintable(reason));
  struct stat status {};
  QVERIFY(::stat(QFile::encodeName(pipe).constData(), &status) == 0 && S_ISFIFO(status.st_mode));
}

NIVRA_TEST(TestFiles);
#include "tst_files.moc"
