#include "document/TextFile.h"

#include "document/FileCheck.h"
#include "document/SqliteDoc.h"

#include "facade/services/LayerFileCodePage.h"

#include <QFile>
#include <QStringDecoder>

#include <limits>

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

QString decoded(const QByteArray &bytes)
{
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(bytes);
    if (!utf8.hasError()) return text.startsWith(QChar(QChar::ByteOrderMark)) ? text.mid(1) : text;
    const QString page = QV_DOC_CONTROLS::layerFileCodePage();
    QStringDecoder local(page.isEmpty() ? "windows-1250" : page.toLatin1().constData());
    return local.isValid() ? QString(local(bytes)) : text;
}

/// Numbers of the user are 0..32767.
bool toNumber(QStringView text, qint16 &number)
{
    bool ok = false;
    const int n = text.toInt(&ok);
    if (!ok || n < 0 || n > std::numeric_limits<qint16>::max()) return false;
    number = qint16(n);
    return true;
}

} // namespace

TextFile::TextFile(const QString &path, Text expected) : m_path(path), m_expected(expected)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw DocumentError(fileText(path, join(Text{30081, u"' fájl nem olvasható. Ellenőrizd a nevét és a "
                                                            u"jogosultságokat! Részletek: "},
                                                file.errorString())));
    QString all = decoded(file.readAll());
    all.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    int lineNumber = 0;
    for (QStringView line : QStringView(all).split(u'\n')) {
        ++lineNumber;
        line = line.trimmed();
        if (line.isEmpty() || line.startsWith(u'#')) continue;
        ListLine entry{lineNumber, 0, {}};
        const auto end = std::ranges::find_if(line, [](QChar c) { return c == u';' || c.isSpace(); });
        const qsizetype split = end - line.begin();
        if (!toNumber(line.left(split), entry.number)) fail(lineNumber, txt(expected));
        QStringView rest = line.mid(split).trimmed();
        if (rest.startsWith(u';')) rest = rest.mid(1).trimmed();
        if (rest.isEmpty()) fail(lineNumber, txt(expected));
        entry.rest = rest.toString();
        m_lines.push_back(entry);
    }
}

qint16 TextFile::restAsNumber(const ListLine &line) const
{
    qint16 number = 0;
    if (!toNumber(line.rest, number)) fail(line.line, txt(m_expected));
    return number;
}

void TextFile::fail(const ListLine &line, Text reason) const { fail(line.line, txt(reason)); }

void TextFile::fail(int line, const QString &reason) const
{
    throw DocumentError(
        fileText(m_path, join(Text{30082, u"' fájl hibás, ezért semmi nem változott. Hibás sor: "}, line,
                              Text{30083, u", "}, reason)));
}

} // namespace refhost
