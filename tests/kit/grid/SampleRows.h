#pragma once

#include "kit/grid/GridSource.h"

#include <QAbstractItemModel>
#include <QMimeData>
#include <QStringList>

#include <algorithm>

namespace tests {

using namespace QV_DOC_CONTROLS;

/// Rows of every kind of cell; refuses what it is told to, and logs what it is asked to write.
struct SampleRows : GridSource {
    enum Column { Nr, Name, Visible, Kind, Color, Sample };
    struct Record {
        qint64 id;
        int nr;
        QString name;
        bool visible = true;
        int kind = 0, color = 0;
    };
    std::vector<Record> all;
    std::vector<GridColumn> cols{
        {"Nr", "Sorszám", {}, CellKind::Number, true}, {"Name", "Név", {}, CellKind::Text, true},
        {"Vis", "Látható", {}, CellKind::Check, true}, {"Kind", "Vonaltípus", {}, CellKind::List, true},
        {"Col", "Szín", {}, CellKind::Color, false},   {"Pic", "Minta", {}, CellKind::Picture, false}};
    QStringList kinds{"folytonos", "szaggatott", "pontozott"};
    QStringList log;
    bool refuses = false;

    SampleRows() = default;
    explicit SampleRows(const QStringList &names)
    {
        for (const QString &name : names) all.push_back({int(all.size()) + 100, int(all.size()) + 1, name});
    }
    const std::vector<GridColumn> &columns() const override { return cols; }
    int rowCount() const override { return int(all.size()); }
    qint64 rowId(int row) const override { return at(row).id; }
    QVariant value(int row, int column) const override
    {
        const Record &r = at(row);
        const QVariant cells[] = {r.nr, r.name, r.visible, r.kind, r.color, {}};
        return cells[column];
    }
    QString text(int row, int column) const override
    {
        if (column == Visible) return {};
        if (column == Sample) return "minta";
        return column == Kind ? kinds.value(at(row).kind) : value(row, column).toString();
    }
    RowStyles styles(int row) const override
    {
        return {.cells = {{Color, QString::number(at(row).color) + "ColorId"}}};
    }
    QPixmap picture(int row, int) const override
    {
        ++painted;
        QPixmap p(20, 12);
        p.fill(at(row).visible ? Qt::darkGreen : Qt::gray);
        return p;
    }
    std::vector<GridChoice> choices(int) const override
    {
        return {{0, kinds[0]}, {1, kinds[1]}, {2, kinds[2]}};
    }
    std::optional<Message> refusal(int, int column, const QString &typed) const override
    {
        if (column != Nr || typed.toInt() > 0) return {};
        return Message{Icon::Exclamation, cols[Nr].caption, typed};
    }
    std::optional<QVariant> choose(int row, int column) override
    {
        log << QStringLiteral("choose %1.%2").arg(rowId(row)).arg(cols[size_t(column)].key);
        return chosen;
    }
    std::optional<QVariant> chosen;             ///< the answer; empty = cancelled
    bool edit(int row, int column, const QVariant &v) override
    {
        log << QStringLiteral("edit %1.%2=%3").arg(rowId(row)).arg(cols[size_t(column)].key, v.toString());
        if (refuses) return false;
        Record &r = all[size_t(row)];
        if (column == Nr) r.nr = v.toInt();
        if (column == Name) r.name = v.toString();
        if (column == Visible) r.visible = v.toBool();
        if (column == Kind) r.kind = v.toInt();
        return true;
    }
    bool removeRows(std::span<const int> rows) override
    {
        QStringList ids;
        for (int r : rows) ids << QString::number(rowId(r));
        log << "remove " + ids.join(u',');
        return !refuses;
    }
    QMimeData *dragData(std::span<const int> rows) const override
    {
        auto *const mime = new QMimeData;
        mime->setText(QString::number(rows.size()) + " rows");
        return mime;
    }
    bool canDrop(const QMimeData &mime, const DropTarget &target) const override
    {
        return !refuses && mime.hasText() && (target.row >= 0 || target.bandRow >= 0);
    }
    void drop(const QMimeData &mime, const DropTarget &t) override
    {
        const QString place = QString(" row %1 band %2/%3").arg(t.row).arg(t.bandColumn).arg(t.bandRow);
        log << "drop " + mime.text() + place;
    }
    const Record &at(int row) const { return all[size_t(row)]; }
    mutable int painted = 0;
};

/// The lines of a grid as text: "[band]" or the text of `column`, joined by blanks.
inline QString linesOf(const QAbstractItemModel &model, int column)
{
    QStringList lines;
    for (int line = 0; line < model.rowCount(); ++line) {
        const bool band = !(model.flags(model.index(line, 0)) & Qt::ItemIsSelectable);
        const QString text = model.index(line, band ? 0 : column).data().toString();
        lines << (band ? u'[' + text + u']' : text);
    }
    return lines.join(u' ');
}

} // namespace tests
