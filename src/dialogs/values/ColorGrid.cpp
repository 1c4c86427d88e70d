#include "dialogs/values/ColorGrid.h"

#include "kit/forms/WindowSize.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QPainter>
#include <QScreen>
#include <QStyledItemDelegate>

#include <algorithm>

namespace QV_DOC_CONTROLS {
namespace {

constexpr int kPerLine = 16;

int indexOf(const QModelIndex &cell) { return cell.isValid() ? cell.row() * kPerLine + cell.column() : -1; }

struct PaletteModel final : QAbstractTableModel {
    PaletteModel(std::vector<quint32> colors, QObject *parent)
        : QAbstractTableModel(parent), m_colors(std::move(colors))
    {}
    int rowCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : (int(m_colors.size()) + kPerLine - 1) / kPerLine;
    }
    int columnCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : std::min(int(m_colors.size()), kPerLine);
    }
    bool has(const QModelIndex &cell) const { return cell.isValid() && indexOf(cell) < int(m_colors.size()); }
    QVariant data(const QModelIndex &cell, int role) const override
    {
        if (!has(cell)) return {};
        const quint32 color = m_colors[size_t(indexOf(cell))];
        if (role == Qt::BackgroundRole) return QColor(QRgb(color));
        if (role != Qt::ToolTipRole && role != Qt::AccessibleTextRole) return {};
        return QString(QString::number(indexOf(cell)) + QStringLiteral(" – ") + rgbOf(color));
    }
    QVariant headerData(int section, Qt::Orientation turned, int role) const override
    {
        if (role != Qt::DisplayRole) return {};
        return turned == Qt::Horizontal ? section : section * kPerLine;
    }
    Qt::ItemFlags flags(const QModelIndex &cell) const override
    {
        return has(cell) ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
    }

private:
    std::vector<quint32> m_colors;
};

QColor between(const QColor &a, const QColor &b)
{
    return QColor((a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2);
}

QRect inside(const QRect &rect, int margin) { return rect.marginsRemoved({margin, margin, margin, margin}); }

/// A swatch stands on the view's ground with a thin edge, so that none vanishes; the chosen one has a strong
/// frame in the text colour around it, which stands out on any palette.
struct SwatchDelegate final : QStyledItemDelegate {
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &cell) const override
    {
        const QVariant color = cell.data(Qt::BackgroundRole);
        if (!color.isValid()) return;
        const int step = std::max(1, option.rect.height() / 12);
        const QColor text = option.palette.color(QPalette::Text),
                     ground = option.palette.color(QPalette::Base);
        int margin = step;
        if (option.state & QStyle::State_Selected) {
            painter->fillRect(option.rect, text);
            painter->fillRect(inside(option.rect, 2 * step), ground);
            margin = 3 * step;
        }
        painter->fillRect(inside(option.rect, margin), between(text, ground));
        painter->fillRect(inside(option.rect, margin + 1), color.value<QColor>());
    }
};

} // namespace

QString rgbOf(quint32 color)
{
    return QStringLiteral("RGB %1, %2, %3").arg(qRed(color)).arg(qGreen(color)).arg(qBlue(color));
}

ColorGrid::ColorGrid(std::vector<quint32> palette, QWidget *parent)
    : CellGrid(kPerLine, parent), m_count(int(palette.size()))
{
    setModel(new PaletteModel(std::move(palette), this));
    setItemDelegate(new SwatchDelegate(this));
    fitSwatches();
}

void ColorGrid::fitSwatches()
{
    const int side = fontMetrics().height() * 3 / 2;
    for (QHeaderView *header : {horizontalHeader(), verticalHeader()}) {
        header->setMinimumSectionSize(side);
        header->setDefaultSectionSize(side);
    }
    const QSize swatches(side * model()->columnCount(), side * model()->rowCount());
    const QSize headers(verticalHeader()->sizeHint().width(), horizontalHeader()->sizeHint().height());
    QSize whole = swatches + headers + QSize(2, 2) * frameWidth();
    const QSize room = screen()->availableSize() - sizeOfLetters(*this, 4, 16); // the box needs some too
    if (whole.height() > room.height()) whole.rwidth() += style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    setMinimumSize(whole.boundedTo(room));
    setMaximumSize(whole);
}

void ColorGrid::keyboardSearch(const QString &typed)
{
    if (std::ranges::all_of(typed, [](QChar c) { return c >= u'0' && c <= u'9'; })) emit digitsTyped(typed);
}

} // namespace QV_DOC_CONTROLS
