#pragma once

#include "dialogs/editors/ItemList.h"
#include "grids/SymbolTable.h"

namespace QV_DOC_CONTROLS {

class SymbolPictures;

/// The symbols of one group, or of all, as the symbol manager lists them.
class SymbolListModel final : public ItemModel {
    Q_OBJECT
public:
    static constexpr int kNameColumn = 1;
    explicit SymbolListModel(SymbolPictures &pictures);

    const std::vector<ZolWDoc::tSid> &all() const { return m_all; }
    const ZolWDoc::tSid &at(int row) const { return m_all[size_t(m_rows[size_t(row)])]; }
    /// All symbols, of which those of `group` are listed; none = all. Inside ItemList::rearrange().
    void setSymbols(std::vector<ZolWDoc::tSid> all, SymbolNames names, std::optional<qint16> group);
    void showGroup(std::optional<qint16> group);
    void setMarked(qint16 id) { m_marked = id; } ///< the symbol that the manager was opened with; -1 = none
    qint16 marked() const { return m_marked; }
    using Dragged = std::function<QMimeData *(const std::vector<qint16> &)>;
    void setDragged(Dragged data) { m_drag = std::move(data); }
    void retranslate();
    static QString hintOf(int column); ///< for the hint line; empty = none

    qint16 idAt(int row) const override { return at(row).SidId; }
    int rowOf(qint16 id) const override;
    const std::vector<GridColumn> &columns() const override { return m_columns; }
    const std::vector<SortKey> &sortKeys() const override { return m_sorts; }
    void setSortKeys(std::vector<SortKey> keys) override;
    void setPictureColumn(int column) override { m_pictureColumn = column; }

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_rows.size());
    }
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation turned, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QStringList mimeTypes() const override { return {QStringLiteral("text/plain")}; }
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    Qt::DropActions supportedDragActions() const override { return Qt::MoveAction; }

private:
    QVariant image(const ZolWDoc::tSid &symbol, int column) const;
    void list();
    void sortBy(const SortKey &key);
    SymbolPictures &m_pictures;
    std::vector<ZolWDoc::tSid> m_all;
    SymbolNames m_names;
    std::vector<int> m_rows; ///< places in m_all, as listed
    QHash<qint16, int> m_rowOf;
    std::optional<qint16> m_group;
    Dragged m_drag;
    qint16 m_marked = -1;
    int m_pictureColumn = 0;
    std::vector<GridColumn> m_columns;
    std::vector<SortKey> m_sorts;
};

} // namespace QV_DOC_CONTROLS
