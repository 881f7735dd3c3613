#include "ui_nivranetlayerseditor.h"

#include <base/nivramsg.h>
#include <tools/nivranetlayerseditor.h>
#include <tools/tablemenu.h>

#include <QInputDialog>

#include <algorithm>

namespace {

enum Column { VisibleColumn, LayerColumn, CountColumn };
constexpr int LayerRole = Qt::UserRole; ///< the name as it is in the network, while the cell is being edited

/// A number that is sorted as one.
class CountItem : public QTableWidgetItem {
public:
  explicit CountItem(int count)
      : QTableWidgetItem(QString::number(count)) {
    setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
  }
  bool operator<(const QTableWidgetItem &other) const override { return text().toInt() < other.text().toInt(); }
};

} // namespace

NivraNetLayersEditor::NivraNetLayersEditor(NetData &net, QWidget *parent)
    : QDockWidget(parent)
    , m_ui(std::make_unique<Ui::NivraNetLayersEditor>())
    , m_net(net)
    , m_layers(net) {
  m_ui->setupUi(this);
  m_ui->tableWidget->setHorizontalHeaderLabels({QStringLiteral(" "), tr("Layer"), tr("count")});
  m_ui->lineEditProperty->setText(m_layers.property());
  const std::pair<QAction *, void (NivraNetLayersEditor::*)()> actions[] = {
      {m_ui->actionShowAll, &NivraNetLayersEditor::on_toolButtonShowAll_clicked},
      {m_ui->actionHideAll, &NivraNetLayersEditor::on_toolButtonHideAll_clicked},
      {m_ui->actionInvert, &NivraNetLayersEditor::on_toolButtonInvert_clicked}};
  for (const auto &[action, slot] : actions) {
    m_ui->tableWidget->addAction(action);
    connect(action, &QAction::triggered, this, slot);
  }
  TableMenu::offerCopy(*m_ui->tableWidget);
}

NivraNetLayersEditor::~NivraNetLayersEditor() = default;

void NivraNetLayersEditor::setLayerProperty(const QString &property) {
  m_ui->lineEditProperty->setText(property);
  on_lineEditProperty_editingFinished();
}

void NivraNetLayersEditor::on_lineEditProperty_editingFinished() {
  if (m_ui->lineEditProperty->text() == m_layers.property())
    return;
  m_layers.setProperty(m_ui->lineEditProperty->text());
  fill();
  emit hiddenLayersWanted(m_layers.property(), {}); // layers of another property are others
  emit layerVisChanged();
}

void NivraNetLayersEditor::setHiddenLayers(const QSet<QString> &hidden) {
  m_hidden = hidden;
  const QSignalBlocker blocker(m_ui->tableWidget);
  for (int row = 0; row < m_ui->tableWidget->rowCount(); ++row)
    m_ui->tableWidget->item(row, VisibleColumn)->setCheckState(hidden.contains(layerAt(row)) ? Qt::Unchecked : Qt::Checked);
}

void NivraNetLayersEditor::showWithout(const QSet<QString> &hidden) {
  emit hiddenLayersWanted(m_layers.property(), hidden);
  emit layerVisChanged();
}

void NivraNetLayersEditor::on_pushButtonReload_clicked() {
  m_layers.rebuild();
  fill();
}

void NivraNetLayersEditor::fill(const QString &marked) {
  QTableWidget *table = m_ui->tableWidget;
  const QSignalBlocker blocker(table);
  const QString current = !marked.isEmpty() || table->currentRow() < 0 ? marked : layerAt(table->currentRow());
  table->setSortingEnabled(false);
  table->setRowCount(m_layers.all().size());
  int row = 0;
  for (auto layer = m_layers.all().cbegin(); layer != m_layers.all().cend(); ++layer, ++row) {
    auto *visible = new QTableWidgetItem;
    visible->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
    visible->setCheckState(m_hidden.contains(layer.key()) ? Qt::Unchecked : Qt::Checked);
    auto *name = new QTableWidgetItem(layer.key());
    name->setData(LayerRole, layer.key());
    if (m_mode == EditMode::VisibilityOnly || layer.key() == Layers::newLayer())
      name->setFlags(name->flags() & ~Qt::ItemIsEditable);
    table->setItem(row, VisibleColumn, visible);
    table->setItem(row, LayerColumn, name);
    table->setItem(row, CountColumn, new CountItem(layer->size()));
  }
  table->setSortingEnabled(true);
  table->resizeColumnsToContents();
  table->setCurrentItem(nullptr);
  for (int i = 0; i < table->rowCount(); ++i) { // wherever sorting has put it
    if (layerAt(i) == current)
      table->setCurrentCell(i, LayerColumn);
  }
  m_ui->listWidget->clear();
}

QString NivraNetLayersEditor::layerAt(int row) const {
  return m_ui->tableWidget->item(row, LayerColumn)->data(LayerRole).toString();
}

void NivraNetLayersEditor::on_tableWidget_itemClicked(QTableWidgetItem *item) {
  if (item->column() == LayerColumn)
    showList(layerAt(item->row()));
}

void NivraNetLayersEditor::on_tableWidget_itemDoubleClicked(QTableWidgetItem *item) {
  showList(layerAt(item->row()));
}

void NivraNetLayersEditor::on_toolButtonList_clicked() {
  if (m_ui->tableWidget->currentRow() >= 0)
    showList(layerAt(m_ui->tableWidget->currentRow()));
}

void NivraNetLayersEditor::showList(const QString &layer) {
  const QSignalBlocker blocker(m_ui->listWidget);
  m_ui->listWidget->clear();
  m_ui->listWidget->addItems(m_layers.all().value(layer));
}

void NivraNetLayersEditor::on_tableWidget_cellChanged(int row, int column) {
  const QString layer = layerAt(row);
  const QTableWidgetItem *cell = m_ui->tableWidget->item(row, column);
  if (column == VisibleColumn) {
    QSet<QString> hidden = m_hidden;
    if (cell->checkState() == Qt::Checked)
      hidden.remove(layer);
    else
      hidden.insert(layer);
    showWithout(hidden);
  } else if (column == LayerColumn && cell->text() != layer) {
    rename(layer, cell->text());
  }
}

void NivraNetLayersEditor::rename(const QString &layer, const QString &name) {
  if (!mayBecome(name)) {
    fill(layer);
    return;
  }
  QSet<QString> hidden = m_hidden;
  const bool joinsAnother = m_layers.all().contains(name); // which stays as it is
  if (hidden.remove(layer) && !joinsAnother)
    hidden.insert(name);
  const QStringList names = m_layers.all().value(layer);
  m_layers.rename(layer, name);
  emit hiddenLayersWanted(m_layers.property(), hidden);
  fill(name);
  emit propertyChanged(names, m_layers.property());
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
    NivraMsg::message(NivraMsg::Kind::Information, tr("select elements to add."));
    return;
  }
  const QString layer = askForLayer();
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
  emit propertyChanged(names, m_layers.property());
}

void NivraNetLayersEditor::on_toolButtonDel_clicked() {
  QSet<QString> chosen;
  for (const QTableWidgetItem *cell : m_ui->tableWidget->selectedItems())
    chosen.insert(layerAt(cell->row()));
  if (chosen.isEmpty() || m_mode == EditMode::VisibilityOnly)
    return;
  const QString question =
      tr("This will erase the \"%1\" property from all elements in the selected layers. Continue?").arg(m_layers.property());
  if (!confirms(tr("Delete Layers"), question))
    return;
  const QStringList names = m_layers.remove(chosen);
  emit hiddenLayersWanted(m_layers.property(), QSet<QString>(m_hidden).subtract(chosen));
  fill();
  emit propertyChanged(names, m_layers.property());
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
  showWithout(QSet<QString>(all.begin(), all.end()).subtract(m_hidden));
}

void NivraNetLayersEditor::on_listWidget_itemDoubleClicked(QListWidgetItem *item) {
  emit itemDoubleClicked(item->text());
}

void NivraNetLayersEditor::on_listWidget_currentItemChanged(QListWidgetItem *current, QListWidgetItem *) {
  if (current != nullptr)
    emit itemClicked(current->text());
  emit selectionChanged();
}

void NivraNetLayersEditor::changeEditMode(EditMode mode) {
  m_mode = mode;
  m_ui->toolButtonAdd->setEnabled(mode == EditMode::Layers);
  m_ui->toolButtonDel->setEnabled(mode == EditMode::Layers);
  fill();
}
