#pragma once

#include <QLocale>
#include <QString>

#include <vector>

namespace QV_DOC_CONTROLS {

/// A number format pattern, such as "0.00", "#,##0.0", "0.00E+00", "0.0 \"mm\"", "0 %" or "0.0;(0.0);-".
///
/// Up to three sections, parted by ";": numbers from zero up, negative numbers, zero. An empty or missing one
/// is the first, with a minus before negative numbers. In a section stand
///   0       a digit, at least a zero          #       a digit that may be missing
///   .       the locale's decimal separator; it goes when all decimals behind it may be and are missing
///   ,       between two digits: thousands are grouped; behind the last digit: a thousandth is shown
///   %       a per cent sign; the hundredfold is shown
///   E+ E- e+ e- with 0 or # behind: scientific notation, with as many whole digits as are asked for
///   \x "x"  the text x itself; so is every other character.
/// An empty pattern gives the shortest text that reads back as the same number.
///
/// Halves are rounded away from zero, by the decimal digits that a person sees: 1.005 in "0.00" is 1.01. What
/// is shown as zero has no minus. Digits and signs are those of ASCII, as they are typed, in every locale.
class NumberFormat {
public:
    explicit NumberFormat(QStringView pattern);
    QString text(double value, const QLocale &locale) const;

    /// How the text of a number in this pattern is taken apart again.
    struct Outside {
        QString before, after;                  ///< literal text around the digits, per cent sign included
        bool negative = false;                  ///< the section stands for negative numbers
    };
    std::vector<Outside> outsides() const;      ///< of the sections that have digits
    int shift() const;                          ///< decimal places by which more is shown than the value
    bool scientific() const;                    ///< some section shows an exponent
    bool grouped() const;                       ///< some section groups thousands

private:
    enum class Kind { Literal, Digit, Point, Exponent };
    struct Piece {
        Kind kind;
        QString text;                           ///< literal text; of an exponent its letter and sign
    };
    struct Section {
        std::vector<Piece> pieces;
        int whole = 0, leastWhole = 0;          ///< digits before the point
        int decimals = 0, leastDecimals = 0;
        int leastExponent = 0;
        int shift = 0;                          ///< 2 for a per cent sign, -3 for a scaling comma
        bool grouped = false, scientific = false, hasPoint = false;
    };
    class Reader;
    class Writer;
    static QString shortest(double value, const QLocale &locale);
    const Section &sectionFor(int sign) const;
    std::vector<Section> m_sections;            ///< 1 to 3
};

QString formatted(double value, QStringView pattern, const QLocale &locale);
QChar decimalSeparator(const QLocale &locale);  ///< the second character of 1.1 in "0.0"

} // namespace QV_DOC_CONTROLS
