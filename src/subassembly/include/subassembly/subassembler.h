#pragma once

#include <base/finding.h>
#include <formulas/formulafile.h>
#include <model/netdata.h>
#include <subassembly/subassemblycache.h>

#include <QCoreApplication>
#include <QStringList>

#include <functional>
#include <map>

/// Turns the subnet elements of a network into real elements, from the templates of a folder. A template is a small network
/// "VARIANT.geom" with one subnet named "SUB", which holds pins and default values; constraints and formulas for its
/// elements stand in "VARIANT.geom.csv" and "VARIANT.formulas". An element T of the template becomes SUBNET_T.
class SubAssembler {
  Q_DECLARE_TR_FUNCTIONS(SubAssembler)
public:
  /// What to build.
  enum class Flag {
    All,          ///< the elements of the template and everything about the subnet
    PlacementOnly ///< only what the subnet element itself says: defaults, position, direction
  };
  /// Told the text for a person and how far the work has come; false stops.
  using Progress = std::function<bool(const QString &text, int done, int count)>;

  struct Result {
    int assembled = 0;
    int replaced = 0; ///< with the variant "default"
    int erased = 0;
    bool newPins = false; ///< pin nodes were added to the network
    Findings findings;
  };

  /// \param folder of the templates; when it is empty nothing is assembled
  /// \param told what it is doing, and what the network and the templates say
  SubAssembler(NetData &net, const QString &folder, SubAssemblyCache &cache = SubAssemblyCache::instance(), Told told = {});

  /// "net_subassemblies" in the program's folder or up to three above it; empty, and told, when there is none.
  static QString findFolder(const QString &programFolder, const Told &told = {});

  /// Builds all assembled subnets of the network.
  Result createElesOfAssembledSubnets(Flag flag = Flag::All, const Progress &progress = {});
  /// Gives the subnets, which were built before, the defaults of their templates for what they do not say.
  void giveDefaults();
  /// Builds one; below 1 on failure. \param tryReset whether a pin list of another length than the template's may be reset
  int createEleOfAssembledSubnet(element &subnet, const QStringList &pins, Flag flag, bool tryReset);

  const Result &result() const { return m_result; }
  /// The templates' formulas and constraints as those of the created elements; what is wrong with them is in the findings.
  std::vector<FormulaDefinition> definitions(Findings &findings) const;

private:
  /// The files of a variant, looked up once.
  struct Variant {
    QString geometry;
    QString constraints; ///< empty when there is none, as the following
    QString formulas;
    PropertyText icon;                        ///< its file's name
    std::shared_ptr<const TemplatePlan> plan; ///< null when it cannot be used
    QString error;
  };
  /// A node that a subnet connects to.
  struct Pin {
    QString name;
    element *node; ///< null when the network lacks it
  };
  struct Frame { ///< of the subnet in the drawing
    QPointF center;
    double width = 0.0;
    double rotation = 0.0; ///< degrees
  };
  struct Assembled {
    const Variant *variant;
    QString subnet;
    QStringList pins;
    std::vector<PropertyText> names; ///< of the created elements, as the plan orders them
  };

  const Variant &variant(const QString &name);
  QString templateFile(const QString &variant, const char *suffix) const;
  QStringList pinsOf(element &subnet, const QStringList &pins, const QStringList &ofTemplate, bool tryReset);
  std::vector<Pin> nodesOf(const QStringList &pins) const;
  /// Puts the subnet between its pins; where these are not there it stays as it is.
  Frame layOut(element &subnet, const std::vector<Pin> &pins);
  void createElements(element &subnet, const Variant &variant, const std::vector<Pin> &pins, const Frame &frame);
  void reserve(const std::vector<const elements::Entry *> &subnets);
  void findFreePrefixes(const std::vector<const elements::Entry *> &subnets);
  void createPin(const element &source, const QString &name, const QPointF &at);
  bool hasSoundPins(const TemplatePlan &plan, const QString &variant, const QString &subnet);
  void noteSummary();
  void note(const QString &text, const QString &element = QString());
  void debug(const QString &text) const { tell(m_told, Finding::Severity::Debug, text); }

  NetData &m_net;
  QString m_folder;
  Told m_told;
  QString m_realFolder; ///< wherever links lead
  std::shared_ptr<SubAssemblyTemplates> m_templates;
  std::map<QString, Variant> m_variants;
  std::vector<Assembled> m_assembled;
  elements m_freePrefixes{QString()}; ///< "SUBNET_" with which no name begins but those of the subnet's own elements
  Result m_result;
};
