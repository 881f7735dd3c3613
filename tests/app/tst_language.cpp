#include "batchrun.h"
#include "language/language.h"
#include "mnemonics.h"
#include "nivraviewer.h"
#include "panels.h"
#include "settings/settingsdialog.h"
#include "settings/settingsmodel.h"
#include "workspacefixture.h"

#include <base/generalsettings.h>
#include <model/titles.h>
#include <support/answers.h>
#include <support/nivratest.h>
#include <tools/searchcriteria.h>
#include <view/netplot.h>
#include <view/netviscontrol.h>

#include <QAction>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QImage>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>
#include <QTranslator>

namespace {

/// Installed before a language, so that it is asked for nothing but what that does not know.
class Untranslated : public QTranslator {
public:
  Untranslated() { QCoreApplication::installTranslator(this); }

  bool isEmpty() const override { return false; }
  QString translate(const char *context, const char *source, const char *comment, int n) const override {
    Q_UNUSED(comment)
    Q_UNUSED(n)
    const QString name = QString::fromLatin1(context);
    // The toolkit's own are not ours; words of types and properties may be those of a network.
    static const QStringList others{QStringLiteral("Attribute"), QStringLiteral("ElementType"),
                                    QStringLiteral("CloseButton"), QStringLiteral("MAC_APPLICATION_MENU")};
    if (!name.startsWith(QLatin1Char('Q')) && !others.contains(name))
      m_texts.insert(name + QStringLiteral(": ") + QString::fromUtf8(source));
    return QString();
  }
  QStringList texts() const { return m_texts.values(); }

private:
  mutable QSet<QString> m_texts;
};

QStringList titles(const QList<QAction *> &entries) {
  QStringList texts;
  for (const QAction *entry : entries)
    texts.append(Mnemonics::plain(entry->text()));
  return texts;
}

QMenu *menu(const QList<QAction *> &entries, const QString &title) {
  for (const QAction *entry : entries) {
    if (entry->menu() != nullptr && Mnemonics::plain(entry->text()) == title) {
      emit entry->menu()->aboutToShow();
      return entry->menu();
    }
  }
  return nullptr;
}

QAction *entry(const QMenu &menu, const QString &title) {
  return menu.actions().value(titles(menu.actions()).indexOf(title));
}

} // namespace

/// The program in another language than that in which its texts are written.
class TestLanguage : public QObject {
  Q_OBJECT

private slots:
  void init() { cleanup(); }
  void cleanup() {
    QFile::remove(GeneralSettings::settingsFile(QString()));
    GeneralSettings::instance().reset();
  }
  void startsInTheRightOne();
  void windowSpeaksGerman();
  void nothingIsLeftInEnglish();
  void wordsOfTheNetworkAreTranslated();
  void choiceIsKeptAndOffersRestart_data();
  void choiceIsKeptAndOffersRestart();
  void dialogOffersRestartOnceChanged();
  void picturesAloneInBatch();

private:
  const WorkspaceFixture m_workspace;
};

void TestLanguage::startsInTheRightOne() {
  QCOMPARE(Language::firstKnown({QStringLiteral("de-AT"), QStringLiteral("en")}), QStringLiteral("de"));
  QCOMPARE(Language::firstKnown({QStringLiteral("fr-FR"), QStringLiteral("de_CH")}), QStringLiteral("de"));
  QCOMPARE(Language::firstKnown({QStringLiteral("den")}), QStringLiteral("en"));
  QCOMPARE(Language::firstKnown({}), QStringLiteral("en"));
  QDir().mkpath(GeneralSettings::userDirectory());
  SmallFiles::write(GeneralSettings::settingsFile(QString()), "language;general;list;de;;\n");
  QCOMPARE(Language::toStartWith(QString()), QStringLiteral("de"));
  QCOMPARE(Language::toStartWith(QStringLiteral("en")), QStringLiteral("en"));
  QCOMPARE(Language::spoken(), QStringLiteral("en"));
  {
    const Language german(QStringLiteral("de"));
    QCOMPARE(Language::spoken(), QStringLiteral("de"));
  }
  QCOMPARE(Language::spoken(), QStringLiteral("en"));
}

void TestLanguage::windowSpeaksGerman() {
  const Language german(QStringLiteral("de"));
  NivraViewer viewer;
  viewer.open(m_workspace.scenario());
  QVERIFY(titles(viewer.menuBar()->actions()).contains(QStringLiteral("Datei")));
  QVERIFY(viewer.windowTitle().contains(QStringLiteral("FALL: CASE")));
  NetPicker &picker = *viewer.visControl()->picker();
  Selection selection;
  selection.nodes.insert(QStringLiteral("A"));
  picker.setSelection(selection);
  QCOMPARE(viewer.statusBar()->currentMessage(), QStringLiteral("Ausgewählt: 1 Knoten: A"));
  picker.selectAll();
  QCOMPARE(viewer.statusBar()->currentMessage(), QStringLiteral("Ausgewählt: 3 Knoten, 2 Kanten"));
  const LegendContents legend = viewer.visControl()->plot()->update().legendContents();
  QVERIFY(!legend.scales.empty());
  QVERIFY2(legend.scales.front().title.contains(QStringLiteral("Druck")), qPrintable(legend.scales.front().title));
  SettingsDialog dialog{QString()};
  QCOMPARE(dialog.windowTitle(), QStringLiteral("Einstellungen"));
  const QString cancel = dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel)->text();
  QVERIFY2(!cancel.contains(QStringLiteral("Cancel")), "the toolkit's own texts");
}

void TestLanguage::nothingIsLeftInEnglish() {
  const Untranslated untranslated;
  const Language german(QStringLiteral("de"));
  NivraViewer viewer;
  viewer.open(m_workspace.scenario());
  for (const QAction *top : viewer.menuBar()->actions()) {
    emit top->menu()->aboutToShow();
    for (const QAction *inner : top->menu()->actions()) {
      if (inner->menu() != nullptr)
        emit inner->menu()->aboutToShow();
    }
  }
  for (QDockWidget *dock : viewer.findChildren<QDockWidget *>())
    dock->show();
  viewer.on_actionElement_Table_triggered();
  viewer.on_actionMetadataTable_triggered();
  viewer.on_actionSettings_triggered();
  QApplication::processEvents();
  QMenu contextMenu;
  emit viewer.visControl()->plot()->contextMenuRequested(&contextMenu);
  QCOMPARE(untranslated.texts().join(QLatin1Char('\n')), QString());
  QCOMPARE(NivraViewer::tr("no text of ours"), QStringLiteral("no text of ours"));
  QCOMPARE(untranslated.texts(), QStringList{QStringLiteral("NivraViewer: no text of ours")}); // it does listen
}

void TestLanguage::wordsOfTheNetworkAreTranslated() {
  const Language german(QStringLiteral("de"));
  for (const ElementType &type : ElementTypes::all()) {
    QVERIFY2(Titles::of(type) != type.longName, qPrintable(type.longName));
    QVERIFY2(Titles::ofSeveral(type) != type.plural, qPrintable(type.plural));
  }
  for (const char *typed : {"Leitung", "leitungen", "pipe", "p"}) {
    const SearchedTypes types(QString::fromLatin1(typed));
    QVERIFY2(types.matches(QStringLiteral("p")), typed);
    QVERIFY2(!types.matches(QStringLiteral("n")), typed);
  }
}

void TestLanguage::choiceIsKeptAndOffersRestart_data() {
  QTest::addColumn<int>("answer");
  QTest::newRow("now") << int(NivraMsg::Answer::Yes);
  QTest::newRow("later") << int(NivraMsg::Answer::No);
}

void TestLanguage::choiceIsKeptAndOffersRestart() {
  QFETCH(int, answer);
  NivraViewer viewer;
  viewer.open(m_workspace.scenario());
  const Answers answers({static_cast<NivraMsg::Answer>(answer)});
  const auto choose = [&viewer](const QString &title) {
    const QMenu *languages =
        menu(menu(viewer.menuBar()->actions(), QStringLiteral("View"))->actions(), QStringLiteral("Language"));
    entry(*languages, title)->trigger();
  };
  choose(QStringLiteral("English")); // which is spoken already
  QVERIFY(answers.boxes().empty());
  choose(QStringLiteral("Deutsch"));
  QVERIFY2(answers.areGiven(), qPrintable(answers.texts().join(QLatin1Char('\n'))));
  QCOMPARE(Language::toStartWith(QString()), QStringLiteral("de"));
  const bool isNow = answer == int(NivraMsg::Answer::Yes);
  QCOMPARE(viewer.restarts(), isNow);
  QCOMPARE(viewer.isVisible(), !isNow);
  QCOMPARE(viewer.openFile(), m_workspace.scenario());
}

void TestLanguage::dialogOffersRestartOnceChanged() {
  NivraViewer viewer;
  const Answers answers({NivraMsg::Answer::No});
  const auto set = [&viewer](const QString &key, const QString &value) {
    viewer.on_actionSettings_triggered();
    auto *dialog = viewer.findChild<SettingsDialog *>();
    dialog->model().set(key, value);
    dialog->accept();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  };
  set(QStringLiteral("language"), QStringLiteral("de"));
  QVERIFY(answers.areGiven());
  set(QStringLiteral("smooth zoom"), QStringLiteral("0")); // says nothing of the language again
  QVERIFY(answers.areGiven());
}

void TestLanguage::picturesAloneInBatch() {
  QTemporaryDir folder;
  const auto run = [&](const QString &language) {
    BatchTask task;
    task.file = m_workspace.scenario();
    task.info.isWanted = false;
    task.check.isWanted = true;
    BatchTask::Picture picture;
    picture.path = folder.filePath(language + QStringLiteral(".png"));
    task.pictures.push_back(picture);
    return BatchRun(language).perform(task).checked;
  };
  QCOMPARE(run(QStringLiteral("de")), run(QStringLiteral("en")));
  const QImage german(folder.filePath(QStringLiteral("de.png")));
  QVERIFY(!german.isNull());
  QVERIFY(german != QImage(folder.filePath(QStringLiteral("en.png")))); // its legend
}

NIVRA_TEST(TestLanguage);
#include "tst_language.moc"
