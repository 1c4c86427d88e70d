#include "ControlPlugin.h"

#include "ControlRows.h"

#include "controls/DesignMode.h"
#include "facade/services/Language.h"
#include "kit/tools/Icons.h"

#include <QCoreApplication>
#include <QLocale>
#include <QWidget>
#include <QXmlStreamWriter>

namespace QV_DOC_CONTROLS {
namespace {

/// Asked by name, so that a program that loads forms needs no designer.
bool standsOnDesignedForm(const QWidget &control)
{
    for (const QWidget *w = control.parentWidget(); w; w = w->parentWidget())
        if (w->inherits("QDesignerFormWindowInterface")) return true;
    return false;
}

int languageOf(QLocale::Language language)
{
    switch (language) {
    case QLocale::Hungarian: return Hungarian;
    case QLocale::Romanian: return Romanian;
    case QLocale::Vietnamese: return Vietnamese;
    default: return English;
    }
}

void writeGeometry(QXmlStreamWriter &xml, const QSize &size)
{
    xml.writeStartElement(QStringLiteral("property"));
    xml.writeAttribute(QStringLiteral("name"), QStringLiteral("geometry"));
    xml.writeStartElement(QStringLiteral("rect"));
    xml.writeTextElement(QStringLiteral("x"), QStringLiteral("0"));
    xml.writeTextElement(QStringLiteral("y"), QStringLiteral("0"));
    xml.writeTextElement(QStringLiteral("width"), QString::number(size.width()));
    xml.writeTextElement(QStringLiteral("height"), QString::number(size.height()));
    xml.writeEndElement();
    xml.writeEndElement();
}

/// Texts that are data are neither translated nor edited as paragraphs.
void writeSpecifications(QXmlStreamWriter &xml, const QString &properties)
{
    xml.writeStartElement(QStringLiteral("propertyspecifications"));
    for (const QString &property : properties.split(u' ', Qt::SkipEmptyParts)) {
        xml.writeEmptyElement(QStringLiteral("stringpropertyspecification"));
        xml.writeAttribute(QStringLiteral("name"), property);
        xml.writeAttribute(QStringLiteral("notr"), QStringLiteral("true"));
        xml.writeAttribute(QStringLiteral("type"), QStringLiteral("singleline"));
    }
    xml.writeEndElement();
}

} // namespace

QString DesignerControl::name() const
{
    return QStringLiteral("QV_DOC_CONTROLS::") + QLatin1String(m_row.name);
}
QString DesignerControl::group() const { return QStringLiteral("QV_DOC_CONTROLS"); }
QString DesignerControl::toolTip() const { return txt(m_row.toolTip); }
QString DesignerControl::includeFile() const { return QLatin1String(m_row.header); }
QIcon DesignerControl::icon() const { return toolIcon(m_row.icon); }
QWidget *DesignerControl::createWidget(QWidget *parent) { return m_row.make(parent); }

QString DesignerControl::domXml() const
{
    QString text;
    QXmlStreamWriter xml(&text);
    xml.writeStartElement(QStringLiteral("ui"));
    xml.writeAttribute(QStringLiteral("language"), QStringLiteral("c++"));
    xml.writeAttribute(QStringLiteral("displayname"), QLatin1String(m_row.name));
    xml.writeStartElement(QStringLiteral("widget"));
    xml.writeAttribute(QStringLiteral("class"), name());
    xml.writeAttribute(QStringLiteral("name"), QLatin1String(m_row.name));
    writeGeometry(xml, m_row.size);
    xml.writeEndElement();
    xml.writeStartElement(QStringLiteral("customwidgets"));
    xml.writeStartElement(QStringLiteral("customwidget"));
    xml.writeTextElement(QStringLiteral("class"), name());
    xml.writeTextElement(QStringLiteral("extends"), QStringLiteral("QWidget"));
    writeSpecifications(xml, QLatin1String(m_row.data));
    xml.writeEndDocument();
    return text;
}

ControlPlugin::ControlPlugin()
{
    setDesignedTest(standsOnDesignedForm);
    const bool inDesigner = qApp && qApp->inherits("QDesigner");
    if (inDesigner) setLanguage(languageOf(QLocale::system().language()), {}); // a program chooses its own
    for (const ControlRow &row : controlRows()) m_controls << new DesignerControl(row, this);
}

} // namespace QV_DOC_CONTROLS
