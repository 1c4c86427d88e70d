#pragma once

#include "window/DrawingView.h"
#include "window/NewElement.h"
#include "window/OpenDrawing.h"

#include <QObject>
#include <QPointer>

class QLineEdit;

namespace refhost {

/// Places and deletes elements: what the user does in the view becomes records of the document.
class DrawingEdits : public QObject {
    Q_OBJECT
public:
    explicit DrawingEdits(DrawingView &);
    void setDrawing(OpenDrawing *drawing);          ///< the window's; null while there is none
    void setNewElement(const NewElement &attributes) { m_new = attributes; } ///< of what is placed
    void setSymbol(qint16 sidId) { m_symbol = sidId; }       ///< that the symbol tool places; -1 = the first
    std::optional<ZolWDoc::tSid> symbol() const;    ///< the one that is placed; empty = there is none
    void deleteSelected();                          ///< asks with the count
    void selectAll();                               ///< of what is shown
    ZolWDoc::tLayArr layersOfSelection() const;     ///< by number; the current one when nothing is selected
    void selectOn(const ZolWDoc::tLayArr &layers);  ///< what is shown of them
signals:
    void changed();                                 ///< the view needs a new scene
    void failed(const QString &why);
private:
    void place(Element);
    void placeAt(QPointF world);
    void placeSymbol(QPointF world);
    void placeLine(const QList<QPointF> &world);
    void askForText(QPointF world);
    template <class Act> void guarded(Act);
    template <class Wanted> void selectShown(Wanted);
    DrawingView &m_view;
    OpenDrawing *m_drawing = nullptr;
    NewElement m_new;
    qint16 m_symbol = -1;
    QPointer<QLineEdit> m_entry;                    ///< open while a text is typed
};

} // namespace refhost
