#pragma once

#include "import/Affine.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace refhost {

/// One group of a drawing file.
struct DxfPair {
    int code = 0;
    std::string value;
};
using DxfPairs = std::vector<DxfPair>;

/// How often a kind of object stands in the file.
struct KindCount {
    int total = 0;
    int paper = 0;              ///< of them in paper space
    int invisible = 0;          ///< of those in the model or in blocks
};

/// The plain look at a file: is it a whole drawing, what does its head say, what is in it. Then hands it on in a form
/// that no reader stumbles over: counts that are right, no line too long, no data that belongs to other programs.
class DxfScan {
public:
    using Progress = std::function<bool(double done)>;  ///< false = cancel
    explicit DxfScan(const QString &path);      ///< reads the file; throws DocumentError when it cannot be read
    void run(const Progress &);                 ///< throws DocumentError for what is no whole drawing, ImportCancelled

    const QString &path() const { return m_path; }
    QByteArray headerText(const char *variable) const;          ///< empty when the head has no such variable
    double headerNumber(const char *variable, double fallback) const;
    const std::map<std::string, KindCount> &kinds() const { return m_kinds; }
    Vec2 low() const { return m_low; }          ///< extent of the model; low > high when it is empty
    Vec2 high() const { return m_high; }
    const QByteArray &clean() const { return m_clean; }
    std::string_view whole(std::string_view value) const;       ///< a value of clean() as it stands in the file

private:
    bool next(DxfPair &);
    void take(DxfPair &&);
    void finishObject();
    void countObject(const std::string &kind);
    void repairCounts();
    void append(const DxfPair &);
    void require(bool) const;
    [[noreturn]] void failJunk() const;

    QString m_path;
    QByteArray m_bytes, m_clean;
    qsizetype m_at = 0;
    int m_line = 0;
    std::string m_section, m_variable;
    bool m_sectionOpen = false, m_entities = false, m_ended = false, m_paperBlock = false, m_foreign = false;
    DxfPairs m_object;                          // the object being read, its kind first
    QHash<QByteArray, QByteArray> m_header;
    std::map<std::string, KindCount> m_kinds;
    std::vector<std::string> m_long;
    Vec2 m_low{1e300, 1e300}, m_high{-1e300, -1e300};
};

bool paperSpaceName(std::string_view block);    ///< "*Paper_Space", "*Paper_Space0", "$PAPER_SPACE"
double numberOfText(std::string_view, double fallback = 0);     ///< decimal point whatever the locale; never infinite

} // namespace refhost
