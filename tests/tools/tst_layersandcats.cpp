#include <model/topology.h>
#include <support/answers.h>
#include <support/fulldisk.h>
#include <support/modelfixture.h>
#include <support/nivratest.h>
#include <tools/layers.h>
#include <tools/metadatatable.h>
#include <tools/nivranetlayerseditor.h>
#include <tools/nivranetobjectcats.h>

#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTemporaryDir>

#include <sys/stat.h>

class TestLayersAndCats : public QObject {
  Q_OBJECT

private slots:
  void init();
  void layersGroupElements();
  void layersChangeElements();
  void layerNames_data();
  void layerNames();
  void editorShowsAndHides();
  void renamingKeepsWhatIsHidden();
  void categoryFile();
  void categoriesComeBack();
  void categoryFileOnAFullDisk();
  void categoryFileThatIsNone();
  void changedCategoriesAreAskedAbout();
  void panelTellsCategories();
  void metaDataGroups();
  void closureAndTrace();

private:
  QString write(const QByteArray &text) const {
    QFile file(m_folder.filePath(QStringLiteral("catdef.csv")));
    file.open(QIODevice::WriteOnly);
    file.write(text);
    return file.fileName();
  }
  const QTemporaryDir m_folder;
  std::unique_ptr<NetData> m_net;
};

void TestLayersAndCats::init() {
  m_net = std::make_unique<NetData>();
  for (const char *name : {"A", "B", "C", "D"})
    m_net->addElement(makeNode(name));
  const auto addEdge = [this](const char *name, const char *from, const char *to, const char *type, const char *flow) {
    element edge = makeEdge(name, from, to, type);
    edge.set(QStringLiteral("q"), QString::fromLatin1(flow));
    edge.set(QStringLiteral("vis.layer"), QString::fromLatin1(type));
    m_net->addElement(edge);
  };
  addEdge("AB", "A", "B", "p", "5");
  addEdge("CB", "C", "B", "p", "-5"); // from B to C
  addEdge("CD", "C", "D", "c", "5");
  m_net->element(QStringLiteral("A"))->set(QStringLiteral("vis.layer"), QString());
}

void TestLayersAndCats::layersGroupElements() {
  Layers layers(*m_net);
  layers.rebuild();
  QCOMPARE(layers.all().keys(), (QStringList{QStringLiteral("c"), QStringLiteral("p")})); // an empty value is none
  QCOMPARE(layers.all().value(QStringLiteral("p")).size(), 2);
  layers.setProperty(QStringLiteral("type"));
  QCOMPARE(layers.all().value(QStringLiteral("n")).size(), 4);
}

void TestLayersAndCats::layersChangeElements() {
  Layers layers(*m_net);
  layers.rebuild();
  layers.rename(QStringLiteral("p"), QStringLiteral("pipes"));
  QVERIFY(!layers.all().contains(QStringLiteral("p")));
  layers.add({QStringLiteral("A"), QStringLiteral("nowhere")}, QStringLiteral("pipes"));
  QCOMPARE(layers.all().value(QStringLiteral("pipes")).size(), 3);
  QCOMPARE(layers.remove({QStringLiteral("pipes")}).size(), 3);
  QVERIFY(!m_net->element(QStringLiteral("A"))->contains(QStringLiteral("vis.layer")));
  QCOMPARE(layers.all().size(), 1);
}

void TestLayersAndCats::layerNames_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<bool>("allowed");
  QTest::newRow("plain") << QStringLiteral("Entry points, ü") << true;
  QTest::newRow("blank") << QStringLiteral("  ") << false;
  QTest::newRow("semicolon") << QStringLiteral("a;b") << false;
  QTest::newRow("line break") << QStringLiteral("a\nb") << false;
  QTest::newRow("the choice of a new one") << Layers::newLayer() << false;
}

void TestLayersAndCats::layerNames() {
  QFETCH(QString, name);
  QFETCH(bool, allowed);
  QCOMPARE(Layers::isAllowed(name), allowed);
}

namespace {

/// What the drawing does with the wishes of the editor.
struct Drawing {
  explicit Drawing(NivraNetLayersEditor &editor) {
    QObject::connect(&editor, &NivraNetLayersEditor::hiddenLayersWanted, &editor,
                     [this, &editor](const QString &, const QSet<QString> &wanted) {
                       hidden = wanted;
                       editor.setHiddenLayers(hidden);
                     });
  }
  QSet<QString> hidden;
};

} // namespace

void TestLayersAndCats::editorShowsAndHides() {
  NivraNetLayersEditor editor(*m_net);
  const Drawing drawing(editor);
  editor.on_pushButtonReload_clicked();
  auto *table = editor.findChild<QTableWidget *>();
  QCOMPARE(table->rowCount(), 2);
  QCOMPARE(table->item(1, 2)->text(), QStringLiteral("2"));
  const QSignalSpy changed(&editor, &NivraNetLayersEditor::layerVisChanged);
  table->item(1, 0)->setCheckState(Qt::Unchecked);
  QCOMPARE(changed.count(), 1);
  QCOMPARE(drawing.hidden, QSet<QString>{QStringLiteral("p")});
  editor.on_toolButtonInvert_clicked();
  QCOMPARE(drawing.hidden, QSet<QString>{QStringLiteral("c")});
  QCOMPARE(table->item(0, 0)->checkState(), Qt::Unchecked);
  QCOMPARE(table->item(1, 0)->checkState(), Qt::Checked);
  editor.on_pushButtonReload_clicked(); // kept by name
  QCOMPARE(table->item(0, 0)->checkState(), Qt::Unchecked);
  editor.changeEditMode(NivraNetLayersEditor::EditMode::VisibilityOnly);
  QVERIFY(!(table->item(0, 1)->flags() & Qt::ItemIsEditable));
}

/// With mouse and keys, as a person renames.
void TestLayersAndCats::renamingKeepsWhatIsHidden() {
  NivraNetLayersEditor editor(*m_net);
  const Drawing drawing(editor);
  editor.on_pushButtonReload_clicked();
  editor.show();
  auto *table = editor.findChild<QTableWidget *>();
  const auto rename = [table](int row, const char *name) {
    table->setCurrentCell(row, 1);
    table->editItem(table->item(row, 1));
    auto *field = table->findChild<QLineEdit *>();
    QVERIFY(field != nullptr);
    field->selectAll();
    QTest::keyClicks(field, QString::fromLatin1(name));
    QTest::keyClick(field, Qt::Key_Return);
    QCoreApplication::processEvents(); // the field is read after the key
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  };
  table->item(1, 0)->setCheckState(Qt::Unchecked);
  const QSignalSpy visibility(&editor, &NivraNetLayersEditor::layerVisChanged);
  const QSignalSpy changed(&editor, &NivraNetLayersEditor::propertyChanged);
  {
    const Answers answers({NivraMsg::Answer::Yes});
    rename(1, "a pipe");
    QVERIFY(answers.areGiven());
  }
  QCOMPARE(drawing.hidden, QSet<QString>{QStringLiteral("a pipe")});
  QCOMPARE(table->item(0, 1)->text(), QStringLiteral("a pipe")); // where sorting puts it
  QCOMPARE(table->item(0, 0)->checkState(), Qt::Unchecked);
  QCOMPARE(table->currentRow(), 0);
  QCOMPARE(visibility.count() + changed.count(), 1); // each of which draws
  {
    const Answers no({NivraMsg::Answer::No}); // a layer of that name is there
    rename(0, "c");
    QVERIFY(no.areGiven() && no.texts().first().contains(QStringLiteral("layer already exists! Use?")));
  }
  QCOMPARE(table->rowCount(), 2);
  QCOMPARE(table->item(table->currentRow(), 1)->text(), QStringLiteral("a pipe"));
  {
    const Answers both({NivraMsg::Answer::Yes, NivraMsg::Answer::Yes});
    rename(0, "c");
    QVERIFY(both.areGiven());
  }
  QCOMPARE(table->rowCount(), 1);
  QVERIFY(drawing.hidden.isEmpty()); // it joined a layer that is seen
}

void TestLayersAndCats::categoryFile() {
  const std::vector<Category> read = CategoryFile::read(write("# comment\n\n"
                                                              "[x]Heavy;;;^p$;p@ELE>60\n"
                                                              "four;a;b;c\n"
                                                              " Long ; ^P_ ; p ; length ; ^1 ;more;and more\n"));
  QCOMPARE(read.size(), std::size_t(2));
  QVERIFY(read[0].isChecked && read[0].category == QLatin1String("Heavy"));
  QCOMPARE(read[1].name, QStringLiteral("^P_"));
  const CatMap map = CategoryFile::toMap(read);
  QCOMPARE(map.value(QStringLiteral("Heavy")).formula, QStringLiteral("p@ELE>60"));
  QVERIFY(map.value(QStringLiteral("Heavy")).value.isEmpty());
  QCOMPARE(map.value(QStringLiteral("Long")).value, QStringLiteral("^1"));
  QVERIFY(CategoryFile::read(QStringLiteral("/nowhere/catdef.csv")).empty());
}

void TestLayersAndCats::categoriesComeBack() {
  const auto text = [](const char *utf8) {
    return QString::fromUtf8(utf8);
  };
  const std::vector<Category> all{{text("a"), text("n"), text("t"), text("p"), text("ü"), true},
                                  {text("b"), QString(), QString(), QString(), text("v@ELE>1"), false},
                                  {text("# of pipes"), QString(), text("^p$"), text("^name$"), text("^a;b$"), false},
                                  {text("#"), text("x;"), text(";y"), text("$;$"), text(";;"), true},
                                  {text("[x]"), text("$SEMI$"), text("$DOLLAR$;"), text("$SEMI;"), text("^p$;SEMI$"), false},
                                  {text("two\nlines"), QString(), QString(), QString(), text("p@ELE\n> 1"), false}};
  const QString path = m_folder.filePath(QStringLiteral("again.csv"));
  QString error;
  QVERIFY2(CategoryFile::write(path, all, &error), qPrintable(error));
  QVERIFY(CategoryFile::read(path) == all);
  QVERIFY(!CategoryFile::write(QStringLiteral("/nowhere/catdef.csv"), all, &error));
  QVERIFY(error.startsWith(QStringLiteral("Could not open categories file /nowhere/catdef.csv!")));
}

void TestLayersAndCats::categoryFileOnAFullDisk() {
  const FullDisk disk;
  if (!disk.isMounted())
    QSKIP("no disk can be mounted here");
  const QString path = disk.path(QStringLiteral("catdef.csv"));
  const std::vector<Category> one{{QStringLiteral("a"), QString(), QString(), QString(), QString(), false}};
  QString error;
  QVERIFY(CategoryFile::write(path, one, &error));
  disk.fill();
  QVERIFY(!CategoryFile::write(path, std::vector<Category>(300, one.front()), &error));
  QVERIFY(!error.isEmpty());
  QVERIFY(CategoryFile::read(path) == one); // what was there
}

void TestLayersAndCats::categoryFileThatIsNone() {
  const QByteArray pipe = QFile::encodeName(m_folder.filePath(QStringLiteral("pipe.csv")));
  QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
  QVERIFY(CategoryFile::read(QFile::decodeName(pipe)).empty()); // and does not wait for the other end
  QVERIFY(CategoryFile::read(m_folder.path()).empty());
  const std::vector<Category> old = CategoryFile::read(write("M\xfcnster;\x80;;;\n"));
  QCOMPARE(old.at(0).category, QString::fromUtf8("Münster"));
  QCOMPARE(old.at(0).name, QString::fromUtf8("€")); // as in the tables of networks
}

/// Nothing that somebody has typed goes without a question.
void TestLayersAndCats::changedCategoriesAreAskedAbout() {
  const auto list = std::make_shared<CategoryList>();
  NivraNetObjectCats panel(list);
  list->setFile(write("one;;p;^v$;v@ELE>10\n"));
  panel.updateTempCategory({QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), QString()});
  auto *table = panel.findChild<QTableWidget *>();
  auto *reload = panel.findChild<QPushButton *>(QStringLiteral("pushButtonReload"));
  panel.show();
  {
    const Answers none({});
    reload->click(); // nothing has changed
    QVERIFY(none.areGiven());
  }
  QCOMPARE(table->item(0, 1)->text(), QStringLiteral("x")); // which still follows the search
  table->item(1, 1)->setText(QStringLiteral("typed"));
  {
    const Answers answers({NivraMsg::Answer::Cancel, NivraMsg::Answer::Cancel});
    reload->click();
    QCOMPARE(table->item(1, 1)->text(), QStringLiteral("typed"));
    QVERIFY(!panel.settleChanges());
    QVERIFY(answers.areGiven());
  }
  {
    const Answers answers({NivraMsg::Answer::Save});
    QVERIFY(panel.settleChanges());
    QVERIFY(answers.areGiven());
  }
  QCOMPARE(CategoryFile::read(m_folder.filePath(QStringLiteral("catdef.csv"))).at(0).name, QStringLiteral("typed"));
  panel.show();
  table->item(1, 1)->setText(QStringLiteral("again"));
  const Answers discard({NivraMsg::Answer::Discard});
  reload->click();
  QCOMPARE(table->item(1, 1)->text(), QStringLiteral("typed"));
  QVERIFY(panel.settleChanges());
}

void TestLayersAndCats::panelTellsCategories() {
  const auto list = std::make_shared<CategoryList>();
  NivraNetObjectCats panel(list);
  list->setFile(write("one;;p;^v$;v@ELE>10\n"));
  auto *table = panel.findChild<QTableWidget *>();
  QCOMPARE(table->rowCount(), 2);
  QCOMPARE(table->item(0, 0)->text(), QStringLiteral("fromSearch"));
  QCOMPARE(table->item(0, 3)->text(), QStringLiteral("^name$"));
  QVERIFY(!(table->item(0, 1)->flags() & Qt::ItemIsEditable));
  const QSignalSpy told(&panel, &NivraNetObjectCats::catChanged);
  panel.updateTempCategory({QStringLiteral("x"), QString(), QString(), QString()});
  QCOMPARE(told.last().first().value<CatMap>().value(QStringLiteral("fromSearch")).name, QStringLiteral("x"));
  panel.addCategory({QStringLiteral("n"), QStringLiteral("t"), QStringLiteral("p"), QStringLiteral("v")});
  QCOMPARE(table->item(2, 0)->text(), QStringLiteral("Cat2"));
  const QSignalSpy search(&panel, &NivraNetObjectCats::toSearch);
  panel.on_toolButtonToSearch_clicked();
  QCOMPARE(search.first().first().toStringList().join(QLatin1Char(' ')), QStringLiteral("n t p v"));
  panel.on_pushButtonOK_clicked();
  QFile file(m_folder.filePath(QStringLiteral("catdef.csv")));
  QVERIFY(file.open(QIODevice::ReadOnly));
  QCOMPARE(file.readAll(), QByteArray("# format (besides comment lines) per LINE:\n# category;name;type;prop;value/formula\n"
                                      "one;;p;^v$;v@ELE>10\nCat2;n;t;p;v\n"));
  table->setCurrentCell(0, 0);
  panel.on_toolButtonRemove_clicked(); // that of the search stays
  QCOMPARE(table->rowCount(), 3);
}

void TestLayersAndCats::metaDataGroups() {
  const NetData net;
  const MetaDataTable table(net);
  QStringList groups;
  for (int i = 0; i < table.topLevelItemCount(); ++i) {
    const QTreeWidgetItem *group = table.topLevelItem(i);
    groups.append(group->text(0).section(QLatin1Char(' '), 0, 0));
    QVERIFY(group->text(0).endsWith(QStringLiteral("(%1)").arg(group->childCount())));
    QVERIFY(group->childCount() > 0);
  }
  QCOMPARE(groups.join(QLatin1Char(' ')),
           QStringLiteral("ElementTypes NodeFunctions EdgeFunctions GeomParms ScenParms ResultParms GasParms VisParms"));
  NetData bare;
  bare.setMetaData(std::make_shared<NetMetaData>());
  const MetaDataTable empty(bare);
  QCOMPARE(empty.topLevelItem(6)->text(0), QStringLiteral("GasParms (0)"));
}

void TestLayersAndCats::closureAndTrace() {
  Selection selection;
  Topology::select(*m_net, QStringLiteral("ab"), selection);
  Topology::select(*m_net, QStringLiteral("C"), selection);
  Topology::close(*m_net, selection);
  QCOMPARE(selection.nodes.size(), 3);
  QCOMPARE(selection.edges, (Selection::Names{QStringLiteral("AB"), QStringLiteral("CB")}));
  using Direction = Topology::Direction;
  const Selection down = Topology::trace(*m_net, QStringLiteral("A"), Direction::Downstream);
  QCOMPARE(down.edges.size(), 3);                     // up to and with the compressor
  QVERIFY(!down.nodes.contains(QStringLiteral("D"))); // but not beyond
  const Selection up = Topology::trace(*m_net, QStringLiteral("CB"), Direction::Upstream);
  QCOMPARE(up.edges, (Selection::Names{QStringLiteral("AB"), QStringLiteral("CB")}));
  QVERIFY(up.nodes.contains(QStringLiteral("A")) && !up.nodes.contains(QStringLiteral("C")));
  QVERIFY(Topology::trace(*m_net, QStringLiteral("nowhere"), Direction::Upstream).isEmpty());
}

NIVRA_TEST(TestLayersAndCats);
#include "tst_layersandcats.moc"
