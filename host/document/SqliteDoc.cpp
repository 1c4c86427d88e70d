#include "document/SqliteDoc.h"

#include "document/ChangeSpans.h"
#include "document/ElementStore.h"
#include "document/FileCheck.h"
#include "document/HostRoles.h"
#include "document/HostTexts.h"
#include "document/LateBound.h"
#include "document/PenColors.h"
#include "document/SaveCopy.h"
#include "document/Schema.h"

#include "facade/services/Text.h"

#include <QFile>

using namespace QV_DOC_CONTROLS;

namespace refhost {

struct SqliteDoc::Parts {
    explicit Parts(const QString &path, Database::Access access = Database::Access::Write) : db(path, access)
    {}
    Database db;
    Tables tables{db};
    PenColors penColors{db};
    KhItems khItems{db};
    ElementStore elements{db};
    OwnFont ownFont{db};
    Restorer restorer{tables};
    Usages usages{db};
    Revisions revisions{db};
    Commands commands{db};
    ChangeSpans spans{db};
    LateBound lateBound{tables, ownFont};
    QStringList notes;
};

namespace {

const QString kMemory = QStringLiteral(":memory:");

/// Takes the name: fails when a file of that name exists, even one that came this instant.
void claim(const QString &path)
{
    if (QFile::exists(path))
        throw DocumentError(
            fileText(path, txt(Text{30001, u"' fájl már létezik. Adj meg másik nevet, vagy nyisd meg a "
                                           u"meglévő rajzot!"})));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        throw DocumentError(
            fileText(path, join(Text{30014, u"' fájl nem hozható létre. Ellenőrizd a mappát és a "
                                            u"jogosultságokat! Részletek: "},
                                file.errorString())));
}

} // namespace

SqliteDoc::SqliteDoc(std::unique_ptr<Parts> parts) : m_parts(std::move(parts))
{
    m_parts->lateBound.setDocument(this);
    m_parts->db.onTouch = [this] { if (onWrite) onWrite(); };
}
SqliteDoc::~SqliteDoc() = default;

std::unique_ptr<SqliteDoc> SqliteDoc::create(const QString &path)
{
    loadHostTexts();
    if (path != kMemory) claim(path);
    try {
        auto parts = std::make_unique<Parts>(path);
        // The head of the file says whose it is only once it is there: everything first, the log file
        // afterwards.
        Write write(parts->db);
        createSchema(parts->db);
        fillFreshDocument(parts->db);
        write.keep();
        parts->db.run(QStringLiteral("PRAGMA journal_mode=WAL"));
        return std::unique_ptr<SqliteDoc>(new SqliteDoc(std::move(parts)));
    } catch (...) {
        if (path != kMemory) QFile::remove(path);
        throw;
    }
}

std::unique_ptr<SqliteDoc> SqliteDoc::open(const QString &path)
{
    loadHostTexts();
    if (path == kMemory) return create(path);
    requireSoundDrawing(path);
    auto parts = std::make_unique<Parts>(path);
    parts->db.run(QStringLiteral("PRAGMA journal_mode=WAL"));
    parts->notes = parts->spans.closeLeftOpen();
    return std::unique_ptr<SqliteDoc>(new SqliteDoc(std::move(parts)));
}

std::unique_ptr<SqliteDoc> SqliteDoc::openToRead(const QString &path)
{
    loadHostTexts();
    requireSoundDrawing(path);
    return std::unique_ptr<SqliteDoc>(new SqliteDoc(std::make_unique<Parts>(path, Database::Access::Look)));
}

QString SqliteDoc::path() const { return m_parts->db.path(); }
void SqliteDoc::saveCopyAs(const QString &path) { saveCopy(m_parts->db, path); }
QStringList SqliteDoc::openNotes() const { return m_parts->notes; }

DrawingInfo SqliteDoc::info() const
{
    DrawingInfo info;
    Statement s(m_parts->db, QStringLiteral("SELECT (SELECT value FROM meta WHERE key='scale'), "
                                            "(SELECT value FROM meta WHERE key='imported_from')"));
    if (s.exec().next()) info = {s.value(0).toDouble(), s.value(1).toString()};
    return info;
}

void SqliteDoc::setInfo(const DrawingInfo &info)
{
    Write write(m_parts->db);
    const QString sql = QStringLiteral("INSERT OR REPLACE INTO meta(key, value) VALUES(?, ?)");
    change(m_parts->db, sql, QStringLiteral("scale"), info.scale);
    change(m_parts->db, sql, QStringLiteral("imported_from"), info.importedFrom);
    write.keep();
}

std::vector<Element> SqliteDoc::elements() const { return m_parts->elements.all(); }
std::vector<Element> SqliteDoc::elementsOf(qint16 layId) const { return m_parts->elements.onLayer(layId); }
qint64 SqliteDoc::addElement(const Element &e) { return m_parts->elements.add(e); }
void SqliteDoc::addElements(std::span<const Element> all) { m_parts->elements.addAll(all); }
void SqliteDoc::removeElements(std::span<const qint64> ids) { m_parts->elements.removeAll(ids); }
int SqliteDoc::elementCount() const { return m_parts->elements.count(); }

QString SqliteDoc::ownFontName() const { return OwnFont::faceName(); }
void SqliteDoc::addGlyph(qint32 code, const QString &name, const ZolWDoc::Glyph &g)
{
    m_parts->ownFont.add(code, name, g);
}
ZolWDoc::VectorFontProvider &SqliteDoc::ownFont() { return m_parts->ownFont; }

ZolWDoc::LayerRole &SqliteDoc::layers() { return m_parts->tables.layers; }
ZolWDoc::TextTypeRole &SqliteDoc::textTypes() { return m_parts->tables.textTypes; }
ZolWDoc::LineTypeRole &SqliteDoc::lineTypes() { return m_parts->tables.lineTypes; }
ZolWDoc::SymbolRole &SqliteDoc::symbols() { return m_parts->tables.symbols; }
ZolWDoc::PenColorRole &SqliteDoc::penColors() { return m_parts->penColors; }
ZolWDoc::SymbolizationRole &SqliteDoc::lineSymbolizations() { return m_parts->tables.symbolizations; }
ZolWDoc::PointRole &SqliteDoc::points() { return m_parts->tables.points; }
ZolWDoc::KhRole &SqliteDoc::khItems() { return m_parts->khItems; }
void SqliteDoc::redrawAll() { if (onRedraw) onRedraw(); }
ZolWDoc::LayerFileRole *SqliteDoc::layerFiles() { return &m_parts->tables.layers; }
ZolWDoc::LayerElementsRole *SqliteDoc::layerElements() { return &m_parts->tables.layers; }
ZolWDoc::SymbolRenumberRole *SqliteDoc::symbolRenumber() { return &m_parts->tables.symbols; }
ZolWDoc::PaletteRole *SqliteDoc::paletteReplacement() { return &m_parts->penColors; }
ZolWDoc::RestoreRole *SqliteDoc::restorer() { return &m_parts->restorer; }
ZolWDoc::UsageRole *SqliteDoc::usage() { return &m_parts->usages; }
ZolWDoc::RevisionRole *SqliteDoc::revisions() { return &m_parts->revisions; }
ZolWDoc::CommandScopeRole *SqliteDoc::commandScopes() { return &m_parts->commands; }
ZolWDoc::ChangeScopeRole *SqliteDoc::changeScopes() { return &m_parts->spans; }
QObject *SqliteDoc::lateBound() { return &m_parts->lateBound; }

} // namespace refhost
