#include "Figures.h"

#include "rules/SymbolSet.h"
#include "rules/recordset/RecordsetXml.h"

#include <QXmlStreamReader>

using namespace benchmarks;
using namespace QV_DOC_CONTROLS;

namespace {

using Type = RecordsetField::Type;

/// As many symbols as a document can have, with what a symbol set says of each.
const Recordset &symbols()
{
    static const Recordset made = [] {
        Recordset set = Recordset::made({{QStringLiteral("SidId"), Type::Int16},
                                         {QStringLiteral("GroupName"), Type::Text, 50},
                                         {QStringLiteral("Code"), Type::Int16},
                                         {QStringLiteral("ShortName"), Type::Text, 50},
                                         {QStringLiteral("FullName"), Type::Text, 300},
                                         {QStringLiteral("Size_mm"), Type::Single},
                                         {QStringLiteral("YwFact"), Type::Single},
                                         {QStringLiteral("Facename"), Type::Text, 50},
                                         {QStringLiteral("Italic"), Type::Boolean},
                                         {QStringLiteral("ProtXmm"), Type::Double},
                                         {QStringLiteral("ProtYmm"), Type::Double},
                                         {QStringLiteral("LayId"), Type::Int32}});
        for (int i = 0; i < 32000; ++i) {
            const int r = set.addRow(Recordset::RowState::Inserted);
            set.setInteger(r, 0, i + 1), set.setText(r, 1, u"Növényzet"), set.setInteger(r, 2, i % 256);
            set.setText(r, 3, QStringLiteral("Fa %1").arg(i)),
                set.setText(r, 4, u"Lombos fa \"önálló\" jele");
            set.setReal(r, 5, 0.1 * (i % 90)), set.setReal(r, 6, 1), set.setText(r, 7, u"Arial");
            set.setBoolean(r, 8, i % 2), set.setReal(r, 9, i / 7.0), set.setReal(r, 10, 0);
            set.setInteger(r, 11, i % 300);
        }
        return set;
    }();
    return made;
}
const QByteArray &file()
{
    static const QByteArray bytes = bytesOf(symbols());
    return bytes;
}
double megabytesPerSecond(const QByteArray &bytes, double nanoseconds)
{
    return double(bytes.size()) * 1e3 / nanoseconds;
}

void read() { keep(recordsetOf(file())); }
void write() { keep(bytesOf(symbols())); }
void passOver(const QByteArray &bytes)
{
    QXmlStreamReader reader(bytes);
    while (!reader.atEnd()) reader.readNext();
    keep(reader);
}
void plainPass() { passOver(file()); }

// --- a symbol set's own columns, from and to the records of a document

const std::vector<ZolWDoc::tSid> &documentSymbols()
{
    static const std::vector<ZolWDoc::tSid> made = [] {
        std::vector<ZolWDoc::tSid> all;
        for (int i = 0; i < 32000; ++i) {
            ZolWDoc::tSid s{.SidId = qint16(i), .GroupName = QStringLiteral("Növényzet"), .GroupId = 2};
            s.Code = i % 256, s.ShortName = QStringLiteral("Fa %1").arg(i);
            s.FullName = QStringLiteral("Lombos fa \"önálló\" jele");
            s.Align = 24, s.Size_mm = float(i % 90) / 10, s.YwFact = s.XwFact = 1, s.Weight = 16;
            s.Facename = QStringLiteral("Arial"), s.Italic = i % 2, s.CharSet = 238, s.ProtXmm = i / 7.0;
            s.MoveXmm = float(i % 7) / 4, s.DspZoom = 10, s.LayId = qint16(i % 300);
            all.push_back(s);
        }
        return all;
    }();
    return made;
}
QByteArray symbolFile() { return bytesOf(std::get<Recordset>(symbolSetOf(documentSymbols()))); }
const QByteArray &symbolBytes()
{
    static const QByteArray bytes = symbolFile();
    return bytes;
}

void readSymbols() { keep(symbolsIn(std::get<Recordset>(recordsetOf(symbolBytes())))); }
void writeSymbols() { keep(symbolFile()); }
void plainSymbolPass() { passOver(symbolBytes()); }

const bool s_symbolsEntered =
    figure("symbolset.read", "MB/s", unbounded(),
           [] { return megabytesPerSecond(symbolBytes(), nanosecondsOf(readSymbols)); }) &&
    figure("symbolset.write", "MB/s", unbounded(),
           [] { return megabytesPerSecond(symbolBytes(), nanosecondsOf(writeSymbols)); }) &&
    figure("symbolset.read.to.plain.pass", "x", atMost(1.5), // the records are made too
           [] { return ratioOf(readSymbols, plainSymbolPass); });

const bool s_entered =
    figure("recordset.read", "MB/s", unbounded(),
           [] { return megabytesPerSecond(file(), nanosecondsOf(read)); }) &&
    figure("recordset.write", "MB/s", unbounded(),
           [] { return megabytesPerSecond(file(), nanosecondsOf(write)); }) &&
    figure("recordset.read.to.plain.pass", "x", atMost(1.5), [] { return ratioOf(read, plainPass); }) &&
    figure("recordset.write.to.plain.pass", "x", atMost(1.5), [] { return ratioOf(write, plainPass); });

} // namespace
