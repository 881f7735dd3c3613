#include "configure/labeltableeditor.h"
#include "ui_viewfuncdialog.h"

#include <base/nivramsg.h>
#include <model/displayformat.h>
#include <view/netplot.h>
#include <view/plotzoom.h>
#include <view/viewfuncdialog.h>

#include <QColorDialog>
#include <QElapsedTimer>
#include <QFileDialog>

#include <drawing/colormap.h>
#include <drawing/drawfunctions.h>
#include <drawing/drawrange.h>
#include <tuple>

namespace {

using S = PlotSettings;

struct FunctionFields {
  const char *key; ///< in the file, and of what was typed
  QString S::*function;
  double S::*minimum;
  double S::*maximum;
  bool S::*absolute;
  bool S::*logarithmic;
};

// In the order of viewFuncDialog::Row.
const std::array<FunctionFields, 4> Functions{{
    {"colorFunc", &S::colorFunc, &S::minVal_edgeColor, &S::maxVal_edgeColor, &S::absColor, &S::logScaleColor},
    {"widthFunc", &S::widthFunc, &S::minVal_Width, &S::maxVal_Width, &S::absWidth, &S::logScaleWidth},
    {"nodeColorFunc", &S::nodeColorFunc, &S::minVal_nodeColor, &S::maxVal_nodeColor, &S::absNodeColor,
     &S::logScaleNodeColor},
    {"nodeSizeFunc", &S::nodeSizeFunc, &S::minVal_nodeSize, &S::maxVal_nodeSize, &S::absNodeSize, &S::logScaleNodeSize},
}};

enum Viewport { IndependentAxes, OriginalRatio, AspectRatio };
enum ScalePlace { NotShown, AtTheTop, OnTheRight };
constexpr int TopAxis = 3;
constexpr int RightAxis = 1;

void choose(QComboBox &box, const QString &data) {
  const int place = box.findData(data);
  box.setCurrentIndex(place < 0 ? 0 : place);
}

} // namespace

viewFuncDialog::viewFuncDialog(NetPlot &plot, QWidget *parent)
    : QWidget(parent)
    , m_plot(plot)
    , m_ui(std::make_unique<Ui::viewFuncDialog>()) {
  m_ui->setupUi(this);
  const QStringList titles{tr("Edge colour"), tr("Edge width"), tr("Node colour"), tr("Node size")};
  for (int i = 0; i < Rows; ++i) {
    const QString tip = i == EdgeWidth || i == NodeSize ? tr("if checked:  absolute values used for width")
                                                        : tr("if checked: absolute values are used for color");
    auto *row = new FunctionRow(
        titles.at(i), tip, [this](const QString &function) { return unitOf(function); }, this);
    m_rows[static_cast<std::size_t>(i)] = row;
    m_ui->functionsBox->insertWidget(i, row);
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
  const DrawFunction::OfNetwork own = net == nullptr ? DrawFunction::OfNetwork() : DrawFunction::ofNetwork(*net);
  for (int i = 0; i < Rows; ++i) {
    QStringList functions = DrawFunction::fixedNames();
    if (i == NodeSize)
      functions.prepend(PlotSettings::fixedSize());
    QHash<QString, QString> described;
    for (const QString &property : i == EdgeColor || i == EdgeWidth ? own.ofEdges : own.ofNodes) {
      functions.append(property);
      const QString title = DrawFunction::find(property, *net).title;
      if (title != property)
        described.insert(property, title);
    }
    m_rows[static_cast<std::size_t>(i)]->setChoices(functions, described);
  }
}

void viewFuncDialog::showEvent(QShowEvent *event) {
  offerFunctions(); // formulas may have computed more since
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
  for (const ColorButton &color : m_colors) {
    connect(color.button, &QPushButton::clicked, this, [this, button = color.button] {
      const QColor chosen = QColorDialog::getColor(QColor(button->text()), this);
      if (chosen.isValid()) {
        button->setText(chosen.name());
        QPixmap swatch(16, 16);
        swatch.fill(chosen);
        button->setIcon(swatch);
        if (button == m_ui->gridMajorColor || button == m_ui->gridMinorColor)
          m_ui->showGrid->setChecked(true); // nobody chooses a colour for what is not to be seen
      }
    });
  }
}

void viewFuncDialog::setFiles(const QString &labelTable, const QString &plotSettings) {
  m_labelTablePath = labelTable;
  m_plotSettingsPath = plotSettings;
}

void viewFuncDialog::refresh() {
  showForm(m_plot.settings());
  m_labels->setTable(m_plot.update().labelTable());
}

FunctionRow::Unit viewFuncDialog::unitOf(const QString &function) const {
  const NetData *net = m_plot.update().netData();
  if (net == nullptr)
    return {};
  const DrawFunction found = DrawFunction::find(function, *net);
  return {found.unit, found.toDisplay};
}

/// Where the values of the data lie, and whether any of them lies between the bounds.
QString viewFuncDialog::noteOn(const DrawValues::Column &values, double minimum, double maximum) {
  if (!values.data.isValid())
    return tr("No element has a value.");
  const Units::Linear &toDisplay = values.function.toDisplay;
  QString unit;
  if (!values.function.unit.isEmpty())
    unit = QLatin1Char(' ') + Units::written(values.function.unit);
  const QString reach = tr("The data reach from %1 to %2%3.")
                            .arg(DisplayFormat::number(toDisplay(values.data.minValue())),
                                 DisplayFormat::number(toDisplay(values.data.maxValue())), unit);
  const bool hasMinimum = minimum != PlotSettings::OpenMinimum;
  const bool hasMaximum = maximum != PlotSettings::OpenMaximum;
  if (hasMinimum && minimum > values.data.maxValue())
    return tr("The minimum lies above all values.") + QLatin1Char(' ') + reach;
  if (hasMaximum && maximum < values.data.minValue())
    return tr("The maximum lies below all values.") + QLatin1Char(' ') + reach;
  return reach;
}

void viewFuncDialog::showNotes(const PlotSettings &settings) {
  const DrawValues &values = m_plot.update().values();
  const std::array<const DrawValues::Column *, Rows> columns{&values.edgeColor(), &values.edgeWidth(), &values.nodeColor(),
                                                             &values.nodeSize()};
  for (std::size_t i = 0; i < Functions.size(); ++i) {
    const FunctionFields &f = Functions[i];
    const bool isShown = m_plot.update().netData() != nullptr && settings.*f.function != PlotSettings::fixedSize();
    m_rows[i]->setNote(isShown ? noteOn(*columns[i], settings.*f.minimum, settings.*f.maximum) : QString());
  }
}

void viewFuncDialog::showForm(const PlotSettings &s) {
  TypedBounds::OfSettings typed = TypedBounds::read(s.typedBounds);
  for (std::size_t i = 0; i < Functions.size(); ++i) {
    const FunctionFields &f = Functions[i];
    m_rows[i]->setValues({s.*f.function, s.*f.minimum, s.*f.maximum, s.*f.absolute, s.*f.logarithmic},
                         typed[QString::fromLatin1(f.key)]);
  }
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
  m_ui->legendPos->setCurrentIndex(qBound(0, s.legendPos, m_ui->legendPos->count() - 1));
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
  for (const ColorButton &color : m_colors) {
    const QColor &shown = s.*color.color;
    QPixmap swatch(16, 16);
    swatch.fill(shown.isValid() ? shown : QColor(Qt::transparent));
    color.button->setText(shown.isValid() ? shown.name() : QString());
    color.button->setIcon(swatch);
  }
}

void viewFuncDialog::takeForm(PlotSettings &s) const {
  s.colorRamp = m_ui->colorRamp->currentData().toString();
  s.firstColor = m_ui->firstColor->value();
  s.lastColor = m_ui->lastColor->value();
  s.saturation = m_ui->saturation->value();
  s.lightness = m_ui->lightness->value();
  s.logFactor = m_ui->logFactor->value();
  const QString method = m_ui->classMethod->currentData().toString();
  s.colorClasses = method.isEmpty() ? 0 : m_ui->colorClasses->value();
  if (!method.isEmpty())
    s.classMethod = method;
  s.classBreaks = m_ui->classBreaks->text().trimmed();
  constexpr std::array<int, 3> Axes{0, TopAxis, RightAxis};
  s.colorScalePos = Axes[static_cast<std::size_t>(m_ui->colorScalePos->currentIndex())];
  s.legendPos = m_ui->legendPos->currentIndex();
  s.edgeConst = m_ui->edgeConst->value();
  s.edgeMag = m_ui->edgeMag->value();
  s.nodeMag = m_ui->nodeMag->value();
  s.symMag = m_ui->symMag->value();
  s.arrowMag = m_ui->arrowMag->value();
  s.labelMag = m_ui->labelMag->value();
  s.labelMargin = m_ui->labelMargin->value();
  s.label_mode = m_ui->label_mode->currentData().toString();
  s.alphaSubnet = m_ui->alphaSubnet->value();
  s.fixAxesRatio = m_ui->viewport->currentIndex() != IndependentAxes;
  s.zoomFact = m_ui->zoomFact->value();
  s.showXYaxes = m_ui->showXYaxes->isChecked();
  s.showGrid = m_ui->showGrid->isChecked();
  s.edgeShowFlow = m_ui->edgeShowFlow->text().trimmed();
  s.layerProp = m_ui->layerProp->text().trimmed();
  for (const ColorButton &color : m_colors)
    s.*color.color = QColor(color.button->text());
}

bool viewFuncDialog::takeBounds(const FunctionRow &row, FunctionRow::Values &values) {
  values = row.values();
  if (const QString fault = row.fault(); !fault.isEmpty()) {
    NivraMsg::message(NivraMsg::Kind::Warning, fault);
    return false;
  }
  const DrawRange::State state = DrawRange::check(values.minimum, values.maximum);
  if (state == DrawRange::State::Sound)
    return true;
  const QString question =
      tr("You specified an invalid range (min>max or difference too tiny)!") +
      (state == DrawRange::State::Inverted ? tr("\nProceed with a default/corrected scala? (No-answer will skip action)?")
                                           : tr("\nProceed with a default tiny scala? (No-answer will skip action)?"));
  if (NivraMsg::message(NivraMsg::Kind::Question, question) != NivraMsg::Answer::Yes)
    return false;
  DrawRange::correct(values.minimum, values.maximum);
  return true;
}

bool viewFuncDialog::takeFunctions(PlotSettings &settings) {
  TypedBounds::OfSettings typed;
  for (std::size_t i = 0; i < Functions.size(); ++i) {
    const FunctionFields &f = Functions[i];
    FunctionRow::Values values;
    if (!takeBounds(*m_rows[i], values))
      return false;
    settings.*f.function = values.function;
    settings.*f.minimum = values.minimum;
    settings.*f.maximum = values.maximum;
    settings.*f.absolute = values.absolute;
    settings.*f.logarithmic = values.logarithmic;
    if (const TypedBounds::OfFunctions ofRow = m_rows[i]->typedBounds(); !ofRow.isEmpty())
      typed[QString::fromLatin1(f.key)] = ofRow;
  }
  settings.typedBounds = TypedBounds::written(typed);
  return true;
}

bool viewFuncDialog::apply() {
  const PlotSettings before = m_plot.settings();
  PlotSettings settings = before;
  if (!takeFunctions(settings))
    return false;
  takeForm(settings);
  if (settings.logScaleColor != before.logScaleColor)
    NivraMsg::log(QStringLiteral("logScaleColor set to %1").arg(int(settings.logScaleColor)));
  if (settings.logScaleNodeColor != before.logScaleNodeColor)
    NivraMsg::log(QStringLiteral("logScaleNodeColor set to %1").arg(int(settings.logScaleNodeColor)));
  const LabelTable table = m_labels->table();
  const bool rebuilds = table != m_plot.update().labelTable();
  m_plot.setSettings(settings);
  m_plot.update().setLabelTable(table);
  m_plot.update().updatePlot(rebuilds, NetUpdate::Which::EdgesAndNodes, true);
  // The original ratio is that of the whole network; the aspect ratio keeps to what is seen.
  if (settings.fixAxesRatio != before.fixAxesRatio || m_ui->viewport->currentIndex() == OriginalRatio)
    m_plot.zoomer()->fitBase();
  m_plot.update().requestPixtest(-1);
  refresh();
  return true;
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
}

void viewFuncDialog::on_load_clicked() {
  const QString path =
      QFileDialog::getOpenFileName(this, tr("Choose File"), m_labelTablePath, tr("CSV Files (*.csv);;All Files (*)"));
  if (path.isEmpty())
    return;
  LabelTable table;
  if (LabelTableFile::read(path, table, FileAccess::Source::Trusted))
    m_labels->setTable(table);
}

void viewFuncDialog::resetMinMaxColorFuncValues() {
  QElapsedTimer timer;
  timer.start();
  for (FunctionRow *row : m_rows)
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
