#include "search/searchhint.h"

#include <model/names.h>
#include <tools/searchcriteria.h>

#include <QRegularExpression>
#include <QSet>

namespace {

/// The properties and types that there are and that the search looks at.
struct Scope {
  QSet<QString> properties; ///< in one case
  bool hasType = false;
};

Scope scopeOf(NetData &net, const SearchParams &params) {
  SearchedProperties properties(params.prop);
  const SearchedTypes types(params.type);
  Scope scope;
  QSet<QString> seenTypes;
  net.forEach(NetData::AllTypes, [&](const element &e) {
    const QString type = e.value(Names::all().type);
    if (!scope.hasType && !seenTypes.contains(type)) {
      seenTypes.insert(type);
      scope.hasType = types.matches(type);
    }
  });
  for (const PropertyKey key : net.propertyKeys()) {
    if (properties.contains(key))
      scope.properties.insert(key.name().toCaseFolded());
  }
  return scope;
}

/// A person who types "pipe" into the field that has the cursor means the type.
bool isTypeWord(NetData &net, const QString &text) {
  SearchParams ofType;
  ofType.type = text;
  return QRegularExpression(text).isValid() && scopeOf(net, ofType).hasType;
}

} // namespace

QString SearchHint::of(NetData &net, const SearchParams &params, std::size_t found) {
  const auto isSound = [](const QString &pattern) {
    return QRegularExpression(pattern).isValid();
  };
  const bool isProperty = !PropertyKey::find(params.prop).isNull(); // or a pattern such as "^p$"
  if (net.isEmpty() || (found > 0 && !isProperty) || !isSound(params.prop) || !isSound(params.type))
    return QString();
  const Scope scope = scopeOf(net, params);
  if (!scope.hasType)
    return tr("No element is of the type \"%1\". Types are codes or words, such as p or pipe.").arg(params.type);
  if (scope.properties.isEmpty())
    return tr("There is no such property: \"%1\".").arg(params.prop);
  if (found == 0 && !params.searchString.isEmpty() && params.prop == QLatin1String("^name$"))
    return tr("Only names are searched. For other values write the property into Prop, or nothing for all of them.");
  const bool isNameAlone = params.type.isEmpty() && params.searchString.isEmpty() && params.formula.isEmpty();
  if (found == 0 && !params.name.isEmpty() && isNameAlone)
    return isTypeWord(net, params.name)
               ? tr("No name fits \"%1\". To find elements of this type write it into Type.").arg(params.name)
               : tr("No name fits \"%1\".").arg(params.name);
  if (scope.properties.size() > 1 && scope.properties.contains(params.prop.toCaseFolded()))
    return tr("\"%1\" is a pattern and finds %2 properties with it in their names; \"^%1$\" finds %1 alone.")
        .arg(params.prop)
        .arg(scope.properties.size());
  return QString();
}
