#pragma once

#include <base/nivramsg.h>

/// The message boxes of the toolkit, as the sink for the boxes of NivraMsg.
namespace MessageBox {

/// Over the dialog or window that is in use; waits for the person. GUI thread only.
NivraMsg::Answer show(const NivraMsg::Box &box);

} // namespace MessageBox
