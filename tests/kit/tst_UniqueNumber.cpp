#include "kit/ask/UniqueNumber.h"

#include "kit/ask/ErrorRelay.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include <QDialog>
#include <QTest>

#include <stdexcept>

using namespace QV_DOC_CONTROLS;
using Step = tests::ScriptedPrompts::Step;

namespace {

const Message kTaken{Icon::Information, QStringLiteral("Egyedi sorszám"), QStringLiteral("Létező sorszám !")};

NumberQuestion question()
{
    return {QStringLiteral("Sorszám"), QStringLiteral("Új sorszám"),
            {{.label = QStringLiteral("Száma"), .preset = 3, .min = 1, .max = 32767}}};
}

Step asks(const char *preset, QVariant answer)
{
    return {"numbers", QStringLiteral("Sorszám"), QStringLiteral("Új sorszám|Száma|") + QLatin1String(preset),
            std::move(answer)};
}
Step tells() { return {"tell", kTaken.title, kTaken.text, {}, kTaken.icon}; }

std::optional<Message> takenBelowFive(double number)
{
    return number < 5 ? std::optional(kTaken) : std::nullopt;
}

} // namespace

class tst_UniqueNumber : public QObject {
    Q_OBJECT
private slots:
    void whatIsTakenIsAskedAgainWithWhatWasTyped()
    {
        tests::ScriptedPrompts user({asks("3", QVariantList{3}), tells(), asks("3", QVariantList{4}), tells(),
                                     asks("4", QVariantList{5})});
        ErrorRelay relay;
        QCOMPARE(uniqueNumber(relay, question(), takenBelowFive).value_or(-1), 5);
    }
    void theUserMayGiveUpAfterARefusal()
    {
        tests::ScriptedPrompts user({asks("3", QVariantList{3}), tells(), asks("3", {})});
        ErrorRelay relay;
        QVERIFY(!uniqueNumber(relay, question(), takenBelowFive));
    }
    void anErrorThatCameInMeanwhileEndsTheAsking_data()
    {
        QTest::addColumn<bool>("whileTold");
        QTest::newRow("while the number was asked") << false;
        QTest::newRow("while the refusal was told") << true;
    }
    void anErrorThatCameInMeanwhileEndsTheAsking()
    {
        QFETCH(bool, whileTold);
        ErrorRelay relay;
        std::vector<Step> steps{asks("3", QVariantList{3})};
        if (whileTold) steps.push_back(tells());
        steps.back().meanwhile = [&] { relay.guard([] { throw std::runtime_error("lost"); }); };
        tests::ScriptedPrompts user(steps);
        bool asked = false;
        QVERIFY(!relay.guard([&] {
            uniqueNumber(relay, question(), takenBelowFive);
            asked = true;
        }));
        QVERIFY(!asked);
        QDialog dialog;
        QVERIFY_EXCEPTION_THROWN(relay.exec(dialog), std::runtime_error);
    }
};
QVDC_TEST(tst_UniqueNumber)
#include "tst_UniqueNumber.moc"
