#include "kit/ask/UniqueNumber.h"

#include "kit/ask/ErrorRelay.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include <stdexcept>

using namespace QV_DOC_CONTROLS;
using Step = tests::ScriptedPrompts::Step;

namespace {

const Message kTaken{Icon::Information, "Egyedi sorszám", "Létező sorszám !"};
const Step kTells{"tell", kTaken.title, kTaken.text, {}, kTaken.icon};

Step asks(const char *preset, QVariant answer)
{
    return {"numbers", "Sorszám", QString("Új sorszám|Száma|") + preset, std::move(answer)};
}
/// Numbers below five are taken.
int numberBy(ErrorRelay &relay)
{
    const NumberQuestion question{
        "Sorszám", "Új sorszám", {{.label = "Száma", .preset = 3, .min = 1, .max = 32767}}};
    const auto refusal = [](double n) { return n < 5 ? std::optional(kTaken) : std::nullopt; };
    return int(uniqueNumber(relay, question, refusal).value_or(-1));
}

} // namespace

class tst_UniqueNumber : public QObject {
    Q_OBJECT
private slots:
    void whatIsTakenIsAskedAgainWithWhatWasTyped()
    {
        ErrorRelay relay;
        tests::ScriptedPrompts user({asks("3", QVariantList{3}), kTells, asks("3", QVariantList{4}), kTells,
                                     asks("4", QVariantList{5}), asks("3", QVariantList{3}), kTells,
                                     asks("3", {})});
        QCOMPARE(numberBy(relay), 5);
        QCOMPARE(numberBy(relay), -1); // given up after a refusal
    }
    void anErrorThatCameInMeanwhileEndsTheAsking()
    {
        for (const bool whileTold : {false, true}) {
            ErrorRelay relay;
            std::vector<Step> steps{asks("3", QVariantList{3})};
            if (whileTold) steps.push_back(kTells);
            steps.back().meanwhile = [&] { relay.guard([] { throw std::runtime_error("lost"); }); };
            tests::ScriptedPrompts user(steps);
            bool asked = false;
            QVERIFY(!relay.guard([&] { asked = numberBy(relay); }) && !asked);
            QDialog dialog;
            QVERIFY_EXCEPTION_THROWN(relay.exec(dialog), std::runtime_error);
        }
    }
};
QVDC_TEST(tst_UniqueNumber)
#include "tst_UniqueNumber.moc"
