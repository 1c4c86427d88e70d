#pragma once

#include "sample/VillageGround.h"

#include "document/Elements.h"

#include "facade/contract/Records.h"

#include <QHash>

namespace refhost::village {

/// Identifiers that the document gave to the sample's numbers.
struct Numbers {
    QHash<qint16, qint16> layers, textTypes, symbols;
};

/// The elements of the sample while they are thought up. Layers, text types and symbols by the numbers of the
/// tables.
class Draft {
public:
    explicit Draft(const Numbers &numbers) : m_numbers(numbers) {}

    std::vector<Element> elements;
    std::vector<ZolWDoc::tPt> points;
    Dice dice{20240611};

    Element &line(qint16 layer, const std::vector<Spot> &course, bool closed = false);
    Element &lineAt(qint16 layer, const std::vector<Place> &course, bool closed = false);
    Element &arc(qint16 layer, Spot from, Spot to, double bulge);
    Element &fill(qint16 layer, const std::vector<Spot> &ring);
    Element &text(qint16 layer, qint16 type, Spot at, const QString &text, Spot direction = {1, 0});
    Element &textAt(qint16 layer, qint16 type, Place at, const QString &text, double rotation = 0);
    Element &symbol(qint16 layer, qint16 number, Spot at, double rotation = 0, double scale = 1);
    Element &symbolAt(qint16 layer, qint16 number, Place at, double rotation = 0, double scale = 1);
    void point(qint16 layer, const QString &name, Spot at);   ///< a row of the point table
    static double upright(Spot direction);                    ///< degrees, so turned that it reads from below

private:
    Element &begin(ElementKind, qint16 layer);
    const Numbers &m_numbers;
};

// The chapters of the sample, in drawing order.
void draftStreets(Draft &);
void draftParcels(Draft &);
void draftFields(Draft &);
void draftBrook(Draft &);
void draftUtilities(Draft &);
void draftRelief(Draft &);
void draftControl(Draft &);
void draftSheet(Draft &);

/// Points of a course every `step` metres from `from` to `to`, moved `offset` metres to the left.
std::vector<Spot> along(Course, double from, double to, double offset = 0, double step = 18);  ///< v of u
std::vector<Spot> across(Course, double from, double to, double offset = 0, double step = 18); ///< u of v

} // namespace refhost::village
