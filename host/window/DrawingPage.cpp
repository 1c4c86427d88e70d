#include "window/DrawingPage.h"

#include <QVBoxLayout>

namespace refhost {
namespace {
Scene sceneOf(SqliteDoc &doc) { return Scene(resourcesOf(doc), doc.elements()); }
} // namespace

DrawingPage::DrawingPage(std::unique_ptr<OpenDrawing> drawing)
    : m_drawing(std::move(drawing)), m_view(new DrawingView(this)), m_edits(*m_view)
{
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_view);
    setFocusProxy(m_view);
    m_soon.setSingleShot(true);
    m_edits.setDrawing(m_drawing.get());
    m_drawing->setWatcher([this] { m_soon.start(0); });
    connect(&m_soon, &QTimer::timeout, this, &DrawingPage::refresh);
    connect(&m_edits, &DrawingEdits::changed, this, &DrawingPage::refresh);
    connect(&m_edits, &DrawingEdits::failed, this, &DrawingPage::failed);
    m_view->setScene(sceneOf(doc()));
    m_view->fitMain();
}

DrawingPage::~DrawingPage()
{
    m_drawing->setWatcher({});
    m_edits.setDrawing(nullptr);
}

void DrawingPage::refresh()
{
    m_soon.stop();
    try {
        m_view->setScene(sceneOf(doc()));
    } catch (const std::exception &e) {
        emit failed(QString::fromUtf8(e.what()));
    }
    emit refreshed();
}

void DrawingPage::refreshIfChanged()
{
    if (m_soon.isActive()) refresh();
}

} // namespace refhost
