#pragma once

#include "networkloader.h"
#include "stagetimes.h"

#include <base/nivramsg.h>

#include <QJsonObject>

/// The answer of --info.
namespace NetworkInfo {

/// Ends the stage "count" of the times, which are part of the answer.
QJsonObject of(NetData &net, const NetworkLoader &loader, StageTimes &times, const NivraMsg::Recorder &recorder);

} // namespace NetworkInfo
