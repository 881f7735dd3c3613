#include "configure/labeltablemodel.h"

#include <base/index.h>
#include <drawing/stationsymbols.h>
#include <model/titles.h>

#include <QBrush>
#include <QCoreApplication>
#include <QFont>
#include <QHash>
#include <QIcon>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr int Opaque = 255;

QIcon drawnIcon(const QString &type) {
  constexpr int Side = 20; // px
  static StationSymbols symbols;
  const Index symbol = symbols.find(type);
  if (symbol == NoIndex)
    return QIcon();
  QPixmap picture(Side, Side);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  symbols.draw(painter, symbol, QPointF(Side, Side) * 0.5, Side, 0.0);
  painter.end();
  return QIcon(picture);
}

QIcon iconOf(const QString &type) {
  static QHash<QString, QIcon> icons;
  if (!icons.contains(type))
    icons.insert(type, drawnIcon(type));
  return icons.value(type);
}

QVariant brush(const QString &name, const QString &alpha = QString()) {
  QColor color(name);
  if (!color.isValid())
    return QVariant();
  bool isNumber = false;
  const int number = alpha.toInt(&isNumber);
  color.setAlpha(isNumber ? qBound(0, number, Opaque) : Opaque);
  return QBrush(color);
}

QVariant fontNamed(const QString &name) {
  QFont font;
  return !name.isEmpty() && font.fromString(name) ? font : QVariant();
}

QVariant look(const LabelRow &row, int column, int role) {
  if (role == Qt::ForegroundRole && column == LabelRow::Color)
    return brush(row[LabelRow::Color]);
  if (role == Qt::BackgroundRole && column == LabelRow::BgrColor)
    return brush(row[LabelRow::BgrColor], row[LabelRow::BgrAlpha]);
  if (role == Qt::BackgroundRole && column == LabelRow::BordColor)
    return brush(row[LabelRow::BordColor], row[LabelRow::BordAlpha]);
  if (role == Qt::FontRole && column == LabelRow::Font)
    return fontNamed(row[LabelRow::Font]);
  return QVariant();
}

/// The row of a type or a template; of a constant table too.
template <typename AnyTable>
auto &rowOf(AnyTable &table, int row) {
  const auto index = fromQt(row);
  return index < table.types.size() ? table.types.at(index) : table.templates.at(index - table.types.size());
}

/// As the file has it, in the language of the program.
QString headerTitle(int column) {
  static constexpr std::array Texts{
      QT_TRANSLATE_NOOP("LabelTableModel", "long name"),  QT_TRANSLATE_NOOP("LabelTableModel", "short"),
      QT_TRANSLATE_NOOP("LabelTableModel", "size"),       QT_TRANSLATE_NOOP("LabelTableModel", "show"),
      QT_TRANSLATE_NOOP("LabelTableModel", "contents"),   QT_TRANSLATE_NOOP("LabelTableModel", "color"),
      QT_TRANSLATE_NOOP("LabelTableModel", "bgr-color"),  QT_TRANSLATE_NOOP("LabelTableModel", "bgr-alpha"),
      QT_TRANSLATE_NOOP("LabelTableModel", "bord-color"), QT_TRANSLATE_NOOP("LabelTableModel", "bord-alpha"),
      QT_TRANSLATE_NOOP("LabelTableModel", "font")};
  return column < 0 || column >= int(Texts.size()) ? QString() : LabelTableModel::tr(Texts.at(fromQt(column)));
}

QString withoutCommas(QString contents) {
  return contents.replace(QLatin1Char(','), QStringLiteral("&#44;"));
}

} // namespace

void LabelTableModel::setTable(const LabelTable &table) {
  beginResetModel();
  m_table = table;
  for (std::vector<LabelRow> *rows : {&m_table.types, &m_table.templates}) {
    for (LabelRow &row : *rows)
      row[LabelRow::Contents] = withoutCommas(row[LabelRow::Contents]);
  }
  endResetModel();
}

bool LabelTableModel::hasDialog(int column) {
  switch (column) {
  case LabelRow::Show:
  case LabelRow::Contents:
  case LabelRow::Color:
  case LabelRow::BgrColor:
  case LabelRow::BordColor:
  case LabelRow::Font:
    return true;
  default:
    return false;
  }
}

QString LabelTableModel::titleOf(int type) const {
  const LabelRow &row = rowOf(m_table, type);
  const ElementType *known = ElementTypes::byCode(row[LabelRow::Short]);
  return known == nullptr ? row[LabelRow::LongName] : Titles::of(*known);
}

const QString &LabelTableModel::symbolCode(int row) const {
  return isTemplate(row) ? rowOf(m_table, row).icon : rowOf(m_table, row)[LabelRow::Short];
}

int LabelTableModel::addTemplate(int row) {
  LabelRow added = rowOf(m_table, row);
  added.icon = symbolCode(row);
  added[LabelRow::LongName] = tr("template %1").arg(m_table.templates.size() + 1);
  const int last = rowCount();
  beginInsertRows(QModelIndex(), last, last);
  m_table.templates.push_back(added);
  endInsertRows();
  return last;
}

void LabelTableModel::copyLook(int from, int to) {
  const LabelRow &source = rowOf(m_table, from);
  std::copy(source.cells.begin() + LabelRow::Size, source.cells.end(), rowOf(m_table, to).cells.begin() + LabelRow::Size);
  tellRow(to);
}

bool LabelTableModel::removeTemplate(int row) {
  if (!isTemplate(row))
    return false;
  beginRemoveRows(QModelIndex(), row, row);
  m_table.templates.erase(m_table.templates.begin() + (row - typeCount()));
  endRemoveRows();
  return true;
}

int LabelTableModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : toQt(m_table.types.size() + m_table.templates.size());
}

int LabelTableModel::columnCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : LabelRow::Columns;
}

Qt::ItemFlags LabelTableModel::flags(const QModelIndex &index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  if (!index.isValid() || hasDialog(index.column()))
    return flags;
  return isTemplate(index.row()) || index.column() >= LabelRow::Size ? flags | Qt::ItemIsEditable : flags;
}

QVariant LabelTableModel::data(const QModelIndex &index, int role) const {
  if (!index.isValid())
    return QVariant();
  const LabelRow &row = rowOf(m_table, index.row());
  if (role == Qt::DisplayRole && index.column() == LabelRow::LongName && !isTemplate(index.row()))
    return titleOf(index.row());
  if (role == Qt::DisplayRole || role == Qt::EditRole)
    return row[static_cast<LabelRow::Column>(index.column())];
  return look(row, index.column(), role);
}

bool LabelTableModel::setData(const QModelIndex &index, const QVariant &value, int role) {
  if (!index.isValid() || role != Qt::EditRole || !(hasDialog(index.column()) || flags(index).testFlag(Qt::ItemIsEditable)))
    return false;
  const auto column = static_cast<LabelRow::Column>(index.column());
  QString text = value.toString();
  if (const QString reason = fault(column, text); !reason.isEmpty()) {
    emit refused(reason);
    return false;
  }
  if (column == LabelRow::Contents)
    text = withoutCommas(text);
  rowOf(m_table, index.row())[column] = text;
  tellRow(index.row()); // an alpha changes the look of its colour
  return true;
}

QString LabelTableModel::fault(int column, const QString &text) {
  bool isNumber = false;
  if (text.trimmed().isEmpty())
    return QString();
  if (column == LabelRow::Size) {
    const double size = text.trimmed().toDouble(&isNumber);
    if (!isNumber || !std::isfinite(size) || size <= 0.0)
      return tr("\"%1\" is no size: it takes a number above 0, or nothing for the size that all symbols have.").arg(text);
  } else if (column == LabelRow::BgrAlpha || column == LabelRow::BordAlpha) {
    const int alpha = text.trimmed().toInt(&isNumber);
    if (!isNumber || alpha < 0 || alpha > Opaque)
      return tr("\"%1\" is no opacity: it takes a whole number from 0 to %2.").arg(text).arg(Opaque);
  }
  return QString();
}

QVariant LabelTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Horizontal)
    return role == Qt::DisplayRole ? headerTitle(section) : QAbstractTableModel::headerData(section, orientation, role);
  if (role == Qt::DecorationRole && section >= 0 && section < rowCount())
    return iconOf(symbolCode(section));
  return QVariant();
}
