#pragma once

#include "document/Elements.h"

#include "facade/contract/DrawingObjects.h"
#include "facade/contract/Records.h"

#include <QHash>

namespace refhost {

class SqliteDoc;

/// What an element is drawn with after the by-layer rules.
struct Look {
    qint16 penStyleId = -1; ///< line type, -1 = none: continuous and as thin as the device can
    qint16 pen = 0;         ///< 1..255; 0 = the foreground
    qint16 txdId = -1;      ///< text type, -1 = none
    bool operator==(const Look &) const = default;
};

/// Records that are found by identifier.
template <class Rec, qint16 Rec::*Key> class ById {
public:
    ById() = default;
    ById(std::vector<Rec> rows) : m_rows(std::move(rows))
    {
        for (size_t i = 0; i < m_rows.size(); ++i) m_at.insert(m_rows[i].*Key, int(i));
    }
    const std::vector<Rec> &rows() const { return m_rows; }
    int indexOf(qint16 id) const { return m_at.value(id, -1); }
    const Rec *find(qint16 id) const ///< null = there is none
    {
        const int i = indexOf(id);
        return i < 0 ? nullptr : &m_rows[size_t(i)];
    }
private:
    std::vector<Rec> m_rows;
    QHash<qint16, int> m_at;
};

/// The tables of a document as a drawing needs them: copied once, so that nothing that paints asks the
/// document.
struct Resources {
    ById<ZolWDoc::tLay, &ZolWDoc::tLay::LayId> layers;  ///< by number
    ById<ZolWDoc::tSid, &ZolWDoc::tSid::SidId> symbols;
    ById<ZolWDoc::tTxd, &ZolWDoc::tTxd::TxdId> textTypes;
    ById<ZolWDoc::tPenStyle, &ZolWDoc::tPenStyle::iPenStyleId> lineTypes;
    ById<ZolWDoc::tPenStyleSi, &ZolWDoc::tPenStyleSi::Nr> symbolizations;
    QHash<qint16, ZolWDoc::Glyph> glyphs;               ///< of the symbols of vector fonts, by symbol
    ZolWDoc::PenColorTable pens;
    ZolWDoc::Palette palette{};
    qint16 currentLayer = -1;                           ///< -1 = none
    double metresPerMm = 0.5;                           ///< a paper millimetre in the drawing

    Look lookOf(const Element &) const;
};

Resources resourcesOf(SqliteDoc &);

} // namespace refhost
