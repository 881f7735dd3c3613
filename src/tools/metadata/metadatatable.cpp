#include "metadata/metadatamodel.h"

#include <tools/metadatatable.h>
#include <tools/tablemenu.h>

#include <algorithm>

MetaDataTable::MetaDataTable(const NetData &net, QWidget *parent)
    : QTreeView(parent)
    , m_net(net)
    , m_model(new MetaDataModel(this)) {
  constexpr QSize Size(800, 600);
  setWindowTitle(tr("MetaData"));
  setModel(m_model);
  setColumnWidth(MetaDataModel::ShortNameColumn, 160);
  setColumnWidth(MetaDataModel::LongNameColumn, 180);
  setColumnWidth(MetaDataModel::DescriptionColumn, 200);
  setAlternatingRowColors(true);
  resize(Size);
  setSelectionMode(ExtendedSelection);
  TableMenu::offerCopy(*this);
  fill();
}

MetaDataTable::~MetaDataTable() = default;

void MetaDataTable::fill() {
  m_model->set(*m_net.metaData());
  constexpr int Names = MetaDataModel::ShortNameColumn;
  setColumnWidth(Names, std::max(columnWidth(Names), sizeHintForColumn(Names))); // of a large font
}
