#pragma once

#include <QJsonObject>
#include <QString>

#include <optional>

/// Whether the name tells the JSON form.
bool isJsonPath(const QString &path);

/// A file that is one JSON object. Nothing, and the path with the reason, when it cannot be read as one.
std::optional<QJsonObject> readJsonObject(const QString &path, QString *reason);
