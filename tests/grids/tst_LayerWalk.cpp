#include "facade/services/Language.h"
#include "support/LayerDoc.h"
#include "support/LayerForm.h"
#include "support/LayerModel.h"
#include "support/NotingPrompts.h"
#include "support/Registry.h"

#include <QRandomGenerator>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using Model = tests::LayerModel;

namespace {

struct Prompted final : tests::NotingPrompts {
    bool onlyNumbers = false;
    std::optional<bool> yesNoCancel(const Message &, QObject *) override { return onlyNumbers; }
};

/// One user at a form whose every act the model follows.
class Walk {
public:
    explicit Walk(quint32 seed) : m_random(seed)
    {
        for (const auto &l : m_doc->layers().readAll()) m_model.rows.push_back({l.gNr, l.Name});
    }
    void step()
    {
        choose();
        user.told.clear(), m_model.told.clear();
        const int growth = m_random.bounded(-3, 40), start = m_random.bounded(1, 60);
        const bool on = m_random.bounded(2) == 0;
        switch (m_random.bounded(m_model.rows.size() > 60 ? 4 : 8)) {
        case 0: return m_model.remove(m_chosen), form.run("cmdLays_Delete");
        case 1: return m_model.flag(m_chosen, &Model::Row::visible, on),
                       form.run(on ? "cmdLays_SetVisibleOn" : "cmdLays_SetVisibleOff");
        case 2: return m_model.flag(m_chosen, &Model::Row::lines, on),
                       form.run(on ? "cmdLays_ElByLayerOn" : "cmdLays_ElByLayerOff");
        case 3: return m_model.trim(m_chosen, user.onlyNumbers = on), form.run("cmdLays_TrimLeftName");
        case 4: return m_model.addNew(m_chosen.front()), form.run("miAddNew");
        case 5: user.typed = {double(start), double(growth)};
                return m_model.renumber(m_chosen, start, growth), form.run("cmdLays_Renumber");
        default: user.typed = {double(on ? growth : 31990)};
                return m_model.copy(m_chosen, on ? growth : 31990), form.run("cmdLays_Copy");
        }
    }
    QString expected() const { return m_model.dump() + m_model.told.join(u'\n'); }
    QString found()
    {
        Model now;
        now.told = user.told;
        for (const tLay &l : form.rows()) now.rows.push_back({l.gNr, l.Name, l.Visible, l.ElByLayer});
        return now.dump() + user.told.join(u'\n');
    }
    bool gridAgrees() { return form.rows() == m_doc->layers().readAll() && !form.error; }

private:
    /// About one layer in three; once in a while all of them.
    void choose()
    {
        m_chosen.clear();
        const int part = m_random.bounded(12) == 0 ? 1 : 3;
        for (size_t i = 0; i < m_model.rows.size(); ++i)
            if (m_random.bounded(part) == 0) m_chosen.push_back(i);
        if (m_chosen.empty()) m_chosen.push_back(size_t(m_random.bounded(int(m_model.rows.size()))));
        std::vector<int> numbers;
        for (const size_t i : m_chosen) numbers.push_back(m_model.rows[i].nr);
        form.select(numbers);
    }
    std::unique_ptr<refhost::SqliteDoc> m_doc =
        tests::layerDoc("1 1-Út, 2 2-Út, 3 A-1-Kút, 14 Kerítés, 20 x- ");
    QRandomGenerator m_random;
    Model m_model;
    Model::Places m_chosen;
    tests::LayerForm form{*m_doc};
    Prompted user;
};

} // namespace

class tst_LayerWalk : public QObject {
    Q_OBJECT
private slots:
    void init() { setLanguage(Hungarian, {}); }

    void everyStepDoesWhatTheModelSays_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed : {1u, 2u, 3u, 4u}) QTest::addRow("seed %u", seed) << seed;
    }
    void everyStepDoesWhatTheModelSays()
    {
        QFETCH(quint32, seed);
        Walk walk(seed);
        for (int i = 0; i < 150; ++i) {
            walk.step();
            QCOMPARE(walk.found(), walk.expected());
            QVERIFY(walk.gridAgrees());
        }
    }
};

QVDC_TEST(tst_LayerWalk)
#include "tst_LayerWalk.moc"
