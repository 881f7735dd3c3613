#include <io/nivrareader.h>
#include <support/nivratest.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <convert/caseconverter.h>

class TestConvert : public QObject {
  Q_OBJECT

private slots:
  void casesThereAndBack();
  void casesThatFail();
  void program();

private:
  static QString opened(const QString &path) {
    const NivraWorkspace workspace = NivraWorkspace::fromFile(path);
    NetData net;
    if (!NivraReader(net).readTopoAndScen(workspace, {}).ok)
      return QStringLiteral("cannot be read");
    QString text;
    net.forEach(NetData::AllTypes, [&text](const element &e) { text += e.lines(); });
    return text;
  }

  QTemporaryDir m_folder;
};

void TestConvert::casesThereAndBack() {
  const QString source = QStringLiteral(NIVRA_SOURCE_DIR "/example/DE_H2");
  const QString text = m_folder.filePath(QStringLiteral("text/DE_H2"));
  const QString back = m_folder.filePath(QStringLiteral("back/DE_H2"));
  const CaseConverter::Result there = CaseConverter::convert(source, text);
  QVERIFY(there.ok && there.findings.empty());
  QCOMPARE(there.files, 1 + 3 * 4); // geometry; gas, results, sub-results and set points of three scenarios
  QVERIFY(CaseConverter::convert(text, back).ok);
  QVERIFY(QFile::exists(text + QStringLiteral("/DE_H2.formulas")));
  const QString before = opened(source + QStringLiteral("/S5/S5.scen.jsn"));
  QVERIFY(before.size() > 10000);
  QCOMPARE(opened(text + QStringLiteral("/S5/S5.scen")), before);
  QCOMPARE(opened(back + QStringLiteral("/S5/S5.scen.jsn")), before);
}

void TestConvert::casesThatFail() {
  QVERIFY(!CaseConverter::convert(m_folder.filePath(QStringLiteral("none")), m_folder.filePath(QStringLiteral("x"))).ok);
  const QString folder = m_folder.filePath(QStringLiteral("own"));
  QDir().mkpath(folder);
  QVERIFY(!CaseConverter::convert(folder, folder + QStringLiteral("/in")).ok); // would never end
  QVERIFY(!CaseConverter::convert(folder, folder).ok);
}

void TestConvert::program() {
  const auto run = [](const QStringList &arguments) {
    QProcess process;
    process.start(QStringLiteral(NIVRA_CONVERT), arguments);
    process.waitForFinished();
    return process.exitCode();
  };
  const QString out = m_folder.filePath(QStringLiteral("s.scen"));
  QCOMPARE(run({QStringLiteral(NIVRA_SOURCE_DIR "/example/DE_H2/S1/S1.scen.jsn"), out}), 0);
  QVERIFY(QFile::exists(out));
  QCOMPARE(run({QStringLiteral("one")}), 2);
  QCOMPARE(run({m_folder.filePath(QStringLiteral("gone.geom")), m_folder.filePath(QStringLiteral("x.geom.jsn"))}), 1);
}

NIVRA_TEST(TestConvert);
#include "tst_convert.moc"
