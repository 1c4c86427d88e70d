#include "import/DrawingBuilder.h"

#include "document/CadPalette.h"

#include <algorithm>
#include <cstdlib>

namespace refhost {
namespace {

QString folded(const QString &name) { return name.trimmed().toCaseFolded(); }

bool madeByPrograms(const QString &name)
{
    // Before release 13 dimensions and hatches were anonymous blocks of this one letter, too.
    return name.startsWith(u'*') || name.compare(QStringLiteral("$MODEL_SPACE"), Qt::CaseInsensitive) == 0
           || name.compare(QStringLiteral("$PAPER_SPACE"), Qt::CaseInsensitive) == 0;
}

bool isModelSpace(const QString &name)
{
    return name.compare(QStringLiteral("*Model_Space"), Qt::CaseInsensitive) == 0
           || name.compare(QStringLiteral("$MODEL_SPACE"), Qt::CaseInsensitive) == 0;
}

} // namespace

DrawingBuilder::DrawingBuilder(const DxfScan &scan)
    : m_scan(scan), m_letters(scan.headerText("$ACADVER"), scan.headerText("$DWGCODEPAGE"))
{
    m_drawing.path = scan.path();
    m_drawing.version = QString::fromLatin1(scan.headerText("$ACADVER"));
    m_drawing.lineTypeScale = scan.headerNumber("$LTSCALE", 1);
    if (!(m_drawing.lineTypeScale > 0)) m_drawing.lineTypeScale = 1;
    m_drawing.charSet = m_letters.charSet();
    m_drawing.low = scan.low(), m_drawing.high = scan.high();
    m_drawing.lineTypes.push_back({QStringLiteral("CONTINUOUS"), {}, false});
    m_lineTypes.insert(QStringLiteral("continuous"), 0);
    for (const auto &[kind, count] : scan.kinds()) {
        m_kinds[kind] = int(m_drawing.kinds.size());
        m_drawing.kinds.push_back({.kind = QString::fromStdString(kind),
                                   .total = count.total,
                                   .paper = count.paper,
                                   .invisible = count.invisible});
    }
}

int DrawingBuilder::nearestColor(int rgb)
{
    const auto known = m_nearest.find(rgb);
    if (known != m_nearest.end()) return known->second;
    static const ZolWDoc::Palette palette = cadPalette();
    int best = 7, least = 1 << 30;
    for (int i = 1; i < 256; ++i) {
        int distance = 0;
        for (int shift : {0, 8, 16}) {
            const int d = int(palette[size_t(i)] >> shift & 255) - (rgb >> shift & 255);
            distance += d * d;
        }
        if (distance < least) best = i, least = distance;
    }
    return m_nearest[rgb] = best;
}

int DrawingBuilder::colorOf(int color, int rgb)
{
    if (rgb < 0) return std::clamp(std::abs(color), kByBlock, kByLayer);
    note(Loss::TrueColors);
    return nearestColor(rgb);
}

void DrawingBuilder::addLayer(const QString &name, const EntityHead &head, int flags)
{
    const int color = colorOf(head.color, head.trueColor);
    const DxfLayer layer{name, color == kByBlock || color == kByLayer ? 7 : color,
                         lineTypeOf(text(head.lineType)), head.color >= 0 && !(flags & 1)};
    if (head.weighted) note(Loss::LayerWeights);
    const int at = layerOf(name);
    m_drawing.layers[size_t(at)] = layer;
}

void DrawingBuilder::addLineType(DxfLineType type)
{
    const QString key = folded(type.name);
    if (key == u"bylayer" || key == u"byblock") return;
    if (type.complex) note(Loss::LineTypeTexts);
    const int at = lineTypeOf(type.name);
    m_drawing.lineTypes[size_t(at)] = std::move(type);
}

void DrawingBuilder::addTextStyle(DxfTextStyle style)
{
    const QString key = folded(style.name);
    if (m_styles.contains(key)) return;
    m_styles.insert(key, int(m_drawing.textStyles.size()));
    m_variantOf.push_back(int(m_drawing.textStyles.size()));
    m_drawing.textStyles.push_back(std::move(style));
    m_drawing.fileStyles = int(m_drawing.textStyles.size());
}

void DrawingBuilder::beginBlock(const QString &name, Vec2 base, int)
{
    m_paperBlock = paperSpaceName(name.toStdString());
    m_block = isModelSpace(name) ? -1 : blockOf(name);
    if (m_block < 0) return;
    DxfBlock &block = m_drawing.blocks[size_t(m_block)];
    block.name = name;
    block.base = base;
}

int DrawingBuilder::blockOf(const QString &name)
{
    const QString key = folded(name);
    if (key.isEmpty()) return -1;
    const auto known = m_blocks.constFind(key);
    if (known != m_blocks.constEnd()) return *known;
    m_drawing.blocks.push_back({.name = name, .anonymous = madeByPrograms(name)});
    return *m_blocks.insert(key, int(m_drawing.blocks.size()) - 1);
}

int DrawingBuilder::layerOf(const QString &name)
{
    const QString key = folded(name);
    const auto known = m_layers.constFind(key);
    if (known != m_layers.constEnd()) return *known;
    m_drawing.layers.push_back({.name = name.trimmed()});
    return *m_layers.insert(key, int(m_drawing.layers.size()) - 1);
}

int DrawingBuilder::lineTypeOf(const QString &name)
{
    const QString key = folded(name);
    if (key == u"bylayer" || key.isEmpty()) return kLineByLayer;
    if (key == u"byblock") return kLineByBlock;
    const auto known = m_lineTypes.constFind(key);
    if (known != m_lineTypes.constEnd()) return *known;
    m_drawing.lineTypes.push_back({name.trimmed(), {}, false});
    return *m_lineTypes.insert(key, int(m_drawing.lineTypes.size()) - 1);
}

int DrawingBuilder::rawLayer(const std::string &name)
{
    const auto [at, fresh] = m_rawLayers.try_emplace(name, 0);
    if (fresh) at->second = layerOf(text(name));
    return at->second;
}

int DrawingBuilder::rawLineType(const std::string &name)
{
    const auto [at, fresh] = m_rawLineTypes.try_emplace(name, 0);
    if (fresh) at->second = lineTypeOf(text(name));
    return at->second;
}

int DrawingBuilder::styleOf(const QString &name) const { return m_styles.value(folded(name), 0); }

int DrawingBuilder::variantOf(int style, const PlainText &plain, double widthFactor, bool italic)
{
    if (m_drawing.textStyles.empty()) addTextStyle({.name = QStringLiteral("STANDARD")});
    if (plain.width > 0) widthFactor = plain.width;
    const double own = m_drawing.textStyles[size_t(style)].widthFactor;
    const bool asIs = plain.face.isEmpty() && !plain.underline && !italic
                      && (!(widthFactor > 0) || std::abs(widthFactor - own) < 0.01);
    if (asIs) return style;
    DxfTextStyle wanted = m_drawing.textStyles[size_t(style)];
    const QString base = wanted.name;
    if (!plain.face.isEmpty())
        wanted.face = plain.face, wanted.bold = plain.bold, wanted.italic = plain.italic;
    if (plain.underline) wanted.underline = true;
    if (widthFactor > 0) wanted.widthFactor = std::round(widthFactor * 100) / 100;
    if (italic) wanted.italic = true;
    if (std::abs(wanted.widthFactor - own) < 0.01) wanted.widthFactor = own;
    for (size_t i = 0; i < m_drawing.textStyles.size(); ++i) {
        wanted.name = m_drawing.textStyles[i].name;
        if (m_variantOf[i] == style && m_drawing.textStyles[i] == wanted) return int(i);
    }
    for (int n = 2; wanted.name = base + u' ' + QString::number(n), m_styles.contains(folded(wanted.name));)
        ++n;
    const int fileStyles = m_drawing.fileStyles;
    addTextStyle(std::move(wanted));
    m_variantOf.back() = style;
    m_drawing.fileStyles = fileStyles;
    return int(m_drawing.textStyles.size()) - 1;
}

int DrawingBuilder::kindOf(const std::string &name)
{
    const auto [at, fresh] = m_kinds.emplace(name, int(m_drawing.kinds.size()));
    if (fresh) m_drawing.kinds.push_back({.kind = QString::fromStdString(name)});
    return at->second;
}

std::vector<DxfEntity> &DrawingBuilder::owner()
{
    return m_block < 0 ? m_drawing.model : m_drawing.blocks[size_t(m_block)].content;
}

bool DrawingBuilder::open(const EntityHead &head)
{
    m_added = 0;
    m_colorOverride = -1;
    if (head.paper || m_paperBlock || head.invisible) return false;
    m_head = {};
    m_head.kind = kindOf(head.kind);
    m_drawing.kinds[size_t(m_head.kind)].weighted += head.weighted;
    m_head.layer = rawLayer(head.layer);
    m_head.color = colorOf(head.color, head.trueColor);
    m_head.lineType = rawLineType(head.lineType);
    m_head.lineTypeScale = head.lineTypeScale > 0 ? head.lineTypeScale : 1;
    return true;
}

void DrawingBuilder::hide(const EntityHead &head)
{
    if (open(head)) ++m_drawing.kinds[size_t(m_head.kind)].invisible;
}

void DrawingBuilder::add(Element shape, int textStyle)
{
    DxfEntity e = m_head;
    e.shape = std::move(shape);
    e.textStyle = textStyle;
    e.part = m_added++ > 0;
    if (m_colorOverride >= 0) e.color = std::clamp(m_colorOverride, kByBlock, kByLayer);
    owner().push_back(std::move(e));
}

void DrawingBuilder::insert(const QString &block, const Affine &place)
{
    const int index = blockOf(block);
    if (index < 0) return;
    DxfEntity e = m_head;
    e.shape.kind = ElementKind::Symbol;
    e.block = index;
    e.place = place;
    e.part = m_added++ > 0;
    owner().push_back(std::move(e));
}

void DrawingBuilder::close()
{
    if (m_added == 0) ++m_drawing.kinds[size_t(m_head.kind)].empty;
}

Drawing DrawingBuilder::finished()
{
    layerOf(QStringLiteral("0"));       // every drawing has it, listed or not
    if (m_drawing.textStyles.empty()) addTextStyle({.name = QStringLiteral("STANDARD")});
    return std::move(m_drawing);
}

} // namespace refhost
