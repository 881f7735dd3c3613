#include "configure/functionchooser.h"

#include "configure/histogramdelegate.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

FunctionChooser::FunctionChooser(const QString &title, const NetUpdate &drawing, const PlotSettings &settings, Aspect aspect,
                                 QWidget *parent)
    : QDialog(parent)
    , m_model(drawing, settings, aspect)
    , m_words(new QLineEdit(this))
    , m_table(new QTableView(this)) {
  setWindowTitle(title);
  m_words->setPlaceholderText(tr("Words of the name"));
  m_words->setAccessibleName(tr("Words of the name"));
  m_words->setClearButtonEnabled(true);
  m_words->installEventFilter(this);
  m_filtered.setSourceModel(&m_model);
  m_filtered.setFilterRole(FunctionModel::WordsRole);
  m_filtered.setFilterCaseSensitivity(Qt::CaseInsensitive);
  m_table->setModel(&m_filtered);
  m_table->setAccessibleName(tr("Functions"));
  m_table->setItemDelegateForColumn(FunctionModel::Distribution, new HistogramDelegate(m_table));
  m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_table->setSelectionMode(QAbstractItemView::SingleSelection);
  m_table->setShowGrid(false);
  m_table->setTabKeyNavigation(false);
  m_table->verticalHeader()->hide();
  arrange();
  connect(m_words, &QLineEdit::textChanged, this, &FunctionChooser::filter);
  connect(m_table, &QTableView::doubleClicked, this, &QDialog::accept);
  connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this] { m_accept->setEnabled(!chosen().isEmpty()); });
}

void FunctionChooser::arrange() {
  constexpr QSize Size(520, 420);
  constexpr int OfUnit = 70; // px
  constexpr int OfCount = 70;
  constexpr int OfHistogram = 130;
  QHeaderView *header = m_table->horizontalHeader();
  header->setSectionResizeMode(FunctionModel::Name, QHeaderView::Stretch);
  header->setHighlightSections(false);
  for (const auto &[column, width] : {std::pair(FunctionModel::Unit, OfUnit),
                                      {FunctionModel::Elements, OfCount},
                                      {FunctionModel::Distribution, OfHistogram}})
    m_table->setColumnWidth(column, width);
  auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  m_accept = buttons->button(QDialogButtonBox::Ok);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto *whole = new QVBoxLayout(this);
  whole->addWidget(m_words);
  whole->addWidget(m_table);
  whole->addWidget(buttons);
  resize(Size);
}

void FunctionChooser::setFunctions(const QStringList &names, const QString &current) {
  m_model.setFunctions(names);
  const int row = m_model.rowOf(current);
  m_table->setCurrentIndex(m_filtered.mapFromSource(m_model.index(std::max(0, row), 0)));
  m_accept->setEnabled(!chosen().isEmpty());
}

QString FunctionChooser::chosen() const {
  return m_table->currentIndex().data(FunctionModel::FunctionRole).toString();
}

/// The row whose name is what was typed, else the first that begins so; -1 for none.
int FunctionChooser::bestRow(const QString &words) const {
  int beginning = -1;
  for (int row = 0; row < m_filtered.rowCount() && !words.isEmpty(); ++row) {
    const QString name = m_filtered.index(row, 0).data(FunctionModel::FunctionRole).toString();
    if (name.compare(words, Qt::CaseInsensitive) == 0)
      return row;
    if (beginning < 0 && name.startsWith(words, Qt::CaseInsensitive))
      beginning = row;
  }
  return beginning;
}

void FunctionChooser::filter(const QString &words) {
  m_filtered.setFilterFixedString(words.trimmed());
  const int best = bestRow(words.trimmed());
  if (best >= 0)
    m_table->setCurrentIndex(m_filtered.index(best, 0));
  else if (!m_table->currentIndex().isValid())
    m_table->setCurrentIndex(m_filtered.index(0, 0));
  m_accept->setEnabled(!chosen().isEmpty());
}

/// Arrows move in the list while one types.
bool FunctionChooser::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown) {
      m_table->setFocus();
      return QApplication::sendEvent(m_table, event);
    }
  }
  return QDialog::eventFilter(watched, event);
}
