#include "gaslibimport.h"
#include "xmltree.h"

#include <io/nivrareader.h>
#include <model/consistencycheck.h>
#include <model/netmetadata.h>
#include <support/nivratest.h>

#include <QDir>
#include <QTemporaryDir>

/// Converts public instances and compares what the program then opens with a walk of its own over the XML.
class TestPublicInstances : public QObject {
  Q_OBJECT

private slots:
  void instances_data();
  void instances();
  void nominationsBecomeScenarios();
  void nominationsOfOtherNetworks();

private:
  struct Opened {
    NetData net;
    Findings findings;
    bool ok = false;

    double number(const QString &name, const char *property) {
      const element *found = net.element(name);
      return found == nullptr ? -1e30 : found->value(QLatin1String(property)).toDouble();
    }
  };

  static QString shared(const QString &name) { return QStringLiteral(NIVRA_SOURCE_DIR "/../shared/data/") + name; }
  static void open(const QString &path, Opened &opened) {
    NivraWorkspace workspace = NivraWorkspace::fromFile(path);
    const NivraReader::Result read = NivraReader(opened.net).readTopoAndScen(workspace, {});
    opened.ok = read.ok;
    opened.findings = read.findings;
    append(opened.findings, ConsistencyCheck::prune(opened.net).findings);
  }
  static QString texts(const Findings &findings) {
    QString all;
    for (const Finding &finding : findings)
      all += finding.logText() + QLatin1Char('\n');
    return all;
  }
  static void compareNodes(const XmlTree &net, const XmlTree &scn, Opened &opened);
  static void compareConnections(const XmlTree &net, Opened &opened);
  static void compareTotals(const XmlTree &scn, Opened &opened);
  static void compareReport(const XmlTree &net, const ConversionReport &report);
  static void lookForVocabulary(Opened &opened);

  QTemporaryDir m_folder;
};

void TestPublicInstances::instances_data() {
  QTest::addColumn<QString>("machines");
  QTest::newRow("GasLib-11") << QStringLiteral("GasLib-11.cs");
  QTest::newRow("GasLib-40") << QStringLiteral("GasLib-40.cs");
  QTest::newRow("GasLib-135") << QStringLiteral("GasLib-135-two-stations.cs");
}

/// Bounds of the nomination go before those of the network; a supply's flow counts the other way round.
void TestPublicInstances::compareNodes(const XmlTree &net, const XmlTree &scn, Opened &opened) {
  QMap<QString, QMap<QString, double>> nominated; // by node, "pressure lower" and the like
  for (const XmlTree *node : scn.all(QStringLiteral("node"))) {
    for (const XmlTree &bound : node->children) {
      for (const char *side : {"lower", "upper"}) {
        const QString which = bound.text(QStringLiteral("bound"));
        if (which == QLatin1String(side) || which == QLatin1String("both"))
          nominated[node->text(QStringLiteral("id"))][bound.name + QLatin1Char(' ') + QLatin1String(side)] = bound.number();
      }
    }
  }
  for (const char *kind : {"source", "sink", "innode"}) {
    const double sign = QLatin1String(kind) == QLatin1String("source") ? -1.0 : 1.0;
    for (const XmlTree *node : net.all(QLatin1String(kind))) {
      const QString id = node->text(QStringLiteral("id"));
      const QMap<QString, double> said = nominated.value(id);
      const element *made = opened.net.element(id);
      QVERIFY2(made != nullptr && made->value(QStringLiteral("type")) == QLatin1String("n"), qPrintable(id));
      QCOMPARE(made->value(QStringLiteral("kind")), QLatin1String(kind));
      QCOMPARE(made->value(QStringLiteral("alias")), node->text(QStringLiteral("alias")));
      QCOMPARE(opened.number(id, "x"), node->text(QStringLiteral("x")).toDouble());
      QCOMPARE(opened.number(id, "y"), node->text(QStringLiteral("y")).toDouble());
      QCOMPARE(opened.number(id, "height"), node->child(QStringLiteral("height"))->number());
      QCOMPARE(opened.number(id, "pmin"),
               said.value(QStringLiteral("pressure lower"), node->child(QStringLiteral("pressureMin"))->number()));
      QCOMPARE(opened.number(id, "pmax"),
               said.value(QStringLiteral("pressure upper"), node->child(QStringLiteral("pressureMax"))->number()));
      if (!said.contains(QStringLiteral("flow lower")))
        continue;
      const double flow = sign * said.value(QStringLiteral("flow lower"));
      const double smallest = sign * node->child(QStringLiteral("flowMin"))->number();
      const double largest = sign * node->child(QStringLiteral("flowMax"))->number();
      QCOMPARE(opened.number(id, "qset"), flow);
      QCOMPARE(opened.number(id, "qmin"), std::min(smallest, largest));
      QCOMPARE(opened.number(id, "qmax"), std::max(smallest, largest));
      QVERIFY2(opened.number(id, "qmin") <= flow && flow <= opened.number(id, "qmax"), qPrintable(id));
    }
  }
}

void TestPublicInstances::compareConnections(const XmlTree &net, Opened &opened) {
  const std::map<QString, QString> codes{
      {QStringLiteral("pipe"), QStringLiteral("p")},         {QStringLiteral("shortPipe"), QStringLiteral("s")},
      {QStringLiteral("resistor"), QStringLiteral("g")},     {QStringLiteral("valve"), QStringLiteral("v")},
      {QStringLiteral("controlValve"), QStringLiteral("r")}, {QStringLiteral("compressorStation"), QStringLiteral("c")}};
  const std::vector<std::pair<const char *, const char *>> properties{{"length", "length"},
                                                                      {"diameter", "diameter"},
                                                                      {"roughness", "roughness"},
                                                                      {"pressureMax", "pmax"},
                                                                      {"pressureInMin", "pinmin"},
                                                                      {"pressureOutMax", "poutmax"},
                                                                      {"pressureLossIn", "dpin"},
                                                                      {"pressureLossOut", "dpout"},
                                                                      {"dragFactorIn", "zetain"},
                                                                      {"diameterIn", "diameterin"},
                                                                      {"flowMin", "qmin"},
                                                                      {"flowMax", "qmax"},
                                                                      {"heatTransferCoefficient", "htc"}};
  std::map<QString, int> made;
  opened.net.forEach(NetData::Edge, [&made](const element &edge) { ++made[edge.value(QStringLiteral("type"))]; });
  for (const auto &[kind, code] : codes) {
    const std::vector<const XmlTree *> all = net.all(kind);
    QCOMPARE(made[code], static_cast<int>(all.size()));
    for (const XmlTree *connection : all) {
      const QString id = connection->text(QStringLiteral("id"));
      const element *edge = opened.net.findElement(id, NetData::Edge).second;
      QVERIFY2(edge != nullptr && edge->value(QStringLiteral("type")) == code, qPrintable(id));
      QCOMPARE(edge->value(QStringLiteral("node1")), connection->text(QStringLiteral("from")));
      QCOMPARE(edge->value(QStringLiteral("node2")), connection->text(QStringLiteral("to")));
      for (const auto &[name, property] : properties) {
        if (const XmlTree *value = connection->child(QLatin1String(name)))
          QCOMPARE(edge->value(QLatin1String(property)).toDouble(), value->number());
      }
    }
  }
}

void TestPublicInstances::compareTotals(const XmlTree &scn, Opened &opened) {
  double entries = 0.0;
  double exits = 0.0;
  for (const XmlTree *node : scn.all(QStringLiteral("node")))
    (node->text(QStringLiteral("type")) == QLatin1String("entry") ? entries : exits) +=
        node->child(QStringLiteral("flow"))->number();
  double into = 0.0;
  double out = 0.0;
  opened.net.forEach(NetData::Node, [&](const element &node) {
    const double flow = node.value(QStringLiteral("qset")).toDouble();
    (flow < 0.0 ? into : out) += flow;
  });
  QVERIFY(entries > 0.0);
  QCOMPARE(into, -entries);
  QCOMPARE(out, exits);
}

/// Every element of the XML is accounted for.
void TestPublicInstances::compareReport(const XmlTree &net, const ConversionReport &report) {
  const QMap<QString, int> census = net.census();
  for (auto count = census.begin(); count != census.end(); ++count) {
    if (QStringList{QStringLiteral("network"), QStringLiteral("nodes"), QStringLiteral("connections"),
                    QStringLiteral("information"), QStringLiteral("type")}
            .contains(count.key()))
      continue;
    const ConversionReport::Counts counts = report.of(count.key());
    QVERIFY2(counts.taken + counts.converted + counts.dropped == count.value(), qPrintable(count.key()));
    QVERIFY2(counts.dropped == 0, qPrintable(count.key()));
  }
}

void TestPublicInstances::lookForVocabulary(Opened &opened) {
  QStringList missing;
  opened.net.forEach(NetData::AllTypes, [&](const element &e) {
    for (const Property &property : e) {
      if (opened.net.metaData()->attribute(e.value(QStringLiteral("type")), property.key.name()) == nullptr)
        missing.append(e.value(QStringLiteral("type")) + QLatin1Char(' ') + property.key.name());
    }
  });
  missing.removeDuplicates();
  QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QStringLiteral(", "))));
}

void TestPublicInstances::instances() {
  QFETCH(QString, machines);
  const QString name = QString::fromLatin1(QTest::currentDataTag());
  const QString path = shared(QStringLiteral("public/") + name + QStringLiteral(".net"));
  if (!QFile::exists(path))
    QSKIP("the instance is not on this machine");
  GasLibImport::Request request;
  request.network = path;
  request.compressors = shared(QStringLiteral("compressors/") + machines);
  request.to = m_folder.filePath(name);
  const GasLibImport::Result result = GasLibImport::import(request);
  QVERIFY2(result.ok && result.findings.empty(), qPrintable(texts(result.findings)));
  QCOMPARE(result.scenarios, QStringList{name});
  Opened opened;
  open(request.to + QStringLiteral("/%1/%1.scen.jsn").arg(name), opened);
  QVERIFY2(opened.ok && opened.findings.empty(), qPrintable(texts(opened.findings)));
  const XmlTree net = XmlTree::load(path);
  const XmlTree scn = XmlTree::load(shared(QStringLiteral("public/") + name + QStringLiteral(".scn")));
  const XmlTree stations = XmlTree::load(request.compressors);
  compareNodes(net, scn, opened);
  compareConnections(net, opened);
  compareTotals(scn, opened);
  lookForVocabulary(opened);
  XmlTree both = net;
  both.children.push_back(*scn.child(QStringLiteral("scenario")));
  compareReport(both, result.report);
  int drives = 0;
  for (const XmlTree *station : stations.all(QStringLiteral("compressorStation"))) {
    for (const XmlTree &drive : station->child(QStringLiteral("drives"))->children) {
      const element *made = opened.net.element(
          QStringLiteral("D_%1_%2").arg(station->text(QStringLiteral("id")), drive.text(QStringLiteral("id"))));
      QVERIFY(made != nullptr);
      QCOMPARE(made->value(QStringLiteral("kind")), drive.name);
      ++drives;
    }
  }
  QCOMPARE(result.drives, drives);
}

void TestPublicInstances::nominationsBecomeScenarios() {
  const QString folder = shared(QStringLiteral("public/GasLib-40-nominations"));
  if (!QFile::exists(folder))
    QSKIP("the nominations are not on this machine");
  GasLibImport::Request request;
  request.network = shared(QStringLiteral("public/GasLib-40.net"));
  request.nominations = QStringList{folder};
  request.to = m_folder.filePath(QStringLiteral("ten"));
  const GasLibImport::Result result = GasLibImport::import(request);
  QVERIFY2(result.ok && result.findings.empty(), qPrintable(texts(result.findings)));
  const QStringList files = QDir(folder).entryList({QStringLiteral("*.scn")});
  QCOMPARE(files.size(), 10);
  QCOMPARE(QDir(request.to).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden).size(), 10);
  const XmlTree net = XmlTree::load(request.network);
  for (const QString &file : files) {
    const QString name = QFileInfo(file).completeBaseName();
    Opened opened;
    open(request.to + QStringLiteral("/%1/%1.scen.jsn").arg(name), opened);
    QVERIFY2(opened.ok && opened.findings.empty(), qPrintable(texts(opened.findings)));
    const XmlTree scn = XmlTree::load(folder + QLatin1Char('/') + file);
    compareNodes(net, scn, opened);
    compareTotals(scn, opened);
  }
}

/// Whose names may be the same: the networks number their nodes alike.
void TestPublicInstances::nominationsOfOtherNetworks() {
  if (!QFile::exists(shared(QStringLiteral("public"))))
    QSKIP("the instances are not on this machine");
  for (const char *network : {"GasLib-11", "GasLib-40", "GasLib-135"}) {
    for (const char *other : {"GasLib-11", "GasLib-40", "GasLib-135"}) {
      GasLibImport::Request request;
      request.network = shared(QStringLiteral("public/%1.net").arg(QLatin1String(network)));
      request.nominations = QStringList{shared(QStringLiteral("public/%1.scn").arg(QLatin1String(other)))};
      request.to = m_folder.filePath(QStringLiteral("mixed/%1/%2").arg(QLatin1String(network), QLatin1String(other)));
      const GasLibImport::Result result = GasLibImport::import(request);
      const bool isOwn = qstrcmp(network, other) == 0;
      QVERIFY2(result.ok == isOwn, qPrintable(request.to + texts(result.findings)));
      QCOMPARE(QFile::exists(request.to), isOwn);
      if (!isOwn)
        QVERIFY2(texts(result.findings).contains(QStringLiteral("belongs to another network")),
                 qPrintable(texts(result.findings)));
    }
  }
}

NIVRA_TEST(TestPublicInstances);
#include "tst_publicinstances.moc"
