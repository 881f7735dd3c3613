#include "styles/styledialog.h"

#include "configure/buttoncolumn.h"
#include "configure/plotsettingsfile.h"

#include <base/agrees.h>
#include <base/fileaccess.h>
#include <base/nivramsg.h>
#include <base/wholefile.h>
#include <drawing/plotsettings.h>

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QListView>

namespace {

void warn(const QString &reason) {
  NivraMsg::message(NivraMsg::Kind::Warning, reason);
}

QString filter() {
  return StyleDialog::tr("Plot settings (*.ini);;All Files (*)");
}

} // namespace

StyleDialog::StyleDialog(StyleStore &store, QWidget *parent)
    : QDialog(parent)
    , m_store(store)
    , m_model(store)
    , m_list(new QListView(this))
    , m_hint(new QLabel(this)) {
  setWindowTitle(tr("Manage Styles"));
  m_list->setModel(&m_model);
  m_list->setAccessibleName(tr("Styles of your own"));
  m_list->setEditTriggers(QAbstractItemView::EditKeyPressed);
  m_hint->setWordWrap(true);
  m_hint->setTextFormat(Qt::PlainText);
  arrange();
  connect(&m_model, &StyleListModel::refused, this, &warn);
  connect(&m_model, &StyleListModel::renamed, this, &StyleDialog::renamed);
  connect(
      &m_model, &StyleListModel::renamed, this, [this](const QString &, const QString &to) { showStyles(to); },
      Qt::QueuedConnection); // once the editor has closed
  connect(m_list, &QListView::doubleClicked, this, &StyleDialog::useStyle);
  showStyles(QString());
  connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this, &StyleDialog::showButtons);
}

void StyleDialog::arrange() {
  constexpr QSize Size(420, 320);
  auto *beside = new ButtonColumn;
  const auto add = [this, beside](const char *name, const QString &text, const QString &tip, void (StyleDialog::*press)()) {
    return beside->add(QLatin1String(name), text, tip, this, press);
  };
  QPushButton *remove = nullptr;
  m_ofOne = {add("use", tr("&Use"), tr("Draw in this style"), &StyleDialog::useStyle),
             add("rename", tr("&Rename"), tr("Another name for this style (F2)"), &StyleDialog::renameStyle),
             remove = add("remove", tr("&Delete"), tr("Delete this style (Del)"), &StyleDialog::deleteStyle),
             add("export", tr("&Export …"), tr("Write this style to a file"), &StyleDialog::exportStyle)};
  remove->setShortcut(QKeySequence(Qt::Key_Delete));
  add("import", tr("&Import …"), tr("Take styles from files of plot settings"), &StyleDialog::importStyles);
  beside->addStretch();
  auto *middle = new QHBoxLayout;
  middle->addWidget(m_list);
  middle->addLayout(beside);
  auto *close = new QDialogButtonBox(QDialogButtonBox::Close, this);
  connect(close, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto *whole = new QVBoxLayout(this);
  whole->addLayout(middle);
  whole->addWidget(m_hint);
  whole->addWidget(close);
  resize(Size);
}

QString StyleDialog::current() const {
  const QModelIndex index = m_list->currentIndex();
  return index.isValid() ? m_model.nameAt(index.row()) : QString();
}

void StyleDialog::showStyles(const QString &current) {
  m_model.refresh();
  const int row = qBound(0, m_model.rowOf(current), std::max(0, m_model.rowCount() - 1));
  m_list->setCurrentIndex(m_model.index(row));
  showButtons();
}

void StyleDialog::showButtons() {
  const bool hasCurrent = m_list->currentIndex().isValid();
  for (QPushButton *button : qAsConst(m_ofOne))
    button->setEnabled(hasCurrent);
  const QString fault = m_store.fault();
  m_hint->setText(!fault.isEmpty() ? fault
                  : m_model.rowCount() == 0
                      ? tr("There are no styles of your own yet. \"Save Style As …\" keeps how the network "
                           "is drawn, \"Import …\" takes a file.")
                      : QString());
  m_hint->setVisible(!m_hint->text().isEmpty());
}

void StyleDialog::useStyle() {
  if (!current().isEmpty())
    emit useWanted(current());
}

void StyleDialog::renameStyle() {
  m_list->setFocus();
  m_list->edit(m_list->currentIndex());
}

void StyleDialog::deleteStyle() {
  const QString name = current();
  QString reason;
  if (name.isEmpty() || !NivraMsg::agrees(tr("Delete the style \"%1\"? There is no way back.").arg(name)))
    return;
  const int row = m_list->currentIndex().row();
  if (!m_store.remove(name, &reason))
    return warn(reason);
  emit renamed(name, QString());
  m_model.refresh();
  showStyles(m_model.rowCount() == 0 ? QString() : m_model.nameAt(std::min(row, m_model.rowCount() - 1)));
}

void StyleDialog::importStyles() {
  const QStringList paths = QFileDialog::getOpenFileNames(this, tr("Import Styles"), QString(), filter());
  QString last;
  for (const QString &path : paths) {
    const QString name = QFileInfo(path).completeBaseName();
    QString reason;
    const auto text = FileAccess::readWhole(path, FileAccess::Source::Trusted, StyleStore::LargestStyle, &reason);
    PlotSettings any;
    if (text && !PlotSettingsFile::readText(*text, path, any, {}, PlotSettingsFile::Missing::Kept)) {
      warn(tr("%1 holds no plot settings.").arg(path));
      continue;
    }
    if (text && m_store.find(name) != nullptr &&
        !NivraMsg::agrees(tr("There is a style \"%1\" already. Replace it?").arg(name)))
      continue;
    if (!text || !m_store.put({name, *text}, &reason))
      warn(reason);
    else
      last = name;
  }
  if (!last.isEmpty())
    showStyles(last);
}

void StyleDialog::exportStyle() {
  const StyleStore::Style *style = m_store.find(current());
  if (style == nullptr)
    return;
  QString fileName = style->name;
  for (QChar &letter : fileName) {
    if (QStringLiteral("/\\:*?\"<>|").contains(letter))
      letter = QLatin1Char('_');
  }
  const QByteArray text = style->settings;
  QFileDialog dialog(this, tr("Export Style"), QString(), filter());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("ini"));
  dialog.selectFile(fileName + QStringLiteral(".ini"));
  const QString path = dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
  QString reason;
  if (!path.isEmpty() && !WholeFile::write(path, FileAccess::Source::Trusted, text, &reason))
    warn(reason);
}
