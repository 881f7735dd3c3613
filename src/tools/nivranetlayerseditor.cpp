#include "ui_nivranetlayerseditor.h"

#include <base/nivramsg.h>
#include <tools/nivranetlayerseditor.h>
#include <tools/tablemenu.h>

#include <QInputDialog>
#include <QMessageBox>

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
  emit layerVisChanged();
}

void NivraNetLayersEditor::on_pushButtonReload_clicked() {
  m_layers.rebuild();
  fill();
}

void NivraNetLayersEditor::fill() {
  QTableWidget *table = m_ui->tableWidget;
  const QSignalBlocker blocker(table);
  table->setSortingEnabled(false);
  table->setRowCount(m_layers.all().size());
  int row = 0;
  for (auto layer = m_layers.all().cbegin(); layer != m_layers.all().cend(); ++layer, ++row) {
    auto *visible = new QTableWidgetItem;
    visible->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
    visible->setCheckState(layer->isVisible ? Qt::Checked : Qt::Unchecked);
    auto *name = new QTableWidgetItem(layer.key());
    name->setData(LayerRole, layer.key());
    if (m_mode == EditMode::VisibilityOnly || layer.key() == Layers::newLayer())
      name->setFlags(name->flags() & ~Qt::ItemIsEditable);
    table->setItem(row, VisibleColumn, visible);
    table->setItem(row, LayerColumn, name);
    table->setItem(row, CountColumn, new CountItem(layer->names.size()));
  }
  table->setSortingEnabled(true);
  table->resizeColumnsToContents();
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
  m_ui->listWidget->addItems(m_layers.all().value(layer).names);
}

void NivraNetLayersEditor::on_tableWidget_cellChanged(int row, int column) {
  const QString layer = layerAt(row);
  if (column == VisibleColumn) {
    m_layers.setVisible(layer, m_ui->tableWidget->item(row, column)->checkState() == Qt::Checked);
    emit layerVisChanged();
    return;
  }
  const QString name = m_ui->tableWidget->item(row, column)->text();
  if (column != LayerColumn || name == layer)
    return;
  const QString question =
      tr("This will set the \"%1\" property to \"%2\" for all elements in this Layer. Existing values will "
         "be overwritten. Continue?")
          .arg(m_layers.property(), name);
  if (!Layers::isAllowed(name))
    NivraMsg::message(NivraMsg::Kind::Warning, tr("layer name contains forbidden characters! Try again!"));
  else if (confirms(tr("Rename Layer"), question)) {
    const QStringList names = m_layers.all().value(layer).names;
    m_layers.rename(layer, name);
    emit propertyChanged(names, m_layers.property());
  }
  fill();
}

bool NivraNetLayersEditor::confirms(const QString &title, const QString &question) {
  return QMessageBox::question(this, title, question) == QMessageBox::Yes;
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
    QMessageBox::warning(this, tr("layer name not allowed"), tr("layer name contains forbidden characters! Try again!"));
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
  emit propertyChanged(names, m_layers.property());
  fill();
  emit layerVisChanged();
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
  QStringList names;
  for (const QString &layer : qAsConst(chosen)) {
    names += m_layers.all().value(layer).names;
    m_layers.remove(layer);
  }
  emit propertyChanged(names, m_layers.property());
  fill();
  emit layerVisChanged();
}

void NivraNetLayersEditor::on_toolButtonShowAll_clicked() {
  m_layers.setAllVisible(true);
  fill();
  emit layerVisChanged();
}

void NivraNetLayersEditor::on_toolButtonHideAll_clicked() {
  m_layers.setAllVisible(false);
  fill();
  emit layerVisChanged();
}

void NivraNetLayersEditor::on_toolButtonInvert_clicked() {
  m_layers.invert();
  fill();
  emit layerVisChanged();
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
