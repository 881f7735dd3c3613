#include "nivraviewer.h"
#include "panels.h"
#include "remembering.h"
#include "toolbar.h"
#include "workspacefixture.h"

#include <support/nivratest.h>
#include <view/netviscontrol.h>
#include <view/viewfuncdialog.h>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QSpinBox>
#include <QToolButton>

/// Styles, undo and preview in the real window.
class TestStylesInWindow : public QObject {
  Q_OBJECT

private slots:
  void init() { Remembering::forgetAll(); }
  void cleanup() { Remembering::forgetAll(); }
  void chosenInTheToolBar();
  void undoStandsInTheViewMenu();
  void previewIsNotRemembered();
  void reloadEndsThePreview();
  void reloadKeepsStepsAndName();

private:
  static QToolButton *chooser(NivraViewer &viewer) {
    for (auto *button : viewer.findChild<ToolBar *>()->findChildren<QToolButton *>()) {
      if (button->accessibleName() == QLatin1String("Style"))
        return button;
    }
    return nullptr;
  }
  static QAction *entry(QMenu &menu, const QString &beginning) {
    emit menu.aboutToShow();
    for (QAction *action : menu.actions()) {
      if (action->text().remove(QLatin1Char('&')).startsWith(beginning))
        return action;
    }
    return nullptr;
  }
  static QMenu &viewMenu(NivraViewer &viewer) { return *viewer.findChild<QMenu *>(QStringLiteral("menuView")); }
  static const PlotSettings &settings(NivraViewer &viewer) { return viewer.visControl()->plot()->appliedSettings(); }

  const WorkspaceFixture m_workspace;
};

void TestStylesInWindow::chosenInTheToolBar() {
  NivraViewer viewer;
  QVERIFY(!chooser(viewer)->isEnabled()); // there is nothing to draw
  viewer.open(m_workspace.geometry());
  QToolButton *styles = chooser(viewer);
  QVERIFY(styles->isEnabled() && styles->text() == QLatin1String("Style"));
  entry(*styles->menu(), QStringLiteral("Flow"))->trigger();
  QCOMPARE(settings(viewer).functions[Aspect::EdgeColor].name, QStringLiteral("q"));
  QCOMPARE(styles->text(), QStringLiteral("Flow"));
  QAction *height = entry(*styles->menu(), QStringLiteral("Height"));
  QVERIFY(!height->isEnabled() && height->toolTip().contains(QLatin1String("height")));
  viewer.visControl()->plot()->legendAction()->trigger(); // it is no longer quite that style
  QCOMPARE(styles->text(), QStringLiteral("Style"));
  viewer.visControl()->plot()->legendAction()->trigger(); // and now it is again
  QCOMPARE(styles->text(), QStringLiteral("Flow"));
  auto &draw = panelOf<viewFuncDialog>(viewer);
  QVERIFY(!draw.hasUnapplied()); // it followed
}

void TestStylesInWindow::undoStandsInTheViewMenu() {
  NivraViewer viewer;
  viewer.open(m_workspace.geometry());
  const PlotSettings first = settings(viewer);
  QVERIFY(!entry(viewMenu(viewer), QStringLiteral("Undo Style Change"))->isEnabled());
  entry(*entry(viewMenu(viewer), QStringLiteral("Style"))->menu(), QStringLiteral("Flow"))->trigger();
  auto &draw = panelOf<viewFuncDialog>(viewer);
  draw.findChild<QSpinBox *>(QStringLiteral("nodeMag"))->setValue(9);
  draw.on_apply_clicked();
  QAction *undo = entry(viewMenu(viewer), QStringLiteral("Undo Style Change: sizes"));
  QVERIFY(undo != nullptr);
  undo->trigger();
  QVERIFY(settings(viewer).nodeMag != 9 && draw.findChild<QSpinBox *>(QStringLiteral("nodeMag"))->value() != 9);
  undo->trigger();
  QVERIFY(settings(viewer) == first && !undo->isEnabled() && !draw.hasUnapplied());
}

/// What a person only looked at is neither kept with the session nor a reason to ask.
void TestStylesInWindow::previewIsNotRemembered() {
  {
    NivraViewer viewer;
    Remembering::open(viewer, m_workspace.geometry());
    auto &draw = panelOf<viewFuncDialog>(viewer);
    emit viewer.visControl()->configureDrawRequested();
    draw.findChild<QSpinBox *>(QStringLiteral("nodeMag"))->setValue(9);
    QTRY_VERIFY(viewer.visControl()->plot()->isPreview());
    QVERIFY(viewer.visControl()->ownStyle().isEmpty());
    draw.on_cancel_clicked();
    QVERIFY(viewer.close());
  }
  NivraViewer again;
  Remembering::open(again, m_workspace.geometry());
  QVERIFY(again.visControl()->plot()->settings().nodeMag != 9);
}

void TestStylesInWindow::reloadEndsThePreview() {
  NivraViewer viewer;
  Remembering::open(viewer, m_workspace.geometry());
  auto &draw = panelOf<viewFuncDialog>(viewer);
  emit viewer.visControl()->configureDrawRequested();
  const int before = settings(viewer).nodeMag;
  draw.findChild<QSpinBox *>(QStringLiteral("nodeMag"))->setValue(9);
  QTRY_VERIFY(viewer.visControl()->plot()->isPreview());
  viewer.reload();
  QCOMPARE(settings(viewer).nodeMag, before); // what was typed is not applied by the way
  QVERIFY(draw.hasUnapplied());
  draw.on_cancel_clicked();
  QCOMPARE(viewer.visControl()->plot()->settings().nodeMag, before);
}

void TestStylesInWindow::reloadKeepsStepsAndName() {
  const auto undo = [](NivraViewer &viewer) {
    return entry(viewMenu(viewer), QStringLiteral("Undo Style Change"));
  };
  {
    NivraViewer viewer;
    Remembering::open(viewer, m_workspace.geometry());
    const PlotSettings first = settings(viewer);
    entry(*chooser(viewer)->menu(), QStringLiteral("Flow"))->trigger();
    viewer.reload();
    QCOMPARE(chooser(viewer)->text(), QStringLiteral("Flow"));
    undo(viewer)->trigger();
    QVERIFY(settings(viewer) == first && !undo(viewer)->isEnabled());
    entry(viewMenu(viewer), QStringLiteral("Redo Style Change"))->trigger();
    viewer.open(m_workspace.geometry()); // anew, not again
    QVERIFY(!undo(viewer)->isEnabled());
    QCOMPARE(chooser(viewer)->text(), QStringLiteral("Flow"));
    QVERIFY(viewer.close());
  }
  NivraViewer again;
  Remembering::open(again, m_workspace.geometry());
  QCOMPARE(chooser(again)->text(), QStringLiteral("Flow"));
  QVERIFY(!undo(again)->isEnabled());
}

NIVRA_TEST(TestStylesInWindow);
#include "tst_stylesinwindow.moc"
