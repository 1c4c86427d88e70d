#include "grids/symbol/SymbolFiles.h"

#include "facade/services/Services.h"
#include "rules/SymbolSet.h"
#include "rules/WholeFile.h"
#include "rules/recordset/RecordsetXml.h"

#include <QDir>
#include <QFile>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

namespace {

constexpr Text kSave{3452, u"Jelkulcsok mentése"}, kLoad{3060, u"Jelkulcsok beolvasása"};

FileQuestion fileQuestion(const Text &title)
{
    return {txt(title), txt(Text{3058, u"Jelkulcsok (*.rst)|*.rst"}), {}, QStringLiteral("rst")};
}

QString doesNotFit(const tSid &symbol, const QString &field)
{
    return join(Text{3451, u"A(z) '"}, symbol.ShortName,
                Text{22300, u"' jelkulcs nem fér a készletfájlba, ezért semmi sem lett elmentve. Túl hosszú "
                            u"vagy túl nagy az adata, javítsd ki: "},
                field);
}

QString notUsable(const QString &path, const QString &details)
{
    return join(Text{3425, u"A(z) '"}, QDir::toNativeSeparators(path),
                Text{22301, u"' fájl nem használható jelkulcskészletként. "}, details);
}

QString faultText(const SetFault &fault)
{
    if (!fault.row) return join(Text{22302, u"Hiányzó mező: "}, fault.field);
    return join(Text{22303, u"Az előtte álló jelkulcsok megmaradnak. Hibás mező és a jelkulcs sorszáma a "
                            u"fájlban: "},
                fault.field, QStringLiteral(", "), *fault.row + 1);
}

} // namespace

void SymbolFiles::save()
{
    const QString path = m_choice.toSave(fileQuestion(kSave));
    if (!path.isEmpty()) saveTo(path);
}

bool SymbolFiles::saveTo(const QString &path)
{
    const auto symbols = selectedNow(m_desk);
    const auto set = symbolSetOf(symbols);
    if (const auto *const fault = std::get_if<SetFault>(&set)) {
        m_desk.tell({Icon::Exclamation, txt(kSave), doesNotFit(symbols[size_t(*fault->row)], fault->field)});
        return false;
    }
    const auto why = writeWhole(path, bytesOf(std::get<Recordset>(set)));
    if (why) m_desk.tell({Icon::Exclamation, txt(kSave), notWritable(path, *why)});
    return !why;
}

void SymbolFiles::load()
{
    const QString path = m_choice.toOpen(fileQuestion(kLoad));
    if (path.isEmpty()) return;
    QString fault;
    const auto symbols = read(path, fault);
    if (symbols) add(*symbols);
    if (!fault.isEmpty()) m_desk.tell({Icon::Exclamation, txt(kLoad), fault});
}

/// The symbols up to the first fault, which is told after they were added; none when it is no set at all.
std::optional<std::vector<tSid>> SymbolFiles::read(const QString &path, QString &fault)
{
    QFile file(path);
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (file.error() != QFileDevice::NoError) {
        fault = notReadable(path, file.errorString());
        return {};
    }
    const auto set = recordsetOf(bytes);
    if (const auto *const refusal = std::get_if<RecordsetRefusal>(&set)) {
        fault = notUsable(path, textOf(*refusal));
        return {};
    }
    SetContent<tSid> content = symbolsIn(std::get<Recordset>(set));
    if (content.fault) fault = notUsable(path, faultText(*content.fault));
    return std::move(content.records);
}

/// Without an identifier when it is still to be made.
tGroup SymbolFiles::target()
{
    if (!m_ownGroup) return m_groups.groupForNew().value_or(tGroup());
    const QString name = txt(*m_ownGroup);
    for (const tGroup &g : m_desk.doc().symbols().groups().readAll())
        if (g.GroupName.compare(name, Qt::CaseInsensitive) == 0) return g;
    return {-1, name};
}

void SymbolFiles::store(std::vector<tSid> symbols, const tGroup &group)
{
    std::vector<qint16> ids;
    m_desk.write(txt(kLoad), [&] {
        if (m_ownGroup && group.GroupId == -1) {
            const qint16 made = m_desk.doc().symbols().groups().add(group.GroupName);
            for (tSid &s : symbols) s.GroupId = made;
        }
        m_desk.doc().symbols().addAll(symbols, ids);
    });
    if (!ids.empty()) m_desk.selectById(ids.front());
}

void SymbolFiles::add(const std::vector<tSid> &read)
{
    const tGroup group = target();
    const LoadedSymbols ready = loaded(read, group, m_desk.doc().symbols().readAll());
    if (!ready.symbols.empty()) store(ready.symbols, group);
    for (const QString &name : ready.known)
        m_desk.tell({Icon::Information, txt(Text{20009, u"Létező jelkulcstípus név"}),
                     join(name, Text{20008, u" nevű jelkulcstípus már van!"})});
    if (!ready.roomForAll)
        m_desk.tell(
            {Icon::Exclamation, txt(kLoad), txt(Text{20014, u"Nincs hely több jelkulcs számára."})});
}

} // namespace QV_DOC_CONTROLS
