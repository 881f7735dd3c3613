#include "templatedefinitions.h"
#include "templateplacement.h"
#include "templateplan.h"

#include <base/textdecoding.h>
#include <io/nivrareader.h>
#include <model/names.h>
#include <model/topology.h>
#include <subassembly/subassembler.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>

#include <cmath>

namespace {

constexpr double Milli = 1e-3;

struct Keys {
  PropertyKey variant = PropertyKey::intern("variant");
  PropertyKey width = PropertyKey::intern("width");
  PropertyKey rotation = PropertyKey::intern("rotation");
  PropertyKey icon = PropertyKey::intern("icon");
  PropertyKey constraints = PropertyKey::intern("constraints");
  PropertyKey visSize = PropertyKey::intern("vis.size");
};

const Keys &keys() {
  static const Keys instance;
  return instance;
}

const QString RecordName = QStringLiteral("SUB");

TemplateGeometry readTemplate(const QString &file, const Told &told) {
  TemplateGeometry content;
  auto net = std::make_shared<NetData>();
  NivraReader::Options options;
  options.source = FileAccess::Source::Trusted; // the templates belong to the program
  NivraReader::Result result = NivraReader(*net, told).readGeomJsn(file, options);
  content.findings = std::move(result.findings);
  if (!result.ok) {
    content.error = SubAssembler::tr("Cannot read %1").arg(file);
    return content;
  }
  if (net->assembledSubnets().find(RecordName) == nullptr) {
    content.error = SubAssembler::tr("%1 has no subnet named \"SUB\", which would tell its pins").arg(file);
    return content;
  }
  content.net = net;
  content.plan = std::make_shared<const TemplatePlan>(*net);
  for (const elements::Entry &entry : net->assembledSubnets()) {
    if (entry.name().compare(RecordName, Qt::CaseInsensitive) != 0)
      content.findings.push_back(
          {Finding::Severity::Warning, file, 0,
           SubAssembler::tr("Templates do not hold other subnets: %1 is left out").arg(entry.name())});
  }
  return content;
}

} // namespace

SubAssembler::SubAssembler(NetData &net, const QString &folder, SubAssemblyCache &cache, Told told)
    : m_net(net)
    , m_folder(folder)
    , m_told(std::move(told))
    , m_realFolder(QFileInfo(folder).canonicalFilePath())
    , m_templates(cache.folder(folder, m_told)) {}

QString SubAssembler::findFolder(const QString &programFolder, const Told &told) {
  for (const char *up : {"", "/..", "/../..", "/../../.."}) {
    const QFileInfo folder(programFolder + QLatin1String(up) + QStringLiteral("/net_subassemblies"));
    if (folder.isDir())
      return folder.canonicalFilePath();
  }
  tell(told, Finding::Severity::Warning,
       QCoreApplication::translate("SubAssembler", "Could not find net_subassemblies folder!"));
  return QString();
}

void SubAssembler::note(const QString &text, const QString &element) {
  m_result.findings.push_back(Finding::about(element, text));
}

/// Inside of the folder, whatever the variant is called and wherever links lead; empty otherwise.
QString SubAssembler::templateFile(const QString &variant, const char *suffix) const {
  const bool isPath = variant.contains(QLatin1Char('/')) || variant.contains(QLatin1Char('\\')) ||
                      variant.contains(QChar::Null) || variant.startsWith(QLatin1Char('.'));
  if (isPath)
    return QString();
  const QFileInfo file(m_folder + QLatin1Char('/') + variant + QLatin1String(suffix));
  const QString real = file.canonicalFilePath();
  if (!file.exists() || !real.startsWith(m_realFolder + QLatin1Char('/')))
    return QString();
  return file.filePath();
}

const SubAssembler::Variant &SubAssembler::variant(const QString &name) {
  const auto known = m_variants.find(name);
  if (known != m_variants.end())
    return known->second;
  Variant &made = m_variants[name];
  made.geometry = templateFile(name, ".geom");
  made.constraints = templateFile(name, ".geom.csv");
  made.formulas = templateFile(name, ".formulas");
  if (!templateFile(name, ".svg").isEmpty())
    made.icon = PropertyText(name + QStringLiteral(".svg"));
  if (made.geometry.isEmpty()) {
    made.error =
        tr("Error - could not find subassembly:%1").arg(m_folder + QLatin1Char('/') + name + QStringLiteral(".geom"));
    return made;
  }
  if (made.formulas.isEmpty())
    tell(m_told, Finding::Severity::Information,
         QStringLiteral("### File containing formulas") + m_folder + QLatin1Char('/') + name +
             QStringLiteral(".formulas not found!"));
  const auto readFile = [this](const QString &file) {
    return readTemplate(file, m_told);
  };
  const TemplateGeometry &read = m_templates->geometry.get(made.geometry, readFile, m_told);
  append(m_result.findings, read.findings);
  made.plan = read.plan;
  made.error = read.error;
  return made;
}

SubAssembler::Result SubAssembler::createElesOfAssembledSubnets(Flag flag, const Progress &progress) {
  QElapsedTimer timer;
  timer.start();
  m_result = Result();
  m_assembled.clear();
  std::vector<const elements::Entry *> subnets;
  for (const elements::Entry &entry : m_net.assembledSubnets()) {
    if (entry.name() != RecordName)
      subnets.push_back(&entry);
  }
  if (m_templates == nullptr || subnets.empty())
    return m_result;
  reserve(subnets);
  findFreePrefixes(subnets);
  const auto count = static_cast<int>(subnets.size());
  debug(QStringLiteral("     before rebuild %1 sec.\n").arg(static_cast<double>(timer.elapsed()) * Milli));
  if (progress && !progress(tr("Creating Subnets"), 0, count))
    return m_result;
  for (int i = 0; i < count; ++i) {
    if (progress && !progress(tr("Creating Subnets (%1/%2)").arg(i + 1).arg(count), i, count))
      return m_result;
    element &subnet = subnets[static_cast<std::size_t>(i)]->value;
    const QStringList pins = Topology::listedByPosition(subnet, Names::all().pins);
    if (createEleOfAssembledSubnet(subnet, pins, flag, true) >= 1) {
      ++m_result.assembled;
      continue;
    }
    subnet.set(keys().variant, PropertyText(std::string_view("default")));
    if (createEleOfAssembledSubnet(subnet, pins, flag, true) >= 1) {
      ++m_result.replaced;
      continue;
    }
    const QString name = subnets[static_cast<std::size_t>(i)]->name();
    note(tr("Problem with assembled subnet %1! It will be erased!").arg(name));
    m_net.assembledSubnets().erase(name);
    ++m_result.erased;
  }
  noteSummary();
  debug(QStringLiteral("### createElesOfAssembledSubnets: %1 sec.\n").arg(static_cast<double>(timer.elapsed()) * Milli));
  return m_result;
}

void SubAssembler::giveDefaults() {
  if (m_templates == nullptr)
    return;
  for (const elements::Entry &entry : m_net.assembledSubnets()) {
    const Variant &used = variant(entry.value.value(keys().variant));
    if (entry.name() != RecordName && used.plan != nullptr)
      used.plan->giveDefaults(entry.value);
  }
}

void SubAssembler::noteSummary() {
  Finding summary;
  if (m_result.replaced > 0 || m_result.erased > 0) {
    summary.box = tr("%1 assembled subnets had to be replaced with default,\n%2 assembled subnets had to be "
                     "erased! See log for details!")
                      .arg(m_result.replaced)
                      .arg(m_result.erased);
    m_result.findings.push_back(summary);
  }
  if (m_result.newPins) {
    summary.box = tr("Pin nodes have been added to net! Save manually!");
    m_result.findings.push_back(summary);
  }
}

/// Whether the template has pins and all of them are its nodes; told where not.
bool SubAssembler::hasSoundPins(const TemplatePlan &plan, const QString &variant, const QString &subnet) {
  if (plan.pinNames().isEmpty()) {
    note(tr("Problem with creating assembledsubnet: loaded pins empty! Skipped!"), subnet);
    return false;
  }
  for (int i = 0; i < plan.pinNames().size(); ++i) {
    if (plan.pin(i) != nullptr)
      continue;
    note(tr("### in createEleOfAssembledSubnet: Problem with assembled subnet %1").arg(subnet), subnet);
    note(tr("The template %1 names a pin that is none of its nodes: %2").arg(variant, plan.pinNames().at(i)), subnet);
    return false;
  }
  return true;
}

int SubAssembler::createEleOfAssembledSubnet(element &subnet, const QStringList &pins, Flag flag, bool tryReset) {
  const QString name = subnet.value(Names::all().name);
  const QString variantName = subnet.value(keys().variant);
  if (name.isEmpty()) {
    note(tr("Assembled subnet: name empty! Skipped!"));
    return 0;
  }
  if (variantName.isEmpty()) {
    note(tr("Assembled subnet: variant empty for %1! Skipped!").arg(name), name);
    return 0;
  }
  if (m_templates == nullptr)
    return 0;
  const Variant &used = variant(variantName);
  if (used.plan == nullptr) {
    note(used.error, name);
    return 0;
  }
  const TemplatePlan &plan = *used.plan;
  plan.giveDefaults(subnet);
  if (!used.icon.isEmpty())
    subnet.set(keys().icon, used.icon);
  if (!used.constraints.isEmpty())
    subnet.set(keys().constraints, PropertyText(used.constraints));
  if (!hasSoundPins(plan, variantName, name))
    return 0;
  const std::vector<Pin> netPins = nodesOf(pinsOf(subnet, pins, plan.pinNames(), tryReset));
  if (netPins.empty()) {
    note(tr("Problem with creating assembledsubnet: pins still empty! Skipped!"), name);
    return 0;
  }
  const Frame frame = layOut(subnet, netPins);
  if (flag == Flag::All)
    createElements(subnet, used, netPins, frame);
  return 1;
}

QStringList SubAssembler::pinsOf(element &subnet, const QStringList &pins, const QStringList &ofTemplate, bool tryReset) {
  if (pins.size() == ofTemplate.size())
    return pins;
  const QString name = subnet.value(Names::all().name);
  if (!pins.isEmpty() && tryReset)
    note(tr("Assembled subnet %1: pinList sizes not consistent! reset tried!").arg(name), name);
  if (!tryReset)
    return {};
  QStringList reset; // names of its own, or two subnets would share the nodes
  for (const QString &pin : ofTemplate)
    reset.append(name + QLatin1Char('_') + pin);
  subnet.set(Names::all().pins, PropertyText(reset.join(QLatin1Char(';'))));
  return reset;
}

std::vector<SubAssembler::Pin> SubAssembler::nodesOf(const QStringList &pins) const {
  std::vector<Pin> found;
  found.reserve(static_cast<std::size_t>(pins.size()));
  for (const QString &name : pins)
    found.push_back({name, m_net.nodes().find(name)});
  return found;
}

SubAssembler::Frame SubAssembler::layOut(element &subnet, const std::vector<Pin> &pins) {
  const auto number = [&](PropertyKey key) {
    const double value = m_net.value(subnet, key);
    return value == NetData::NoValue ? 0.0 : value;
  };
  if (pins.size() < 2 || pins[0].node == nullptr || pins[1].node == nullptr)
    return {m_net.position(subnet), number(keys().width), number(keys().rotation)};
  std::vector<QPointF> positions;
  QStringList others;
  for (const Pin &pin : pins) {
    if (pin.node != nullptr)
      positions.push_back(m_net.position(*pin.node));
    else
      others.append(pin.name);
  }
  const QPointF way = positions[1] - positions[0];
  const Frame frame{TemplatePlacement::mean(positions), std::hypot(way.x(), way.y()),
                    TemplatePlacement::rotation(positions[0], positions[1])};
  subnet.set(keys().width, PropertyText::ofNumber(frame.width));
  subnet.set(keys().rotation, PropertyText::ofNumber(frame.rotation));
  subnet.set(Names::all().x, PropertyText::ofNumber(frame.center.x()));
  subnet.set(Names::all().y, PropertyText::ofNumber(frame.center.y()));
  if (!others.isEmpty())
    note(tr("pinList contains non-net nodes: %1").arg(others.join(QLatin1Char(';'))), subnet.value(Names::all().name));
  return frame;
}

/// A node that the network lacks, to be saved by hand.
void SubAssembler::createPin(const element &source, const QString &name, const QPointF &at) {
  element pin = source;
  pin.set(Names::all().refEle, *source.find(Names::all().name));
  for (const PropertyKey key : {Names::all().gasNode, Names::all().driven})
    pin.erase(key);
  pin.set(Names::all().name, PropertyText(name));
  pin.set(Names::all().x, PropertyText::ofNumber(at.x()));
  pin.set(Names::all().y, PropertyText::ofNumber(at.y()));
  pin.set(QStringLiteral("doSave"), QStringLiteral("false"));
  pin.set(QStringLiteral("vis"), QStringLiteral("AUTO"));
  note(tr("This pin is new and needs saving: %1").arg(name), name);
  m_net.addElement(std::move(pin), m_told);
  m_freePrefixes.clear();
  m_result.newPins = true;
}

void SubAssembler::createElements(element &subnet, const Variant &variant, const std::vector<Pin> &pins,
                                  const Frame &frame) {
  const TemplatePlan &plan = *variant.plan;
  const TemplatePlacement placement(plan.pinPositions(), frame.width, frame.rotation, frame.center);
  QStringList pinNames;
  std::vector<PropertyText> pinTexts;
  pinTexts.reserve(pins.size());
  for (std::size_t i = 0; i < pins.size(); ++i) {
    const element &source = *plan.pin(static_cast<int>(i));
    if (pins[i].node == nullptr)
      createPin(source, pins[i].name, placement.map(plan.pinPositions()[i]));
    else if (const PropertyText *size = source.find(keys().visSize))
      pins[i].node->set(keys().visSize, *size);
    pinNames.append(pins[i].name);
    pinTexts.emplace_back(pins[i].name);
  }
  const PropertyText &name = *subnet.find(Names::all().name);
  const std::string prefix(name.utf8());
  std::vector<PropertyText> names = plan.names(m_net, prefix, m_freePrefixes.find(prefix + '_') != nullptr);
  plan.create(m_net, names, pinTexts, placement);
  std::string all;
  for (const PropertyText &created : names) {
    all += all.empty() ? "" : ";";
    all += created.utf8();
  }
  subnet.set(Names::all().elements, PropertyText(std::string_view(all)));
  m_assembled.push_back({&variant, TextDecoding::decoded(prefix), pinNames, std::move(names)});
}

/// Room for all elements to come at once.
void SubAssembler::reserve(const std::vector<const elements::Entry *> &subnets) {
  std::size_t nodes = m_net.nodes().size();
  std::size_t edges = m_net.edges().size();
  for (const elements::Entry *subnet : subnets) {
    const TemplatePlan *plan = variant(subnet->value.value(keys().variant)).plan.get();
    if (plan == nullptr)
      continue;
    nodes += plan->nodeCount();
    edges += plan->parts().size() - plan->nodeCount();
  }
  m_net.nodes().reserve(nodes);
  m_net.edges().reserve(edges);
}

/// One walk over all names, in place of a look-up in every collection for each element that is made.
void SubAssembler::findFreePrefixes(const std::vector<const elements::Entry *> &subnets) {
  m_freePrefixes.clear();
  for (const elements::Entry *subnet : subnets)
    m_freePrefixes.tryInsert(PropertyText(std::string_view(std::string(subnet->id.utf8()) + '_')), element());
  std::vector<std::string> taken;
  for (const elements *collection : {&m_net.nodes(), &m_net.edges(), &m_net.assembledSubnets(), &m_net.textBoxes()}) {
    for (const elements::Entry &entry : *collection) {
      const std::string_view name = entry.id.utf8();
      for (std::size_t end = name.find('_'); end != std::string_view::npos; end = name.find('_', end + 1)) {
        const std::string_view prefix = name.substr(0, end + 1);
        if (m_freePrefixes.find(prefix) == nullptr)
          continue;
        taken.emplace_back(prefix);
        taken.push_back(std::string(name) + '_'); // of a subnet S_T: its elements could have names of those of S
      }
    }
  }
  for (const std::string &prefix : taken)
    m_freePrefixes.erase(TextDecoding::decoded(prefix));
}

std::vector<FormulaDefinition> SubAssembler::definitions(Findings &findings) const {
  std::vector<FormulaDefinition> definitions;
  std::map<const Variant *, TemplateDefinitions> ofVariants;
  for (const Assembled &assembled : m_assembled) {
    const Variant &variant = *assembled.variant;
    auto known = ofVariants.find(&variant);
    if (known == ofVariants.end()) {
      known = ofVariants.emplace(&variant, variant.plan).first;
      known->second.read(variant.constraints, m_templates->constraints, findings, m_told);
      known->second.read(variant.formulas, m_templates->formulas, findings, m_told);
    }
    known->second.addFor(assembled.subnet, assembled.pins, assembled.names, definitions);
  }
  return definitions;
}
