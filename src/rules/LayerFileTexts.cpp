#include "rules/LayerFileTexts.h"

#include "facade/services/Text.h"

#include <QDir>

#include <algorithm>

namespace QV_DOC_CONTROLS {

namespace {

using Why = LayerFileRefusal::Why;

constexpr Text kUnknownPage{21766, u"' kódlap ismeretlen. Állíts be másik kódlapot, például: windows-1250"};

QString about(const QString &name, const Text &what) { return join(Text{3425, u"A(z) '"}, name, what); }
QString aboutFile(const QString &path, const Text &what)
{
    return about(QDir::toNativeSeparators(path), what);
}

} // namespace

QString notSaved(const LayerFileRefusal &why, const LayerFile &content)
{
    switch (why.why) {
    case Why::UnknownCodePage: return about(why.name, kUnknownPage);
    case Why::NameTooLong:
        return about(why.name, {21770, u"' név túl hosszú a rétegmentéshez. Adj rövidebb nevet!"});
    case Why::LetterLacking: break;
    default:
        return txt(Text{21771, u"Túl sok réteg, csoport vagy csoporttag van, ennyi nem fér a rétegmentésbe. "
                               u"Csökkentsd a számukat!"});
    }
    const bool ofLayer = std::ranges::count(content.layers, why.name, &ZolWDoc::tLay::Name) > 0;
    return about(why.name,
                 ofLayer ? Text{21768, u"' rétegnév egyik betűje hiányzik a beállított kódlapból. Nevezd "
                                       u"át a réteget, vagy állíts be másik kódlapot!"}
                         : Text{21769, u"' csoportnév egyik betűje hiányzik a beállított kódlapból. Nevezd "
                                       u"át a csoportot, vagy állíts be másik kódlapot!"});
}

QString notUsable(const LayerFileRefusal &why, const QString &path)
{
    switch (why.why) {
    case Why::UnknownCodePage: return about(why.name, kUnknownPage);
    case Why::TooShort:
        return aboutFile(path, {21763, u"' rétegmentés csonka: hamarabb véget ér, mint a tartalma. Mentsd el "
                                       u"újra a rétegeket, vagy válassz másik fájlt!"});
    default:
        return aboutFile(path, {21764, u"' fájl sérült, vagy nem rétegmentés. Mentsd el újra a rétegeket, "
                                       u"vagy válassz másik fájlt!"});
    }
}

} // namespace QV_DOC_CONTROLS
