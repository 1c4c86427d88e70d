#include "kit/paper/copySheet.h"

#include "facade/services/Text.h"
#include "kit/paper/Ink.h"

#include <numeric>

namespace QV_DOC_CONTROLS {
namespace {

/// What would end a cell or begin a quotation is quoted, as spreadsheets expect it.
QString quoted(const QString &cell)
{
    const bool breaks = cell.contains(u'\t') || cell.contains(u'\n') || cell.contains(u'\r') || cell.startsWith(u'"');
    if (!breaks) return cell;
    return u'"' + QString(cell).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

QString wordsOf(const SheetSource::Cell &cell)
{
    if (cell.check < 0) return cell.text;
    const QString answer = cell.check > 0 ? txt(Text{3206, u"Igen"}) : txt(Text{3205, u"Nem"});
    return cell.text.isEmpty() ? answer : answer + u' ' + cell.text;
}

QString marked(const QString &text)
{
    return text.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>"));
}

QString styleOf(const SheetSource::Cell &cell, const SheetSource::Column &column)
{
    // A name such as "1-2" must not turn into a date: only what stands on the right is a number.
    const bool number = column.alignment & Qt::AlignRight;
    QString style = number ? QStringLiteral("text-align:right") : QStringLiteral("mso-number-format:'\\@'");
    if (cell.background.isValid()) style += QStringLiteral(";background:") + cell.background.name();
    const QColor wanted = cell.grayed && !cell.background.isValid() ? QColor::fromRgb(kGrayInk) : cell.color;
    const QColor ink = inkOn(cell.background, wanted);
    if (ink != QColor::fromRgb(kInk)) style += QStringLiteral(";color:") + ink.name();
    return style;
}

/// Both forms of the table, grown row by row.
struct Forms {
    explicit Forms(std::vector<SheetSource::Column> all) : columns(std::move(all))
    {
        html = QStringLiteral("<html><head><meta charset=\"utf-8\"></head><body><table border=\"1\"><tr>");
        QStringList captions;
        for (const auto &c : columns) {
            captions << quoted(c.caption);
            html += QStringLiteral("<th>") + marked(c.caption) + QStringLiteral("</th>");
        }
        text = captions.join(u'\t') + u'\n';
        html += QStringLiteral("</tr>\n");
    }
    void addBand(const SheetSource::Row &row)
    {
        const QString title = row.cells.empty() ? QString() : row.cells[0].text;
        text += quoted(title) + QString(std::max(qsizetype(columns.size()) - 1, qsizetype(0)), u'\t') + u'\n';
        html += QStringLiteral("<tr><td colspan=\"%1\" style=\"padding-left:%2em\"><b>").arg(columns.size()).arg(row.level)
              + marked(title) + QStringLiteral("</b></td></tr>\n");
    }
    void addRecord(const SheetSource::Row &row)
    {
        QStringList cells;
        html += QStringLiteral("<tr>");
        for (size_t c = 0; c < columns.size(); ++c) {
            const SheetSource::Cell cell = c < row.cells.size() ? row.cells[c] : SheetSource::Cell{};
            const QString words = wordsOf(cell);
            cells << quoted(words);
            html += QStringLiteral("<td style=\"") + styleOf(cell, columns[c]) + QStringLiteral("\">") + marked(words)
                  + QStringLiteral("</td>");
        }
        text += cells.join(u'\t') + u'\n';
        html += QStringLiteral("</tr>\n");
    }
    std::vector<SheetSource::Column> columns;
    QString text, html;
};

} // namespace

std::unique_ptr<QMimeData> copySheet(const SheetSource &source, std::span<const int> rows)
{
    Forms forms(source.sheetColumns());
    for (int r : rows) {
        const SheetSource::Row row = source.sheetRow(r);
        if (row.level >= 0) forms.addBand(row);
        else forms.addRecord(row);
    }
    auto data = std::make_unique<QMimeData>();
    data->setText(forms.text);
    data->setHtml(forms.html + QStringLiteral("</table></body></html>"));
    return data;
}

std::unique_ptr<QMimeData> copySheet(const SheetSource &source)
{
    std::vector<int> rows(size_t(source.sheetRows()));
    std::iota(rows.begin(), rows.end(), 0);
    return copySheet(source, rows);
}

} // namespace QV_DOC_CONTROLS
