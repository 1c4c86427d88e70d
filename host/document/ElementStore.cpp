#include "document/ElementStore.h"

#include "document/RecordFields.h"
#include "document/ShapeCodec.h"

#include <QSet>

#include "facade/services/Text.h"

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

const QString kRead =
    QStringLiteral("SELECT id, kind, layer, line_type, pen, text_type, symbol, shape, text FROM elements");

QVariant reference(qint16 id) { return id < 0 ? QVariant(QMetaType(QMetaType::Int)) : QVariant(int(id)); }
qint16 referenceOf(const QVariant &v) { return v.isNull() ? qint16(-1) : qint16(v.toInt()); }

Element elementOf(const Statement &s)
{
    Element e;
    e.id = s.value(0).toLongLong();
    e.kind = ElementKind(s.number(1));
    e.layId = referenceOf(s.value(2));
    e.penStyleId = referenceOf(s.value(3));
    e.penColorId = referenceOf(s.value(4));
    e.txdId = referenceOf(s.value(5));
    e.sidId = referenceOf(s.value(6));
    if (!readShape(s.value(7).toByteArray(), e))
        throw DocumentError(
            join(Text{30101, u"A rajz sérült: nem olvasható ez a rajzelem: "}, QString::number(e.id)));
    e.text = s.value(8).toString();
    return e;
}

/// Holds elements to what is there. Every identifier is looked up once for each write.
class Targets {
public:
    explicit Targets(Database &db) : m_db(db) {}
    void check(const Element &e)
    {
        require<ZolWDoc::tLay>(m_layers, e.layId);
        require<ZolWDoc::tPenStyle>(m_lineTypes, e.penStyleId);
        require<ZolWDoc::tTxd>(m_textTypes, e.txdId);
        require<ZolWDoc::tSid>(m_symbols, e.sidId);
    }
private:
    template <class Rec> void require(QSet<qint16> &known, qint16 id)
    {
        if (id == -1 || known.contains(id)) return;
        const TableFacts<Rec> &facts = factsOf<Rec>();
        const QString sql =
            QStringLiteral("SELECT 1 FROM %1 WHERE id=?").arg(QString::fromLatin1(facts.table));
        if (!numberOf(m_db, sql, 0, int(id))) throw DocumentError(join(facts.unknown, int(id)));
        known.insert(id);
    }
    Database &m_db;
    QSet<qint16> m_layers, m_lineTypes, m_textTypes, m_symbols;
};

qint64 insert(Database &db, const Element &e)
{
    Statement s(db, QStringLiteral(
                        "INSERT INTO elements(kind, layer, line_type, pen, text_type, symbol, shape, text) "
                        "VALUES(?, ?, ?, ?, ?, ?, ?, ?)"));
    s.exec(int(e.kind), reference(e.layId), reference(e.penStyleId), reference(e.penColorId),
           reference(e.txdId), reference(e.sidId), shapeBytes(e), sqlText(e.text));
    return s.insertedId();
}

} // namespace

std::vector<Element> ElementStore::all() const
{
    std::vector<Element> elements;
    elements.reserve(size_t(count()));
    Statement s(m_db, kRead + QStringLiteral(" ORDER BY id"));
    for (s.exec(); s.next();) elements.push_back(elementOf(s));
    return elements;
}

std::vector<Element> ElementStore::onLayer(qint16 layId) const
{
    std::vector<Element> elements;
    Statement s(m_db, kRead + QStringLiteral(" WHERE layer IS ? ORDER BY id"));
    s.bind(0, reference(layId));
    for (s.exec(); s.next();) elements.push_back(elementOf(s));
    return elements;
}

qint64 ElementStore::add(const Element &e)
{
    Write write(m_db);
    Targets(m_db).check(e);
    const qint64 id = insert(m_db, e);
    write.keep();
    return id;
}

void ElementStore::addAll(std::span<const Element> elements)
{
    Write write(m_db);
    Targets targets(m_db);
    for (const Element &e : elements) {
        targets.check(e);
        insert(m_db, e);
    }
    write.keep();
}

void ElementStore::removeAll(std::span<const qint64> ids)
{
    Write write(m_db);
    for (qint64 id : ids) change(m_db, QStringLiteral("DELETE FROM elements WHERE id=?"), id);
    write.keep();
}

int ElementStore::count() const { return numberOf(m_db, QStringLiteral("SELECT count(*) FROM elements"), 0); }

} // namespace refhost
