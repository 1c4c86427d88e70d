#pragma once

#include <QFont>
#include <QList>
#include <QPointF>
#include <QRawFont>
#include <QStringList>

#include <vector>

namespace QV_DOC_CONTROLS {

/// Lengths on paper are counted in these; the fonts' pixel sizes too, so that a page falls out alike on every
/// device.
inline constexpr int kUnitsPerInch = 1200;
inline constexpr double kUnitsPerPoint = kUnitsPerInch / 72.0;

/// One font on paper: how wide texts are and how they fall into lines. Widths are sums of the letters' own
/// advances, hundreds of times cheaper than shaping the text and the same to a trifle.
class PaperFont {
public:
    PaperFont(QFont font, double points);
    const QFont &font() const { return m_font; }
    double lineHeight() const { return m_lineHeight; }
    double ascent() const { return m_ascent; }
    double width(QStringView text) const;
    double widestWord(QStringView text) const;
    bool fits(QStringView text, double room) const;     ///< on one line
    /// At most `most` lines, broken between words where there is a place; the last is elided when the text
    /// goes on.
    QStringList lines(const QString &text, double room, int most) const;

    struct Glyphs {
        QList<quint32> indexes;
        QList<QPointF> places;                          ///< origins, whole units: shorter files
    };
    /// Adds the glyphs of a text that begins at `at`. False, and nothing added, when its letters need shaping
    /// or another font: such a text is drawn as text.
    bool addGlyphs(const QString &text, QPointF at, Glyphs &to) const;
    const QRawFont &rawFont() const { return m_raw; }

private:
    struct Letter {
        float advance = -1;                             ///< negative = not measured yet
        quint32 glyph = 0;                              ///< 0 = to be shaped
    };
    const Letter &letterOf(QChar letter) const;
    QFont m_font;
    QRawFont m_raw;
    double m_lineHeight, m_ascent;
    mutable std::vector<Letter> m_letters;              ///< by code unit
};

} // namespace QV_DOC_CONTROLS
