#pragma once

#include <QGenericPlugin>

/// A plugin of the toolkit that ends a program as soon as its window is on the screen and there is nothing left to do. So
/// two programs can be measured from their start to their end without a word in either.
class QuitWhenShown : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "quitwhenshown.json")

public:
  QObject *create(const QString &name, const QString &arguments) override;
};
