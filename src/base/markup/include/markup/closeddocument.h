#pragma once

#include <QTextDocument>

/// A document for markup out of a workspace: its pictures and style sheets lead nowhere. It has an answer to everything
/// that markup asks for, since a picture of which it gets none is looked for by the toolkit itself, in files.
class ClosedDocument : public QTextDocument {
protected:
  QVariant loadResource(int type, const QUrl &name) override;
};
