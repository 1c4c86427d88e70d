#include "qvres/CsvTable.h"

#include "facade/services/Text.h"

#include <QStringConverter>

namespace qvres {

using QV_DOC_CONTROLS::join;
using QV_DOC_CONTROLS::Text;
using QV_DOC_CONTROLS::txt;

namespace {

QString quoted(QString text) { return u'"' + text.replace(u'"', QStringLiteral("\"\"")) + u'"'; }

Cell bareCell(const QString &text)
{
    if (text.isEmpty()) return {};
    if (text.compare(u"true", Qt::CaseInsensitive) == 0) return Cell::ofBoolean(true);
    if (text.compare(u"false", Qt::CaseInsensitive) == 0) return Cell::ofBoolean(false);
    const QString trimmed = text.trimmed();
    return isNumber(trimmed) ? Cell::ofNumber(trimmed) : Cell::ofText(text);
}

/// Takes fields off the front of the text.
class Fields {
public:
    explicit Fields(QString text) : m_text(std::move(text)) { m_separator = separatorIn(m_text); }
    bool atEnd() const { return m_at >= m_text.size(); }
    int line() const { return m_line; }
    std::vector<Cell> row()
    {
        std::vector<Cell> cells;
        ++m_line;
        for (;;) {
            cells.push_back(field());
            if (atEnd() || m_text[m_at] != m_separator) break;
            ++m_at;
        }
        if (!atEnd() && m_text[m_at] == u'\r') ++m_at;
        if (!atEnd() && m_text[m_at] != u'\n')
            throw Failure(join(Text{31108, u"Hibás CSV: idézőjel után más betű áll. Sor: "}, m_line));
        ++m_at;
        return cells;
    }

private:
    static QChar separatorIn(const QString &text)
    {
        const QString head = text.left(text.indexOf(u'\n'));
        QChar best = u',';
        for (const QChar c : {QChar(u';'), QChar(u'\t')})
            if (head.count(c) > head.count(best)) best = c;
        return best;
    }
    Cell field()
    {
        if (!atEnd() && m_text[m_at] == u'"') return quotedField();
        const qsizetype from = m_at;
        while (!atEnd() && m_text[m_at] != m_separator && m_text[m_at] != u'\n' && m_text[m_at] != u'\r')
            ++m_at;
        return bareCell(m_text.sliced(from, m_at - from));
    }
    Cell quotedField()
    {
        QString text;
        for (++m_at; !atEnd(); ++m_at) {
            if (m_text[m_at] == u'\n') ++m_line;
            if (m_text[m_at] == u'"') {
                if (m_at + 1 >= m_text.size() || m_text[m_at + 1] != u'"') return ++m_at, Cell::ofText(text);
                ++m_at;
            }
            text += m_text[m_at];
        }
        throw Failure(join(Text{31109, u"Hibás CSV: az idézőjel nincs lezárva. Sor: "}, m_line));
    }
    QString m_text;
    QChar m_separator;
    qsizetype m_at = 0;
    int m_line = 0;
};

} // namespace

QByteArray csvOf(const Table &table)
{
    checkNames(table.columns);
    QStringList lines, head;
    for (const QString &column : table.columns) head << quoted(column);
    lines << head.join(u',');
    for (const auto &cells : table.rows) {
        QStringList row;
        for (const Cell &c : cells) row << (c.kind == Cell::Kind::Text ? quoted(c.text) : c.text);
        lines << row.join(u',');
    }
    return lines.join(QStringLiteral("\r\n")).toUtf8() + "\r\n";
}

Table tableOfCsv(const QByteArray &csv)
{
    QStringDecoder decoder(QStringDecoder::Utf8); // takes a mark at the start away
    Fields fields(decoder(csv));
    if (decoder.hasError()) throw Failure(txt(Text{31110, u"A CSV-fájl nem UTF-8 kódolású."}));
    Table table;
    if (fields.atEnd()) return table;
    for (const Cell &c : fields.row()) table.columns << c.text;
    checkNames(table.columns);
    while (!fields.atEnd()) {
        checkSize(table.rows.size() + 1, size_t(table.columns.size()));
        auto row = fields.row();
        if (row.size() != size_t(table.columns.size()))
            throw Failure(
                join(Text{31111, u"A CSV-fájl egy sorában nem annyi érték van, ahány oszlop. Sor: "},
                     fields.line()));
        table.rows.push_back(std::move(row));
    }
    return table;
}

} // namespace qvres
