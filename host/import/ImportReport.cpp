#include "import/DrawingWriter.h"

#include <algorithm>
#include <numeric>

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

struct KindName {
    const char *kind;
    Text name;
};
constexpr KindName kKinds[] = {
    {"LINE", {30325, u"vonal"}},
    {"LWPOLYLINE", {30326, u"vonallánc"}},
    {"POLYLINE", {30327, u"vonallánc (régi)"}},
    {"ARC", {30328, u"körív"}},
    {"CIRCLE", {30329, u"kör"}},
    {"ELLIPSE", {30330, u"ellipszis"}},
    {"SPLINE", {30331, u"spline görbe"}},
    {"POINT", {30332, u"pont"}},
    {"SOLID", {30333, u"kitöltött idom"}},
    {"TRACE", {30334, u"vastag szakasz"}},
    {"3DFACE", {30335, u"térbeli lap"}},
    {"HATCH", {30336, u"sraffozás"}},
    {"LEADER", {30337, u"mutatóvonal"}},
    {"DIMENSION", {30338, u"méretezés"}},
    {"INSERT", {30339, u"blokkbeillesztés"}},
    {"ATTRIB", {30340, u"blokkattribútum"}},
    {"ATTDEF", {30341, u"attribútumsablon"}},
    {"TEXT", {30342, u"felirat"}},
    {"MTEXT", {30343, u"többsoros felirat"}},
    {"MLINE", {30344, u"többszörös vonal"}},
    {"MULTILEADER", {30345, u"mutatóvonalas felirat"}},
    {"ACAD_TABLE", {30346, u"táblázat"}},
    {"3DSOLID", {30347, u"térbeli test"}},
    {"REGION", {30348, u"régió"}},
    {"BODY", {30349, u"test"}},
    {"SURFACE", {30350, u"felület"}},
    {"MESH", {30351, u"háló"}},
    {"WIPEOUT", {30352, u"kitakarás"}},
    {"IMAGE", {30353, u"kép"}},
    {"PDFUNDERLAY", {30354, u"PDF-alátét"}},
    {"DWFUNDERLAY", {30355, u"DWF-alátét"}},
    {"DGNUNDERLAY", {30356, u"DGN-alátét"}},
    {"OLE2FRAME", {30357, u"beágyazott objektum"}},
    {"OLEFRAME", {30358, u"beágyazott objektum (régi)"}},
    {"TOLERANCE", {30359, u"tűrésjel"}},
    {"SHAPE", {30360, u"alakzat"}},
    {"RAY", {30361, u"félegyenes"}},
    {"XLINE", {30362, u"szerkesztőegyenes"}},
    {"VIEWPORT", {30363, u"nézetablak"}},
    {"ACAD_PROXY_ENTITY", {30364, u"más program objektuma"}},
    {"ARCALIGNEDTEXT", {30365, u"íves felirat"}},
    {"LIGHT", {30366, u"fényforrás"}},
    {"HELIX", {30367, u"csavarvonal"}},
};
// In the order of Loss.
constexpr Text kLosses[] = {
    {30370, u"szín a legközelebbi tollal"},
    {30371, u"vonaltípus a benne álló felirat vagy jel nélkül"},
    {30372, u"vonaltípus hézag helyett vonással kezdődik"},
    {30373, u"spline görbe vonallánccal közelítve"},
    {30374, u"mintás sraffozás csak a határvonalával"},
    {30375, u"vonallánc a saját szélessége nélkül"},
    {30376, u"felirat a belül váltakozó formák nélkül"},
    {30377, u"tükrözött felirat olvashatóan"},
    {30378, u"ferde síkú objektum felülnézetben"},
    {30379, u"felirattípus vonalas betűje helyettesítve"},
    {30380, u"térbeli vonallánc magasságok nélkül"},
    {30396, u"átmenetes kitöltés egy színnel"},
    {30398, u"réteg a saját vonalvastagsága nélkül"},
};
static_assert(std::size(kLosses) == size_t(Loss::Count));
constexpr Text kElements[] = {{30389, u"pont"},     {30390, u"vonal"},   {30391, u"ellipszis"},
                              {30392, u"kitöltés"}, {30393, u"felirat"}, {30394, u"jelkulcs"}};

using Rows = std::vector<ImportReport::Row>;

void append(Rows &rows, Text text, int count)
{
    if (count > 0) rows.push_back({txt(text), count});
}

int sumOf(const std::vector<KindTally> &kinds, int KindTally::*member)
{
    return std::accumulate(kinds.begin(), kinds.end(), 0,
                           [=](int n, const KindTally &t) { return n + t.*member; });
}

QString lines(const Rows &rows)
{
    QString out;
    for (const auto &row : rows) out += QStringLiteral("\n  %1  %2").arg(row.count).arg(row.text);
    return out;
}

} // namespace

QString kindText(const QString &kind)
{
    const auto found = std::ranges::find_if(kKinds,
                                            [&](const KindName &k) { return kind == QLatin1String(k.kind); });
    return found == std::end(kKinds) ? kind : join(found->name, QStringLiteral(" (%1)").arg(kind));
}

void nameRows(ImportReport &report, const int (&losses)[int(Loss::Count)])
{
    for (const KindTally &t : report.kinds)
        if (t.lost > 0) report.notCarried.push_back({kindText(t.kind), t.lost});
    std::ranges::stable_sort(report.notCarried, std::greater(), &ImportReport::Row::count);
    report.paperSpace = sumOf(report.kinds, &KindTally::paper);
    append(report.notes, {30384, u"papírtér-objektum kihagyva"}, report.paperSpace);
    append(report.notes, {30381, u"láthatatlan objektum kihagyva"},
           sumOf(report.kinds, &KindTally::invisible));
    append(report.notes, {30382, u"üres objektum kihagyva"}, sumOf(report.kinds, &KindTally::empty));
    append(report.notes, {30383, u"objektum sehol be nem illesztett blokkban"},
           sumOf(report.kinds, &KindTally::unused));
    append(report.notes, {30395, u"önmagát tartalmazó blokk kihagyva"}, report.endlessInserts);
    append(report.notes, {30385, u"blokk rajzelemekre bontva"}, report.explodedInserts);
    for (size_t i = 0; i < std::size(kLosses); ++i) append(report.notes, kLosses[i], losses[i]);
    for (const KindTally &t : report.kinds)
        if (t.weighted > 0)
            report.notes.push_back(
                {join(kindText(t.kind), Text{30397, u", a saját vonalvastagsága nélkül"}), t.weighted});
}

int ImportReport::elementCount() const
{
    return std::accumulate(std::begin(elements), std::end(elements), 0);
}

QString ImportReport::text() const
{
    Rows taken;
    for (size_t i = 0; i < std::size(kElements); ++i) append(taken, kElements[i], elements[i]);
    append(taken, {30070, u"rétegek"}, layers);
    append(taken, {30072, u"vonaltípusok"}, lineTypes);
    append(taken, {30071, u"felirattípusok"}, textTypes);
    append(taken, {30073, u"jelkulcsok"}, symbols);
    QString out = txt(Text{30386, u"Átvéve:"}) + lines(taken);
    if (!notCarried.empty()) out += u'\n' + txt(Text{30387, u"Nem vihető át:"}) + lines(notCarried);
    if (!notes.empty()) out += u'\n' + txt(Text{30388, u"Megjegyzések:"}) + lines(notes);
    return out;
}

} // namespace refhost
