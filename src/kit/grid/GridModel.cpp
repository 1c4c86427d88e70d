#include "kit/grid/GridModel.h"

#include "facade/services/Text.h"
#include "facade/services/InterfaceLocale.h"
#include "kit/grid/CardCaption.h"

#include <QKeySequence>

#include <cmath>

namespace QV_DOC_CONTROLS {
namespace {

constexpr int kPictureCache = 4096;             ///< kilobytes

constexpr QKeyCombination kChoose = Qt::ALT | Qt::Key_Down;

QString yesNo(bool on) { return on ? txt(Text{21000, u"igen"}) : txt(Text{21001, u"nem"}); }

} // namespace

GridModel::GridModel(QObject *parent) : QAbstractTableModel(parent), m_pictures(kPictureCache)
{
    m_engine.setLocale(interfaceLocale());
}
GridModel::~GridModel() = default;

void GridModel::setSource(GridSource *source)
{
    beginResetModel();
    m_source = source;
    readColumns();
    m_rule = {};
    m_filter.refill(cellRows());
    m_engine.restart();
    m_pictures.clear();
    m_styledRow = -1;
    endResetModel();
}

void GridModel::refill(const std::function<void()> &change)
{
    beginResetModel();
    change();
    readColumns();
    m_pictures.clear();
    m_styledRow = -1;
    m_filter.refill(cellRows());
    m_engine.refill(m_filter.fitting(m_rule), known(m_engine.groupLevels()), known(m_engine.sortKeys()));
    endResetModel();
}

void GridModel::setKeys(std::span<const SortKey> groups, std::span<const SortKey> sorts)
{
    beginResetModel();
    m_engine.setKeys(known(groups), known(sorts));
    endResetModel();
}

std::vector<SortKey> GridModel::known(std::span<const SortKey> keys) const
{
    std::vector<SortKey> out;
    for (const SortKey &key : keys)
        if (column(key.column)) out.push_back(key);
    return out;
}

void GridModel::setAllExpanded(bool expanded)
{
    beginResetModel();
    m_engine.setAllExpanded(expanded);
    m_engine.rebuild();
    endResetModel();
}

void GridModel::setFilter(const FilterRule &rule)
{
    beginResetModel();
    m_rule = rule;
    m_engine.setFitting(m_filter.fitting(m_rule));
    endResetModel();
}

void GridModel::searchColumns(const std::vector<int> &columns)
{
    m_filter.reset(cellRows(), [this, columns](int row, FilterRule::RowFolder &folder) {
        for (int c : columns)
            if (column(c)) folder.add(cellText(row, c), column(c)->kind == CellKind::Check);
    });
}

void GridModel::captionsChanged()
{
    beginResetModel();
    readColumns();
    m_engine.setLocale(interfaceLocale());
    m_engine.rebuild();
    endResetModel();
    if (columnCount() > 0) emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

void GridModel::toggle(int band)
{
    const RowEngine::Span lines = m_engine.toggled(band);
    if (m_engine.band(band).expanded) {
        emit aboutToCollapse(lines.first, lines.first + lines.count - 1);
        beginRemoveRows({}, lines.first, lines.first + lines.count - 1);
        m_engine.toggle(band);
        endRemoveRows();
    } else {
        beginInsertRows({}, lines.first, lines.first + lines.count - 1);
        m_engine.toggle(band);
        endInsertRows();
    }
    const QModelIndex at = index(lines.first - 1, 0);
    emit dataChanged(at, at.siblingAtColumn(columnCount() - 1));
}

void GridModel::rowEdited(int row)
{
    if (row < 0 || row >= cellRows()) return;
    m_styledRow = -1;
    for (int c = 0; c < columnCount(); ++c) m_pictures.remove({m_source->rowId(row), c});
    m_filter.rowEdited(row);
    m_engine.rowEdited(row, m_filter.fits(row, m_rule));
    const QModelIndex at = indexOf(row);
    if (at.isValid()) emit dataChanged(at, at.siblingAtColumn(columnCount() - 1));
}

bool GridModel::placeRow(int row)
{
    const auto target = m_engine.targetOf(row);
    if (!target) return false;
    if (target->from == target->to) return m_engine.place(row, *target), true;
    beginMoveRows({}, target->from, target->from, {}, target->to + (target->to > target->from));
    m_engine.place(row, *target);
    endMoveRows();
    return true;
}

void GridModel::rebuild()
{
    beginResetModel();
    m_engine.rebuild();
    endResetModel();
}

int GridModel::sourceRow(const QModelIndex &index) const
{
    return index.isValid() ? std::max(m_engine.rowAt(index.row()), -1) : -1;
}

int GridModel::bandOf(const QModelIndex &index) const
{
    return index.isValid() ? std::max(m_engine.bandAt(index.row()), -1) : -1;
}

int GridModel::rowWithId(qint64 id) const
{
    for (int r = 0; r < cellRows(); ++r)
        if (m_source->rowId(r) == id) return r;
    return -1;
}

const GridColumn *GridModel::column(int c) const
{
    return m_source && c >= 0 && c < int(m_source->columns().size()) ? &m_source->columns()[size_t(c)]
                                                                     : nullptr;
}

GridStyle GridModel::styleOf(int row, int column) const
{
    if (row != m_styledRow) m_rowStyles = m_source->styles(row), m_styledRow = row;
    GridStyle style = m_styles.find(m_rowStyles.row);
    style.bold |= m_rowStyles.bold;
    if (const auto own = m_rowStyles.cells.constFind(column); own != m_rowStyles.cells.constEnd()) {
        const GridStyle cell = m_styles.find(*own);
        if (cell.background.isValid()) style.background = cell.background, style.grayed = false;
        if (cell.text.isValid()) style.text = cell.text;
    }
    return style;
}

QPixmap GridModel::picture(int row, int column) const
{
    const std::pair key(m_source->rowId(row), column);
    if (const QPixmap *known = m_pictures.object(key)) return *known;
    const QPixmap asked = m_source->picture(row, column);
    m_pictures.insert(key, new QPixmap(asked), 1 + asked.width() * asked.height() * 4 / 1024);
    return asked;
}

bool GridModel::sortsByNumber(int c) const
{
    const CellKind kind = column(c)->kind;
    return kind == CellKind::Number || kind == CellKind::Color || kind == CellKind::Check;
}

double GridModel::number(int row, int c) const
{
    bool isNumber = false;
    const double n = m_source->value(row, c).toDouble(&isNumber);
    return isNumber ? n : std::nan("");
}

QString GridModel::cellText(int row, int c) const
{
    return column(c)->kind == CellKind::Check ? yesNo(m_source->value(row, c).toBool())
                                              : m_source->text(row, c);
}

void GridModel::setBandCaption(const QString &caption)
{
    m_beforeBands = caption.isEmpty() ? QString() : caption.section(u'|', 0, 0) + u' ';
}

QString GridModel::bandText(int b) const
{
    const RowEngine::Band &band = m_engine.band(b);
    const int c = m_engine.groupLevels()[size_t(band.level)].column;
    const QString value = cellText(m_engine.firstRowOf(b), c);
    return m_beforeBands + column(c)->caption + QStringLiteral(": ")
        + (value.isEmpty() ? txt(Text{21002, u"(üres)"}) : value)
        + QStringLiteral(" (") + interfaceLocale().toString(band.count) + u')';
}

QString GridModel::accessibleBand(int b) const
{
    const RowEngine::Band &band = m_engine.band(b);
    const int c = m_engine.groupLevels()[size_t(band.level)].column;
    return join(Text{21003, u"csoport "}, m_beforeBands, column(c)->caption, QStringLiteral(": "),
                cellText(m_engine.firstRowOf(b), c), QStringLiteral(", "), band.count,
                band.count == 1 ? Text{21004, u" sor"} : Text{21005, u" sor"}, QStringLiteral(", "),
                band.expanded ? Text{21006, u"kibontva"} : Text{21007, u"összecsukva"});
}

QString GridModel::chooseHint()
{
    return QStringLiteral("%1 (%2)").arg(txt(Text{22342, u"Választás"}),
                                         QKeySequence(kChoose).toString(QKeySequence::NativeText));
}

void GridModel::setCard(const QString &caption, int numberColumn, int nameColumn)
{
    m_cardCaption = caption, m_numberColumn = numberColumn, m_nameColumn = nameColumn;
}

QString GridModel::cardCaption(int row) const
{
    const bool isNamed = column(m_numberColumn) && column(m_nameColumn);
    return QV_DOC_CONTROLS::cardCaption(isNamed ? m_cardCaption : QString(),
                                        isNamed ? text(row, m_numberColumn) : QString(),
                                        text(row, std::max(m_nameColumn, 0)));
}

int GridModel::rowCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : m_engine.lines(); }

int GridModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_flags.size());
}

QVariant GridModel::accessibleText(int row, int c) const
{
    const GridColumn &col = *column(c);
    const QString shown = m_source->text(row, c);
    switch (col.kind) {
    case CellKind::Check:
        return col.caption + u' ' + (m_source->value(row, c).toBool() ? txt(Text{20176, u"bekapcsolva"})
                                                                     : txt(Text{20177, u"kikapcsolva"}));
    case CellKind::Color: return join(Text{20175, u"szín "}, shown);
    case CellKind::Picture: return join(Text{21011, u"kép "}, shown);
    default: return shown;
    }
}

/// The column, and the key that not everybody would try.
QString GridModel::described(int c) const
{
    const GridColumn &col = *column(c);
    return col.asks && m_flags[size_t(c)] & Qt::ItemIsEditable
               ? col.caption + QStringLiteral(", ") + chooseHint()
               : col.caption;
}

QVariant GridModel::cellData(int row, int c, int role) const
{
    const CellKind kind = column(c)->kind;
    switch (role) {
    case Qt::DisplayRole: return kind == CellKind::Check ? QVariant() : m_source->text(row, c);
    case Qt::EditRole: return m_source->value(row, c);
    case Qt::CheckStateRole:
        if (kind != CellKind::Check) return {};
        return m_source->value(row, c).toBool() ? Qt::Checked : Qt::Unchecked;
    case Qt::ToolTipRole: return tooltips ? cellText(row, c) : QVariant();
    case Qt::TextAlignmentRole:
        return kind == CellKind::Number || kind == CellKind::Color
                   ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                   : QVariant();
    case Qt::AccessibleTextRole: return accessibleText(row, c);
    case Qt::AccessibleDescriptionRole: return described(c);
    default: return {};
    }
}

QVariant GridModel::data(const QModelIndex &index, int role) const
{
    if (!m_source || !index.isValid()) return {};
    const int row = m_engine.rowAt(index.row());
    if (row >= 0) return cellData(row, index.column(), role);
    if (index.column() > 0) return {};
    if (role == Qt::DisplayRole) return bandText(~row);
    if (role == Qt::AccessibleTextRole) return accessibleBand(~row);
    return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const GridColumn *c = orientation == Qt::Horizontal ? column(section) : nullptr;
    if (!c) return {};
    if (role == Qt::DisplayRole) return c->caption;
    if (role != Qt::ToolTipRole && role != Qt::AccessibleTextRole) return {};
    const QString &name = c->longCaption.isEmpty() ? c->caption : c->longCaption;
    return c->unit.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, c->unit);
}

void GridModel::readColumns()
{
    m_flags.clear();
    for (int c = 0; const GridColumn *col = column(c); ++c) {
        Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled |
                              Qt::ItemNeverHasChildren; // whether rows are dragged is the views' affair
        if (m_writable && col->editable && col->kind != CellKind::Picture)
            flags |= col->kind == CellKind::Check ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable;
        m_flags.push_back(flags);
    }
}

void GridModel::setWritable(bool on)
{
    m_writable = on;
    readColumns();
}

QModelIndex GridModel::index(int line, int column, const QModelIndex &parent) const
{
    const bool isThere = line >= 0 && line < m_engine.lines() && column >= 0 && column < int(m_flags.size());
    return isThere && !parent.isValid() ? createIndex(line, column) : QModelIndex();
}

Qt::ItemFlags GridModel::flags(const QModelIndex &index) const
{
    if (!index.isValid() || index.column() >= int(m_flags.size())) return Qt::NoItemFlags;
    return m_engine.rowAt(index.row()) < 0 ? Qt::ItemIsEnabled | Qt::ItemNeverHasChildren
                                           : m_flags[size_t(index.column())];
}

bool GridModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const int row = sourceRow(index);
    if (row < 0 || !(flags(index) & (Qt::ItemIsUserCheckable | Qt::ItemIsEditable))) return false;
    const bool check = column(index.column())->kind == CellKind::Check;
    if (role != (check ? int(Qt::CheckStateRole) : int(Qt::EditRole))) return false;
    const qint64 id = m_source->rowId(row);
    if (!m_source->edit(row, index.column(), check ? QVariant(value.toInt() == Qt::Checked) : value))
        return false;
    const bool sameRow =
        m_source && row < cellRows() && m_source->rowId(row) == id; // the source may have refilled
    if (!sameRow) return true;
    rowEdited(row);
    emit rowChanged(row);
    return true;
}

/// The rows may be others when the answer comes.
void GridModel::choose(const QModelIndex &cell)
{
    const int row = sourceRow(cell), c = cell.column();
    if (row < 0 || !column(c)->asks || !(flags(cell) & Qt::ItemIsEditable)) return;
    const qint64 id = m_source->rowId(row);
    if (const auto chosen = m_source->choose(row, c))
        setData(indexOf(rowWithId(id), c), *chosen, Qt::EditRole);
}

} // namespace QV_DOC_CONTROLS
