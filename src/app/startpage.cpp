#include "startpage.h"

#include "recentcards.h"
#include "recentfiles.h"
#include "recentmodel.h"

#include <QAction>
#include <QHBoxLayout>
#include <QListView>
#include <QPushButton>
#include <QTextDocument>
#include <QToolTip>

namespace {

constexpr int Margin = 32;     // px, around everything
constexpr int BelowText = 20;  // px
constexpr int BetweenRows = 8; // px

} // namespace

StartPage::StartPage(QWidget *parent)
    : QLabel(parent)
    , m_layout(new QVBoxLayout(this))
    , m_open(new QPushButton(tr("&Open …"), this)) {
  m_open->hide();                          // until it has its place
  setAttribute(Qt::WA_LayoutOnEntireRect); // the margins of the contents are those of the text
  m_open->setToolTip(tr("Open a geometry or scenario file (Ctrl+O)"));
  m_open->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  connect(m_open, &QPushButton::clicked, this, &StartPage::openWanted);
}

int StartPage::textHeight() const {
  QTextDocument document;
  document.setDefaultFont(font());
  document.setHtml(text());
  return qRound(document.size().height());
}

/// The text belongs to the label, which paints it; the layout leaves room for it.
void StartPage::arrange() {
  const bool hasFiles = m_files != nullptr && !m_files->all().empty();
  while (QLayoutItem *item = m_layout->takeAt(0)) {
    if (QLayout *row = item->layout()) {
      while (QLayoutItem *inRow = row->takeAt(0))
        delete inRow;
    }
    delete item;
  }
  auto *buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(m_open);
  m_open->show();
  if (m_clear != nullptr)
    buttons->addWidget(m_clear);
  buttons->addStretch();
  for (QWidget *ofList : {static_cast<QWidget *>(m_list), static_cast<QWidget *>(m_clear)}) {
    if (ofList != nullptr)
      ofList->setVisible(hasFiles);
  }
  if (hasFiles) {
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setContentsMargins(0, Margin, 0, 0);
    m_layout->setContentsMargins(Margin, Margin + textHeight() + BelowText, Margin, Margin);
    m_layout->addLayout(buttons);
    m_layout->addSpacing(BelowText);
    m_layout->addWidget(m_list, 1);
  } else {
    const int below = BelowText + m_open->sizeHint().height();
    setAlignment(Qt::AlignCenter);
    setContentsMargins(0, 0, 0, below);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addStretch();
    m_layout->addSpacing(textHeight() + BelowText);
    m_layout->addLayout(buttons);
    m_layout->addStretch();
  }
}

void StartPage::showRecent(RecentFiles &files) {
  m_files = &files;
  files.read();
  if (!files.all().empty())
    makeList(files);
  arrange();
  if (m_list != nullptr)
    m_list->setFocus();
  connect(&files, &RecentFiles::changed, this, &StartPage::arrange);
}

void StartPage::makeList(RecentFiles &files) {
  m_list = new QListView(this);
  m_list->setObjectName(QStringLiteral("recentFiles"));
  m_list->setAccessibleName(tr("Recent files"));
  m_list->setModel(new RecentModel(files, m_list));
  m_list->setItemDelegate(new RecentCards(m_list));
  m_list->setViewMode(QListView::IconMode); // its rows wrap
  m_list->setMovement(QListView::Static);
  m_list->setResizeMode(QListView::Adjust);
  m_list->setSpacing(BetweenRows);
  m_list->setUniformItemSizes(true);
  m_list->setMouseTracking(true);
  m_list->setFrameShape(QFrame::NoFrame);
  m_list->viewport()->setAutoFillBackground(false);
  m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  m_list->setCurrentIndex(m_list->model()->index(0, 0));
  m_clear = new QPushButton(tr("&Clear List"), this);
  m_clear->setToolTip(tr("Forget the recent files; the files themselves stay"));
  m_clear->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  connect(m_clear, &QPushButton::clicked, &files, &RecentFiles::clearAsked);
  // A style may tell of one click twice; the page is hidden by then.
  connect(m_list, &QListView::clicked, this, &StartPage::open, Qt::QueuedConnection);
  connect(m_list, &QListView::activated, this, &StartPage::open, Qt::QueuedConnection);
  addActions(files);
}

void StartPage::addActions(RecentFiles &files) {
  m_list->setContextMenuPolicy(Qt::ActionsContextMenu);
  auto *open = new QAction(tr("&Open"), m_list);
  connect(open, &QAction::triggered, this, [this] { this->open(m_list->currentIndex()); });
  auto *remove = new QAction(tr("&Remove from List"), m_list);
  remove->setShortcut(QKeySequence::Delete);
  remove->setShortcutContext(Qt::WidgetShortcut);
  connect(remove, &QAction::triggered, this, [this, &files] {
    const int row = m_list->currentIndex().row();
    if (row < 0)
      return;
    files.remove(m_list->currentIndex().data(RecentModel::PathRole).toString());
    m_list->setCurrentIndex(m_list->model()->index(qMin(row, m_list->model()->rowCount() - 1), 0));
  });
  auto *missing = new QAction(tr("Remove &Missing Files"), m_list);
  connect(missing, &QAction::triggered, &files, &RecentFiles::removeMissing);
  m_list->addActions({open, remove, missing});
}

void StartPage::open(const QModelIndex &index) {
  if (!isVisible() || !index.isValid())
    return;
  if (index.data(RecentModel::IsThereRole).toBool())
    emit fileWanted(index.data(RecentModel::PathRole).toString());
  else
    QToolTip::showText(m_list->viewport()->mapToGlobal(m_list->visualRect(index).center()),
                       index.data(Qt::ToolTipRole).toString(), m_list);
}
