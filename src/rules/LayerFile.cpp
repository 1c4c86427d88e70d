#include "rules/LayerFile.h"

#include <QStringConverter>
#include <QtEndian>

#include <limits>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

namespace {

using Refusal = LayerFileRefusal;

QStringEncoder encoderFor(const QString &codePage)
{
    return codePage.isEmpty() ? QStringEncoder(QStringEncoder::System)
                              : QStringEncoder(codePage.toLatin1().constData());
}
QStringDecoder decoderFor(const QString &codePage)
{
    return codePage.isEmpty() ? QStringDecoder(QStringDecoder::System)
                              : QStringDecoder(codePage.toLatin1().constData());
}

/// Appends fields; what cannot be written is thrown as a Refusal.
class Writer {
public:
    explicit Writer(const QString &codePage) : m_codePage(codePage)
    {
        if (!encoderFor(codePage).isValid()) throw Refusal{Refusal::Why::UnknownCodePage, codePage};
    }
    template <class Int> void number(Int n)
    {
        char raw[sizeof n];
        qToLittleEndian(n, raw);
        bytes.append(raw, sizeof n);
    }
    void flag(bool on) { number(qint16(on ? -1 : 0)); }
    void text(const QString &s)
    {
        QStringEncoder encoder = encoderFor(m_codePage); // a fresh one: no state from the text before
        const QByteArray raw = encoder(s);
        if (encoder.hasError()) throw Refusal{Refusal::Why::LetterLacking, s};
        if (raw.size() > std::numeric_limits<quint16>::max()) throw Refusal{Refusal::Why::NameTooLong, s};
        number(quint16(raw.size()));
        bytes += raw;
    }
    template <class Rec> void table(const std::vector<Rec> &rows)
    {
        if (rows.size() > size_t(std::numeric_limits<qint32>::max()))
            throw Refusal{Refusal::Why::TooMany, {}};
        number(qint32(rows.size()));
        for (const Rec &r : rows) record(r);
    }
    QByteArray bytes;

private:
    void record(const tLay &l)
    {
        number(l.LayId), number(l.gNr), text(l.Name), flag(l.Visible);
        number(l.PenStyleId), number(l.ScrColor), number(l.PrnColor), number(l.PenColorId), number(l.TxdId);
        flag(l.ElByLayer), flag(l.TxByLayer);
    }
    void record(const tGroup &g) { number(g.GroupId), text(g.GroupName); }
    void record(const tLayMember &m) { number(m.GroupId), number(m.LayId); }
    QString m_codePage;
};

/// Takes fields off the front; what is missing is thrown as a Refusal.
class Reader {
public:
    Reader(const QByteArray &bytes, const QString &codePage) : m_left(bytes), m_codePage(codePage)
    {
        if (!decoderFor(codePage).isValid()) throw Refusal{Refusal::Why::UnknownCodePage, codePage};
    }
    template <class Int> void number(Int &n) { n = qFromLittleEndian<Int>(take(sizeof n).data()); }
    void flag(bool &on)
    {
        qint16 n = 0;
        number(n);
        on = n != 0;
    }
    void text(QString &s)
    {
        quint16 length = 0;
        number(length);
        QStringDecoder decoder = decoderFor(m_codePage);
        s = decoder(take(length));
    }
    template <class Rec> void table(std::vector<Rec> &rows)
    {
        qint32 count = 0;
        number(count);
        if (count < 0 || qint64(count) * leastBytes(Rec{}) > m_left.size())
            throw Refusal{Refusal::Why::WrongCount, {}};
        rows.reserve(size_t(count));
        for (qint32 i = 0; i < count; ++i) record(rows.emplace_back());
    }
    void end() const { if (!m_left.isEmpty()) throw Refusal{Refusal::Why::TrailingBytes, {}}; }

private:
    QByteArrayView take(qsizetype n)
    {
        if (m_left.size() < n) throw Refusal{Refusal::Why::TooShort, {}};
        const QByteArrayView taken = m_left.first(n);
        m_left = m_left.sliced(n);
        return taken;
    }
    static constexpr qint64 leastBytes(const tLay &) { return 22; }
    static constexpr qint64 leastBytes(const tGroup &) { return 4; }
    static constexpr qint64 leastBytes(const tLayMember &) { return 4; }
    void record(tLay &l)
    {
        number(l.LayId), number(l.gNr), text(l.Name), flag(l.Visible);
        number(l.PenStyleId), number(l.ScrColor), number(l.PrnColor), number(l.PenColorId), number(l.TxdId);
        flag(l.ElByLayer), flag(l.TxByLayer);
    }
    void record(tGroup &g) { number(g.GroupId), text(g.GroupName); }
    void record(tLayMember &m) { number(m.GroupId), number(m.LayId); }
    QByteArrayView m_left;
    QString m_codePage;
};

} // namespace

std::variant<QByteArray, LayerFileRefusal> bytesOf(const LayerFile &file, const QString &codePage)
{
    try {
        Writer w(codePage);
        w.number(file.version);
        w.table(file.layers), w.table(file.groups), w.table(file.members);
        return w.bytes;
    } catch (const Refusal &refusal) {
        return refusal;
    }
}

std::variant<LayerFile, LayerFileRefusal> layerFileOf(const QByteArray &bytes, const QString &codePage)
{
    try {
        Reader r(bytes, codePage);
        LayerFile file;
        r.number(file.version);
        r.table(file.layers), r.table(file.groups), r.table(file.members);
        r.end();
        return file;
    } catch (const Refusal &refusal) {
        return refusal;
    }
}

std::optional<qint32> layerFileVersionOf(const QByteArray &bytes)
{
    return bytes.size() < 4 ? std::nullopt : std::optional(qFromLittleEndian<qint32>(bytes.constData()));
}

} // namespace QV_DOC_CONTROLS
