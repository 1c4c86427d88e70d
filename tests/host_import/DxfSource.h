#pragma once

#include "import/DxfImport.h"

#include "support/QtClasses.h"

#include <algorithm>

/// Small drawings written as rows, and what an import makes of them as text.
namespace source {

inline const QByteArray kLayers =
    "0 TABLE|2 LAYER|0 LAYER|2 0|70 0|62 7|6 CONTINUOUS|0 LAYER|2 A|70 0|62 3|6 CONTINUOUS|0 ENDTAB";
inline const QByteArray kStyle =
    "0 TABLE|2 STYLE|0 STYLE|2 STANDARD|70 0|40 0|41 1|50 0|71 0|42 2|3 arial.ttf|4 |0 ENDTAB";

/// "0 LINE|8 0|10 1.5": one group each; a blank parts code and value.
inline QByteArray groups(const QByteArray &rows)
{
    QByteArray out;
    if (rows.isEmpty()) return out;
    for (const QByteArray &row : rows.split('|')) {
        const auto cut = row.indexOf(' ');
        out += row.left(cut) + '\n' + (cut < 0 ? QByteArray() : row.mid(cut + 1)) + '\n';
    }
    return out;
}

struct Dxf {
    QByteArray header = "9 $ACADVER|1 AC1015", tables = {}, blocks = {}, entities = {};
    QByteArray bytes() const
    {
        QByteArray out;
        for (const auto &[name, rows] : {std::pair{"HEADER", header}, {"TABLES", tables}, {"BLOCKS", blocks},
                                         {"ENTITIES", entities}})
            out += "0\nSECTION\n2\n" + QByteArray(name) + '\n' + groups(rows) + "0\nENDSEC\n";
        return out + "0\nEOF\n";
    }
};

inline QString written(const QTemporaryDir &folder, const QByteArray &bytes, const QString &name = "plan.dxf")
{
    QFile f(folder.filePath(name));
    if (!f.open(QIODevice::WriteOnly)) qFatal("no temporary file");
    f.write(bytes);
    return f.fileName();
}

inline QString number(double v)
{
    const QString s = QString::number(std::round(v * 1e4) / 1e4, 'g', 10);
    return s == "-0" ? "0" : s;
}

inline QString dump(const refhost::Element &e)
{
    static const char *const kKinds[] = {"Point", "Line", "Ellipse", "Fill", "Text", "Symbol"};
    QString s = QString("%1 l%2 p%3").arg(kKinds[int(e.kind)]).arg(e.layId).arg(e.penColorId);
    if (e.penStyleId != -1) s += QStringLiteral(" t%1").arg(e.penStyleId);
    for (const refhost::Vertex &v : e.vertices)
        s += u' ' + number(v.x) + u',' + number(v.y) + (v.bulge != 0 ? u'b' + number(v.bulge) : QString());
    for (int ring : e.rings) s += QStringLiteral(" ring%1").arg(ring);
    if (e.closed) s += " closed";
    if (e.kind == refhost::ElementKind::Ellipse)
        s += QStringLiteral(" r%1 %2..%3").arg(number(e.ratio), number(e.from), number(e.to));
    if (e.kind == refhost::ElementKind::Text)
        s += QString(" h%1 a%2 %3° '%4'").arg(number(e.size)).arg(e.align).arg(number(e.rotation), e.text);
    if (e.kind == refhost::ElementKind::Symbol)
        s += QStringLiteral(" x%1 %2°").arg(number(e.scale), number(e.rotation));
    return s.replace(u'\n', u'/');
}

/// What the act complains about; empty when it does not.
template <class Act> QString errorOf(Act act)
{
    try {
        act();
    } catch (const refhost::DocumentError &e) {
        return e.text();
    }
    return {};
}

/// One imported drawing at 1:1000, a unit being a metre.
struct Imported {
    std::unique_ptr<refhost::SqliteDoc> doc = refhost::SqliteDoc::create(":memory:");
    refhost::ImportReport report;
    explicit Imported(const QByteArray &bytes, refhost::ImportOptions options = {1, 1000})
    {
        const QTemporaryDir folder;
        report = refhost::DxfImport::write(refhost::DxfImport::parse(written(folder, bytes)), *doc, options);
    }
    QString elements() const                    ///< each as a text, " | " between them
    {
        QStringList all;
        for (const refhost::Element &e : doc->elements()) all << dump(e);
        return all.join(" | ");
    }
    refhost::KindTally tally(const char *kind) const
    {
        const auto found = std::ranges::find(report.kinds, QLatin1String(kind), &refhost::KindTally::kind);
        return found == report.kinds.end() ? refhost::KindTally() : *found;
    }
};

} // namespace source
