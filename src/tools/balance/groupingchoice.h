#pragma once

#include <tools/category.h>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <rules/grouping.h>
#include <vector>

class NetData;

/// What the nodes of a balance can be grouped by.
class GroupingChoice {
  Q_DECLARE_TR_FUNCTIONS(GroupingChoice)
public:
  enum class By { Whole, Part, Category, Property };

  By by = By::Whole;
  QString property{}; ///< its name

  /// For a person.
  QString title() const;
  /// Which it is, for lists.
  QString key() const;
  /// Groups of the nodes. A node in several categories is in the first of them. \param net is left as it is
  Grouping grouping(NetData &net, const NetworkFacts &facts, const std::vector<Category> &categories) const;

  /// Whole network, connected parts, layers, zones, categories, and further properties that have texts at nodes.
  static std::vector<GroupingChoice> all(const NetworkFacts &facts, bool hasCategories);

private:
  static QStringList textProperties(const NetworkFacts &facts);
  static Grouping byCategory(NetData &net, const NetworkFacts &facts, const std::vector<Category> &categories);
};
