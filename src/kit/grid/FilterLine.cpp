#include "kit/grid/FilterLine.h"

#include "facade/services/Text.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

namespace QV_DOC_CONTROLS {

FilterLine::FilterLine(QWidget *parent)
    : QWidget(parent), m_edit(new QLineEdit(this)), m_count(new QLabel(this))
{
    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addWidget(m_edit, 1);
    row->addWidget(m_count);
    m_count->setIndent(m_count->fontMetrics().horizontalAdvance(u' '));
    m_count->setContentsMargins(0, 0, m_count->indent(), 0);
    m_edit->setClearButtonEnabled(true);
    m_edit->installEventFilter(this);
    setFocusProxy(m_edit);
    connect(m_edit, &QLineEdit::textChanged, this, &FilterLine::changed);
    retranslate({});
}

QString FilterLine::text() const { return m_edit->text(); }
void FilterLine::clear() { m_edit->clear(); }

void FilterLine::setCounts(int shown, int all, int hiddenSelected)
{
    m_shown = shown, m_all = all, m_hidden = hiddenSelected;
    QString said = m_locale.toString(all);
    if (!text().isEmpty()) said = m_locale.toString(shown) + QStringLiteral(" / ") + said;
    if (hiddenSelected > 0)
        said += QStringLiteral("  (")
                + join(Text{21030, u"rejtett kijelölt sorok: "}, m_locale.toString(hiddenSelected)) + u')';
    m_count->setText(said);
}

void FilterLine::retranslate(const QLocale &locale)
{
    m_locale = locale;
    const QString name = txt(Text{21031, u"Szűrés (Ctrl+F)"});
    m_edit->setPlaceholderText(name);
    m_edit->setAccessibleName(name);
    m_edit->setToolTip(
        txt(Text{21032, u"szó szó: mind szerepel\n-szó: nem szerepel\noszlop:szó: abban az oszlopban\n"
                        u"\"két szó\": együtt\n* és ?: helyettesítő jelek, a teljes cellára"}));
    m_edit->setAccessibleDescription(m_edit->toolTip());
    m_count->setAccessibleName(txt(Text{21033, u"Látható sorok"}));
    setCounts(m_shown, m_all, m_hidden);
}

bool FilterLine::isTaken(int key)
{
    switch (key) {
    case Qt::Key_Escape:
        if (!text().isEmpty()) return clear(), true;
        [[fallthrough]];
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down: return emit gridAsked(), true;
    default: return false;
    }
}

bool FilterLine::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) emit focused();
    const int key = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride
        ? static_cast<QKeyEvent *>(event)->key() : 0;
    if (key == Qt::Key_Escape && event->type() == QEvent::ShortcutOverride) return event->accept(), true;
    if (event->type() == QEvent::KeyPress && isTaken(key)) return true;
    return QWidget::eventFilter(watched, event);
}

} // namespace QV_DOC_CONTROLS
