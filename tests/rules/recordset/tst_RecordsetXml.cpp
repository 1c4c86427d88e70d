#include "facade/services/Language.h"
#include "rules/recordset/RecordsetValues.h"
#include "rules/recordset/RecordsetXml.h"
#include "support/Registry.h"

#include <QDir>
#include <QTest>

using namespace QV_DOC_CONTROLS;
using Type = RecordsetField::Type;
using Why = RecordsetRefusal::Why;
using State = Recordset::RowState;

namespace {

const QByteArray kHead = "<xml xmlns:s='uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882' "
                         "xmlns:dt='uuid:C2F41010-65B3-11d1-A29F-00AA00C14882' "
                         "xmlns:rs='urn:schemas-microsoft-com:rowset' xmlns:z='#RowsetSchema'>\n";
QByteArray schema(const QByteArray &columns)
{
    return "<s:Schema id='RowsetSchema'><s:ElementType name='row'>" + columns +
           "</s:ElementType></s:Schema>\n";
}
QByteArray whole(const QByteArray &columns, const QByteArray &data)
{
    return kHead + schema(columns) + "<rs:data>" + data + "</rs:data></xml>";
}
const QByteArray kColumns =
    "<s:AttributeType name='N' dt:type='i2'/><s:AttributeType name='T' dt:maxLength='4'/>"
    "<s:AttributeType name='R' dt:type='r4'/><s:AttributeType name='B' dt:type='boolean'/>";

Recordset readOf(const QByteArray &bytes)
{
    auto read = recordsetOf(bytes);
    if (const auto *refusal = std::get_if<RecordsetRefusal>(&read)) {
        QTest::qFail(qPrintable(textOf(*refusal)), __FILE__, __LINE__);
        return {};
    }
    return std::get<Recordset>(std::move(read));
}
/// "name=value" of every row, nulls as a bare name; one row a line.
QString dump(const Recordset &set)
{
    QStringList rows;
    for (int r = 0; r < set.rowCount(); ++r) {
        QStringList row{set.state(r) == State::Inserted ? QStringLiteral("+") : QStringLiteral(" ")};
        for (int f = 0; f < int(set.fields().size()); ++f) {
            QString value = set.fields()[size_t(f)].name;
            if (!set.isNull(r, f)) value += u'=' + set.text(r, f).toString();
            row << value;
        }
        rows << row.join(u' ');
    }
    return rows.join(u'\n');
}
QByteArray sample(const QString &name)
{
    QFile file(qEnvironmentVariable("QVDC_SAMPLES") + QStringLiteral("/recordset/") + name);
    if (!file.open(QIODevice::ReadOnly)) qFatal("no sample %s", qPrintable(name));
    return file.readAll();
}

} // namespace

class tst_RecordsetXml : public QObject {
    Q_OBJECT
private slots:
    void init() { setLanguage(English, {}); }
    void cleanup() { setLanguage(Hungarian, {}); }

    void rowsAreReadAsAProgramSeesThem_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("seen");
        QTest::newRow("bare and inserted")
            << QByteArray("<rs:insert><z:row N='2'/></rs:insert><z:row N='1' T='a'/>")
            << "+ N=2 T R B\n  N=1 T=a R B";
        QTest::newRow("update merged, deleted unseen")
            << QByteArray("<rs:update><rs:original><z:row N='1' T='a' R='2'/></rs:original>"
                          "<z:row T='b' rs:forcenull='R'/></rs:update>"
                          "<rs:delete><z:row N='9'/></rs:delete>")
            << "  N=1 T=b R B";
        QTest::newRow("halves of an update are rows")
            << QByteArray("<rs:update><z:row N='1'/></rs:update>"
                          "<rs:update><rs:original><z:row N='2'/></rs:original></rs:update><rs:update/>")
            << "  N=1 T R B\n  N=2 T R B";
        QTest::newRow("columns in any case, the last wins, others skipped")
            << QByteArray("<z:row t='a' n='1' T='b' X='?' rs:what='?'><i><j/></i></z:row><z:other N='3'/>")
            << "  N=1 T=b R B";
        QTest::newRow("null loses against a value")
            << QByteArray("<z:row N='1' T='' rs:forcenull='n b T x b'/><z:row rs:forcenull='n' B='0'/>")
            << "  N=1 T= R B\n  N T R B=0";
        QTest::newRow("columns of an update from the last to the first")
            << QByteArray("<rs:update><rs:original><z:row B='1' T='a&amp;' rs:forcenull='N'/></rs:original>"
                          "<z:row R='2' N='3' rs:forcenull='B'/></rs:update>")
            << "  N=3 T=a& R=2 B";
        QTest::newRow("references, blanks, line breaks and control letters stay")
            << QByteArray("<z:row T='&#x22;&amp;&#39;&lt;'/><z:row T=' \t\r\n'/><z:row T='\x01'/>")
            << "  N T=\"&'< R B\n  N T= \t\r\n R B\n  N T=\x01 R B";
        QTest::newRow("too long is cut") << QByteArray("<z:row T='abcdef'/>") << "  N T=abcd R B";
        QTest::newRow("markup between") << QByteArray("text<!-- <z:row N='8'/> --><?what <z:row/>?>"
                                                      "<![CDATA[<z:row/>]]><z:row N=\"1\" />")
                                        << "  N=1 T R B";
    }
    void rowsAreReadAsAProgramSeesThem()
    {
        QFETCH(QByteArray, data);
        QTEST(dump(readOf(whole(kColumns, data))), "seen");
    }

    void valuesAreReadLeniently_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("number"); // NaN = none
        const double none = qQNaN();
        const std::pair<const char *, double> rows[] = {
            {"1", 1},      {" -2 ", -2},  {"+1", 1},       {"1.5", 1.5}, {"1E1", 10},    {"1,000", 1000},
            {"&H1F", 31},  {"&o17", 15},  {"5.0E-2", .05}, {"+.5", .5},  {"-5.", -5},    {"", none},
            {"1 2", none}, {"nan", none}, {"inf", none},   {"&H", none}, {"&H-1", none}, {"0x10", none},
            {"+-1", none}, {"1E", none},  {"1E400", none}, {"-", none},
        };
        for (const auto &[text, number] : rows) QTest::newRow(text) << text << number;
    }
    void valuesAreReadLeniently()
    {
        QFETCH(QString, text);
        QFETCH(double, number);
        const auto read = numberIn(text);
        QCOMPARE(read.has_value(), !qIsNaN(number));
        if (read) QCOMPARE(*read, number);
    }

    void wholeNumbersAreExactTo64Bits()
    {
        const qint64 numbers[] = {INT64_MAX, INT64_MIN, (qint64(1) << 53) + 1};
        for (const qint64 n : numbers)
            QCOMPARE(readOf(whole("<s:AttributeType name='N' dt:type='i8'/>",
                                  "<z:row N=' " + QByteArray::number(n) + "'/>"))
                         .integer(0, 0),
                     n);
    }

    void whatCannotBeOpenedIsRefusedWithLineAndReason_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<RecordsetRefusal>("refusal");
        const auto row = [](const char *name, const QByteArray &bytes, Why why, qint64 line,
                            const char *subject = "") {
            QTest::newRow(name) << bytes << RecordsetRefusal{why, line, QString::fromLatin1(subject)};
        };
        const auto value = [](const char *said) {
            return whole(kColumns, QByteArray("\n<z:row ") + said + "/>");
        };
        row("out of range", value("N='32768'"), Why::OutOfRange, 4, "N");
        row("more than 64 bits hold",
            whole("<s:AttributeType name='N' dt:type='i8'/>", "<z:row N='9223372036854775808'/>"),
            Why::OutOfRange, 3, "N");
        row("half to even is out of range", value("N='32767.5'"), Why::OutOfRange, 4, "N");
        row("no number", value("N='x'"), Why::NoNumber, 4, "N");
        row("too large for a single", value("R='1E39'"), Why::OutOfRange, 4, "R");
        row("neither true nor false", value("B='yes'"), Why::NoTruthValue, 4, "B");
        row("unknown reference", value("T='&nbsp;'"), Why::WrongMarkup, 4);
        row("attribute without quotes", value("T=a"), Why::WrongMarkup, 4);
        row("needed value", whole("<s:AttributeType name='N' rs:maybenull='false'/>", "<z:row/>"),
            Why::LacksValue, 3, "N");
        row("needed value forced null",
            whole("<s:AttributeType name='N' rs:maybenull='false'/>", "<z:row rs:forcenull='N'/>"),
            Why::LacksValue, 3, "N");
        row("cut in a tag", value("N='1'").chopped(30), Why::CutShort, 4);
        row("cut between tags", whole(kColumns, "").chopped(6), Why::CutShort, 3);
        row("crossed tags", kHead + "<s:Schema></rs:data></xml>", Why::WrongMarkup, 2);
        row("two schemas", kHead + schema(kColumns) + schema(kColumns) + "</xml>", Why::DescribedTwice, 3);
        row("no schema", kHead + "<rs:data/></xml>", Why::NoSchema, 2);
        row("column not described", whole("<s:attribute type='Q'/>", ""), Why::NoSuchColumn, 2, "Q");
        row("column referred to twice",
            whole("<s:AttributeType name='N'/><s:attribute type='N'/><s:attribute type='N'/>", ""),
            Why::DescribedTwice, 2, "N");
        row("half a letter", value("T='&#xD800;'"), Why::WrongMarkup, 4);
        row("other root", "<html/>", Why::WrongRoot, 0);
        row("nothing", "", Why::WrongRoot, 0);
        row("binary", QByteArray(64, '\xff'), Why::WrongBytes, 1);
        row("unknown encoding", "<?xml version='1.0' encoding='x-none'?>" + kHead, Why::UnknownEncoding, 0,
            "x-none");
    }
    void whatCannotBeOpenedIsRefusedWithLineAndReason()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(RecordsetRefusal, refusal);
        const auto read = recordsetOf(bytes);
        const auto *const said = std::get_if<RecordsetRefusal>(&read);
        QVERIFY(said);
        QCOMPARE(textOf(*said), textOf(refusal));
    }

    void aNewSetIsWrittenAsTheRuntimeDoes()
    {
        Recordset set = Recordset::made({{QStringLiteral("Id"), Type::Int16},
                                         {QStringLiteral("Név"), Type::Text, 10},
                                         {QStringLiteral("Size"), Type::Single},
                                         {QStringLiteral("Far"), Type::Double},
                                         {QStringLiteral("On"), Type::Boolean}});
        const int row = set.addRow(State::Inserted);
        QVERIFY(set.setReal(row, 3, 0.1) && set.setInteger(row, 0, -3)); // in any order
        QVERIFY(set.setText(row, 1, u"Fa 'ő'") && set.setReal(row, 2, 6.325) &&
                set.setBoolean(row, 4, false));
        QVERIFY(!set.setInteger(row, 0, 40000) && !set.setText(row, 1, u"12345678901") &&
                !set.setReal(row, 2, 1e39));
        const QByteArray bytes = bytesOf(set);
        QVERIFY(bytes.contains("\t<rs:insert>\r\n\t\t<z:row Id='-3' Név='Fa &#x27;ő&#x27;' Size='6.3249998' "
                               "Far='0.10000000000000001' On='False'/>\r\n\t</rs:insert>\r\n"));
        QCOMPARE(dump(readOf(bytes)), dump(set));

        const int next = set.addRow(State::Inserted);
        QVERIFY(set.setText(next, 1, u"b") && set.setText(row, 1, u"c")); // a row before the last one
        set.setNull(row, 3);
        QCOMPARE(dump(set),
                 QStringLiteral("+ Id=-3 Név=c Size=6.3249998 Far On=False\n+ Id Név=b Size Far On"));
    }
    void realNumbersHaveTheirDigits_data()
    {
        QTest::addColumn<double>("number");
        QTest::addColumn<bool>("isSingle");
        QTest::addColumn<QString>("text");
        const std::tuple<double, bool, const char *> rows[] = {
            {0, false, "0"},
            {3.325, true, "3.325"},
            {0.7, true, "0.69999999"},
            {-0.25, false, "-0.25"},
            {3.4028231E38, true, "3.4028231E+38"},
            {3.14159, false, "3.1415899999999999"},
            {1.7976931348623157E308, false, "1.7976931348623157E+308"},
            {12345678, true, "12345678"},
            {float(0.05), true, "5.0000001E-2"},
            {100, true, "100"},
            {-1e-7, false, "-9.9999999999999995E-8"},
        };
        for (const auto &[number, isSingle, text] : rows) QTest::newRow(text) << number << isSingle << text;
    }
    void realNumbersHaveTheirDigits()
    {
        QFETCH(double, number);
        QFETCH(bool, isSingle);
        QTEST(realText(isSingle ? double(float(number)) : number, isSingle), "text");
    }

    void everySampleReadsAndComesBack_data()
    {
        QTest::addColumn<QString>("name");
        if (!qEnvironmentVariableIsSet("QVDC_SAMPLES")) QSKIP("no samples");
        const QDir folder(qEnvironmentVariable("QVDC_SAMPLES") + QStringLiteral("/recordset"));
        const QStringList names = folder.entryList({"*.xml", "*.rst"}, QDir::Files);
        QVERIFY(names.size() > 25);
        for (const QString &name : names) QTest::newRow(qPrintable(name)) << name;
    }
    void everySampleReadsAndComesBack()
    {
        QFETCH(QString, name);
        const QByteArray bytes = sample(name);
        const auto read = recordsetOf(bytes);
        if (name == u"truncated.rst") {
            QVERIFY(std::holds_alternative<RecordsetRefusal>(read));
            QCOMPARE(std::get<RecordsetRefusal>(read).why, Why::CutShort);
            return;
        }
        const Recordset set = readOf(bytes);
        QVERIFY(!set.fields().empty());
        const QByteArray written = bytesOf(set);
        const Recordset again = readOf(written);
        QCOMPARE(dump(again), dump(set));
        QCOMPARE(again.fields(), set.fields());
        // What the runtime wrote comes back byte for byte, unless it tells of changes.
        const bool isRuntimes =
            bytes.startsWith("<xml xmlns:s='") && (name.endsWith(u".xml") || set.rowCount() == 0);
        if (isRuntimes && !bytes.contains("<rs:update>") && !bytes.contains("<rs:delete>"))
            QCOMPARE(written, bytes);
    }
};

QVDC_TEST(tst_RecordsetXml)
#include "tst_RecordsetXml.moc"
