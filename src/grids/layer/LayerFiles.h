#pragma once

#include "facade/services/Text.h"
#include "grids/frame/FileChoice.h"
#include "grids/layer/LayerDesk.h"
#include "rules/LayerFile.h"

namespace QV_DOC_CONTROLS {

/// The commands that go through files: layers are saved and their visibilities loaded (".z3l"), the host
/// renames, numbers and adds layers by a text file. And the removal of what stands on layers, which like the
/// latter a host may lack.
///
/// What is wrong with a file is told to the user, and nothing has changed then.
class LayerFiles {
public:
    explicit LayerFiles(LayerDesk &desk) : m_desk(desk) {}
    void save();                        ///< asks where; all layers, groups and memberships
    bool saveTo(const QString &path);   ///< false = told why not; a file that was there is as it was
    void loadVisibilities();
    void renameFromFile();
    void renumberFromFile();
    void addFromFile();                 ///< nothing without the host's role for it
    void deleteElements();              ///< of the selected layers; nothing without the host's role for it

private:
    using Apply = std::function<void(const QString &path)>;
    void fromTextFile(const Text &title, const Apply &apply);
    std::optional<LayerFile> read(const QString &path);
    LayerDesk &m_desk;
    FileChoice m_choice{m_desk, "LayerFileFolder"};
};

} // namespace QV_DOC_CONTROLS
