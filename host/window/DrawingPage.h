#pragma once

#include "window/DrawingEdits.h"

#include <QTimer>

namespace refhost {

/// One open drawing: its document, its view, and what the user does in it. The view shows what is written to
/// the document, whoever writes it, as soon as the program is at rest.
class DrawingPage : public QWidget {
    Q_OBJECT
public:
    explicit DrawingPage(std::unique_ptr<OpenDrawing>); ///< throws when the document cannot be read
    ~DrawingPage() override;
    OpenDrawing &drawing() { return *m_drawing; }
    SqliteDoc &doc() { return m_drawing->doc(); }
    DrawingView &view() { return *m_view; }
    DrawingEdits &edits() { return m_edits; }
    void refresh();                                 ///< reads the document anew, at once
    void refreshIfChanged();
signals:
    void refreshed();
    void failed(const QString &why);
private:
    std::unique_ptr<OpenDrawing> m_drawing;
    DrawingView *m_view;
    DrawingEdits m_edits;
    QTimer m_soon;                                  ///< runs while a change is not shown yet
};

} // namespace refhost
