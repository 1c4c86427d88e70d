#pragma once

#include <QColor>
#include <QHash>
#include <QString>

namespace QV_DOC_CONTROLS {

/// How a row or cell looks; what is invalid or false stays as the palette has it.
struct GridStyle {
    QColor background;
    QColor text;
    bool grayed = false;    ///< text halfway between the palette's text and its ground
    bool bold = false;
};

/// The format styles of one grid, by name.
class GridStyles {
public:
    void clear() { m_styles.clear(); }
    void set(const QString &name, const GridStyle &style) { m_styles.insert(name, style); }
    GridStyle find(const QString &name) const { return m_styles.value(name); } ///< unknown names look plain
    bool contains(const QString &name) const { return m_styles.contains(name); }
private:
    QHash<QString, GridStyle> m_styles;
};

} // namespace QV_DOC_CONTROLS
