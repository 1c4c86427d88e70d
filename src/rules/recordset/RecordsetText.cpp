#include "rules/recordset/RecordsetText.h"

#include <QStringConverter>

namespace QV_DOC_CONTROLS {
namespace {

using Why = RecordsetRefusal::Why;

constexpr qsizetype kMostBytes = qsizetype(1) << 30;

QString declaredEncoding(const QByteArray &bytes)
{
    if (!bytes.startsWith("<?xml")) return {};
    const QString line = QString::fromLatin1(bytes.first(std::min<qsizetype>(bytes.indexOf('>') + 1, 200)));
    qsizetype at = line.indexOf(QStringLiteral("encoding"));
    if (at < 0) return {};
    at += 8;
    while (at < line.size() && QStringLiteral(" =").contains(line[at])) ++at;
    const qsizetype end = at < line.size() ? line.indexOf(line[at], at + 1) : -1;
    return end < 0 ? QString() : line.sliced(at + 1, end - at - 1);
}

QStringDecoder decoderFor(const QByteArray &bytes)
{
    if (const auto marked = QStringConverter::encodingForData(bytes, u'<')) return QStringDecoder(*marked);
    const QString declared = declaredEncoding(bytes);
    if (declared.isEmpty()) return QStringDecoder(QStringDecoder::Utf8);
    QStringDecoder decoder(declared.toLatin1().constData());
    if (!decoder.isValid()) throw Refused{Why::UnknownEncoding, 0, declared};
    return decoder;
}

} // namespace

QString lettersOf(const QByteArray &bytes)
{
    if (bytes.size() > kMostBytes) throw Refused{Why::TooLarge, 0};
    QStringDecoder decoder = decoderFor(bytes);
    QString text = decoder(bytes);
    if (decoder.hasError()) throw Refused{Why::WrongBytes, std::max<qsizetype>(0, text.indexOf(u'\uFFFD'))};
    return text;
}

void resolve(QStringView raw, qsizetype at, QString &out)
{
    constexpr std::pair<QStringView, QChar> kNamed[] = {
        {u"amp", u'&'}, {u"lt", u'<'}, {u"gt", u'>'}, {u"quot", u'"'}, {u"apos", u'\''}};
    for (qsizetype i = 0; i < raw.size();) {
        const qsizetype reference = raw.indexOf(u'&', i);
        out.append(raw.sliced(i, (reference < 0 ? raw.size() : reference) - i));
        if (reference < 0) return;
        const qsizetype end = raw.indexOf(u';', reference);
        if (end < 0 || end - reference > 10) throw Refused{Why::WrongMarkup, at};
        const QStringView name = raw.sliced(reference + 1, end - reference - 1);
        const auto named = std::ranges::find(kNamed, name, &std::pair<QStringView, QChar>::first);
        bool ok = named != std::end(kNamed);
        if (ok) out.append(named->second);
        if (!ok && name.startsWith(u"#")) {
            const bool isHex = name.startsWith(u"#x");
            const uint code = name.sliced(isHex ? 2 : 1).toUInt(&ok, isHex ? 16 : 10);
            // Half a letter could not be written back.
            ok = ok && code <= 0x10FFFF && !QChar::isSurrogate(code);
            if (ok) out.append(QStringView(QChar::fromUcs4(code)));
        }
        if (!ok) throw Refused{Why::WrongMarkup, at};
        i = end + 1;
    }
}

QString resolved(const XmlScanner::Attribute &a)
{
    QString out;
    resolve(a.raw, a.at, out);
    return out;
}

} // namespace QV_DOC_CONTROLS
