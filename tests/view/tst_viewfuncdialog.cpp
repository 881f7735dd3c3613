#include "configure/functionrow.h"
#include "configure/labeltableeditor.h"
#include "configure/plotsettingsfile.h"
#include "interaction/plotzoom.h"
#include "viewfixture.h"

#include <base/generalsettings.h>
#include <drawing/drawfunctions.h>
#include <drawing/drawrange.h>
#include <drawing/functionchange.h>
#include <support/answers.h>
#include <support/nivratest.h>
#include <support/smallfiles.h>
#include <view/plotactions.h>
#include <view/styleactions.h>
#include <view/viewfuncdialog.h>

#include <QAction>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>

class TestViewFuncDialog : public QObject {
  Q_OBJECT

private slots:
  void ranges_data();
  void ranges();
  void choicesAreOffered();
  void appliesToThePlot();
  void boundsAreInTheDisplayUnit();
  void invalidRangeAsks_data();
  void invalidRangeAsks();
  void savesBothFiles();
  void overwritesOnlyWhatWasRead_data();
  void overwritesOnlyWhatWasRead();
  void savedSettingsComeBack();
  void untouchedFieldsStay();
  void touchedFieldsAreTaken();
  void templates();
  void boundsBelongToAFunction();
  void boundsGoWhenAnotherFunctionComes();
  void ownClassesGoWithTheirFunction();
  void nothingIsAppliedToNoNetwork();
  void typedBoundsOfAnybody();
  void listsOfferWhatTheNetworkHas();
  void whatIsTypedIsTaken();
  void boundOutsideTheDataIsTold();
  void gridIsShown();
  void applyingAgainKeepsTheLabels();
  void oneEditorACell_data();
  void oneEditorACell();
  void pagesFitTheNarrowestDialog();
  void previewShowsWithoutApplying();
  void previewPausesBetweenDrawings();
  void previewTakesNoNonsense();
  void othersChangeDuringAPreview();

private:
  template <typename T>
  static T *child(QWidget &dialog, const char *name) {
    return dialog.findChild<T *>(QString::fromLatin1(name));
  }
  static FunctionRow *row(viewFuncDialog &dialog, int number) { return dialog.findChildren<FunctionRow *>().at(number); }
  /// Of the first row of the label table.
  static void setContents(QTableView &table, const QString &text) {
    table.model()->setData(table.model()->index(0, LabelRow::Contents), text);
  }
  static void press(viewFuncDialog &dialog, const char *button) { child<QPushButton>(dialog, button)->click(); }
  /// Chooses a colour in the dialog that the button opens.
  static void choose(viewFuncDialog &dialog, const char *button, const QColor &color) {
    QTimer::singleShot(0, [&color] {
      auto *chooser = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
      if (chooser == nullptr)
        return;
      chooser->setCurrentColor(color);
      chooser->accept();
    });
    press(dialog, button);
  }
};

void TestViewFuncDialog::ranges_data() {
  QTest::addColumn<double>("low");
  QTest::addColumn<double>("high");
  QTest::addColumn<int>("state");
  using State = DrawRange::State;
  QTest::newRow("sound") << 1.0 << 2.0 << int(State::Sound);
  QTest::newRow("open") << PlotSettings::OpenMinimum << -5.0 << int(State::Sound);
  QTest::newRow("inverted") << 2.0 << 1.0 << int(State::Inverted);
  QTest::newRow("equal") << 2.0 << 2.0 << int(State::Tiny);
  QTest::newRow("nearly equal") << 1e6 << 1e6 + 1e-5 << int(State::Tiny);
}

void TestViewFuncDialog::ranges() {
  QFETCH(double, low);
  QFETCH(double, high);
  QFETCH(int, state);
  QCOMPARE(int(DrawRange::check(low, high)), state);
  DrawRange::correct(low, high);
  QCOMPARE(int(DrawRange::check(low, high)), int(DrawRange::State::Sound));
}

void TestViewFuncDialog::choicesAreOffered() {
  ViewFixture f;
  f.show();
  viewFuncDialog dialog(f.plot());
  QCOMPARE(dialog.windowTitle(), QStringLiteral("Configure Draw"));
  const auto texts = [&dialog](const char *name) {
    const auto *box = child<QComboBox>(dialog, name);
    QStringList list;
    for (int i = 0; i < box->count(); ++i)
      list.append(box->itemText(i));
    return list;
  };
  QCOMPARE(texts("colorScalePos").join(QLatin1Char('|')), QStringLiteral("not shown|at the top|on the right"));
  QCOMPARE(texts("label_mode").join(QLatin1Char('|')), QStringLiteral("no label|name only|selected properties"));
  QCOMPARE(texts("viewport").join(QLatin1Char('|')), QStringLiteral("independent axes|original ratio|aspect ratio"));
  QCOMPARE(texts("legendPos").size(), 5);
  QCOMPARE(DrawFunction::fixedNames().size(), 15);
  QCOMPARE(child<QDoubleSpinBox>(dialog, "logFactor")->minimum(), -15.0);
  QVERIFY(!LabelTableEditor::visibilityValues().isEmpty());
}

void TestViewFuncDialog::appliesToThePlot() {
  ViewFixture f;
  f.plot().show();
  f.show();
  viewFuncDialog dialog(f.plot());
  QVERIFY(f.plot().settings().functions[Aspect::EdgeColor].name == QLatin1String("p"));
  child<QComboBox>(*row(dialog, 0), "function")->setCurrentText(QStringLiteral("volume flow"));
  child<QCheckBox>(*row(dialog, 0), "absolute")->setChecked(true);
  child<QComboBox>(dialog, "colorScalePos")->setCurrentIndex(1);
  child<QComboBox>(dialog, "colorRamp")->setCurrentIndex(1);
  child<QComboBox>(dialog, "viewport")->setCurrentIndex(0);
  press(dialog, "apply");
  const PlotSettings &settings = f.plot().settings();
  QCOMPARE(settings.functions[Aspect::EdgeColor].name, QStringLiteral("volume flow"));
  QVERIFY(settings.functions[Aspect::EdgeColor].isAbsolute && !settings.fixAxesRatio);
  QCOMPARE(settings.colorScalePos, int(QwtPlot::xTop));
  QCOMPARE(settings.colorRamp, QStringLiteral("viridis"));
  QVERIFY(f.plot().plot()->axisEnabled(QwtPlot::xTop));
}

void TestViewFuncDialog::boundsAreInTheDisplayUnit() {
  ViewFixture f;
  f.net.element(QStringLiteral("A"))->set(QStringLiteral("t"), QStringLiteral("273.15"));
  f.net.element(QStringLiteral("B"))->set(QStringLiteral("t"), QStringLiteral("293.15"));
  f.show();
  viewFuncDialog dialog(f.plot());
  FunctionRow *color = row(dialog, 0);
  child<QComboBox>(*color, "function")->setCurrentText(QStringLiteral("temperature"));
  auto *minimum = child<QLineEdit>(*color, "minimum");
  minimum->setText(QStringLiteral("5"));
  press(dialog, "apply");
  QVERIFY(qAbs(f.plot().settings().functions[Aspect::EdgeColor].minimum - 278.15) < 1e-9);
  QCOMPARE(f.plot().settings().functions[Aspect::EdgeColor].maximum, PlotSettings::OpenMaximum);
  QCOMPARE(minimum->text(), QStringLiteral("5"));
  minimum->setText(QStringLiteral("12"));
  child<QPushButton>(*color, "resetMinimum")->click();
  QCOMPARE(minimum->text(), QStringLiteral("5"));
  press(dialog, "resetMinMax");
  QCOMPARE(f.plot().settings().functions[Aspect::EdgeColor].minimum, PlotSettings::OpenMinimum);
}

void TestViewFuncDialog::invalidRangeAsks_data() {
  QTest::addColumn<QString>("high");
  QTest::addColumn<int>("button");
  QTest::addColumn<QString>("says");
  QTest::addColumn<bool>("applied");
  const QString corrected = QStringLiteral("Proceed with a default/corrected scala?");
  QTest::newRow("inverted, yes") << QStringLiteral("10") << int(NivraMsg::Answer::Yes) << corrected << true;
  QTest::newRow("inverted, no") << QStringLiteral("10") << int(NivraMsg::Answer::No) << corrected << false;
  QTest::newRow("equal, yes") << QStringLiteral("20") << int(NivraMsg::Answer::Yes)
                              << QStringLiteral("Proceed with a default tiny scala?") << true;
  QTest::newRow("no number") << QStringLiteral("many") << int(NivraMsg::Answer::Ok)
                             << QStringLiteral("\"many\" is no number") << false;
}

void TestViewFuncDialog::invalidRangeAsks() {
  QFETCH(QString, high);
  QFETCH(int, button);
  QFETCH(QString, says);
  QFETCH(bool, applied);
  ViewFixture f;
  f.show();
  viewFuncDialog dialog(f.plot());
  child<QLineEdit>(*row(dialog, 0), "minimum")->setText(QStringLiteral("20"));
  child<QLineEdit>(*row(dialog, 0), "maximum")->setText(high);
  const Answers answers({static_cast<NivraMsg::Answer>(button)});
  press(dialog, "apply");
  const QString text = answers.texts().value(0);
  QVERIFY2(text.contains(says), qPrintable(text));
  const PlotSettings &settings = f.plot().settings();
  QCOMPARE(settings.functions[Aspect::EdgeColor].minimum != PlotSettings::OpenMinimum, applied);
  QVERIFY(settings.functions[Aspect::EdgeColor].minimum < settings.functions[Aspect::EdgeColor].maximum);
}

void TestViewFuncDialog::savesBothFiles() {
  const QTemporaryDir folder;
  ViewFixture f;
  f.show();
  viewFuncDialog dialog(f.plot());
  dialog.setFiles(folder.filePath(QStringLiteral("vfd.csv")), {}, folder.filePath(QStringLiteral("plotsettings.ini")),
                  FileStamp::of(folder.filePath(QStringLiteral("plotsettings.ini"))));
  auto *table = child<QTableView>(dialog, "labelTable");
  setContents(*table, QStringLiteral("@p"));
  child<QDoubleSpinBox>(dialog, "edgeMag")->setValue(2.5);
  press(dialog, "applyAndSave");
  f.control.showNetData(folder.filePath(QStringLiteral("plotsettings.ini")));
  QCOMPARE(f.plot().settings().edgeMag, 2.5);
  QCOMPARE(f.plot().update().labelTable().types.front()[LabelRow::Contents], QStringLiteral("@p"));
  dialog.setFiles(QStringLiteral("/nowhere/vfd.csv"), {}, QStringLiteral("/nowhere/plotsettings.ini"),
                  FileStamp::of(QStringLiteral("/nowhere/plotsettings.ini")));
  const Answers answers({NivraMsg::Answer::Ok});
  press(dialog, "applyAndSave");
  const QString text = answers.texts().value(0);
  QVERIFY2(text.contains(QStringLiteral("/nowhere/")), qPrintable(text));
}

void TestViewFuncDialog::overwritesOnlyWhatWasRead_data() {
  QTest::addColumn<QByteArray>("atOpening");
  QTest::addColumn<QByteArray>("meanwhile"); // what another program writes; null for nothing
  QTest::addColumn<QString>("said");
  QTest::addColumn<bool>("isQuestion");
  const QTemporaryDir folder;
  QVERIFY(LabelTableFile::write(folder.filePath(QStringLiteral("vfd.csv")), LabelTable()));
  const QByteArray plain = SmallFiles::contents(folder.filePath(QStringLiteral("vfd.csv")));
  QTest::newRow("as it was") << plain << QByteArray() << QString() << false;
  QTest::newRow("with a blank line at its end") << plain + '\n' << QByteArray() << QString() << false;
  QTest::newRow("new") << QByteArray() << QByteArray() << QString() << false;
  QTest::newRow("changed") << plain << QByteArray("mine") << QStringLiteral("was changed by another program") << true;
  QTest::newRow("made") << QByteArray() << QByteArray("mine") << QStringLiteral("was changed by another program") << true;
  QTest::newRow("not wholly read") << plain + QByteArray(70000, 'x') << QByteArray()
                                   << QStringLiteral("could not be read (1)") << true;
  QTest::newRow("unreadable") << QByteArray("folder") << QByteArray("mine") << QStringLiteral("is not overwritten") << false;
}

void TestViewFuncDialog::overwritesOnlyWhatWasRead() {
  QFETCH(QByteArray, atOpening);
  QFETCH(QByteArray, meanwhile);
  QFETCH(QString, said);
  QFETCH(bool, isQuestion);
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("vfd.csv"));
  const auto write = [&path](const QByteArray &text) {
    QFile::remove(path);
    QFile file(path);
    return text.isEmpty() || (file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
  };
  ViewFixture f;
  if (atOpening == "folder")
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("vfd.csv")));
  else
    QVERIFY(write(atOpening));
  f.control.showNetData(folder.filePath(QStringLiteral("plotsettings.ini")));
  if (atOpening == "folder")
    QVERIFY(QDir(folder.path()).rmdir(QStringLiteral("vfd.csv")));
  if (!meanwhile.isEmpty())
    QVERIFY(write(meanwhile));
  viewFuncDialog dialog(f.plot());
  dialog.setFiles(path, f.control.labelsRead(), folder.filePath(QStringLiteral("plotsettings.ini")),
                  FileStamp::of(folder.filePath(QStringLiteral("plotsettings.ini"))));
  const auto present = [&path] {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  };
  const QByteArray before = present();
  using NivraMsg::Answer;
  {
    const Answers answers({Answer::No});
    press(dialog, "applyAndSave");
    QVERIFY2(answers.texts().join(QString()).contains(said), qPrintable(answers.texts().join(QString())));
    QCOMPARE(answers.areGiven(), !said.isEmpty());
  }
  if (!said.isEmpty())
    QCOMPARE(present(), before);
  if (isQuestion) {
    const Answers answers({Answer::Yes});
    press(dialog, "applyAndSave");
    QVERIFY(answers.areGiven());
  }
  if (isQuestion || said.isEmpty()) {
    QVERIFY(present().startsWith("vfd 1\n"));
    const Answers answers({});
    press(dialog, "applyAndSave"); // over its own file
    QVERIFY(answers.areGiven());
  }
}

void TestViewFuncDialog::savedSettingsComeBack() {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("plotsettings.ini"));
  ViewFixture f;
  f.plot().show();
  f.show();
  viewFuncDialog dialog(f.plot());
  const auto *saved = child<QPushButton>(dialog, "savedSettings");
  QVERIFY(!saved->isEnabled());
  dialog.setFiles(folder.filePath(QStringLiteral("vfd.csv")), {}, path, FileStamp::of(path));
  QVERIFY(!saved->isEnabled()); // there is nothing yet
  child<QDoubleSpinBox>(dialog, "edgeMag")->setValue(2.5);
  choose(dialog, "bgrColor", QColor(10, 60, 90));
  auto *table = child<QTableView>(dialog, "labelTable");
  setContents(*table, QStringLiteral("kept"));
  press(dialog, "applyAndSave");
  QVERIFY(saved->isEnabled());
  const QColor ground = f.picture().pixelColor(f.pixel(50, 80));
  QCOMPARE(ground, QColor(10, 60, 90));
  const PlotSettings kept = f.plot().settings();
  const LabelTable labels = f.plot().update().labelTable();

  child<QDoubleSpinBox>(dialog, "edgeMag")->setValue(7.0);
  choose(dialog, "bgrColor", Qt::yellow);
  child<QComboBox>(dialog, "viewport")->setCurrentIndex(0);
  setContents(*table, QStringLiteral("tried"));
  press(dialog, "apply");
  QVERIFY(f.picture().pixelColor(f.pixel(50, 80)) == QColor(Qt::yellow));
  setContents(*table, QStringLiteral("half typed"));
  press(dialog, "savedSettings");
  QCOMPARE(f.picture().pixelColor(f.pixel(50, 80)), ground);
  QVERIFY(f.plot().update().labelTable() == labels);
  QVERIFY(f.plot().settings() == kept);
  QCOMPARE(child<QDoubleSpinBox>(dialog, "edgeMag")->value(), 2.5);
  QCOMPARE(table->model()->index(0, LabelRow::Contents).data().toString(), QStringLiteral("kept"));

  QVERIFY(QFile::remove(path)); // meanwhile
  press(dialog, "savedSettings");
  QCOMPARE(f.plot().settings().edgeMag, 2.5);
  QVERIFY(QFile::remove(folder.filePath(QStringLiteral("vfd.csv"))));
  press(dialog, "savedSettings");
  QVERIFY(!saved->isEnabled());
  QCOMPARE(f.plot().settings().edgeMag, 2.5);
}

/// What the fields cannot show, be it digits, opacity or values beyond their limits, is not theirs to change.
void TestViewFuncDialog::untouchedFieldsStay() {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("plotsettings.ini"));
  PlotSettings stored;
  stored.functions[Aspect::EdgeColor].name = QStringLiteral("pressure");
  stored.legendPos = 5;
  stored.colorScalePos = 2;
  stored.lastColor = 400;
  stored.saturation = 300;
  stored.lightness = -3;
  stored.logFactor = 7.83;
  stored.edgeConst = 1.125;
  stored.edgeMag = 250.0;
  stored.zoomFact = 1.005;
  stored.labelMag = 100;
  stored.alphaSubnet = 256;
  stored.edgeColorInactive = QColor(0xa0, 0xa0, 0xa4, 0x80);
  stored.gridMinorColor = QColor();
  stored.functions[Aspect::EdgeColor].minimum = 12.345678901234567;
  stored.functions[Aspect::EdgeColor].maximum = 85.000000000000014;
  stored.functions[Aspect::NodeColor].minimum = 1.0 / 3.0;
  stored.functions[Aspect::NodeColor].name = QStringLiteral("temperature"); // in K, and shown in another unit
  stored.functions[Aspect::NodeColor].maximum = 300.1;
  stored.label_mode = QStringLiteral("of another program");
  stored.colorRamp = QStringLiteral("unknown");
  stored.colorClasses = 1;
  stored.classMethod = PlotSettings::quantileClasses();
  stored.edgeShowFlow = QStringLiteral(" q");
  QVERIFY(PlotSettingsFile::write(path, stored));
  PlotSettings before;
  QVERIFY(PlotSettingsFile::read(path, before));
  QVERIFY(before == stored);

  ViewFixture f;
  f.control.showNetData(path);
  viewFuncDialog dialog(f.plot());
  dialog.setFiles(folder.filePath(QStringLiteral("vfd.csv")), {}, path, FileStamp::of(path));
  QCOMPARE(child<QComboBox>(dialog, "legendPos")->currentText(), QStringLiteral("not shown"));
  QCOMPARE(child<QLineEdit>(*row(dialog, 0), "minimum")->text().toDouble(), 12.345678901234567);
  press(dialog, "applyAndSave");
  press(dialog, "applyAndSave");
  PlotSettings after;
  QVERIFY(PlotSettingsFile::read(path, after));
  QVERIFY(after == before);
  auto *color = child<QComboBox>(*row(dialog, 0), "function"); // there and back
  color->setCurrentText(QStringLiteral("volume flow"));
  color->setCurrentText(QStringLiteral("pressure"));
  press(dialog, "apply");
  QCOMPARE(f.plot().settings().functions[Aspect::EdgeColor].minimum, stored.functions[Aspect::EdgeColor].minimum);
  QCOMPARE(f.plot().settings().functions[Aspect::NodeColor].maximum, stored.functions[Aspect::NodeColor].maximum);
}

void TestViewFuncDialog::touchedFieldsAreTaken() {
  ViewFixture f;
  f.show();
  PlotSettings settings = f.plot().settings();
  settings.classMethod = PlotSettings::quantileClasses();
  settings.legendPos = 5;
  settings.edgeConst = 1.125;
  f.plot().setSettings(settings);
  viewFuncDialog dialog(f.plot());
  child<QComboBox>(dialog, "classMethod")->setCurrentIndex(1);
  child<QComboBox>(dialog, "legendPos")->setCurrentIndex(3);
  child<QDoubleSpinBox>(dialog, "edgeConst")->setValue(2.25);
  child<QCheckBox>(*row(dialog, 1), "logarithmic")->setChecked(true);
  choose(dialog, "edgeColorNoFlow", QColor(1, 2, 3));
  press(dialog, "apply");
  const PlotSettings &taken = f.plot().settings();
  QCOMPARE(taken.classMethod, PlotSettings::equalClasses());
  QCOMPARE(taken.colorClasses, 5);
  QCOMPARE(taken.legendPos, 3);
  QCOMPARE(taken.edgeConst, 2.25);
  QVERIFY(taken.functions[Aspect::EdgeWidth].isLogarithmic);
  QCOMPARE(taken.edgeColorNoFlow, QColor(1, 2, 3));
  child<QComboBox>(dialog, "classMethod")->setCurrentIndex(0);
  press(dialog, "apply");
  QVERIFY(taken.colorClasses < 2);
  QCOMPARE(taken.classMethod, PlotSettings::equalClasses()); // for the next time
}

void TestViewFuncDialog::templates() {
  ViewFixture f;
  f.show();
  viewFuncDialog dialog(f.plot());
  auto *table = child<QTableView>(dialog, "labelTable");
  const int types = table->model()->rowCount();
  QVERIFY(!(table->model()->index(2, LabelRow::LongName).flags() & Qt::ItemIsEditable));
  table->setCurrentIndex(table->model()->index(2, 0));
  const Answers answers({NivraMsg::Answer::Ok});
  press(dialog, "deleteRow");
  QCOMPARE(answers.texts().value(0), QStringLiteral("Deleting this row is not allowed!"));
  press(dialog, "addTemplate");
  QCOMPARE(table->model()->rowCount(), types + 1);
  press(dialog, "apply");
  QCOMPARE(f.plot().update().labelTable().templates.size(), std::size_t(1));
  QCOMPARE(f.plot().update().labelTable().templates.front().icon, QStringLiteral("p"));
  table->setCurrentIndex(table->model()->index(types, 0));
  press(dialog, "deleteRow");
  QCOMPARE(table->model()->rowCount(), types);
}

void TestViewFuncDialog::boundsBelongToAFunction() {
  const QTemporaryDir folder;
  ViewFixture f;
  f.show();
  viewFuncDialog dialog(f.plot());
  dialog.setFiles(folder.filePath(QStringLiteral("vfd.csv")), {}, folder.filePath(QStringLiteral("plotsettings.ini")),
                  FileStamp::of(folder.filePath(QStringLiteral("plotsettings.ini"))));
  auto *function = child<QComboBox>(*row(dialog, 0), "function");
  auto *minimum = child<QLineEdit>(*row(dialog, 0), "minimum");
  auto *maximum = child<QLineEdit>(*row(dialog, 0), "maximum");
  minimum->setText(QStringLiteral("1e1"));
  maximum->setText(QStringLiteral("85.0"));
  QVERIFY(
      child<QLineEdit>(*row(dialog, 2), "minimum")->text().isEmpty()); // node colours also show p, with bounds of their own
  function->setCurrentText(QStringLiteral("volume flow"));
  QVERIFY(minimum->text().isEmpty() && maximum->text().isEmpty());
  press(dialog, "apply");
  QCOMPARE(f.plot().settings().functions[Aspect::EdgeColor].minimum, PlotSettings::OpenMinimum);
  QCOMPARE(f.plot().settings().functions[Aspect::EdgeColor].maximum, PlotSettings::OpenMaximum);
  maximum->setText(QStringLiteral("3"));
  press(dialog, "applyAndSave");

  ViewFixture other; // another day
  other.control.showNetData(folder.filePath(QStringLiteral("plotsettings.ini")));
  viewFuncDialog again(other.plot());
  QCOMPARE(child<QLineEdit>(*row(again, 0), "maximum")->text(), QStringLiteral("3"));
  child<QComboBox>(*row(again, 0), "function")->setCurrentText(QStringLiteral("p"));    // by its property
  QCOMPARE(child<QLineEdit>(*row(again, 0), "minimum")->text(), QStringLiteral("1e1")); // as it was typed
  QCOMPARE(child<QLineEdit>(*row(again, 0), "maximum")->text(), QStringLiteral("85.0"));
  press(again, "apply");
  QCOMPARE(other.plot().settings().functions[Aspect::EdgeColor].minimum, 10.0);
  QCOMPARE(other.plot().plot()->axisInterval(QwtPlot::yRight), QwtInterval(10, 85));
  press(again, "resetMinMax");
  child<QComboBox>(*row(again, 0), "function")->setCurrentText(QStringLiteral("volume flow"));
  QVERIFY(child<QLineEdit>(*row(again, 0), "maximum")->text().isEmpty());
}

void TestViewFuncDialog::boundsGoWhenAnotherFunctionComes() {
  ViewFixture f;
  f.show();
  viewFuncDialog dialog(f.plot());
  auto *maximum = child<QLineEdit>(*row(dialog, 0), "maximum");
  maximum->setText(QStringLiteral("33")); // of the pressure, and not applied
  PlotSettings settings = f.plot().appliedSettings();
  settings.functions[Aspect::EdgeColor].name = QStringLiteral("volume flow"); // by a command of the drawing
  f.plot().setSettings(settings);
  QCOMPARE(child<QComboBox>(*row(dialog, 0), "function")->currentText(), QStringLiteral("volume flow"));
  QVERIFY(maximum->text().isEmpty());
  press(dialog, "apply");
  QCOMPARE(f.plot().settings().functions[Aspect::EdgeColor].maximum, PlotSettings::OpenMaximum);
}

void TestViewFuncDialog::ownClassesGoWithTheirFunction() {
  ViewFixture f;
  f.show();
  PlotSettings settings = f.plot().settings();
  settings.functions[Aspect::EdgeColor].name = QStringLiteral("p");
  settings.colorClasses = 3;
  settings.classMethod = PlotSettings::ownClasses();
  settings.classBreaks = QStringLiteral("40;50");
  f.plot().setSettings(settings);
  PlotSettings changed = settings;
  changeFunction(changed, Aspect::NodeColor, QStringLiteral("q"), f.net);
  changeFunction(changed, Aspect::EdgeColor, QStringLiteral("p"), f.net);
  QCOMPARE(changed.colorClasses, 3);
  changeFunction(changed, Aspect::EdgeColor, QStringLiteral("q"), f.net);
  QCOMPARE(changed.colorClasses, 0);
  viewFuncDialog dialog(f.plot());
  child<QComboBox>(*row(dialog, 0), "function")->setCurrentText(QStringLiteral("q"));
  QVERIFY(child<QComboBox>(dialog, "classMethod")->currentData().toString().isEmpty());
  press(dialog, "apply");
  QCOMPARE(f.plot().settings().colorClasses, 0);
}

void TestViewFuncDialog::nothingIsAppliedToNoNetwork() {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("plotsettings.ini"));
  NetData nothing;
  NetVisControl control(nothing, QString());
  viewFuncDialog dialog(*control.plot());
  dialog.setFiles(folder.filePath(QStringLiteral("vfd.csv")), {}, file, FileStamp::of(file));
  const Answers told({NivraMsg::Answer::Ok});
  press(dialog, "applyAndSave");
  QVERIFY(told.areGiven());
  QVERIFY(!QFile::exists(file));
}

void TestViewFuncDialog::typedBoundsOfAnybody() {
  PerAspect<TypedBounds::OfFunctions> bounds{};
  bounds[Aspect::EdgeColor].insert(QStringLiteral("a;b|c%"), {QStringLiteral("1,5"), QString(), QStringLiteral("m³/h")});
  const TypedBounds typed =
      TypedBounds::read(TypedBounds::written(bounds))[Aspect::EdgeColor].value(QStringLiteral("a;b|c%"));
  QCOMPARE(typed.minimum, QStringLiteral("1,5"));
  QCOMPARE(typed.unit, QStringLiteral("m³/h"));
  ViewFixture f;
  f.show();
  PlotSettings settings = f.plot().settings();
  settings.functions[Aspect::EdgeColor].minimum = 30; // what is typed does not say so
  settings.functions[Aspect::EdgeColor].typed =
      TypedBounds::read(QStringLiteral("colorFunc|p|many|9|bar;;|;colorFunc|q|1|2|no unit;%zz|") +
                        QStringLiteral("nodeColorFunc|p|1|2|bar;").repeated(5000))[Aspect::EdgeColor];
  f.plot().setSettings(settings);
  viewFuncDialog dialog(f.plot());
  const auto *minimum = child<QLineEdit>(*row(dialog, 0), "minimum");
  QCOMPARE(minimum->text(), QStringLiteral("30"));
  QVERIFY(child<QLineEdit>(*row(dialog, 0), "maximum")->text().isEmpty());
  child<QComboBox>(*row(dialog, 0), "function")->setCurrentText(QStringLiteral("q"));
  QVERIFY(minimum->text().isEmpty()); // in a unit that does not fit
}

void TestViewFuncDialog::listsOfferWhatTheNetworkHas() {
  ViewFixture f;
  f.net.element(QStringLiteral("AB"))->set(QStringLiteral("v"), QStringLiteral("2"));
  f.net.element(QStringLiteral("BC"))->set(QStringLiteral("v"), QStringLiteral("8"));
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("power"), QStringLiteral("17.5"));
  f.net.element(QStringLiteral("A"))->set(QStringLiteral("reserve"), QStringLiteral("4")); // as by a formula
  f.net.element(QStringLiteral("AB"))->set(QStringLiteral("alias"), QStringLiteral("12")); // a name, though of digits
  f.show();
  viewFuncDialog dialog(f.plot());
  dialog.show();
  const auto offered = [&dialog](int number) {
    const auto *box = child<QComboBox>(*row(dialog, number), "function");
    QStringList names;
    for (int i = number == 3 ? 16 : 15; i < box->count(); ++i)
      names.append(box->itemText(i));
    return names;
  };
  QCOMPARE(offered(0), QStringList({QStringLiteral("power"), QStringLiteral("reserve"), QStringLiteral("v")}));
  QCOMPARE(offered(1), offered(0));
  QCOMPARE(offered(2), QStringList({QStringLiteral("reserve")}));
  QCOMPARE(offered(3), offered(2));
  child<QComboBox>(*row(dialog, 0), "function")->setCurrentText(QStringLiteral("v"));
  press(dialog, "apply");
  QVERIFY(f.plot().plot()->axisTitle(QwtPlot::yRight).text().contains(QStringLiteral("velocity [m/s]")));
  const QImage picture = f.picture();
  QCOMPARE(picture.pixelColor(f.pixel(25, 0)).hsvHue(), 240);
  QVERIFY(picture.pixelColor(f.pixel(125, 0)).hsvHue() <= 0);
}

/// Also where a longer name begins with it.
void TestViewFuncDialog::whatIsTypedIsTaken() {
  ViewFixture f;
  f.net.element(QStringLiteral("AB"))->set(QStringLiteral("qmax"), QStringLiteral("9"));
  f.show();
  viewFuncDialog dialog(f.plot());
  dialog.show();
  auto *function = child<QComboBox>(*row(dialog, 0), "function");
  QVERIFY(function->findText(QStringLiteral("qmax")) >= 0);
  dialog.activateWindow();
  function->setFocus();
  QVERIFY(QTest::qWaitForWindowActive(&dialog));
  function->lineEdit()->selectAll();
  QTest::keyClicks(function->lineEdit(), QStringLiteral("qm"));
  QTest::keyClick(function->lineEdit(), Qt::Key_Return);
  QCOMPARE(function->currentText(), QStringLiteral("qm"));
}

void TestViewFuncDialog::boundOutsideTheDataIsTold() {
  ViewFixture f;
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("diameter"), QStringLiteral("100"));
  f.show();
  viewFuncDialog dialog(f.plot());
  auto *minimum = child<QLineEdit>(*row(dialog, 0), "minimum");
  minimum->setText(QStringLiteral("100"));
  press(dialog, "apply");
  const auto *note = child<QLabel>(*row(dialog, 0), "note");
  QVERIFY2(note->text().contains(QStringLiteral("above all values")) &&
               note->text().contains(QStringLiteral("20 to 60 bar")),
           qPrintable(note->text()));
  QVERIFY(!note->isHidden());
  QCOMPARE(minimum->text(), QStringLiteral("100")); // and it holds:
  QCOMPARE(f.plot().settings().functions[Aspect::EdgeColor].minimum, 100.0);
  QVERIFY(f.plot().plot()->axisInterval(QwtPlot::yRight).maxValue() > 100);
  const QColor beyond = QColor::fromHsv(240, 255, 215).darker(140);
  const QColor drawn = f.picture().pixelColor(f.pixel(25, 0));
  QVERIFY2(qAbs(drawn.blue() - beyond.blue()) < 8 && drawn.red() < 8, qPrintable(drawn.name()));
}

void TestViewFuncDialog::gridIsShown() {
  ViewFixture f;
  f.plot().show();
  f.show();
  viewFuncDialog dialog(f.plot());
  const auto count = [&f](const QColor &color) {
    const QImage picture = f.picture();
    int pixels = 0;
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x)
        pixels += picture.pixelColor(x, y) == color ? 1 : 0;
    return pixels;
  };
  const QColor major(1, 120, 3);
  const QColor minor(200, 4, 180);
  choose(dialog, "gridMajorColor", major);
  choose(dialog, "gridMinorColor", minor);
  child<QCheckBox>(dialog, "showGrid")->setChecked(false); // which comes with a colour of its own
  press(dialog, "apply");
  QCOMPARE(count(major) + count(minor), 0);
  child<QCheckBox>(dialog, "showGrid")->setChecked(true);
  press(dialog, "apply");
  QVERIFY(count(major) > 200);
  QVERIFY(count(minor) > 200);
}

void TestViewFuncDialog::applyingAgainKeepsTheLabels() {
  GeneralSettings::instance().setValue(QStringLiteral("perform label placement"), QStringLiteral("always"));
  ViewFixture f;
  f.plot().show();
  f.show();
  viewFuncDialog dialog(f.plot());
  QTRY_VERIFY(f.plot().update().labels().size() >= 2); // although the empty window before asked for labels as well
  const std::size_t before = f.plot().update().labels().size();
  press(dialog, "apply");
  press(dialog, "apply");
  QCOMPARE(f.plot().update().labels().size(), before);
  child<QComboBox>(dialog, "label_mode")->setCurrentText(QStringLiteral("no label"));
  press(dialog, "apply");
  QVERIFY(f.plot().update().labels().empty());
  child<QComboBox>(dialog, "label_mode")->setCurrentText(QStringLiteral("name only"));
  press(dialog, "apply");
  QVERIFY(f.plot().update().labels().size() >= before);
  GeneralSettings::instance().reset();
}

void TestViewFuncDialog::oneEditorACell_data() {
  QTest::addColumn<int>("column");
  QTest::addColumn<bool>("isDialog");
  QTest::newRow("size") << int(LabelRow::Size) << false;
  QTest::newRow("show") << int(LabelRow::Show) << true;
  QTest::newRow("contents") << int(LabelRow::Contents) << true;
}

void TestViewFuncDialog::oneEditorACell() {
  QFETCH(int, column);
  QFETCH(bool, isDialog);
  ViewFixture f;
  f.show();
  viewFuncDialog dialog(f.plot());
  dialog.resize(1000, 600);
  dialog.show();
  dialog.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&dialog));
  child<QTabWidget>(dialog, "tabs")->setCurrentWidget(child<QWidget>(dialog, "labelsPage"));
  auto *table = child<QTableView>(dialog, "labelTable");
  const QModelIndex cell = table->model()->index(0, column);
  table->scrollTo(cell);
  bool wasDialog = false;
  QTimer::singleShot(0, [&wasDialog] {
    if (QWidget *modal = QApplication::activeModalWidget()) {
      wasDialog = true;
      modal->close();
    }
  });
  const QPoint place = table->visualRect(cell).center();
  QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
  QTest::mouseDClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
  QCOMPARE(wasDialog, isDialog);
  int editors = 0;
  for (const QLineEdit *editor : table->viewport()->findChildren<QLineEdit *>())
    editors += editor->isVisible() ? 1 : 0;
  QCOMPARE(editors, isDialog ? 0 : 1);
}

/// A dock takes the width of the one that was there before.
void TestViewFuncDialog::pagesFitTheNarrowestDialog() {
  ViewFixture f;
  f.show();
  viewFuncDialog dialog(f.plot());
  dialog.resize(dialog.minimumSizeHint());
  dialog.show();
  auto *tabs = child<QTabWidget>(dialog, "tabs");
  QVERIFY(tabs->tabBar()->width() >= tabs->tabBar()->sizeHint().width());
  for (int i = 0; i < tabs->count(); ++i) {
    tabs->setCurrentIndex(i);
    QCoreApplication::processEvents();
    for (const QScrollArea *page : tabs->currentWidget()->findChildren<QScrollArea *>())
      QVERIFY2(page->horizontalScrollBar()->maximum() == 0, qPrintable(page->objectName()));
  }
}

void TestViewFuncDialog::previewShowsWithoutApplying() {
  ViewFixture f;
  f.plot().show();
  f.show();
  f.control.noteStyleFiles(true, true);
  viewFuncDialog dialog(f.plot());
  QSignalSpy applied(&dialog, &viewFuncDialog::applied);
  dialog.show();
  const QImage before = f.picture();
  const auto *size = child<QSpinBox>(dialog, "nodeMag");
  const auto isPreviewed = [&f] {
    return f.plot().isPreview();
  };
  child<QComboBox>(*row(dialog, 0), "function")->setCurrentText(QStringLiteral("pipe diameter"));
  child<QSpinBox>(dialog, "nodeMag")->setValue(size->value() + 6);
  QVERIFY(!isPreviewed()); // not at once
  QTRY_VERIFY(isPreviewed());
  QCOMPARE(f.plot().settings().functions[Aspect::EdgeColor].name, QStringLiteral("pipe diameter"));
  QCOMPARE(f.plot().appliedSettings().functions[Aspect::EdgeColor].name, QStringLiteral("p"));
  QVERIFY(f.picture() != before && f.control.ownStyle().isEmpty()); // nothing of it is kept
  press(dialog, "cancel");
  QVERIFY(!isPreviewed() && !dialog.hasUnapplied());
  QCOMPARE(f.picture(), before);

  auto *labels = child<QTableView>(dialog, "labelTable");
  setContents(*labels, QStringLiteral("@x"));
  QTRY_VERIFY(isPreviewed());
  dialog.hide(); // what is typed stays, what is shown does not
  QVERIFY(!isPreviewed() && dialog.hasUnapplied());
  QCOMPARE(f.picture(), before);
  dialog.show();
  QTRY_VERIFY(isPreviewed());
  child<QCheckBox>(dialog, "preview")->setChecked(false);
  QVERIFY(!isPreviewed() && dialog.hasUnapplied());
  child<QCheckBox>(dialog, "preview")->setChecked(true);
  QTRY_VERIFY(isPreviewed());
  QVERIFY(applied.isEmpty());
  press(dialog, "apply");
  QVERIFY(!isPreviewed() && !dialog.hasUnapplied() && !f.control.ownStyle().isEmpty());
  QCOMPARE(applied.count(), 1);
}

void TestViewFuncDialog::previewPausesBetweenDrawings() {
  ViewFixture f;
  f.plot().show();
  f.show();
  viewFuncDialog dialog(f.plot());
  dialog.show();
  QSignalSpy drawn(&f.plot(), &NetPlot::settingsChanged);
  for (int i = 0; i < 20; ++i) {
    child<QDoubleSpinBox>(dialog, "edgeMag")->setValue(1.0 + 0.1 * i);
    QTest::qWait(10);
  }
  QCOMPARE(drawn.count(), 0);
  QTRY_COMPARE(drawn.count(), 1);
  constexpr int LongerThanAPause = 600; // ms
  QTest::qWait(LongerThanAPause);
  QCOMPARE(drawn.count(), 1);
}

void TestViewFuncDialog::previewTakesNoNonsense() {
  ViewFixture f;
  f.plot().show();
  f.show();
  viewFuncDialog dialog(f.plot());
  dialog.show();
  const Answers none({});               // nobody is asked while something is typed
  constexpr int LongerThanAPause = 500; // ms
  child<QLineEdit>(*row(dialog, 0), "minimum")->setText(QStringLiteral("90"));
  child<QLineEdit>(*row(dialog, 0), "maximum")->setText(QStringLiteral("8"));
  QTest::qWait(LongerThanAPause);
  QVERIFY(!f.plot().isPreview() && none.boxes().empty());
  child<QLineEdit>(*row(dialog, 0), "maximum")->setText(QStringLiteral("8x"));
  QTest::qWait(LongerThanAPause);
  QVERIFY(!f.plot().isPreview() && none.boxes().empty());
  child<QLineEdit>(*row(dialog, 0), "maximum")->setText(QStringLiteral("95"));
  QTRY_VERIFY(f.plot().isPreview());
}

/// What somebody chooses elsewhere changes what holds, not the preview, and is one step to come back from.
void TestViewFuncDialog::othersChangeDuringAPreview() {
  ViewFixture f;
  f.plot().show();
  f.show();
  f.control.styles().reset();
  viewFuncDialog dialog(f.plot());
  connect(&dialog, &viewFuncDialog::applied, &f.control.styles(), &StyleActions::record);
  dialog.show();
  const PlotSettings first = f.plot().settings();
  child<QSpinBox>(dialog, "nodeMag")->setValue(17);
  setContents(*child<QTableView>(dialog, "labelTable"), QStringLiteral("@x"));
  QTRY_VERIFY(f.plot().isPreview());
  f.control.actions()[PlotActions::Command::Labels]->trigger();
  QVERIFY(f.plot().appliedSettings().nodeMag == first.nodeMag);
  QVERIFY(f.plot().appliedSettings().label_mode != first.label_mode);
  QVERIFY(dialog.hasUnapplied());
  press(dialog, "apply");
  QCOMPARE(f.plot().settings().nodeMag, 17);
  f.control.styles().undoAction()->trigger();
  QVERIFY(f.plot().settings().nodeMag == first.nodeMag && f.plot().settings().label_mode != first.label_mode);
  f.control.styles().undoAction()->trigger();
  QVERIFY(f.plot().settings() == first);
}

NIVRA_TEST(TestViewFuncDialog);
#include "tst_viewfuncdialog.moc"
