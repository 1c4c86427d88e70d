#include "fonts/FontCatalogue.h"

#include "rules/CharacterSet.h"

#include <QGuiApplication>
#include <QHash>
#include <QRawFont>

#include <algorithm>
#include <optional>

namespace QV_DOC_CONTROLS {
namespace {

using System = QFontDatabase::WritingSystem;

/// In the order in which they are offered. Qt knows one Latin script; drawings tell five apart, which only
/// the letters of a face decide.
constexpr Script kScripts[] = {
    {{22470, u"Nyugati"}, 0, System::Latin, u"AaBbÄäÉéÑñß"},
    {{22471, u"Közép-európai"}, 238, System::Latin, u"AaBbŐőŰűŘřŁłŢţ"},
    {{22472, u"Cirill"}, 204, System::Cyrillic, u"АаБбЖжЩщЯя"},
    {{22473, u"Görög"}, 161, System::Greek, u"ΑαΒβΔδΩωώ"},
    {{22474, u"Török"}, 162, System::Latin, u"AaBbĞğİıŞş"},
    {{22475, u"Balti"}, 186, System::Latin, u"AaBbĄąĖėŅņŪū"},
    {{22476, u"Vietnámi"}, 163, System::Any, u"AaBbĂăĐđƠơẾếỰự"},
    {{22477, u"Héber"}, 177, System::Hebrew, u"אבגדהשת"},
    {{22478, u"Arab"}, 178, System::Arabic, u"ابتثجحخ"},
    {{22479, u"Thai"}, 222, System::Thai, u"กขคงจชญ"},
    {{22480, u"Szimbólum"}, kSymbolCharSet, System::Any, u""},
    {{22481, u"Japán"}, 128, System::Japanese, u"あいアイ日本"},
    {{22482, u"Koreai"}, 129, System::Korean, u"가나한글"},
    {{22483, u"Kínai (egyszerűsített)"}, 134, System::SimplifiedChinese, u"简体汉字"},
    {{22484, u"Kínai (hagyományos)"}, 136, System::TraditionalChinese, u"繁體漢字"},
};
/// Numbers that say nothing of a script: the machine's own sets. Not offered, but drawings hold them.
constexpr Script kMachinesOwn[] = {
    {{22485, u"Alapértelmezett"}, 1, System::Any, u""},
    {{22486, u"OEM/DOS"}, kOemCharSet, System::Any, u""},
};
constexpr int kFewSymbols = 16;

/// Names that the font configuration answers with a face of its choice: no face of a drawing that travels.
bool isStandIn(const QString &face)
{
    static const QStringList names{QStringLiteral("Monospace"), QStringLiteral("Sans Serif"),
                                   QStringLiteral("Serif"), QStringLiteral("Sans"),
                                   QStringLiteral("System-ui")};
    return names.contains(face, Qt::CaseInsensitive);
}

QString withoutFoundry(const QString &family)
{
    const qsizetype at = family.indexOf(QStringLiteral(" ["));
    return at > 0 && family.endsWith(u']') ? family.left(at) : family;
}

QStringList readFaces()
{
    QStringList faces;
    for (const QString &family : QFontDatabase::families()) {
        if (QFontDatabase::isPrivateFamily(family) || !QFontDatabase::isSmoothlyScalable(family)) continue;
        const QString face = withoutFoundry(family);
        if (!isStandIn(face) && (faces.isEmpty() || faces.last() != face)) faces << face;
    }
    faces.removeDuplicates();
    return faces;
}

/// Symbol sets keep their characters in a private range of their own, some letters' ligatures there apart.
bool hasSymbols(const QRawFont &font)
{
    int found = 0;
    for (char32_t c = 0xf020; c <= 0xf0ff && found < kFewSymbols; ++c) found += font.supportsCharacter(c);
    return found == kFewSymbols;
}

bool writes(const QRawFont &font, const QList<System> &systems, const Script &script)
{
    if (script.charSet == kSymbolCharSet) return hasSymbols(font);
    if (script.system != System::Any && !systems.contains(script.system)) return false;
    return std::ranges::all_of(QStringView(script.letters),
                               [&](QChar c) { return font.supportsCharacter(c); });
}

std::vector<const Script *> readScripts(const QString &face)
{
    const QRawFont font = QRawFont::fromFont(plainFont(face));
    const QList<System> systems = QFontDatabase::writingSystems(face);
    std::vector<const Script *> all;
    for (const Script &script : kScripts)
        if (writes(font, systems, script)) all.push_back(&script);
    if (all.empty()) all.push_back(&kScripts[0]); // signs without letters: their codes need no script
    return all;
}

struct Catalogue {
    std::optional<QStringList> faces;
    QHash<QString, std::vector<const Script *>> scripts;
};
Catalogue &catalogue()
{
    static Catalogue known;
    [[maybe_unused]] static const auto forgets =
        QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, [] { known = {}; });
    return known;
}

} // namespace

const QStringList &trueTypeFaces()
{
    Catalogue &known = catalogue();
    if (!known.faces) known.faces = readFaces();
    return *known.faces;
}

int indexOfFace(const QStringList &faces, const QString &face)
{
    const auto at = std::ranges::find_if(
        faces, [&](const QString &f) { return f.compare(face, Qt::CaseInsensitive) == 0; });
    return at == faces.end() ? -1 : int(at - faces.begin());
}

const std::vector<const Script *> &scriptsOf(const QString &face)
{
    auto &known = catalogue().scripts;
    if (const auto at = known.constFind(face); at != known.constEnd()) return *at;
    return *known.insert(face, readScripts(face));
}

const Script *scriptOf(qint32 charSet)
{
    const auto at = std::ranges::find(kScripts, charSet, &Script::charSet);
    return at == std::end(kScripts) ? nullptr : at;
}

QString scriptNameOf(qint32 charSet)
{
    if (const Script *const script = scriptOf(charSet)) return txt(script->name);
    const auto at = std::ranges::find(kMachinesOwn, charSet, &Script::charSet);
    return at == std::end(kMachinesOwn) ? QString::number(charSet) : txt(at->name);
}

QFont plainFont(const QString &face)
{
    QFont font(face);
    font.setStyleStrategy(QFont::NoFontMerging);
    return font;
}

QString unknownFaceText(const QString &face)
{
    return join(QStringLiteral("( "), face, Text{20101, u" )  Ismeretlen  készlet !"});
}

} // namespace QV_DOC_CONTROLS
