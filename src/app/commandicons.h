#pragma once

class QObject;

/// The icons of the commands that the form of the window names.
namespace CommandIcons {

void give(const QObject &window);

} // namespace CommandIcons
