#include "residualmodel.h"

#include <support/nivratest.h>

#include <QAbstractItemModelTester>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cmath>
#include <machines/fitresiduals.h>
#include <machines/functionmemory.h>
#include <machines/machinereader.h>

/// How functions meet measured points, and which of them count.
class TestFitResiduals : public QObject {
  Q_OBJECT

private slots:
  void byHand();
  void ofPublicMachines();
  void choiceOfTheWorkspace();
};

void TestFitResiduals::byHand() {
  TurboCompressor machine;
  machine.published.head = Biquadratic{{1.0}};     // one everywhere
  machine.fitted.head = Biquadratic{{0.0, 0.001}}; // a thousandth of the speed
  machine.points = {{1000.0, 1.0, 1.5, 0.0}, {2000.0, 1.0, 2.0, 0.0}, {1000.0, 2.0, 0.5, 0.0}};
  const auto lines = FitResiduals::lines(FitResiduals::points(machine, FitResiduals::Function::Head));
  QCOMPARE(lines.size(), std::size_t(3)); // 1000, 2000, all
  QCOMPARE(*lines[0].speed, 1000.0);
  QCOMPARE(lines[0].points, std::size_t(2));
  QCOMPARE(lines[0].published->meanSquare, 0.5);
  QCOMPARE(lines[1].published->largest, 1.0);
  QCOMPARE(lines[1].fitted->largest, 0.0);
  QVERIFY(!lines[2].speed && std::abs(lines[2].published->meanSquare - std::sqrt(1.5 / 3.0)) < 1e-12);
  QVERIFY(FitResiduals::points(machine, FitResiduals::Function::Efficiency).empty());
  QVERIFY(FitResiduals::lines({}).empty());
  ResidualModel model;
  const QAbstractItemModelTester tester(&model);
  model.setLines(lines, MapQuantity(QStringLiteral("kJ/kg")), 1.0);
  QCOMPARE(model.index(2, ResidualModel::Speed).data().toString(), QStringLiteral("all"));
  QCOMPARE(model.index(0, ResidualModel::PublishedMean).data().toString(), QStringLiteral("0.5"));
}

/// Our fit is the best in the sum of squares, and what is told of it is what its points say.
void TestFitResiduals::ofPublicMachines() {
  const QString file = QStringLiteral(NIVRA_SOURCE_DIR "/../shared/data/compressors/GasLib-135-two-stations.cs");
  if (!QFile::exists(file))
    QSKIP("the public machine data are not there");
  MachineData data = MachineReader::read(file).data;
  QVERIFY(data.hasChoice());
  for (const TurboCompressor &machine : data.turbos) {
    for (const auto function : {FitResiduals::Function::Head, FitResiduals::Function::Efficiency}) {
      const auto all = FitResiduals::lines(FitResiduals::points(machine, function)).back();
      QVERIFY(all.fitted && all.published && all.points > 9);
      QVERIFY(all.fitted->meanSquare <= all.published->meanSquare);
    }
    const auto heads = FitResiduals::lines(FitResiduals::points(machine, FitResiduals::Function::Head)).back();
    QVERIFY(std::abs(heads.fitted->meanSquare - machine.headQuality.meanResidual) < 1e-9);
    QVERIFY(std::abs(heads.published->largest - machine.publishedHeadQuality.largestResidual) < 1e-9);
  }
  // The switch reaches all machines and comes back.
  const auto headAt = [&data] {
    return (*data.turbos.front().head)(1.0, 7000.0);
  };
  const double fitted = headAt();
  data.use(FunctionSource::Published);
  QCOMPARE(headAt(), (*data.turbos.front().published.head)(1.0, 7000.0));
  QVERIFY(headAt() != fitted);
  data.use(FunctionSource::Fitted);
  QCOMPARE(headAt(), fitted);
}

void TestFitResiduals::choiceOfTheWorkspace() {
  const QTemporaryDir one;
  const QTemporaryDir other;
  QString reason;
  QCOMPARE(FunctionMemory::of(one.path()), FunctionSource::Fitted);
  QVERIFY2(FunctionMemory::keep(one.path(), FunctionSource::Published, &reason), qPrintable(reason));
  QCOMPARE(FunctionMemory::of(one.path() + QStringLiteral("/.")), FunctionSource::Published);
  QCOMPARE(FunctionMemory::of(other.path()), FunctionSource::Fitted);
  QVERIFY(FunctionMemory::keep(one.path(), FunctionSource::Fitted, &reason));
  QCOMPARE(FunctionMemory::of(one.path()), FunctionSource::Fitted);
  QVERIFY(QDir(one.path()).isEmpty());
}

NIVRA_TEST(TestFitResiduals);
#include "tst_fitresiduals.moc"
