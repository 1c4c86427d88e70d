#pragma once

#include "facade/contract/FontPicker.h"
#include "facade/contract/ResourcePicker.h"
#include "grids/SymbolTable.h"
#include "grids/frame/GroupedManager.h"
#include "grids/grouped/OwnDrag.h"
#include "grids/symbol/SymbolEdits.h"
#include "grids/symbol/SymbolFiles.h"
#include "grids/symbol/SymbolRemoval.h"

#include <QPixmap>

namespace QV_DOC_CONTROLS {

/// The grid manager of the symbol table, with its groups in a second grid. New and loaded symbols go to the
/// chosen group, or with "MIND" to the first.
class clsJS_Sid final : public GroupedManager<SymbolTable> { // published spelling
    Q_OBJECT
public:
    clsJS_Sid();
    ~clsJS_Sid() override;

    void Refresh() { fill(); }                          ///< published name; throws the host's error
    /// Makes the picture of a record's sample; asked while painting, so that it asks no document itself.
    using Sampler = std::function<QPixmap(const ZolWDoc::tSid &)>;
    void setSampler(Sampler sampler) { m_sampler = std::move(sampler); }
    /// Removes one symbol as a host's own command would; throws the host's error. `needConfirm`: one in use
    /// is asked for, until "Mind" clears it. `useMsgBox`: the question has no "Mind". True = it is gone.
    bool OpSid_Delete(const ZolWDoc::tSid &symbol, bool &needConfirm, bool useMsgBox)
    {
        return isOpen() && m_removal.removeOne(symbol, needConfirm, useMsgBox);
    }

    // --- commands, for the table kSymbolCommands; an error goes to the relay
    void newSymbol() { command([this] { m_edits.addNew(); }); }
    void newFromVectorFont() { command([this] { m_edits.addFromVectorFont(); }); }
    void editSymbol() { command([this] { m_edits.edit(); }); }
    void renameSymbol() { command([this] { m_edits.rename(); }); }
    void deleteSymbols() { command([this] { m_removal.removeSelected(); }); }
    void setSize() { command([this] { m_edits.setSize(); }); }
    void setThickness() { command([this] { m_edits.setThickness(); }); }
    void setLayer() { command([this] { m_edits.setLayer(); }); }
    void setTrueType() { command([this] { m_edits.setTrueType(); }); }
    void setVectorFont() { command([this] { m_edits.setVectorFont(); }); }
    void saveSet() { command([this] { m_files.save(); }); }
    void loadSet() { command([this] { m_files.load(); }); }
    void newGroup() { command([this] { m_groups.addNew(); }); }
    void renameGroup() { command([this] { m_groups.rename(); }); }
    void deleteGroup() { command([this] { m_groups.remove(); }); }
    void moveToGroup(qint16 group) { command([this, group] { m_groups.moveSelected(group); }); }

    // --- when a command can be used
    const std::vector<ZolWDoc::tGroup> &groups() { return groupRows().groups(); } ///< as last read
    bool canEditSymbol() const { return canEditCurrent() && SymbolEdits::canEdit(); }
    bool canPickLayer() const { return canEditSelected() && canPickResource(ZolWDoc::TableKind::Layers); }
    bool canPickFont() const { return canEditSelected() && fontPicker(); }
    bool canLoadFont() const { return canEditTable() && fontPicker(); }

signals:
    void CurrentChanced(ZolWDoc::tSid &symbol);                         // published spelling
    void SelectedChanched(qint32 &count, const ZolWDoc::tSid &symbol);  // published spelling
    void GroupChanged(bool &bIsGrouped);
    void GridView(qint16 &js_View);
    /// All symbols were read and are about to be listed: whoever draws their samples gets ready here.
    void FillSample(qint32 &count, std::vector<ZolWDoc::tSid> &symbols);
    void RefreshSample(const ZolWDoc::tSid &symbol);    ///< it was edited: its sample is drawn again

private:
    void raiseView(qint16 view) override { emit GridView(view); }
    void raiseGrouped(bool grouped) override { emit GroupChanged(grouped); }
    void raiseCurrent(ZolWDoc::tSid symbol) override { emit CurrentChanced(symbol); }
    void raiseSelection(int count) override;
    bool fits(const ZolWDoc::tSid &symbol) const override;
    QPixmap picture(int row, int column) const override;
    bool edit(int row, int column, const QVariant &value) override;
    bool removeRows(std::span<const int> rows) override;
    void readBeside(ZolWDoc::ZOLW_Doc &doc, std::vector<ZolWDoc::tSid> &all) override;
    std::vector<qint16> strayGroups(const std::vector<ZolWDoc::tGroup> &groups) const override;
    void storeEdit(const ZolWDoc::tSid &now, const ZolWDoc::tSid &edited) override;
    Qt::DropAction dragAction() const override { return Qt::MoveAction; }
    QMimeData *dragData(std::span<const int> rows) const override;
    GroupDrags groupDrags();
    bool renameInPlace(qint16 group, const QString &name);

    SymbolGroups m_groups{*this};
    SymbolEdits m_edits{*this, m_groups};
    SymbolRemoval m_removal{*this};
    SymbolFiles m_files{*this, m_groups};
    OwnDrag m_drag{SymbolTable::dragToken};
    Sampler m_sampler;
};

} // namespace QV_DOC_CONTROLS
