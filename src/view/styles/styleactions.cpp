#include "configure/plotsettingsfile.h"
#include "styles/builtinstyles.h"
#include "styles/rampswatch.h"
#include "styles/styledialog.h"
#include "styles/stylehistory.h"
#include "styles/stylestore.h"

#include <base/agrees.h>
#include <base/nivramsg.h>
#include <view/netplot.h>
#include <view/styleactions.h>

#include <QAction>
#include <QInputDialog>
#include <QMenu>

namespace {

QString menuText(QString text) {
  return text.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

PlotSettings overlaid(const StyleStore::Style &style, const PlotSettings &settings, const Told &told = {}) {
  PlotSettings changed = settings;
  PlotSettingsFile::readText(style.settings, style.name, changed, told, PlotSettingsFile::Missing::Kept);
  return changed;
}

} // namespace

StyleActions::StyleActions(NetPlot &plot, OfNetwork ofNetwork)
    : m_plot(plot)
    , m_ofNetwork(std::move(ofNetwork))
    , m_store(std::make_unique<StyleStore>())
    , m_history(std::make_unique<StyleHistory>(plot))
    , m_menu(std::make_unique<QMenu>(tr("Style")))
    , m_undo(addAction(tr("Undo Style Change"), QKeySequence(Qt::CTRL + Qt::Key_Z), &StyleActions::undo))
    , m_redo(addAction(tr("Redo Style Change"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_Z), &StyleActions::redo))
    , m_saveAs(addAction(tr("Save Style As …"), QKeySequence(), &StyleActions::saveAs))
    , m_manage(addAction(tr("Manage Styles …"), QKeySequence(), &StyleActions::manage)) {
  m_saveAs->setToolTip(tr("Keep how the network is drawn as a style, under a name"));
  m_manage->setToolTip(tr("Rename, delete, import and export styles of your own"));
  m_menu->setToolTipsVisible(true);
  m_menu->setToolTip(tr("What the drawing shows: a style of the program or one of your own"));
  connect(m_menu.get(), &QMenu::aboutToShow, this, &StyleActions::fill);
  connect(m_history.get(), &StyleHistory::changed, this, &StyleActions::refresh);
  connect(m_history.get(), &StyleHistory::drawn, this, &StyleActions::changed);
  connect(&m_plot, &NetPlot::legendSettingsChosen, this, &StyleActions::record);
  refresh();
}

StyleActions::~StyleActions() = default;

QAction *StyleActions::addAction(const QString &text, const QKeySequence &key, void (StyleActions::*done)()) {
  auto *action = new QAction(text, this);
  action->setShortcut(key);
  connect(action, &QAction::triggered, this, done);
  m_plot.addAction(action); // so that the key holds wherever the drawing is
  return action;
}

QString StyleActions::inUse() const {
  return m_history->styleName();
}

QIcon StyleActions::swatch() const {
  return RampSwatch::icon(m_plot.settings());
}

void StyleActions::fill() {
  m_menu->clear();
  if (m_plot.update().netData() == nullptr)
    return;
  addBuiltIns();
  m_menu->addSeparator();
  addOwn();
  m_menu->addActions({m_saveAs, m_manage});
}

QAction *StyleActions::addStyle(const QString &title, const QIcon &icon, const QString &name) {
  QAction *entry = m_menu->addAction(icon, menuText(title), this, [this, name] { choose(name); });
  entry->setCheckable(true);
  entry->setChecked(name == inUse());
  return entry;
}

void StyleActions::addBuiltIns() {
  const NetData &net = *m_plot.update().netData();
  for (const BuiltInStyles::Style &style : BuiltInStyles::all()) {
    const QString title = BuiltInStyles::titleOf(style);
    const auto drawn = BuiltInStyles::laidOver(m_plot.appliedSettings(), style, net, m_ofNetwork());
    if (drawn) {
      const QString shown = DrawFunction::find(drawn->functions[Aspect::EdgeColor].name, net).title;
      addStyle(title, RampSwatch::icon(*drawn), title)->setToolTip(tr("Shows %1").arg(shown.toHtmlEscaped()));
      continue;
    }
    QAction *greyed = addStyle(tr("%1 (no values)").arg(title), QIcon(), title);
    greyed->setEnabled(false);
    greyed->setToolTip(BuiltInStyles::reasonAgainst(style).toHtmlEscaped());
  }
}

void StyleActions::addOwn() {
  const std::vector<StyleStore::Style> &styles = m_store->all();
  for (const StyleStore::Style &style : styles)
    addStyle(style.name, RampSwatch::icon(overlaid(style, m_plot.appliedSettings())), style.name)
        ->setToolTip(tr("A style of your own"));
  if (!m_store->fault().isEmpty())
    m_menu->addAction(tr("Your styles cannot be read"), this,
                      [this] { NivraMsg::message(NivraMsg::Kind::Warning, m_store->fault()); });
  if (!styles.empty())
    m_menu->addSeparator();
}

bool StyleActions::use(const QString &name, QString *reason) {
  const NetData *net = m_plot.update().netData();
  if (net == nullptr) {
    *reason = tr("There is no network to draw.");
    return false;
  }
  DrawnStyle style = m_plot.appliedStyle();
  QString title;
  if (const BuiltInStyles::Style *builtIn = BuiltInStyles::find(name)) {
    const auto drawn = BuiltInStyles::laidOver(style.settings, *builtIn, *net, m_ofNetwork());
    if (!drawn) {
      *reason = BuiltInStyles::reasonAgainst(*builtIn);
      return false;
    }
    style.settings = *drawn;
    title = BuiltInStyles::titleOf(*builtIn);
  } else if (const StyleStore::Style *own = m_store->find(name)) {
    style.settings = overlaid(*own, style.settings, m_plot.told());
    title = own->name;
  } else {
    *reason = m_store->fault();
    if (reason->isEmpty())
      *reason = tr("There is no style \"%1\".").arg(name);
    return false;
  }
  m_plot.setStyle(style);
  m_history->record(title);
  return true;
}

void StyleActions::layOver(const QByteArray &settings, const QString &path) {
  DrawnStyle style = m_plot.appliedStyle();
  PlotSettingsFile::readText(settings, path, style.settings, m_plot.told(), PlotSettingsFile::Missing::Kept);
  m_plot.setStyle(style);
  record();
}

void StyleActions::choose(const QString &name) {
  QString reason;
  if (!use(name, &reason))
    NivraMsg::message(NivraMsg::Kind::Warning, reason);
  else
    emit changed();
}

void StyleActions::saveAs() {
  bool isAccepted = false;
  const QString name = QInputDialog::getText(&m_plot, tr("Save Style As"), tr("Name of the style:"), QLineEdit::Normal,
                                             m_store->find(inUse()) == nullptr ? QString() : inUse(), &isAccepted)
                           .trimmed();
  if (!isAccepted)
    return;
  if (m_store->find(name) != nullptr && !NivraMsg::agrees(tr("There is a style \"%1\" already. Replace it?").arg(name)))
    return;
  QString reason;
  const auto text = PlotSettingsFile::styleText(m_plot.settings(), &reason); // what is seen, a preview too
  if (!text || !m_store->put({name, *text}, &reason))
    NivraMsg::message(NivraMsg::Kind::Warning, reason);
  else
    m_history->record(name);
}

void StyleActions::manage() {
  StyleDialog dialog(*m_store, &m_plot);
  connect(&dialog, &StyleDialog::renamed, m_history.get(), &StyleHistory::rename);
  connect(&dialog, &StyleDialog::useWanted, this, &StyleActions::choose);
  dialog.exec();
}

void StyleActions::undo() {
  m_history->undo();
}

void StyleActions::redo() {
  m_history->redo();
}

void StyleActions::record() {
  m_history->record();
}

void StyleActions::reset() {
  m_history->reset();
}

void StyleActions::hold() {
  m_history->hold();
}

void StyleActions::release() {
  m_history->release();
}

void StyleActions::nameBeginning(const QString &style) {
  m_history->nameBeginning(style);
}

void StyleActions::refresh() {
  const auto show = [](QAction &action, const QString &plain, bool can, const QString &text) {
    action.setEnabled(can);
    action.setText(can ? plain + QStringLiteral(": ") + menuText(text) : plain);
    action.setToolTip(plain);
  };
  show(*m_undo, tr("Undo Style Change"), m_history->canUndo(), m_history->undoText());
  show(*m_redo, tr("Redo Style Change"), m_history->canRedo(), m_history->redoText());
  emit inUseChanged();
}
