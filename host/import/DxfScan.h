#pragma once

#include "import/Affine.h"
#include "import/LetteringClues.h"

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

/// A vertex of an old polyline or mesh.
struct PolylineVertex {
    double x = 0, y = 0, z = 0;
    double bulge = 0;
    int flags = 0;
    int face[4] = {};  ///< of a face of a mesh: 1-based vertices, negative = the edge from there is not shown
    bool wide = false;
};

/// How often a kind of object stands in the file.
struct KindCount {
    int total = 0;
    int paper = 0;              ///< of them in paper space
    int invisible = 0;          ///< of those in the model or in blocks
};

/// The plain look at a file: is it a whole drawing, what does its head say, what is in it. Then hands it on
/// in a form that no reader stumbles over: counts that are right, no line too long, no data that belongs to
/// other programs.
class DxfScan {
public:
    using Progress = std::function<bool(double done)>;  ///< false = cancel
    explicit DxfScan(const QString &path);    ///< reads the file; throws DocumentError when it cannot be read
    void run(const Progress &);        ///< throws DocumentError for what is no whole drawing, ImportCancelled

    const QString &path() const { return m_path; }
    QByteArray headerText(const char *variable) const;          ///< empty when the head has no such variable
    double headerNumber(const char *variable, double fallback) const;
    const std::map<std::string, KindCount, std::less<>> &kinds() const { return m_kinds; }
    Vec2 low() const { return m_low; }     ///< extent of nearly all of the model; low > high when it is empty
    Vec2 high() const { return m_high; }
    const LetteringClues &lettering() const { return m_lettering; }
    const std::string &clean() const { return m_clean; }
    std::string_view whole(std::string_view value) const;     ///< a value of clean() as it stands in the file

    /// Vertices of polylines are most of what such files hold, and the reader takes ten times as long for
    /// them: they are not in clean(). The polyline has a group kVertices instead, the index to be asked for.
    static constexpr int kVertices = 1900;
    const std::vector<PolylineVertex> &verticesOf(int polyline) const
    {
        return m_vertices.at(size_t(polyline));
    }

private:
    struct View {
        int code = 0;
        std::string_view value;                 // within m_bytes
    };
    bool next(View &);
    void take(const View &);
    void beginSection(std::string_view name);
    void finishObject();
    void countObject(std::string_view kind);
    void measureObject(std::string_view kind);
    void handOn(std::string_view kind);
    void takeVertex();
    void takeLightVertices();
    void repairCounts();
    void append(const View &);
    void require(bool) const;
    static void measure(std::vector<double> &values, double &low, double &high);
    [[noreturn]] void failJunk() const;

    QString m_path;
    QByteArray m_bytes;
    std::string m_clean;
    qsizetype m_at = 0;
    int m_line = 0;
    std::string m_section, m_variable;
    bool m_sectionOpen = false, m_entities = false, m_ended = false, m_paperBlock = false, m_foreign = false;
    std::vector<View> m_object;                 // the object being read, its kind first
    std::vector<std::string> m_counts;          // repaired ones, while the object is there
    QHash<QByteArray, QByteArray> m_header;
    std::map<std::string, KindCount, std::less<>> m_kinds;
    std::vector<std::string> m_long;
    std::vector<std::vector<PolylineVertex>> m_vertices;
    std::vector<double> m_x, m_y;
    LetteringClues m_lettering;
    Vec2 m_low{1e300, 1e300}, m_high{-1e300, -1e300};
};

bool paperSpaceName(std::string_view block);    ///< "*Paper_Space", "*Paper_Space0", "$PAPER_SPACE"
double numberOfText(std::string_view,
                    double fallback = 0); ///< decimal point whatever the locale; never infinite

inline int wholeOf(double v) { return v > -2e9 && v < 2e9 ? int(v) : 0; }     ///< damaged files hold anything

} // namespace refhost
