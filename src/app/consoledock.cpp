#include <base/nivramsg.h>

#include <QTextBrowser>

#include <app/consoledock.h>

ConsoleDock::ConsoleDock(QWidget *parent)
    : QDockWidget(tr("Messages"), parent)
    , m_text(new QTextBrowser(this)) {
  setObjectName(QStringLiteral("consoleDock")); // by this name the window keeps its place
  constexpr int KeptLines = 10000;
  m_text->document()->setMaximumBlockCount(KeptLines);
  m_text->setPlaceholderText(tr("Messages of the program appear here."));
  m_text->setOpenExternalLinks(true);
  setWidget(m_text);
  // Messages come from any thread; the queue brings them to this one.
  connect(&NivraMsg::NivraLogger::instance(), &NivraMsg::NivraLogger::msgConsole, this, &ConsoleDock::append);
}

void ConsoleDock::append(const QString &text) {
  m_text->append(text);
}
