#include "configure/labeltableeditor.h"
#include "interaction/plotzoom.h"
#include "ui_viewfuncdialog.h"

#include <base/nivramsg.h>
#include <model/displayformat.h>
#include <view/netplot.h>
#include <view/viewfuncdialog.h>

#include <QColorDialog>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>

#include <drawing/colormap.h>
#include <drawing/drawfunctions.h>
#include <drawing/drawrange.h>
#include <tuple>

namespace {

using S = PlotSettings;

enum Viewport { IndependentAxes, OriginalRatio, AspectRatio };
enum ScalePlace { NotShown, AtTheTop, OnTheRight };
constexpr int TopAxis = 3;
constexpr int RightAxis = 1;

void choose(QComboBox &box, const QString &data) {
  const int place = box.findData(data);
  box.setCurrentIndex(place < 0 ? 0 : place);
}

/// Takes over what was typed: a field shows fewer digits, and has narrower limits, than the setting behind it may have.
template <typename Record, typename... Fields>
void takeTouched(const Record &shown, const Record &typed, Record &settings, Fields... fields) {
  const auto takeOne = [&](auto field) {
    if (typed.*field != shown.*field)
      settings.*field = typed.*field;
  };
  (takeOne(fields), ...);
}

void takeTouched(const S &shown, const S &typed, S &settings) {
  using F = S::Function;
  for (const Aspect aspect : AllAspects)
    takeTouched(shown.functions[aspect], typed.functions[aspect], settings.functions[aspect], &F::name, &F::minimum,
                &F::maximum, &F::isAbsolute, &F::isLogarithmic, &F::typed);
  const auto take = [&](auto... fields) {
    takeTouched(shown, typed, settings, fields...);
  };
  take(&S::colorRamp, &S::firstColor, &S::lastColor, &S::saturation, &S::lightness, &S::logFactor);
  take(&S::colorClasses, &S::classBreaks, &S::colorScalePos, &S::legendPos, &S::label_mode, &S::alphaSubnet);
  take(&S::edgeConst, &S::edgeMag, &S::nodeMag, &S::symMag, &S::arrowMag, &S::labelMag, &S::labelMargin);
  take(&S::fixAxesRatio, &S::zoomFact, &S::showXYaxes, &S::showGrid, &S::edgeShowFlow, &S::layerProp);
  take(&S::bgrColor, &S::edgeLabelsColor, &S::nodeLabelsColor, &S::edgeColorInactive, &S::edgeColorNoFlow,
       &S::gridMajorColor, &S::gridMinorColor);
  if (!typed.classMethod.isEmpty()) // without classes the method stays for the next time
    take(&S::classMethod);
}

} // namespace

viewFuncDialog::viewFuncDialog(NetPlot &plot, QWidget *parent)
    : QWidget(parent)
    , m_plot(plot)
    , m_ui(std::make_unique<Ui::viewFuncDialog>()) {
  m_ui->setupUi(this);
  const PerAspect<QString> titles{{tr("Edge colour"), tr("Edge width"), tr("Node colour"), tr("Node size")}};
  for (const Aspect aspect : AllAspects) {
    const QString tip = isColor(aspect) ? tr("if checked: absolute values are used for color")
                                        : tr("if checked:  absolute values used for width");
    m_rows[aspect] = new FunctionRow(
        titles[aspect], tip, [this](const QString &function) { return unitOf(function); }, this);
    m_ui->functionsBox->insertWidget(static_cast<int>(aspect), m_rows[aspect]);
  }
  m_labels = new LabelTableEditor(*m_ui->labelTable);
  fillChoices();
  setUpColors();
  offerFunctions();
  refresh();
}

viewFuncDialog::~viewFuncDialog() = default;

/// The names that every network may have, and behind them the properties of this one.
void viewFuncDialog::offerFunctions() {
  const NetData *net = m_plot.update().netData();
  DrawFunction::OfNetwork own;
  if (net != nullptr)
    own = DrawFunction::ofNetwork(*net);
  for (const Aspect aspect : AllAspects) {
    QStringList functions = DrawFunction::fixedNames();
    if (aspect == Aspect::NodeSize)
      functions.prepend(PlotSettings::fixedSize());
    QHash<QString, QString> described;
    for (const QString &property : isOfEdges(aspect) ? own.ofEdges : own.ofNodes) {
      functions.append(property);
      const QString title = net == nullptr ? property : DrawFunction::find(property, *net).title;
      if (title != property)
        described.insert(property, title);
    }
    m_rows[aspect]->setChoices(functions, described);
  }
}

void viewFuncDialog::showEvent(QShowEvent *event) {
  offerFunctions(); // formulas may have computed more since
  offerSavedSettings();
  QWidget::showEvent(event);
}

void viewFuncDialog::fillChoices() {
  m_ui->colorRamp->addItem(tr("hues of your choice"), ColorRamp::names().at(0));
  m_ui->colorRamp->addItem(tr("viridis (even steps)"), ColorRamp::names().at(1));
  m_ui->colorRamp->addItem(tr("cividis (also for colour-blind eyes)"), ColorRamp::names().at(2));
  m_ui->colorRamp->addItem(tr("blue, grey, red about zero"), ColorRamp::names().at(3));
  m_ui->classMethod->addItem(tr("none, a smooth scale"), QString());
  m_ui->classMethod->addItem(tr("equal intervals"), PlotSettings::equalClasses());
  m_ui->classMethod->addItem(tr("as many elements in each"), PlotSettings::quantileClasses());
  m_ui->classMethod->addItem(tr("breaks of your own"), PlotSettings::ownClasses());
  m_ui->colorScalePos->addItems({tr("not shown"), tr("at the top"), tr("on the right")});
  m_ui->legendPos->addItems({tr("not shown"), tr("upper left corner"), tr("lower left corner"), tr("upper right corner"),
                             tr("lower right corner")});
  for (const QString &mode :
       {QStringLiteral("no label"), QStringLiteral("name only"), QStringLiteral("selected properties")})
    m_ui->label_mode->addItem(mode, mode);
  m_ui->viewport->addItems({tr("independent axes"), tr("original ratio"), tr("aspect ratio")});
}

void viewFuncDialog::setUpColors() {
  m_colors = {{m_ui->bgrColor, &S::bgrColor},
              {m_ui->edgeLabelsColor, &S::edgeLabelsColor},
              {m_ui->nodeLabelsColor, &S::nodeLabelsColor},
              {m_ui->edgeColorInactive, &S::edgeColorInactive},
              {m_ui->edgeColorNoFlow, &S::edgeColorNoFlow},
              {m_ui->gridMajorColor, &S::gridMajorColor},
              {m_ui->gridMinorColor, &S::gridMinorColor}};
  for (ColorButton &color : m_colors) { // which stays where it is
    connect(color.button, &QPushButton::clicked, this, [this, &color] {
      const QColor chosen = QColorDialog::getColor(color.chosen, this);
      if (!chosen.isValid())
        return;
      color.show(chosen);
      if (color.button == m_ui->gridMajorColor || color.button == m_ui->gridMinorColor)
        m_ui->showGrid->setChecked(true); // nobody chooses a colour for what is not to be seen
    });
  }
}

void viewFuncDialog::ColorButton::show(const QColor &shown) {
  chosen = shown;
  QPixmap swatch(16, 16);
  swatch.fill(shown.isValid() ? shown : QColor(Qt::transparent));
  button->setText(shown.isValid() ? shown.name() : QString());
  button->setIcon(swatch);
}

void viewFuncDialog::setFiles(const QString &labelTable, const QString &plotSettings) {
  m_labelTablePath = labelTable;
  m_plotSettingsPath = plotSettings;
  offerSavedSettings();
}

void viewFuncDialog::offerSavedSettings() {
  m_ui->savedSettings->setEnabled(QFileInfo::exists(m_plotSettingsPath) || QFileInfo::exists(m_labelTablePath));
}

void viewFuncDialog::refresh() {
  showForm(m_plot.settings());
  m_labels->setTable(m_plot.update().labelTable());
  offerSavedSettings();
}

FunctionRow::Unit viewFuncDialog::unitOf(const QString &function) const {
  const NetData *net = m_plot.update().netData();
  if (net == nullptr)
    return {};
  const DrawFunction found = DrawFunction::find(function, *net);
  return {found.unit, found.toDisplay};
}

/// Where the values of the data lie, and whether any of them lies between the bounds.
QString viewFuncDialog::noteOn(const DrawValues::Column &values, const PlotSettings::Function &function) {
  if (!values.data.isValid())
    return tr("No element has a value.");
  const Units::Linear &toDisplay = values.function.toDisplay;
  QString unit;
  if (!values.function.unit.isEmpty())
    unit = QLatin1Char(' ') + Units::written(values.function.unit);
  QString reach = tr("The data reach from %1 to %2%3.")
                      .arg(DisplayFormat::number(toDisplay(values.data.minValue())),
                           DisplayFormat::number(toDisplay(values.data.maxValue())), unit);
  const bool hasMinimum = function.minimum != PlotSettings::OpenMinimum;
  const bool hasMaximum = function.maximum != PlotSettings::OpenMaximum;
  if (hasMinimum && function.minimum > values.data.maxValue())
    return tr("The minimum lies above all values.") + QLatin1Char(' ') + reach;
  if (hasMaximum && function.maximum < values.data.minValue())
    return tr("The maximum lies below all values.") + QLatin1Char(' ') + reach;
  return reach;
}

void viewFuncDialog::showNotes(const PlotSettings &settings) {
  for (const Aspect aspect : AllAspects) {
    const PlotSettings::Function &function = settings.functions[aspect];
    const bool isShown = m_plot.update().netData() != nullptr && function.name != PlotSettings::fixedSize();
    m_rows[aspect]->setNote(isShown ? noteOn(m_plot.update().values().of(aspect), function) : QString());
  }
}

void viewFuncDialog::showForm(const PlotSettings &s) {
  for (const Aspect aspect : AllAspects)
    m_rows[aspect]->setFunction(s.functions[aspect]);
  showNotes(s);
  choose(*m_ui->colorRamp, s.colorRamp);
  m_ui->firstColor->setValue(s.firstColor);
  m_ui->lastColor->setValue(s.lastColor);
  m_ui->saturation->setValue(s.saturation);
  m_ui->lightness->setValue(s.lightness);
  m_ui->logFactor->setValue(s.logFactor);
  choose(*m_ui->classMethod, s.colorClasses > 1 ? s.classMethod : QString());
  m_ui->colorClasses->setValue(s.colorClasses > 1 ? s.colorClasses : 5);
  m_ui->classBreaks->setText(s.classBreaks);
  m_ui->colorScalePos->setCurrentIndex(s.colorScalePos == TopAxis     ? AtTheTop
                                       : s.colorScalePos == RightAxis ? OnTheRight
                                                                      : NotShown);
  m_ui->legendPos->setCurrentIndex(s.legendPos > 0 && s.legendPos < m_ui->legendPos->count() ? s.legendPos : 0);
  m_ui->edgeConst->setValue(s.edgeConst);
  m_ui->edgeMag->setValue(s.edgeMag);
  m_ui->nodeMag->setValue(s.nodeMag);
  m_ui->symMag->setValue(s.symMag);
  m_ui->arrowMag->setValue(s.arrowMag);
  m_ui->labelMag->setValue(s.labelMag);
  m_ui->labelMargin->setValue(s.labelMargin);
  choose(*m_ui->label_mode, s.label_mode);
  m_ui->alphaSubnet->setValue(s.alphaSubnet);
  m_ui->viewport->setCurrentIndex(s.fixAxesRatio ? AspectRatio : IndependentAxes);
  m_ui->zoomFact->setValue(s.zoomFact);
  m_ui->showXYaxes->setChecked(s.showXYaxes);
  m_ui->showGrid->setChecked(s.showGrid);
  m_ui->edgeShowFlow->setText(s.edgeShowFlow);
  m_ui->layerProp->setText(s.layerProp);
  for (ColorButton &color : m_colors)
    color.show(s.*color.color);
  m_shown = form();
}

void viewFuncDialog::readSizes(PlotSettings &form) const {
  form.edgeConst = m_ui->edgeConst->value();
  form.edgeMag = m_ui->edgeMag->value();
  form.nodeMag = m_ui->nodeMag->value();
  form.symMag = m_ui->symMag->value();
  form.arrowMag = m_ui->arrowMag->value();
  form.labelMag = m_ui->labelMag->value();
  form.labelMargin = m_ui->labelMargin->value();
}

/// What the fields say now.
PlotSettings viewFuncDialog::form() const {
  PlotSettings form;
  for (const Aspect aspect : AllAspects)
    form.functions[aspect] = m_rows[aspect]->function();
  readSizes(form);
  form.colorRamp = m_ui->colorRamp->currentData().toString();
  form.firstColor = m_ui->firstColor->value();
  form.lastColor = m_ui->lastColor->value();
  form.saturation = m_ui->saturation->value();
  form.lightness = m_ui->lightness->value();
  form.logFactor = m_ui->logFactor->value();
  form.classMethod = m_ui->classMethod->currentData().toString();
  form.colorClasses = form.classMethod.isEmpty() ? 0 : m_ui->colorClasses->value();
  form.classBreaks = m_ui->classBreaks->text().trimmed();
  constexpr std::array<int, 3> Axes{0, TopAxis, RightAxis};
  form.colorScalePos = Axes[static_cast<std::size_t>(m_ui->colorScalePos->currentIndex())];
  form.legendPos = m_ui->legendPos->currentIndex();
  form.label_mode = m_ui->label_mode->currentData().toString();
  form.alphaSubnet = m_ui->alphaSubnet->value();
  form.fixAxesRatio = m_ui->viewport->currentIndex() != IndependentAxes;
  form.zoomFact = m_ui->zoomFact->value();
  form.showXYaxes = m_ui->showXYaxes->isChecked();
  form.showGrid = m_ui->showGrid->isChecked();
  form.edgeShowFlow = m_ui->edgeShowFlow->text().trimmed();
  form.layerProp = m_ui->layerProp->text().trimmed();
  for (const ColorButton &color : m_colors)
    form.*color.color = color.chosen;
  return form;
}

/// Asks what to do about bounds that make no range. False: nothing is to be applied.
bool viewFuncDialog::checkBounds(PlotSettings &form) const {
  for (const Aspect aspect : AllAspects) {
    if (const QString fault = m_rows[aspect]->fault(); !fault.isEmpty()) {
      NivraMsg::message(NivraMsg::Kind::Warning, fault);
      return false;
    }
    PlotSettings::Function &function = form.functions[aspect];
    const DrawRange::State state = DrawRange::check(function.minimum, function.maximum);
    if (state == DrawRange::State::Sound)
      continue;
    const QString question =
        tr("You specified an invalid range (min>max or difference too tiny)!") +
        (state == DrawRange::State::Inverted ? tr("\nProceed with a default/corrected scala? (No-answer will skip action)?")
                                             : tr("\nProceed with a default tiny scala? (No-answer will skip action)?"));
    if (NivraMsg::message(NivraMsg::Kind::Question, question) != NivraMsg::Answer::Yes)
      return false;
    DrawRange::correct(function.minimum, function.maximum);
  }
  return true;
}

bool viewFuncDialog::apply() {
  const PlotSettings before = m_plot.settings();
  PlotSettings typed = form();
  if (!checkBounds(typed))
    return false;
  PlotSettings settings = before;
  takeTouched(m_shown, typed, settings);
  for (const auto &[aspect, key] :
       {std::pair(Aspect::EdgeColor, "logScaleColor"), {Aspect::NodeColor, "logScaleNodeColor"}}) {
    const bool isLogarithmic = settings.functions[aspect].isLogarithmic;
    if (isLogarithmic != before.functions[aspect].isLogarithmic)
      NivraMsg::log(QStringLiteral("%1 set to %2").arg(QLatin1String(key)).arg(int(isLogarithmic)));
  }
  m_plot.setSettings(settings);
  draw(before, m_labels->table());
  return true;
}

/// Draws with the settings that the plot has now.
void viewFuncDialog::draw(const PlotSettings &before, const LabelTable &labels) {
  const bool rebuilds = labels != m_plot.update().labelTable();
  m_plot.update().setLabelTable(labels);
  m_plot.update().updatePlot(rebuilds, NetUpdate::Which::EdgesAndNodes, true);
  // The original ratio is that of the whole network; the aspect ratio keeps to what is seen.
  if (m_plot.settings().fixAxesRatio != before.fixAxesRatio || m_ui->viewport->currentIndex() == OriginalRatio)
    m_plot.zoomer()->fitBase();
  m_plot.update().requestPixtest(-1);
  refresh();
}

void viewFuncDialog::on_apply_clicked() {
  apply();
}

void viewFuncDialog::on_applyAndSave_clicked() {
  QString error;
  if (!apply())
    return;
  if (!m_plot.writePlotSettings(m_plotSettingsPath, &error) ||
      !LabelTableFile::write(m_labelTablePath, m_plot.update().labelTable(), &error))
    NivraMsg::message(NivraMsg::Kind::Critical, error);
  offerSavedSettings();
}

/// As when the case was opened: what the files do not say is as in the beginning.
void viewFuncDialog::on_savedSettings_clicked() {
  const PlotSettings before = m_plot.settings();
  m_plot.setSettings(PlotSettings());
  if (!m_plot.readPlotSettings(m_plotSettingsPath))
    m_plot.setSettings(before);
  LabelTable labels;
  const LabelTableFile::Reading reading = LabelTableFile::read(m_labelTablePath, labels);
  report(reading.findings);
  if (!reading)
    labels = m_plot.update().labelTable();
  draw(before, labels);
}

void viewFuncDialog::on_load_clicked() {
  const QString path =
      QFileDialog::getOpenFileName(this, tr("Choose File"), m_labelTablePath, tr("CSV Files (*.csv);;All Files (*)"));
  if (path.isEmpty())
    return;
  LabelTable table;
  const LabelTableFile::Reading reading = LabelTableFile::read(path, table, FileAccess::Source::Trusted);
  report(reading.findings);
  if (reading)
    m_labels->setTable(table);
}

void viewFuncDialog::resetMinMaxColorFuncValues() {
  QElapsedTimer timer;
  timer.start();
  for (FunctionRow *row : m_rows.values)
    row->forgetBounds();
  apply();
  NivraMsg::log(
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
