#include "window/DrawingEdits.h"

#include "facade/services/Prompts.h"
#include "facade/services/Text.h"

#include <QKeyEvent>
#include <QLineEdit>

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

constexpr int kBaseline = 24; // text-align flag
constexpr int kManyCopies = 20; // of a new element: more are asked for

/// One line that is typed in the drawing; Esc and leaving it empty place nothing.
class TextEntry final : public QLineEdit {
public:
    using QLineEdit::QLineEdit;
protected:
    void keyPressEvent(QKeyEvent *e) override
    {
        if (e->key() == Qt::Key_Escape) {
            clear();
            clearFocus();
            return deleteLater();
        }
        QLineEdit::keyPressEvent(e);
        e->accept(); // the drawing's own keys stay out of the text
    }
};

} // namespace

DrawingEdits::DrawingEdits(DrawingView &view) : QObject(&view), m_view(view)
{
    connect(&view, &DrawingView::pointGiven, this, &DrawingEdits::placeAt);
    connect(&view, &DrawingView::lineGiven, this, &DrawingEdits::placeLine);
    connect(&view, &DrawingView::deleteWanted, this, &DrawingEdits::deleteSelected);
    connect(&view, &DrawingView::viewChanged, this, [this] { delete m_entry; }); // its place has moved away
}

void DrawingEdits::setDrawing(OpenDrawing *drawing)
{
    delete m_entry;
    m_drawing = drawing;
}

template <class Act> void DrawingEdits::guarded(Act act)
{
    if (!m_drawing) return;
    try {
        act();
    } catch (const std::exception &e) {
        emit failed(QString::fromUtf8(e.what()));
    }
}

void DrawingEdits::place(Element e)
{
    const int copies = int(m_new.layers.size());
    const QString question =
        join(Text{30623, u"Ennyi rétegre kerül egy-egy példány: "}, copies, Text{30624, u". Elhelyezed?"});
    if (copies > kManyCopies &&
        !prompts().yesNo({Icon::Question, txt(Text{30622, u"Új elem"}), question}, &m_view))
        return;
    guarded([&] {
        addNew(m_drawing->doc(), std::move(e), m_new);
        m_drawing->touch();
        emit changed();
    });
}

void DrawingEdits::placeAt(QPointF world)
{
    if (m_view.tool() == DrawingView::Tool::Text) return askForText(world);
    if (m_view.tool() == DrawingView::Tool::Symbol) return placeSymbol(world);
    place({.kind = ElementKind::Point, .vertices = {{world.x(), world.y()}}});
}

std::optional<ZolWDoc::tSid> DrawingEdits::symbol() const
{
    if (!m_drawing) return {};
    const ZolWDoc::SymbolRole &symbols = m_drawing->doc().symbols();
    if (auto chosen = symbols.find(m_symbol)) return chosen;
    const auto all = symbols.readAll();
    return all.empty() ? std::nullopt : std::optional(all.front());
}

void DrawingEdits::placeSymbol(QPointF world)
{
    guarded([&] {
        if (const auto s = symbol())
            place({.kind = ElementKind::Symbol, .sidId = s->SidId, .vertices = {{world.x(), world.y()}}});
    });
}

void DrawingEdits::placeLine(const QList<QPointF> &world)
{
    Element e{.kind = ElementKind::Line};
    for (const QPointF &p : world)
        if (e.vertices.empty() || QPointF(e.vertices.back().x, e.vertices.back().y) != p)
            e.vertices.push_back({p.x(), p.y()});
    if (e.vertices.size() > 1) place(std::move(e));
}

void DrawingEdits::askForText(QPointF world)
{
    delete m_entry;
    auto *const entry = new TextEntry(&m_view);
    m_entry = entry;
    entry->setObjectName(QStringLiteral("textEntry"));
    entry->setPlaceholderText(txt(Text{30505, u"A felirat szövege"}));
    entry->setAccessibleName(entry->placeholderText());
    entry->resize(entry->sizeHint());
    const QPoint at = m_view.toScreen(world).toPoint();
    entry->move(std::clamp(at.x(), 0, std::max(0, m_view.width() - entry->width())),
                std::clamp(at.y() - entry->height(), 0, std::max(0, m_view.height() - entry->height())));
    connect(entry, &QLineEdit::editingFinished, this, [this, entry, world] { // Enter, or going elsewhere
        const QString text = entry->text();
        entry->disconnect(this);
        entry->deleteLater();
        m_view.setFocus();
        if (!text.trimmed().isEmpty())
            place({.kind = ElementKind::Text,
                   .vertices = {{world.x(), world.y()}},
                   .align = kBaseline,
                   .text = text});
    });
    entry->show();
    entry->setFocus();
}

void DrawingEdits::deleteSelected()
{
    const std::vector<int> chosen = m_view.selection();
    if (chosen.empty()) return;
    const QString question = join(Text{30486, u"A kijelölt elemek száma: "}, int(chosen.size()),
                                  Text{30487, u". Törlöd őket? A törlés nem vonható vissza."});
    if (!prompts().yesNo({Icon::Question, txt(Text{30485, u"Elemek törlése"}), question}, &m_view)) return;
    guarded([&] {
        std::vector<qint64> ids;
        for (int i : chosen) ids.push_back(m_view.scene().elements()[size_t(i)].id);
        m_drawing->doc().removeElements(ids);
        m_drawing->touch();
        emit changed();
    });
}

template <class Wanted> void DrawingEdits::selectShown(Wanted wanted)
{
    const Scene &scene = m_view.scene();
    std::vector<int> shown;
    for (size_t i = 0; i < scene.elements().size(); ++i) {
        const qint16 layer = scene.elements()[i].layId;
        if (wanted(layer) && scene.shown(scene.resources().layers.indexOf(layer))) shown.push_back(int(i));
    }
    m_view.select(std::move(shown));
}

void DrawingEdits::selectAll()
{
    selectShown([](qint16) { return true; });
}

void DrawingEdits::selectOn(const ZolWDoc::tLayArr &layers)
{
    QSet<qint16> wanted;
    for (const ZolWDoc::tLay &lay : layers) wanted.insert(lay.LayId);
    selectShown([&wanted](qint16 layer) { return wanted.contains(layer); });
}

ZolWDoc::tLayArr DrawingEdits::layersOfSelection() const
{
    const Scene &scene = m_view.scene();
    QSet<qint16> wanted;
    for (int i : m_view.selection()) wanted.insert(scene.elements()[size_t(i)].layId);
    if (m_view.selection().empty()) wanted.insert(scene.resources().currentLayer);
    ZolWDoc::tLayArr layers;
    for (const ZolWDoc::tLay &lay : scene.resources().layers.rows())
        if (wanted.contains(lay.LayId)) layers.push_back(lay);
    return layers;
}

} // namespace refhost
