#include "grids/layer/LayerFiles.h"

#include "facade/services/LayerFileCodePage.h"
#include "facade/services/Services.h"
#include "facade/services/Trace.h"
#include "grids/frame/RecordWork.h"
#include "rules/LayerFileTexts.h"
#include "rules/LayerRules.h"
#include "rules/WholeFile.h"

#include <QFile>

#include <numeric>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

namespace {

constexpr Text kSave{1948, u"Rétegek mentése"}, kLoad{1949, u"Rétegek láthatóságok betöltése"};
const QString kFilter = QStringLiteral("*.z3l|*.z3l"), kSuffix = QStringLiteral("z3l");

} // namespace

void LayerFiles::save()
{
    const Trace trace("clsJS_Layer", "OpLay_Save");     // this spelling on purpose
    const QString path = m_choice.toSave({txt(kSave), kFilter, {}, kSuffix});
    if (!path.isEmpty()) saveTo(path);
}

bool LayerFiles::saveTo(const QString &path)
{
    const LayerRole &layers = m_desk.doc().layers();
    const LayerFile content{layers.fileVersion(), layers.readAll(), layers.groups(), layers.members()};
    const auto bytes = bytesOf(content, layerFileCodePage());
    if (const auto *const refusal = std::get_if<LayerFileRefusal>(&bytes)) {
        m_desk.tell({Icon::Exclamation, txt(kSave), notSaved(*refusal, content)});
        return false;
    }
    const auto why = writeWhole(path, std::get<QByteArray>(bytes));
    if (!why) return true;
    m_desk.tell({Icon::Exclamation, txt(kSave), notWritable(path, *why)});
    return false;
}

/// The content of a layer file of the host's version; else the user has been told.
std::optional<LayerFile> LayerFiles::read(const QString &path)
{
    const QString title = txt(kLoad);
    QFile file(path);
    QByteArray bytes;
    if (file.open(QIODevice::ReadOnly)) bytes = file.read(sizeof(qint32));
    const auto version = layerFileVersionOf(bytes);
    if (version && *version != m_desk.doc().layers().fileVersion()) {
        m_desk.tell({Icon::Information, productName(),
             join(Text{21755, u"Nem használható!"}, QStringLiteral("\n"),
                  Text{21756, u"Hibás verziószámú mentés!"})});
        return {};
    }
    if (file.isOpen()) bytes += file.readAll();
    if (file.error() != QFileDevice::NoError) {
        m_desk.tell({Icon::Exclamation, title, notReadable(path, file.errorString())});
        return {};
    }
    auto content = layerFileOf(bytes, layerFileCodePage());
    if (const auto *const refusal = std::get_if<LayerFileRefusal>(&content)) {
        m_desk.tell({Icon::Exclamation, title, notUsable(*refusal, path)});
        return {};
    }
    return std::get<LayerFile>(std::move(content));
}

void LayerFiles::loadVisibilities()
{
    const Trace trace("jslayer", "OpLay_VisibleUseFile"); // another spelling than above, on purpose
    const QString path = m_choice.toOpen({txt(kLoad), kFilter, {}, kSuffix});
    if (path.isEmpty()) return;
    const auto saved = read(path);
    if (!saved) return;
    const auto match = prompts().choose(
        {txt(Text{3036, u"Réteg azonosítás"}),
         txt(Text{3431, u"A réteg azonosítás történhet sorszám, vagy név alapján"}),
         {txt(Text{3432, u"sorszám alapján"}), txt(Text{3033, u"név alapján"})}},
        m_desk.asker());
    m_desk.relay().checkpoint();
    if (!match) return;
    const auto after = withVisibilityOf(saved->layers, m_desk.doc().layers().readAll(),
                                        *match == 0 ? LayerMatch::ByNumber : LayerMatch::ByName);
    m_desk.write(txt(kLoad), [&] { m_desk.doc().layers().writeAll(after.layers); });
    if (after.found == 0)
        m_desk.tell(
            {Icon::Information, txt(kLoad),
             txt(Text{21790, u"A fájl egyik rétege sem található a rajzban, ezért semmi nem változott."})});
}

void LayerFiles::fromTextFile(const Text &title, const Apply &apply)
{
    const QString path = m_choice.toOpen({txt(title), txt(Text{3360, u"Rétegek (*.txt)|*.txt"}),
                                          QStringLiteral("*.txt"), QStringLiteral("txt")});
    if (!path.isEmpty()) m_desk.write(txt(title), [&] { apply(path); });
}

void LayerFiles::renameFromFile()
{
    fromTextFile({3359, u"Rétegek átnevezése"},
                 [this](const QString &path) { m_desk.doc().layers().renameFromFile(path); });
}

void LayerFiles::renumberFromFile()
{
    fromTextFile({3361, u"Rétegek sorszámozása"},
                 [this](const QString &path) { m_desk.doc().layers().renumberFromFile(path); });
}

void LayerFiles::addFromFile()
{
    LayerFileRole *const adder = m_desk.doc().layerFiles();
    if (adder)
        fromTextFile({21757, u"Rétegek felvétele fájlból"},
                     [adder](const QString &path) { adder->addFromFile(path); });
}

void LayerFiles::deleteElements()
{
    LayerElementsRole *const eraser = m_desk.doc().layerElements();
    if (!eraser) return;
    std::vector<qint16> ids;
    for (const tLay &l : selectedNow(m_desk)) ids.push_back(l.LayId);
    const std::vector<int> uses = m_desk.doc().layers().usesAll(ids);
    const int elements = std::accumulate(uses.begin(), uses.end(), 0);
    const QString title = txt(Text{21758, u"Rétegek elemeinek törlése"});
    if (elements == 0)
        return m_desk.tell(
            {Icon::Information, title, txt(Text{21759, u"A kijelölt rétegeken nincs rajzelem."})});
    const bool sure = m_desk.yesNo(
        {Icon::Exclamation, title,
         join(Text{21760, u"Kijelölt rétegek száma: "}, int(ids.size()), QStringLiteral("\n"),
              Text{21761, u"Rajzelemek rajtuk: "}, elements, QStringLiteral("\n"),
              Text{21762, u"Biztosan törlöd ezeket a rajzelemeket? A rétegek megmaradnak."})});
    if (sure) m_desk.write(title, [&] { eraser->deleteElements(ids); });
}

} // namespace QV_DOC_CONTROLS
