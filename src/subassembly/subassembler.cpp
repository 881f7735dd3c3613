#include "templatedefinitions.h"
#include "templateplacement.h"
#include "templateplan.h"

#include <base/nivramsg.h>
#include <io/nivrareader.h>
#include <model/names.h>
#include <model/topology.h>
#include <subassembly/subassembler.h>

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
  PropertyKey driven = PropertyKey::intern("driven");
  PropertyKey visSize = PropertyKey::intern("vis.size");
};

const Keys &keys() {
  static const Keys instance;
  return instance;
}

const QString &recordName() {
  static const QString name = QStringLiteral("SUB");
  return name;
}

const QString &fallback() {
  static const QString variant = QStringLiteral("default");
  return variant;
}

Finding problem(const QString &text, const QString &element) {
  return {Finding::Severity::Warning, QString(), 0, text, QString(), false, element};
}

TemplateGeometry readTemplate(const QString &file) {
  TemplateGeometry content;
  auto net = std::make_shared<NetData>();
  NivraReader::Options options;
  options.source = FileAccess::Source::Trusted; // the templates belong to the program
  NivraReader::Result result = NivraReader(*net, logFinding).readGeomJsn(file, options);
  content.findings = std::move(result.findings);
  if (!result.ok) {
    content.error = QStringLiteral("Cannot read ") + file;
    return content;
  }
  if (net->assembledSubnets().find(recordName()) == nullptr) {
    content.error = QStringLiteral("%1 has no subnet named \"SUB\", which would tell its pins").arg(file);
    return content;
  }
  content.net = net;
  content.plan = std::make_shared<const TemplatePlan>(*net);
  for (const elements::Entry &entry : net->assembledSubnets()) {
    if (entry.name().compare(recordName(), Qt::CaseInsensitive) != 0)
      content.findings.push_back({Finding::Severity::Warning, file, 0,
                                  QStringLiteral("Templates do not hold other subnets: %1 is left out").arg(entry.name()),
                                  QString()});
  }
  return content;
}

} // namespace

SubAssembler::SubAssembler(NetData &net, const QString &folder, SubAssemblyCache &cache)
    : m_net(net)
    , m_folder(folder)
    , m_realFolder(QFileInfo(folder).canonicalFilePath())
    , m_templates(cache.folder(folder)) {}

QString SubAssembler::findFolder(const QString &programFolder) {
  for (const char *up : {"", "/..", "/../..", "/../../.."}) {
    const QFileInfo folder(programFolder + QLatin1String(up) + QStringLiteral("/net_subassemblies"));
    if (folder.isDir())
      return folder.canonicalFilePath();
  }
  NivraMsg::logWarning(QStringLiteral("Could not find net_subassemblies folder!"));
  return QString();
}

void SubAssembler::log(const QString &text, const QString &element) {
  m_result.findings.push_back(problem(text, element));
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
        QStringLiteral("Error - could not find subassembly:") + m_folder + QLatin1Char('/') + name + QStringLiteral(".geom");
    return made;
  }
  if (made.formulas.isEmpty())
    NivraMsg::log(QStringLiteral("### File containing formulas") + m_folder + QLatin1Char('/') + name +
                  QStringLiteral(".formulas") + QStringLiteral(" not found!"));
  const TemplateGeometry &read = m_templates->geometry.get(made.geometry, readTemplate);
  append(m_result.findings, read.findings);
  made.plan = read.plan;
  made.error = read.error;
  return made;
}

SubAssembler::Result SubAssembler::createElesOfAssembledSubnets(Flag flag, const Told &told) {
  QElapsedTimer timer;
  timer.start();
  m_result = Result();
  m_assembled.clear();
  std::vector<const elements::Entry *> subnets;
  for (const elements::Entry &entry : m_net.assembledSubnets()) {
    if (entry.name() != recordName())
      subnets.push_back(&entry);
  }
  if (m_templates == nullptr || subnets.empty())
    return m_result;
  reserve(subnets);
  findFreePrefixes(subnets);
  const auto count = static_cast<int>(subnets.size());
  NivraMsg::debug(QStringLiteral("     before rebuild %1 sec.\n").arg(static_cast<double>(timer.elapsed()) * Milli));
  if (told && !told(QStringLiteral("Creating Subnets"), 0, count))
    return m_result;
  for (int i = 0; i < count; ++i) {
    if (told && !told(QStringLiteral("Creating Subnets (%1/%2)").arg(i + 1).arg(count), i, count))
      return m_result;
    element &subnet = subnets[static_cast<std::size_t>(i)]->value;
    const QStringList pins = Topology::listedByPlace(subnet, Names::all().pins);
    if (createEleOfAssembledSubnet(subnet, pins, flag, true) >= 1) {
      ++m_result.assembled;
      continue;
    }
    subnet.set(keys().variant, PropertyText(fallback()));
    if (createEleOfAssembledSubnet(subnet, pins, flag, true) >= 1) {
      ++m_result.replaced;
      continue;
    }
    const QString name = subnets[static_cast<std::size_t>(i)]->name();
    log(QStringLiteral("Problem with assembled subnet ") + name + QStringLiteral("! It will be erased!"));
    m_net.assembledSubnets().erase(name);
    ++m_result.erased;
  }
  Finding summary = problem(QString(), QString());
  if (m_result.replaced > 0 || m_result.erased > 0) {
    summary.box = QStringLiteral("%1 assembled subnets had to be replaced with default,\n%2 assembled subnets had to be "
                                 "erased! See log for details!")
                      .arg(m_result.replaced)
                      .arg(m_result.erased);
    m_result.findings.push_back(summary);
  }
  if (m_result.newPins) {
    summary.box = QStringLiteral("Pin nodes have been added to net! Save manually!");
    m_result.findings.push_back(summary);
  }
  NivraMsg::debug(
      QStringLiteral("### createElesOfAssembledSubnets: %1 sec.\n").arg(static_cast<double>(timer.elapsed()) * Milli));
  return m_result;
}

int SubAssembler::createEleOfAssembledSubnet(element &subnet, const QStringList &pins, Flag flag, bool tryReset) {
  const QString name = subnet.value(Names::all().name);
  const QString variantName = subnet.value(keys().variant);
  if (name.isEmpty()) {
    log(QStringLiteral("Assembled subnet: name empty! Skipped!"));
    return 0;
  }
  if (variantName.isEmpty()) {
    log(QStringLiteral("Assembled subnet: variant empty for ") + name + QStringLiteral("! Skipped!"), name);
    return 0;
  }
  if (m_templates == nullptr)
    return 0;
  const Variant &used = variant(variantName);
  if (used.plan == nullptr) {
    log(used.error, name);
    return 0;
  }
  const TemplatePlan &plan = *used.plan;
  plan.giveDefaults(subnet);
  if (!used.icon.isEmpty())
    subnet.set(keys().icon, used.icon);
  if (!used.constraints.isEmpty())
    subnet.set(keys().constraints, PropertyText(used.constraints));
  if (plan.pinNames().isEmpty()) {
    log(QStringLiteral("Problem with creating assembledsubnet: loaded pins empty! Skipped!"), name);
    return 0;
  }
  for (int i = 0; i < plan.pinNames().size(); ++i) {
    if (plan.pin(i) != nullptr)
      continue;
    log(QStringLiteral("### in createEleOfAssembledSubnet: Problem with assembled subnet ") + name, name);
    log(QStringLiteral("The template %1 names a pin that is none of its nodes: %2").arg(variantName, plan.pinNames().at(i)),
        name);
    return 0;
  }
  const std::vector<Pin> netPins = nodesOf(pinsOf(subnet, pins, plan.pinNames(), tryReset));
  if (netPins.empty()) {
    log(QStringLiteral("Problem with creating assembledsubnet: pins still empty! Skipped!"), name);
    return 0;
  }
  const Place place = placeSubnet(subnet, netPins);
  if (flag == Flag::All)
    createElements(subnet, used, netPins, place);
  return 1;
}

QStringList SubAssembler::pinsOf(element &subnet, const QStringList &pins, const QStringList &ofTemplate, bool tryReset) {
  if (pins.size() == ofTemplate.size())
    return pins;
  const QString name = subnet.value(Names::all().name);
  if (!pins.isEmpty() && tryReset)
    log(QStringLiteral("Assembled subnet ") + name + QStringLiteral(": pinList sizes not consistent! reset tried!"), name);
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

SubAssembler::Place SubAssembler::placeSubnet(element &subnet, const std::vector<Pin> &pins) {
  const auto number = [&](PropertyKey key) {
    const double value = m_net.value(subnet, key);
    return value == NetData::NoValue ? 0.0 : value;
  };
  if (pins.size() < 2 || pins[0].node == nullptr || pins[1].node == nullptr)
    return {m_net.position(subnet), number(keys().width), number(keys().rotation)};
  std::vector<QPointF> places;
  QStringList others;
  for (const Pin &pin : pins) {
    if (pin.node != nullptr)
      places.push_back(m_net.position(*pin.node));
    else
      others.append(pin.name);
  }
  const QPointF way = places[1] - places[0];
  const Place place{TemplatePlacement::mean(places), std::hypot(way.x(), way.y()),
                    TemplatePlacement::rotation(places[0], places[1])};
  subnet.set(keys().width, PropertyText::ofNumber(place.width));
  subnet.set(keys().rotation, PropertyText::ofNumber(place.rotation));
  subnet.set(Names::all().x, PropertyText::ofNumber(place.center.x()));
  subnet.set(Names::all().y, PropertyText::ofNumber(place.center.y()));
  if (!others.isEmpty())
    log(QStringLiteral("pinList contains non-net nodes: ") + others.join(QLatin1Char(';')), subnet.value(Names::all().name));
  return place;
}

/// A node that the network lacks, to be saved by hand.
void SubAssembler::createPin(const element &source, const QString &name, const QPointF &at) {
  element pin = source;
  pin.set(QStringLiteral("refEle"), source.value(Names::all().name));
  for (const PropertyKey key : {Names::all().gasNode, keys().driven})
    pin.erase(key);
  pin.set(Names::all().name, PropertyText(name));
  pin.set(Names::all().x, PropertyText::ofNumber(at.x()));
  pin.set(Names::all().y, PropertyText::ofNumber(at.y()));
  pin.set(QStringLiteral("doSave"), QStringLiteral("false"));
  pin.set(QStringLiteral("vis"), QStringLiteral("AUTO"));
  log(QStringLiteral("This pin is new and needs saving: ") + name, name);
  m_net.addElement(std::move(pin), logFinding);
  m_freePrefixes.clear();
  m_result.newPins = true;
}

void SubAssembler::createElements(element &subnet, const Variant &variant, const std::vector<Pin> &pins,
                                  const Place &place) {
  const TemplatePlan &plan = *variant.plan;
  const TemplatePlacement placement(plan.pinPlaces(), place.width, place.rotation, place.center);
  QStringList pinNames;
  std::vector<PropertyText> pinTexts;
  pinTexts.reserve(pins.size());
  for (std::size_t i = 0; i < pins.size(); ++i) {
    const element &source = *plan.pin(static_cast<int>(i));
    if (pins[i].node == nullptr)
      createPin(source, pins[i].name, placement.place(plan.pinPlaces()[i]));
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
  m_assembled.push_back({&variant, QString::fromStdString(prefix), pinNames, std::move(names)});
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
    m_freePrefixes.erase(QString::fromStdString(prefix));
}

std::vector<FormulaDefinition> SubAssembler::definitions(Findings &findings) const {
  std::vector<FormulaDefinition> definitions;
  std::map<const Variant *, TemplateDefinitions> ofVariants;
  for (const Assembled &assembled : m_assembled) {
    const Variant &variant = *assembled.variant;
    auto known = ofVariants.find(&variant);
    if (known == ofVariants.end()) {
      known = ofVariants.emplace(&variant, variant.plan).first;
      known->second.read(variant.constraints, m_templates->constraints, findings);
      known->second.read(variant.formulas, m_templates->formulas, findings);
    }
    known->second.addFor(assembled.subnet, assembled.pins, assembled.names, definitions);
  }
  return definitions;
}
