#pragma once

#include "facade/services/Trace.h"
#include "facade/services/Text.h"
#include "kit/paper/SheetPainter.h"
#include "kit/tools/ToolSet.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QPrinter;
class QPushButton;
class QSpinBox;
class QToolBar;

namespace QV_DOC_CONTROLS {

class SheetPreview;

/// The print preview of a grid: its pages as they will be printed, with page setup, print and PDF. Changes
/// nothing in the grid. Made anew for every call.
class frmPreview final : public QDialog {
    Q_OBJECT
public:
    using Titles = std::function<SheetTitles()>; ///< asked again after a language change
    frmPreview();
    ~frmPreview() override;

    /// Modal. The grid's rows stay as they are meanwhile. `owner` null = the active window.
    void showPages(const SheetSource &grid, Titles titles, QWidget *owner);

    qint32 lDebugId() const { return m_identity; }
    void TearDown();                            ///< lets go of the grid; may be repeated
    void ml_RuntimeSupport_LanguageChanged();   // published spelling

    SheetPreview *const grPrev;                 // published name

protected:
    void keyPressEvent(QKeyEvent *) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void build();
    void buildBar();
    void connectAll();
    void retranslate();
    void fillZooms();
    void layOutSheet();
    void followPage(int page);
    void pageSetup();
    void print();
    void printOn(QPrinter &printer);
    void askPdf();
    void writePdf(const SheetPainter &sheet, const QString &path);
    void nextPage();
    void previousPage();
    bool hasNextPage() const;
    bool hasPreviousPage() const;
    QString proposedPdf() const;

    DebugIdentity m_identity{"frmPreview"};
    const SheetSource *m_grid = nullptr;        ///< the caller's, until TearDown()
    Titles m_titles;
    QPageLayout m_paper;
    std::unique_ptr<SheetPainter> m_sheet;
    ToolSet m_tools;
    QToolBar *m_bar;
    QLabel *m_pageLabel, *m_zoomLabel, *m_note;
    QSpinBox *m_page;
    QComboBox *m_zoom;
    QPushButton *m_close;
};

} // namespace QV_DOC_CONTROLS
