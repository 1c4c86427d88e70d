#include "kit/forms/HeaderColumns.h"
#include "kit/forms/Twips.h"
#include "support/OwnStore.h"
#include "support/Registry.h"

#include <QTreeWidget>

using namespace QV_DOC_CONTROLS;

class tst_HeaderColumns : public QObject {
    Q_OBJECT
private slots:
    void widthsComeBackInTwipsUnderTheirCaptions()
    {
        tests::OwnStore store;
        QTreeWidget list, later;
        list.setHeaderLabels({"Szám", "Név", "Szín"});
        const int wide = pixelsOf(2400, list);
        list.header()->resizeSection(1, wide);
        list.header()->hideSection(2);
        saveListViewColumns(*list.header(), "Pens", "ZolWOp", 3);
        QCOMPARE(store.kept.values["ZolWOp/Settings/Pens2"], QString::number(twipsOf(wide, list)));

        later.setHeaderLabels({"Number", "Név", "Szín"});
        const int number = later.header()->sectionSize(0), color = later.header()->sectionSize(2);
        loadListViewColumns(*later.header(), "Pens", "ZolWOp");
        QCOMPARE(later.header()->sectionSize(0), number); // renamed
        QCOMPARE(later.header()->sectionSize(1), wide);
        QCOMPARE(later.header()->sectionSize(2), color); // it was hidden: no width
    }
};
QVDC_TEST(tst_HeaderColumns)
#include "tst_HeaderColumns.moc"
