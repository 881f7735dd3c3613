#include "canvas/legendplace.h"
#include "configure/breaktexts.h"
#include "configure/classdialog.h"
#include "configure/colorbutton.h"
#include "configure/functionspage.h"
#include "configure/labeltableeditor.h"
#include "configure/plotsettingsfile.h"
#include "configure/settingfields.h"
#include "configure/stylepreview.h"
#include "interaction/plotzoom.h"
#include "ui_viewfuncdialog.h"

#include <base/nivramsg.h>
#include <drawing/colormap.h>
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
#include <qwt_plot.h>

#include <algorithm>
#include <array>

namespace {

enum Viewport { IndependentAxes, OriginalRatio, AspectRatio };
/// Where the colour scale is, in the order of the choices, as the numbers of the axes.
constexpr std::array<int, 3> ScaleAxes{0, QwtPlot::xTop, QwtPlot::yRight};

bool agrees(const QString &question) {
  using namespace NivraMsg;
  return NivraMsg::show({Kind::Question, question, {}, {Answer::Yes, Answer::No}, Answer::No}) == Answer::Yes;
}

bool agreesToOverwrite(const QString &path) {
  return agrees(viewFuncDialog::tr("%1 was changed by another program or window since it was read. Overwrite?").arg(path));
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
  fillChoices();
  bindScale();
  bindSizes();
  bindColors();
  m_functions->offerFunctions();
  refresh();
  limitWidth();
  setUpPreview();
  connect(&m_plot, &NetPlot::settingsChanged, this, &viewFuncDialog::followPlot);
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

void viewFuncDialog::fillChoices() {
  for (const QString &ramp : ColorRamp::names())
    m_ui->colorRamp->addItem(ColorRamp::title(ColorRamp::kindOf(ramp)), ramp);
  m_ui->classMethod->addItem(tr("none, a smooth scale"), QString());
  m_ui->classMethod->addItem(tr("equal intervals"), PlotSettings::equalClasses());
  m_ui->classMethod->addItem(tr("as many elements in each"), PlotSettings::quantileClasses());
  m_ui->classMethod->addItem(tr("natural breaks"), PlotSettings::naturalClasses());
  m_ui->classMethod->addItem(tr("breaks of your own"), PlotSettings::ownClasses());
  m_ui->colorScalePos->addItems({tr("not shown"), tr("at the top"), tr("on the right")});
  m_ui->legendPos->addItem(tr("not shown"));
  m_ui->legendCorner->addItem(tr("not shown"), QString());
  m_ui->legendCorner->addItem(tr("where it hides least"), PlotSettings::automaticCorner());
  for (int i = 0; i < LegendPlace::names().size(); ++i) {
    const QString corner = LegendPlace::title(static_cast<LegendPlace::Corner>(i));
    m_ui->legendPos->addItem(corner);
    m_ui->legendCorner->addItem(corner, LegendPlace::names().at(i));
  }
  for (const char *mode : {QT_TR_NOOP("no label"), QT_TR_NOOP("name only"), QT_TR_NOOP("selected properties")})
    m_ui->label_mode->addItem(tr(mode), QLatin1String(mode));
  m_ui->viewport->addItems({tr("independent axes"), tr("original ratio"), tr("aspect ratio")});
}

void viewFuncDialog::bindScale() {
  using S = PlotSettings;
  Ui::viewFuncDialog *ui = m_ui.get();
  m_fields->bind(*ui->colorRamp, &S::colorRamp);
  m_fields->bind(*ui->firstColor, &S::firstColor);
  m_fields->bind(*ui->lastColor, &S::lastColor);
  m_fields->bind(*ui->saturation, &S::saturation);
  m_fields->bind(*ui->lightness, &S::lightness);
  m_fields->bind(*ui->logFactor, &S::logFactor);
  bindBreaks();
  bindClassLooks();
  m_fields->bind(*ui->quantileBounds, &S::quantileBounds);
  bindLegend();
  m_fields->bind<QString>(
      &S::classMethod,
      [ui](const S &s) {
        ui->classMethod->setCurrentIndex(
            std::max(0, ui->classMethod->findData(s.colorClasses > 1 ? s.classMethod : QString())));
      },
      [ui] {
        const QString method = ui->classMethod->currentData().toString();
        return method.isEmpty() ? std::nullopt : std::make_optional(method); // without classes it stays for the next time
      });
  m_fields->bind<int>(
      &S::colorClasses,
      [ui](const S &s) {
        constexpr int FirstOffer = 5;
        ui->colorClasses->setValue(s.colorClasses > 1 ? s.colorClasses : FirstOffer);
      },
      [ui] { return ui->classMethod->currentData().toString().isEmpty() ? 0 : ui->colorClasses->value(); });
  m_fields->bind<int>(
      &S::colorScalePos,
      [ui](const S &s) {
        const auto axis = std::find(ScaleAxes.begin(), ScaleAxes.end(), s.colorScalePos);
        ui->colorScalePos->setCurrentIndex(axis == ScaleAxes.end() ? 0 : static_cast<int>(axis - ScaleAxes.begin()));
      },
      [ui] { return ScaleAxes.at(static_cast<std::size_t>(ui->colorScalePos->currentIndex())); });
  m_fields->bind<int>(
      &S::legendPos,
      [ui](const S &s) {
        const bool isCorner = s.legendPos > 0 && s.legendPos < ui->legendPos->count();
        ui->legendPos->setCurrentIndex(isCorner ? s.legendPos : 0);
      },
      [ui] { return ui->legendPos->currentIndex(); });
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

/// One field for whether the legend is shown and for where it stands.
void viewFuncDialog::bindLegend() {
  using S = PlotSettings;
  Ui::viewFuncDialog *ui = m_ui.get();
  m_fields->bind<bool>(
      &S::showsLegend,
      [ui](const S &s) {
        const int corner = ui->legendCorner->findData(s.legendCorner);
        ui->legendCorner->setCurrentIndex(!s.showsLegend ? 0 : std::max(1, corner));
      },
      [ui] { return ui->legendCorner->currentIndex() > 0; });
  m_fields->bind<QString>(
      &S::legendCorner, [](const S &) {},
      [ui] {
        const QString corner = ui->legendCorner->currentData().toString();
        return corner.isEmpty() ? std::nullopt : std::make_optional(corner); // hidden it stays for the next time
      });
}

void viewFuncDialog::bindSizes() {
  using S = PlotSettings;
  Ui::viewFuncDialog *ui = m_ui.get();
  m_fields->bind(*ui->edgeConst, &S::edgeConst);
  m_fields->bind(*ui->edgeMag, &S::edgeMag);
  m_fields->bind(*ui->nodeMag, &S::nodeMag);
  m_fields->bind(*ui->symMag, &S::symMag);
  m_fields->bind(*ui->arrowMag, &S::arrowMag);
  m_fields->bind(*ui->labelMag, &S::labelMag);
  m_fields->bind(*ui->labelMargin, &S::labelMargin);
  m_fields->bind(*ui->label_mode, &S::label_mode);
  m_fields->bind(*ui->alphaSubnet, &S::alphaSubnet);
  m_fields->bind(*ui->zoomFact, &S::zoomFact);
  m_fields->bind(*ui->showXYaxes, &S::showXYaxes);
  m_fields->bind(*ui->edgeShowFlow, &S::edgeShowFlow);
  m_fields->bind(*ui->layerProp, &S::layerProp);
  m_fields->bind<bool>(
      &S::fixAxesRatio, [ui](const S &s) { ui->viewport->setCurrentIndex(s.fixAxesRatio ? AspectRatio : IndependentAxes); },
      [ui] { return ui->viewport->currentIndex() != IndependentAxes; });
}

void viewFuncDialog::bindColors() {
  using S = PlotSettings;
  m_fields->bind(*m_ui->bgrColor, &S::bgrColor);
  m_fields->bind(*m_ui->edgeLabelsColor, &S::edgeLabelsColor);
  m_fields->bind(*m_ui->nodeLabelsColor, &S::nodeLabelsColor);
  m_fields->bind(*m_ui->edgeColorInactive, &S::edgeColorInactive);
  m_fields->bind(*m_ui->edgeColorNoFlow, &S::edgeColorNoFlow);
  m_fields->bind(*m_ui->gridMajorColor, &S::gridMajorColor);
  m_fields->bind(*m_ui->gridMinorColor, &S::gridMinorColor);
  m_fields->bind(*m_ui->showGrid, &S::showGrid);
  m_fields->bind(*m_ui->dimsRest, &S::dimsRest);
  for (const ColorButton *ofGrid : {m_ui->gridMajorColor, m_ui->gridMinorColor}) // nobody chooses a colour of what is hidden
    connect(ofGrid, &ColorButton::colorChosen, this, [this] { m_ui->showGrid->setChecked(true); });
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
  if (!hasOtherAxes && m_ui->viewport->currentIndex() == OriginalRatio) {
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
