#include "configure/functionmodel.h"

#include <base/index.h>
#include <drawing/netupdate.h>
#include <model/displayformat.h>

#include <QVector>

#include <algorithm>

FunctionModel::FunctionModel(const NetUpdate &drawing, const PlotSettings &settings, Aspect aspect, QObject *parent)
    : QAbstractTableModel(parent)
    , m_drawing(drawing)
    , m_settings(settings)
    , m_aspect(aspect) {
  m_work.setSingleShot(true);
  m_work.setInterval(0);
  connect(&m_work, &QTimer::timeout, this, &FunctionModel::work);
}

void FunctionModel::setFunctions(const QStringList &names) {
  const NetData *net = m_drawing.netData();
  beginResetModel();
  m_rows.clear();
  m_wanted.clear();
  for (const QString &name : names) {
    const bool isPlain = net == nullptr || name == PlotSettings::fixedSize();
    m_rows.push_back({name, isPlain ? DrawFunction() : DrawFunction::find(name, *net), {}, isPlain});
  }
  endResetModel();
}

int FunctionModel::rowOf(const QString &function) const {
  const QString property = DrawFunction::propertyName(function);
  const auto found = std::find_if(m_rows.begin(), m_rows.end(), [&property](const Row &row) {
    return DrawFunction::propertyName(row.name).compare(property, Qt::CaseInsensitive) == 0;
  });
  return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

int FunctionModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : toQt(m_rows.size());
}

int FunctionModel::columnCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

const FunctionFigures *FunctionModel::figuresOf(int row) const {
  Row &asked = m_rows[fromQt(row)];
  if (!asked.isWanted) {
    asked.isWanted = true;
    m_wanted.push_back(row);
    m_work.start();
  }
  return asked.figures ? &*asked.figures : nullptr;
}

void FunctionModel::work() {
  const NetData *net = m_drawing.netData();
  if (m_wanted.empty() || net == nullptr)
    return;
  const int row = m_wanted.front();
  m_wanted.pop_front();
  Row &asked = m_rows[fromQt(row)];
  asked.figures = FunctionFigures::of(asked.name, m_aspect, *net, m_drawing.geometry(), m_settings);
  emit dataChanged(index(row, Elements), index(row, Distribution));
  if (!m_wanted.empty())
    m_work.start();
}

/// The name, and what it means where it says little.
QString FunctionModel::textOf(const Row &row) const {
  if (row.name == PlotSettings::fixedSize())
    return tr("all of one size");
  const QString title = row.function.title.section(QStringLiteral(" ["), 0, 0);
  return title.isEmpty() || title.compare(row.name, Qt::CaseInsensitive) == 0 ? row.name
                                                                              : tr("%1 (%2)").arg(title, row.name);
}

QString FunctionModel::reachOf(const Row &row) const {
  if (!row.figures || !row.figures->range.isValid())
    return QString();
  const Units::Linear &shown = row.function.toDisplay;
  return tr("from %1 to %2")
      .arg(DisplayFormat::number(shown(row.figures->range.minValue())),
           DisplayFormat::number(shown(row.figures->range.maxValue())));
}

QVariant FunctionModel::data(const QModelIndex &index, int role) const {
  if (!index.isValid())
    return QVariant();
  const Row &row = m_rows[fromQt(index.row())];
  if (role == WordsRole)
    return QString(row.name + QLatin1Char(' ') + row.function.title);
  if (role == FunctionRole)
    return row.name;
  if (role == BinsRole || (role == Qt::DisplayRole && index.column() == Elements)) {
    const FunctionFigures *figures = figuresOf(index.row());
    if (role == BinsRole)
      return QVariant::fromValue(figures == nullptr ? QVector<int>()
                                                    : QVector<int>(figures->bins.begin(), figures->bins.end()));
    return figures == nullptr ? QString() : DisplayFormat::number(static_cast<double>(figures->count));
  }
  if (role == Qt::DisplayRole && index.column() == Name)
    return textOf(row);
  if (role == Qt::DisplayRole && index.column() == Unit)
    return Units::written(row.function.unit);
  if ((role == Qt::ToolTipRole || role == Qt::AccessibleTextRole) && index.column() == Distribution)
    return reachOf(row);
  if (role == Qt::TextAlignmentRole && index.column() == Elements)
    return int(Qt::AlignRight | Qt::AlignVCenter);
  return QVariant();
}

QVariant FunctionModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
    return QVariant();
  switch (section) {
  case Name:
    return tr("Function");
  case Unit:
    return tr("Unit");
  case Elements:
    return isOfEdges(m_aspect) ? tr("Edges") : tr("Nodes");
  default:
    return tr("Distribution");
  }
}
