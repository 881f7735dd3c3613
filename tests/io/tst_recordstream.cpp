#include "recordstream.h"

#include <support/nivratest.h>
#include <support/smallfiles.h>

#include <QTemporaryDir>

/// One walk over the lines or rows of either form.
class TestRecordStream : public QObject {
  Q_OBJECT

private slots:
  void elementsAreAlikeInBothForms();
  void setPointsAreAlikeInBothForms();
  void keptRecordsOutliveTheStream_data();
  void keptRecordsOutliveTheStream();

private:
  QString write(const QString &name, const QByteArray &text) const {
    return SmallFiles::write(m_folder.filePath(name), text);
  }
  /// A line for each record: its elements with their values, or its set points, or its fault.
  static QStringList told(const Record &record, const ElementSpan &elements) {
    QStringList lines;
    if (!record.fault.isEmpty())
      lines.append(QStringLiteral("fault at ") + record.quote);
    for (const ElementRecord &element : elements) {
      QString line = decoded(element.name);
      for (const RecordValue &value : element.values)
        line += QStringLiteral(" %1=%2").arg(decoded(value.key), value.text.toString());
      lines.append(line);
    }
    for (const SetPointsRecord &points : record.setPoints) {
      for (const SetPointRecord &point : points.points)
        lines.append(QStringLiteral("%1 %2=%3 %4")
                         .arg(QString::fromStdString(points.name), QString::fromStdString(point.property),
                              point.value.toString(), QString::fromStdString(point.unit)));
    }
    return lines;
  }
  static QStringList walk(const QString &path, RecordContent content) {
    RecordStream stream(path, {RecordStream::formOf(path), content});
    QString reason;
    if (!stream.open(&reason))
      return {reason};
    QStringList lines;
    Record record;
    while (stream.next(record))
      lines += told(record, stream.elements());
    return lines;
  }

  QTemporaryDir m_folder;
};

void TestRecordStream::elementsAreAlikeInBothForms() {
  const QString json = write(QStringLiteral("a.geom.jsn"), "{\n\"N1\":{\"obj_type\":\"node\",\"x\":1.50,\"text\":\"a;b\"}\n"
                                                           ",\"N2\":{\"obj_type\":\"node\",\"x\":}\n"
                                                           ",\"N3\":{\"obj_type\":\"node\",\"x\":3}\n}\n");
  const QString text = write(QStringLiteral("a.geom"), "[node]\nname;x;text\nN1;1.50;\"a;b\"\nN2;2;3;4\nN3;3\n");
  const QStringList lines = walk(text, RecordContent::Elements);
  QCOMPARE(lines, (QStringList{QStringLiteral("N1 obj_type=node x=1.5 text=a;b"), QStringLiteral("fault at N2;2;3;4"),
                               QStringLiteral("N3 obj_type=node x=3")}));
  QStringList sound = walk(json, RecordContent::Elements);
  QVERIFY2(sound.value(1).startsWith(QStringLiteral("fault at ")), qPrintable(sound.value(1)));
  QCOMPARE(QStringList({sound.value(0), sound.value(2)}), QStringList({lines.at(0), lines.at(2)}));
}

void TestRecordStream::setPointsAreAlikeInBothForms() {
  const QString json =
      write(QStringLiteral("a.scen.jsn"), "{\n\"N1\":[{\"property\":\"pset\",\"value\":50,\"unit\":\"bar\"},"
                                          "{\"property\":\"state\",\"value\":\"on\"}]\n}\n");
  const QString text = write(QStringLiteral("a.scen"), "name;property;value;unit\nN1;pset;50;bar\nN1;state;on\n");
  QCOMPARE(walk(text, RecordContent::SetPoints),
           (QStringList{QStringLiteral("N1 pset=50 bar"), QStringLiteral("N1 state=on ")}));
  QCOMPARE(walk(json, RecordContent::SetPoints), walk(text, RecordContent::SetPoints));
}

void TestRecordStream::keptRecordsOutliveTheStream_data() {
  QTest::addColumn<QString>("name");
  QTest::newRow("JSON") << QStringLiteral("many.geom.jsn");
  QTest::newRow("text") << QStringLiteral("many.geom");
}

/// As threads take them: all at first, and parsed in another order, when the buffer of the stream is long overwritten.
void TestRecordStream::keptRecordsOutliveTheStream() {
  QFETCH(QString, name);
  constexpr int Count = 40000; // more than a buffer holds
  QByteArray content = name.endsWith(QStringLiteral(".jsn")) ? "{\n" : "[node]\nname;x\n";
  for (int i = 0; i < Count; ++i) {
    const QByteArray number = QByteArray::number(i);
    if (name.endsWith(QStringLiteral(".jsn")))
      content += (i == 0 ? "" : ",") + QByteArray("\"N") + number + "\":{\"obj_type\":\"node\",\"x\":" + number + "}\n";
    else
      content += "N" + number + ";" + number + "\n";
  }
  const QString path = write(name, content);
  std::vector<RawRecord> kept;
  {
    RecordStream stream(path, {RecordStream::formOf(path)});
    QString reason;
    QVERIFY2(stream.open(&reason), qPrintable(reason));
    RawRecord raw;
    while (stream.take(raw)) {
      raw.keep();
      kept.push_back(std::move(raw));
    }
  }
  // The lines of braces that surround all hold nothing.
  QCOMPARE(kept.size(), std::size_t(Count));
  RecordParser parser(RecordStream::formOf(path), RecordContent::Elements, RecordNumbers::AsHeld);
  Record record;
  for (int i = Count - 1; i >= 0; --i) {
    parser.parse(kept[static_cast<std::size_t>(i)], record);
    QCOMPARE(told(record, parser.elements()), QStringList(QStringLiteral("N%1 obj_type=node x=%1").arg(i)));
  }
}

NIVRA_TEST(TestRecordStream);
#include "tst_recordstream.moc"
