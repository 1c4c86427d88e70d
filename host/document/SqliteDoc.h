#pragma once

#include "document/Elements.h"

#include "facade/contract/HostServices.h"
#include "facade/contract/ZOLW_Doc.h"

#include <functional>
#include <memory>
#include <stdexcept>

namespace refhost {

/// A failure of the document; what() is UTF-8 and says what to do.
struct DocumentError : std::runtime_error {
    explicit DocumentError(const QString &text) : std::runtime_error(text.toStdString()) {}
    QString text() const { return QString::fromUtf8(what()); }
};

/// Properties of the whole drawing.
struct DrawingInfo {
    double scale = 500;           ///< denominator of the drawing scale: 1 mm on paper = scale / 1000 metres
    QString importedFrom;         ///< file name of an imported drawing, else empty
};

/// The reference host's document: one SQLite file (".qvd"), or ":memory:". Implements every role of the
/// contract, the optional ones too. Every write call is durable when it returns, or when the outermost
/// command scope ends.
class SqliteDoc : public ZolWDoc::ZOLW_Doc {
public:
    static constexpr int kVersion = 1;    ///< of the file format; a newer file is refused and left untouched

    /// Replaces nothing: throws when the file exists.
    static std::unique_ptr<SqliteDoc> create(const QString &path);
    /// Throws DocumentError for newer, foreign and damaged files; those stay byte for byte as they are.
    static std::unique_ptr<SqliteDoc> open(const QString &path);
    /// Leaves the drawing byte for byte as it is: spans left open stay open, every write call throws.
    static std::unique_ptr<SqliteDoc> openToRead(const QString &path);
    ~SqliteDoc() override;

    QString path() const;                                ///< ":memory:" for a document without a file
    /// A whole copy; replaces the file only when the copy is complete. Throws inside a command scope.
    void saveCopyAs(const QString &path);
    DrawingInfo info() const;
    void setInfo(const DrawingInfo &);
    QStringList openNotes() const; ///< what opening found to tell, e.g. a change span left open

    std::vector<Element> elements() const;               ///< all, in drawing order
    std::vector<Element> elementsOf(qint16 layId) const;
    qint64 addElement(const Element &);                  ///< throws when it refers to what is not there
    void addElements(std::span<const Element>);          ///< one durable unit
    void removeElements(std::span<const qint64> ids);    ///< one durable unit
    int elementCount() const;

    /// Characters of the drawing's own vector font, as imported blocks bring them. Lengths in letter heights.
    QString ownFontName() const;                         ///< face name under which symbols refer to it
    void addGlyph(qint32 code, const QString &name, const ZolWDoc::Glyph &);
    ZolWDoc::VectorFontProvider &ownFont();              ///< the provider of that one font

    std::function<void()> onRedraw;                      ///< called by redrawAll()
    /// Called while a table is written to: note it, and read when the write is done.
    std::function<void()> onWrite;

    // --- the contract
    ZolWDoc::LayerRole &layers() override;
    ZolWDoc::TextTypeRole &textTypes() override;
    ZolWDoc::LineTypeRole &lineTypes() override;
    ZolWDoc::SymbolRole &symbols() override;
    ZolWDoc::PenColorRole &penColors() override;
    ZolWDoc::SymbolizationRole &lineSymbolizations() override;
    ZolWDoc::PointRole &points() override;
    ZolWDoc::KhRole &khItems() override;
    void redrawAll() override;
    ZolWDoc::LayerFileRole *layerFiles() override;
    ZolWDoc::LayerElementsRole *layerElements() override;
    ZolWDoc::SymbolRenumberRole *symbolRenumber() override;
    ZolWDoc::PaletteRole *paletteReplacement() override;
    ZolWDoc::RestoreRole *restorer() override;
    ZolWDoc::UsageRole *usage() override;
    ZolWDoc::RevisionRole *revisions() override;
    ZolWDoc::CommandScopeRole *commandScopes() override;
    ZolWDoc::ChangeScopeRole *changeScopes() override;
    QObject *lateBound() override;

private:
    struct Parts;                                        ///< the connection and one object per role
    explicit SqliteDoc(std::unique_ptr<Parts>);
    std::unique_ptr<Parts> m_parts;
};

} // namespace refhost
