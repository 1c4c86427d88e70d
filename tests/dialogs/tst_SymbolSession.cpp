#include "support/RealDrawings.h"
#include "support/Registry.h"

using namespace QV_DOC_CONTROLS;

namespace {

/// A symbol as the drawing ought to have it.
struct Row {
    QString name, group;
    double size = 5;
    int weight = 16, layer = 1, type = 0, uses = 0;
    QString line(int number) const
    {
        QString mm = QString::number(size);
        if (!mm.contains(u'.')) mm += QStringLiteral(".0");
        return QStringLiteral("%1 %2 %3 %4 %5 %6 %7 %8")
            .arg(number).arg(name, group, mm).arg(weight).arg(layer).arg(type).arg(uses);
    }
};

/// One drawing, one user at its symbols, and what the drawing ought to be.
struct Session {
    tests::DrawingReader &file;
    tests::Someone &user;
    std::map<int, Row> rows;
    QString groups;
    int made = 0, second = 0, third = 0;        ///< numbers of the new symbols

    Session(tests::DrawingReader &f, tests::Someone &u) : file(f), user(u), groups(f.symbolGroups())
    {
        for (const QString &line : f.symbols()) known << line;
    }
    QStringList known;                          ///< the drawing's own, which nothing changes
    QStringList found() { return file.symbols() << file.symbolGroups(); }
    QStringList expected() const
    {
        QStringList all = known;
        for (const auto &[number, row] : rows) all << row.line(number);
        return all << groups;
    }
    int count() const { return int(known.size() + rows.size()); }
    QString firstGroup() const { return groups.section(u'|', 0, 0); }
    int nextNumber() const
    {
        int highest = rows.empty() ? 0 : rows.rbegin()->first;
        for (const QString &line : known) highest = std::max(highest, line.section(u' ', 0, 0).toInt());
        return highest + 1;
    }
    int add(const QString &name, const QString &group)
    {
        const int number = nextNumber();
        rows[number] = {name, group};
        user.answers << name + u'\r';
        user.press(Qt::Key_N, Qt::ControlModifier);
        return number;
    }
    void ask(const char *tool, const QStringList &answers)
    {
        user.answers << answers;
        user.menu(tool);
    }
    void intoCell(int number, int column, const QString &text)
    {
        user.click(user.lineOf(number), column);
        user.type(text);
    }

    void addFirst() { made = add(QStringLiteral("Kút"), firstGroup()); }
    void addSecond() { second = add(QStringLiteral("Őrhely"), firstGroup()); }
    void addTaken()
    {
        user.answers << QStringLiteral("Kút\r") << QStringLiteral("\r");
        third = add(QStringLiteral("Akna"), firstGroup());
    }
    void size()
    {
        user.select({made, second});
        rows[made].size = rows[second].size = 2.5;
        ask("cmdSid_Size", {QStringLiteral("2,5\r")});
    }
    void thickness()
    {
        user.select({second, third});
        rows[second].weight = rows[third].weight = 40;
        ask("cmdSid_Width", {QStringLiteral("0,4\r")});
    }
    void rename()
    {
        user.select({second});
        rows[second].name = QStringLiteral("Fenyő");
        ask("cmdSid_Name", {QStringLiteral("Fenyő\r")});
    }
    void renameTaken()
    {
        user.select({third});
        rows[third].name = QStringLiteral("Tűzcsap");
        ask("cmdSid_Name", {QStringLiteral("Kút\r"), QStringLiteral("\r"), QStringLiteral("Tűzcsap\r")});
    }
    void nameInCell() { intoCell(made, 2, rows[made].name = QStringLiteral("Fúrt kút")); }
    void nameTakenInCell()
    {
        user.answers << QStringLiteral("\r");
        intoCell(made, 2, rows[third].name);
    }
    void numberInCell()
    {
        rows[9000] = rows[third];
        rows.erase(third);
        intoCell(third, 0, QStringLiteral("9000"));
        third = 9000;
    }
    void numberTakenInCell()
    {
        user.answers << QStringLiteral("\r");
        intoCell(third, 0, QString::number(made));
    }
    void sizeInCell()
    {
        rows[made].size = 7.25;
        intoCell(made, 3, QStringLiteral("7,25"));
    }
    /// It is said, and what was typed waits in its cell to be typed over.
    void sizeOutOfBounds()
    {
        rows[made].size = 8.25;
        user.answers << QStringLiteral("\r");
        intoCell(made, 3, QStringLiteral("5000\r8,25"));
    }
    void weightInCell()
    {
        rows[third].weight = 25;
        intoCell(third, 4, QStringLiteral("25"));
    }
    void edit()
    {
        user.select({second});
        rows[second].name = QStringLiteral("Tölgy");
        user.answers << QStringLiteral("Tölgy\r");
        user.press(Qt::Key_E, Qt::ControlModifier);
    }
    void newGroup()
    {
        groups += QStringLiteral("|Erdő");
        ask("miAddNewGroup", {QStringLiteral("Erdő\r")});
    }
    void newGroupTaken()
    {
        groups += QStringLiteral("|Puszta");
        ask("miAddNewGroup", {QStringLiteral("Erdő\r"), QStringLiteral("\r"), QStringLiteral("Puszta\r")});
    }
    void intoGroup()
    {
        user.select({second, third});
        rows[second].group = rows[third].group = QStringLiteral("Erdő");
        const int place = int(groups.split(u'|').indexOf(QStringLiteral("Erdő"))) + 1;
        user.menu(qPrintable(QString::number(place) + QStringLiteral("cmdSid_GroupMove")));
    }
    void addInGroup()
    {
        user.chooseGroup(QStringLiteral("Erdő"));
        add(QStringLiteral("Bükk"), QStringLiteral("Erdő"));
    }
    void renameGroup()
    {
        groups.replace(QStringLiteral("Erdő"), QStringLiteral("Liget"));
        for (auto &[number, row] : rows)
            if (row.group == QStringLiteral("Erdő")) row.group = QStringLiteral("Liget");
        ask("miGroupRename", {QStringLiteral("Liget\r")});
    }
    void deleteFullGroup() { ask("miGroupRemove", {QStringLiteral("@Igen"), QStringLiteral("\r")}); }
    void deleteGroup()
    {
        user.chooseGroup(QStringLiteral("Puszta"));
        groups.remove(QStringLiteral("|Puszta"));
        ask("miGroupRemove", {QStringLiteral("@Igen")});
        user.chooseGroup(QStringLiteral("MIND"));
    }
    /// Deletes nothing, on purpose.
    void deleteKey()
    {
        user.select({made});
        user.answers << QStringLiteral("@Igen") << QStringLiteral("\r");
        user.press(Qt::Key_Delete);
    }
    void remove()
    {
        user.select({made, third});
        rows.erase(made);
        rows.erase(third);
        user.menu("miRemove");
    }
};

using Act = void (Session::*)();
constexpr std::pair<const char *, Act> kActs[] = {
    {"new", &Session::addFirst},
    {"new again", &Session::addSecond},
    {"new, name taken", &Session::addTaken},
    {"size", &Session::size},
    {"thickness", &Session::thickness},
    {"rename", &Session::rename},
    {"rename, taken", &Session::renameTaken},
    {"name in its cell", &Session::nameInCell},
    {"name in its cell, taken", &Session::nameTakenInCell},
    {"number in its cell", &Session::numberInCell},
    {"number in its cell, taken", &Session::numberTakenInCell},
    {"size in its cell", &Session::sizeInCell},
    {"size out of bounds", &Session::sizeOutOfBounds},
    {"thickness in its cell", &Session::weightInCell},
    {"editor", &Session::edit},
    {"new group", &Session::newGroup},
    {"new group, taken", &Session::newGroupTaken},
    {"into the group", &Session::intoGroup},
    {"new in the group", &Session::addInGroup},
    {"rename group", &Session::renameGroup},
    {"delete group with symbols", &Session::deleteFullGroup},
    {"delete group", &Session::deleteGroup},
    {"delete key", &Session::deleteKey},
    {"delete", &Session::remove},
};

} // namespace

/// A working day at the symbols of real drawings: every command by mouse and keyboard, and after each of them
/// the file holds what it should.
class tst_SymbolSession : public QObject {
    Q_OBJECT
private slots:
    void everyCommandDoesItsWorkOnADrawing_data() { tests::addDrawingRows(); }
    void everyCommandDoesItsWorkOnADrawing()
    {
        tests::workThrough<Session>(kActs, &clsDocDlgs::bEdit_Sids);
    }
};

QVDC_TEST(tst_SymbolSession)
#include "tst_SymbolSession.moc"
