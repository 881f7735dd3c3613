#include <drawing/labeltable.h>
#include <support/fulldisk.h>
#include <support/nivratest.h>

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <sys/stat.h>

class TestLabelTable : public QObject {
  Q_OBJECT

private slots:
  void comesBackAsWritten();
  void anotherVersionIgnoresMasters_data();
  void anotherVersionIgnoresMasters();
  void cutAtEveryLine();
  void badFiles();
  void nothingIsLostUnnoticed();
  void fullDiskKeepsTheOldFile();

private:
  static LabelTable sample() {
    LabelTable table;
    table.types.at(2)[LabelRow::Contents] = QStringLiteral("@name&#44; ü<br />@p");
    table.types.at(2)[LabelRow::Font] = QStringLiteral("Calibri,8,-1,5,50,1,0,0,0,0");
    LabelRow row = table.types.at(3);
    row[LabelRow::LongName] = QStringLiteral("loud");
    row[LabelRow::Color] = QStringLiteral("red");
    row.icon = QStringLiteral("c");
    table.templates = {row, row};
    return table;
  }
  QString path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }
  QString write(const QByteArray &text) const {
    QFile file(path("vfd.csv"));
    file.open(QIODevice::WriteOnly);
    file.write(text);
    return file.fileName();
  }
  QByteArray sampleText() const {
    LabelTableFile::write(path("sample.csv"), sample());
    QFile file(path("sample.csv"));
    file.open(QIODevice::ReadOnly);
    return file.readAll();
  }
  const QTemporaryDir m_folder;
};

void TestLabelTable::comesBackAsWritten() {
  QVERIFY(LabelTableFile::write(path("vfd.csv"), sample()));
  LabelTable read;
  QVERIFY(LabelTableFile::read(path("vfd.csv"), read).isOpened);
  QVERIFY(read == sample());
  LabelTable broken = sample();
  broken.types.at(0)[LabelRow::Contents] = QStringLiteral("two\nlines");
  QVERIFY(LabelTableFile::write(path("vfd.csv"), broken));
  QVERIFY(LabelTableFile::read(path("vfd.csv"), read).isOpened);
  QCOMPARE(read.types.at(0)[LabelRow::Contents], QStringLiteral("two lines")); // a cell is a line
  QCOMPARE(read.templates.size(), std::size_t(2));
}

void TestLabelTable::anotherVersionIgnoresMasters_data() {
  QTest::addColumn<int>("row"); // of the table, that the master stands for or before
  QTest::addColumn<QByteArray>("code");
  QTest::addColumn<bool>("isInPlace"); // of the type's own row
  QTest::newRow("before the others") << 0 << QByteArray("7") << false;
  QTest::newRow("amid the others") << 3 << QByteArray("m") << false;
  QTest::newRow("in a type's place") << 2 << QByteArray("p") << true;
  QTest::newRow("in the last type's place") << 12 << QByteArray("t") << true;
  QTest::newRow("beside a type's own row") << 2 << QByteArray("p") << false;
}

void TestLabelTable::anotherVersionIgnoresMasters() {
  QFETCH(int, row);
  QFETCH(QByteArray, code);
  QFETCH(bool, isInPlace);
  LabelTable expected = sample();
  for (LabelRow &type : expected.types)
    type[LabelRow::Size] = type[LabelRow::Short];
  QVERIFY(LabelTableFile::write(path("sample.csv"), expected));
  QFile file(path("sample.csv"));
  QVERIFY(file.open(QIODevice::ReadOnly));
  QList<QByteArray> lines = file.readAll().split('\n');
  lines[0] = "vfd 0";
  const int first = 1 + LabelRow::Columns * (1 + row);
  for (int column = 0; column < LabelRow::Columns; ++column) {
    if (isInPlace)
      lines.removeAt(first);
  }
  for (int column = 0; column < LabelRow::Columns; ++column)
    lines.insert(first + column, column == 0 ? "master something" : column == 1 ? code : "7");
  if (isInPlace)
    expected.types.at(static_cast<std::size_t>(row)) = LabelTable().types.at(static_cast<std::size_t>(row));
  LabelTable read;
  QVERIFY(LabelTableFile::read(write(lines.join('\n')), read).isOpened);
  QVERIFY(read.types == expected.types);
  QVERIFY(read.templates == expected.templates);
}

void TestLabelTable::cutAtEveryLine() {
  const QList<QByteArray> lines = sampleText().split('\n');
  const LabelTable whole = sample();
  for (int count = 0; count < lines.size(); ++count) {
    LabelTable read;
    QVERIFY(LabelTableFile::read(write(lines.mid(0, count).join('\n')), read).isOpened);
    // Whole rows are taken, half ones leave what was there.
    const int cells = std::max(0, count - 1 - LabelRow::Columns);
    for (std::size_t row = 0; row < whole.types.size(); ++row) {
      const int end = static_cast<int>(row + 1) * LabelRow::Columns;
      if (cells != end) // there the last cell, which is empty, may count as missing
        QVERIFY2(read.types[row] == (cells > end ? whole.types : LabelTable().types)[row],
                 qPrintable(QString::number(count)));
    }
    QVERIFY(read.templates.size() <= whole.templates.size());
    for (const LabelRow &row : read.templates)
      QVERIFY(row == whole.templates.front());
  }
}

void TestLabelTable::badFiles() {
  LabelTable read;
  const LabelTableFile::Reading missing = LabelTableFile::read(path("missing.csv"), read);
  QVERIFY(!missing.isOpened);
  QCOMPARE(missing.findings.size(), std::size_t(1));
  QVERIFY(missing.findings.front().severity == Finding::Severity::Information); // most cases have none
  const LabelTableFile::Reading folder = LabelTableFile::read(m_folder.path(), read);
  QVERIFY(!folder.isOpened);
  QCOMPARE(folder.findings.size(), std::size_t(2)); // that it failed, and why
  QVERIFY(folder.findings.back().severity == Finding::Severity::Warning && !folder.findings.back().text.isEmpty());
  const LabelTableFile::Reading cut = LabelTableFile::read(write("vfd 1\nlong name\n"), read);
  QVERIFY(cut.isOpened && cut.findings.back().severity == Finding::Severity::Warning);
  QCOMPARE(cut.findings.back().text, QStringLiteral("EOF while reading header in file %1! Stopped!").arg(path("vfd.csv")));
  QVERIFY(LabelTableFile::read(write(QByteArray(100000, '\xff')), read).isOpened);
  QVERIFY(read == LabelTable());
  QCOMPARE(::mkfifo(qPrintable(path("pipe.csv")), 0600), 0);
  QVERIFY(!LabelTableFile::read(path("pipe.csv"), read).isOpened); // nobody writes into it, so it would never end
  QVERIFY(!LabelTableFile::read(QStringLiteral("/dev/zero"), read).isOpened);
  QString error;
  QVERIFY(!LabelTableFile::write(QStringLiteral("/nowhere/vfd.csv"), read, &error));
  QVERIFY(error.contains(QStringLiteral("/nowhere/vfd.csv")));
}

void TestLabelTable::nothingIsLostUnnoticed() {
  const auto hasWarning = [](const LabelTableFile::Reading &reading, const char *text, int line) {
    return std::any_of(reading.findings.begin(), reading.findings.end(), [&](const Finding &finding) {
      return finding.severity == Finding::Severity::Warning && finding.text.contains(QLatin1String(text)) &&
             finding.line == line;
    });
  };
  // Of an old spreadsheet.
  LabelTable read;
  const QByteArray text = sampleText();
  LabelTableFile::Reading reading = LabelTableFile::read(write(QByteArray(text).replace("\xc3\xbc", "\xfc")), read);
  QVERIFY(read == sample());
  QVERIFY(hasWarning(reading, "Windows-1252", 0));
  QCOMPARE(reading.leftOut, 0);

  LabelTable many = sample();
  many.templates.resize(1500, many.templates.front());
  QVERIFY(LabelTableFile::write(path("many.csv"), many));
  reading = LabelTableFile::read(path("many.csv"), read);
  QVERIFY(read == many);
  QCOMPARE(reading.leftOut, 0);

  // A cell that is too long costs no other.
  QList<QByteArray> lines = text.split('\n');
  const int line = 1 + LabelRow::Columns * (1 + 2) + LabelRow::Contents;
  lines[line] = QByteArray(LabelTableFile::LongestCell + 1, 'x');
  read = LabelTable();
  reading = LabelTableFile::read(write(lines.join('\n')), read);
  LabelTable expected = sample();
  expected.types.at(2)[LabelRow::Contents] = LabelTable().types.at(2)[LabelRow::Contents];
  QVERIFY(read == expected);
  QVERIFY(hasWarning(reading, "65537 characters", line + 1));
  QCOMPARE(reading.leftOut, 1);

  reading = LabelTableFile::read(write(text + "half a template\n"), read);
  QVERIFY(read == sample());
  QCOMPARE(reading.leftOut, 1);
}

void TestLabelTable::fullDiskKeepsTheOldFile() {
  const FullDisk disk;
  if (!disk.isMounted())
    QSKIP("a small disk cannot be mounted here");
  const QString file = disk.path(QStringLiteral("vfd.csv"));
  QVERIFY(LabelTableFile::write(file, sample()));
  disk.fill();
  QString error;
  LabelTable other;
  other.types.front()[LabelRow::Contents] = QString(5000, QLatin1Char('x'));
  QVERIFY(!LabelTableFile::write(file, other, &error));
  QVERIFY(error.contains(file));
  LabelTable read;
  QVERIFY(LabelTableFile::read(file, read).isOpened);
  QVERIFY(read == sample());
}

NIVRA_TEST(TestLabelTable);
#include "tst_labeltable.moc"
