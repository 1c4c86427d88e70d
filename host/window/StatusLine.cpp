#include "window/StatusLine.h"

#include "window/DrawingView.h"

#include "facade/services/InterfaceLocale.h"
#include "facade/services/Text.h"

#include <QLabel>
#include <QPainter>
#include <QStatusBar>
#include <QStyle>

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

/// Shortens its text to the room it has.
class HintLabel final : public QLabel {
public:
    using QLabel::QLabel;
protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter p(this);
        const QString fitting = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
        style()->drawItemText(&p, contentsRect(), int(alignment()), palette(), isEnabled(), fitting,
                              foregroundRole());
    }
};

QString shown(double value, int decimals) { return QLocale::c().toString(value, 'f', decimals); }

QString layerText(const Resources &tables)
{
    const ZolWDoc::tLay *const lay = tables.layers.find(tables.currentLayer);
    if (!lay) return txt(Text{30462, u"Nincs aktuális réteg"});
    const QString text = join(Text{30460, u"Réteg: "}, int(lay->gNr), QStringLiteral(" "), lay->Name);
    return lay->Visible ? text : join(text, Text{30461, u" (nem látható)"});
}

} // namespace

StatusLine::StatusLine(QStatusBar &bar)
{
    m_hint = new HintLabel(&bar);
    for (QLabel **label : {&m_layer, &m_place, &m_scale, &m_count}) {
        *label = new QLabel(&bar);
        (*label)->setTextFormat(Qt::PlainText);
        (*label)->setIndent(bar.fontMetrics().averageCharWidth());
    }
    m_hint->setSizePolicy(QSizePolicy::Ignored,
                          QSizePolicy::Preferred); // the first to give way in a narrow window
    m_layer->setObjectName(QStringLiteral("layerStatus"));
    m_count->setObjectName(QStringLiteral("countStatus"));
    bar.addWidget(m_hint, 1);
    for (QLabel *label : {m_layer, m_place, m_scale, m_count}) bar.addPermanentWidget(label);
}

void StatusLine::show(const DrawingView &view)
{
    const Scene &scene = view.scene();
    m_layer->setText(layerText(scene.resources()));
    m_scale->setText(QStringLiteral("1 : ") +
                     interfaceLocale().toString(qRound64(view.viewport().scale())));
    const int chosen = int(view.selection().size());
    m_count->setText(join(interfaceLocale().toString(qlonglong(scene.elements().size())),
                          Text{30464, u" elem"},
                          chosen ? join(Text{30465, u", kijelölve: "}, chosen) : QString()));
}

void StatusLine::showCursor(QPointF world)
{
    m_place->setText(shown(world.x(), 2) + QStringLiteral("; ") + shown(world.y(), 2));
    m_place->setMinimumWidth(
        std::max(m_place->minimumWidth(), m_place->sizeHint().width())); // the bar stands still
}

void StatusLine::showHint(const QString &hint)
{
    m_hint->setText(hint);
    m_hint->setToolTip(hint);
}

} // namespace refhost
