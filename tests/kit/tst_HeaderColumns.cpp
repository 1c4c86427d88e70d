#include "facade/contract/HostServices.h"
#include "facade/services/Services.h"
#include "kit/forms/HeaderColumns.h"
#include "kit/forms/Twips.h"
#include "support/MemoryStore.h"
#include "support/Registry.h"

#include <QHeaderView>
#include <QTreeWidget>
#include <QtTest/qtest.h>

using namespace QV_DOC_CONTROLS;

class tst_HeaderColumns : public QObject {
    Q_OBJECT
    struct Services final : ZolWDoc::HostServices {
        tests::MemoryStore memory;
        ZolWDoc::SettingsStore *store() override { return &memory; }
    };
private slots:
    void widthsComeBackInTwipsUnderTheirCaptions()
    {
        Services services;
        setHostServices(&services);
        QTreeWidget list;
        list.setHeaderLabels({QStringLiteral("Szám"), QStringLiteral("Név"), QStringLiteral("Szín")});
        const int wide = pixelsOf(2400, list);
        list.header()->resizeSection(1, wide);
        list.header()->hideSection(2);
        saveListViewColumns(*list.header(), QStringLiteral("Pens"), QStringLiteral("ZolWOp"), 3);
        QCOMPARE(services.memory.values[QStringLiteral("ZolWOp/Settings/Pens2")],
                 QString::number(twipsOf(wide, list)));

        QTreeWidget later;
        later.setHeaderLabels({QStringLiteral("Number"), QStringLiteral("Név"), QStringLiteral("Szín")});
        const int number = later.header()->sectionSize(0), color = later.header()->sectionSize(2);
        loadListViewColumns(*later.header(), QStringLiteral("Pens"), QStringLiteral("ZolWOp"));
        QCOMPARE(later.header()->sectionSize(0), number); // renamed
        QCOMPARE(later.header()->sectionSize(1), wide);
        QCOMPARE(later.header()->sectionSize(2), color); // it was hidden: no width
        setHostServices(nullptr);
    }
};
QVDC_TEST(tst_HeaderColumns)
#include "tst_HeaderColumns.moc"
