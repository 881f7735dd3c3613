#include "why/whydock.h"

#include "networkloader.h"
#include "svgicon.h"
#include "why/filesearch.h"
#include "why/reasonmodel.h"

#include <tools/elidedlabel.h>
#include <tools/tablemenu.h>

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

WhyDock::WhyDock(const NetData &net, const NetworkLoader &loader, QWidget *parent)
    : QDockWidget(tr("Why This Value"), parent)
    , m_net(net)
    , m_loader(loader)
    , m_reasons(net, loader)
    , m_model(new ReasonModel(this))
    , m_search(new FileSearch(this)) {
  setWidget(makeContents());
  connect(m_search, &FileSearch::found, this, [this](const auto &places) { show(&places); });
  connect(m_tree, &QTreeView::activated, this, &WhyDock::follow);
  clear();
}

WhyDock::~WhyDock() = default;

QWidget *WhyDock::makeContents() {
  auto *contents = new QWidget;
  auto *column = new QVBoxLayout(contents);
  auto *line = new QHBoxLayout;
  m_title = new ElidedLabel;
  m_title->setTextFormat(Qt::PlainText); // names are a workspace's
  m_tree = new QTreeView;
  m_back = new QToolButton;
  auto *back = new QAction(svgIcon(QStringLiteral("back")), tr("Back to the question before"), this);
  back->setShortcut(QKeySequence::Back);
  back->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  contents->addAction(back);
  connect(back, &QAction::triggered, this, &WhyDock::goBack);
  m_back->setDefaultAction(back);
  m_back->setAutoRaise(true);
  line->addWidget(m_back);
  line->addWidget(m_title, 1);
  column->addLayout(line);
  column->addWidget(m_tree, 1);
  m_tree->setModel(m_model);
  m_tree->setAccessibleName(tr("Reasons of the value"));
  m_tree->setUniformRowHeights(true);
  m_tree->setAlternatingRowColors(true);
  m_tree->header()->setStretchLastSection(true);
  TableMenu::offerCopy(*m_tree);
  contents->setFocusProxy(m_tree);
  return contents;
}

void WhyDock::ask(const QString &element, const QString &property) {
  const Question question(element, property);
  if (!m_now.first.isEmpty() && m_now != question)
    m_before.push_back(m_now);
  QDockWidget::show();
  raise();
  explain(question);
}

void WhyDock::goBack() {
  if (m_before.empty())
    return;
  const Question question = m_before.back();
  m_before.pop_back();
  explain(question);
  emit elementAsked(question.first);
}

void WhyDock::follow(const QModelIndex &line) {
  if (!ReasonModel::leadsOn(line))
    return;
  const QString element = line.data(ReasonModel::ElementRole).toString();
  const QString property = line.data(ReasonModel::PropertyRole).toString();
  const bool isOther = element.compare(m_now.first, Qt::CaseInsensitive) != 0;
  ask(element, property);
  if (isOther)
    emit elementAsked(element);
}

void WhyDock::explain(const Question &question) {
  m_now = question;
  m_back->defaultAction()->setEnabled(!m_before.empty());
  show(nullptr);
  if (m_net.element(question.first) == nullptr)
    return;
  QStringList files;
  for (const auto &[path, stamp] : m_loader.files())
    files.append(path);
  m_search->start(ValueSource::networkFiles(files), question.first, question.second);
}

/// \param places null while the files are searched
void WhyDock::show(const std::vector<ValueSource::Place> *places) {
  const element *e = m_net.element(m_now.first);
  const PropertyKey property = PropertyKey::find(m_now.second);
  if (e == nullptr || property.isNull()) {
    clear();
    return;
  }
  m_title->setText(m_reasons.title(*e, property));
  std::vector<Reason> reasons = m_reasons.known(*e, property);
  Reason searching;
  searching.text = tr("Looking into the files …");
  const std::vector<Reason> ofFiles =
      places == nullptr ? std::vector<Reason>{searching} : m_reasons.ofFiles(*e, property, *places);
  reasons.insert(reasons.end(), ofFiles.begin(), ofFiles.end());
  m_model->show(reasons);
  m_tree->expandAll();
  m_tree->setCurrentIndex(m_model->index(0, 0));
  for (const int column : {ReasonModel::TextColumn, ReasonModel::ValueColumn})
    m_tree->resizeColumnToContents(column);
}

void WhyDock::pause() {
  m_search->cancel();
}

void WhyDock::refresh() {
  if (!m_now.first.isEmpty())
    explain(m_now);
}

void WhyDock::clear() {
  m_search->cancel();
  m_before.clear();
  m_now = Question();
  m_back->defaultAction()->setEnabled(false);
  m_model->show({});
  m_title->setText(tr("Ask for \"Why This Value\" in the menu of a value in the property viewer."));
}
