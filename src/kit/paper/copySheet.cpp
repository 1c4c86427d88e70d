#include "kit/paper/copySheet.h"

#include "facade/services/Text.h"
#include "kit/paper/Ink.h"

#include <numeric>

namespace QV_DOC_CONTROLS {
namespace {

/// What would end a cell or begin a quotation is quoted, as spreadsheets expect it.
QString quoted(const QString &cell)
{
    const auto ends = [](QChar c) { return c == u'\t' || c == u'\n' || c == u'\r'; };
    const bool breaks = cell.startsWith(u'"') || std::ranges::any_of(cell, ends);
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
    return text.toHtmlEscaped().replace(u'\n', QLatin1String("<br>"));
}

void addStyle(QString &to, const SheetSource::Cell &cell, const SheetSource::Column &column)
{
    // A name such as "1-2" must not turn into a date: only what stands on the right is a number.
    const bool number = column.alignment & Qt::AlignRight;
    to += number ? QLatin1String("text-align:right") : QLatin1String("mso-number-format:'\\@'");
    if (cell.background.isValid()) (to += QLatin1String(";background:")) += cell.background.name();
    const QColor wanted = cell.grayed && !cell.background.isValid() ? QColor::fromRgb(kGrayInk) : cell.color;
    const QColor ink = inkOn(cell.background, wanted);
    if (ink != QColor::fromRgb(kInk)) (to += QLatin1String(";color:")) += ink.name();
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
        html += QStringLiteral("<tr><td colspan=\"%1\" style=\"padding-left:%2em\"><b>")
                    .arg(columns.size())
                    .arg(row.level)
                + marked(title) + QStringLiteral("</b></td></tr>\n");
    }
    void addRecord(const SheetSource::Row &row)
    {
        html += QLatin1String("<tr>");
        for (size_t c = 0; c < columns.size(); ++c) {
            const SheetSource::Cell &cell = c < row.cells.size() ? row.cells[c] : none;
            const QString words = wordsOf(cell);
            if (c > 0) text += u'\t';
            text += quoted(words);
            html += QLatin1String("<td style=\"");
            addStyle(html, cell, columns[c]);
            html += QLatin1String("\">");
            html += marked(words);
            html += QLatin1String("</td>");
        }
        text += u'\n';
        html += QLatin1String("</tr>\n");
    }
    const SheetSource::Cell none;           ///< where a row is shorter than the table
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
