#include "casereading.h"

#include "loadprogress.h"

#include <base/settings.h>
#include <base/withoutboxes.h>
#include <view/netviscontrol.h>

#include <QElapsedTimer>
#include <QInputDialog>
#include <QMainWindow>
#include <QPointer>
#include <QStatusBar>

CaseReading::CaseReading(NetworkLoader &loader, NetVisControl &control, QMainWindow &window)
    : m_loader(loader)
    , m_control(control)
    , m_window(window) {}

bool CaseReading::read() {
  LoadProgress progress(m_window.statusBar());
  m_progress = &progress;
  emit begins();
  m_control.clear();
  m_loader.readConfiguration();
  m_control.net().clear();
  NetworkLoader::ReadOptions options;
  if (Settings::AskForIncludeLists.value())
    askForIncludeLists(options);
  options.progress = [&progress](double fraction) {
    return progress.update(fraction);
  };
  options.told = [&progress](const QString &text) {
    progress.tell(text);
  };
  const bool isDone = m_loader.readNetwork(options);
  m_progress = nullptr;
  if (!isDone)
    m_control.net().clear(); // half a network would look like a whole one
  m_control.setSubnetIcons(m_loader.templateFolder());
  m_control.setCaption(m_loader.workspace().caption());
  m_control.showNetData(m_loader.workspace().filePath(QStringLiteral("plotsettings.ini")));
  emit ended();
  return isDone;
}

/// What work(progress) yields. The window is busy only where that takes long: whoever steps through scenarios keeps the
/// keyboard.
template <typename Work>
auto CaseReading::withProgress(const QString &text, const Work &work) {
  LoadProgress progress(m_window.statusBar());
  m_progress = &progress;
  progress.tell(text);
  QElapsedTimer clock;
  clock.start();
  const QPointer<QWidget> focus = m_window.focusWidget();
  bool hasTold = false;
  const auto result = work([&](double fraction) {
    if (!hasTold && clock.elapsed() >= LoadProgress::patience()) {
      hasTold = true;
      emit takesLong(); // nobody can do anything before
    }
    return progress.update(fraction);
  });
  m_progress = nullptr;
  if (hasTold) {
    emit ended();
    if (focus != nullptr)
      focus->setFocus();
  }
  return result;
}

NetworkLoader::Exchange CaseReading::exchange(const NetworkLoader &wanted) {
  return withProgress(tr("Reading the scenario …"),
                      [&](const Progress &progress) { return m_loader.exchangeScenario(wanted, progress); });
}

bool CaseReading::readApart(NetworkLoader &loader) {
  const NivraMsg::WithoutBoxes quiet;
  return withProgress(tr("Reading the scenario …"), [&](const Progress &progress) {
    loader.readConfiguration();
    NetworkLoader::ReadOptions options;
    options.progress = progress;
    return loader.readNetwork(options);
  });
}

void CaseReading::stop() {
  if (m_progress != nullptr)
    m_progress->cancel();
}

void CaseReading::askForIncludeLists(NetworkLoader::ReadOptions &options) {
  bool isAccepted = false;
  options.includeTypes =
      QInputDialog::getText(&m_window, tr("Include Types"), tr("Enter include list for types\n(regular expression):"),
                            QLineEdit::Normal, QString(), &isAccepted);
  if (isAccepted)
    options.includeProperties = QInputDialog::getText(&m_window, tr("Include Properties"),
                                                      tr("Enter include list for properties\n(regular expression):"),
                                                      QLineEdit::Normal, QString(), &isAccepted);
}
