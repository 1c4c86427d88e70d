#pragma once

#include "import/Placing.h"
#include "import/RecordsOfDrawing.h"

#include <map>

namespace refhost {

/// Writes a drawing into a document as it was created. Made for one run.
class DrawingWriter {
public:
    DrawingWriter(const Drawing &, SqliteDoc &, const ImportOptions &);
    void run(const DxfImport::Progress &);
    const ImportReport &report() const { return m_report; }
private:
    /// What decides whether a layer's elements can follow it.
    struct LayerUse {
        bool linesFollow = true, textsFollow = true;
        std::map<int, int> textTypes;           // how many texts of each text style
    };
    void writeLineTypes();
    void writeTextTypes();
    void writeLayers();
    void writeSymbols();
    bool writeSymbol(int block, const QString &group, FreeNames &);
    void take(Placed &&);
    void flush();
    void finishLayers();
    void finishReport(const Placing &);
    qint16 lineTypeOf(const Pen &);
    qint16 lineTypeId(int type, double scale);
    Element elementOf(Placed &&);
    void noteUse(const Placed &, const Element &);

    const Drawing &m_drawing;
    SqliteDoc &m_doc;
    ImportOptions m_options;
    PaperScale m_paper;
    BlockSymbols m_blocks;
    ImportReport m_report;
    int m_losses[int(Loss::Count)];
    std::vector<qint16> m_lineTypes, m_textTypes, m_layers, m_symbols;
    std::vector<bool> m_hasSymbol;
    std::map<std::pair<int, double>, qint16> m_scaledTypes;
    FreeNames m_lineTypeNames{255};
    std::vector<LayerUse> m_uses;
    std::vector<Element> m_waiting;
};

/// The report's words.
void nameRows(ImportReport &, const int (&losses)[int(Loss::Count)]);

} // namespace refhost
