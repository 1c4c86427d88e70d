#include "import/RecordsOfDrawing.h"

#include <algorithm>

namespace refhost {
namespace {

constexpr double kDot = 0.1;            // millimetres, as short as a pen draws
constexpr double kUsualHeight = 2;      // of letters, millimetres
const QString kStrokeFace = QStringLiteral("DejaVu Sans");

struct Face {
    const char *file, *face;
};
constexpr Face kFaces[] = {
    {"arial", "Arial"},         {"arialbd", "Arial"},         {"ariali", "Arial"},
    {"arialn", "Arial Narrow"}, {"times", "Times New Roman"}, {"timesbd", "Times New Roman"},
    {"cour", "Courier New"},    {"consola", "Consolas"},      {"tahoma", "Tahoma"},
    {"verdana", "Verdana"},     {"calibri", "Calibri"},       {"isocpeur", "ISOCPEUR"},
    {"isocpeui", "ISOCPEUR"},   {"isocteur", "ISOCTEUR"},     {"swissl", "Swis721 Lt BT"},
    {"romantic", "Romantic"},
};

/// Neighbours of one sort become one, dots are dashes without length; the pattern is a ring.
std::vector<double> merged(const std::vector<double> &dashes)
{
    std::vector<double> out;
    for (double d : dashes) {
        if (!out.empty() && (out.back() < 0) == (d < 0)) out.back() += d;
        else out.push_back(d);
    }
    if (out.size() > 1 && (out.front() < 0) == (out.back() < 0)) {
        out.front() += out.back();
        out.pop_back();
    }
    return out;
}

} // namespace

std::vector<double> patternOf(const std::vector<double> &dashes, double mmPerUnit, bool &shifted)
{
    std::vector<double> pattern = merged(dashes);
    shifted = false;
    if (pattern.size() < 2) return {};  // nothing but dashes, or nothing but gaps around lost texts
    if (pattern.front() < 0) {
        std::ranges::rotate(pattern, pattern.begin() + 1);
        shifted = true;
    }
    for (double &d : pattern) d = d == 0 ? kDot : std::abs(d) * mmPerUnit;
    return pattern;
}

QString faceOf(const QString &fontFile, bool &replaced)
{
    replaced = false;
    QString file =
        fontFile.mid(std::max(fontFile.lastIndexOf(u'/'), fontFile.lastIndexOf(u'\\')) + 1).trimmed();
    const bool trueType = file.endsWith(QStringLiteral(".ttf"), Qt::CaseInsensitive)
                          || file.endsWith(QStringLiteral(".otf"), Qt::CaseInsensitive)
                          || file.endsWith(QStringLiteral(".ttc"), Qt::CaseInsensitive);
    const bool strokes = file.endsWith(QStringLiteral(".shx"), Qt::CaseInsensitive)
                         || file.endsWith(QStringLiteral(".lff"), Qt::CaseInsensitive);
    if (trueType || strokes) file.chop(4);
    for (const Face &f : kFaces)
        if (file.compare(QString::fromLatin1(f.file), Qt::CaseInsensitive) == 0)
            return QString::fromLatin1(f.face);
    static const QStringList kStrokes{"txt",      "simplex", "romans",   "romanc", "romand",  "romant",
                                      "isocp",    "isocp2",  "isocp3",   "isoct",  "monotxt", "italic",
                                      "standard", "unicode", "ltypeshp", "gothice"};
    replaced = strokes || kStrokes.contains(file, Qt::CaseInsensitive);
    return replaced || file.isEmpty() ? kStrokeFace : file;
}

ZolWDoc::tTxd textTypeOf(const DxfTextStyle &s, const PaperScale &paper, int charSet, bool &replacedFace)
{
    ZolWDoc::tTxd t;
    const double height = (s.height > 0 ? s.height : s.lastHeight) * paper.mmPerUnit;
    t.Name = s.name;
    t.Weight = s.bold ? 700 : 0;
    t.Italic = s.italic;
    t.Underline = s.underline;
    t.Align = 24;
    t.Size_mm = float(height > 0.05 && height < 1000 ? height : kUsualHeight);
    t.YwFact = 1;
    t.XwFact = float(s.widthFactor);
    t.RowDist = float(5 / 3.0);
    t.CharSet = charSet;
    t.Facename = faceOf(s.face, replacedFace);
    t.DspZoom = quint8(std::clamp(int(20 / t.Size_mm), 1, 100));
    return t;
}

QString FreeNames::unique(const QString &wanted)
{
    QString name = wanted.left(m_longest);
    for (int n = 2; m_taken.contains(name) || name.isEmpty(); ++n) {
        const QString number = u'_' + QString::number(n);
        name = wanted.left(m_longest - number.size()) + number;
    }
    m_taken.insert(name, true);
    return name;
}

} // namespace refhost
