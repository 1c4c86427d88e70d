#include "controls/ZOL3_LayGroup.h"

#include <QSet>

namespace QV_DOC_CONTROLS {

using ZolWDoc::tGroup;
using ZolWDoc::tLay;
using ZolWDoc::tLayArr;
using ZolWDoc::tLayMember;

namespace {

constexpr size_t kAskedOneByOne = 16; ///< so many single numbers cost less than reading the table

} // namespace

ZOL3_LayGroup::ZOL3_LayGroup(QWidget *parent) : LayerSetControl("ZOL3_LayGroup", parent)
{
    ml_RuntimeSupport_LanguageChanged();
}

ZOL3_LayGroup::~ZOL3_LayGroup() { TearDown(); }

void ZOL3_LayGroup::setZOLW_Doc(ZolWDoc::ZOLW_Doc *doc)
{
    Trace trace("ZOL3_LayGroup", "ZOLW_Doc");
    m_doc = doc;
    if (doc) layersArrived();
}

void ZOL3_LayGroup::TearDown()
{
    Trace trace("ZOL3_LayGroup", "TearDown");
    m_doc = nullptr;
    layersLeft();
}

void ZOL3_LayGroup::GetLaysByTextBox(QString &sLayNrs)
{
    Trace trace("ZOL3_LayGroup", "GetLaysByTextBox");
    readSet(sLayNrs);
}

void ZOL3_LayGroup::setManual_LayId(qint16 iLayId)
{
    if (!m_doc) return;
    if (const auto lay = m_doc->layers().find(iLayId)) writeNumber(lay->gNr);
}

void ZOL3_LayGroup::setManual_LayNr(qint16 iLayNr)
{
    if (!m_doc) return;
    if (const auto lay = m_doc->layers().findByNumber(iLayNr)) writeNumber(lay->gNr);
}

/// A range is served by one reading of the table; a few single numbers are asked for one by one.
LayerSet ZOL3_LayGroup::layersWith(std::span<const LayerNumbers> numbers) const
{
    const auto isSingle = [](const LayerNumbers &n) { return n.from == n.to; };
    if (numbers.size() > kAskedOneByOne || !std::ranges::all_of(numbers, isSingle))
        return layersNumbered(numbers, allLayers());
    LayerSet set;
    for (const auto &[number, same] : numbers)
        if (const auto lay = m_doc->layers().findByNumber(number)) set.add(*lay);
    return set;
}

std::optional<tLay> ZOL3_LayGroup::currentLayer() const
{
    if (!m_doc) return {};
    return m_doc->layers().find(m_doc->layers().currentId());
}

tLayArr ZOL3_LayGroup::allLayers() const { return m_doc ? m_doc->layers().readAll() : tLayArr(); }

/// Every layer that is a member, in the order of the layer table.
tLayArr ZOL3_LayGroup::layersOf(qint32 group) const
{
    if (!m_doc) return {};
    QSet<qint16> members;
    for (const tLayMember &m : m_doc->layers().members())
        if (m.GroupId == group) members.insert(m.LayId);
    tLayArr layers = m_doc->layers().readAll();
    std::erase_if(layers, [&](const tLay &l) { return !members.contains(l.LayId); });
    return layers;
}

std::vector<tGroup> ZOL3_LayGroup::layerGroups() const
{
    return m_doc ? m_doc->layers().groups() : std::vector<tGroup>();
}

} // namespace QV_DOC_CONTROLS
