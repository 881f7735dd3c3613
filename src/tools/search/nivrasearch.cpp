#include "search/formulamode.h"
#include "search/networksearch.h"
#include "search/searchhint.h"
#include "search/searchresults.h"
#include "search/searchtable.h"
#include "search/selectbuttons.h"
#include "shared/nameaid.h"
#include "ui_nivrasearch.h"

#include <base/lastfolder.h>
#include <base/nivramsg.h>
#include <base/wholefile.h>
#include <model/names.h>
#include <tools/nivrasearch.h>

#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QInputDialog>
#include <QMenu>
#include <QMetaMethod>
#include <QMimeData>
#include <QRegularExpression>

#include <utility>

namespace {

constexpr double SecondsPerMillisecond = 1e-3;

} // namespace

NivraSearch::NivraSearch(NetData &net, Told told, QWidget *parent)
    : QDockWidget(parent)
    , m_ui(std::make_unique<Ui::NivraSearch>())
    , m_net(net)
    , m_told(std::move(told))
    , m_lastField(nullptr)
    , m_historyMenu(new QMenu(this)) {
  Q_INIT_RESOURCE(tools); // a static library's resources are dropped by the linker unless somebody asks for them
  m_ui->setupUi(this);
  showHint(QString());
  m_results = new SearchResults(*m_ui->treeWidget_searchResults);
  m_ui->filterNotice->watch(m_results->menu());
  connect(m_results, &SearchResults::characteristicsWanted, this, &NivraSearch::characteristicsWanted);
  m_ui->toolButton_history->setMenu(m_historyMenu);
  m_ui->toolButton_history->setPopupMode(QToolButton::InstantPopup);
  connect(m_historyMenu, &QMenu::triggered, this, &NivraSearch::resetToSavedSearch);
  m_ui->pushButton_toTable->setEnabled(false);
  m_ui->pushButton_addCat->setEnabled(false);
  const auto *buttons = new SelectButtons(*m_ui->toolButton_select, *m_ui->toolButton_mode, this);
  connect(buttons, &SelectButtons::wanted, this, &NivraSearch::markSearchResults);
  m_formulaMode = new FormulaMode(*m_ui->lineEdit_searchString, *m_ui->toolButton_formulaMode, this);
  connect(m_formulaMode, &FormulaMode::ended, this, [this] {
    m_searchString = m_ui->lineEdit_searchString->text();
    clearFormulas();
  });
  m_ui->lineEdit_prop->setText(QStringLiteral("^name$"));
  NameAid::attach(*m_ui->lineEdit_name,
                  [this](const QString &beginning, int most) { return NameAid::elementNames(m_net, beginning, most); });
  NameAid::attach(*m_ui->lineEdit_prop,
                  [this](const QString &beginning, int most) { return NameAid::propertyNames(m_net, beginning, most); });
  m_lastField = m_ui->lineEdit_name;
}

NivraSearch::~NivraSearch() = default;

void NivraSearch::showHint(const QString &text) {
  m_ui->label_hint->setText(text);
  m_ui->label_hint->setVisible(!text.isEmpty());
}

void NivraSearch::clearFormulas() {
  m_formula.clear();
  m_reportedFormula.clear();
}

SearchParams NivraSearch::searchParams() const {
  return {m_name, m_searchString, m_type, m_prop, m_ui->pushButton_regex->isChecked(), m_formula};
}

QStringList NivraSearch::definition() const {
  return {m_name, m_type, m_prop, m_formula.isEmpty() ? m_searchString : m_formula};
}

void NivraSearch::defineSearch(const QStringList &searchDef, bool regex) {
  constexpr int Least = 4;
  if (searchDef.size() < Least)
    return;
  m_ui->lineEdit_name->setText(searchDef.at(0));
  m_ui->lineEdit_type->setText(searchDef.at(1));
  m_ui->lineEdit_prop->setText(searchDef.at(2));
  m_ui->lineEdit_searchString->setText(searchDef.at(3));
  m_lastField = m_ui->lineEdit_name; // nobody has edited the others
  m_ui->pushButton_regex->setChecked(regex);
  searchAnew();
}

void NivraSearch::enterLastField() {
  show();
  raise();
  m_lastField->setFocus();
  m_lastField->selectAll();
}

/// Without the formula that was entered in the dialog; one in the value field counts.
void NivraSearch::searchAnew() {
  clearFormulas();
  searchWithFormula();
}

void NivraSearch::searchWithFormula() {
  if (m_formulaMode->isOn()) {
    m_formula = m_ui->lineEdit_searchString->text().trimmed();
    m_reportedFormula = m_formula;
    m_searchString.clear();
  }
  m_results->clear();
  m_isStale = false;
  m_lastSearch = searchParams();
  QElapsedTimer timer;
  timer.start();
  NetworkSearch search(m_net, *m_lastSearch);
  tell(m_told, Finding::Severity::Debug,
       QStringLiteral("NivraSearch prep time: %1").arg(static_cast<double>(timer.elapsed()) * SecondsPerMillisecond));
  NetworkSearch::Result result = search.run();
  tell(m_told, Finding::Severity::Debug,
       QStringLiteral("Time for search: %1").arg(static_cast<double>(timer.elapsed()) * SecondsPerMillisecond));
  m_results->show(std::move(result.rows));
  tellOutcome(result.isStopped ? result.error : QString());
  if (result.isStopped)
    NivraMsg::message(NivraMsg::Kind::Warning, tr("Formula not ok! Search stopped (incomplete)!"));
  updateLastSearchesMenu();
  emit searchCompleted();
}

void NivraSearch::showCount() {
  m_ui->label_found->setText(tr("Found: %1").arg(m_results->rows().size()));
}

void NivraSearch::takeChanges(bool areResultsDrawn) {
  m_isStale = true;
  if (areResultsDrawn || isVisible())
    catchUp();
}

void NivraSearch::showEvent(QShowEvent *event) {
  catchUp();
  QDockWidget::showEvent(event);
}

void NivraSearch::catchUp() {
  if (!std::exchange(m_isStale, false) || !m_lastSearch)
    return;
  NetworkSearch::Result result = NetworkSearch(m_net, *m_lastSearch).run();
  m_results->update(std::move(result.rows));
  tellOutcome(result.isStopped ? result.error : QString());
}

void NivraSearch::tellOutcome(const QString &error) {
  showCount();
  showHint(error.isEmpty() ? SearchHint::of(m_net, *m_lastSearch, m_results->rows().size()) : error);
  if (!error.isEmpty())
    tell(m_told, Finding::Severity::Warning, error);
}

void NivraSearch::clearResults() {
  m_lastSearch.reset();
  m_results->menu().clearFilters();
  m_results->clear();
  showHint(QString());
  m_ui->label_found->setText(tr("Found:"));
}

void NivraSearch::updateSearchItems(element &changed, const QString &oldName) {
  if (!m_lastSearch)
    return;
  QElapsedTimer timer;
  timer.start();
  std::vector<SearchRow> rows;
  try {
    NetworkSearch(m_net, *m_lastSearch).search(changed, rows);
  } catch (const FormulaError &error) {
    tell(m_told, Finding::Severity::Warning, error.text());
  }
  m_results->replace(oldName.isEmpty() ? changed.value(Names::all().name) : oldName, rows);
  showCount();
  tell(m_told, Finding::Severity::Debug,
       QStringLiteral("updateSearchItem: %1").arg(static_cast<double>(timer.elapsed()) * SecondsPerMillisecond));
}

bool NivraSearch::select(const QString &elementName) {
  return m_results->select(elementName);
}

void NivraSearch::searchFrom(QLineEdit *field) {
  m_lastField = field;
  searchAnew();
}

void NivraSearch::on_pushButton_search_clicked() {
  searchAnew();
}

void NivraSearch::on_pushButton_regex_clicked() {
  searchAnew();
}

void NivraSearch::on_lineEdit_name_returnPressed() {
  searchFrom(m_ui->lineEdit_name);
}

void NivraSearch::on_lineEdit_searchString_returnPressed() {
  searchFrom(m_ui->lineEdit_searchString);
}

void NivraSearch::on_lineEdit_type_returnPressed() {
  searchFrom(m_ui->lineEdit_type);
}

void NivraSearch::on_lineEdit_prop_returnPressed() {
  searchFrom(m_ui->lineEdit_prop);
}

void NivraSearch::on_lineEdit_name_textChanged(const QString &arg1) {
  m_lastField = m_ui->lineEdit_name;
  m_name = arg1;
}

void NivraSearch::on_lineEdit_searchString_textChanged(const QString &arg1) {
  m_lastField = m_ui->lineEdit_searchString;
  m_searchString = arg1;
  m_formulaMode->setOn(arg1.contains(QStringLiteral("@ELE")));
}

void NivraSearch::on_lineEdit_type_textChanged(const QString &arg1) {
  m_lastField = m_ui->lineEdit_type;
  m_type = arg1;
}

void NivraSearch::on_lineEdit_prop_textChanged(const QString &arg1) {
  m_lastField = m_ui->lineEdit_prop;
  m_prop = arg1;
}

void NivraSearch::on_pushButton_formula_clicked() {
  bool isTaken = false;
  const QString entered = QInputDialog::getMultiLineText(this, tr("Enter formula"),
                                                         tr("Formula:") + QStringLiteral("\n\n") +
                                                             tr("Use ELE to refer to current element,\ne.g. p@ELE>0.1 !"),
                                                         m_formula, &isTaken)
                              .trimmed();
  if (!isTaken)
    return;
  m_formula = entered;
  m_reportedFormula = entered;
  if (entered.isEmpty())
    return;
  if (m_formulaMode->isOn()) {
    m_ui->lineEdit_searchString->setText(entered);
    m_formulaMode->setOn(true); // also for a formula that names no current element
  }
  searchWithFormula();
}

void NivraSearch::on_toolButton_clear_clicked() {
  for (QLineEdit *field : {m_ui->lineEdit_name, m_ui->lineEdit_type, m_ui->lineEdit_prop, m_ui->lineEdit_searchString})
    field->clear();
  m_lastField = m_ui->lineEdit_name;
}

void NivraSearch::on_pushButton_regex_toggled(bool checked) {
  m_ui->lineEdit_name->setPlaceholderText(checked ? tr("RegEx") : QString());
}

void NivraSearch::on_pushButton_save_clicked() {
  LastFolder &folder = LastFolder::ofSaving();
  const QString path =
      QFileDialog::getSaveFileName(this, tr("Choose File"), folder.with(QStringLiteral("searchresults.csv")),
                                   tr("CSV (*.csv);;TXT (*.txt);;All Files (*)"));
  if (path.isEmpty())
    return;
  folder.remember(path);
  QString reason;
  save(path, &reason);
  showHint(reason);
}

bool NivraSearch::save(const QString &path, QString *reason) const {
  SearchParams params = m_lastSearch.value_or(searchParams()); // what the rows were found by
  params.formula = m_reportedFormula;
  return WholeFile::write(
      path, FileAccess::Source::Trusted,
      [&](QIODevice &device, QString *) { return SearchTable::write(device, params, m_results->rows()); }, reason);
}

void NivraSearch::on_pushButton_addCat_clicked() {
  emit categoryWanted(definition());
}

void NivraSearch::on_pushButton_toTable_clicked() {
  emit showInTable();
}

void NivraSearch::on_pushButton_select_clicked() {
  emit markSearchResults(false, false);
}

void NivraSearch::on_pushButton_select_and_closure_clicked() {
  emit markSearchResults(true, false);
}

void NivraSearch::on_treeWidget_searchResults_itemDoubleClicked(const QModelIndex &item, int) {
  emit itemDoubleClicked(item.siblingAtColumn(SearchResultsModel::NameColumn), SearchResultsModel::NameColumn);
}

void NivraSearch::on_treeWidget_searchResults_currentItemChanged(const QModelIndex &current, const QModelIndex &previous) {
  const auto nameOf = [](const QModelIndex &item) {
    return item.isValid() ? item.data(SearchResultsModel::ElementRole).toString() : QStringLiteral("null");
  };
  tell(m_told, Finding::Severity::Debug,
       QStringLiteral("Search item changed from %1 to %2").arg(nameOf(previous), nameOf(current)));
  if (current.isValid())
    emit elementMarked(nameOf(current));
}

void NivraSearch::updateLastSearchesMenu() {
  emit definitionChanged(definition());
  SearchParams params = searchParams();
  params.formula = m_reportedFormula;
  if (!m_history.add(params))
    return;
  m_historyMenu->clear();
  for (const QString &entry : m_history.entries())
    m_historyMenu->addAction(entry);
}

void NivraSearch::resetToSavedSearch(QAction *action) {
  defineSearch(SearchHistory::parts(action->text()), false);
}

void NivraSearch::connectNotify(const QMetaMethod &signal) {
  if (signal == QMetaMethod::fromSignal(&NivraSearch::showInTable))
    m_ui->pushButton_toTable->setEnabled(true);
  else if (signal == QMetaMethod::fromSignal(&NivraSearch::categoryWanted))
    m_ui->pushButton_addCat->setEnabled(true);
}

void NivraSearch::dragEnterEvent(QDragEnterEvent *event) {
  if (event->mimeData()->hasText())
    event->acceptProposedAction();
}

void NivraSearch::dropEvent(QDropEvent *event) {
  const QObject *source = event->source();
  for (; source != nullptr; source = source->parent()) {
    if (source == this) { // from one place of the panel to another
      event->setDropAction(Qt::MoveAction);
      event->accept();
      return;
    }
  }
  event->acceptProposedAction();
  searchNames(event->mimeData()->text());
}

void NivraSearch::searchNames(const QString &names) {
  QStringList parts;
  for (const QString &name : names.split(QLatin1Char(';'), Qt::SkipEmptyParts))
    parts.append(QLatin1Char('^') + QRegularExpression::escape(name) + QLatin1Char('$'));
  if (parts.isEmpty())
    return;
  m_ui->lineEdit_name->setText(parts.join(QLatin1Char('|')));
  m_ui->pushButton_regex->setChecked(true);
  searchAnew();
}
