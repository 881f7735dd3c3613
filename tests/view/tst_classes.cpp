#include "configure/classdialog.h"
#include "configure/plotsettingsfile.h"
#include "style/naturalbreaks.h"
#include "viewfixture.h"

#include <drawing/classlooks.h>
#include <drawing/colorscale.h>
#include <support/answers.h>
#include <support/nivratest.h>
#include <view/styleactions.h>
#include <view/viewfuncdialog.h>

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

#include <random>

/// Classes of edge colours: where they break, what colours and names they have, and the dialog for them.
class TestClasses : public QObject {
  Q_OBJECT

private slots:
  void naturalBreaksAreTheBest();
  void naturalBreaksOfFewAndMany();
  void colorsAndNamesOfOnesOwn();
  void textsSurviveTheFile();
  void editedInTheDialog();
  void dialogSpeaksTheShownUnit();

private:
  static double spread(const std::vector<double> &values, std::size_t first, std::size_t last) {
    double mean = 0.0;
    for (std::size_t i = first; i < last; ++i)
      mean += values[i] / static_cast<double>(last - first);
    double sum = 0.0;
    for (std::size_t i = first; i < last; ++i)
      sum += (values[i] - mean) * (values[i] - mean);
    return sum;
  }
};

void TestClasses::naturalBreaksAreTheBest() {
  QCOMPARE(naturalBreaks({20.0, 1.0, 5.2, 0.9, 21.0, 1.1, 5.0}, 3), (std::vector<double>{5.0, 20.0}));
  std::mt19937 random(7);
  std::uniform_real_distribution<double> any(1000.0, 1100.0);
  for (int round = 0; round < 50; ++round) { // against all ways to part them in three
    std::vector<double> values(9);
    std::generate(values.begin(), values.end(), [&] { return any(random); });
    std::vector<double> sorted = values;
    std::sort(sorted.begin(), sorted.end());
    double best = 1e30;
    std::vector<double> expected;
    for (std::size_t first = 1; first + 1 < sorted.size(); ++first) {
      for (std::size_t second = first + 1; second < sorted.size(); ++second) {
        const double sum = spread(sorted, 0, first) + spread(sorted, first, second) + spread(sorted, second, sorted.size());
        if (sum < best) {
          best = sum;
          expected = {sorted[first], sorted[second]};
        }
      }
    }
    QCOMPARE(naturalBreaks(values, 3), expected);
  }
}

void TestClasses::naturalBreaksOfFewAndMany() {
  QVERIFY(naturalBreaks({}, 5).empty() && naturalBreaks({1.0}, 5).empty() && naturalBreaks({2.0, 2.0, 2.0}, 3).empty());
  QCOMPARE(naturalBreaks({1.0, 2.0}, 9), (std::vector<double>{2.0}));
  std::vector<double> many;
  for (int i = 0; i < 200'000; ++i)
    many.push_back((i % 2 == 0 ? 0.0 : 1000.0) + i * 1e-4);
  const std::vector<double> breaks = naturalBreaks(many, 2);
  QVERIFY(breaks.size() == 1 && breaks.front() > 20.0 && breaks.front() <= 1000.2);
}

void TestClasses::colorsAndNamesOfOnesOwn() {
  ViewFixture f;
  f.plot().show();
  f.show();
  PlotSettings settings = f.plot().settings();
  settings.functions[Aspect::EdgeColor].name = QStringLiteral("diameter");
  settings.colorClasses = 2;
  settings.classMethod = PlotSettings::ownClasses();
  settings.classBreaks = QStringLiteral("700");
  settings.classColors = QStringLiteral(";#00c800");
  settings.classLabels = QStringLiteral(";thick%3B very");
  settings.showsLegend = true;
  settings.edgeMag = 3.0;
  f.plot().setStyle({settings, f.plot().update().labelTable()});
  QCOMPARE(f.picture().pixelColor(f.pixel(135, 0)), QColor(0, 200, 0)); // BC, beside its arrow
  QVERIFY(f.picture().pixelColor(f.pixel(35, 0)) != QColor(0, 200, 0));
  const LegendContents legend = f.plot().update().legendContents();
  const auto named = std::find_if(legend.lines.begin(), legend.lines.end(),
                                  [](const ColorScale::Swatch &line) { return line.text == QLatin1String("thick; very"); });
  QVERIFY(named != legend.lines.end());
  QCOMPARE(QColor(named->color), f.picture().pixelColor(f.pixel(135, 0)));
}

void TestClasses::textsSurviveTheFile() {
  PlotSettings settings;
  settings.classColors = ClassLooks::text(std::vector<QColor>{QColor(), QColor(1, 2, 3), QColor()});
  settings.classLabels = ClassLooks::text(QStringList{QString(), QStringLiteral("a;b, %3B \"c\" ß")});
  QCOMPARE(settings.classColors, QStringLiteral(";#010203"));
  PlotSettings again;
  PlotSettingsFile::readText(*PlotSettingsFile::text(settings), {}, again);
  QVERIFY(again == settings);
  QCOMPARE(ClassLooks::labels(again.classLabels).at(1), QStringLiteral("a;b, %3B \"c\" ß"));
  QVERIFY(!ClassLooks::colors(QStringLiteral("no colour;@Variant(")).at(0).isValid());
  QCOMPARE(ClassLooks::colors(QString(100'000, QLatin1Char(';'))).size(), std::size_t(ClassLooks::Most));
}

void TestClasses::editedInTheDialog() {
  ViewFixture f;
  f.show();
  PlotSettings settings = f.plot().settings();
  settings.colorClasses = 4;
  settings.classMethod = PlotSettings::equalClasses();
  f.plot().setSettings(settings);
  viewFuncDialog dialog(f.plot());
  QTimer::singleShot(0, [] {
    auto *classes = qobject_cast<ClassDialog *>(QApplication::activeModalWidget());
    QVERIFY(classes != nullptr);
    auto *table = classes->findChild<QTableView *>();
    QAbstractItemModel &model = *table->model();
    const QAbstractItemModelTester tester(&model);
    QCOMPARE(model.rowCount(), 4); // of pressures from 20 to 60
    QCOMPARE(model.index(1, ClassModel::FromColumn).data().toDouble(), 30.0);
    const auto press = [classes](const char *name) {
      classes->findChild<QPushButton *>(QLatin1String(name))->click();
    };
    table->setCurrentIndex(model.index(1, ClassModel::FromColumn));
    press("addClass");
    QCOMPARE(model.index(2, ClassModel::FromColumn).data().toDouble(), 35.0);
    table->setCurrentIndex(model.index(0, ClassModel::FromColumn));
    press("removeClass");
    QCOMPARE(model.rowCount(), 4);
    QCOMPARE(model.index(1, ClassModel::FromColumn).data().toDouble(), 35.0);
    {
      Answers answers({NivraMsg::Answer::Ok, NivraMsg::Answer::Ok});
      QVERIFY(!model.setData(model.index(1, ClassModel::FromColumn), QStringLiteral("99"))); // above the next
      QVERIFY(!model.setData(model.index(1, ClassModel::FromColumn), QStringLiteral("x")));
      QVERIFY(answers.areGiven());
    }
    QVERIFY(model.setData(model.index(1, ClassModel::FromColumn), QStringLiteral("37")));
    model.setData(model.index(0, ClassModel::LabelColumn), QStringLiteral("low"));
    model.setData(model.index(3, ClassModel::ColorColumn), QColor(9, 9, 9));
    classes->accept();
  });
  dialog.findChild<QPushButton *>(QStringLiteral("editClasses"))->click();
  QVERIFY(dialog.hasUnapplied());
  dialog.findChild<QPushButton *>(QStringLiteral("apply"))->click();
  const PlotSettings &drawn = f.plot().settings();
  QCOMPARE(drawn.classBreaks, QStringLiteral("37;40;50"));
  QCOMPARE(drawn.classMethod, PlotSettings::ownClasses());
  QCOMPARE(drawn.colorClasses, 4);
  QCOMPARE(drawn.classLabels, QStringLiteral("low"));
  QCOMPARE(drawn.classColors, QStringLiteral(";;;#090909"));
}

/// Breaks are kept in the unit of the property table, whatever unit is shown.
void TestClasses::dialogSpeaksTheShownUnit() {
  ViewFixture f;
  f.show();
  PlotSettings settings = f.plot().settings();
  settings.colorClasses = 2;
  settings.classMethod = PlotSettings::ownClasses();
  settings.classBreaks = QStringLiteral("40");
  DrawValues::Column values = f.plot().update().values().of(Aspect::EdgeColor);
  values.function.toDisplay = Units::Linear{0.1, 0.0}; // MPa
  const ClassDialog dialog(settings, values);
  const QAbstractItemModel *model = dialog.findChild<QTableView *>()->model();
  QCOMPARE(model->index(1, ClassModel::FromColumn).data().toDouble(), 4.0);
  QCOMPARE(dialog.settings().classBreaks, QStringLiteral("40"));
}

NIVRA_TEST(TestClasses);
#include "tst_classes.moc"
