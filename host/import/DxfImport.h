#pragma once

#include "document/SqliteDoc.h"
#include "import/Drawing.h"

#include "facade/services/Text.h"

#include <functional>
#include <memory>
#include <span>

namespace refhost {

/// The user broke the import off.
struct ImportCancelled : std::runtime_error {
    ImportCancelled() : std::runtime_error("cancelled") {}
};

struct LengthUnit {
    QV_DOC_CONTROLS::Text name;
    double metres;
    int code;                   ///< as $INSUNITS names it
};
std::span<const LengthUnit> lengthUnits();      ///< for choices; metres first

struct ImportOptions {
    double unitInMetres = 1;    ///< of the file's coordinates
    double scale = 500;         ///< denominator of the drawing scale
};

/// What a file's head and extent say about how to import it.
struct ImportGuess {
    int unit = 0;               ///< index in lengthUnits()
    double scale = 500;
    QString version;            ///< e.g. "AC1021"
    QString codePage;           ///< as the head names it, may be empty
    double width = 0, height = 0;   ///< extent of the drawing, in the file's unit
    int objects = 0;
    QString note; ///< why it is not the unit that the head says, or why to look twice; else empty
    ImportOptions options() const { return {lengthUnits()[size_t(unit)].metres, scale}; }
};

struct ImportReport {
    int elements[6] = {};       ///< per ElementKind
    int layers = 0, lineTypes = 0, textTypes = 0, symbols = 0;
    int inserts = 0, explodedInserts = 0;       ///< blocks shown as symbols, and as plain elements
    int endlessInserts = 0;                     ///< of blocks that contain themselves: left out
    std::vector<KindTally> kinds;               ///< of every kind in the file: the sums are its objects
    struct Row {
        QString text;
        int count = 0;
        bool operator==(const Row &) const = default;
    };
    std::vector<Row> notCarried;                ///< kinds with no counterpart, the most frequent first
    std::vector<Row> notes;                    ///< what the document says less exactly, and what was left out
    int paperSpace = 0;
    int elementCount() const;
    QString text() const;                       ///< the whole report for a message, in the current language
};

/// Imports DXF drawings. First everything is read, then a document is written: a file that cannot be read
/// changes nothing.
class DxfImport {
public:
    /// Told how far it is, 0..1; answers false to break off, which throws ImportCancelled.
    using Progress = std::function<bool(double done)>;

    static ImportGuess guessOf(const QString &path);                      ///< throws DocumentError like parse
    static Drawing parse(const QString &path,
                         const Progress & = {}); ///< DocumentError: one message with a remedy
    /// Into a document as it was created; one command. When it throws, the document is of no use: see into().
    static ImportReport write(const Drawing &, SqliteDoc &, const ImportOptions &, const Progress & = {});
    /// A new document at `target` from the file; when it throws, there is no such document.
    static std::unique_ptr<SqliteDoc> into(const QString &target, const QString &path, const ImportOptions &,
                                           ImportReport &, const Progress & = {});
};

QString kindText(const QString &kind);      ///< what surveyors call a kind of object, in the current language

} // namespace refhost
