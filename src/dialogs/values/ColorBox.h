#pragma once

#include "dialogs/values/ValueBox.h"
#include "facade/services/Prompts.h"

class QLabel;

namespace QV_DOC_CONTROLS {

class ColorGrid;
class NumberEntry;

/// One colour of a palette, picked among the swatches or typed as its index; both always say the same.
class ColorBox final : public ValueBox {
    Q_OBJECT
public:
    ColorBox(const ColorIndexQuestion &, QWidget *owner);
    int index() const { return m_index; }       ///< valid once confirmed
    void accept() override;

private:
    void build();
    void show(std::optional<double> index);
    std::vector<quint32> m_palette;
    int m_index = -1;                           ///< -1 = what is typed cannot be taken
    ColorGrid *m_grid;
    NumberEntry *m_entry;
    QLabel *m_sample, *m_rgb;
};

} // namespace QV_DOC_CONTROLS
