#include "facade/contract_tests/Samples.h"

#include "facade/contract/DrawingObjects.h"

#include <QMetaMethod>

#include <cmath>

namespace ZolWDoc::contract {
namespace {

/// Asked first, because Qt writes a warning about a call to a member that is not there.
void requireMember(ZOLW_Doc &doc, const char *name)
{
    const QMetaObject *const type = doc.lateBound()->metaObject();
    for (int i = 0; i < type->methodCount(); ++i)
        if (type->method(i).name() == name) return;
    throw Broken(QStringLiteral("there is no member of the name ") + QLatin1String(name));
}

bool lineTypeByName(ZOLW_Doc &doc, int id, tPenStyle &style)
{
    requireMember(doc, "bGetPenStyle");
    bool known = false;
    hold(QMetaObject::invokeMethod(doc.lateBound(), "bGetPenStyle", Qt::DirectConnection,
                                   Q_RETURN_ARG(bool, known), Q_ARG(int, id),
                                   Q_ARG(ZolWDoc::tPenStyle *, &style)),
         QStringLiteral("bGetPenStyle cannot be called by its name"));
    return known;
}

DrawingObjects drawn(ZOLW_Doc &doc, const LineElement &line)
{
    requireMember(doc, "ElRec2ObjLst");
    DrawingObjects objects;
    hold(QMetaObject::invokeMethod(doc.lateBound(), "ElRec2ObjLst", Qt::DirectConnection,
                                   Q_RETURN_ARG(ZolWDoc::DrawingObjects, objects),
                                   Q_ARG(ZolWDoc::LineElement, line)),
         QStringLiteral("ElRec2ObjLst cannot be called by its name"));
    return objects;
}

void lineTypeIsTold(ZOLW_Doc &doc)
{
    if (!doc.lateBound()) return;
    const tPenStyle p = stored<tPenStyle>(doc, 1);
    tPenStyle told;
    hold(lineTypeByName(doc, p.iPenStyleId, told) && told == p, QStringLiteral("another line type is told"));
    hold(!lineTypeByName(doc, unusedId<tPenStyle>(doc), told),
         QStringLiteral("an unknown line type is told"));
    hold(!lineTypeByName(doc, 65536 + p.iPenStyleId, told),
         QStringLiteral("a number of more than 16 bits is cut"));
}

double drawnLength(const DrawingObjects &objects)
{
    double sum = 0;
    for (const Stroke &s : objects.strokes)
        for (size_t i = 1; i < s.points.size(); ++i)
            sum += std::hypot(s.points[i].x - s.points[i - 1].x, s.points[i].y - s.points[i - 1].y);
    return sum;
}

void lineIsDrawn(ZOLW_Doc &doc)
{
    if (!doc.lateBound()) return;
    tPenStyle p = sample<tPenStyle>().make(doc, 1);
    p.Pattern.clear();
    p.iPenStyleId = doc.lineTypes().add(p);
    const LineElement line{{1, 2}, {31, 42}, p.iPenStyleId};
    DrawingObjects whole = drawn(doc, line);
    same(int(whole.strokes.size()), 1, "strokes of a continuous line");
    hold(std::abs(drawnLength(whole) - 50) < 1e-6, QStringLiteral("a continuous line has another length"));
    hold(std::abs(whole.strokes[0].width - double(p.Size)) < 1e-6,
         QStringLiteral("the stroke has another thickness"));
    p.Pattern = {4, 1};
    doc.lineTypes().update(p);
    whole = drawn(doc, line);
    hold(whole.strokes.size() >= 10 && std::abs(drawnLength(whole) - 40) < 4.1,
         QStringLiteral("dashes do not follow the pattern"));
    p.PenDown = false;
    doc.lineTypes().update(p);
    hold(drawn(doc, line).strokes.empty(), QStringLiteral("a line with the pen up is drawn"));
    hold(drawn(doc, {{0, 0}, {9, 0}, unusedId<tPenStyle>(doc)}) == DrawingObjects(),
         QStringLiteral("an unknown line type draws something"));
}

} // namespace

void appendLateBoundPromises(Promises &all)
{
    const QString role = QStringLiteral("members by name");
    all.push_back(
        {role, QStringLiteral("bGetPenStyle tells the line type of an identifier"), lineTypeIsTold, true});
    all.push_back({role, QStringLiteral("ElRec2ObjLst draws a line with its thickness and pattern"),
                   lineIsDrawn, true});
}

} // namespace ZolWDoc::contract
