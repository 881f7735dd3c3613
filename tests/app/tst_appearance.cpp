#include "outcomestyle.h"
#include "panels.h"
#include "settings/settingsdialog.h"
#include "subnetwindow.h"
#include "svgicon.h"
#include "theme/appearance.h"
#include "theme/desktoptheme.h"
#include "theme/themepalette.h"
#include "workspacefixture.h"

#include <base/generalsettings.h>
#include <characteristics/characteristicsstack.h>
#include <support/nivratest.h>
#include <view/netplot.h>
#include <view/netviscontrol.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDir>
#include <QFile>
#include <QMenuBar>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QStatusBar>
#include <QStyle>
#include <QTextBrowser>
#include <QToolButton>

#include <cmath>

namespace {

QString userFile() {
  return GeneralSettings::settingsFile(QString());
}

/// Of WCAG 2, reckoned here once more.
double contrast(const QColor &a, const QColor &b) {
  const auto luminance = [](const QColor &color) {
    const auto light = [](double share) {
      return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * light(color.redF()) + 0.7152 * light(color.greenF()) + 0.0722 * light(color.blueF());
  };
  const double first = luminance(a) + 0.05;
  const double second = luminance(b) + 0.05;
  return std::max(first, second) / std::min(first, second);
}

/// What the middle of a widget has most of.
QColor groundOf(QWidget &widget) {
  const QImage picture = widget.grab().toImage();
  QHash<QRgb, int> counts;
  for (int y = 0; y < picture.height(); y += 3)
    for (int x = 0; x < picture.width(); x += 3)
      ++counts[picture.pixel(x, y)];
  QRgb most = 0;
  for (auto color = counts.cbegin(); color != counts.cend(); ++color)
    most = color.value() > counts.value(most) ? color.key() : most;
  return QColor(most);
}

bool isDark(QWidget &widget) {
  return groundOf(widget).lightness() < 80;
}

/// Stands for the portal of a desktop.
class Portal : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")
public:
  uint scheme = 1;

public slots:
  QDBusVariant Read(const QString &, const QString &) { return QDBusVariant(QVariant::fromValue(QDBusVariant(scheme))); }

signals:
  void SettingChanged(const QString &group, const QString &key, const QDBusVariant &value);
};

} // namespace

/// Light and dark windows.
class TestAppearance : public QObject {
  Q_OBJECT

private slots:
  void init();
  void cleanup() { init(); }
  void palettesAreLegible_data();
  void palettesAreLegible();
  void switchingReachesEveryWindow();
  void openMapsAreMadeAnew();
  void choiceIsTheUsers();
  void menuPaletteAndDialogOfferIt();
  void statusBarStaysLegible();
  void iconsFollow();
  void desktopIsFollowed();
};

void TestAppearance::init() {
  QFile::remove(userFile());
  GeneralSettings::instance().reset();
  QApplication::setPalette(QApplication::style()->standardPalette());
}

void TestAppearance::palettesAreLegible_data() {
  QTest::addColumn<QPalette>("palette");
  QTest::addColumn<bool>("isDark");
  QTest::newRow("light") << ThemePalette::light() << false;
  QTest::newRow("dark") << ThemePalette::dark() << true;
}

void TestAppearance::palettesAreLegible() {
  using P = QPalette;
  QFETCH(QPalette, palette);
  QFETCH(bool, isDark);
  QCOMPARE(ThemePalette::isDark(palette), isDark);
  const std::pair<P::ColorRole, QVector<P::ColorRole>> pairs[] = {{P::WindowText, {P::Window}},
                                                                  {P::Text, {P::Base, P::AlternateBase}},
                                                                  {P::ButtonText, {P::Button, P::Window}},
                                                                  {P::HighlightedText, {P::Highlight}},
                                                                  {P::ToolTipText, {P::ToolTipBase}},
                                                                  {P::PlaceholderText, {P::Base}},
                                                                  {P::Link, {P::Base, P::Window, P::AlternateBase}},
                                                                  {P::LinkVisited, {P::Base, P::Window}}};
  for (const P::ColorGroup group : {P::Active, P::Inactive, P::Disabled}) {
    for (const auto &[text, grounds] : pairs) {
      for (const P::ColorRole ground : grounds) {
        const double found = contrast(palette.color(group, text), palette.color(group, ground));
        QVERIFY2(found >= 4.5,
                 qPrintable(QStringLiteral("group %1, %2 on %3: %4").arg(group).arg(text).arg(ground).arg(found)));
      }
    }
  }
  QVERIFY(contrast(palette.color(P::Highlight), palette.color(P::Base)) > 2.0); // a selected row is seen
  QVERIFY(palette.color(P::Disabled, P::Text) != palette.color(P::Active, P::Text));
  QVERIFY(contrast(ThemePalette::wrong(palette), palette.color(P::Base)) >= 4.5);
}

void TestAppearance::switchingReachesEveryWindow() {
  WorkspaceFixture files;
  files.writeGeometry(WorkspaceFixture::geometryWithSubnet());
  NivraViewer viewer;
  QVERIFY(!isDark(*viewer.centralWidget())); // the start page
  viewer.appearance().choose(Appearance::Mode::Dark);
  QVERIFY(isDark(*viewer.centralWidget()));
  viewer.open(files.geometry());
  emit viewer.visControl()->subnetWanted(QStringLiteral("M"));
  viewer.on_actionHelp_triggered();
  viewer.on_actionElement_Table_triggered();
  auto *subnet = viewer.findChild<SubnetWindow *>();
  auto *table = vectorTable();
  QVERIFY(subnet != nullptr && table != nullptr);
  QList<QWidget *> widgets{viewer.visControl()->plot(), subnet->visControl()->plot(), table, viewer.menuBar()};
  for (QWidget *window : QApplication::topLevelWidgets()) {
    if (auto *text = window->findChild<QTextBrowser *>())
      widgets.append(text);
  }
  QVERIFY(widgets.size() > 4);
  for (const auto mode : {Appearance::Mode::Dark, Appearance::Mode::Light, Appearance::Mode::Dark}) {
    viewer.appearance().choose(mode);
    for (QWidget *widget : qAsConst(widgets))
      QVERIFY2(isDark(*widget) == (mode == Appearance::Mode::Dark), widget->metaObject()->className());
  }
}

/// A map is other widgets afterwards, which must not go while the toolkit tells all widgets of the change.
void TestAppearance::openMapsAreMadeAnew() {
  WorkspaceFixture files;
  files.write(QStringLiteral("CASE/S1/scenconfig.jsn"),
              "{\"workDir\":\"S1\",\"scenFile\":\"S1.scen\",\"comprDatabase\":\"../machines.txt\"}");
  files.write(QStringLiteral("CASE/S1/solverconfig.jsn"), "{\"tamb\":293.15}");
  files.writeGeometry(WorkspaceFixture::soundGeometry().replace("\"node2\":\"C\"", "\"node2\":\"C\",\"m\":50"));
  files.write(QStringLiteral("CASE/machines.txt"),
              "[turbo compressor]\nname;drive;speedmin;speedmax;head3;efficiency1\nK1;G;3000;9000;1e-6;0.8\n"
              "[gas turbine]\nname;power1;energy2\nG;5000;3\n");
  NivraViewer viewer;
  viewer.open(files.scenario());
  viewer.elementAction(QStringLiteral("K1"), NetPicker::EleAction::OpenCharacteristics);
  auto *stack = viewer.findChild<CharacteristicsStack *>();
  QCOMPARE(stack->opened(), QStringList{QStringLiteral("K1")});
  const auto map = [stack] {
    const QList<QWidget *> widgets = stack->findChildren<QWidget *>();
    const auto found = std::find_if(widgets.begin(), widgets.end(), [](QWidget *w) { return w->inherits("QwtPlot"); });
    return found == widgets.end() ? nullptr : *found;
  };
  for (int i = 0; i < 6; ++i) {
    const bool goesDark = i % 2 == 0;
    viewer.appearance().choose(goesDark ? Appearance::Mode::Dark : Appearance::Mode::Light);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(map() != nullptr && isDark(*map()) == goesDark);
  }
}

void TestAppearance::choiceIsTheUsers() {
  WorkspaceFixture files;
  const QString ofWorkspace = GeneralSettings::settingsFile(files.root());
  files.write(QDir(files.root()).relativeFilePath(ofWorkspace), "appearance;general;list;light;;\n");
  {
    NivraViewer viewer;
    viewer.appearance().choose(Appearance::Mode::Dark);
    viewer.open(files.geometry()); // a workspace says otherwise
    QCOMPARE(viewer.appearance().mode(), Appearance::Mode::Dark);
  }
  QApplication::setPalette(QApplication::style()->standardPalette());
  NivraViewer again;
  QCOMPARE(again.appearance().mode(), Appearance::Mode::Dark);
  QVERIFY(isDark(*again.centralWidget()));
  again.appearance().choose(Appearance::Mode::Desktop);
  QVERIFY(!isDark(*again.centralWidget()));
  QFile file(userFile());
  QVERIFY(file.open(QIODevice::ReadOnly) && !file.readAll().contains("appearance"));
}

void TestAppearance::menuPaletteAndDialogOfferIt() {
  NivraViewer viewer;
  const QMenu *found = nullptr;
  for (const QAction *top : viewer.menuBar()->actions()) {
    if (top->menu() == nullptr)
      continue;
    emit top->menu()->aboutToShow();
    for (const QAction *entry : top->menu()->actions()) {
      if (entry->menu() == &viewer.appearance().menu())
        found = entry->menu();
    }
  }
  QVERIFY(found != nullptr && found->actions().size() == 3);
  QVERIFY(found->actions().at(0)->isChecked());
  found->actions().at(2)->trigger();
  QVERIFY(found->actions().at(2)->isChecked() && isDark(viewer));
  GeneralSettings::instance().setValue(QStringLiteral("appearance"), QStringLiteral("light")); // as the dialog does
  viewer.appearance().refresh();
  QVERIFY(found->actions().at(1)->isChecked() && !isDark(viewer));
}

void TestAppearance::statusBarStaysLegible() {
  NivraViewer viewer;
  QStatusBar &bar = *viewer.statusBar();
  for (const auto mode : {Appearance::Mode::Dark, Appearance::Mode::Light}) {
    viewer.appearance().choose(mode);
    for (const auto outcome : {OutcomeStyle::Outcome::Failed, OutcomeStyle::Outcome::Stopped,
                               OutcomeStyle::Outcome::Acceptable, OutcomeStyle::Outcome::Successful}) {
      OutcomeStyle::show(bar, outcome);
      bar.showMessage(QString());
      const QColor ground = groundOf(bar);
      QVERIFY(contrast(bar.palette().color(QPalette::WindowText), ground) >= 4.5);
      QVERIFY2((ground.lightness() < 110) == (mode == Appearance::Mode::Dark), qPrintable(ground.name()));
      QVERIFY(ground.hslSaturationF() > 0.2); // it still tells how it went
    }
  }
  GeneralSettings::instance().setValue(QStringLiteral("status bar style sheet failed"),
                                       QStringLiteral("background: #ff00ff"));
  viewer.appearance().choose(Appearance::Mode::Dark);
  OutcomeStyle::show(bar, OutcomeStyle::Outcome::Failed);
  QCOMPARE(groundOf(bar), QColor(0xff, 0, 0xff));
}

void TestAppearance::iconsFollow() {
  NivraViewer viewer;
  const QIcon icon = svgIcon(QStringLiteral("open"));
  const auto lightest = [&icon](QIcon::Mode mode) {
    const QImage picture = icon.pixmap(32, 32, mode).toImage();
    int alpha = 0;
    int most = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        most = std::max(most, picture.pixelColor(x, y).alpha() > 60 ? qGray(picture.pixel(x, y)) : 0);
        alpha = std::max(alpha, picture.pixelColor(x, y).alpha());
      }
    }
    return std::make_pair(most, alpha);
  };
  viewer.appearance().choose(Appearance::Mode::Light);
  const auto light = lightest(QIcon::Normal);
  viewer.appearance().choose(Appearance::Mode::Dark);
  const auto dark = lightest(QIcon::Normal);
  QVERIFY(light.first < 160 && dark.first > 190);
  const auto greyed = lightest(QIcon::Disabled);
  QVERIFY(greyed.second < dark.second * 2 / 3 && greyed.second > dark.second / 4);
}

/// A bus of the test's own, with a portal on it.
void TestAppearance::desktopIsFollowed() {
  const QString program = QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
  if (program.isEmpty())
    QSKIP("there is no dbus-daemon");
  QProcess daemon;
  daemon.start(program, {QStringLiteral("--session"), QStringLiteral("--print-address"), QStringLiteral("--nofork")});
  QVERIFY(daemon.waitForStarted());
  QTRY_VERIFY(daemon.canReadLine());
  const QByteArray address = daemon.readLine().trimmed();
  const QByteArray before = qgetenv("DBUS_SESSION_BUS_ADDRESS");
  qputenv("DBUS_SESSION_BUS_ADDRESS", address);
  QDBusConnection bus = QDBusConnection::connectToBus(QString::fromLatin1(address), QStringLiteral("portal"));
  Portal portal;
  QVERIFY(bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &portal,
                             QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
  QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
  {
    NivraViewer viewer;
    QVERIFY(!isDark(viewer));
    viewer.appearance().followDesktop();
    QTRY_VERIFY(isDark(viewer));
    emit portal.SettingChanged(QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme"),
                               QDBusVariant(uint(2)));
    QTRY_VERIFY(!isDark(viewer));
    viewer.appearance().choose(Appearance::Mode::Dark); // the user's own choice goes before
    QVERIFY(isDark(viewer));
    viewer.appearance().choose(Appearance::Mode::Desktop);
    QVERIFY(!isDark(viewer));
  }
  QDBusConnection::disconnectFromBus(QStringLiteral("portal"));
  if (before.isEmpty())
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
  else
    qputenv("DBUS_SESSION_BUS_ADDRESS", before);
  daemon.kill();
  daemon.waitForFinished();
}

NIVRA_TEST(TestAppearance);
#include "tst_appearance.moc"
