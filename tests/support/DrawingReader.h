#pragma once

#include "support/LayerModel.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <map>

namespace tests {

/// The drawing's file as another program reads it.
class DrawingReader {
public:
    explicit DrawingReader(const QString &path)
    {
        m_db = QSqlDatabase::addDatabase("QSQLITE", "reader");
        m_db.setDatabaseName(path);
        if (!m_db.open()) qFatal("%s", qPrintable(m_db.lastError().text()));
    }
    ~DrawingReader()
    {
        m_db = {};
        QSqlDatabase::removeDatabase("reader");
    }
    LayerModel layers()
    {
        LayerModel now;
        std::map<int, size_t> place;
        QSqlQuery q = ask("SELECT id, nr, name, visible, lines_by_layer, texts_by_layer, "
                          "(SELECT count(*) FROM elements e WHERE e.layer=l.id), "
                          "line_type||' '||screen_color||' '||print_color||' '||pen||' '||text_type "
                          "FROM layers l ORDER BY id");
        while (q.next()) {
            place[q.value(0).toInt()] = now.rows.size();
            now.rows.push_back({q.value(1).toInt(),
                                q.value(2).toString(),
                                q.value(3).toBool(),
                                q.value(4).toBool(),
                                q.value(5).toBool(),
                                {},
                                q.value(6).toInt(),
                                q.value(7).toString()});
        }
        q = ask("SELECT m.layer, g.name FROM layer_members m JOIN layer_groups g ON g.id=m.group_id");
        while (q.next()) now.rows[place.at(q.value(0).toInt())].groups.insert(q.value(1).toString());
        return now;
    }
    /// "number name group size thickness layer type uses" of every symbol.
    QStringList symbols()
    {
        QStringList rows;
        QSqlQuery q =
            ask("SELECT s.id||' '||s.name||' '||g.name||' '||round(s.size_mm, 3)||' '||s.weight||' '||"
                "s.layer||' '||s.font_type||' '||"
                "(SELECT count(*) FROM elements e WHERE e.symbol=s.id) "
                "FROM symbols s JOIN symbol_groups g ON g.id=s.group_id ORDER BY s.id");
        while (q.next()) rows << q.value(0).toString();
        return rows;
    }
    QString symbolGroups()
    {
        return text("SELECT group_concat(name, '|') FROM (SELECT name FROM symbol_groups ORDER BY id)");
    }
    int orphans() { return number("SELECT count(*) FROM elements WHERE layer IS NULL"); }
    QString systemGroup() { return text("SELECT name FROM layer_groups WHERE system=1"); }
    QString groups()
    {
        return text("SELECT group_concat(name, '|') FROM (SELECT name FROM layer_groups ORDER BY id)");
    }

private:
    QSqlQuery ask(const char *sql)
    {
        QSqlQuery q(m_db);
        if (!q.exec(QLatin1String(sql))) qFatal("%s", qPrintable(q.lastError().text()));
        return q;
    }
    QString text(const char *sql)
    {
        QSqlQuery q = ask(sql);
        q.next();
        return q.value(0).toString();
    }
    int number(const char *sql) { return text(sql).toInt(); }
    QSqlDatabase m_db;
};

} // namespace tests
