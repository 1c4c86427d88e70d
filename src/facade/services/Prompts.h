#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

class QObject;

namespace QV_DOC_CONTROLS {

enum class Icon { None, Information, Exclamation, Question, Critical };

struct Message {
    Icon icon = Icon::None;
    QString title, text;
    bool operator==(const Message &) const = default;
};
/// One of several things.
struct Choice {
    QString title, text;
    QStringList items;
    int preset = 0;                             ///< index of the item offered first; the nearest when outside
};
/// A line of text.
struct TextQuestion {
    QString title, text;
    QString preset;                             ///< proposed answer
    QStringList items;                          ///< offered in a drop-down beside typing; none = a plain line
};
/// One number of a question.
struct NumberField {
    QString label;
    double preset = 0;                          ///< proposed answer; shown rounded to the decimals
    double min = 0, max = 0;                    ///< both included
    int decimals = 0;                           ///< 0 = whole numbers only
    QString unit;                               ///< shown behind the number, e.g. "mm"
    std::vector<double> presets;                ///< offered in a drop-down beside typing
};
struct NumberQuestion {
    QString title, text;
    std::vector<NumberField> fields;            ///< one or two
};
/// One pen of a palette.
struct ColorIndexQuestion {
    QString title, text;
    int preset = 0;                             ///< index offered first; outside the palette = none is chosen
    std::vector<quint32> palette;               ///< 0xRRGGBB by index, at most 256
};
enum class AllYesNo { All, Yes, No };
/// What a command did, line by line.
struct Report {
    QString title, text;
    QStringList lines;                          ///< may be thousands; read only, can be copied
};
struct FileQuestion {
    QString title;
    QString filter;                             ///< "name|pattern|name|pattern"
    QString path;                               ///< file or folder proposed
    QString suffix;                             ///< added when the user types none, e.g. "z3l"
};

/// The only door to the user: every message, question, prompt and file choice. The product puts boxes behind
/// it, tests a script. `asker` is the window (or a widget in it) that the box belongs to; null = the active
/// window. Enter says yes to a question, or the last answer where the icon warns; in allYesNo always No.
struct Prompts {
    virtual ~Prompts() = default;
    virtual void tell(const Message &, QObject *asker = nullptr) = 0;
    virtual void alert() {}                     ///< the system's sound: a key was refused
    virtual void show(const Report &, QObject *asker = nullptr) = 0;
    virtual bool yesNo(const Message &, QObject *asker = nullptr) = 0;             ///< closing the box is No
    virtual AllYesNo allYesNo(const Message &, QObject *asker = nullptr) = 0;      ///< closing the box is No
    virtual std::optional<bool> yesNoCancel(const Message &,
                                            QObject *asker = nullptr) = 0;         ///< empty = cancelled
    virtual std::optional<int> choose(const Choice &, QObject *asker = nullptr) = 0; ///< empty = cancelled
    virtual std::optional<QString> text(const TextQuestion &,
                                        QObject *asker = nullptr) = 0;             ///< empty = cancelled
    virtual std::optional<std::vector<double>> numbers(const NumberQuestion &,
                                                       QObject *asker = nullptr) = 0; ///< empty = cancelled
    virtual std::optional<int> colorIndex(const ColorIndexQuestion &,
                                          QObject *asker = nullptr) = 0;           ///< empty = cancelled
    virtual QString openFile(const FileQuestion &, QObject *asker = nullptr) = 0;  ///< empty = cancelled
    virtual QString saveFile(const FileQuestion &,
                             QObject *asker = nullptr) = 0; ///< empty = cancelled; asks before replacing
};

Prompts &prompts();
Prompts *setPrompts(Prompts *);                 ///< null = the library's boxes; returns what was set before
void setDefaultPrompts(Prompts &(*make)());     ///< who makes the library's boxes; called once, at load

} // namespace QV_DOC_CONTROLS
