#include "dialogs/viewtools/frmChooseList.h"
#include "dialogs/viewtools/frmGroupBy.h"
#include "dialogs/viewtools/frmShowfields.h"
#include "dialogs/viewtools/frmSort.h"
#include "facade/services/Language.h"
#include "facade/services/Text.h"
#include "kit/grid/Grid.h"
#include "kit/grid/SampleRows.h"
#include "support/Looks.h"
#include "support/Modal.h"
#include "support/Registry.h"

using namespace QV_DOC_CONTROLS;

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
            tests::SampleRows rows;
            const Text captions[] = {{3411, u"Sorszám"}, {3299, u"Rétegnév"}, {3307, u"Látható"},
                                     {3305, u"Vonaltípus"}, {3306, u"Láthatóság"}};
            rows.cols.resize(std::size(captions));
            for (size_t c = 0; c < rows.cols.size(); ++c) rows.cols[c].caption = txt(captions[c]);
            Grid grid;
            grid.setSource(&rows);
            grid.setSortKeys(std::vector<SortKey>{{3, SortOrder::Descending}, {1}});
            grid.setGroupLevels(grid.sortKeys());
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
