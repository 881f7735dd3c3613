#pragma once

#include <QStringList>

struct NivraGasParams;
struct NivraScenario;

/// The positional fields of the text scenario configurations.
namespace ScenarioFields {

constexpr int Count = 34; ///< positional fields; what follows in the one-line form are keys with values

/// Fewer fields fill fewer members. An unreadable number gives 0. \param file that the fields were read from
void apply(const QStringList &fields, const QString &file, NivraScenario &scenario, NivraGasParams &gas);

} // namespace ScenarioFields
