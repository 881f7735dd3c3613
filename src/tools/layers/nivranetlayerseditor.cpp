#include "layers/layermodel.h"
#include "shared/sortedrows.h"
#include "ui_nivranetlayerseditor.h"

#include <base/nivramsg.h>
#include <tools/nivranetlayerseditor.h>
#include <tools/tablemenu.h>

#include <QInputDialog>
#include <QPushButton>
#include <QStringListModel>

NivraNetLayersEditor::NivraNetLayersEditor(NetData &net, Told told, QWidget *parent)
    : QDockWidget(parent)
    , m_ui(std::make_unique<Ui::NivraNetLayersEditor>())
    , m_net(net)
    , m_layers(net, std::move(told))
    , m_model(new LayerModel(m_layers, this))
    , m_rows(new SortedRows(this))
    , m_names(new QStringListModel(this)) {
  m_ui->setupUi(this);
  m_rows->setSortRole(LayerModel::SortRole);
  m_rows->setSourceModel(m_model);
  m_ui->table->setModel(m_rows);
  m_ui->table->setSortingEnabled(true);
  m_ui->list->setModel(m_names);
  connect(m_ui->table, &QTableView::clicked, this, &NivraNetLayersEditor::on_tableWidget_itemClicked);
  connect(m_ui->table, &QTableView::doubleClicked, this, &NivraNetLayersEditor::on_tableWidget_itemDoubleClicked);
  connect(m_model, &LayerModel::cellEdited, this, &NivraNetLayersEditor::on_tableWidget_cellChanged);
  connect(m_ui->list, &QListView::doubleClicked, this, &NivraNetLayersEditor::on_listWidget_itemDoubleClicked);
  connect(m_ui->list->selectionModel(), &QItemSelectionModel::currentChanged, this,
          &NivraNetLayersEditor::on_listWidget_currentItemChanged);
  m_ui->lineEditProperty->setText(m_layers.property());
  const std::pair<QAction *, void (NivraNetLayersEditor::*)()> actions[] = {
      {m_ui->actionShowAll, &NivraNetLayersEditor::on_toolButtonShowAll_clicked},
      {m_ui->actionHideAll, &NivraNetLayersEditor::on_toolButtonHideAll_clicked},
      {m_ui->actionInvert, &NivraNetLayersEditor::on_toolButtonInvert_clicked}};
  for (const auto &[action, slot] : actions) {
    m_ui->table->addAction(action);
    connect(action, &QAction::triggered, this, slot);
  }
  TableMenu::offerCopy(*m_ui->table);
  connect(m_ui->pushButtonSave, &QPushButton::clicked, this, &NivraNetLayersEditor::saveWanted);
  connect(m_ui->pushButtonLoad, &QPushButton::clicked, this, &NivraNetLayersEditor::loadWanted);
}

NivraNetLayersEditor::~NivraNetLayersEditor() = default;

void NivraNetLayersEditor::setLayerProperty(const QString &property) {
  m_ui->lineEditProperty->setText(property);
  on_lineEditProperty_editingFinished();
}

void NivraNetLayersEditor::takeNetwork(const QString &layerProperty) {
  m_ui->lineEditProperty->setText(layerProperty);
  if (layerProperty != m_layers.property())
    on_lineEditProperty_editingFinished(); // which looks as well
  else
    on_pushButtonReload_clicked();
}

void NivraNetLayersEditor::takeChanges() {
  m_isStale = true;
  if (isVisible())
    on_pushButtonReload_clicked();
}

void NivraNetLayersEditor::showEvent(QShowEvent *event) {
  if (m_isStale)
    on_pushButtonReload_clicked();
  QDockWidget::showEvent(event);
}

void NivraNetLayersEditor::on_lineEditProperty_editingFinished() {
  if (m_ui->lineEditProperty->text() == m_layers.property())
    return;
  m_layers.setProperty(m_ui->lineEditProperty->text());
  fill();
  emit layerVisChanged(m_layers.property(), {}); // layers of another property are others
}

void NivraNetLayersEditor::setOffersFiles(bool offers) {
  m_ui->pushButtonSave->setVisible(offers);
  m_ui->pushButtonLoad->setVisible(offers);
}

void NivraNetLayersEditor::setHiddenLayers(const QSet<QString> &hidden) {
  m_model->setHidden(hidden);
}

void NivraNetLayersEditor::showWithout(const QSet<QString> &hidden) {
  if (hidden != m_model->hidden())
    emit layerVisChanged(m_layers.property(), hidden);
}

/// \param names of elements that have come into a layer or left one
void NivraNetLayersEditor::tellOfLayers(const QStringList &names) {
  emit elementsChanged({names, PropertyKey::find(m_layers.property())});
}

void NivraNetLayersEditor::on_pushButtonReload_clicked() {
  m_isStale = false;
  m_layers.rebuild();
  fill();
}

void NivraNetLayersEditor::fill(const QString &marked) {
  const QModelIndex before = m_ui->table->currentIndex();
  const QString current = marked.isEmpty() && before.isValid() ? layerAt(before) : marked;
  m_model->refresh();
  m_ui->table->resizeColumnsToContents();
  const int row = m_model->row(current);
  if (row >= 0)
    m_ui->table->setCurrentIndex(m_rows->mapFromSource(m_model->index(row, LayerModel::LayerColumn)));
  m_names->setStringList({});
}

/// \param index of the sorted rows
QString NivraNetLayersEditor::layerAt(const QModelIndex &index) const {
  return m_model->layer(m_rows->mapToSource(index).row());
}

void NivraNetLayersEditor::on_tableWidget_itemClicked(const QModelIndex &item) {
  if (item.column() == LayerModel::LayerColumn)
    showList(layerAt(item));
}

void NivraNetLayersEditor::on_tableWidget_itemDoubleClicked(const QModelIndex &item) {
  showList(layerAt(item));
}

void NivraNetLayersEditor::on_toolButtonList_clicked() {
  if (m_ui->table->currentIndex().isValid())
    showList(layerAt(m_ui->table->currentIndex()));
}

void NivraNetLayersEditor::showList(const QString &layer) {
  m_names->setStringList(m_layers.all().value(layer));
}

void NivraNetLayersEditor::on_tableWidget_cellChanged(int row, int column, const QVariant &value) {
  const QString layer = m_model->layer(row);
  if (column == LayerModel::LayerColumn) { // once the field in the cell is closed, for the rows are made anew
    QMetaObject::invokeMethod(
        this, [this, layer, name = value.toString()] { rename(layer, name); }, Qt::QueuedConnection);
    return;
  }
  QSet<QString> hidden = m_model->hidden();
  if (value.toInt() == Qt::Checked)
    hidden.remove(layer);
  else
    hidden.insert(layer);
  showWithout(hidden);
}

void NivraNetLayersEditor::rename(const QString &layer, const QString &name) {
  if (!m_layers.all().contains(layer) || !mayChange() || !mayBecome(name))
    return;
  QSet<QString> hidden = m_model->hidden();
  const bool joinsAnother = m_layers.all().contains(name); // which stays as it is
  if (hidden.remove(layer) && !joinsAnother)
    hidden.insert(name);
  const QStringList names = m_layers.all().value(layer);
  m_layers.rename(layer, name);
  showWithout(hidden);
  fill(name);
  tellOfLayers(names);
}

/// Whether elements can change their layer; says why not.
bool NivraNetLayersEditor::mayChange() {
  if (m_layers.canChange())
    return true;
  NivraMsg::message(NivraMsg::Kind::Warning,
                    tr("The property \"%1\" says what an element is or where it lies. Layers of it can be shown and hidden, "
                       "but not changed: choose another layer property.")
                        .arg(m_layers.property()));
  return false;
}

/// Whether a layer may be renamed so; asks the person.
bool NivraNetLayersEditor::mayBecome(const QString &name) {
  if (!Layers::isAllowed(name)) {
    NivraMsg::message(NivraMsg::Kind::Warning, tr("layer name contains forbidden characters! Try again!"));
    return false;
  }
  const QString question =
      tr("This will set the \"%1\" property to \"%2\" for all elements in this Layer. Existing values will "
         "be overwritten. Continue?")
          .arg(m_layers.property(), name);
  return (!m_layers.all().contains(name) || confirms(tr("Rename Layer"), tr("layer already exists! Use?"))) &&
         confirms(tr("Rename Layer"), question);
}

bool NivraNetLayersEditor::confirms(const QString &title, const QString &question) {
  using NivraMsg::Answer;
  return NivraMsg::show({NivraMsg::Kind::Question, question, title, {Answer::Yes, Answer::No}}) == Answer::Yes;
}

QString NivraNetLayersEditor::askForLayer() {
  bool isTaken = false;
  QString layer = QInputDialog::getItem(this, tr("Choose layer"), tr("add selected elements to layer:"),
                                        m_layers.all().keys() << Layers::newLayer(), 0, false, &isTaken);
  if (!isTaken || layer != Layers::newLayer())
    return isTaken ? layer : QString();
  while (true) {
    layer =
        QInputDialog::getText(this, tr("Enter name of layer"), tr("name of layer:"), QLineEdit::Normal, QString(), &isTaken);
    if (!isTaken || layer.isEmpty())
      return QString();
    if (Layers::isAllowed(layer))
      break;
    NivraMsg::show(
        {NivraMsg::Kind::Warning, tr("layer name contains forbidden characters! Try again!"), tr("layer name not allowed")});
  }
  if (m_layers.all().contains(layer) && !confirms(tr("Choose layer"), tr("layer already exists! Use?")))
    return QString();
  return layer;
}

void NivraNetLayersEditor::on_toolButtonAdd_clicked() {
  const QStringList names = m_net.selection().names().values();
  if (names.isEmpty()) {
    NivraMsg::information(tr("select elements to add."));
    return;
  }
  const QString layer = mayChange() ? askForLayer() : QString();
  if (layer.isEmpty())
    return;
  const QString question =
      tr("This will set the \"%1\" property to \"%2\" for all selected elements. Existing values will be "
         "overwritten. Continue?")
          .arg(m_layers.property(), layer);
  if (!confirms(tr("Add Layer"), question))
    return;
  m_layers.add(names, layer);
  fill(layer);
  tellOfLayers(names);
}

void NivraNetLayersEditor::on_toolButtonDel_clicked() {
  QSet<QString> chosen;
  for (const QModelIndex &cell : m_ui->table->selectionModel()->selectedIndexes())
    chosen.insert(layerAt(cell));
  if (chosen.isEmpty() || m_mode == EditMode::VisibilityOnly || !mayChange())
    return;
  const QString question =
      tr("This will erase the \"%1\" property from all elements in the selected layers. Continue?").arg(m_layers.property());
  if (!confirms(tr("Delete Layers"), question))
    return;
  const QStringList names = m_layers.remove(chosen);
  showWithout(QSet<QString>(m_model->hidden()).subtract(chosen));
  fill();
  tellOfLayers(names);
}

void NivraNetLayersEditor::on_toolButtonShowAll_clicked() {
  showWithout({});
}

void NivraNetLayersEditor::on_toolButtonHideAll_clicked() {
  const QStringList all = m_layers.all().keys();
  showWithout(QSet<QString>(all.begin(), all.end()));
}

void NivraNetLayersEditor::on_toolButtonInvert_clicked() {
  const QStringList all = m_layers.all().keys();
  showWithout(QSet<QString>(all.begin(), all.end()).subtract(m_model->hidden()));
}

void NivraNetLayersEditor::on_listWidget_itemDoubleClicked(const QModelIndex &item) {
  emit itemDoubleClicked(item.data().toString());
}

void NivraNetLayersEditor::on_listWidget_currentItemChanged(const QModelIndex &current, const QModelIndex & /*previous*/) {
  if (current.isValid())
    emit itemClicked(current.data().toString());
  emit selectionChanged();
}

void NivraNetLayersEditor::changeEditMode(EditMode mode) {
  m_mode = mode;
  m_model->setRenamable(mode == EditMode::Layers);
  m_ui->toolButtonAdd->setEnabled(mode == EditMode::Layers);
  m_ui->toolButtonDel->setEnabled(mode == EditMode::Layers);
  fill();
}
