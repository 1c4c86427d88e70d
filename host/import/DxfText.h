#pragma once

#include <QByteArray>
#include <QString>

#include <string_view>

namespace refhost {

/// The letters of a file: by its head's code page before AC1021, UTF-8 from then on; "\U+XXXX" and "\M+nXXXX"
/// anywhere.
class DxfLetters {
public:
    DxfLetters() : DxfLetters("", "") {}
    DxfLetters(const QByteArray &version, const QByteArray &codePage);
    QString operator()(std::string_view bytes) const;
    QString ofCode(int code) const;             ///< the letter of a "%%nnn" code
    int charSet() const { return m_charSet; }   ///< character set number of the code page
private:
    QByteArray m_page = "windows-1252";
    bool m_utf8 = false;
    int m_charSet = 0;
};

/// A text without its control codes. What holds for the whole of it is kept; what changes within is not.
struct PlainText {
    QString text;               ///< rows are separated by '\n'
    QString face;               ///< empty = the style's
    bool underline = false, italic = false, bold = false;
    double heightFactor = 1;    ///< on the text's own height
    double height = 0;          ///< instead of the text's own; 0 = none
    double width = 0;           ///< instead of the style's width factor; 0 = none
    int color = -1;             ///< colour index, -1 = none
    bool changes = false;       ///< the look changes within the text
};
PlainText plainOfText(const QString &raw, const DxfLetters &);      ///< of a single-row text
PlainText plainOfMText(const QString &raw, const DxfLetters &);     ///< of a text with rows and formats

/// Breaks rows that are longer than `width` between words. Widths of letters are estimates: no font is asked.
QString wrapped(const QString &text, double width, double letterHeight);

} // namespace refhost
