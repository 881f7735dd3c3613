#include "categories/categorymodel.h"
#include "layers/layermodel.h"
#include "metadata/metadatamodel.h"

#include <model/topology.h>
#include <support/answers.h>
#include <support/fulldisk.h>
#include <support/modelfixture.h>
#include <support/nivratest.h>
#include <support/smallfiles.h>
#include <tools/layers.h>
#include <tools/metadatatable.h>
#include <tools/nivranetlayerseditor.h>
#include <tools/nivranetobjectcats.h>

#include <QAbstractItemModelTester>
#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>

#include <sys/stat.h>

class TestLayersAndCats : public QObject {
  Q_OBJECT

private slots:
  void init();
  void layersGroupElements();
  void layersChangeElements();
  void layersOfWhatAnElementIsStay_data();
  void layersOfWhatAnElementIsStay();
  void layerNames_data();
  void layerNames();
  void editorShowsAndHides();
  void layersAreSorted();
  void elementsOfALayerAreListed();
  void renamingKeepsWhatIsHidden();
  void categoryFile();
  void categoriesComeBack();
  void savingKeepsWhatIsNoCategory();
  void categoryFileOnAFullDisk();
  void categoryFileThatIsNone();
  void changedCategoriesAreAskedAbout();
  void panelTellsCategories();
  void metaDataGroups();
  void closureAndTrace();

private:
  QString write(const QByteArray &text) const {
    return SmallFiles::write(m_folder.filePath(QStringLiteral("catdef.csv")), text);
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

void TestLayersAndCats::layersOfWhatAnElementIsStay_data() {
  QTest::addColumn<QString>("property");
  for (const char *property : {"name", "type", "node1", "node2", "x", "y"})
    QTest::newRow(property) << QString::fromLatin1(property);
}

void TestLayersAndCats::layersOfWhatAnElementIsStay() {
  QFETCH(QString, property);
  element &changed = *m_net->element(QStringLiteral("AB"));
  changed.set(QStringLiteral("x"), QStringLiteral("1"));
  changed.set(QStringLiteral("y"), QStringLiteral("1"));
  const QString before = changed.value(property);
  QVERIFY(!before.isEmpty());
  NivraNetLayersEditor editor(*m_net);
  editor.show();
  editor.setLayerProperty(property);
  auto *table = editor.findChild<QTableView *>();
  QVERIFY(table->model()->rowCount() > 0); // they can be seen
  Topology::select(*m_net, QStringLiteral("AB"), m_net->selection());
  table->selectAll();
  const Answers answers({NivraMsg::Answer::Ok, NivraMsg::Answer::Ok, NivraMsg::Answer::Ok});
  editor.on_toolButtonAdd_clicked();
  editor.on_toolButtonDel_clicked();
  for (int row = 0; row < table->model()->rowCount(); ++row) {
    const QModelIndex index = table->model()->index(row, LayerModel::LayerColumn);
    if (index.data().toString() == before)
      table->model()->setData(index, QStringLiteral("renamed"));
  }
  QTRY_VERIFY(answers.areGiven());
  for (const QString &text : answers.texts())
    QVERIFY2(text.contains(QLatin1Char('"') + property + QLatin1Char('"')), qPrintable(text));
  QVERIFY(m_net->element(QStringLiteral("AB")) != nullptr);
  QCOMPARE(m_net->element(QStringLiteral("AB"))->value(property), before);
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
    QObject::connect(&editor, &NivraNetLayersEditor::layerVisChanged, &editor,
                     [this, &editor](const QString &, const QSet<QString> &wanted) {
                       hidden = wanted;
                       editor.setHiddenLayers(hidden);
                     });
  }
  QSet<QString> hidden;
};

/// The cell of a table as it is shown.
QModelIndex cell(const QTableView &table, int row, int column) {
  return table.model()->index(row, column);
}

QString text(const QTableView &table, int row, int column) {
  return cell(table, row, column).data().toString();
}

Qt::CheckState check(const QTableView &table, int row) {
  return cell(table, row, 0).data(Qt::CheckStateRole).value<Qt::CheckState>();
}

/// With the mouse, in the box of the first column.
void clickBox(QTableView &table, int row) {
  const QRect place = table.visualRect(cell(table, row, 0));
  QStyleOptionViewItem option;
  option.initFrom(&table);
  option.rect = place;
  option.features = QStyleOptionViewItem::HasCheckIndicator;
  const QRect box = table.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &table);
  QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::NoModifier, box.center());
}

} // namespace

void TestLayersAndCats::editorShowsAndHides() {
  NivraNetLayersEditor editor(*m_net);
  const Drawing drawing(editor);
  editor.on_pushButtonReload_clicked();
  editor.show();
  auto *table = editor.findChild<QTableView *>();
  const QAbstractItemModelTester model(editor.findChild<LayerModel *>());
  const QAbstractItemModelTester sorted(table->model());
  QCOMPARE(table->model()->rowCount(), 2);
  QCOMPARE(text(*table, 1, LayerModel::CountColumn), QStringLiteral("2"));
  const QSignalSpy changed(&editor, &NivraNetLayersEditor::layerVisChanged);
  clickBox(*table, 1);
  QCOMPARE(changed.count(), 1);
  QCOMPARE(drawing.hidden, QSet<QString>{QStringLiteral("p")});
  editor.on_toolButtonInvert_clicked();
  QCOMPARE(drawing.hidden, QSet<QString>{QStringLiteral("c")});
  QCOMPARE(check(*table, 0), Qt::Unchecked);
  QCOMPARE(check(*table, 1), Qt::Checked);
  editor.on_pushButtonReload_clicked(); // kept by name
  QCOMPARE(check(*table, 0), Qt::Unchecked);
  editor.on_toolButtonHideAll_clicked();
  editor.on_toolButtonHideAll_clicked(); // as they are already
  QCOMPARE(changed.count(), 3);
  QVERIFY(cell(*table, 0, LayerModel::LayerColumn).flags() & Qt::ItemIsEditable);
  editor.changeEditMode(NivraNetLayersEditor::EditMode::VisibilityOnly);
  QVERIFY(!(cell(*table, 0, LayerModel::LayerColumn).flags() & Qt::ItemIsEditable));
}

void TestLayersAndCats::layersAreSorted() {
  for (int i = 0; i < 10; ++i) {
    const QByteArray name = "many" + QByteArray::number(i);
    m_net->addElement(makeNode(name.constData()));
    m_net->element(QString::fromLatin1(name))->set(QStringLiteral("vis.layer"), QStringLiteral("x"));
  }
  NivraNetLayersEditor editor(*m_net);
  editor.on_pushButtonReload_clicked();
  auto *table = editor.findChild<QTableView *>();
  table->sortByColumn(LayerModel::CountColumn, Qt::DescendingOrder);
  QCOMPARE(text(*table, 0, LayerModel::CountColumn), QStringLiteral("10")); // before 2
  QCOMPARE(text(*table, 2, LayerModel::LayerColumn), QStringLiteral("c"));
  QCOMPARE(table->model()->headerData(0, Qt::Vertical).toInt(), 1); // rows are numbered as they are shown
  table->setCurrentIndex(cell(*table, 0, LayerModel::LayerColumn));
  editor.on_pushButtonReload_clicked();
  QCOMPARE(table->currentIndex(), cell(*table, 0, LayerModel::LayerColumn)); // the same layer
  table->sortByColumn(LayerModel::LayerColumn, Qt::AscendingOrder);
  QCOMPARE(table->currentIndex(), cell(*table, 2, LayerModel::LayerColumn));
}

void TestLayersAndCats::elementsOfALayerAreListed() {
  NivraNetLayersEditor editor(*m_net);
  editor.on_pushButtonReload_clicked();
  editor.show();
  auto *table = editor.findChild<QTableView *>();
  auto *list = editor.findChild<QListView *>();
  const auto click = [](QAbstractItemView &view, const QModelIndex &index) {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, view.visualRect(index).center());
  };
  click(*table, cell(*table, 1, LayerModel::CountColumn)); // asks for nothing
  QCOMPARE(list->model()->rowCount(), 0);
  click(*table, cell(*table, 1, LayerModel::LayerColumn));
  QCOMPARE(list->model()->rowCount(), 2);
  const QSignalSpy clicked(&editor, &NivraNetLayersEditor::itemClicked);
  const QSignalSpy doubleClicked(&editor, &NivraNetLayersEditor::itemDoubleClicked);
  const QModelIndex second = list->model()->index(1, 0);
  click(*list, second);
  QCOMPARE(clicked.value(0).value(0).toString(), QStringLiteral("CB"));
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, list->visualRect(second).center());
  QCOMPARE(doubleClicked.value(0).value(0).toString(), QStringLiteral("CB"));
  QVERIFY(list->findChild<QLineEdit *>() == nullptr); // names are not edited here
  editor.on_pushButtonReload_clicked();
  QCOMPARE(list->model()->rowCount(), 0);
}

/// With mouse and keys, as a person renames.
void TestLayersAndCats::renamingKeepsWhatIsHidden() {
  NivraNetLayersEditor editor(*m_net);
  const Drawing drawing(editor);
  editor.on_pushButtonReload_clicked();
  editor.show();
  auto *table = editor.findChild<QTableView *>();
  const auto rename = [table](int row, const char *name) {
    table->setCurrentIndex(cell(*table, row, LayerModel::LayerColumn));
    table->edit(table->currentIndex());
    auto *field = table->findChild<QLineEdit *>();
    QVERIFY(field != nullptr);
    field->selectAll();
    QTest::keyClicks(field, QString::fromLatin1(name));
    QTest::keyClick(field, Qt::Key_Return);
    QCoreApplication::processEvents(); // the field is read after the key
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  };
  clickBox(*table, 1);
  const QSignalSpy visibility(&editor, &NivraNetLayersEditor::layerVisChanged);
  const QSignalSpy changed(&editor, &NivraNetLayersEditor::elementsChanged);
  {
    const Answers answers({NivraMsg::Answer::Yes});
    rename(1, "a pipe");
    QTRY_VERIFY(answers.areGiven()); // after the field is closed
  }
  QCOMPARE(drawing.hidden, QSet<QString>{QStringLiteral("a pipe")});
  QCOMPARE(text(*table, 0, LayerModel::LayerColumn), QStringLiteral("a pipe")); // where sorting puts it
  QCOMPARE(check(*table, 0), Qt::Unchecked);
  QCOMPARE(table->currentIndex().row(), 0);
  QCOMPARE(visibility.count(), 1);
  QCOMPARE(changed.count(), 1);
  const auto change = changed.first().first().value<ElementChange>();
  QCOMPARE(change.elements, (QStringList{QStringLiteral("AB"), QStringLiteral("CB")}));
  QCOMPARE(change.property, PropertyKey::find("vis.layer"));
  {
    const Answers no({NivraMsg::Answer::No}); // a layer of that name is there
    rename(0, "c");
    QTRY_VERIFY(no.areGiven());
    QVERIFY(no.texts().first().contains(QStringLiteral("layer already exists! Use?")));
  }
  QCOMPARE(table->model()->rowCount(), 2);
  QCOMPARE(table->currentIndex().data().toString(), QStringLiteral("a pipe"));
  {
    const Answers both({NivraMsg::Answer::Yes, NivraMsg::Answer::Yes});
    rename(0, "c");
    QTRY_VERIFY(both.areGiven());
  }
  QCOMPARE(table->model()->rowCount(), 1);
  QVERIFY(drawing.hidden.isEmpty()); // it joined a layer that is seen
}

void TestLayersAndCats::categoryFile() {
  QStringList told;
  const auto tell = [&told](const Finding &finding) {
    told.append(finding.logText());
  };
  const QString path = write("# comment\n\n"
                             "[x]Heavy;;;^p$;p@ELE>60\n"
                             "four;a;b;c\n"
                             " Long ; ^P_ ; p ; length ; ^1 ;more;and more\n");
  const std::vector<Category> read = CategoryFile::read(path, tell);
  QCOMPARE(told, QStringList{QStringLiteral("Line contains less than 5 entries! (%1:4)").arg(path)});
  QCOMPARE(read.size(), std::size_t(2));
  QVERIFY(read[0].isChecked && read[0].category == QLatin1String("Heavy"));
  QCOMPARE(read[1].name, QStringLiteral("^P_"));
  const CatMap map = CategoryFile::toMap(read);
  QCOMPARE(map.value(QStringLiteral("Heavy")).formula, QStringLiteral("p@ELE>60"));
  QVERIFY(map.value(QStringLiteral("Heavy")).value.isEmpty());
  QCOMPARE(map.value(QStringLiteral("Long")).value, QStringLiteral("^1"));
  QVERIFY(CategoryFile::read(QStringLiteral("/nowhere/catdef.csv"), tell).empty());
  QCOMPARE(told.last(), QStringLiteral("### Categories file /nowhere/catdef.csv not found!"));
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

void TestLayersAndCats::savingKeepsWhatIsNoCategory() {
  const QString path = write("# mine\r\n[x]Fast;;p;^v$;abs(v@ELE)>10\n\nShort;;p\nM\xfc;a;p;b;c;extra;fields\n# end");
  const QByteArray Format = "# format (besides comment lines) per LINE:\n# category;name;type;prop;value/formula\n";
  std::vector<Category> categories = CategoryFile::read(path);
  QCOMPARE(categories.size(), std::size_t(2));
  categories[1].value = QStringLiteral("other");
  const auto saved = [&] {
    QString error;
    return CategoryFile::write(path, categories, &error) ? SmallFiles::contents(path) : error.toUtf8();
  };
  const QByteArray expected =
      Format + "# mine\n[x]Fast;;p;^v$;abs(v@ELE)>10\n\nShort;;p\nM\xc3\xbc;a;p;b;other;extra;fields\n# end\n";
  QCOMPARE(saved(), expected);
  QCOMPARE(saved(), expected);
  categories.insert(categories.begin(), Category{QStringLiteral("new"), {}, {}, {}, {}, false});
  categories.erase(categories.begin() + 1);
  QCOMPARE(saved(), QByteArray(Format + "# mine\nnew;;;;\n\nShort;;p\nM\xc3\xbc;a;p;b;other;extra;fields\n# end\n"));
  categories.clear();
  QCOMPARE(saved(), QByteArray(Format + "# mine\n\nShort;;p\n# end\n"));
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
  auto *table = panel.findChild<QTableView *>();
  auto *reload = panel.findChild<QPushButton *>(QStringLiteral("pushButtonReload"));
  panel.show();
  {
    const Answers none({});
    reload->click(); // nothing has changed
    QVERIFY(none.areGiven());
  }
  QCOMPARE(text(*table, 0, 1), QStringLiteral("x")); // which still follows the search
  table->model()->setData(cell(*table, 1, 1), QStringLiteral(" typed "));
  {
    const Answers answers({NivraMsg::Answer::Cancel, NivraMsg::Answer::Cancel});
    reload->click();
    QCOMPARE(text(*table, 1, 1), QStringLiteral("typed"));
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
  table->model()->setData(cell(*table, 1, 1), QStringLiteral("again"));
  const Answers discard({NivraMsg::Answer::Discard});
  reload->click();
  QCOMPARE(text(*table, 1, 1), QStringLiteral("typed"));
  QVERIFY(panel.settleChanges());
}

void TestLayersAndCats::panelTellsCategories() {
  const auto list = std::make_shared<CategoryList>();
  NivraNetObjectCats panel(list);
  list->setFile(write("one;;p;^v$;v@ELE>10\n"));
  auto *table = panel.findChild<QTableView *>();
  const QAbstractItemModelTester model(table->model());
  QCOMPARE(table->model()->rowCount(), 2);
  QCOMPARE(text(*table, 0, 0), QStringLiteral("fromSearch"));
  QCOMPARE(text(*table, 0, 3), QStringLiteral("^name$"));
  QVERIFY(!(cell(*table, 0, 1).flags() & Qt::ItemIsEditable));
  const QSignalSpy told(&panel, &NivraNetObjectCats::catChanged);
  panel.updateTempCategory({QStringLiteral("x"), QString(), QString(), QString()});
  QCOMPARE(told.last().first().value<CatMap>().value(QStringLiteral("fromSearch")).name, QStringLiteral("x"));
  panel.addCategory({QStringLiteral("n"), QStringLiteral("t"), QStringLiteral("p"), QStringLiteral("v")});
  QCOMPARE(text(*table, 2, 0), QStringLiteral("Cat2"));
  const QSignalSpy search(&panel, &NivraNetObjectCats::toSearch);
  panel.on_toolButtonToSearch_clicked();
  QCOMPARE(search.first().first().toStringList().join(QLatin1Char(' ')), QStringLiteral("n t p v"));
  panel.on_pushButtonOK_clicked();
  QFile file(m_folder.filePath(QStringLiteral("catdef.csv")));
  QVERIFY(file.open(QIODevice::ReadOnly));
  QCOMPARE(file.readAll(), QByteArray("# format (besides comment lines) per LINE:\n# category;name;type;prop;value/formula\n"
                                      "one;;p;^v$;v@ELE>10\nCat2;n;t;p;v\n"));
  table->setCurrentIndex(cell(*table, 0, 0));
  panel.on_toolButtonRemove_clicked(); // that of the search stays
  QCOMPARE(table->model()->rowCount(), 3);
  panel.show();
  clickBox(*table, 1);
  QVERIFY(list->categories().at(0).isChecked);
  clickBox(*table, 0); // shows that it is not checked, and stays so
  QCOMPARE(check(*table, 0), Qt::Unchecked);
  table->setCurrentIndex(cell(*table, 2, 3));
  panel.addToCurrentCategory({QString(), QStringLiteral("v"), QString(), QString()});
  QCOMPARE(text(*table, 2, CategoryModel::TypeColumn), QStringLiteral("v"));
  NivraNetObjectCats other(list); // of another window
  other.on_toolButtonAdd_clicked();
  other.findChild<QTableView *>()->setCurrentIndex(other.findChild<QTableView *>()->model()->index(1, 0));
  other.on_toolButtonRemove_clicked();
  QCOMPARE(text(*table, 1, 0) + text(*table, 2, 0), QStringLiteral("Cat2Cat3"));
  QCOMPARE(table->currentIndex(), cell(*table, 1, 3)); // the same category
}

void TestLayersAndCats::metaDataGroups() {
  const NetData net;
  const MetaDataTable table(net);
  const QAbstractItemModel &model = *table.model();
  const QAbstractItemModelTester tester(table.model());
  QStringList groups;
  for (int i = 0; i < model.rowCount(); ++i) {
    const QModelIndex group = model.index(i, 0);
    groups.append(group.data().toString().section(QLatin1Char(' '), 0, 0));
    QVERIFY(group.data().toString().endsWith(QStringLiteral("(%1)").arg(model.rowCount(group))));
    QVERIFY(model.rowCount(group) > 0);
  }
  QCOMPARE(groups.join(QLatin1Char(' ')),
           QStringLiteral("ElementTypes NodeFunctions EdgeFunctions GeomParms ScenParms ResultParms GasParms VisParms"));
  const QModelIndex pipe = model
                               .match(model.index(0, MetaDataModel::ShortNameColumn, model.index(0, 0)), Qt::DisplayRole,
                                      QStringLiteral("p"), 1, Qt::MatchExactly)
                               .value(0);
  QCOMPARE(pipe.siblingAtColumn(MetaDataModel::LongNameColumn).data().toString(), QStringLiteral("pipe"));
  NetData bare;
  bare.setMetaData(std::make_shared<NetMetaData>());
  const MetaDataTable empty(bare);
  QCOMPARE(empty.model()->index(6, 0).data().toString(), QStringLiteral("GasParms (0)"));
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
