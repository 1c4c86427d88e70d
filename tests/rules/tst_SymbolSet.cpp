#include "rules/SymbolRules.h"
#include "rules/SymbolSet.h"
#include "rules/recordset/RecordsetXml.h"
#include "support/Registry.h"

#include <cmath>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;

namespace {

tSid symbol()
{
    return {.SidId = 7, .GroupName = "Növényzet", .GroupId = 2, .Code = 97, .ShortName = "Lombos fa",
            .FullName = "Lombos fa jele", .Align = 24, .Size_mm = 3.3f, .YwFact = 1.1f, .XwFact = 0.75f,
            .Facename = "Arial", .Weight = 25, .Italic = true, .CharSet = 238, .PitchAndFamily = 34,
            .ProtXmm = 0.1, .ProtYmm = -1 / 3.0, .ProtType = 2, .MoveXmm = -0.25f, .MoveYmm = 1.5f,
            .DspZoom = 10, .LayId = 120, .Type = 0, .Checked = true};
}
Recordset asRead(const Recordset &set) { return std::get<Recordset>(recordsetOf(bytesOf(set))); }

} // namespace

class tst_SymbolSet : public QObject {
    Q_OBJECT
private slots:
    void aSymbolComesBackWithoutNumberGroupAndCheckMark()
    {
        const tSid symbols[] = {symbol(), {}};
        const auto content = symbolsIn(asRead(std::get<Recordset>(symbolSetOf(symbols))));
        QVERIFY(!content.fault);
        tSid expected = symbol();
        expected.SidId = expected.GroupId = tSid().SidId;
        expected.GroupName.clear();
        expected.Checked = false;
        QCOMPARE(content.records, (std::vector<tSid>{expected, {}}));
    }
    void asManySymbolsAsADocumentCanHaveComeBackEqual()
    {
        std::vector<tSid> symbols(32000, symbol());
        for (int i = 0; i < int(symbols.size()); ++i) {
            tSid &s = symbols[size_t(i)];
            s.SidId = s.GroupId = -1, s.GroupName.clear(), s.Checked = false;
            s.ShortName = QStringLiteral("%1 <&> \"%2\" '\n\t ő").arg(i).arg(QChar(0x4e00 + i % 9000));
            s.Code = i, s.Align = quint8(i), s.LayId = qint16(i), s.Weight = qint16(-i);
            // Eight digits, as these files have them on purpose, do not tell all longer singles apart.
            s.Size_mm = float(i) / 100, s.XwFact = float(i) / 1e5f, s.MoveXmm = float(i % 997) / -64;
            s.ProtXmm = i / 7.0, s.ProtYmm = std::ldexp(1 / 3.0, i % 2000 - 1000);
            s.Underline = i % 3, s.StrikeThrough = i % 2, s.CharSet = i * 65537;
        }
        const auto content = symbolsIn(asRead(std::get<Recordset>(symbolSetOf(symbols))));
        QVERIFY(!content.fault);
        const auto [mine, its] = std::ranges::mismatch(symbols, content.records);
        QVERIFY2(mine == symbols.end() && its == content.records.end(),
                 qPrintable(QString::number(mine - symbols.begin())));
    }
    void whatARowLacksIsAsInANewSymbol()
    {
        auto fields = std::get<Recordset>(symbolSetOf({})).fields();
        for (RecordsetField &f : fields) f = nullable(f);
        Recordset set(fields);
        const int row = set.addRow(Recordset::RowState::Unchanged);
        QVERIFY(set.setText(row, set.fieldNamed(u"ShortName"), u"Fa"));
        tSid expected = newSymbol("Fa", {});
        expected.FullName.clear();
        QCOMPARE(symbolsIn(asRead(set)).records, std::vector<tSid>{expected});
        QCOMPARE(expected.YwFact, 1.0f);
    }
    void aVectorSymbolIsNotStretched()
    {
        tSid s = symbol();
        s.Type = 1, s.XwFact = 2.5f;
        QCOMPARE(symbolsIn(std::get<Recordset>(symbolSetOf({&s, 1}))).records.front().XwFact, 1.0f);
    }
    void whatDoesNotFitIsNamed()
    {
        const std::pair<const char *, void (*)(tSid &)> rows[] = {
            {"Code", [](tSid &s) { s.Code = 65535; }},
            {"ShortName", [](tSid &s) { s.ShortName = QString(51, u'x'); }},
            {"FullName", [](tSid &s) { s.FullName = QString(301, u'x'); }},
            {"Facename", [](tSid &s) { s.Facename = QChar(0xd800); }}, // half a letter
            {"ProtXmm", [](tSid &s) { s.ProtXmm = qInf(); }}};
        for (const auto &[field, change] : rows) {
            tSid symbols[] = {symbol(), symbol()};
            change(symbols[1]);
            const auto written = symbolSetOf(symbols);
            QVERIFY2(std::holds_alternative<SetFault>(written), field);
            QCOMPARE(std::get<SetFault>(written), (SetFault{1, field}));
        }
    }
    void readingEndsAtAValueThatTheRecordCannotHold()
    {
        const tSid symbols[] = {symbol(), symbol(), symbol()};
        Recordset set = std::get<Recordset>(symbolSetOf(symbols));
        set.setInteger(1, set.fieldNamed(u"align"), 256);
        const auto content = symbolsIn(set);
        QCOMPARE(content.records.size(), 1u);
        QCOMPARE(content.fault, (SetFault{1, "Align"}));
    }
    void aFileWithoutAColumnIsRefusedByItsName()
    {
        const auto content =
            symbolsIn(Recordset::made({{"code", RecordsetField::Type::Int16}}));
        QVERIFY(content.records.empty());
        QCOMPARE(content.fault, (SetFault{{}, "ShortName"}));
    }
    void anEmptySetIsWrittenAsTheRuntimeDoes()
    {
        if (!qEnvironmentVariableIsSet("QVDC_SAMPLES")) QSKIP("no samples");
        QFile file(qEnvironmentVariable("QVDC_SAMPLES") + "/recordset/symbols_empty.rst");
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(bytesOf(std::get<Recordset>(symbolSetOf({}))), file.readAll());
    }
};

QVDC_TEST(tst_SymbolSet)
#include "tst_SymbolSet.moc"
