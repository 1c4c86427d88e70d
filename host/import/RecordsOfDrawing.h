#pragma once

#include "facade/contract/Records.h"
#include "import/DxfImport.h"

namespace refhost {

/// Lengths of the file on paper.
struct PaperScale {
    double mmPerUnit = 1;
    explicit PaperScale(const ImportOptions &o) : mmPerUnit(o.unitInMetres * 1000 / o.scale) {}
};

/// Dash, gap, dash, ... in paper millimetres; empty = continuous. `shifted` when the pattern of the file
/// begins with a gap and the first dash was brought to the front.
std::vector<double> patternOf(const std::vector<double> &dashes, double mmPerUnit, bool &shifted);

/// A face that is there for a font file: without its ending, stroke fonts replaced.
QString faceOf(const QString &fontFile, bool &replaced);
ZolWDoc::tTxd textTypeOf(const DxfTextStyle &, const PaperScale &, int charSet, bool &replacedFace);

/// Names that no other of the table has, and no longer than the table holds.
class FreeNames {
public:
    explicit FreeNames(int longest) : m_longest(longest) {}
    void take(const QString &name) { m_taken.insert(name, true); }
    QString unique(const QString &wanted);
private:
    int m_longest;
    QHash<QString, bool> m_taken;
};

} // namespace refhost
