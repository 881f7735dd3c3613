#include "configure/breaktexts.h"
#include "configure/classdialog.h"
#include "configure/functionspage.h"
#include "configure/labeltableeditor.h"
#include "configure/plotfields.h"
#include "configure/plotsettingsfile.h"
#include "configure/settingfields.h"
#include "configure/stylepreview.h"
#include "interaction/plotzoom.h"
#include "ui_viewfuncdialog.h"

#include <base/agrees.h>
#include <base/nivramsg.h>
#include <model/displayformat.h>
#include <view/netplot.h>
#include <view/viewfuncdialog.h>

#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QHideEvent>
#include <QScrollBar>
#include <QTabBar>
#include <QToolButton>

#include <algorithm>

namespace {

bool agreesToOverwrite(const QString &path) {
  return NivraMsg::agrees(
      viewFuncDialog::tr("%1 was changed by another program or window since it was read. Overwrite?").arg(path));
}

} // namespace

viewFuncDialog::viewFuncDialog(NetPlot &plot, QWidget *parent)
    : QWidget(parent)
    , m_plot(plot)
    , m_ui(std::make_unique<Ui::viewFuncDialog>())
    , m_fields(std::make_unique<SettingFields>()) {
  m_ui->setupUi(this);
  m_functions = new FunctionsPage(plot.update(), plot.settings(), this);
  m_ui->functionsBox->insertWidget(0, m_functions);
  m_labels = new LabelTableEditor(*m_ui->labelTable);
  PlotFields::fillChoices(*m_ui);
  PlotFields::bind(*m_ui, *m_fields);
  bindBreaks();
  bindClassLooks();
  m_functions->offerFunctions();
  refresh();
  limitWidth();
  setUpPreview();
  connect(&m_plot, &NetPlot::settingsChanged, this, &viewFuncDialog::followPlot);
  connect(m_functions, &FunctionsPage::edgeColorsChosen, this, [this] { // classes of one's own are of the function before
    if (m_ui->classMethod->currentData() == PlotSettings::ownClasses())
      m_ui->classMethod->setCurrentIndex(0);
  });
}

viewFuncDialog::~viewFuncDialog() = default;

void viewFuncDialog::setUpPreview() {
  m_preview = new StylePreview(m_plot, *this, [this] { return typed(); });
  m_preview->setParent(this);
  m_preview->watch(*m_ui->tabs);
  const QAbstractItemModel *labels = m_ui->labelTable->model();
  connect(labels, &QAbstractItemModel::dataChanged, m_preview, &StylePreview::touch);
  connect(labels, &QAbstractItemModel::rowsInserted, m_preview, &StylePreview::touch);
  connect(labels, &QAbstractItemModel::rowsRemoved, m_preview, &StylePreview::touch);
}

void viewFuncDialog::setStyleMenu(QMenu *menu) {
  auto *chooser = new QToolButton(this);
  chooser->setObjectName(QStringLiteral("styles"));
  chooser->setText(tr("Style"));
  chooser->setToolTip(tr("Draw in a style of the program or one of your own"));
  chooser->setPopupMode(QToolButton::InstantPopup);
  chooser->setFocusPolicy(Qt::TabFocus);
  chooser->setMenu(menu);
  m_ui->verticalLayout->insertWidget(0, chooser);
}

/// Neither the tabs nor the pages, which could be scrolled, are cut by a narrow dock.
void viewFuncDialog::limitWidth() {
  constexpr int TabFrame = 8; // px
  m_ui->tabs->setMinimumWidth(m_ui->tabs->tabBar()->sizeHint().width() + TabFrame);
  for (QScrollArea *page : m_ui->tabs->findChildren<QScrollArea *>())
    page->setMinimumWidth(page->widget()->minimumSizeHint().width() + page->verticalScrollBar()->sizeHint().width());
}

void viewFuncDialog::showEvent(QShowEvent *event) {
  m_functions->offerFunctions(); // formulas may have computed more since
  offerSavedSettings();
  QWidget::showEvent(event);
  m_preview->touch(); // of what was typed before it was closed
}

/// Closed, what is not applied shows no more; it stays typed.
void viewFuncDialog::hideEvent(QHideEvent *event) {
  if (!event->spontaneous())
    m_preview->end();
  QWidget::hideEvent(event);
}

void viewFuncDialog::bindBreaks() {
  m_fields->bind<QString>(
      &PlotSettings::classBreaks, [this](const PlotSettings &settings) { showBreaks(settings.classBreaks); },
      [this] {
        const DrawFunction chosen = m_functions->chosen(Aspect::EdgeColor).value_or(DrawFunction());
        return BreakTexts::inTable(m_ui->classBreaks->text().trimmed(),
                                   chosen.property == m_breakFunction.property ? m_breakFunction : chosen, m_breakSign);
      });
}

void viewFuncDialog::bindClassLooks() {
  using S = PlotSettings;
  m_fields->bind<QString>(
      &S::classColors, [this](const S &s) { m_classColors = s.classColors; }, [this] { return m_classColors; });
  m_fields->bind<QString>(
      &S::classLabels, [this](const S &s) { m_classLabels = s.classLabels; }, [this] { return m_classLabels; });
}

void viewFuncDialog::on_editClasses_clicked() {
  const NetData *net = m_plot.update().netData();
  DrawnStyle style = m_plot.appliedStyle();
  if (net == nullptr || !m_functions->readTouched(style.settings))
    return;
  m_fields->readTouched(style.settings);
  const PlotSettings::Function &function = style.settings.functions[Aspect::EdgeColor];
  ClassDialog dialog(style.settings,
                     DrawValues::readOne(*net, m_plot.update().geometry(), style.settings, Aspect::EdgeColor, function.name),
                     this);
  if (dialog.exec() != QDialog::Accepted)
    return;
  const PlotSettings chosen = dialog.settings();
  m_classColors = chosen.classColors;
  m_classLabels = chosen.classLabels;
  m_ui->classMethod->setCurrentIndex(
      std::max(0, m_ui->classMethod->findData(chosen.colorClasses > 1 ? chosen.classMethod : QString())));
  m_ui->colorClasses->setValue(std::max(2, chosen.colorClasses));
  showBreaks(chosen.classBreaks);
  m_preview->touch();
}

void viewFuncDialog::showBreaks(const QString &inTable) {
  m_breakFunction = m_functions->chosen(Aspect::EdgeColor).value_or(DrawFunction());
  m_breakSign = DisplayFormat::decimalSign();
  m_ui->classBreaks->setText(BreakTexts::shown(inTable, m_breakFunction));
}

void viewFuncDialog::changeUnits() {
  const QString breaks = BreakTexts::inTable(m_ui->classBreaks->text().trimmed(), m_breakFunction, m_breakSign);
  m_functions->changeUnits(m_plot.appliedSettings());
  showBreaks(breaks);
}

void viewFuncDialog::setFiles(const QString &labelTable, const LabelTableFile::Reading &read, const QString &plotSettings,
                              const FileStamp &settingsRead) {
  m_labelTablePath = labelTable;
  m_labelsRead = read;
  m_plotSettingsPath = plotSettings;
  m_settingsRead = settingsRead;
  offerSavedSettings();
}

void viewFuncDialog::offerSavedSettings() {
  m_ui->savedSettings->setEnabled(QFileInfo::exists(m_plotSettingsPath) || QFileInfo::exists(m_labelTablePath));
}

void viewFuncDialog::refresh() {
  const DrawnStyle style = m_plot.appliedStyle();
  m_functions->showFunctions(style.settings);
  m_fields->show(style.settings);
  m_labels->setTable(style.labels);
  m_labelsShown = m_labels->table();
  offerSavedSettings();
}

void viewFuncDialog::refreshUntouched() {
  if (!m_functions->isTouched())
    m_functions->showFunctions(m_plot.appliedSettings());
  followPlot();
  if (m_labels->table() == m_labelsShown) {
    m_labels->setTable(m_plot.appliedStyle().labels);
    m_labelsShown = m_labels->table();
  }
  offerSavedSettings();
}

bool viewFuncDialog::isAnyFieldTouched() const {
  PlotSettings settings = m_plot.appliedSettings();
  m_fields->readTouched(settings);
  return settings != m_plot.appliedSettings();
}

bool viewFuncDialog::hasUnapplied() const {
  return isAnyFieldTouched() || m_functions->isTouched() || m_labels->table() != m_labelsShown;
}

/// What was chosen in the drawing is shown here too, unless that would lose what was touched here.
void viewFuncDialog::followPlot() {
  if (isNetworkShown()) // while one is read there is nothing to follow
    m_functions->followFunctions(m_plot.appliedSettings());
  if (!isAnyFieldTouched())
    m_fields->show(m_plot.appliedSettings());
}

bool viewFuncDialog::isNetworkShown() const {
  const NetData *net = m_plot.update().netData();
  return net != nullptr && !net->isEmpty();
}

/// What is typed as a preview takes it, without a question.
std::optional<DrawnStyle> viewFuncDialog::typed() const {
  DrawnStyle style = m_plot.appliedStyle();
  if (!m_functions->readSound(style.settings))
    return std::nullopt;
  m_fields->readTouched(style.settings);
  style.labels = m_labels->table();
  return style;
}

bool viewFuncDialog::apply() {
  if (!isNetworkShown()) { // its functions are not there to choose from, as after a reading that was cancelled
    NivraMsg::message(NivraMsg::Kind::Information, tr("No network is shown: there is nothing to apply this to."));
    return false;
  }
  DrawnStyle style = m_plot.appliedStyle();
  const PlotSettings before = style.settings;
  if (!m_functions->readTouched(style.settings))
    return false;
  m_fields->readTouched(style.settings);
  style.labels = m_labels->table();
  for (const auto &[aspect, key] :
       {std::pair(Aspect::EdgeColor, "logScaleColor"), {Aspect::NodeColor, "logScaleNodeColor"}}) {
    const bool isLogarithmic = style.settings.functions[aspect].isLogarithmic;
    if (isLogarithmic != before.functions[aspect].isLogarithmic)
      tell(m_plot.told(), Finding::Severity::Information,
           QStringLiteral("%1 set to %2").arg(QLatin1String(key)).arg(int(isLogarithmic)));
  }
  draw(style);
  return true;
}

void viewFuncDialog::draw(const DrawnStyle &style) {
  const bool hasOtherAxes = style.settings.fixAxesRatio != m_plot.settings().fixAxesRatio;
  m_plot.setStyle(style);
  // The original ratio is that of the whole network; the aspect ratio keeps to what is seen.
  if (!hasOtherAxes && m_ui->viewport->currentIndex() == PlotFields::OriginalRatio) {
    m_plot.zoomer()->fitBase();
    m_plot.update().requestPixtest(-1);
  }
  refresh();
  emit applied();
}

void viewFuncDialog::on_cancel_clicked() {
  m_preview->end();
  refresh();
}

void viewFuncDialog::on_preview_toggled(bool isWanted) {
  m_preview->setWanted(isWanted);
}

void viewFuncDialog::on_apply_clicked() {
  apply();
}

void viewFuncDialog::on_applyAndSave_clicked() {
  QString error;
  if (!mayOverwriteSettings() || !apply())
    return;
  if (!m_plot.writePlotSettings(m_plotSettingsPath, &error)) {
    NivraMsg::message(NivraMsg::Kind::Critical, error);
    return;
  }
  m_settingsRead = FileStamp::of(m_plotSettingsPath);
  emit filesTaken(true, false);
  if (mayOverwriteLabels()) {
    if (LabelTableFile::write(m_labelTablePath, m_plot.appliedStyle().labels, &error)) {
      m_labelsRead = {true, {}, FileStamp::of(m_labelTablePath), 0};
      emit filesTaken(false, true);
    } else {
      NivraMsg::message(NivraMsg::Kind::Critical, error);
    }
  }
  offerSavedSettings();
}

bool viewFuncDialog::mayOverwriteSettings() const {
  const FileStamp present = FileStamp::of(m_plotSettingsPath);
  return !present.isOfAFile() || present == m_settingsRead || agreesToOverwrite(m_plotSettingsPath);
}

/// Whether nothing is lost by writing the label table, or the person agrees to it.
bool viewFuncDialog::mayOverwriteLabels() const {
  using namespace NivraMsg;
  const FileStamp present = FileStamp::of(m_labelTablePath);
  if (!present.isOfAFile())
    return true;
  if (m_labelsRead.stamp.isOfAFile() && !m_labelsRead.isOpened) {
    message(Kind::Critical,
            tr("%1 could not be read, so it is not overwritten. The label table is not saved.").arg(m_labelTablePath));
    return false;
  }
  if (present != m_labelsRead.stamp)
    return agreesToOverwrite(m_labelTablePath);
  return m_labelsRead.leftOut == 0 ||
         agrees(tr("%1 has rows or cells that could not be read (%2); the message log names them. They are lost when it is "
                   "overwritten. Overwrite?")
                    .arg(m_labelTablePath)
                    .arg(m_labelsRead.leftOut));
}

bool viewFuncDialog::readLabels(const QString &path, FileAccess::Source source, LabelTable &labels) {
  const LabelTableFile::Reading reading = LabelTableFile::read(path, labels, source);
  if (path == m_labelTablePath)
    m_labelsRead = reading;
  if (m_plot.told())
    std::for_each(reading.findings.begin(), reading.findings.end(), m_plot.told());
  return reading.isOpened;
}

/// As when the case was opened: what the files do not say is as in the beginning.
void viewFuncDialog::on_savedSettings_clicked() {
  DrawnStyle style = m_plot.appliedStyle();
  PlotSettings settings;
  m_settingsRead = FileStamp::of(m_plotSettingsPath);
  const bool areSettingsRead = PlotSettingsFile::read(m_plotSettingsPath, settings, m_plot.told());
  if (areSettingsRead)
    style.settings = settings;
  LabelTable labels;
  const bool areLabelsRead = readLabels(m_labelTablePath, FileAccess::Source::Workspace, labels);
  if (areLabelsRead)
    style.labels = labels;
  draw(style);
  emit filesTaken(areSettingsRead, areLabelsRead);
}

void viewFuncDialog::on_load_clicked() {
  const QString path =
      QFileDialog::getOpenFileName(this, tr("Choose File"), m_labelTablePath, tr("CSV Files (*.csv);;All Files (*)"));
  if (path.isEmpty())
    return;
  LabelTable table;
  if (readLabels(path, FileAccess::Source::Trusted, table))
    m_labels->setTable(table);
}

void viewFuncDialog::resetMinMaxColorFuncValues() {
  QElapsedTimer timer;
  timer.start();
  m_functions->forgetBounds();
  apply();
  tell(m_plot.told(), Finding::Severity::Information,
       QStringLiteral("resetMinMaxColorFuncValues finished in %1 sec.").arg(static_cast<double>(timer.elapsed()) * 1e-3));
}

void viewFuncDialog::on_addTemplate_clicked() {
  m_labels->addTemplate();
}

void viewFuncDialog::on_applyTemplate_clicked() {
  m_labels->applyTemplate();
}

void viewFuncDialog::on_deleteRow_clicked() {
  m_labels->deleteRow();
}
