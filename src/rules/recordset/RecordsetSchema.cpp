#include "rules/recordset/RecordsetSchema.h"

#include "rules/recordset/RecordsetText.h"

#include <QHash>
#include <QSet>

namespace QV_DOC_CONTROLS {
namespace {

using Why = RecordsetRefusal::Why;
using Type = RecordsetField::Type;
using Space = XmlScanner::Space;
using Tag = XmlScanner::Tag;

constexpr std::pair<QStringView, Type> kTypes[] = {
    {u"i1", Type::Int8},         {u"i2", Type::Int16},    {u"i4", Type::Int32},  {u"int", Type::Int32},
    {u"integer", Type::Int32},   {u"i8", Type::Int64},    {u"ui1", Type::UInt8}, {u"ui2", Type::UInt16},
    {u"ui4", Type::UInt32},      {u"r4", Type::Single},   {u"r8", Type::Double}, {u"float", Type::Double},
    {u"boolean", Type::Boolean}, {u"string", Type::Text}, {u"", Type::Text},
};
Type typeNamed(QStringView name)
{
    for (const auto &[known, type] : kTypes)
        if (name == known) return type;
    return Type::Other; // dates, binary data and so on stay what they are as text
}

/// As a column's description is written, whatever prefixes the file uses; empty = of no known space.
QString writtenName(const XmlScanner::Attribute &a)
{
    switch (a.space) {
    case Space::None: return a.name.toString();
    case Space::Rowset: return QStringLiteral("rs:") + a.name.toString();
    case Space::Types: return QStringLiteral("dt:") + a.name.toString();
    default: return {};
    }
}

class Schema {
public:
    explicit Schema(XmlScanner &scanner) : m_scanner(scanner) {}
    Recordset read();

private:
    bool readSchemaPart(const Tag &tag);
    void readRowType();
    void readColumn();
    void takeDescription(RecordsetField &field);
    std::vector<RecordsetField> placed();

    XmlScanner &m_scanner;
    QString m_rowName;
    std::vector<RecordsetAttribute> m_rowDescription;
    std::vector<RecordsetField> m_described;
    QStringList m_order; ///< columns by reference, when the row type has any
};

Recordset Schema::read()
{
    const qsizetype at = m_scanner.tag().at;
    m_scanner.forEachChild([this](const Tag &tag) { return readSchemaPart(tag); });
    if (m_rowName.isEmpty()) throw Refused{Why::NoSchema, at};
    Recordset set(placed());
    set.rowName = m_rowName;
    set.rowDescription = m_rowDescription;
    return set;
}

bool Schema::readSchemaPart(const Tag &tag)
{
    if (tag.is(Space::Schema, u"ElementType")) {
        if (!m_rowName.isEmpty()) return false; // the first one is the row, others are of no concern
        return readRowType(), true;
    }
    if (tag.is(Space::Schema, u"AttributeType")) return readColumn(), true;
    return false;
}

void Schema::readRowType()
{
    for (const auto &a : m_scanner.attributes()) {
        if (a.space == Space::None && a.name == u"name")
            m_rowName = resolved(a);
        else if (const QString name = writtenName(a); !name.isEmpty())
            m_rowDescription.push_back({name, resolved(a)});
    }
    if (m_rowName.isEmpty()) throw Refused{Why::NoSchema, m_scanner.tag().at};
    m_scanner.forEachChild([this](const Tag &tag) {
        if (tag.is(Space::Schema, u"AttributeType")) return readColumn(), true;
        if (!tag.is(Space::Schema, u"attribute")) return false;
        for (const auto &a : m_scanner.attributes())
            if (a.space == Space::None && a.name == u"type") m_order << resolved(a);
        return false;
    });
}

void Schema::readColumn()
{
    RecordsetField field;
    for (const auto &a : m_scanner.attributes())
        if (const QString name = writtenName(a); !name.isEmpty()) field.column.push_back({name, resolved(a)});
    m_scanner.forEachChild([&](const Tag &tag) {
        if (tag.is(Space::Schema, u"datatype"))
            for (const auto &a : m_scanner.attributes())
                if (const QString name = writtenName(a); !name.isEmpty())
                    field.datatype.push_back({name, resolved(a)});
        return false;
    });
    takeDescription(field);
    m_described.push_back(std::move(field));
}

/// What the attributes say; those of the data type go before those of the column.
void Schema::takeDescription(RecordsetField &field)
{
    const auto said = [&field](const char *name) {
        for (const auto *list : {&field.datatype, &field.column})
            for (const RecordsetAttribute &a : *list)
                if (a.name == QLatin1String(name)) return a.value;
        return QString();
    };
    field.xmlName = said("name");
    field.name = said("rs:name").isEmpty() ? field.xmlName : said("rs:name");
    field.type = typeNamed(said("dt:type"));
    bool ok = false;
    const qint64 length = said("dt:maxLength").toLongLong(&ok);
    if (ok && length >= 0 && length != 4294967295 && said("rs:long") != u"true" && field.type == Type::Text)
        field.maxLength = length;
    field.needsValue = said("rs:maybenull") == u"false" && said("rs:nullable") != u"true";
}

/// In the order of the references, or as they stand when there are none. A column is referred to once: many
/// references to many described columns would be more than the file holds.
std::vector<RecordsetField> Schema::placed()
{
    if (m_order.isEmpty()) return std::move(m_described);
    QHash<QString, size_t> places;
    for (size_t i = 0; i < m_described.size(); ++i) places.insert(m_described[i].xmlName, i);
    QSet<QString> taken;
    std::vector<RecordsetField> fields;
    for (const QString &name : std::as_const(m_order)) {
        const auto found = places.constFind(name);
        if (found == places.cend())
            throw Refused{taken.contains(name) ? Why::DescribedTwice : Why::NoSuchColumn, m_scanner.tag().at,
                          name};
        fields.push_back(std::move(m_described[*found]));
        places.erase(found);
        taken.insert(name);
    }
    return fields;
}

} // namespace

Recordset schemaIn(XmlScanner &scanner) { return Schema(scanner).read(); }

} // namespace QV_DOC_CONTROLS
