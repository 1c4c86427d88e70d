#pragma once

#include "import/Drawing.h"
#include "import/DxfScan.h"
#include "import/DxfText.h"

#include <unordered_map>

namespace refhost {

/// Attributes that every object has.
struct EntityHead {
    std::string layer, lineType;
    int color = kByLayer;       ///< colour index, negative = layer off
    int trueColor = -1;         ///< 0xRRGGBB, -1 = none
    double lineTypeScale = 1;
    bool weighted = false;      ///< says how thick its own lines are
    bool paper = false, invisible = false;
    std::string kind;
};

/// Puts a drawing together from what the reader meets. Names are found in any case; unknown ones are added.
class DrawingBuilder {
public:
    explicit DrawingBuilder(const DxfScan &);
    const DxfLetters &letters() const { return m_letters; }
    QString text(std::string_view raw) const { return m_letters(m_scan.whole(raw)); }

    void addLayer(const QString &name, const EntityHead &, int flags);
    void addLineType(DxfLineType);
    void addTextStyle(DxfTextStyle);
    void beginBlock(const QString &name, Vec2 base, int flags);
    void endBlock() { m_block = -1; }

    int blockOf(const QString &name);           ///< known or still to come
    int styleOf(const QString &name) const;     ///< the first one when there is no such style
    int variantOf(int style, const PlainText &, double widthFactor, bool italic);
    const DxfTextStyle &style(int index) const { return m_drawing.textStyles[size_t(index)]; }

    /// False when the object is left out: in paper space or invisible. Must be asked before anything is added
    /// for it.
    bool open(const EntityHead &);
    void hide(const EntityHead &);              ///< an object that its own flags make invisible
    void add(Element shape, int textStyle = 0);
    void insert(const QString &block, const Affine &place);
    void close();                               ///< counts the object as empty when nothing was added
    void note(Loss loss) { ++m_drawing.losses[int(loss)]; }
    void setColor(int color) { m_colorOverride = color; } ///< of what is added to the open object from now on

    Drawing finished();

private:
    std::vector<DxfEntity> &owner();
    int layerOf(const QString &name);
    int lineTypeOf(const QString &name);
    int kindOf(const std::string &name);
    int rawLayer(const std::string &name);
    int rawLineType(const std::string &name);
    int nearestColor(int rgb);
    int colorOf(int color, int rgb);

    const DxfScan &m_scan;
    DxfLetters m_letters;
    Drawing m_drawing;
    QHash<QString, int> m_layers, m_lineTypes, m_styles, m_blocks;
    std::unordered_map<std::string, int> m_kinds, m_rawLayers, m_rawLineTypes;
    std::map<int, int> m_nearest;
    std::vector<int> m_variantOf;               // of each text style: the one of the file that it comes from
    int m_block = -1;
    bool m_paperBlock = false;
    DxfEntity m_head;                           // of the object that is open
    int m_added = 0, m_colorOverride = -1;
};

} // namespace refhost
