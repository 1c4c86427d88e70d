#pragma once

#include "facade/services/Text.h"
#include "grids/layer/LayerDesk.h"

namespace QV_DOC_CONTROLS {

/// The commands on layer groups and on what belongs to them. A layer may be in several groups; which are its
/// groups is said by the membership table only.
class LayerGroups {
public:
    explicit LayerGroups(LayerDesk &desk) : m_desk(desk) {}
    void addNew();                      ///< the chosen group stays: its layers may be what is to join
    void rename();                      ///< the chosen group; asks again after a refusal
    bool renameInPlace(qint16 group, const QString &name); ///< false = refused, the user was told
    void remove();                      ///< the chosen group, if no layer is left without one
    void moveSelected();                ///< to a group that the user picks, and out of all others
    void copySelected();                ///< to a group that the user picks
    void addLayers(const std::vector<qint16> &layers, qint16 group);   ///< members stay
    void addLayersOf(const std::vector<qint16> &groups, qint16 group); ///< the layers of `groups`

private:
    std::vector<ZolWDoc::tGroup> groups() { return m_desk.doc().layers().groups(); }
    std::optional<ZolWDoc::tGroup> chosen(const std::vector<ZolWDoc::tGroup> &all) const;
    static std::optional<Message> refusalOf(const QString &name, const ZolWDoc::tGroup &group,
                                            const std::vector<ZolWDoc::tGroup> &all);
    void store(std::vector<ZolWDoc::tGroup> all, qint16 group, const QString &name);
    std::optional<qint16> askForGroup(const QString &title, const Text &question);
    std::vector<qint16> selectedNow();
    void store(const QString &command, const std::vector<ZolWDoc::tLayMember> &before,
               const std::vector<ZolWDoc::tLayMember> &after);
    LayerDesk &m_desk;
    qint16 m_lastGroup = -1;            ///< picked last, offered first
};

} // namespace QV_DOC_CONTROLS
