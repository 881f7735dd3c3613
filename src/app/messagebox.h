#pragma once

#include <base/nivramsg.h>

#include <QCoreApplication>

/// The message boxes of the toolkit, as the sink for the boxes of NivraMsg.
class MessageBox {
  Q_DECLARE_TR_FUNCTIONS(MessageBox)
public:
  /// Over the dialog or window that is in use; waits for the person. GUI thread only.
  static NivraMsg::Answer show(const NivraMsg::Box &box);
};
