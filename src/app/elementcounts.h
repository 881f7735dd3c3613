#pragma once

#include <QString>

class NetData;

namespace ElementCounts {

/// How many elements of each type there are, as the table of elements counts them: "6 nodes, 1 drive, 4 pipes". Empty for
/// none.
QString of(NetData &net);

} // namespace ElementCounts
