#include "rules/recordset/RecordsetXml.h"

namespace QV_DOC_CONTROLS {
namespace {

constexpr qsizetype kFullLine = 105; ///< bytes after which the next attribute gets a new line

const char *escaped(char16_t c)
{
    switch (c) {
    case u'"': return "&#x22;";
    case u'&': return "&#x26;";
    case u'\'': return "&#x27;";
    case u'<': return "&#x3c;";
    case u'>': return "&#x3e;";
    default: return nullptr;
    }
}

/// Appends lines; a tag breaks before the attribute that follows a full line.
class Lines {
public:
    void line(int tabs, const char *text) { bytes.append(tabs, '\t').append(text).append("\r\n"); }
    void startTag(int tabs, const QByteArray &name, int continued)
    {
        bytes.append(tabs, '\t');
        m_lineStart = bytes.size();
        m_continued = continued;
        bytes.append('<').append(name);
    }
    void attribute(const QByteArray &name, QStringView value)
    {
        if (bytes.size() - m_lineStart >= kFullLine) {
            bytes.append("\r\n").append(m_continued, '\t');
            m_lineStart = bytes.size(); // the tabs are not counted
        }
        bytes.append(' ').append(name).append("='");
        text(value);
        bytes.append('\'');
    }
    void attributes(const std::vector<RecordsetAttribute> &all)
    {
        for (const RecordsetAttribute &a : all) attribute(a.name.toUtf8(), a.value);
    }
    void end(const char *mark) { bytes.append(mark).append("\r\n"); }

    QByteArray bytes;

private:
    void text(QStringView value)
    {
        qsizetype plain = 0; // start of what has not been written yet
        for (qsizetype i = 0; i < value.size(); ++i) {
            const char *const reference = escaped(value[i].unicode());
            if (!reference) continue;
            run(value.sliced(plain, i - plain));
            bytes.append(reference);
            plain = i + 1;
        }
        run(value.sliced(plain));
    }
    void run(QStringView part)
    {
        const qsizetype from = bytes.size();
        bytes.resize(from + part.size());
        char *out = bytes.data() + from;
        for (const QChar c : part) {
            if (c.unicode() >= 0x80) { // rare: encoded as a whole
                bytes.truncate(from);
                bytes.append(part.toUtf8());
                return;
            }
            *out++ = char(c.unicode());
        }
    }
    qsizetype m_lineStart = 0;
    int m_continued = 0;
};

void writeColumn(Lines &out, const RecordsetField &field)
{
    out.startTag(2, "s:AttributeType", 3);
    out.attributes(field.column);
    if (field.datatype.empty()) return out.end("/>");
    out.end(">");
    out.startTag(3, "s:datatype", 3);
    out.attributes(field.datatype);
    out.end("/>");
    out.line(2, "</s:AttributeType>");
}

void writeSchema(Lines &out, const Recordset &set)
{
    out.line(0, "<s:Schema id='RowsetSchema'>");
    out.startTag(1, "s:ElementType", 2);
    out.attribute("name", set.rowName);
    out.attributes(set.rowDescription);
    out.end(">");
    for (const RecordsetField &f : set.fields()) writeColumn(out, f);
    out.line(2, "<s:extends type='rs:rowbase'/>");
    out.line(1, "</s:ElementType>");
    out.line(0, "</s:Schema>");
}

class Rows {
public:
    Rows(Lines &out, const Recordset &set) : m_out(out), m_set(set), m_name("z:" + set.rowName.toUtf8())
    {
        for (const RecordsetField &f : set.fields()) m_names.push_back(f.xmlName.toUtf8());
    }
    /// False = there is none in that state.
    bool write(Recordset::RowState state, int tabs, const char *before = nullptr)
    {
        bool any = false;
        for (int r = 0; r < m_set.rowCount(); ++r) {
            if (m_set.state(r) != state) continue;
            if (!any && before) m_out.line(1, before);
            any = true;
            row(r, tabs);
        }
        return any;
    }

private:
    void row(int r, int tabs)
    {
        QString nulls;
        m_out.startTag(tabs, m_name, tabs + 1);
        for (int i = 0; i < m_set.valueCount(r); ++i) {
            const int f = m_set.fieldOfValue(r, i);
            if (m_set.isForcedNull(r, f))
                nulls += m_set.fields()[size_t(f)].xmlName + u' ';
            else
                m_out.attribute(m_names[size_t(f)], m_set.text(r, f));
        }
        if (!nulls.isEmpty()) m_out.attribute("rs:forcenull", QStringView(nulls).chopped(1));
        m_out.end("/>");
    }
    Lines &m_out;
    const Recordset &m_set;
    QByteArray m_name;
    std::vector<QByteArray> m_names;
};

} // namespace

QByteArray bytesOf(const Recordset &recordset)
{
    Lines out;
    out.line(0, "<xml xmlns:s='uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882'");
    out.line(1, "xmlns:dt='uuid:C2F41010-65B3-11d1-A29F-00AA00C14882'");
    out.line(1, "xmlns:rs='urn:schemas-microsoft-com:rowset'");
    out.line(1, "xmlns:z='#RowsetSchema'>");
    writeSchema(out, recordset);
    out.line(0, "<rs:data>");
    Rows rows(out, recordset);
    rows.write(Recordset::RowState::Unchanged, 1);
    if (rows.write(Recordset::RowState::Inserted, 2, "<rs:insert>")) out.line(1, "</rs:insert>");
    out.line(0, "</rs:data>");
    out.bytes.append("</xml>"); // no line end behind it
    return std::move(out.bytes);
}

} // namespace QV_DOC_CONTROLS
