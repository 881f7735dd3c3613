#include "properties/propertylist.h"
#include "shared/numberdelegate.h"
#include "ui_nivrapropviewer.h"

#include <model/elementtypes.h>
#include <tools/nivrapropviewer.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QHeaderView>
#include <QMap>

namespace {

enum Column { PropertyColumn, ValueColumn, UnitColumn };

} // namespace

NivraPropViewer::NivraPropViewer(const NetData &net, QWidget *parent)
    : QDockWidget(parent)
    , m_ui(std::make_unique<Ui::NivraPropViewer>())
    , m_net(net) {
  m_ui->setupUi(this);
  m_ui->treeWidget->setHeaderLabels({QStringLiteral("prop"), QStringLiteral("value"), QStringLiteral("unit")});
  m_ui->treeWidget->setItemDelegate(new NumberDelegate(PropertyColumn, this));
  m_ui->treeWidget->addActions({m_ui->actionCopy, m_ui->actionOpenCharacteristics});
  m_ui->actionOpenCharacteristics->setVisible(false);
  connect(m_ui->actionOpenCharacteristics, &QAction::triggered, this,
          [this] { emit characteristicsWanted({m_elementName}); });
  m_hasFrameTitle = true;
}

NivraPropViewer::~NivraPropViewer() = default;

void NivraPropViewer::showCurrentEleContents(const element *ele) {
  if (!m_isActive)
    return;
  QTreeWidget *tree = m_ui->treeWidget;
  tree->clear();
  m_ui->actionOpenCharacteristics->setVisible(ele != nullptr &&
                                              ElementTypes::hasCharacteristics(ele->value(QStringLiteral("type"))));
  if (ele == nullptr) {
    m_elementName.clear();
    setWindowTitle(tr("Property Viewer (Hover Over Element First!)"));
    return;
  }
  m_elementName = ele->value(QStringLiteral("name"));
  setWindowTitle(tr("Properties of ") + m_elementName + tr(" of type ") + ele->value(QStringLiteral("type")));
  for (const PropertyList::Group &group : PropertyList(*m_net.metaData(), m_showsHidden).of(*ele)) {
    auto *parent = new QTreeWidgetItem(tree, {group.name});
    QFont bold = parent->font(PropertyColumn);
    bold.setWeight(QFont::Bold);
    parent->setFont(PropertyColumn, bold);
    for (const PropertyList::Row &row : group.rows) {
      auto *item = new QTreeWidgetItem(parent, {row.property, row.value, row.unit});
      if (row.isLong)
        item->setSizeHint(ValueColumn, QSize(tree->header()->sectionSizeHint(ValueColumn), 0));
    }
  }
  tree->expandAll();
  for (const int column : {PropertyColumn, ValueColumn, UnitColumn})
    tree->resizeColumnToContents(column);
  on_lineEdit_filter_textChanged(m_ui->lineEdit_filter->text());
}

void NivraPropViewer::on_lineEdit_filter_textChanged(const QString &text) {
  for (int i = 0; i < m_ui->treeWidget->topLevelItemCount(); ++i) {
    QTreeWidgetItem *group = m_ui->treeWidget->topLevelItem(i);
    for (int k = 0; k < group->childCount(); ++k) {
      QTreeWidgetItem *row = group->child(k);
      row->setHidden(!row->text(PropertyColumn).contains(text, Qt::CaseInsensitive) &&
                     !row->text(ValueColumn).contains(text, Qt::CaseInsensitive));
    }
  }
}

void NivraPropViewer::on_actionCopy_triggered() {
  struct Part {
    QString text;
    const QTreeWidgetItem *row = nullptr;
  };
  QMap<QString, Part> groups; // by name
  for (const QModelIndex &cell : m_ui->treeWidget->selectionModel()->selectedIndexes()) {
    if (!cell.parent().isValid())
      continue;
    const QTreeWidgetItem *group = m_ui->treeWidget->topLevelItem(cell.parent().row());
    const QTreeWidgetItem *row = group->child(cell.row());
    Part &part = groups[group->text(PropertyColumn)];
    if (part.row != nullptr)
      part.text += part.row == row ? QLatin1Char('\t') : QLatin1Char('\n');
    part.text += row->text(cell.column());
    part.row = row;
  }
  QString text;
  for (const Part &part : qAsConst(groups))
    text += part.text + QLatin1Char('\n');
  QApplication::clipboard()->setText(text);
}

void NivraPropViewer::changeEvent(QEvent *event) {
  if (event->type() == QEvent::WindowTitleChange && m_hasFrameTitle)
    m_ui->labelTitle->setText(windowTitle()); // and not into the dock's frame, as its own handler would
  else
    QDockWidget::changeEvent(event);
}
