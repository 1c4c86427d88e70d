#include "dialogs/editors/SymbolListModel.h"

#include "dialogs/editors/ManagerImages.h"
#include "dialogs/editors/SymbolPictures.h"
#include "facade/services/InterfaceLocale.h"

#include <QCollator>
#include <QMimeData>

#include <numeric>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

namespace {

QVariant decimal(double value) { return interfaceLocale().toString(value, 'f', 2); }

struct ListColumn {
    const char *key; ///< published
    Text caption, hint;
    QVariant (*text)(const tSid &, const SymbolNames &);
    double (*number)(const tSid &) = nullptr; ///< sorted by it; none = by the text
};
constexpr ListColumn kColumns[] = {
    {"SidId",
     {20029, u"Ssz."},
     {20090, u" Sorszám "},
     [](const tSid &s, const SymbolNames &) { return QVariant(QString::number(s.SidId)); },
     [](const tSid &s) { return double(s.SidId); }},
    {"Name",
     {20018, u"Név"},
     {20091, u" Név "},
     [](const tSid &s, const SymbolNames &) { return QVariant(s.ShortName); }},
    {"Size_mm",
     {20030, u"Méret"},
     {20092, u" Nagyság "},
     [](const tSid &s, const SymbolNames &) { return decimal(s.Size_mm); },
     [](const tSid &s) { return double(s.Size_mm); }},
    {"Width",
     {20031, u"Vast."},
     {20093, u" Vonalvastagság "},
     [](const tSid &s, const SymbolNames &) { return decimal(s.Weight / 100.0); },
     [](const tSid &s) { return double(s.Weight); }},
    {"FontType",
     {20032, u"Típ."},
     {20094, u" TrueType/ZOL-2.5 font "},
     [](const tSid &s, const SymbolNames &n) { return QVariant(fontTypeName(s, n)); }},
    {"FaceName",
     {20033, u"Készlet"},
     {20095, u" Karakterkészlet "},
     [](const tSid &s, const SymbolNames &) { return QVariant(s.Facename); }},
    {"LayerName",
     {20034, u"Cél réteg"},
     {20096, u" Cél réteg "},
     [](const tSid &s, const SymbolNames &n) { return QVariant(layerName(s, n)); }},
};
constexpr int kFontType = 4;
constexpr int kColumnCount = int(std::size(kColumns));

} // namespace

SymbolListModel::SymbolListModel(SymbolPictures &pictures) : m_pictures(pictures)
{
    connect(&pictures, &SymbolPictures::drawn, this, &ItemModel::picturesDrawn);
}

QString SymbolListModel::hintOf(int column)
{
    return column < 0 || column >= kColumnCount ? QString() : txt(kColumns[column].hint);
}

void SymbolListModel::setSymbols(std::vector<tSid> all, SymbolNames names, std::optional<qint16> group)
{
    beginResetModel();
    m_all = std::move(all);
    m_names = std::move(names);
    m_group = group;
    list();
    endResetModel();
}

void SymbolListModel::showGroup(std::optional<qint16> group)
{
    beginResetModel();
    m_group = group;
    list();
    endResetModel();
}

void SymbolListModel::setSortKeys(std::vector<SortKey> keys)
{
    beginResetModel();
    m_sorts = std::move(keys);
    list();
    endResetModel();
}

void SymbolListModel::list()
{
    m_rows.clear();
    for (int i = 0; i < int(m_all.size()); ++i)
        if (!m_group || m_all[size_t(i)].GroupId == *m_group) m_rows.push_back(i);
    for (auto key = m_sorts.rbegin(); key != m_sorts.rend(); ++key) sortBy(*key); // the first counts most
    m_rowOf.clear();
    for (int row = 0; row < int(m_rows.size()); ++row) m_rowOf.insert(idAt(row), row);
}

/// Each text gets its sorting key once.
void SymbolListModel::sortBy(const SortKey &key)
{
    const ListColumn &column = kColumns[key.column];
    const bool up = key.order == SortOrder::Ascending;
    const auto inOrder = [&](auto less) {
        std::ranges::stable_sort(m_rows, [&](int a, int b) {
            return up ? less(size_t(a), size_t(b)) : less(size_t(b), size_t(a));
        });
    };
    if (column.number)
        return inOrder([&](size_t a, size_t b) { return column.number(m_all[a]) < column.number(m_all[b]); });
    QCollator collator(interfaceLocale());
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<QCollatorSortKey> keys;
    keys.reserve(m_all.size());
    for (const tSid &s : m_all) keys.push_back(collator.sortKey(column.text(s, m_names).toString()));
    inOrder([&](size_t a, size_t b) { return keys[a] < keys[b]; });
}

int SymbolListModel::rowOf(qint16 id) const { return m_rowOf.value(id, -1); }
int SymbolListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : kColumnCount;
}

void SymbolListModel::retranslate()
{
    m_columns.clear();
    for (const ListColumn &c : kColumns)
        m_columns.push_back({.key = QString::fromLatin1(c.key), .caption = txt(c.caption),
                             .longCaption = txt(c.hint).trimmed()});
    emit headerDataChanged(Qt::Horizontal, 0, kColumnCount - 1);
}

QVariant SymbolListModel::image(const tSid &symbol, int column) const
{
    if (column == m_pictureColumn) return m_pictures.of(symbol);
    if (column == kFontType && symbol.Type <= kVectorFont)
        return managerImage(symbol.Type == kVectorFont ? "Vector" : "TrueType");
    if (column == kNameColumn && symbol.SidId == m_marked) return managerImage("Current");
    return {};
}

QVariant SymbolListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) return {};
    const tSid &symbol = at(index.row());
    const ListColumn &column = kColumns[index.column()];
    switch (role) {
    case Qt::DisplayRole: return column.text(symbol, m_names);
    case Qt::DecorationRole: return image(symbol, index.column());
    case Qt::ToolTipRole: return symbol.FullName.isEmpty() ? symbol.ShortName : symbol.FullName;
    case Qt::AccessibleTextRole:
        return index.column() == kNameColumn && m_pictureColumn == kNameColumn
                   ? QStringLiteral("%1, %2").arg(symbol.SidId).arg(symbol.ShortName)
                   : column.text(symbol, m_names);
    case Qt::TextAlignmentRole:
        return column.number ? QVariant(int(Qt::AlignRight | Qt::AlignVCenter)) : QVariant();
    default: return {};
    }
}

QVariant SymbolListModel::headerData(int section, Qt::Orientation turned, int role) const
{
    if (turned != Qt::Horizontal) return {};
    if (role == Qt::DisplayRole) return txt(kColumns[section].caption);
    const auto key = std::ranges::find(m_sorts, section, &SortKey::column);
    if (role == Qt::DecorationRole && key != m_sorts.end())
        return managerImage(key->order == SortOrder::Ascending ? "SortAZ" : "SortZA");
    return {};
}

Qt::ItemFlags SymbolListModel::flags(const QModelIndex &index) const
{
    return index.isValid()
               ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren
               : Qt::NoItemFlags;
}

QMimeData *SymbolListModel::mimeData(const QModelIndexList &indexes) const
{
    std::vector<qint16> ids;
    for (const QModelIndex &i : indexes)
        if (i.column() == kNameColumn) ids.push_back(idAt(i.row()));
    return m_drag && !ids.empty() ? m_drag(ids) : nullptr;
}

} // namespace QV_DOC_CONTROLS
