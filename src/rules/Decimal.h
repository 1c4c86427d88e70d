#pragma once

#include <string>

namespace QV_DOC_CONTROLS {

/// The decimal digits of a number without its sign: 0.d1d2d3... times ten to the power of `point`.
struct Decimal {
    explicit Decimal(double value);             ///< the fewest digits that give the same number; finite
    bool isZero() const { return digits.empty(); }
    void roundTo(int decimals);                 ///< halves away from zero
    std::string whole() const;                  ///< without leading zeros; empty below 1
    std::string fraction() const;               ///< without trailing zeros
    std::string digits;                         ///< neither the first nor the last is '0'
    int point = 0;
};

} // namespace QV_DOC_CONTROLS
