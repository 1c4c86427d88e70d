#include "dialogs/viewtools/frmChooseList.h"
#include "dialogs/viewtools/frmGroupBy.h"
#include "dialogs/viewtools/frmShowfields.h"
#include "dialogs/viewtools/frmSort.h"
#include "facade/services/Language.h"
#include "facade/services/Text.h"
#include "support/Looks.h"
#include "support/Modal.h"
#include "support/PlainGrid.h"
#include "support/Registry.h"

using namespace QV_DOC_CONTROLS;
using tests::PlainGrid;

namespace {
struct Names final : EntrySource {
    QStringList entries() const override { return {txt(Text{3299, u"Rétegnév"}), "Telekhatár"}; }
};
} // namespace

class tst_Looks : public QObject {
    Q_OBJECT
private slots:
    void nothingIsCutOffInAnyLanguage()
    {
        const auto look = [](QDialog &d) {
            QCOMPARE(tests::flawsOf(d), QStringList());
            d.reject();
        };
        for (const int language : {Hungarian, Romanian, Vietnamese, English}) {
            setLanguage(language, {});
            PlainGrid grid({txt(Text{3411, u"Sorszám"}), txt(Text{3299, u"Rétegnév"}),
                            txt(Text{3307, u"Látható"}), txt(Text{3306, u"Láthatóság"})});
            grid.sort = grid.groups = PlainGrid::keys("-3 +1");
            bool confirmed = false;
            qint32 index = 0;
            const auto onSort = tests::whileModal<frmSort>(look);
            QVERIFY(!frmSort().SortGrid(grid));
            const auto onGroup = tests::whileModal<frmGroupBy>(look);
            QVERIFY(!frmGroupBy().GroupGrid(grid));
            const auto onFields = tests::whileModal<frmShowfields>(look);
            frmShowfields().ShowFields(grid, confirmed);
            const auto onChoose = tests::whileModal<frmChooseList>(look);
            QVERIFY(!frmChooseList().getIndex(Names(), index));
        }
        setLanguage(Hungarian, {});
    }
};
QVDC_TEST(tst_Looks)
#include "tst_Looks.moc"
