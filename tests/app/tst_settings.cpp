#include "canvas/qwtfastplot.h"
#include "panels.h"
#include "settings/settingsdelegate.h"
#include "settings/settingsdialog.h"
#include "settings/settingsfilter.h"
#include "settings/settingsmodel.h"
#include "workspacefixture.h"

#include <base/fileaccess.h>
#include <base/settings.h>
#include <model/displayformat.h>
#include <support/answers.h>
#include <support/nivratest.h>
#include <tools/nivrapropviewer.h>
#include <tools/nivrasearch.h>
#include <view/netviscontrol.h>
#include <view/viewfuncdialog.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>
#include <QTreeView>
#include <qwt_scale_widget.h>

namespace {

using Layer = GeneralSettings::Layer;

const QString Pressure = QStringLiteral("unit: pressure");

QString userFile() {
  return GeneralSettings::settingsFile(QString());
}

void writeUserFile(const QByteArray &text) {
  QDir().mkpath(GeneralSettings::userDirectory());
  SmallFiles::write(userFile(), text);
}

QByteArray userText() {
  QFile file(userFile());
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Types into whatever has the keyboard.
void keys(QWidget &window, const QString &text) {
  QTest::keyClicks(QApplication::focusWidget() == nullptr ? &window : QApplication::focusWidget(), text);
}

void key(QWidget &window, Qt::Key pressed, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QTest::keyClick(QApplication::focusWidget() == nullptr ? &window : QApplication::focusWidget(), pressed, modifiers);
  QApplication::processEvents();
}

QTreeView &treeOf(const SettingsDialog &dialog) {
  return *dialog.findChild<QTreeView *>();
}

/// The keys that the tree shows.
QStringList shownKeys(const SettingsDialog &dialog) {
  const QAbstractItemModel &model = *treeOf(dialog).model();
  QStringList keys;
  for (int group = 0; group < model.rowCount(); ++group) {
    const QModelIndex parent = model.index(group, 0);
    for (int row = 0; row < model.rowCount(parent); ++row)
      keys.append(model.index(row, 0, parent).data().toString());
  }
  return keys;
}

QPushButton &button(const SettingsDialog &dialog, QDialogButtonBox::StandardButton which) {
  return *dialog.findChild<QDialogButtonBox *>()->button(which);
}

QString origin(const SettingsModel &model, const QString &key) {
  return model.find(key, SettingsModel::OriginColumn).data().toString();
}

} // namespace

/// The general settings as a person changes them.
class TestSettings : public QObject {
  Q_OBJECT

private slots:
  void init();
  void cleanup();
  void everySettingIsDescribedAndCanBeEdited();
  void modelIsSound();
  void searchAndChangedOnly();
  void keyboardAlone();
  void cancelAndReset();
  void wrongValuesAreNotTaken();
  void workspaceHoldsOverTheUser();
  void badLinesAreTold();
  void fileThatCannotBeWritten();
  void unitsPageShowsSamples();
  void unitFollowsEverywhere();
  void boundsAndBreaksKeepTheirMeaning();
  void numbersFollowTheirForm();
  void workspaceChoosesTheUnit();

private:
  WorkspaceFixture m_workspace;
};

void TestSettings::init() {
  QFile::remove(userFile());
  GeneralSettings::instance().reset();
}

void TestSettings::cleanup() {
  init();
  QLocale::setDefault(QLocale::c());
}

void TestSettings::everySettingIsDescribedAndCanBeEdited() {
  const std::vector<SettingDescription> all = SettingDescription::all();
  QCOMPARE(all.size(), std::size(SettingsTable::Rows));
  for (const SettingDescription &setting : all) {
    const SettingsTable::Row &row = SettingsTable::row(setting.key.toLatin1().constData());
    QVERIFY2(!setting.text.isEmpty(), row.key);
    QVERIFY2(setting.allows(QString::fromLatin1(row.value)), row.key); // the editor shows what is built in
    QVERIFY2(GeneralSettings::suits(setting.key, QString::fromLatin1(row.value)), row.key);
    for (const QString &option : setting.options)
      QVERIFY2(GeneralSettings::suits(setting.key, option), row.key);
    QCOMPARE(setting.options.size(), setting.titles.size());
    QCOMPARE(setting.takes == SettingDescription::Takes::Never, row.effect == SettingsTable::Kept);
  }
}

void TestSettings::modelIsSound() {
  writeUserFile("smooth zoom;zooming;bool;0;;\n");
  SettingsDraft draft{QString()};
  SettingsModel model(draft);
  SettingsFilter filter;
  filter.setSourceModel(&model);
  const QAbstractItemModelTester ofModel(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
  const QAbstractItemModelTester ofFilter(&filter, QAbstractItemModelTester::FailureReportingMode::QtTest);
  QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
  const QModelIndex smooth = model.find(QStringLiteral("smooth zoom"));
  QCOMPARE(smooth.data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
  QVERIFY(model.setData(smooth, Qt::Checked, Qt::CheckStateRole));
  QCOMPARE(draft.layer(QStringLiteral("smooth zoom")), Layer::BuiltIn);
  QVERIFY(model.setData(model.find(QStringLiteral("pixtest delay")), QStringLiteral("250")));
  QCOMPARE(model.find(QStringLiteral("pixtest delay")).data().toString(), QStringLiteral("250 ms"));
  QCOMPARE(changed.count(), 2);
  filter.setChangedOnly(true);
  QCOMPARE(filter.rowCount(), 1);
  filter.setWords(QStringLiteral("no such thing"));
  QCOMPARE(filter.rowCount(), 0);
  model.resetAll();
  QVERIFY(!draft.hasOwn(QStringLiteral("pixtest delay")));
}

void TestSettings::searchAndChangedOnly() {
  writeUserFile("smooth zoom;zooming;bool;0;;\n");
  SettingsDialog dialog{QString()};
  dialog.show();
  auto *search = dialog.findChild<QLineEdit *>(QStringLiteral("search"));
  QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget *>(search));
  QCOMPARE(shownKeys(dialog).size(), int(std::size(SettingsTable::Rows)));
  keys(dialog, QStringLiteral("RECTANGLE zoom")); // in the description, whatever the case and order
  QCOMPARE(shownKeys(dialog), QStringList{QStringLiteral("UserKey_RectZoom")});
  search->setText(QStringLiteral("nothing of the kind"));
  QVERIFY(!treeOf(dialog).isVisible());
  search->clear();
  QVERIFY(treeOf(dialog).isVisible());
  dialog.findChild<QCheckBox *>()->click();
  QCOMPARE(shownKeys(dialog), QStringList{QStringLiteral("smooth zoom")});
}

void TestSettings::keyboardAlone() {
  SettingsDialog dialog{QString()};
  QSignalSpy applied(&dialog, &SettingsDialog::applied);
  dialog.show();
  QTRY_VERIFY(QApplication::focusWidget() != nullptr);
  QVERIFY(!button(dialog, QDialogButtonBox::Apply).isEnabled());
  keys(dialog, QStringLiteral("smooth zoom duration"));
  key(dialog, Qt::Key_Down);
  QCOMPARE(treeOf(dialog).currentIndex().data(SettingsModel::KeyRole).toString(), QStringLiteral("smooth zoom duration"));
  key(dialog, Qt::Key_Return);
  keys(dialog, QStringLiteral("400"));
  key(dialog, Qt::Key_Return);
  QVERIFY(dialog.isVisible()); // Return ends the editor, not the dialog
  QCOMPARE(dialog.model().draft().own(QStringLiteral("smooth zoom duration")), QStringLiteral("400"));
  key(dialog, Qt::Key_F, Qt::ControlModifier);
  QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(dialog.findChild<QLineEdit *>(QStringLiteral("search"))));
  keys(dialog, QStringLiteral("pixtest click"));
  key(dialog, Qt::Key_Return);
  QVERIFY(dialog.isVisible() && QApplication::focusWidget() == &treeOf(dialog));
  key(dialog, Qt::Key_Space);
  QCOMPARE(dialog.model().draft().own(QStringLiteral("perform pixtest on click")), QStringLiteral("1"));
  QVERIFY(userText().isEmpty());
  while (QApplication::focusWidget() != &button(dialog, QDialogButtonBox::Apply))
    key(dialog, Qt::Key_Tab);
  key(dialog, Qt::Key_Space);
  QCOMPARE(applied.count(), 1);
  QVERIFY(dialog.isVisible() && !button(dialog, QDialogButtonBox::Apply).isEnabled());
  QCOMPARE(userText(), QByteArray("perform pixtest on click;zooming;bool;1;;\n"
                                  "smooth zoom duration;zooming;string;400;;\n"));
  key(dialog, Qt::Key_Escape);
  QVERIFY(!dialog.isVisible());
}

void TestSettings::cancelAndReset() {
  const QByteArray text =
      "# mine\nsmooth zoom;zooming;bool;0;;\npixtest delay;zooming;string;200;;\nmy key;user keys;s;1;;\n";
  writeUserFile(text);
  {
    SettingsDialog dialog{QString()};
    dialog.show();
    dialog.model().set(QStringLiteral("use comma"), QStringLiteral("0"));
    dialog.model().resetAll();
    button(dialog, QDialogButtonBox::Cancel).click();
    QCOMPARE(userText(), text);
  }
  SettingsDialog dialog{QString()};
  dialog.show();
  QTreeView &tree = treeOf(dialog);
  auto *reset = dialog.findChild<QPushButton *>(QStringLiteral("reset"));
  QVERIFY(reset != nullptr && !reset->isEnabled());
  const auto *filter = static_cast<const SettingsFilter *>(tree.model());
  tree.setCurrentIndex(filter->mapFromSource(dialog.model().find(QStringLiteral("smooth zoom"))));
  QVERIFY(reset->isEnabled());
  reset->click();
  QVERIFY(!reset->isEnabled());
  button(dialog, QDialogButtonBox::Ok).click();
  QVERIFY(!dialog.isVisible());
  QCOMPARE(userText(), QByteArray("# mine\npixtest delay;zooming;string;200;;\nmy key;user keys;s;1;;\n"));
}

void TestSettings::wrongValuesAreNotTaken() {
  SettingsDialog dialog{QString()};
  dialog.show();
  QTreeView &tree = treeOf(dialog);
  const auto *filter = static_cast<const SettingsFilter *>(tree.model());
  const auto typed = [&](const char *key, const char *text) {
    const QModelIndex index = filter->mapFromSource(dialog.model().find(QString::fromLatin1(key)));
    tree.setCurrentIndex(index);
    tree.edit(index);
    auto *line = tree.viewport()->findChild<QLineEdit *>();
    line->setText(QString::fromLatin1(text));
    QTest::keyClick(line, Qt::Key_Return);
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the editor
    return dialog.model().draft().own(QString::fromLatin1(key));
  };
  QCOMPARE(typed("pixtest delay", "soon"), QStringLiteral("100"));
  QCOMPARE(typed("pixtest delay", "-1"), QStringLiteral("100"));
  QCOMPARE(typed("pixtest delay", "12.5"), QStringLiteral("100"));
  QCOMPARE(typed("pixtest delay", "125"), QStringLiteral("125"));
  QCOMPARE(typed("element selection pen color", "reddish"), QStringLiteral("red"));
  QCOMPARE(typed("element selection pen color", "#102030"), QStringLiteral("#102030"));
  QCOMPARE(typed("tiny conversion tolerance", "1e-8"), QStringLiteral("1e-8"));
  QVERIFY(!dialog.model().set(QStringLiteral("PELKA mode"), QStringLiteral("perhaps")));
}

void TestSettings::workspaceHoldsOverTheUser() {
  writeUserFile("pixtest delay;zooming;string;200;;\n");
  m_workspace.write(QStringLiteral("generalsettings_") + GeneralSettings::userName() + QStringLiteral(".csv"),
                    "pixtest delay;zooming;string;300;;\nsmooth zoom;zooming;bool;0;;\n");
  FileAccess::confineTo(m_workspace.root()); // as while it is open
  SettingsDialog dialog(m_workspace.root());
  SettingsModel &model = dialog.model();
  const QString delay = QStringLiteral("pixtest delay");
  QCOMPARE(model.find(delay).data().toString(), QStringLiteral("300 ms"));
  QCOMPARE(model.find(delay).data(Qt::EditRole).toString(), QStringLiteral("200")); // one edits one's own
  QCOMPARE(origin(model, delay), QStringLiteral("workspace, in place of your 200 ms"));
  QCOMPARE(origin(model, QStringLiteral("smooth zoom")), QStringLiteral("workspace"));
  QCOMPARE(origin(model, QStringLiteral("use comma")), QStringLiteral("built in"));
  QVERIFY(model.about(model.find(delay)).contains(QStringLiteral("The workspace says 300 ms")));
  // The box shows the workspace's "off"; a click is for one's own "on" below it.
  model.setData(model.find(QStringLiteral("smooth zoom")), Qt::Checked, Qt::CheckStateRole);
  QCOMPARE(model.draft().own(QStringLiteral("smooth zoom")), QStringLiteral("0"));
  QCOMPARE(model.find(QStringLiteral("smooth zoom")).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
  const QByteArray before = SmallFiles::contents(model.draft().workspaceFile());
  QVERIFY(dialog.apply());
  QCOMPARE(SmallFiles::contents(model.draft().workspaceFile()), before);
  QFile::remove(model.draft().workspaceFile());
}

void TestSettings::badLinesAreTold() {
  writeUserFile("short;line\nPELKA mode;special;list;perhaps;on,off;\n");
  SettingsDialog dialog{QString()};
  dialog.show();
  const auto *told = dialog.findChild<QLabel *>(QStringLiteral("findings"));
  QVERIFY(told->isVisible());
  QVERIFY2(told->text().contains(QStringLiteral("less than 6 entries")) &&
               told->text().contains(QStringLiteral("generalsettings.csv:2")),
           qPrintable(told->text()));
  QVERIFY(dialog.model().set(QStringLiteral("PELKA mode"), QStringLiteral("on"))); // mends the line
  QVERIFY(dialog.apply());
  QCOMPARE(userText(), QByteArray("short;line\nPELKA mode;special;list;on;on,off;\n"));
}

void TestSettings::fileThatCannotBeWritten() {
  QDir().mkpath(userFile()); // a folder in its place
  SettingsDialog dialog{QString()};
  dialog.show();
  dialog.model().set(QStringLiteral("use comma"), QStringLiteral("0"));
  QSignalSpy applied(&dialog, &SettingsDialog::applied);
  const NivraMsg::Recorder recorder;
  button(dialog, QDialogButtonBox::Ok).click();
  QVERIFY(dialog.isVisible()); // nothing of what was typed is lost
  QCOMPARE(applied.count(), 0);
  QVERIFY(!recorder.lines().isEmpty());
  QDir(userFile()).removeRecursively();
  button(dialog, QDialogButtonBox::Ok).click();
  QVERIFY(!dialog.isVisible());
  QVERIFY(userText().contains("use comma;general;bool;0"));
}

void TestSettings::unitsPageShowsSamples() {
  SettingsDialog dialog{QString()};
  dialog.show();
  dialog.findChild<QTabWidget *>()->setCurrentIndex(1);
  auto *box = dialog.findChild<QComboBox *>(Pressure);
  const auto *sample = dialog.findChild<QLabel *>(QStringLiteral("sample of ") + Pressure);
  QCOMPARE(box->currentText(), QStringLiteral("as in the property table"));
  QCOMPARE(sample->text(), QStringLiteral("65.25 bar"));
  box->setFocus();
  QTest::keyClicks(box, QStringLiteral("MPa"));
  QCOMPARE(sample->text(), QStringLiteral("65.25 bar = 6.525 MPa"));
  QCOMPARE(dialog.model().draft().own(Pressure), QStringLiteral("MPa"));
  dialog.findChild<QComboBox *>(Settings::DecimalSign.key())->setCurrentIndex(1);
  QCOMPARE(sample->text(), QStringLiteral("65,25 bar = 6,525 MPa"));
  dialog.findChild<QSpinBox *>(Settings::NumberDigits.key())->setValue(2);
  QCOMPARE(sample->text(), QStringLiteral("65 bar = 6,5 MPa"));
  dialog.findChild<QPushButton *>(QStringLiteral("resetAll"))->click();
  QCOMPARE(sample->text(), QStringLiteral("65.25 bar"));
  QCOMPARE(box->currentIndex(), 0);
  QCOMPARE(DisplayFormat::number(1.5), QStringLiteral("1.5")); // nothing was applied
}

namespace {

/// Chooses in the dialog of the window, as a person does.
void choose(NivraViewer &viewer, const std::initializer_list<std::pair<QString, QString>> &values) {
  viewer.findChild<QAction *>(QStringLiteral("actionSettings"))->trigger();
  auto *dialog = viewer.findChild<SettingsDialog *>();
  QVERIFY(dialog != nullptr && dialog->isVisible());
  for (const auto &[key, value] : values)
    QVERIFY2(dialog->model().set(key, value), qPrintable(key));
  button(*dialog, QDialogButtonBox::Ok).click();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QApplication::processEvents();
}

/// Value and unit of a property in the property viewer, as they are painted.
QString shownProperty(NivraViewer &viewer, const char *property) {
  const auto *tree = panelOf<NivraPropViewer>(viewer).findChild<QTreeView *>();
  const QModelIndexList found = tree->model()->match(
      tree->model()->index(0, 0), Qt::DisplayRole, QString::fromLatin1(property), 1, Qt::MatchExactly | Qt::MatchRecursive);
  if (found.isEmpty())
    return QString();
  return DisplayFormat::shown(found.first().siblingAtColumn(1).data().toString(), true) + QLatin1Char(' ') +
         found.first().siblingAtColumn(2).data().toString();
}

/// The scale of the legend in the drawing.
LegendContents::Scale scale(NivraViewer &viewer) {
  const LegendContents contents = viewer.visControl()->plot()->update().legendContents();
  return contents.scales.empty() ? LegendContents::Scale() : contents.scales.front();
}

QString label(NivraViewer &viewer, const char *name) {
  const element *e = viewer.visControl()->net().element(QString::fromLatin1(name));
  return viewer.visControl()->labelContents()->text(*e).lines.join(QLatin1Char('|'));
}

QStringList cells(const QWidget &panel, int column) {
  const auto *table = panel.findChild<QTableView *>();
  QStringList texts;
  for (int row = 0; row < table->model()->rowCount(); ++row)
    texts.append(table->model()->index(row, column).data().toString());
  return texts;
}

} // namespace

void TestSettings::unitFollowsEverywhere() {
  m_workspace.write(QStringLiteral("CASE/a.constraints"), "p(n) [bar] in 49 .. 55\n");
  NivraViewer viewer;
  viewer.open(m_workspace.scenario());
  NetVisControl &control = *viewer.visControl();
  viewer.findChild<QDockWidget *>(QStringLiteral("elementInformation"))->show();
  viewer.findChild<QDockWidget *>(QStringLiteral("propertyViewer"))->show();
  viewer.findChild<QDockWidget *>(QStringLiteral("propertyViewer"))->raise();
  control.mark(QStringLiteral("B"));
  QApplication::processEvents();
  QCOMPARE(shownProperty(viewer, "p"), QStringLiteral("48 bar"));
  auto &search = panelOf<NivraSearch>(viewer);
  search.show();
  search.defineSearch({QString(), QString(), QStringLiteral("^p$"), QString()}, false);
  QCOMPARE(cells(search, 3), (QStringList{QStringLiteral("50"), QStringLiteral("48"), QStringLiteral("60")}));
  viewer.on_actionElement_Table_triggered();
  NivraVecTable &table = *vectorTable();
  table.findChild<QComboBox *>(QStringLiteral("comboBoxProp"))->setCurrentText(QStringLiteral("p"));
  QApplication::processEvents();
  QCOMPARE(cells(table, 4).first(), QStringLiteral("bar"));
  QVERIFY2(scale(viewer).title.contains(QStringLiteral("[bar]")), qPrintable(scale(viewer).title));
  const QString stored = control.net().element(QStringLiteral("B"))->value(QStringLiteral("p"));
  const QRectF view = control.plot()->visibleArea();

  choose(viewer, {{Pressure, QStringLiteral("MPa")}});
  QCOMPARE(shownProperty(viewer, "p"), QStringLiteral("4.8 MPa"));
  QCOMPARE(cells(search, 3), (QStringList{QStringLiteral("5"), QStringLiteral("4.8"), QStringLiteral("6")}));
  QCOMPARE(cells(search, 4).first(), QStringLiteral("MPa"));
  QCOMPARE(cells(table, 4).first(), QStringLiteral("MPa"));
  QVERIFY2(scale(viewer).title.contains(QStringLiteral("[MPa]")), qPrintable(scale(viewer).title));
  QVERIFY(scale(viewer).range.maxValue() < 10.0);
  QVERIFY2(label(viewer, "B").contains(QStringLiteral("4.8 MPa")), qPrintable(label(viewer, "B")));
  const QString info = control.net().element(QStringLiteral("B"))->value(QStringLiteral("CB_info"));
  QVERIFY2(info.contains(QStringLiteral("4.8 < 4.9 MPa")), qPrintable(info));
  const QString bounds = viewer.findChild<QLabel *>(QStringLiteral("labelBounds"))->text();
  QVERIFY2(bounds.contains(QStringLiteral("4.9 MPa")), qPrintable(bounds));
  QCOMPARE(control.net().element(QStringLiteral("B"))->value(QStringLiteral("p")), stored);
  const QRectF after = control.plot()->visibleArea(); // the numbers of the scale may take another width from it
  QVERIFY(QLineF(after.center(), view.center()).length() < 1e-6);
  QVERIFY(after.width() < 1.02 * view.width() && after.width() > 0.98 * view.width());

  // A pattern is of what is stored, a comparison of what is shown, a formula of what is stored.
  search.defineSearch({QString(), QString(), QStringLiteral("^p$"), QStringLiteral("^48$")}, false);
  QCOMPARE(shownNames(search), QStringList{QStringLiteral("B")});
  search.defineSearch({QString(), QString(), QStringLiteral("^p$"), QStringLiteral(">5.5")}, false);
  QCOMPARE(shownNames(search), QStringList{QStringLiteral("C")});
  choose(viewer, {{Pressure, QString()}});
  QCOMPARE(shownProperty(viewer, "p"), QStringLiteral("48 bar"));
  QCOMPARE(userText(), QByteArray());
  table.close();
}

void TestSettings::boundsAndBreaksKeepTheirMeaning() {
  m_workspace.write(QStringLiteral("CASE/plotsettings.ini"), "[General]\nsaveVersion=1\n");
  NivraViewer viewer;
  viewer.open(m_workspace.scenario());
  NetPlot &plot = *viewer.visControl()->plot();
  auto *draw = viewer.findChild<viewFuncDialog *>();
  draw->parentWidget()->show();
  PlotSettings settings = plot.settings();
  settings.functions[Aspect::EdgeColor].name = QStringLiteral("pressure");
  settings.functions[Aspect::EdgeColor].minimum = 45.0;
  settings.colorClasses = 3;
  settings.classMethod = PlotSettings::ownClasses();
  settings.classBreaks = QStringLiteral("50;55");
  plot.setSettings(settings);
  viewer.visControl()->redraw();
  draw->refresh();
  auto *minimum = draw->findChild<QLineEdit *>(QStringLiteral("minimum"));
  auto *maximum = draw->findChild<QLineEdit *>(QStringLiteral("maximum"));
  auto *breaks = draw->findChild<QLineEdit *>(QStringLiteral("classBreaks"));
  QCOMPARE(minimum->text(), QStringLiteral("45"));
  maximum->setText(QStringLiteral("70")); // typed, not yet applied
  const QImage before = plot.grab().toImage();
  choose(viewer, {{Pressure, QStringLiteral("MPa")}, {Settings::DecimalSign.key(), QStringLiteral("comma")}});
  QCOMPARE(minimum->text(), QStringLiteral("4,5"));
  QCOMPARE(maximum->text(), QStringLiteral("7"));
  QCOMPARE(breaks->text(), QStringLiteral("5;5,5"));
  draw->on_apply_clicked();
  QCOMPARE(plot.settings().functions[Aspect::EdgeColor].minimum, 45.0);
  QCOMPARE(plot.settings().functions[Aspect::EdgeColor].maximum, 70.0);
  QCOMPARE(plot.settings().classBreaks, QStringLiteral("50;55")); // files speak of the property table's unit
  minimum->setText(QStringLiteral("4,75"));
  breaks->setText(QStringLiteral("5,25; 6"));
  draw->on_apply_clicked();
  QCOMPARE(plot.settings().functions[Aspect::EdgeColor].minimum, 47.5);
  QCOMPARE(plot.settings().classBreaks, QStringLiteral("52.5;60"));
  choose(viewer, {{Pressure, QString()}, {Settings::DecimalSign.key(), QStringLiteral("point")}});
  QCOMPARE(minimum->text(), QStringLiteral("47.5"));
  QCOMPARE(breaks->text(), QStringLiteral("52.5;60"));
  QFile::remove(m_workspace.path(QStringLiteral("CASE/plotsettings.ini")));
}

void TestSettings::numbersFollowTheirForm() {
  m_workspace.writeGeometry(WorkspaceFixture::soundGeometry().replace("\"p\":48", "\"p\":48.123456789"));
  NivraViewer viewer;
  viewer.open(m_workspace.scenario());
  viewer.findChild<QDockWidget *>(QStringLiteral("propertyViewer"))->show();
  viewer.visControl()->mark(QStringLiteral("B"));
  QApplication::processEvents();
  QCOMPARE(shownProperty(viewer, "p"), QStringLiteral("48.1235 bar"));
  choose(viewer, {{Settings::NumberForm.key(), QStringLiteral("decimals")},
                  {Settings::NumberDigits.key(), QStringLiteral("2")},
                  {Settings::DecimalSign.key(), QStringLiteral("comma")}});
  QCOMPARE(shownProperty(viewer, "p"), QStringLiteral("48,12 bar"));
  QVERIFY2(label(viewer, "B").contains(QStringLiteral("48,12 bar")), qPrintable(label(viewer, "B")));
  QCOMPARE(QLocale().decimalPoint(), QLatin1Char(','));
  QCOMPARE(viewer.locale().decimalPoint(), QLatin1Char(',')); // and with it the fields of numbers
  m_workspace.writeGeometry(WorkspaceFixture::soundGeometry());
}

void TestSettings::workspaceChoosesTheUnit() {
  const QString own = QStringLiteral("generalsettings_") + GeneralSettings::userName() + QStringLiteral(".csv");
  writeUserFile("unit: pressure;units and numbers;list;MPa;;\n");
  NivraViewer viewer;
  viewer.open(m_workspace.scenario());
  viewer.findChild<QDockWidget *>(QStringLiteral("propertyViewer"))->show();
  viewer.visControl()->mark(QStringLiteral("A"));
  QApplication::processEvents();
  QCOMPARE(shownProperty(viewer, "p"), QStringLiteral("5 MPa")); // the user's file counts beside a workspace without one
  m_workspace.write(own, "unit: pressure;units and numbers;list;kPa;;\n");
  viewer.open(m_workspace.scenario());
  viewer.visControl()->mark(QStringLiteral("A"));
  QApplication::processEvents();
  QCOMPARE(shownProperty(viewer, "p"), QStringLiteral("5000 kPa"));
  choose(viewer, {{Pressure, QStringLiteral("psi")}}); // has no effect while the workspace is open
  QCOMPARE(shownProperty(viewer, "p"), QStringLiteral("5000 kPa"));
  QVERIFY(userText().contains(";psi;"));
  QFile::remove(m_workspace.path(own));
}

NIVRA_TEST(TestSettings);
#include "tst_settings.moc"
