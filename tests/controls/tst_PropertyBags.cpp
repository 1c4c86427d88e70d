#include "controls/ZOL3_LayGroup.h"
#include "controls/ZOL3_LayInfo.h"
#include "controls/ZOL3_SiInfo.h"
#include "controls/usInputBox.h"
#include "controls/usLays.h"
#include "controls/usSiInfo.h"
#include "controls/usTxAlign.h"
#include "support/OtherValues.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

using namespace tests;

class tst_PropertyBags : public QObject {
    Q_OBJECT
private:
    template <class Control> static void keeps(const char *but = "")
    {
        ScriptedPrompts silent;
        QWidget form;
        Control control(&form), other(&form);
        QCOMPARE(control.propertyBag(), QVariantMap());
        auto values = otherValues(control);
        std::erase_if(values, [but](const auto &v) { return v.first == but; });
        for (const auto &[name, value] : values) {
            QVERIFY2(control.setProperty(name, value), name);
            same(name, control.property(name), value);
        }
        const QVariantMap bag = control.propertyBag();
        QCOMPARE(bag.size(), qsizetype(values.size()));
        other.setPropertyBag(bag);
        QCOMPARE(other.propertyBag(), bag);
        other.setPropertyBag({});
        QCOMPARE(other.propertyBag(), QVariantMap());
    }
private slots:
    void everyPropertyIsKept()
    {
        keeps<usInputBox>(), keeps<usTxAlign>(), keeps<usSiInfo>(), keeps<ZOL3_SiInfo>();
        keeps<usLays>(), keeps<ZOL3_LayGroup>();
        keeps<ZOL3_LayInfo>("NotSetCurrentLayer"); // which is the program's, not the form's
    }
};
QVDC_TEST(tst_PropertyBags)
#include "tst_PropertyBags.moc"
