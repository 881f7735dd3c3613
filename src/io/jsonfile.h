#pragma once

#include <QJsonObject>
#include <QString>

#include <optional>

/// Whether the name tells the JSON form.
bool isJsonPath(const QString &path);
/// With the suffix of the JSON form: ".jsn", or the longer ".json" where only that is there.
QString jsonPathOf(const QString &textPath);

/// A file that is one JSON object. Nothing, and the path with the reason, when it cannot be read as one.
std::optional<QJsonObject> readJsonObject(const QString &path, QString *reason);
