#include "import/DxfScan.h"

#include "import/DxfImport.h"

#include "facade/services/Text.h"

#include <QFile>

#include <algorithm>
#include <charconv>
#include <cctype>
#include <set>

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

constexpr size_t kLongest = 900;        // bytes of a value that the reader takes in one line
constexpr char kLongMark = '\x01';

std::string_view trimmed(std::string_view s)
{
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t')) s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t' || s.back() == '\r')) s.remove_suffix(1);
    return s;
}

bool wholeNumber(std::string_view s, int &n)
{
    s = trimmed(s);
    const auto [end, error] = std::from_chars(s.data(), s.data() + s.size(), n);
    return error == std::errc() && end == s.data() + s.size() && !s.empty();
}

/// Parts of other objects and the frame around them.
bool isObject(std::string_view kind)
{
    static const std::set<std::string_view> others{"SECTION", "ENDSEC", "BLOCK", "ENDBLK",
                                                   "VERTEX",  "SEQEND", "EOF"};
    return !others.contains(kind);
}

bool placed(std::string_view kind)
{
    static const std::set<std::string_view> kinds{"LINE",   "LWPOLYLINE", "VERTEX", "POINT", "TEXT", "MTEXT",
                                                  "INSERT", "CIRCLE",     "ARC",    "SOLID", "TRACE"};
    return kinds.contains(kind);
}

/// Handles, owners, materials and the like: nothing that is drawn. The texts of line types (9) would end the
/// line type for the reader, which takes that group for the name of a variable.
constexpr bool drawn(int code)
{
    constexpr int kOthers[] = {5, 9, 100, 102, 105, 310, 330, 340, 347, 348, 350, 360, 380, 390};
    return std::ranges::find(kOthers, code) == std::end(kOthers);
}

/// Depths, directions and line weights are mostly what they are without being said (below zero a weight is
/// that of the layer or the usual one); each costs the reader as much as a coordinate.
bool understood(int code, std::string_view value)
{
    const bool depth = (code >= 30 && code <= 33) || code == 38 || code == 39 || code == 210 || code == 220;
    return (depth && numberOfText(value, 1) == 0) || (code == 230 && numberOfText(value) == 1)
           || (code == 370 && numberOfText(value, -1) < 0);
}

/// What an object of a table is read for.
bool usedTable(std::string_view kind) { return kind == "LAYER" || kind == "LTYPE" || kind == "STYLE"; }

} // namespace

double numberOfText(std::string_view s, double fallback)
{
    s = trimmed(s);
    if (!s.empty() && s.front() == '+') s.remove_prefix(1);
    double v = fallback;
    const auto [end, error] = std::from_chars(s.data(), s.data() + s.size(), v);
    return error == std::errc() && std::isfinite(v) ? v : fallback;
}

bool paperSpaceName(std::string_view block)
{
    std::string name(block);
    std::ranges::transform(name, name.begin(), [](unsigned char c) { return char(std::toupper(c)); });
    return name.starts_with("*PAPER_SPACE") || name == "$PAPER_SPACE";
}

DxfScan::DxfScan(const QString &path) : m_path(path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw DocumentError(join(Text{30300, u"A(z) '"}, path,
                                 Text{30301, u"' fájl nem olvasható. Ellenőrizd a nevét "
                                             u"és a jogosultságokat! Részletek: "},
                                 file.errorString()));
    m_bytes = file.readAll();
    if (m_bytes.startsWith("AutoCAD Binary DXF"))
        throw DocumentError(join(Text{30300, u"A(z) '"}, path,
                                 Text{30302, u"' fájl bináris DXF. Mentsd el a másik "
                                             u"programban szöveges (ASCII) DXF-ként, és azt importáld!"}));
    if (m_bytes.startsWith("AC10"))
        throw DocumentError(
            join(Text{30300, u"A(z) '"}, path,
                 Text{30303, u"' fájl DWG-rajz, nem DXF. Mentsd el a "
                             u"másik programban szöveges (ASCII) DXF-ként, és azt importáld!"}));
    if (m_bytes.startsWith("\xEF\xBB\xBF")) m_at = 3;
}

void DxfScan::failJunk() const
{
    throw DocumentError(join(Text{30300, u"A(z) '"}, m_path,
                             Text{30304, u"' fájl nem DXF-rajz, vagy hibás; a hibás "
                                         u"sor: "},
                             m_line,
                             Text{30305, u". Készíts új szöveges (ASCII) DXF-et a másik "
                                         u"programmal, és azt importáld!"}));
}

void DxfScan::require(bool sound) const
{
    if (!sound) failJunk();
}

/// Line ends may be those of any system.
bool DxfScan::next(View &pair)
{
    std::string_view line[2];
    for (std::string_view &l : line) {
        if (m_at >= m_bytes.size()) return false;
        const char *const begin = m_bytes.constData() + m_at, *const end = m_bytes.constData()
                                                                           + m_bytes.size();
        const char *stop = static_cast<const char *>(memchr(begin, '\n', size_t(end - begin)));
        if (!stop) stop = end;
        l = std::string_view(begin, size_t(stop - begin));
        if (!l.empty() && l.back() == '\r') l.remove_suffix(1);
        m_at += stop - begin + 1;
        ++m_line;
        if (&l == line && trimmed(l).empty() && m_at >= m_bytes.size()) return false; // blank end of the file
    }
    require(wholeNumber(line[0], pair.code) && pair.code >= -10 && pair.code < 2000);
    require(line[1].find('\0') == std::string_view::npos);
    pair.value = pair.code == 0 || pair.code == 9 ? trimmed(line[1]) : line[1];
    return true;
}

void DxfScan::run(const Progress &progress)
{
    m_clean.reserve(size_t(m_bytes.size()));
    View pair;
    for (int n = 0; !m_ended && next(pair); ++n) {
        if (n % 20000 == 0 && progress && !progress(double(m_at) / double(m_bytes.size())))
            throw ImportCancelled();
        take(pair);
    }
    if (m_section.empty() && !m_ended) failJunk();
    if (!m_ended || m_sectionOpen)
        throw DocumentError(join(Text{30300, u"A(z) '"}, m_path,
                                 Text{30306, u"' fájl csonka: hiányzik a vége. Másold "
                                             u"át vagy töltsd le újra, és azt importáld!"}));
    require(m_entities);
    measure(m_x, m_low.x, m_high.x);
    measure(m_y, m_low.y, m_high.y);
    m_bytes.clear();
}

void DxfScan::take(const View &pair)
{
    if (pair.code == 999) return;
    if (pair.code == 0) {
        finishObject();
        require(m_sectionOpen || pair.value == "SECTION" || pair.value == "EOF");
        if (pair.value == "EOF") m_ended = true;
        m_foreign = false;
        m_object.push_back(pair);
        if (m_ended) finishObject();
        return;
    }
    if (m_sectionOpen && m_section == "HEADER") {
        if (pair.code == 9) m_variable = pair.value;
        else
            m_header.insert(QByteArray::fromStdString(m_variable)
                                + (pair.code == 20   ? "/y"
                                   : pair.code == 30 ? "/z"
                                                     : ""),
                            QByteArray(pair.value.data(), qsizetype(pair.value.size())).trimmed());
        return;
    }
    require(!m_object.empty());
    if (m_object.front().value == "SECTION" && pair.code == 2) return beginSection(trimmed(pair.value));
    if (pair.code == 101) m_foreign = true;     // an object within the object repeats its codes
    if (m_foreign || !drawn(pair.code) || understood(pair.code, pair.value)) return;
    if (pair.code < 1000 || m_section == "TABLES") m_object.push_back(pair);
}

void DxfScan::beginSection(std::string_view name)
{
    require(!m_sectionOpen);
    m_sectionOpen = true;
    m_section = name;
    m_entities = m_entities || m_section == "ENTITIES";
    m_object.clear();
}

void DxfScan::finishObject()
{
    if (m_object.empty()) return;
    const std::string_view kind = m_object.front().value;
    const bool counted = m_section == "ENTITIES" || m_section == "BLOCKS";
    if (counted) countObject(kind);
    if (counted || kind == "EOF" || (m_section == "TABLES" && usedTable(kind))) handOn(kind);
    if (kind == "ENDSEC") m_sectionOpen = false;
    m_object.clear();
    m_counts.clear();
}

void DxfScan::handOn(std::string_view kind)
{
    if (kind == "SEQEND") return;
    if (kind == "VERTEX") return takeVertex();
    std::string index;
    if (kind == "POLYLINE" || kind == "LWPOLYLINE") {
        index = std::to_string(m_vertices.size());
        m_vertices.emplace_back();
        if (kind == "LWPOLYLINE") takeLightVertices();
        m_object.push_back({kVertices, index});
    }
    repairCounts();
    for (const View &p : m_object) append(p);
}

void DxfScan::takeVertex()
{
    require(!m_vertices.empty());
    PolylineVertex v;
    for (const View &p : m_object) {
        const double n = p.code >= 10 && p.code < 80 ? numberOfText(p.value) : 0;
        switch (p.code) {
        case 10: v.x = n; break;
        case 20: v.y = n; break;
        case 30: v.z = n; break;
        case 42: v.bulge = n; break;
        case 70: v.flags = wholeOf(n); break;
        case 40: case 41: v.wide = v.wide || n != 0; break;
        case 71: case 72: case 73: case 74: v.face[p.code - 71] = wholeOf(n); break;
        default: break;
        }
    }
    m_vertices.back().push_back(v);
}

void DxfScan::takeLightVertices()
{
    std::vector<PolylineVertex> &all = m_vertices.back();
    const auto ofVertex = [](int code) { return code == 10 || code == 20 || (code >= 40 && code <= 42); };
    for (const View &p : m_object) {
        if (!ofVertex(p.code)) continue;
        const double n = numberOfText(p.value);
        if (p.code == 10) all.push_back({.x = n});
        if (all.empty()) continue;
        if (p.code == 20) all.back().y = n;
        else if (p.code == 42) all.back().bulge = n;
        else if (p.code != 10) all.back().wide = all.back().wide || n != 0;
    }
    std::erase_if(m_object, [&](const View &p) { return ofVertex(p.code) || p.code == 90; });
    m_object.push_back({90, "0"});
}

void DxfScan::countObject(std::string_view kind)
{
    bool paper = false, invisible = false;
    for (const View &p : m_object) {
        if (p.code == 67) paper = numberOfText(p.value) == 1;
        if (p.code == 60) invisible = numberOfText(p.value) == 1;
        if (p.code == 2 && kind == "BLOCK") m_paperBlock = paperSpaceName(p.value);
    }
    if (m_section == "ENTITIES") m_paperBlock = false;
    paper = paper || m_paperBlock;
    if (isObject(kind)) {
        auto count = m_kinds.find(kind);
        if (count == m_kinds.end()) count = m_kinds.emplace(std::string(kind), KindCount()).first;
        ++count->second.total;
        count->second.paper += paper;
        count->second.invisible += invisible && !paper;
    }
    if (!paper) measureObject(kind);
}

void DxfScan::measureObject(std::string_view kind)
{
    if (kind == "TEXT" || kind == "MTEXT") {
        double height = 0;
        std::string_view text;
        for (const View &p : m_object) {
            if (p.code == 40) height = numberOfText(p.value);
            if (p.code == 1) text = p.value;
        }
        m_lettering.take(height, text);
    }
    if (m_section != "ENTITIES" || !placed(kind)) return;
    double x = 0;
    for (const View &p : m_object) {
        if (p.code == 10) x = numberOfText(p.value);
        if (p.code != 20) continue;
        m_x.push_back(x);
        m_y.push_back(numberOfText(p.value));
    }
}

/// The range of the values. Single ones far away from all others, such as marks left at the origin, do not
/// count.
void DxfScan::measure(std::vector<double> &values, double &low, double &high)
{
    if (values.empty()) return;
    const auto [least, greatest] = std::ranges::minmax(values);
    const auto few = std::ptrdiff_t(values.size() / 50);
    std::ranges::nth_element(values, values.begin() + few);
    const double mostLow = values[size_t(few)];
    std::ranges::nth_element(values, values.end() - 1 - few);
    const double mostHigh = *(values.end() - 1 - few);
    low = least, high = greatest;
    const double reach = 20 * (mostHigh - mostLow);
    if (reach > 0 && (mostLow - low > reach || high - mostHigh > reach)) low = mostLow, high = mostHigh;
    values = {};
}

/// The reader trusts the counts that a file announces, and keeps those of the object before where there are
/// none.
void DxfScan::repairCounts()
{
    struct Announced {
        const char *kind;
        int count, counted;
    };
    static constexpr Announced kAll[] = {{"SPLINE", 72, 40}, {"SPLINE", 73, 10},
                                         {"SPLINE", 74, 11}, {"LEADER", 76, 10}};
    m_counts.reserve(std::size(kAll));
    for (const Announced &a : kAll) {
        if (m_object.front().value != a.kind) continue;
        std::erase_if(m_object, [&](const View &p) { return p.code == a.count; });
        const auto n = std::ranges::count(m_object, a.counted, &View::code);
        m_counts.push_back(std::to_string(n));
        m_object.insert(m_object.begin() + 1, {a.count, m_counts.back()});
    }
}

void DxfScan::append(const View &p)
{
    char code[16];
    m_clean.append(code, std::to_chars(code, code + sizeof code, p.code).ptr);
    m_clean += '\n';
    if (p.value.size() > kLongest) {
        m_clean += kLongMark + std::to_string(m_long.size());
        m_long.emplace_back(p.value);
    } else {
        m_clean += p.value;
    }
    m_clean += '\n';
}

std::string_view DxfScan::whole(std::string_view value) const
{
    int n = 0;
    if (value.empty() || value.front() != kLongMark || !wholeNumber(value.substr(1), n)) return value;
    return n >= 0 && size_t(n) < m_long.size() ? std::string_view(m_long[size_t(n)]) : value;
}

QByteArray DxfScan::headerText(const char *variable) const { return m_header.value(variable); }

double DxfScan::headerNumber(const char *variable, double fallback) const
{
    const QByteArray text = m_header.value(variable);
    return text.isEmpty() ? fallback
                          : numberOfText(std::string_view(text.constData(), size_t(text.size())), fallback);
}

} // namespace refhost
