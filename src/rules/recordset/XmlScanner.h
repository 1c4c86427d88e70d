#pragma once

#include <QString>

#include <vector>

namespace QV_DOC_CONTROLS {

/// What stops the scanner; `at` counts letters from the start.
struct XmlFault {
    enum class What { Markup, CutShort } what;
    qsizetype at;
};

/// The start tags and end tags of a text, one after the other, with their namespaces told apart.
///
/// More lenient than XML, as the files of old programs need it: values keep their line breaks and control
/// letters, and only tags are looked at. Time and memory grow with the text, nesting costs no stack.
/// Everything it hands out are views of the text. Throws XmlFault.
class XmlScanner {
public:
    enum class Space : quint8 { None, Schema, Types, Rowset, Row, Other };
    struct Attribute {
        Space space;
        bool hasReferences;
        QStringView prefix, name, raw; ///< the value as it stands, references unresolved
        qsizetype at;
    };
    struct Tag {
        enum class Kind : quint8 { Start, End, Finished } kind = Kind::Finished;
        bool isEmpty = false; ///< a start tag that is its own end
        Space space = Space::None;
        QStringView name;
        qsizetype at = 0;
        bool is(Space s, QStringView n) const { return space == s && name == n; }
    };
    explicit XmlScanner(QStringView text) : m_text(text) {}

    const Tag &next();
    const Tag &tag() const { return m_tag; }                                  ///< the last one
    const std::vector<Attribute> &attributes() const { return m_attributes; } ///< of the last start tag
    void skip(); ///< the content of the last start tag, its end tag included

    /// Calls visit() for every element in the one whose start tag came last; what visit() returns false for
    /// is skipped.
    template <class Visit> void forEachChild(Visit visit)
    {
        if (m_tag.isEmpty) return;
        while (next().kind == Tag::Kind::Start)
            if (!visit(m_tag)) skip();
    }

private:
    struct Binding {
        QStringView prefix;
        Space space;
        size_t depth;
    };
    struct Name {
        QStringView whole, prefix, local;
    };
    bool has(QStringView what) const { return m_text.sliced(m_at).startsWith(what); }
    char16_t peek() const { return m_at < m_text.size() ? m_text[m_at].unicode() : cutShort(); }
    [[noreturn]] char16_t cutShort() const;
    QStringView until(QStringView mark); ///< what stands before the mark; goes behind it
    void skipBlanks();
    void skipDeclaration();
    Name name();
    std::pair<QStringView, bool> value(); ///< in quotes; with references
    void startTag();
    void endTag();
    void attribute();
    void bindPrefixes();
    Space spaceOf(QStringView prefix, bool isElement) const;

    QStringView m_text;
    qsizetype m_at = 0;
    Tag m_tag;
    std::vector<Attribute> m_attributes;
    bool m_bindsPrefixes = false;    ///< an attribute of the last start tag does
    std::vector<QStringView> m_open; ///< qualified names
    std::vector<Binding> m_bindings;
};

} // namespace QV_DOC_CONTROLS
