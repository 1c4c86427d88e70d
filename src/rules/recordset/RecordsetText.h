#pragma once

#include "rules/recordset/RecordsetXml.h"
#include "rules/recordset/XmlScanner.h"

namespace QV_DOC_CONTROLS {

/// A refusal whose line is still a place in the text.
struct Refused {
    RecordsetRefusal::Why why;
    qsizetype at;
    QString subject{};
};

/// The letters of a file in the encoding that its marks or its first line say. Throws Refused.
QString lettersOf(const QByteArray &bytes);

/// Appends what a value says, its references resolved. Throws Refused.
void resolve(QStringView raw, qsizetype at, QString &out);
QString resolved(const XmlScanner::Attribute &a);

} // namespace QV_DOC_CONTROLS
