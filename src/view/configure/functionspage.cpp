#include "configure/functionspage.h"

#include "configure/functionchooser.h"

#include <base/nivramsg.h>
#include <drawing/drawfunctions.h>
#include <drawing/drawrange.h>
#include <model/displayformat.h>

#include <QVBoxLayout>

#include <algorithm>

namespace {

/// Changes what differs between what was typed and what was shown before.
void readTouchedFunction(const PlotSettings::Function &shown, const PlotSettings::Function &typed,
                         PlotSettings::Function &function) {
  const auto read = [&](auto field) {
    if (typed.*field != shown.*field)
      function.*field = typed.*field;
  };
  using Function = PlotSettings::Function;
  read(&Function::name);
  read(&Function::minimum);
  read(&Function::maximum);
  read(&Function::isAbsolute);
  read(&Function::isLogarithmic);
  read(&Function::typed);
}

} // namespace

FunctionsPage::FunctionsPage(const NetUpdate &drawing, const PlotSettings &settings, QWidget *parent)
    : QWidget(parent)
    , m_drawing(drawing)
    , m_settings(settings) {
  auto *rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  const PerAspect<QString> titles{{tr("Edge colour"), tr("Edge width"), tr("Node colour"), tr("Node size")}};
  for (const Aspect aspect : AllAspects) {
    const QString tip = isColor(aspect) ? tr("if checked: absolute values are used for color")
                                        : tr("if checked:  absolute values used for width");
    m_rows[aspect] = new FunctionRow(
        titles[aspect], tip, [this](const QString &function) { return unitOf(function); }, this);
    connect(m_rows[aspect], &FunctionRow::choiceWanted, this, [this, aspect] { choose(aspect); });
    rows->addWidget(m_rows[aspect]);
    if (aspect == Aspect::EdgeColor)
      connect(m_rows[aspect], &FunctionRow::functionChosen, this, &FunctionsPage::edgeColorsChosen);
  }
}

void FunctionsPage::offerFunctions() {
  const NetData *net = m_drawing.netData();
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

void FunctionsPage::choose(Aspect aspect) {
  if (m_drawing.netData() == nullptr)
    return;
  FunctionChooser chooser(m_rows[aspect]->title(), m_drawing, m_settings, aspect, this);
  chooser.setFunctions(m_rows[aspect]->choices(), m_rows[aspect]->function().name);
  if (chooser.exec() == QDialog::Accepted)
    m_rows[aspect]->chooseFunction(chooser.chosen());
}

FunctionRow::Unit FunctionsPage::unitOf(const QString &function) const {
  const NetData *net = m_drawing.netData();
  if (net == nullptr)
    return {};
  const DrawFunction found = DrawFunction::find(function, *net);
  return {found.unit, found.toDisplay};
}

void FunctionsPage::showFunctions(const PlotSettings &settings) {
  for (const Aspect aspect : AllAspects) {
    m_rows[aspect]->setFunction(settings.functions[aspect]);
    m_shown[aspect] = m_rows[aspect]->function();
  }
  showNotes(settings);
}

void FunctionsPage::followFunctions(const PlotSettings &settings) {
  for (const Aspect aspect : AllAspects) {
    const PlotSettings::Function &function = settings.functions[aspect];
    const bool isNameTouched = m_rows[aspect]->function().name != m_shown[aspect].name;
    if (function.name == m_shown[aspect].name || isNameTouched)
      continue;
    m_rows[aspect]->setFunction(function);
    m_shown[aspect] = m_rows[aspect]->function();
  }
}

void FunctionsPage::changeUnits(const PlotSettings &settings) {
  for (const Aspect aspect : AllAspects) {
    const bool isTouched = !(m_rows[aspect]->function() == m_shown[aspect]);
    m_rows[aspect]->changeUnit();
    if (!isTouched)
      m_shown[aspect] = m_rows[aspect]->function();
  }
  showNotes(settings);
}

void FunctionsPage::showNotes(const PlotSettings &settings) {
  for (const Aspect aspect : AllAspects) {
    const PlotSettings::Function &function = settings.functions[aspect];
    const bool hasNote = m_drawing.netData() != nullptr && function.name != PlotSettings::fixedSize();
    m_rows[aspect]->setNote(hasNote ? noteOn(m_drawing.values().of(aspect), function) : QString());
  }
}

std::optional<DrawFunction> FunctionsPage::chosen(Aspect aspect) const {
  const NetData *net = m_drawing.netData();
  return net == nullptr ? std::nullopt : std::make_optional(DrawFunction::find(m_rows[aspect]->function().name, *net));
}

QString FunctionsPage::noteOn(const DrawValues::Column &values, const PlotSettings::Function &function) {
  if (!values.data.isValid())
    return tr("No element has a value.");
  const Units::Linear &toDisplay = values.function.toDisplay;
  QString unit;
  if (!values.function.unit.isEmpty())
    unit = QLatin1Char(' ') + Units::written(values.function.unit);
  QString reach = tr("The data reach from %1 to %2%3.")
                      .arg(DisplayFormat::number(toDisplay(values.data.minValue())),
                           DisplayFormat::number(toDisplay(values.data.maxValue())), unit);
  if (values.open != values.data)
    reach += QLatin1Char(' ') + tr("Without 2 % at either end from %1 to %2%3.")
                                    .arg(DisplayFormat::number(toDisplay(values.open.minValue())),
                                         DisplayFormat::number(toDisplay(values.open.maxValue())), unit);
  const bool hasMinimum = function.minimum != PlotSettings::OpenMinimum;
  const bool hasMaximum = function.maximum != PlotSettings::OpenMaximum;
  if (hasMinimum && function.minimum > values.data.maxValue())
    return tr("The minimum lies above all values.") + QLatin1Char(' ') + reach;
  if (hasMaximum && function.maximum < values.data.minValue())
    return tr("The maximum lies below all values.") + QLatin1Char(' ') + reach;
  return reach;
}

bool FunctionsPage::readTouched(PlotSettings &settings) const {
  PerAspect<PlotSettings::Function> typed;
  for (const Aspect aspect : AllAspects) {
    if (const QString fault = m_rows[aspect]->fault(); !fault.isEmpty()) {
      NivraMsg::message(NivraMsg::Kind::Warning, fault);
      return false;
    }
    typed[aspect] = m_rows[aspect]->function();
    if (!askForSoundRange(typed[aspect]))
      return false;
  }
  for (const Aspect aspect : AllAspects)
    readTouchedFunction(m_shown[aspect], typed[aspect], settings.functions[aspect]);
  return true;
}

bool FunctionsPage::readSound(PlotSettings &settings) const {
  PerAspect<PlotSettings::Function> typed;
  for (const Aspect aspect : AllAspects) {
    typed[aspect] = m_rows[aspect]->function();
    if (!m_rows[aspect]->fault().isEmpty() ||
        DrawRange::check(typed[aspect].minimum, typed[aspect].maximum) != DrawRange::State::Sound)
      return false;
  }
  for (const Aspect aspect : AllAspects)
    readTouchedFunction(m_shown[aspect], typed[aspect], settings.functions[aspect]);
  return true;
}

bool FunctionsPage::isTouched() const {
  return std::any_of(AllAspects.begin(), AllAspects.end(),
                     [this](Aspect aspect) { return !(m_rows[aspect]->function() == m_shown[aspect]); });
}

bool FunctionsPage::askForSoundRange(PlotSettings::Function &function) {
  const DrawRange::State state = DrawRange::check(function.minimum, function.maximum);
  if (state == DrawRange::State::Sound)
    return true;
  const QString question =
      tr("You specified an invalid range (min>max or difference too tiny)!") +
      (state == DrawRange::State::Inverted ? tr("\nProceed with a default/corrected scala? (No-answer will skip action)?")
                                           : tr("\nProceed with a default tiny scala? (No-answer will skip action)?"));
  if (NivraMsg::message(NivraMsg::Kind::Question, question) != NivraMsg::Answer::Yes)
    return false;
  DrawRange::correct(function.minimum, function.maximum);
  return true;
}

void FunctionsPage::forgetBounds() {
  for (FunctionRow *row : m_rows.values)
    row->forgetBounds();
}
