#include "geometry/canvasgrid.h"

#include <drawing/layergeometry.h>
#include <drawing/spatialindex.h>
#include <support/nivratest.h>

#include <algorithm>
#include <random>
#include <set>

class TestLayerGeometry : public QObject {
  Q_OBJECT

private slots:
  void indexFindsWhatTouches();
  void indexBearsOutliersAndEmptiness();
  void clip_data();
  void clip();
  void projectionWithoutExtentIsInvalid();
  void gridTakesEachCellOnce();
  void clustersGatherBehindTheFirst();
  void lanesKeepBesideTheLine();
};

void TestLayerGeometry::indexFindsWhatTouches() {
  constexpr int Items = 5000;
  std::mt19937 random(7);
  std::uniform_real_distribution<double> place(-1000.0, 1000.0);
  std::uniform_real_distribution<double> length(0.0, 50.0);
  std::vector<SpatialIndex::Box> boxes;
  for (int i = 0; i < Items; ++i) {
    const double x = place(random);
    const double y = place(random);
    boxes.push_back({x, y, x + length(random), y + length(random)});
  }
  SpatialIndex index;
  const std::vector<Index> order = index.build(boxes);
  QCOMPARE(std::set<Index>(order.begin(), order.end()).size(), std::size_t(Items)); // each item once
  for (int i = 0; i < 50; ++i) {
    const double x = place(random);
    const double y = place(random);
    const SpatialIndex::Box area{x, y, x + 100.0, y + 100.0};
    std::vector<Index> visited;
    index.query(area, [&](Index position) { visited.push_back(position); });
    QVERIFY(std::is_sorted(visited.begin(), visited.end()));
    std::set<Index> found;
    for (const Index position : visited)
      found.insert(order[position]);
    for (Index item = 0; item < Items; ++item)
      QVERIFY(!boxes[item].touches(area) || found.count(item) == 1);
    QVERIFY2(visited.size() < Items / 5, "a query of a four-hundredth of the plane should not visit everything");
  }
}

void TestLayerGeometry::indexBearsOutliersAndEmptiness() {
  SpatialIndex index;
  QVERIFY(index.build({}).empty());
  index.query({-1e30, -1e30, 1e30, 1e30}, [](Index) { QFAIL("there is nothing to visit"); });
  const std::vector<SpatialIndex::Box> boxes{{-1e19, 0, -1e19, 0}, {1e19, 1e19, 1e19, 1e19}, {0, 0, 0, 0}, {0, 0, 0, 0}};
  QCOMPARE(index.build(boxes).size(), boxes.size());
  int visited = 0;
  index.query({-1, -1, 1, 1}, [&](Index) { ++visited; });
  QVERIFY(visited >= 2);
}

void TestLayerGeometry::clip_data() {
  QTest::addColumn<QLineF>("line");
  QTest::addColumn<bool>("visible");
  QTest::addColumn<QLineF>("clipped");
  QTest::newRow("inside") << QLineF(1, 1, 9, 9) << true << QLineF(1, 1, 9, 9);
  QTest::newRow("across") << QLineF(-10, 5, 20, 5) << true << QLineF(0, 5, 10, 5);
  QTest::newRow("diagonal") << QLineF(-5, -5, 5, 5) << true << QLineF(0, 0, 5, 5);
  QTest::newRow("beside") << QLineF(-5, 11, 15, 11) << false << QLineF();
  QTest::newRow("past the corner") << QLineF(-5, 4, 4, -6) << false << QLineF();
  QTest::newRow("point") << QLineF(3, 3, 3, 3) << true << QLineF(3, 3, 3, 3);
  QTest::newRow("far away") << QLineF(-1e12, 5, 1e12, 5) << true << QLineF(0, 5, 10, 5);
  QTest::newRow("not a number") << QLineF(std::nan(""), 5, 3, 5) << false << QLineF();
}

void TestLayerGeometry::clip() {
  QFETCH(QLineF, line);
  QFETCH(bool, visible);
  QFETCH(QLineF, clipped);
  QCOMPARE(clipLine(line, QRectF(0, 0, 10, 10)), visible);
  if (visible)
    QVERIFY(qAbs(line.x1() - clipped.x1()) + qAbs(line.y1() - clipped.y1()) + qAbs(line.x2() - clipped.x2()) +
                qAbs(line.y2() - clipped.y2()) <
            1e-3);
}

void TestLayerGeometry::projectionWithoutExtentIsInvalid() {
  QwtScaleMap x;
  x.setPaintInterval(0, 100);
  x.setScaleInterval(5, 5);
  QwtScaleMap y;
  y.setPaintInterval(100, 0);
  y.setScaleInterval(0, 50);
  QVERIFY(!Projection(x, y, QRectF(0, 0, 100, 100)).isValid());
  x.setScaleInterval(0, 200);
  const Projection projection(x, y, QRectF(0, 0, 100, 100));
  QVERIFY(projection.isValid());
  QCOMPARE(projection.map(100, 25), QPointF(50, 50));
  const SpatialIndex::Box visible = projection.visible(10);
  QCOMPARE(visible.x1, -20.0);
  QCOMPARE(visible.y2, 55.0);
}

void TestLayerGeometry::gridTakesEachCellOnce() {
  const CellAxis axis(100.0, 10.0, 5);
  QVERIFY(axis.contains(100.0) && !axis.contains(99.9) && !axis.contains(150.0) && !axis.contains(std::nan("")));
  QCOMPARE(axis.nearest(119.9), 1U);
  QCOMPARE(axis.nearest(120.0), 2U); // a cell begins with its border
  QCOMPARE(axis.nearest(1e300), 4U);
  QCOMPARE(CellAxis(100.0, 0.0, 5).nearest(100.0), 0U);
  QVERIFY(axis.range(150.0, 170.0).isEmpty() && axis.range(80.0, 99.0).isEmpty());
  QVERIFY(axis.range(100.0, std::nan("")).isEmpty());
  QCOMPARE(axis.range(80.0, 170.0).first, 0U);
  QCOMPARE(axis.range(80.0, 170.0).end, 5U);
  QCOMPARE(axis.around(0).first, 0U);
  QCOMPARE(axis.around(4).end, 5U);
  CanvasGrid grid(QRectF(0, 0, 100, 100), 10.0);
  QVERIFY(grid.take({5, 5}));
  QVERIFY(!grid.take({6, 6}));
  QVERIFY(grid.take({35, 35}));
  QVERIFY(!grid.take({-1, 5}));
  QVERIFY(!grid.take({std::nan(""), 5}));
  QVERIFY(!grid.takeArea(QRectF(20, 20, 60, 20)));
  QVERIFY(grid.takeArea(QRectF(60, 60, 20, 20)));
  QVERIFY(!grid.take({75, 65}));
}

void TestLayerGeometry::clustersGatherBehindTheFirst() {
  CanvasGrid grid(QRectF(0, 0, 100, 100), 10.0);
  QCOMPARE(grid.claim({5, 5}, 0), 0U);
  QCOMPARE(grid.claim({15, 15}, 1), 0U); // a neighbour is taken
  QCOMPARE(grid.claim({35, 35}, 1), 1U);
  QCOMPARE(grid.claim({-50, 500}, 2), 2U); // outside: the nearest cell
}

void TestLayerGeometry::lanesKeepBesideTheLine() {
  const LaneWay way({0, 0, 100, 0}, 10.0); // pixels count downwards: the right of this way is below
  QCOMPARE(way.start, QPointF(0, 0));
  QCOMPARE(way.end, QPointF(100, 0));
  QCOMPARE(way.middle(), QLineF(10, 10, 90, 10));
  QCOMPARE(LaneWay({0, 0, 8, 0}, 10.0).middle(), QLineF(2, 2, 6, 2)); // too short for so much
  QCOMPARE(LaneWay({3, 3, 3, 3}, 10.0).middle(), QLineF(3, 3, 3, 3));
}

NIVRA_TEST(TestLayerGeometry);
#include "tst_layergeometry.moc"
