#include "rules/recordset/RecordsetXml.h"

#include "facade/services/Text.h"
#include "rules/recordset/RecordsetSchema.h"
#include "rules/recordset/RecordsetText.h"
#include "rules/recordset/RecordsetValues.h"

#include <QHash>

#include <cmath>

namespace QV_DOC_CONTROLS {
namespace {

using Why = RecordsetRefusal::Why;
using Type = RecordsetField::Type;
using Space = XmlScanner::Space;
using Tag = XmlScanner::Tag;

bool fits(const RecordsetField &column, double number)
{
    if (column.isReal()) return std::isfinite(column.type == Type::Single ? float(number) : number);
    const IntegerRange range = rangeOf(column.type);
    const double rounded = std::nearbyint(number); // halves to even
    return rounded >= double(range.lowest) && rounded < double(range.highest) + 1;
}

std::optional<Why> refusalOf(const RecordsetField &column, QStringView value)
{
    if (column.type == Type::Boolean)
        return booleanIn(value) ? std::nullopt : std::optional(Why::NoTruthValue);
    if (!column.isInteger() && !column.isReal()) return {};
    if (column.type == Type::Int64 && wholeIn(value.trimmed())) return {}; // the last ones are no doubles
    const auto number = numberIn(value);
    if (!number) return Why::NoNumber;
    return fits(column, *number) ? std::nullopt : std::optional(Why::OutOfRange);
}

class Reader {
public:
    explicit Reader(QStringView text) : m_scanner(text) {}
    Recordset read();

private:
    bool readPart(const Tag &tag);
    void takeSchema();
    bool readDataPart(const Tag &tag);
    void readUpdate();
    bool addRow(const Tag &tag, Recordset::RowState state);
    void startRow();
    void readTag();
    void readValue(int field, const XmlScanner::Attribute &a);
    void forceNulls(const XmlScanner::Attribute &a);
    void endRow(Recordset::RowState state, qsizetype at);
    int columnOf(QStringView name);
    bool isRow(const Tag &tag) const { return tag.is(Space::Row, m_set.rowName); }

    /// What the row being read says of a column; of no concern when it was said of an earlier row.
    struct Said {
        quint32 row = 0, tag = 0; ///< by which it was said
        bool isNull = false;
        QStringView value;
    };
    Said &saidOf(int field);

    XmlScanner m_scanner;
    Recordset m_set;
    bool m_hasSchema = false;
    QHash<QString, int> m_columns;   ///< by folded name
    std::vector<int> m_needed;       ///< columns without which a row cannot be opened
    int m_likely = 0;                ///< column of the next attribute, as a rule
    std::vector<Said> m_said;        ///< by column
    std::vector<int> m_inRow;        ///< columns of which the row says something, as they are met
    std::vector<QString> m_resolved; ///< values of the row that had references
    quint32 m_row = 0, m_tag = 0;
};

Recordset Reader::read()
{
    if (m_scanner.next().kind != Tag::Kind::Start || !m_scanner.tag().is(Space::None, u"xml"))
        throw Refused{Why::WrongRoot, 0};
    m_scanner.forEachChild([this](const Tag &tag) { return readPart(tag); });
    if (!m_hasSchema) throw Refused{Why::NoSchema, 0};
    while (m_scanner.next().kind != Tag::Kind::Finished) // what follows the root is looked at, not read
        if (m_scanner.tag().kind == Tag::Kind::Start) throw Refused{Why::WrongMarkup, m_scanner.tag().at};
    return std::move(m_set);
}

bool Reader::readPart(const Tag &tag)
{
    if (tag.is(Space::Schema, u"Schema")) {
        if (m_hasSchema) throw Refused{Why::DescribedTwice, tag.at};
        return takeSchema(), true;
    }
    if (!tag.is(Space::Rowset, u"data")) return false;
    if (!m_hasSchema) throw Refused{Why::NoSchema, tag.at};
    m_scanner.forEachChild([this](const Tag &part) { return readDataPart(part); });
    return true;
}

void Reader::takeSchema()
{
    m_hasSchema = true;
    m_set = schemaIn(m_scanner);
    const auto &fields = m_set.fields();
    m_said.resize(fields.size());
    for (size_t i = 0; i < fields.size(); ++i) {
        m_columns.insert(fields[i].xmlName.toCaseFolded(), int(i));
        if (fields[i].needsValue) m_needed.push_back(int(i));
    }
}

bool Reader::readDataPart(const Tag &tag)
{
    using State = Recordset::RowState;
    if (addRow(tag, State::Unchanged)) return false;
    if (tag.is(Space::Rowset, u"update")) return readUpdate(), true;
    if (!tag.is(Space::Rowset, u"insert")) return false; // deleted rows are not seen
    m_scanner.forEachChild([this](const Tag &row) { return addRow(row, State::Inserted), false; });
    return true;
}

/// The original row with the new values over it; one of the two alone is a row like others.
void Reader::readUpdate()
{
    bool any = false;
    const qsizetype at = m_scanner.tag().at;
    startRow();
    const auto take = [&](const Tag &tag) {
        if (!isRow(tag)) return false;
        any = true;
        return readTag(), false;
    };
    m_scanner.forEachChild([&](const Tag &tag) {
        if (!tag.is(Space::Rowset, u"original")) return take(tag);
        m_scanner.forEachChild(take);
        return true;
    });
    if (any) endRow(Recordset::RowState::Unchanged, at);
}

bool Reader::addRow(const Tag &tag, Recordset::RowState state)
{
    if (!isRow(tag)) return false;
    startRow();
    readTag();
    endRow(state, tag.at);
    return true;
}

void Reader::startRow()
{
    ++m_row;
    m_inRow.clear();
    m_resolved.clear();
}

void Reader::readTag()
{
    ++m_tag;
    m_likely = 0;
    const XmlScanner::Attribute *nulls = nullptr;
    for (const auto &a : m_scanner.attributes()) {
        if (a.space == Space::Rowset && a.name == u"forcenull") nulls = &a;
        if (a.space != Space::None) continue;
        const int field = columnOf(a.name);
        if (field >= 0) readValue(field, a);
    }
    if (nulls) forceNulls(*nulls);
}

/// Mostly the column behind the one before; otherwise whatever has that name in any case.
int Reader::columnOf(QStringView name)
{
    const auto &fields = m_set.fields();
    for (size_t i = size_t(m_likely); i < fields.size() && i < size_t(m_likely) + 2; ++i)
        if (fields[i].xmlName == name) return m_likely = int(i) + 1, int(i);
    const int found = m_columns.value(name.toString().toCaseFolded(), -1);
    if (found >= 0) m_likely = found + 1;
    return found;
}

Reader::Said &Reader::saidOf(int field)
{
    Said &said = m_said[size_t(field)];
    if (said.row != m_row) m_inRow.push_back(field);
    said.row = m_row, said.tag = m_tag;
    return said;
}

void Reader::readValue(int field, const XmlScanner::Attribute &a)
{
    const RecordsetField &column = m_set.fields()[size_t(field)];
    QStringView value = a.raw;
    if (a.hasReferences) value = m_resolved.emplace_back(resolved(a));
    if (const auto why = refusalOf(column, value)) throw Refused{*why, a.at, column.name};
    if (column.maxLength >= 0) value = value.first(std::min<qsizetype>(value.size(), column.maxLength));
    Said &said = saidOf(field);
    said.isNull = false, said.value = value;
}

/// A value that stands in the same tag goes before.
void Reader::forceNulls(const XmlScanner::Attribute &a)
{
    const QString names = resolved(a);
    for (const QStringView name : QStringView(names).tokenize(u' ', Qt::SkipEmptyParts)) {
        const int field = m_columns.value(name.toString().toCaseFolded(), -1);
        if (field >= 0 && m_said[size_t(field)].tag != m_tag) saidOf(field).isNull = true;
    }
}

/// Puts the row in by column, so that it costs what stands in it, in whatever order.
void Reader::endRow(Recordset::RowState state, qsizetype at)
{
    for (const int needed : m_needed)
        if (const Said &said = m_said[size_t(needed)]; said.row != m_row || said.isNull)
            throw Refused{Why::LacksValue, at, m_set.fields()[size_t(needed)].name};
    const int row = m_set.addRow(state);
    if (!std::ranges::is_sorted(m_inRow)) std::ranges::sort(m_inRow);
    for (const int field : m_inRow) {
        const Said &said = m_said[size_t(field)];
        said.isNull ? m_set.setNull(row, field) : m_set.keepSource(row, field, said.value);
    }
}

} // namespace

std::variant<Recordset, RecordsetRefusal> recordsetOf(const QByteArray &bytes)
{
    QString text;
    const auto refusal = [&text](Why why, qsizetype at, const QString &subject = {}) {
        const bool isPlaced = why != Why::TooLarge && why != Why::UnknownEncoding && why != Why::WrongRoot;
        const qint64 line =
            isPlaced ? 1 + QStringView(text).first(std::min(at, text.size())).count(u'\n') : 0;
        return RecordsetRefusal{why, line, subject};
    };
    try {
        text = lettersOf(bytes);
        return Reader(text).read();
    } catch (const Refused &r) {
        return refusal(r.why, r.at, r.subject);
    } catch (const XmlFault &f) {
        return refusal(f.what == XmlFault::What::CutShort ? Why::CutShort : Why::WrongMarkup, f.at);
    }
}

QString textOf(const RecordsetRefusal &refusal)
{
    constexpr Text kReasons[] = {
        // by Why
        {22200, u"a fájl túl nagy"},
        {22201, u"ismeretlen betűkódolás"},
        {22202, u"a bájtok nem felelnek meg a fájl betűkódolásának"},
        {22203, u"hibás jelölés"},
        {22204, u"a fájl a vége előtt megszakad"},
        {22205, u"a fájl nem rekordkészlet"},
        {22206, u"hiányzik az oszlopok leírása"},
        {22207, u"az oszlopok leírása kétszer szerepel"},
        {22208, u"nincs leírás ehhez az oszlophoz"},
        {22209, u"az oszlop értéke nem szám"},
        {22210, u"a szám kívül esik az oszlop határain"},
        {22211, u"az oszlop értéke nem igaz vagy hamis"},
        {22212, u"hiányzik az oszlop kötelező értéke"},
    };
    QString text = refusal.line
                       ? join(Text{22213, u"Sor: "}, QString::number(refusal.line), QStringLiteral(" – "))
                       : QString();
    text += txt(kReasons[size_t(refusal.why)]);
    return refusal.subject.isEmpty() ? text : text + QStringLiteral(": ") + refusal.subject;
}

} // namespace QV_DOC_CONTROLS
