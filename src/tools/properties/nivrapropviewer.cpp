#include "properties/propertyfilter.h"
#include "properties/propertylist.h"
#include "properties/propertymodel.h"
#include "shared/numberdelegate.h"
#include "ui_nivrapropviewer.h"

#include <model/elementtypes.h>
#include <model/names.h>
#include <tools/nivrapropviewer.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QMap>

NivraPropViewer::NivraPropViewer(const NetData &net, QWidget *parent)
    : QDockWidget(parent)
    , m_ui(std::make_unique<Ui::NivraPropViewer>())
    , m_net(net)
    , m_properties(new PropertyModel(this))
    , m_shown(new PropertyFilter(this)) {
  m_ui->setupUi(this);
  m_shown->setSourceModel(m_properties);
  m_ui->tree->setModel(m_shown);
  m_ui->tree->setItemDelegate(new NumberDelegate(PropertyModel::PropertyColumn, this));
  m_ui->tree->addActions({m_ui->actionWhy, m_ui->actionCopy, m_ui->actionOpenCharacteristics});
  m_ui->actionWhy->setVisible(false);
  connect(m_ui->actionWhy, &QAction::triggered, this, &NivraPropViewer::askWhy);
  m_ui->actionOpenCharacteristics->setVisible(false);
  connect(m_ui->actionOpenCharacteristics, &QAction::triggered, this,
          [this] { emit characteristicsWanted({m_elementName}); });
  m_hasFrameTitle = true;
}

NivraPropViewer::~NivraPropViewer() = default;

void NivraPropViewer::showCurrentEleContents(const element *ele) {
  if (!m_isActive)
    return;
  m_ui->actionOpenCharacteristics->setVisible(ele != nullptr &&
                                              ElementTypes::hasCharacteristics(ele->value(Names::all().type)));
  if (ele == nullptr) {
    m_elementName.clear();
    m_properties->set({});
    setWindowTitle(tr("Property Viewer (Hover Over Element First!)"));
    return;
  }
  m_elementName = ele->value(Names::all().name);
  setWindowTitle(tr("Properties of ") + m_elementName + tr(" of type ") + ele->value(Names::all().type));
  m_properties->set(PropertyList(*m_net.metaData(), m_showsHidden).of(*ele));
  for (int group = 0; group < m_shown->rowCount(); ++group)
    m_ui->tree->expand(m_shown->index(group, PropertyModel::PropertyColumn));
  for (const int column : {PropertyModel::PropertyColumn, PropertyModel::ValueColumn, PropertyModel::UnitColumn})
    m_ui->tree->resizeColumnToContents(column);
}

void NivraPropViewer::setExplains(bool explains) {
  m_ui->actionWhy->setVisible(explains);
}

void NivraPropViewer::askWhy() {
  const QModelIndex row = m_ui->tree->currentIndex();
  if (row.parent().isValid() && !m_elementName.isEmpty())
    emit whyWanted(m_elementName, row.sibling(row.row(), PropertyModel::PropertyColumn).data().toString());
}

void NivraPropViewer::on_lineEdit_filter_textChanged(const QString &text) {
  m_shown->setText(text);
}

void NivraPropViewer::on_actionCopy_triggered() {
  struct Part {
    QString text;
    int row = -1; ///< of the cell before
  };
  QMap<QString, Part> groups; // by name
  for (const QModelIndex &cell : m_ui->tree->selectionModel()->selectedIndexes()) {
    if (!cell.parent().isValid())
      continue;
    Part &part = groups[cell.parent().data().toString()];
    if (part.row >= 0)
      part.text += part.row == cell.row() ? QLatin1Char('\t') : QLatin1Char('\n');
    part.text += cell.data().toString();
    part.row = cell.row();
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
