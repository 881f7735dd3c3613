#pragma once

#include <QIcon>

/// The product logo (":/icons/nivra.svg"); also makes sure that the resource is linked in. GUI thread only.
QIcon productLogo();
