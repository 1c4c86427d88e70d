#pragma once

#include "sample/VillageGround.h"

#include <vector>

namespace refhost::village {

class Draft;

/// One parcel seen from its street: the front runs from left to right when the street is at one's back.
struct Plot {
    Spot frontLeft, frontRight, backLeft, backRight;
    int house = 0;                                  ///< house number
    Spot front() const { return unit(frontRight - frontLeft); }
    double width() const { return lengthOf(frontRight - frontLeft); }
    double depth() const
    {
        return lengthOf(between(backLeft, backRight, 0.5) - between(frontLeft, frontRight, 0.5));
    }
    /// `across` metres from the left side, `deep` metres from the street.
    Spot at(double across, double deep) const;
};

/// What lies between two streets and two lanes. s runs from the left lane to the right, t from below to
/// above, 0..1.
struct Block {
    Course left, right;                             ///< u of v
    double leftHalf, rightHalf;                     ///< half widths of what lies there, metres
    Course bottom, top;                             ///< v of u
    double bottomHalf, topHalf;
    bool frontBottom, frontTop;                     ///< parcels open to the street there
    double plotWidth;                               ///< metres, the mean
    std::vector<double> bottomCuts{}, topCuts{};    ///< s of the parcels' sides

    Spot at(double s, double t) const;
    Spot corner(double s, bool top_) const { return at(s, top_ ? 1 : 0); }
    Spot back(double s, bool top_) const;           ///< where the parcels of that front end
    std::vector<double> cuts(Dice &, bool top_) const;
};
std::vector<Block> blocks();

void furnish(Draft &, const Plot &);                ///< house, yard, garden

} // namespace refhost::village
