#include "support/RealDrawings.h"
#include "support/Registry.h"

#include <numeric>

using namespace QV_DOC_CONTROLS;
using Places = tests::LayerModel::Places;
using Row = tests::LayerModel::Row;

namespace {

/// One drawing, one user, and what the drawing ought to be.
struct Session {
    tests::DrawingReader &file;
    tests::Someone &user;
    tests::LayerModel model;
    QString groups;
    int orphans;

    Session(tests::DrawingReader &f, tests::Someone &u)
        : file(f), user(u), model(f.layers()), groups(f.groups()), orphans(f.orphans())
    {
        model.firstGroups = {file.systemGroup()};
    }
    QStringList found()
    {
        return file.layers().dump().split(u'\n') << file.groups() << QString::number(file.orphans());
    }
    QStringList expected() const
    {
        return model.dump().split(u'\n') << groups << QString::number(orphans);
    }
    int count() const { return int(model.rows.size()); }
    std::vector<int> numbers(const Places &places) const
    {
        std::vector<int> out;
        for (const size_t i : places) out.push_back(model.rows[i].nr);
        return out;
    }
    void select(const Places &places) { user.select(numbers(places)); }
    size_t last() const { return model.rows.size() - 1; }
    Places all() const
    {
        Places out(model.rows.size());
        std::iota(out.begin(), out.end(), size_t(0));
        return out;
    }

    void flags(const char *tool, bool Row::*flag, bool on, const Places &rows)
    {
        model.flag(rows, flag, on);
        select(rows);
        user.menu(tool);
    }
    void hide()
    {
        model.flag({0, 1, 2}, &Row::visible, false);
        select({0, 1, 2});
        user.press(Qt::Key_H, Qt::ControlModifier);
    }
    void show()
    {
        model.flag({0, 2}, &Row::visible, true);
        select({0, 2});
        user.press(Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier);
    }
    void linesOn() { flags("cmdLays_ElByLayerOn", &Row::lines, true, {1, 2}); }
    void linesOff() { flags("cmdLays_ElByLayerOff", &Row::lines, false, {0, 1}); }
    void textsOn() { flags("cmdLays_TxByLayerOn", &Row::texts, true, {0, 2}); }
    void textsOff() { flags("cmdLays_TxByLayerOff", &Row::texts, false, {2, 1}); }
    void allOff()
    {
        model.flag(all(), &Row::visible, false);
        user.menu("cmdVisibleAllOff");
    }
    void allOn()
    {
        model.flag(all(), &Row::visible, true);
        user.menu("cmdVisibleAllOn");
    }
    void addNew()
    {
        model.addNew(0); // like the current layer, wherever the user stands
        select({1});
        user.press(Qt::Key_N, Qt::ControlModifier);
    }
    void copy()
    {
        model.copy({0, 1}, 1500);
        select({0, 1});
        user.answers << QStringLiteral("1500\r");
        user.press(Qt::Key_D, Qt::ControlModifier);
    }
    void renumber()
    {
        const Places rows{last() - 1, last()};
        select(rows);
        model.renumber(rows, 20000, -10);
        user.answers << QStringLiteral("20000\t-10\r");
        user.press(Qt::Key_R, Qt::ControlModifier);
    }
    /// With the keyboard only, right after a command.
    void editOn()
    {
        model.rows[last()].nr = 21000;
        user.type(QStringLiteral("21000"));
    }
    /// What is still being typed when a command comes is written first.
    void hideWhileTyping()
    {
        user.click(user.lineOf(model.rows[2].nr), 1);
        model.rows[2].name = QStringLiteral("Félkész");
        model.rows[2].visible = false;
        user.press(Qt::Key_F2);
        user.keys(model.rows[2].name);
        user.menu("cmdLays_SetVisibleOff");
    }
    void rename()
    {
        select({0});
        model.rows[0].name = QStringLiteral("Őrpont, műtárgy");
        user.answers << model.rows[0].name + u'\r';
        user.menu("cmdLays_Rename");
    }
    /// The name that another layer has is refused, and asked for again.
    void renameTaken()
    {
        select({1});
        model.rows[1].name = QStringLiteral("Ereszalja");
        user.answers << model.rows[0].name + u'\r' << QStringLiteral("\r") << QStringLiteral("Ereszalja\r");
        user.menu("cmdLays_Rename");
    }
    void number()
    {
        select({2});
        model.rows[2].nr = 31000;
        user.answers << QStringLiteral("31000\r");
        user.menu("cmdLays_Nr");
    }
    void editCell()
    {
        user.click(user.lineOf(model.rows[0].nr), 1);
        model.rows[0].name = QStringLiteral("Kerítés");
        user.type(model.rows[0].name);
    }
    void editNumberTaken()
    {
        user.click(user.lineOf(model.rows[0].nr), 0);
        user.answers << QStringLiteral("\r");
        user.type(QString::number(model.rows[1].nr));
    }
    void check()
    {
        user.click(user.lineOf(model.rows[1].nr), 1);
        model.rows[1].visible = !model.rows[1].visible;
        user.press(Qt::Key_Right);
        user.press(Qt::Key_Space);
    }
    void trim()
    {
        select({0});
        user.press(Qt::Key_A, Qt::ControlModifier);
        model.trim(all(), false);
        model.told.clear();
        user.answers << QStringLiteral("@Nem") << QStringLiteral("\r");
        user.menu("cmdLays_TrimLeftName");
    }
    void newGroup()
    {
        groups += QStringLiteral("|Új_csoport");
        user.menu("miAddNewGroup");
    }
    void intoGroup()
    {
        for (const size_t i : {size_t(1), last()}) model.rows[i].groups.insert(QStringLiteral("Új_csoport"));
        select({1, last()});
        user.answers << QStringLiteral("@Új_csoport") << QStringLiteral("\r");
        user.menu("cmdLay_GroupCopy");
    }
    void hideGroup()
    {
        user.chooseGroup(QStringLiteral("Új_csoport"));
        model.flag({1, last()}, &Row::visible, false);
        user.menu("cmdLay_GroupVisibleOff");
    }
    void addInGroup()
    {
        select({1});
        model.firstGroups.insert(QStringLiteral("Új_csoport"));
        model.addNew(0);
        user.press(Qt::Key_N, Qt::ControlModifier);
    }
    void renameGroup()
    {
        groups.replace(QStringLiteral("Új_csoport"), QStringLiteral("Közmű"));
        for (auto &row : model.rows)
            if (row.groups.erase(QStringLiteral("Új_csoport"))) row.groups.insert(QStringLiteral("Közmű"));
        user.answers << QStringLiteral("Közmű\r");
        user.menu("cmdLay_GroupName");
    }
    void removeGroup()
    {
        groups.remove(QStringLiteral("|Közmű"));
        for (auto &row : model.rows) row.groups.erase(QStringLiteral("Közmű"));
        user.answers << QStringLiteral("@Igen");
        user.menu("miGroupRemove");
        user.chooseGroup(QStringLiteral("MIND"));
    }
    void remove(const Places &going)
    {
        for (auto i = going.rbegin(); i != going.rend(); ++i)
            model.rows.erase(model.rows.begin() + qsizetype(*i));
    }
    /// Of the layers that are not empty, every other one stays; what stood on the others is left over.
    void removeSome()
    {
        Places rows{0, 1, 2, last()}, going;
        select(rows);
        bool yes = true;
        for (const size_t i : rows) {
            const auto &row = model.rows[i];
            if (row.elements > 0) user.answers << (yes ? QStringLiteral("@Igen") : QStringLiteral("@Nem"));
            if (row.elements == 0 || yes) going.push_back(i), orphans += row.elements;
            if (row.elements > 0) yes = !yes;
        }
        user.answers << QStringLiteral("@Nem");
        user.menu("cmdLays_Delete");
        remove(going);
    }
    /// "Mind" for all the rest; what stood on them goes too.
    void removeAll()
    {
        const auto used = std::ranges::max_element(model.rows, {}, &Row::elements);
        const Places going{size_t(used - model.rows.begin())};
        select(going);
        user.answers << QStringLiteral("@Igen");
        if (used->elements > 0) user.answers << QStringLiteral("@Mind");
        user.answers << QStringLiteral("@Igen");
        user.press(Qt::Key_Delete);
        remove(going);
    }
};

using Act = void (Session::*)();
constexpr std::pair<const char *, Act> kActs[] = {
    {"hide", &Session::hide},
    {"show", &Session::show},
    {"lines on", &Session::linesOn},
    {"lines off", &Session::linesOff},
    {"texts on", &Session::textsOn},
    {"texts off", &Session::textsOff},
    {"new", &Session::addNew},
    {"copy", &Session::copy},
    {"renumber", &Session::renumber},
    {"number in its cell", &Session::editOn},
    {"off while typing", &Session::hideWhileTyping},
    {"rename", &Session::rename},
    {"rename, taken", &Session::renameTaken},
    {"number", &Session::number},
    {"name in its cell", &Session::editCell},
    {"number in its cell, taken", &Session::editNumberTaken},
    {"check mark", &Session::check},
    {"all off", &Session::allOff},
    {"all on", &Session::allOn},
    {"shorter names", &Session::trim},
    {"new group", &Session::newGroup},
    {"into the group", &Session::intoGroup},
    {"group off", &Session::hideGroup},
    {"new in the group", &Session::addInGroup},
    {"rename group", &Session::renameGroup},
    {"delete group", &Session::removeGroup},
    {"delete", &Session::removeSome},
    {"delete key", &Session::removeAll},
};

} // namespace

/// A working day on real drawings: every command by mouse and keyboard, and after each of them the file holds
/// what it should.
class tst_LayerSession : public QObject {
    Q_OBJECT
private slots:
    void everyCommandDoesItsWorkOnADrawing_data() { tests::addDrawingRows(); }
    void everyCommandDoesItsWorkOnADrawing()
    {
        tests::workThrough<Session>(kActs, &clsDocDlgs::bEdit_Layers);
    }
};

QVDC_TEST(tst_LayerSession)
#include "tst_LayerSession.moc"
